#include "tests/support/accountset.h"

#include "core/datafolder.h"

#include <QDir>
#include <QLocale>
#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::test {

void AccountSetTest::SetUp()
{
    ASSERT_TRUE(m_dir.isValid());
    if (testDialect() == core::Dialect::Postgres) {
        const auto options = createTestDatabase(seedContext());
        m_database = options.database;
        m_connection = core::Connection::openPostgres(options);
        // The command line run by a test reaches the same database.
        qputenv("MEDISTOCK_PG", options.text().toUtf8());
        return;
    }
    const auto report = core::initDataFolder(m_dir.path(), seedContext());
    ASSERT_TRUE(report.ok()) << report.message().toStdString();
    m_connection = core::Connection::openSqlite(path());
}

void AccountSetTest::TearDown()
{
    m_connection.reset();
    if (!m_database.isEmpty()) {
        qunsetenv("MEDISTOCK_PG");
        dropTestDatabase(m_database);
    }
}

std::unique_ptr<core::Connection> AccountSetTest::openAgain() const
{
    return m_connection->openAnother();
}

QStringList AccountSetTest::copySet(const QString &folder)
{
    if (!m_database.isEmpty()) {
        m_copy = copyTestDatabase(m_database);
        return { QStringLiteral("--data"), folder, QStringLiteral("--pg"), m_copy->text() };
    }
    // The path is the test's own temporary folder: it may stand in the statement.
    m_connection->execDirect(
        QStringLiteral("vacuum into '%1'").arg(QDir(folder).filePath(core::masterFileName())));
    return { QStringLiteral("--data"), folder };
}

std::unique_ptr<core::Connection> AccountSetTest::openCopy(const QString &folder) const
{
    if (m_copy)
        return core::Connection::openPostgres(*m_copy);
    return core::Connection::openSqlite(QDir(folder).filePath(core::masterFileName()));
}

QString AccountSetTest::path() const
{
    return QDir(m_dir.path()).filePath(core::masterFileName());
}

core::SeedContext AccountSetTest::seedContext() const
{
    return { clock.today(),
        { QStringLiteral("康宁大药房"), QStringLiteral("康宁"), QStringLiteral("0571-88886666") } };
}

void AccountSetTest::reopen()
{
    m_connection.reset();
    if (!m_database.isEmpty())
        m_connection = core::Connection::openPostgres(testServer()->withDatabase(m_database));
    else
        m_connection = core::Connection::openSqlite(path());
}

void SessionTest::SetUp()
{
    AccountSetTest::SetUp();
    if (HasFatalFailure())
        return;
    loginAs(QStringLiteral("admin"));
}

void SessionTest::TearDown()
{
    m_session.reset();
    AccountSetTest::TearDown();
}

void SessionTest::loginAs(const QString &name, const QString &password)
{
    auto opened = shell::openSession(db(), ui, clock, name, password, core::LoginMode::Script);
    ASSERT_TRUE(opened.ok()) << opened.message().toStdString();
    m_session = std::move(opened.value());
    ui.clear();
}

void SessionTest::setParameter(const QString &column, const QVariant &value)
{
    db().exec(QStringLiteral("update jxc_xtcs set ") + column + QStringLiteral("=?"), { value });
    m_session->reload();
}

QStringList dumpTable(core::Connection &connection, const QString &table)
{
    QStringList lines;
    connection.forEach(QStringLiteral("select * from ") + table + QStringLiteral(" order by 1"), {},
        [&](const QSqlQuery &query) {
            const QSqlRecord record = query.record();
            QStringList values;
            for (int i = 0; i < record.count(); ++i) {
                const QVariant value = query.value(i);
                values.append(value.isNull() ? QStringLiteral("<null>") : value.toString());
            }
            lines.append(values.join(QLatin1Char('|')));
        });
    return lines;
}

namespace {

// A value written the same on both engines. A NULL reads as empty (the server's driver hands it
// as a typed null whose text would be "0"). A number is written in plain decimals: the server
// hands every numeric(28,8) as a double, whose own text would be "1e+08" where SQLite, keeping
// a whole number as an integer, writes "100000000".
QString valueText(const QSqlRecord &row, int i)
{
    if (row.isNull(i))
        return {};
    const QVariant value = row.value(i);
    if (value.typeId() == QMetaType::Double)
        return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return value.toString();
}

} // namespace

QStringList queryRows(core::Connection &connection, const QString &sql, const QVariantList &params)
{
    QStringList lines;
    for (const QSqlRecord &row : connection.rows(sql, params)) {
        QStringList values;
        for (int i = 0; i < row.count(); ++i)
            values.append(valueText(row, i));
        lines.append(values.join(QLatin1Char('|')));
    }
    return lines;
}

int rowCount(core::Connection &connection, const QString &table)
{
    return connection.firstValue(QStringLiteral("select count(*) from ") + table).toInt();
}

namespace {

// The tables and indexes with what declares them, by name.
QList<QSqlRecord> schemaObjects(core::Connection &connection)
{
    if (connection.dialect() == core::Dialect::Sqlite)
        return connection.rows(QStringLiteral(
            "select name,sql from sqlite_master where type in ('table','index') order by name"));
    return connection.rows(QStringLiteral(
        "select c.relname,case when c.relkind='i' then pg_get_indexdef(c.oid) else "
        "(select string_agg(a.attname||' '||format_type(a.atttypid,a.atttypmod),',' "
        "order by a.attnum) from pg_attribute a where a.attrelid=c.oid and a.attnum>0 and "
        "not a.attisdropped) end from pg_class c join pg_namespace n on n.oid=c.relnamespace "
        "where n.nspname=current_schema() and c.relkind in ('r','i') order by c.relname"));
}

} // namespace

QString dumpDatabase(core::Connection &connection, const QStringList &skipTables)
{
    QString dump;
    const QList<QSqlRecord> tables = schemaObjects(connection);
    for (const QSqlRecord &table : tables) {
        const QString name = table.value(0).toString();
        if (skipTables.contains(name))
            continue;
        dump += table.value(1).toString() + QLatin1Char('\n');
        if (name.startsWith(QLatin1String("ix_")) || name.endsWith(QLatin1String("_pkey")))
            continue;
        if (!connection.tableExists(name))
            continue;
        for (const QString &line : dumpTable(connection, name))
            dump += QStringLiteral("  ") + line + QLatin1Char('\n');
    }
    return dump;
}

QStringList tableRows(core::Connection &connection, const QString &table, const QString &columns,
    const QString &where, const QVariantList &params)
{
    const QString sql
        = QStringLiteral("select %1 from %2%3 order by id")
              .arg(columns, table, where.isEmpty() ? QString() : QStringLiteral(" where ") + where);
    return queryRows(connection, sql, params);
}

QStringList differences(const QString &before, const QString &after)
{
    const QStringList a = before.split(QLatin1Char('\n'));
    const QStringList b = after.split(QLatin1Char('\n'));
    QStringList changed;
    for (const QString &line : a)
        if (!b.contains(line))
            changed.append(QStringLiteral("-") + line);
    for (const QString &line : b)
        if (!a.contains(line))
            changed.append(QStringLiteral("+") + line);
    return changed;
}

} // namespace medistock::test
