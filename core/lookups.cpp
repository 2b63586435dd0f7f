#include "core/lookups.h"

#include "core/connection.h"
#include "core/schemacatalogue.h"

namespace medistock::core {

namespace {

QString firstOf(Connection &connection, const QString &preferred, const QString &fallback)
{
    const QString found = connection.firstText(preferred);
    return found.isEmpty() ? connection.firstText(fallback) : found;
}

QString employee(Connection &connection, const QString &column)
{
    return firstOf(connection,
        QStringLiteral("select %1 from jxc_user where u_name='' or u_name is null "
                       "order by id limit 1")
            .arg(column),
        QStringLiteral("select %1 from jxc_user order by id limit 1").arg(column));
}

QString supplier(Connection &connection, const QString &column)
{
    return firstOf(connection,
        QStringLiteral("select %1 from jxc_ghsxx where ghs_default<>0 and ghs_forbid=0 "
                       "order by id limit 1")
            .arg(column),
        QStringLiteral("select %1 from jxc_ghsxx where ghs_forbid=0 order by id limit 1")
            .arg(column));
}

QString customer(Connection &connection, const QString &column)
{
    return firstOf(connection,
        QStringLiteral("select %1 from jxc_khxx where kh_default<>0 and kh_forbid=0 "
                       "order by id limit 1")
            .arg(column),
        QStringLiteral("select %1 from jxc_khxx where kh_forbid=0 order by id limit 1")
            .arg(column));
}

QString warehouse(Connection &connection, const QString &column)
{
    return firstOf(connection,
        QStringLiteral("select %1 from jxc_ckxx where ck_default<>0 order by id limit 1")
            .arg(column),
        QStringLiteral("select %1 from jxc_ckxx order by id limit 1").arg(column));
}

} // namespace

QString defaultEmployeeCode(Connection &connection)
{
    return employee(connection, QStringLiteral("u_sn"));
}
QString defaultEmployeeName(Connection &connection)
{
    return employee(connection, QStringLiteral("u_name"));
}
QString defaultSupplierCode(Connection &connection)
{
    return supplier(connection, QStringLiteral("ghs_sn"));
}
QString defaultSupplierName(Connection &connection)
{
    return supplier(connection, QStringLiteral("ghs_name"));
}
QString defaultCustomerCode(Connection &connection)
{
    return customer(connection, QStringLiteral("kh_sn"));
}
QString defaultCustomerName(Connection &connection)
{
    return customer(connection, QStringLiteral("kh_name"));
}
QString defaultWarehouseCode(Connection &connection)
{
    return warehouse(connection, QStringLiteral("ck_sn"));
}
QString defaultWarehouseName(Connection &connection)
{
    return warehouse(connection, QStringLiteral("ck_name"));
}

Result<QString> firstValue(Connection &connection, const QString &column, const QString &table)
{
    const TableDef *def = findTable(table);
    if (!def || !hasColumn(*def, column))
        return Outcome::refused(QStringLiteral("没有这个数据表或字段：%1.%2").arg(table, column));
    return connection.firstText(QStringLiteral("select %1 from %2 limit 1").arg(column, table));
}

void clearWorkRows(Connection &connection, const QString &operatorName)
{
    connection.exec(QStringLiteral("delete from jxc_tempspxf where a_name=?"), { operatorName });
    connection.exec(QStringLiteral("delete from jxc_tempspxf2 where a_name=?"), { operatorName });
}

QString weekdayName(QDate date)
{
    static const char *const names[]
        = { "星期日 ", "星期一 ", "星期二 ", "星期三 ", "星期四 ", "星期五 ", "星期六 " };
    return QString::fromUtf8(names[date.dayOfWeek() % 7]);
}

} // namespace medistock::core
