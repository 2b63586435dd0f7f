#include "gsp/staff.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "gsp/filters.h"
#include "gsp/reading.h"
#include "gsp/texts.h"
#include "masterdata/mnemonic.h"
#include "shell/settings.h"

namespace medistock::gsp {

using detail::Cells;

namespace {

const int staffRight = 8;

const QString columns = QStringLiteral(
    "a.u_sn,a.u_name,a.u_jm,a.u_sex,a.u_duty,a.u_gw,a.u_jszc,a.u_zyzg,a.u_pddw,a.u_isys,a.u_islz,"
    "a.u_csrq,a.u_mz,a.u_jg,a.u_xl,a.u_zy,a.u_bysj,a.u_gsny,a.u_dabh,a.de_sn,a.fd_sn");

Employee employeeRowOf(Cells &c)
{
    Employee e;
    e.code = c.text();
    e.name = c.text();
    e.mnemonic = c.text();
    e.sex = c.text();
    e.duty = c.text();
    e.post = c.text();
    e.title = c.text();
    e.qualification = c.text();
    e.qualifiedBy = c.text();
    e.pharmacist = c.flag();
    e.left = c.flag();
    e.born = c.text();
    e.nation = c.text();
    e.origin = c.text();
    e.education = c.text();
    e.major = c.text();
    e.graduated = c.text();
    e.joined = c.text();
    e.fileNumber = c.text();
    e.department = c.text();
    e.branch = c.text();
    return e;
}

// The typed texts cleaned, with their columns' widths checked; the refusal text or empty.
QString cleanEmployee(Employee &e)
{
    const auto clean = [](QString &text) {
        text = core::cleanText(text.trimmed(), core::CleanStrength::Medium);
    };
    const struct
    {
        QString *text;
        const char *what;
        int width;
    } fields[] = { { &e.name, "姓名", 32 }, { &e.mnemonic, "简码", 32 }, { &e.duty, "职务", 32 },
        { &e.post, "岗位", 32 }, { &e.title, "技术职称", 16 }, { &e.qualification, "职业资格", 32 },
        { &e.qualifiedBy, "职业资格评定单位", 64 }, { &e.nation, "民族", 16 },
        { &e.origin, "籍贯", 8 }, { &e.education, "学历", 8 }, { &e.major, "所学专业", 32 },
        { &e.graduated, "毕业时间", 16 }, { &e.joined, "进本公司时间", 16 },
        { &e.fileNumber, "人事档案编号", 32 } };
    for (const auto &field : fields) {
        clean(*field.text);
        if (field.text->size() > field.width)
            return texts::tooLong(QString::fromUtf8(field.what), field.width);
    }
    e.code = e.code.trimmed();
    e.sex = e.sex.trimmed();
    e.born = e.born.trimmed();
    e.department = e.department.trimmed();
    e.branch = e.branch.trimmed();
    if (e.name.isEmpty())
        return texts::required(QStringLiteral("姓名"));
    if (!e.sex.isEmpty() && e.sex != QStringLiteral("男") && e.sex != QStringLiteral("女"))
        return texts::badSex(e.sex);
    if (!e.born.isEmpty() && normalDate(e.born).isEmpty())
        return texts::badDate(QStringLiteral("出生日期"), e.born);
    return QString();
}

// Refuses what the database must agree to: a unique name, an existing department and branch.
Outcome checkAgainstRows(const shell::Session &session, Employee &e, bool isNew)
{
    core::Connection &db = session.db();
    if (!isNew && !db.exists(QStringLiteral("select id from jxc_yghmc where u_sn=?"), { e.code }))
        return core::refuse(session.ui(), texts::employeeNotFound(e.code));
    if (db.exists(QStringLiteral("select id from jxc_yghmc where u_name=? and u_sn<>?"),
            { e.name, e.code }))
        return core::refuse(session.ui(), texts::employeeNameTaken(e.name));
    if (e.department.isEmpty())
        e.department
            = db.firstText(QStringLiteral("select de_sn from jxc_dept order by id limit 1"));
    if (e.branch.isEmpty())
        e.branch = db.firstText(QStringLiteral("select fd_sn from jxc_fd order by id limit 1"));
    if (!db.exists(QStringLiteral("select id from jxc_dept where de_sn=?"), { e.department }))
        return core::refuse(session.ui(), texts::unknownDepartment(e.department));
    if (!db.exists(QStringLiteral("select id from jxc_fd where fd_sn=?"), { e.branch }))
        return core::refuse(session.ui(), texts::unknownBranch(e.branch));
    return Outcome::done();
}

QVariantList valuesOf(const Employee &e)
{
    return { e.name, e.mnemonic, e.sex, e.duty, e.post, e.title, e.qualification, e.qualifiedBy,
        e.pharmacist ? 1 : 0, e.left ? 1 : 0, e.born, e.nation, e.origin, e.education, e.major,
        e.graduated, e.joined, e.fileNumber, e.department, e.branch, e.code };
}

} // namespace

Result<QList<StaffRow>> staffRegister(
    const shell::Session &session, const QString &key, const QString &sex)
{
    return detail::readRows<StaffRow>(session, {}, [&](QList<StaffRow> &rows) {
        Conditions where;
        where.keyword(
            { QStringLiteral("a.u_sn"), QStringLiteral("a.u_name"), QStringLiteral("a.u_jm"),
                QStringLiteral("a.u_duty"), QStringLiteral("a.u_jg") },
            key);
        if (!sex.trimmed().isEmpty())
            where.add(QStringLiteral("and a.u_sex=?"), { sex.trimmed() });
        session.db().forEach(QStringLiteral("select ") + columns
                + QStringLiteral(",b.fd_name,c.de_name from jxc_yghmc a,jxc_fd b,jxc_dept c where "
                                 "a.fd_sn=b.fd_sn and a.de_sn=c.de_sn")
                + where.sql() + QStringLiteral(" order by a.u_sn"),
            where.params(), [&](const QSqlQuery &q) {
                Cells c(q);
                StaffRow row;
                row.employee = employeeRowOf(c);
                row.branchName = c.text();
                row.departmentName = c.text();
                rows.append(row);
            });
    });
}

Employee employeeOf(const shell::Session &session, const QString &code)
{
    Employee employee;
    session.db().forEach(QStringLiteral("select ") + columns
            + QStringLiteral(" from jxc_yghmc a where a.u_sn=? order by a.id limit 1"),
        { code }, [&](const QSqlQuery &q) {
            Cells c(q);
            employee = employeeRowOf(c);
        });
    return employee;
}

QList<Place> departments(const shell::Session &session)
{
    QList<Place> list;
    session.db().forEach(QStringLiteral("select de_sn,de_name from jxc_dept order by de_sn"), {},
        [&](const QSqlQuery &q) {
            list.append({ q.value(0).toString(), q.value(1).toString() });
        });
    return list;
}

QList<Place> branches(const shell::Session &session)
{
    QList<Place> list;
    session.db().forEach(QStringLiteral("select fd_sn,fd_name from jxc_fd order by fd_sn"), {},
        [&](const QSqlQuery &q) {
            list.append({ q.value(0).toString(), q.value(1).toString() });
        });
    return list;
}

Result<QString> saveEmployee(const shell::Session &session, const Employee &typed)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", staffRight);
    if (!allowed)
        return allowed;
    Employee e = typed;
    const QString refusal = cleanEmployee(e);
    if (!refusal.isEmpty())
        return core::refuse(session.ui(), refusal);
    if (e.mnemonic.isEmpty())
        e.mnemonic = masterdata::mnemonicOf(e.name);
    const bool isNew = e.code.isEmpty();
    const Outcome outcome = core::guarded(session.ui(), [&] {
        const Outcome agreed = checkAgainstRows(session, e, isNew);
        if (!agreed)
            return agreed;
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        if (isNew) {
            e.code = core::nextMasterCode(db, QStringLiteral("jxc_yghmc"), QStringLiteral("u_sn"))
                         .value();
            db.exec(QStringLiteral("insert into jxc_yghmc (u_name,u_jm,u_sex,u_duty,u_gw,u_jszc,"
                                   "u_zyzg,u_pddw,u_isys,u_islz,u_csrq,u_mz,u_jg,u_xl,u_zy,u_bysj,"
                                   "u_gsny,u_dabh,de_sn,fd_sn,u_sn) values "
                                   "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
                valuesOf(e));
        } else {
            db.exec(QStringLiteral("update jxc_yghmc set u_name=?,u_jm=?,u_sex=?,u_duty=?,u_gw=?,"
                                   "u_jszc=?,u_zyzg=?,u_pddw=?,u_isys=?,u_islz=?,u_csrq=?,u_mz=?,"
                                   "u_jg=?,u_xl=?,u_zy=?,u_bysj=?,u_gsny=?,u_dabh=?,de_sn=?,"
                                   "fd_sn=? where u_sn=?"),
                valuesOf(e));
        }
        session.log(texts::employeeSavedLog(e.name));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return e.code;
}

Outcome deleteEmployee(const shell::Session &session, const QString &code)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", staffRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const Employee employee = employeeOf(session, code);
        if (employee.code.isEmpty())
            return core::refuse(session.ui(), texts::employeeNotFound(code));
        if (db.exists(QStringLiteral("select id from jxc_ygpxjh where u_sn=? limit 1"), { code })
            || db.exists(
                QStringLiteral("select id from jxc_ygpxjl where u_sn=? limit 1"), { code }))
            return core::refuse(session.ui(), texts::employeeOnTraining(employee.name));
        if (!session.ui().ask(texts::deleteEmployeeQuestion(employee.name)))
            return Outcome::refused(QString());
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_yghmc where u_sn=?"), { code });
        session.log(texts::employeeDeletedLog(employee.name));
        transaction.commit();
        return Outcome::done();
    });
}

