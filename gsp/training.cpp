#include "gsp/training.h"

#include "core/connection.h"
#include "core/transaction.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "gsp/trainingfields.h"
#include "shell/settings.h"

namespace medistock::gsp {

using detail::Cells;

namespace {

QString tagOf(TrainingPicks kind)
{
    return kind == TrainingPicks::Plan ? QStringLiteral("pxjh") : QStringLiteral("pxjl");
}

// The name of an employee who has left or is not in the register; empty when he is employed.
QString notEmployed(core::Connection &db, const QString &employee)
{
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select u_name,u_islz from jxc_yghmc where u_sn=?"), { employee });
    if (row.isEmpty())
        return employee;
    return row.value(1).toInt() != 0 ? row.value(0).toString() : QString();
}

// Refuses the first pick whose employee has left (told); done when all are employed.
Outcome checkPicksEmployed(const shell::Session &session, const QList<TrainingPick> &picks)
{
    for (const TrainingPick &pick : picks) {
        const QString left = notEmployed(session.db(), pick.employee);
        if (!left.isEmpty())
            return core::refuse(session.ui(), texts::employeeLeft(left));
    }
    return Outcome::done();
}

Result<bool> addPick(
    const shell::Session &session, TrainingPicks kind, const QString &employee, qint64 group)
{
    core::Connection &db = session.db();
    const QVariantList key { employee, group, session.user().name, tagOf(kind) };
    if (db.exists(QStringLiteral("select id from jxc_tempspxf where g_sn=? and ts_sl=? and "
                                 "a_name=? and t_zp=?"),
            key))
        return false;
    core::Transaction transaction(db);
    db.exec(
        QStringLiteral("insert into jxc_tempspxf (g_sn,ts_sl,a_name,t_zp) values (?,?,?,?)"), key);
    transaction.commit();
    return true;
}

void emptyPicks(const shell::Session &session, TrainingPicks kind)
{
    session.db().exec(QStringLiteral("delete from jxc_tempspxf where a_name=? and t_zp=?"),
        { session.user().name, tagOf(kind) });
}

} // namespace

QList<StaffChoice> employedStaff(const shell::Session &session)
{
    QList<StaffChoice> staff;
    session.db().forEach(QStringLiteral("select u_sn,u_name,u_sex,u_duty,u_gw from jxc_yghmc "
                                        "where u_islz=0 order by u_sn"),
        {}, [&](const QSqlQuery &q) {
            Cells c(q);
            staff.append({ c.text(), c.text(), c.text(), c.text(), c.text() });
        });
    return staff;
}

QList<PlanChoice> plansOfEmployedStaff(const shell::Session &session)
{
    QList<PlanChoice> plans;
    session.db().forEach(
        QStringLiteral(
            "select a.id2,a.u_sn,b.u_name,b.u_sex,b.u_duty,b.u_gw,a.u_pxzt,a.u_ydsj from "
            "jxc_ygpxjh a,jxc_yghmc b where a.u_sn=b.u_sn and b.u_islz=0 order by "
            "a.u_sn,a.id"),
        {}, [&](const QSqlQuery &q) {
            Cells c(q);
            PlanChoice plan;
            plan.group = c.id();
            plan.employee = c.text();
            plan.employeeName = c.text();
            plan.sex = c.text();
            plan.duty = c.text();
            plan.post = c.text();
            plan.topic = c.text();
            plan.planned = c.text();
            plans.append(plan);
        });
    return plans;
}

QList<TrainingPick> trainingPicks(const shell::Session &session, TrainingPicks kind)
{
    QList<TrainingPick> picks;
    session.db().forEach(
        QStringLiteral("select a.id,a.g_sn,b.u_name,a.ts_sl,(select p.u_pxzt from jxc_ygpxjh p "
                       "where p.id2=a.ts_sl and p.u_sn=a.g_sn order by p.id limit 1) from "
                       "jxc_tempspxf a left join jxc_yghmc b on a.g_sn=b.u_sn where a.a_name=? "
                       "and a.t_zp=? order by a.id"),
        { session.user().name, tagOf(kind) }, [&](const QSqlQuery &q) {
            Cells c(q);
            TrainingPick pick;
            pick.id = c.id();
            pick.employee = c.text();
            pick.employeeName = c.text();
            pick.group = c.id();
            pick.topic = c.text();
            picks.append(pick);
        });
    return picks;
}

Outcome clearTrainingPicks(const shell::Session &session, TrainingPicks kind)
{
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        emptyPicks(session, kind);
        transaction.commit();
        return Outcome::done();
    });
}

