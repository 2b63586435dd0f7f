// The training plans and records as listed, changed and deleted, and the checks of what is typed
// into them.
#include "core/connection.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "gsp/trainingfields.h"
#include "shell/settings.h"

#include <QDateTime>

namespace medistock::gsp {

using detail::Cells;

namespace {

struct Field
{
    QString *text;
    const char *what;
    int width;
    bool required = false;
};

QString cleanFields(std::initializer_list<Field> fields)
{
    for (const Field &field : fields) {
        *field.text = core::cleanText(field.text->trimmed(), core::CleanStrength::Medium);
        if (field.required && field.text->isEmpty())
            return texts::required(QString::fromUtf8(field.what));
        if (field.text->size() > field.width)
            return texts::tooLong(QString::fromUtf8(field.what), field.width);
    }
    return QString();
}

// A date, or a date and time of day, as the lists compare them.
QString timeRefusal(const QString &what, QString &text)
{
    text = text.trimmed();
    if (QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid()
        || QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm")).isValid())
        return QString();
    return texts::badDate(what, text);
}

Plan planOf(Cells &c)
{
    Plan plan;
    for (QString *text : { &plan.topic, &plan.purpose, &plan.content, &plan.place, &plan.teacher,
             &plan.planned, &plan.audience, &plan.assessment, &plan.method, &plan.note })
        *text = c.text();
    return plan;
}

Training trainingOf(Cells &c)
{
    Training training;
    for (QString *text : { &training.held, &training.performance, &training.result, &training.score,
             &training.assessor, &training.note })
        *text = c.text();
    return training;
}

// The name of the employee of a row, and whether the row exists.
QSqlRecord rowOf(core::Connection &db, const char *table, qint64 id)
{
    return db.firstRow(QStringLiteral("select a.u_sn,b.u_name from %1 a left join jxc_yghmc b on "
                                      "a.u_sn=b.u_sn where a.id=?")
                           .arg(QLatin1String(table)),
        { id });
}

} // namespace

namespace detail {

QString cleanPlan(Plan &p)
{
    const QString refusal
        = cleanFields({ { &p.topic, "培训主题", 32, true }, { &p.purpose, "培训目的", 64 },
            { &p.content, "培训内容", 200 }, { &p.place, "地点", 64 }, { &p.teacher, "讲师", 32 },
            { &p.audience, "培训对象", 32 }, { &p.assessment, "考核方式", 32 },
            { &p.method, "培训方式", 32 }, { &p.note, "备注", 64 } });
    return refusal.isEmpty() ? timeRefusal(QStringLiteral("预定时间"), p.planned) : refusal;
}

QString cleanTraining(Training &t)
{
    const QString refusal
        = cleanFields({ { &t.performance, "培训表现", 64 }, { &t.result, "考核结果", 64 },
            { &t.score, "成绩", 16 }, { &t.assessor, "评定人", 16 }, { &t.note, "备注", 64 } });
    return refusal.isEmpty() ? timeRefusal(QStringLiteral("培训时间"), t.held) : refusal;
}

Outcome admitPlan(const shell::Session &session, Plan &plan)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", planRight);
    if (!allowed)
        return allowed;
    const QString refusal = cleanPlan(plan);
    return refusal.isEmpty() ? Outcome::done() : core::refuse(session.ui(), refusal);
}

Outcome admitTraining(const shell::Session &session, Training &training)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", recordRight);
    if (!allowed)
        return allowed;
    const QString refusal = cleanTraining(training);
    return refusal.isEmpty() ? Outcome::done() : core::refuse(session.ui(), refusal);
}

QVariantList planValues(const Plan &p)
{
    return { p.topic, p.purpose, p.content, p.place, p.teacher, p.planned, p.audience, p.assessment,
        p.method, p.note };
}

QVariantList trainingValues(const Training &t)
{
    return { t.held, t.performance, t.result, t.score, t.assessor, t.note };
}

} // namespace detail

Result<QList<PlanRow>> trainingPlans(const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<PlanRow>(session, filter, [&](QList<PlanRow> &rows) {
        const Conditions where = conditionsOf(session, filter,
            { { QStringLiteral("a.u_sn"), QStringLiteral("b.u_name"), QStringLiteral("b.u_jm") } });
        const QVariantList params = rangeParams(filter, {}, where);
        session.db().forEach(
            QStringLiteral("select a.id,a.id2,a.u_rq,a.u_sn,b.u_name,a.a_name,a.u_pxzt,a.u_pxmd,"
                           "a.u_pxnr,a.u_dd,a.u_js,a.u_ydsj,a.u_pxdx,a.u_khfs,a.u_pxfs,a.u_bz from "
                           "jxc_ygpxjh a,jxc_yghmc b where a.u_sn=b.u_sn and a.u_ydsj>=? and "
                           "a.u_ydsj<=?")
                + where.sql() + QStringLiteral(" order by a.id desc"),
            params, [&](const QSqlQuery &q) {
                Cells c(q);
                PlanRow row;
                row.id = c.id();
                row.group = c.id();
                row.submitted = c.text();
                row.employee = c.text();
                row.employeeName = c.text();
                row.operatorName = c.text();
                row.plan = planOf(c);
                rows.append(row);
            });
    });
}

