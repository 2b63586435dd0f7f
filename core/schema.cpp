#include "core/schema.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/transaction.h"

#include <QSqlRecord>

namespace medistock::core {

namespace {

QVariant seedValue(const SeedValue &value, const SeedContext &context)
{
    switch (value.kind) {
    case SeedValue::Kind::Text:
        return QString::fromUtf8(value.literal);
    case SeedValue::Kind::Number: {
        const QString text = QString::fromLatin1(value.literal);
        if (text.contains(QLatin1Char('.')))
            return text.toDouble();
        return text.toLongLong();
    }
    case SeedValue::Kind::Today:
        return context.today.toString(QStringLiteral("yyyy-MM-dd"));
    case SeedValue::Kind::CompanyName:
        return context.company.name;
    case SeedValue::Kind::CompanyShort:
        return context.company.shortName;
    case SeedValue::Kind::CompanyTele:
        return context.company.tele;
    case SeedValue::Kind::BranchName: {
        const QString shop = context.company.shortName.isEmpty() ? context.company.name
                                                                 : context.company.shortName;
        return shop + QStringLiteral("旗舰店");
    }
    }
    return QVariant();
}

QString createSql(Connection &connection, const TableDef &table, const QString &name)
{
    QStringList declarations;
    for (const ColumnDef &column : table.columns)
        declarations.append(QString::fromLatin1(column.name) + QLatin1Char(' ')
            + columnTypeSql(connection.dialect(), QString::fromLatin1(column.type)));
    return QStringLiteral("create table ") + name + QStringLiteral(" (")
        + declarations.join(QLatin1Char(',')) + QLatin1Char(')');
}

void createIndexes(Connection &connection, const TableDef &table, const QString &name)
{
    int number = 0;
    for (const IndexDef &index : schemaIndexes()) {
        if (qstrcmp(index.table, table.name) != 0)
            continue;
        ++number;
        connection.execDirect(QStringLiteral("create index ix_%1_%2 on %1 (%3)")
                                  .arg(name)
                                  .arg(number)
                                  .arg(QString::fromLatin1(index.columns)));
    }
}

void insertSeed(
    Connection &connection, const SeedRow &seed, const QString &target, const SeedContext &context)
{
    const QString columns = QString::fromLatin1(seed.columns);
    QStringList marks;
    QVariantList values;
    for (const SeedValue &value : seed.values) {
        marks.append(QStringLiteral("?"));
        values.append(seedValue(value, context));
    }
    connection.exec(QStringLiteral("insert into ") + target + QStringLiteral(" (") + columns
            + QStringLiteral(") values (") + marks.join(QLatin1Char(',')) + QLatin1Char(')'),
        values);
}

template<class Body> Outcome inTransaction(Connection &connection, Body body)
{
    try {
        Transaction transaction(connection);
        body();
        transaction.commit();
        return Outcome::done();
    } catch (const DbError &error) {
        return Outcome::failed(error.message());
    }
}

bool isKept(const char *table)
{
    for (const char *kept : keptTables())
        if (qstrcmp(kept, table) == 0)
            return true;
    return false;
}

} // namespace

void createTable(Connection &connection, const TableDef &table, const SeedContext &context,
    const QString &suffix)
{
    const QString name = QString::fromLatin1(table.name) + suffix;
    connection.execDirect(QStringLiteral("drop table if exists ") + name);
    connection.execDirect(createSql(connection, table, name));
    createIndexes(connection, table, name);
    for (const SeedRow &seed : table.seeds) {
        const bool ownTable = qstrcmp(seed.table, table.name) == 0;
        if (!ownTable && !suffix.isEmpty())
            continue;
        insertSeed(connection, seed, ownTable ? name : QString::fromLatin1(seed.table), context);
    }
}

Outcome createAllTables(Connection &connection, const SeedContext &context)
{
    return inTransaction(connection, [&] {
        for (const TableDef &table : schemaTables())
            createTable(connection, table, context);
    });
}

Outcome clearBusinessData(Connection &connection, const SeedContext &context)
{
    return inTransaction(connection, [&] {
        for (const TableDef &table : schemaTables())
            if (!isKept(table.name))
                createTable(connection, table, context);
        connection.exec(QStringLiteral("update jxc_goods set g_kc=0,ghs_sn='100001'"));
        createTable(connection, *findTable(QStringLiteral("jxc_kcsp")), context);
    });
}

Outcome ensureRegisterTable(Connection &connection)
{
    return inTransaction(connection, [&] {
        const TableDef &table = registerTable();
        if (!connection.tableExists(QString::fromLatin1(table.name)))
            connection.execDirect(createSql(connection, table, QString::fromLatin1(table.name)));
    });
}

CompanyInfo readCompany(Connection &connection)
{
    CompanyInfo company;
    if (!connection.tableExists(QStringLiteral("jxc_company")))
        return company;
    const QSqlRecord row = connection.firstRow(
        QStringLiteral("select c_name,c_jc,c_tele from jxc_company order by id limit 1"));
    if (row.isEmpty())
        return company;
    company.name = row.value(0).toString();
    company.shortName = row.value(1).toString();
    company.tele = row.value(2).toString();
    return company;
}

} // namespace medistock::core
