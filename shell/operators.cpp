#include "shell/operators.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/password.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::shell {

namespace {

// The password is hashed whole, as typed; an empty one is stored empty ("no password").
QString storedPassword(const QString &password)
{
    return password.isEmpty() ? QString() : core::hashPassword(password);
}

// Name given, not taken by another row, role known; the refusal text otherwise.
QString validateOperator(core::Connection &db, const QString &name, const QString &role, qint64 id)
{
    if (name.isEmpty())
        return QStringLiteral("操作员名称必须填写！");
    if (db.exists(
            QStringLiteral("select id from jxc_admin where a_name=? and id<>?"), { name, id }))
        return QStringLiteral("操作员：%1 已经存在，请重新输入！").arg(name);
    if (!db.exists(QStringLiteral("select id from jxc_role where r_sn=?"), { role }))
        return QStringLiteral("没有这个角色：") + role;
    return QString();
}

} // namespace

QString clearPasswordQuestion(const QString &name)
{
    return QStringLiteral("确定要清除操作员：%1 的密码吗？清除后不输入密码即可登录。").arg(name);
}

QList<OperatorRow> listOperators(core::Connection &connection)
{
    QList<OperatorRow> operators;
    for (const QSqlRecord &row : connection.rows(QStringLiteral(
             "select a.id,a.a_sn,a.a_name,a.r_sn,r.r_name,a.a_jy,a.a_jyt from jxc_admin a "
             "left join jxc_role r on r.r_sn=a.r_sn order by a.id")))
        operators.append({ row.value(0).toLongLong(), row.value(1).toString(),
            row.value(2).toString(), row.value(3).toString(), row.value(4).toString(),
            row.value(5).toInt() != 0 || row.value(6).toInt() != 0 });
    return operators;
}

Result<QString> addOperator(
    const Session &session, const QString &name, const QString &role, const QString &password)
{
    const Outcome allowed = requireRight(session, "qtcz", 6);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const QString cleanName = core::cleanText(name.trimmed());
    const QString roleCode = role.isEmpty() ? QStringLiteral("100001") : role;
    QString code;
    const Outcome outcome = core::guarded(session.ui(), [&]() -> Outcome {
        const QString refusal = validateOperator(db, cleanName, roleCode, 0);
        if (!refusal.isEmpty())
            return core::refuse(session.ui(), refusal);
        const QString stored = storedPassword(password);
        core::Transaction transaction(db);
        code
            = core::nextMasterCode(db, QStringLiteral("jxc_admin"), QStringLiteral("a_sn")).value();
        db.exec(QStringLiteral(
                    "insert into jxc_admin (a_sn,a_name,r_sn,a_pwd,a_zreoje,a_pos,a_jy,a_jyt) "
                    "values (?,?,?,?,0,0,0,0)"),
            { code, cleanName, roleCode, stored });
        session.log(QStringLiteral("增加操作员：") + cleanName);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

Outcome updateOperator(const Session &session, qint64 id, const QString &name, const QString &role)
{
    const Outcome allowed = requireRight(session, "qtcz", 6);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const QString cleanName = core::cleanText(name.trimmed());
    return core::guarded(session.ui(), [&]() -> Outcome {
        const QString refusal = validateOperator(db, cleanName, role, id);
        if (!refusal.isEmpty())
            return core::refuse(session.ui(), refusal);
        const QSqlRecord old
            = db.firstRow(QStringLiteral("select a_name,a_sn from jxc_admin where id=?"), { id });
        if (old.isEmpty())
            return core::refuse(session.ui(), QStringLiteral("该操作员已被删除！"));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_admin set a_name=?,r_sn=? where id=?"),
            { cleanName, role, id });
        session.log(QStringLiteral("修改操作员：") + old.value(0).toString() + QStringLiteral("→")
            + cleanName);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome changePassword(const Session &session, const QString &name, const QString &newPassword)
{
    if (name != session.user().name) {
        const Outcome allowed = requireRight(session, "qtcz", 6);
        if (!allowed)
            return allowed;
    }
    core::Connection &db = session.db();
    const Outcome known = core::guarded(session.ui(), [&]() -> Outcome {
        if (!db.exists(QStringLiteral("select id from jxc_admin where a_name=?"), { name }))
            return core::refuse(session.ui(), QStringLiteral("没有这个操作员：") + name);
        return Outcome::done();
    });
    if (!known)
        return known;
    // An empty password lets anyone in under the name: it is set only when confirmed.
    if (newPassword.isEmpty() && !session.ui().ask(clearPasswordQuestion(name)))
        return Outcome::refused(QString());
    const QString stored = storedPassword(newPassword);
    return core::guarded(session.ui(), [&]() -> Outcome {
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_admin set a_pwd=? where a_name=?"), { stored, name });
        session.log(QStringLiteral("修改操作员密码：") + name);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome setOperatorLocked(const Session &session, const QString &name, bool locked)
{
    const Outcome allowed = requireRight(session, "qtcz", 6);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&]() -> Outcome {
        if (!db.exists(QStringLiteral("select id from jxc_admin where a_name=?"), { name }))
            return core::refuse(session.ui(), QStringLiteral("没有这个操作员：") + name);
        if (locked && name == session.user().name)
            return core::refuse(session.ui(), QStringLiteral("不能停用当前登录的操作员！"));
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_admin set a_jy=?,a_jyt=? where a_name=?"),
            { locked ? 1 : 0, locked ? 1 : 0, name });
        session.log(
            (locked ? QStringLiteral("停用操作员：") : QStringLiteral("启用操作员：")) + name);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::shell