Result<QList<TrainingRow>> trainingRecords(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<TrainingRow>(session, filter, [&](QList<TrainingRow> &rows) {
        const Conditions where = conditionsOf(session, filter,
            { { QStringLiteral("a.u_sn"), QStringLiteral("b.u_name"), QStringLiteral("b.u_jm") } });
        const QVariantList params = rangeParams(filter, {}, where);
        session.db().forEach(
            QStringLiteral("select a.id,a.id2,a.u_sn,b.u_name,a.a_name,c.u_pxzt,c.u_ydsj,a.u_pxsj,"
                           "a.u_pxbx,a.u_khjg,a.u_cj,a.u_pdr,a.u_bz from jxc_ygpxjl a,jxc_yghmc b,"
                           "jxc_ygpxjh c where a.u_sn=b.u_sn and a.id2=c.id2 and a.u_pxsj>=? and "
                           "a.u_pxsj<=?")
                + where.sql() + QStringLiteral(" order by a.id desc"),
            params, [&](const QSqlQuery &q) {
                Cells c(q);
                TrainingRow row;
                row.id = c.id();
                row.group = c.id();
                row.employee = c.text();
                row.employeeName = c.text();
                row.operatorName = c.text();
                row.topic = c.text();
                row.planned = c.text();
                row.training = trainingOf(c);
                rows.append(row);
            });
    });
}

Outcome changePlan(const shell::Session &session, qint64 id, const Plan &typed)
{
    Plan plan = typed;
    const Outcome admitted = detail::admitPlan(session, plan);
    if (!admitted)
        return admitted;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord row = rowOf(db, "jxc_ygpxjh", id);
        if (row.isEmpty())
            return core::refuse(session.ui(), texts::planNotFound(id));
        QVariantList values = detail::planValues(plan);
        values.append(id);
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_ygpxjh set u_pxzt=?,u_pxmd=?,u_pxnr=?,u_dd=?,u_js=?,"
                               "u_ydsj=?,u_pxdx=?,u_khfs=?,u_pxfs=?,u_bz=? where id=?"),
            values);
        session.log(texts::planChangedLog(plan.topic, row.value(1).toString()));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deletePlan(const shell::Session &session, qint64 id)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", planRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord plan = db.firstRow(
            QStringLiteral("select a.id2,a.u_pxzt,b.u_name from jxc_ygpxjh a left join jxc_yghmc b "
                           "on a.u_sn=b.u_sn where a.id=?"),
            { id });
        if (plan.isEmpty())
            return core::refuse(session.ui(), texts::planNotFound(id));
        if (db.exists(
                QStringLiteral("select id from jxc_ygpxjl where id2=? limit 1"), { plan.value(0) }))
            return core::refuse(session.ui(), texts::planHasRecords());
        if (!session.ui().ask(
                texts::deletePlanQuestion(plan.value(1).toString(), plan.value(2).toString())))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_ygpxjh where id=?"), { id });
        session.log(texts::planDeletedLog(plan.value(1).toString(), plan.value(2).toString()));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome changeTraining(const shell::Session &session, qint64 id, const Training &typed)
{
    Training training = typed;
    const Outcome admitted = detail::admitTraining(session, training);
    if (!admitted)
        return admitted;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord row = rowOf(db, "jxc_ygpxjl", id);
        if (row.isEmpty())
            return core::refuse(session.ui(), texts::trainingNotFound(id));
        QVariantList values = detail::trainingValues(training);
        values.append(id);
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_ygpxjl set u_pxsj=?,u_pxbx=?,u_khjg=?,u_cj=?,u_pdr=?,"
                               "u_bz=? where id=?"),
            values);
        session.log(texts::trainingChangedLog(row.value(1).toString()));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteTraining(const shell::Session &session, qint64 id)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", recordRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const QSqlRecord row = rowOf(db, "jxc_ygpxjl", id);
        if (row.isEmpty())
            return core::refuse(session.ui(), texts::trainingNotFound(id));
        if (!session.ui().ask(texts::deleteTrainingQuestion(row.value(1).toString())))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_ygpxjl where id=?"), { id });
        session.log(texts::trainingDeletedLog(row.value(1).toString()));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::gsp
