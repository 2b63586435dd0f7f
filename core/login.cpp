#include "core/login.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/oplog.h"
#include "core/password.h"
#include "core/transaction.h"

#include <QSqlRecord>

namespace medistock::core {

QString initialPasswordHint()
{
    return QStringLiteral("初始密码为空");
}

QString wrongPasswordText()
{
    return QStringLiteral("用户密码不正确，请重新输入！");
}

QStringList loginOperators(Connection &connection)
{
    QStringList names;
    for (const QSqlRecord &row :
        connection.rows(QStringLiteral("select a_name from jxc_admin where a_jyt=0 order by id")))
        names.append(row.value(0).toString());
    return names;
}

bool hasEmptyPassword(Connection &connection, const QString &name)
{
    const QVariant stored = connection.firstValue(
        QStringLiteral("select a_pwd from jxc_admin where a_name=?"), { name });
    return stored.isValid() && stored.toString().isEmpty();
}

Result<OperatorIdentity> login(Connection &connection, const Clock &clock, Interaction &interaction,
    const QString &name, const QString &password, LoginMode mode)
{
    Result<OperatorIdentity> result = Outcome::refused(QString());
    const Outcome outcome = guarded(interaction, [&]() -> Outcome {
        const QSqlRecord row = connection.firstRow(
            QStringLiteral("select a_name,a_sn,r_sn,a_pwd,a_jyt from jxc_admin where a_name=?"),
            { name });
        const QString stored = row.value(3).toString();
        if (row.isEmpty() || !verifyPassword(stored, password))
            return refuse(interaction, wrongPasswordText());
        if (row.value(4).toInt() != 0)
            return refuse(interaction, QStringLiteral("操作员：%1 已停用，不能登录！").arg(name));

        // A login that writes nothing takes no write lock: every command logs in.
        const bool legacy = !stored.isEmpty() && !isPasswordHash(stored);
        if (legacy || mode == LoginMode::Desktop) {
            Transaction transaction(connection);
            if (legacy)
                connection.exec(
                    QStringLiteral("update jxc_admin set a_pwd=? where a_name=? and a_pwd=?"),
                    { hashPassword(password), name, stored });
            if (mode == LoginMode::Desktop)
                writeLog(connection, clock, name, QStringLiteral("登录系统"));
            transaction.commit();
        }
        result = OperatorIdentity { row.value(0).toString(), row.value(1).toString(),
            row.value(2).toString() };
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return result;
}

} // namespace medistock::core