Result<QString> copyToSalesmen(const shell::Session &session, const QString &code)
{
    const Outcome allowed = shell::requireRight(session, "gspgl", staffRight);
    if (!allowed)
        return allowed;
    QString salesman;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        const Employee employee = employeeOf(session, code);
        if (employee.code.isEmpty())
            return core::refuse(session.ui(), texts::employeeNotFound(code));
        if (!session.ui().ask(texts::copyToSalesmenQuestion(employee.name)))
            return Outcome::refused(QString());
        if (db.exists(QStringLiteral("select id from jxc_user where u_name=?"), { employee.name }))
            return core::refuse(session.ui(), texts::alreadySalesman(employee.name));
        core::Transaction transaction(db);
        salesman
            = core::nextMasterCode(db, QStringLiteral("jxc_user"), QStringLiteral("u_sn")).value();
        // The salesmen keep no department or branch; the counters and the commission settings
        // start as a new salesman's do.
        db.exec(QStringLiteral("insert into jxc_user (u_sn,u_name,u_jm,u_duty,u_tele,u_address,"
                               "u_tc,u_note,u_cg,u_xs,u_kc,u_cgpl,u_xspl,u_jy,u_tcfs,u_zdlr,"
                               "u_tctxt,ck_sn,ck_name) select ?,u_name,u_jm,u_duty,?,?,?,?,?,?,?,"
                               "?,?,?,?,?,?,?,? from jxc_yghmc where u_sn=?"),
            { salesman, QString(), QString(), 0, QString(), 1, 1, 1, 0, 0, 0, 0, 0,
                QStringLiteral("按销售额提成"), QStringLiteral("-1"), QStringLiteral("所有仓库"),
                code });
        session.log(texts::copiedToSalesmen(employee.name, salesman));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return salesman;
}

} // namespace medistock::gsp
