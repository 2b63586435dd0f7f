#include "tests/support/businessrows.h"

#include "core/connection.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::test {

namespace {

bool compared(const QString &column)
{
    return column != QLatin1String("id") && !column.contains(QLatin1String("time"));
}

QStringList allTables(core::Connection &connection)
{
    QStringList tables;
    const QString sql = connection.dialect() == core::Dialect::Sqlite
        ? QStringLiteral("select name from sqlite_master where type='table' and "
                         "name like 'jxc_%' order by name")
        : QStringLiteral("select table_name from information_schema.tables where "
                         "table_schema=current_schema() and table_name like 'jxc_%' order by 1");
    connection.forEach(sql, {}, [&](const QSqlQuery &q) { tables.append(q.value(0).toString()); });
    return tables;
}

} // namespace

QStringList businessRows(core::Connection &connection, const QStringList &tables)
{
    QStringList rows;
    for (const QString &table : tables.isEmpty() ? allTables(connection) : tables) {
        const QStringList columns = connection.columnNames(table);
        const bool hasId = columns.contains(QStringLiteral("id"));
        connection.forEach(QStringLiteral("select * from %1%2")
                               .arg(table, hasId ? QStringLiteral(" order by id") : QString()),
            {}, [&](const QSqlQuery &q) {
                const QSqlRecord record = q.record();
                QStringList values;
                for (int i = 0; i < record.count(); ++i)
                    if (compared(record.fieldName(i)))
                        values.append(record.fieldName(i) + QLatin1Char('=')
                            + (q.value(i).isNull() ? QStringLiteral("<null>")
                                                   : q.value(i).toString()));
                rows.append(table + QStringLiteral(": ") + values.join(QLatin1Char('|')));
            });
    }
    return rows;
}

QStringList rowDifferences(const QStringList &before, const QStringList &after)
{
    QStringList changed;
    for (const QString &row : after)
        if (!before.contains(row))
            changed.append(QStringLiteral("+ ") + row);
    for (const QString &row : before)
        if (!after.contains(row))
            changed.append(QStringLiteral("- ") + row);
    return changed;
}

} // namespace medistock::test
