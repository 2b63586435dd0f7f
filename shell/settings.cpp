#include "shell/settings.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/schema.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"
#include "shell/parametervalues.h"
#include "shell/rights.h"
#include "shell/session.h"

#include <QSqlRecord>

namespace medistock::shell {

namespace {

const QString parameterTable = QStringLiteral("jxc_xtcs");

QString pendingText(const QSqlRecord &row)
{
    return QStringLiteral("单据号：") + row.value(0).toString() + QStringLiteral("，商品编号：")
        + row.value(1).toString();
}

} // namespace

QString noRightText(const QString &operation)
{
    return QStringLiteral("您没有“%1”的权限！").arg(operation);
}

Outcome requireRight(const Session &session, const char *area, int position)
{
    if (hasRight(session, QString::fromLatin1(area), position))
        return Outcome::done();
    const RightArea *def = findRightArea(QString::fromLatin1(area));
    const QString label = def && position >= 1 && position <= int(def->operations.size())
        ? QString::fromUtf8(def->operations[position - 1])
        : QString::fromLatin1(area);
    return core::refuse(session.ui(), noRightText(label));
}

Outcome saveParameters(Session &session, const QHash<QString, QVariant> &changes)
{
    const Outcome allowed = requireRight(session, "qtcz", 12);
    if (!allowed)
        return allowed;
    const core::TableDef &table = *core::findTable(parameterTable);
    for (auto it = changes.begin(); it != changes.end(); ++it)
        if (it.key() == QLatin1String("id") || !core::hasColumn(table, it.key()))
            return core::refuse(session.ui(), QStringLiteral("没有这个系统参数：") + it.key());
    QStringList assignments;
    QVariantList values;
    // In column order, so that of several faults the same one is told each time.
    for (const QString &column : core::columnNames(table)) {
        if (!changes.contains(column))
            continue;
        QVariant value = changes.value(column);
        const QString refusal = checkParameterValue(column, value);
        if (!refusal.isEmpty())
            return core::refuse(session.ui(), refusal);
        assignments.append(column + QStringLiteral("=?"));
        values.append(value);
    }
    if (assignments.isEmpty())
        return Outcome::done();
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        session.db().exec(QStringLiteral("update jxc_xtcs set ")
                + assignments.join(QLatin1Char(','))
                + QStringLiteral(" where id=(select min(id) from jxc_xtcs)"),
            values);
        session.log(QStringLiteral("修改系统设置"));
        transaction.commit();
        session.reload();
        return Outcome::done();
    });
}

Outcome restoreDefaultParameters(Session &session)
{
    const Outcome allowed = requireRight(session, "qtcz", 12);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        const QSqlRecord receiving = db.firstRow(QStringLiteral(
            "select j_sn,g_sn from jxc_jhsp where jh_sl>jh_rksl+jh_qxsl order by id desc limit 1"));
        if (!receiving.isEmpty())
            return core::refuse(session.ui(),
                QStringLiteral("至少有一种商品没有完成入库，\r\n\r\n") + pendingText(receiving)
                    + QStringLiteral("\r\n\r\n不能取消商品入库功能！"));
        const QSqlRecord issuing
            = db.firstRow(QStringLiteral("select gl_djh,g_sn from jxc_lsxssp where "
                                         "ls_sl>ls_cksl+ls_qxsl order by id desc limit 1"));
        if (!issuing.isEmpty())
            return core::refuse(session.ui(),
                QStringLiteral("至少有一种商品没有完成出库，\r\n\r\n") + pendingText(issuing)
                    + QStringLiteral("\r\n\r\n不能取消商品出库功能！"));

        core::Transaction transaction(db);
        const core::SeedContext seeds { session.clock().today(), {} };
        core::createTable(db, *core::findTable(parameterTable), seeds);
        db.exec(QStringLiteral("update jxc_xtcs set cs_employdate=?"),
            { QStringLiteral("1900-01-01") });
        session.log(QStringLiteral("系统设置恢复默认值"));
        transaction.commit();
        session.reload();
        return Outcome::done();
    });
}

} // namespace medistock::shell
