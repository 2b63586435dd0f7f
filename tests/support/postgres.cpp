#include "tests/support/postgres.h"

#include "core/datafolder.h"
#include "core/dberror.h"
#include "core/schemacatalogue.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlRecord>

#include <gtest/gtest.h>

namespace medistock::test {

namespace {

// Both names are ours, made of letters, digits and "_": they may be joined into the statement.
QString quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

// The template's name tells the schema and seeds it was made with, so that a server outliving
// one build never hands out a template of another.
QString templateName(const core::SeedContext &seeds)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const core::TableDef &table : core::schemaTables()) {
        hash.addData(QByteArray(table.name));
        for (const core::ColumnDef &column : table.columns)
            hash.addData(QByteArray(column.name) + ' ' + column.type);
        hash.addData(QByteArray::number(qsizetype(table.seeds.size())));
    }
    for (const core::IndexDef &index : core::schemaIndexes())
        hash.addData(QByteArray(index.table) + ' ' + index.columns);
    hash.addData(seeds.today.toString(Qt::ISODate).toUtf8());
    hash.addData((seeds.company.name + seeds.company.shortName + seeds.company.tele).toUtf8());
    return QStringLiteral("medistock_template_")
        + QString::fromLatin1(hash.result().toHex().left(16));
}

void makeTemplate(core::Connection &server, const QString &name, const core::SeedContext &seeds)
{
    // Built under another name and renamed when whole, so a test killed half-way leaves no
    // template that looks finished.
    const QString building = name + QStringLiteral("_building");
    server.execDirect(QStringLiteral("drop database if exists ") + quoted(building));
    server.execDirect(QStringLiteral("create database ") + quoted(building));
    {
        auto connection = core::Connection::openPostgres(testServer()->withDatabase(building));
        const Outcome made = core::initMasterDatabase(*connection, seeds);
        if (!made)
            throw core::DbError(made.message());
    }
    server.execDirect(
        QStringLiteral("alter database %1 rename to %2").arg(quoted(building), quoted(name)));
    // Nobody may connect to it (a connection to a template holds up every copy of it).
    server.execDirect(
        QStringLiteral("alter database %1 with allow_connections false is_template true")
            .arg(quoted(name)));
}

struct LeftOut
{
    QString pattern;
    QString reason;
};

QList<LeftOut> leftOutTests()
{
    QList<LeftOut> list;
    QFile file(QStringLiteral(MEDISTOCK_SOURCE_DIR "/tests/postgres-left-out.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return list;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const int space = line.indexOf(QRegularExpression(QStringLiteral("\\s")));
        list.append({ line.left(space), space < 0 ? QString() : line.mid(space).trimmed() });
    }
    return list;
}

// Why the named test does not run in the PostgreSQL run; empty when it does.
QString leftOutReason(const QString &test)
{
    for (const LeftOut &entry : leftOutTests()) {
        // "*" matches any text, "/" of parameterised names included.
        const QRegularExpression pattern(QRegularExpression::anchoredPattern(
            QRegularExpression::escape(entry.pattern)
                .replace(QLatin1String("\\*"), QLatin1String(".*"))));
        if (pattern.match(test).hasMatch())
            return entry.reason;
    }
    return {};
}

// The ".pg" tests' skip, in the words CTest reads as a skip.
int skipped(const QString &reason)
{
    std::printf("[  SKIPPED ] %s\n", qPrintable(reason));
    return 0;
}

} // namespace

core::Dialect testDialect()
{
    return qEnvironmentVariable("MEDISTOCK_TEST_DIALECT") == QLatin1String("postgres")
        ? core::Dialect::Postgres
        : core::Dialect::Sqlite;
}

std::optional<core::Connection::PostgresOptions> testServer()
{
    const QString text = qEnvironmentVariable("MEDISTOCK_TEST_PG");
    if (text.isEmpty())
        return std::nullopt;
    return core::Connection::PostgresOptions::parse(text);
}

namespace {

// A test database is taken from a pool kept on the server: copying the template costs seconds
// (it holds well over a thousand relations), putting a used database back to the template's
// rows a fraction of that. Each pool database keeps the template's rows in the schema
// medistock_pristine, and the shape of its tables as that schema's comment; a database whose
// tables no longer have that shape (a test dropped, added or changed one) is made afresh.
constexpr int poolSize = 64;
constexpr int poolLockBase = 1900;

const QString shapeSql
    = QStringLiteral("select md5(string_agg(table_name||'.'||column_name||':'||data_type||':'||"
                     "coalesce(column_default,''),',' order by table_name,ordinal_position)) from "
                     "information_schema.columns where table_schema='public'");

void keepPristineRows(core::Connection &connection)
{
    connection.execDirect(QStringLiteral(
        "do $$ declare t record; begin create schema medistock_pristine; "
        "for t in select tablename from pg_tables where schemaname='public' loop "
        "execute format('create table medistock_pristine.%I as select * from public.%I',"
        "t.tablename,t.tablename); end loop; end $$"));
    const QString shape = connection.firstText(shapeSql);
    // The shape is an md5 text of hex digits: safe to stand in the statement.
    connection.execDirect(
        QStringLiteral("comment on schema medistock_pristine is '%1'").arg(shape));
}

// Puts the template's rows back; false when the tables have changed shape.
bool resetToPristine(core::Connection &connection)
{
    const QString kept = connection.firstText(
        QStringLiteral("select obj_description(oid,'pg_namespace') from pg_namespace where "
                       "nspname='medistock_pristine'"));
    if (kept.isEmpty() || kept != connection.firstText(shapeSql))
        return false;
    connection.execDirect(QStringLiteral(
        "do $$ declare t record; begin "
        "for t in select tablename from pg_tables where schemaname='medistock_pristine' loop "
        "execute format('delete from public.%I',t.tablename); "
        "execute format('insert into public.%I select * from medistock_pristine.%I',"
        "t.tablename,t.tablename); "
        "execute format('select setval(pg_get_serial_sequence(%L,''id''),"
        "coalesce((select max(id) from public.%I),0)+1,false)','public.'||t.tablename,"
        "t.tablename); end loop; end $$"));
    return true;
}

void ensureTemplate(core::Connection &server, const QString &source, const core::SeedContext &seeds)
{
    // One process makes the template; the others wait for it.
    server.execDirect(QStringLiteral("select pg_advisory_lock(1847)"));
    try {
        if (!server.exists(QStringLiteral("select 1 from pg_database where datname=?"), { source }))
            makeTemplate(server, source, seeds);
    } catch (...) {
        server.execDirect(QStringLiteral("select pg_advisory_unlock(1847)"));
        throw;
    }
    server.execDirect(QStringLiteral("select pg_advisory_unlock(1847)"));
}

// The connection that holds this process's pool database (its lock) until the process ends.
std::unique_ptr<core::Connection> &poolHolder()
{
    static std::unique_ptr<core::Connection> holder;
    return holder;
}

} // namespace

