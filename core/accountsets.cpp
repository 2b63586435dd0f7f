#include "core/accountsets.h"

#include "core/clock.h"
#include "core/connection.h"
#include "core/datafolder.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlRecord>

namespace medistock::core {

namespace {

// The fixed password text the register has always carried for a set's file.
const QString registerPasswordText = QStringLiteral("mdk417");

void removeFiles(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-wal"));
    QFile::remove(path + QStringLiteral("-shm"));
}

// Copies the master file (consistently, even while others write to it) and re-creates every table
// of the copy with the new set's company row. The copy gets an identity of its own, so that no
// WAL of the master's is ever taken for its own; closing it leaves it whole, without a WAL.
void buildSetFile(Connection &master, const QString &path, const SeedContext &seeds)
{
    removeFiles(path);
    master.exec(QStringLiteral("vacuum into ?"), { path });
    auto copy = Connection::openSqlite(path);
    copy->giveFileIdentity(true);
    const Outcome created = createAllTables(*copy, seeds);
    if (!created)
        throw DbError(created.message());
}


// The register row of a new set (inside the caller's transaction).
void registerSet(Connection &master, const AccountSet &created)
{
    if (created.isDefault)
        master.exec(QStringLiteral("update jxc_xtzt set zt_default=0"));
    master.exec(QStringLiteral("insert into jxc_xtzt (zt_sn,zt_name,zt_default,zt_forbid,"
                               "zt_note,zt_dbname,zt_dbpwd) values (?,?,?,?,?,?,?)"),
        { created.code, created.name, created.isDefault ? 1 : 0, created.forbidden ? 1 : 0,
            created.note, created.fileName, registerPasswordText });
}

// On the server a new set is a new database beside the master's with every table made afresh;
// the database is dropped again when the register row cannot be written.
Result<AccountSet> createServerAccountSet(
    Connection &master, const Clock &clock, Interaction &interaction, const NewAccountSet &request)
{
    AccountSet created;
    bool made = false;
    const Outcome outcome = guarded(interaction, [&]() -> Outcome {
        const Result<QString> code
            = nextMasterCode(master, QStringLiteral("jxc_xtzt"), QStringLiteral("zt_sn"));
        if (!code)
            return refuse(interaction, code.message());
        const QString database
            = accountSetDatabaseName(master.postgresOptions().database, code.value());
        created = { code.value(), cleanText(request.name), cleanText(request.note), database,
            request.isDefault, request.forbidden };
        master.execDirect(QStringLiteral("create database ") + quotedName(database));
        made = true;
        {
            auto set = Connection::openPostgres(master.postgresOptions().withDatabase(database));
            const Outcome tables = createAllTables(*set, { clock.today(), request.company });
            if (!tables)
                throw DbError(tables.message());
        }
        Transaction transaction(master);
        registerSet(master, created);
        transaction.commit();
        made = false;
        return Outcome::done();
    });
    if (made) {
        try {
            master.execDirect(QStringLiteral("drop database if exists %1 with (force)")
                                  .arg(quotedName(created.fileName)));
        } catch (const DbError &) { }
    }
    if (!outcome)
        return outcome;
    return created;
}

} // namespace

QString accountSetNameRequiredText()
{
    return QStringLiteral("帐套名称必须填写！");
}

QString masterSetName()
{
    return QStringLiteral("主帐套");
}

QString setFileMissingText(const QString &path)
{
    return QStringLiteral("帐套文件不存在：") + path;
}

QString accountSetDatabaseName(const QString &masterDatabase, const QString &code)
{
    return masterDatabase + QLatin1Char('_') + code;
}

QList<AccountSet> loginAccountSets(Connection &master)
{
    const QString masterName = master.dialect() == Dialect::Postgres
        ? master.postgresOptions().database
        : masterFileName();
    QList<AccountSet> offered { { QString(), masterSetName(), QString(), masterName, false,
        false } };
    for (const AccountSet &set : listAccountSets(master)) {
        if (set.forbidden)
            continue;
        if (set.isDefault)
            offered.prepend(set);
        else
            offered.append(set);
    }
    return offered;
}

Result<std::unique_ptr<Connection>> openAccountSet(const QString &folder, const AccountSet &set)
{
    const QString path = QDir(folder).filePath(set.fileName);
    if (set.fileName.isEmpty() || !QFile::exists(path))
        return Outcome::refused(setFileMissingText(path));
    try {
        return Connection::openSqlite(path);
    } catch (const DbError &error) {
        return Outcome::failed(error.message());
    }
}

Result<std::unique_ptr<Connection>> openAccountSet(Connection &master, const AccountSet &set)
{
    if (master.dialect() == Dialect::Sqlite)
        return openAccountSet(QFileInfo(master.filePath()).absolutePath(), set);
    try {
        return Connection::openPostgres(master.postgresOptions().withDatabase(set.fileName));
    } catch (const DbError &error) {
        return Outcome::failed(error.message());
    }
}

QList<AccountSet> listAccountSets(Connection &master)
{
    QList<AccountSet> sets;
    for (const QSqlRecord &row :
        master.rows(QStringLiteral("select zt_sn,zt_name,zt_note,zt_dbname,zt_default,zt_forbid "
                                   "from jxc_xtzt order by id")))
        sets.append({ row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
            row.value(3).toString(), row.value(4).toInt() != 0, row.value(5).toInt() != 0 });
    return sets;
}

Result<AccountSet> createAccountSet(
    Connection &master, const Clock &clock, Interaction &interaction, const NewAccountSet &request)
{
    if (request.name.trimmed().isEmpty())
        return refuse(interaction, accountSetNameRequiredText());
    if (master.dialect() == Dialect::Postgres)
        return createServerAccountSet(master, clock, interaction, request);

    AccountSet created;
    const QString folder = QFileInfo(master.filePath()).absolutePath();
    QString building;
    const Outcome outcome = guarded(interaction, [&]() -> Outcome {
        const Result<QString> code
            = nextMasterCode(master, QStringLiteral("jxc_xtzt"), QStringLiteral("zt_sn"));
        if (!code)
            return refuse(interaction, code.message());
        created = { code.value(), cleanText(request.name), cleanText(request.note),
            accountSetFileName(code.value()), request.isDefault, request.forbidden };
        const QString finalPath = QDir(folder).filePath(created.fileName);
        building = finalPath + QStringLiteral(".creating");
        buildSetFile(master, building, { clock.today(), request.company });

        Transaction transaction(master);
        registerSet(master, created);
        // A file of the same name is replaced, as copying over it always did.
        removeFiles(finalPath);
        if (!QFile::rename(building, finalPath))
            throw DbError(QStringLiteral("无法创建帐套文件：") + finalPath);
        transaction.commit();
        return Outcome::done();
    });
    if (!building.isEmpty())
        removeFiles(building);
    if (!outcome)
        return outcome;
    return created;
}

} // namespace medistock::core