Result<bool> pickForPlan(const shell::Session &session, const QString &employee)
{
    bool added = false;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        const QString left = notEmployed(session.db(), employee);
        if (!left.isEmpty())
            return core::refuse(session.ui(), texts::employeeLeft(left));
        const Result<bool> picked = addPick(session, TrainingPicks::Plan, employee, 0);
        added = picked.value();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return added;
}

Result<bool> pickForRecord(const shell::Session &session, qint64 group)
{
    bool added = false;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        const QString employee = session.db().firstText(
            QStringLiteral("select u_sn from jxc_ygpxjh where id2=? order by id limit 1"),
            { group });
        if (employee.isEmpty())
            return core::refuse(session.ui(), texts::planNotFound(group));
        const QString left = notEmployed(session.db(), employee);
        if (!left.isEmpty())
            return core::refuse(session.ui(), texts::employeeLeft(left));
        added = addPick(session, TrainingPicks::Record, employee, group).value();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return added;
}

Outcome removeTrainingPick(const shell::Session &session, qint64 id)
{
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        if (!db.exists(QStringLiteral("select id from jxc_tempspxf where id=? and a_name=?"),
                { id, session.user().name }))
            return core::refuse(session.ui(), texts::lineNotFound(id));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_tempspxf where id=?"), { id });
        transaction.commit();
        return Outcome::done();
    });
}

Result<int> savePlan(const shell::Session &session, const Plan &typed)
{
    Plan plan = typed;
    const Outcome admitted = detail::admitPlan(session, plan);
    if (!admitted)
        return admitted;
    int written = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        const QList<TrainingPick> picks = trainingPicks(session, TrainingPicks::Plan);
        if (picks.isEmpty())
            return core::refuse(session.ui(), texts::noEmployeePicked());
        const Outcome employed = checkPicksEmployed(session, picks);
        if (!employed)
            return employed;
        if (!session.ui().ask(texts::trainingSaveQuestion()))
            return Outcome::refused(QString());
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        for (const TrainingPick &pick : picks) {
            QVariantList values { session.today(), pick.employee };
            values.append(detail::planValues(plan));
            values.append({ session.user().name, 0 });
            db.exec(QStringLiteral("insert into jxc_ygpxjh (u_rq,u_sn,u_pxzt,u_pxmd,u_pxnr,u_dd,"
                                   "u_js,u_ydsj,u_pxdx,u_khfs,u_pxfs,u_bz,a_name,id2) values "
                                   "(?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                values);
        }
        db.exec(QStringLiteral("update jxc_ygpxjh set id2=id where id2=?"), { 0 });
        emptyPicks(session, TrainingPicks::Plan);
        written = int(picks.size());
        session.log(texts::plansSavedLog(plan.topic, written));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return written;
}

Result<int> saveTrainings(const shell::Session &session, const Training &typed)
{
    Training training = typed;
    const Outcome admitted = detail::admitTraining(session, training);
    if (!admitted)
        return admitted;
    int written = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QList<TrainingPick> picks = trainingPicks(session, TrainingPicks::Record);
        if (picks.isEmpty())
            return core::refuse(session.ui(), texts::noPlanPicked());
        for (const TrainingPick &pick : picks)
            if (!db.exists(QStringLiteral("select id from jxc_ygpxjh where id2=?"), { pick.group }))
                return core::refuse(session.ui(), texts::planNotFound(pick.group));
        const Outcome employed = checkPicksEmployed(session, picks);
        if (!employed)
            return employed;
        if (!session.ui().ask(texts::trainingSaveQuestion()))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        for (const TrainingPick &pick : picks) {
            QVariantList values { pick.employee };
            values.append(detail::trainingValues(training));
            values.append({ session.user().name, pick.group });
            db.exec(QStringLiteral("insert into jxc_ygpxjl (u_sn,u_pxsj,u_pxbx,u_khjg,u_cj,u_pdr,"
                                   "u_bz,a_name,id2) values (?,?,?,?,?,?,?,?,?)"),
                values);
        }
        emptyPicks(session, TrainingPicks::Record);
        written = int(picks.size());
        session.log(texts::trainingsSavedLog(written));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return written;
}

} // namespace medistock::gsp