core::Connection::PostgresOptions createTestDatabase(const core::SeedContext &seeds)
{
    const QString source = templateName(seeds);
    auto server = core::Connection::openPostgres(*testServer());
    ensureTemplate(*server, source, seeds);
    for (int slot = 0; slot < poolSize; ++slot) {
        if (!server
                 ->firstValue(
                     QStringLiteral("select pg_try_advisory_lock(?)"), { poolLockBase + slot })
                 .toBool())
            continue;
        const QString name = source + QStringLiteral("_%1").arg(slot);
        const auto options = testServer()->withDatabase(name);
        bool fresh = !server->exists(
            QStringLiteral("select 1 from pg_database where datname=?"), { name });
        if (!fresh) {
            auto connection = core::Connection::openPostgres(options);
            fresh = !resetToPristine(*connection);
        }
        if (fresh) {
            server->execDirect(
                QStringLiteral("drop database if exists %1 with (force)").arg(quoted(name)));
            server->execDirect(
                QStringLiteral("create database %1 template %2").arg(quoted(name), quoted(source)));
            auto connection = core::Connection::openPostgres(options);
            keepPristineRows(*connection);
        }
        poolHolder() = std::move(server);
        return options;
    }
    throw core::DbError(QStringLiteral("all test databases of the pool are in use"));
}

core::Connection::PostgresOptions copyTestDatabase(const QString &name)
{
    const auto copy = testServer()->withDatabase(name + QStringLiteral("_copy"));
    auto server = core::Connection::openPostgres(*testServer());
    server->execDirect(
        QStringLiteral("drop database if exists %1 with (force)").arg(quoted(copy.database)));
    server->execDirect(QStringLiteral("create database ") + quoted(copy.database));
    QProcess dump;
    QProcess restore;
    dump.setStandardOutputProcess(&restore);
    dump.start(QStringLiteral("pg_dump"),
        { QStringLiteral("--format=custom"), QStringLiteral("--exclude-schema=medistock_pristine"),
            QStringLiteral("--dbname=") + testServer()->withDatabase(name).text() });
    restore.start(QStringLiteral("pg_restore"),
        { QStringLiteral("--no-owner"), QStringLiteral("--exit-on-error"),
            QStringLiteral("--dbname=") + copy.text() });
    for (QProcess *process : { &dump, &restore })
        if (!process->waitForFinished(120000) || process->exitStatus() != QProcess::NormalExit
            || process->exitCode() != 0)
            throw core::DbError(QStringLiteral("copying %1 failed: %2 %3")
                                    .arg(name, process->errorString(),
                                        QString::fromLocal8Bit(process->readAllStandardError())));
    return copy;
}

void dropTestDatabase(const QString &name)
{
    auto server = core::Connection::openPostgres(*testServer());
    // The account sets a test made beside its master (named master + "_" + code) go; the
    // database itself goes back to the pool.
    QStringList names;
    for (const QSqlRecord &row :
        server->rows(QStringLiteral("select datname from pg_database where datname like ?"),
            { name + QStringLiteral("\\_%") }))
        names.append(row.value(0).toString());
    for (const QString &database : std::as_const(names))
        server->execDirect(
            QStringLiteral("drop database if exists %1 with (force)").arg(quoted(database)));
    poolHolder().reset();
}

int runTests(int argc, char **argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (testDialect() == core::Dialect::Postgres) {
        if (!testServer())
            return skipped(QStringLiteral("PostgreSQL run without a server: MEDISTOCK_TEST_PG is "
                                          "not set (scripts/test.sh sets it)"));
        // CTest runs one test at a time, named by the filter.
        const QString filter = QString::fromStdString(GTEST_FLAG_GET(filter));
        const QString reason = leftOutReason(filter);
        if (!reason.isEmpty())
            return skipped(QStringLiteral("left out of the PostgreSQL run: ") + reason);
        // Run by hand without a filter, the executable leaves them out too.
        QStringList patterns;
        for (const LeftOut &entry : leftOutTests())
            patterns.append(entry.pattern);
        if (filter == QLatin1String("*") && !patterns.isEmpty())
            GTEST_FLAG_SET(filter, ("*-" + patterns.join(QLatin1Char(':'))).toStdString());
    }
    return RUN_ALL_TESTS();
}

} // namespace medistock::test
