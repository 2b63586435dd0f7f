#include "core/datafolder.h"

#include "core/connection.h"
#include "core/dberror.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace medistock::core {

QString resolveDataFolder(const QString &option)
{
    if (!option.isEmpty())
        return QDir(option).absolutePath();
    const QString fromEnvironment = qEnvironmentVariable("MEDISTOCK_DATA");
    if (!fromEnvironment.isEmpty())
        return QDir(fromEnvironment).absolutePath();
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QDir(base).filePath(QStringLiteral("medistock"));
}

QString masterFileName()
{
    return QStringLiteral("jxc.db");
}

QString accountSetFileName(const QString &code)
{
    return QStringLiteral("jxc_%1.db").arg(code);
}

namespace {

void removeDatabaseFiles(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-wal"));
    QFile::remove(path + QStringLiteral("-shm"));
}

Outcome buildMasterFile(const QString &path, const SeedContext &context)
{
    try {
        auto connection = Connection::openSqlite(path);
        return initMasterDatabase(*connection, context);
    } catch (const DbError &error) {
        return Outcome::failed(error.message());
    }
}

} // namespace

Outcome initMasterDatabase(Connection &connection, const SeedContext &context)
{
    try {
        if (!connection.tableExists(QStringLiteral("jxc_xtcs"))) {
            Outcome created = createAllTables(connection, context);
            if (!created)
                return created;
        }
        return ensureRegisterTable(connection);
    } catch (const DbError &error) {
        return Outcome::failed(error.message());
    }
}

Result<InitReport> initDataFolder(const QString &folder, const SeedContext &context)
{
    InitReport report;
    report.folder = folder;
    report.masterPath = QDir(folder).filePath(masterFileName());
    QDir dir(folder);
    if (!dir.exists()) {
        if (!QDir().mkpath(folder))
            return Outcome::failed(QStringLiteral("无法创建数据目录：") + folder);
        report.createdFolder = true;
    }
    if (QFile::exists(report.masterPath))
        return report;

    const QString building = report.masterPath + QStringLiteral(".creating");
    removeDatabaseFiles(building);
    const Outcome built = buildMasterFile(building, context);
    if (!built) {
        removeDatabaseFiles(building);
        return built;
    }
    // No master file is there, so a WAL under its name is a leftover of another file: SQLite
    // would replay it into the new one.
    QFile::remove(report.masterPath + QStringLiteral("-wal"));
    QFile::remove(report.masterPath + QStringLiteral("-shm"));
    if (!QFile::rename(building, report.masterPath)) {
        removeDatabaseFiles(building);
        return Outcome::failed(QStringLiteral("无法创建主帐套文件：") + report.masterPath);
    }
    report.createdMaster = true;
    return report;
}

} // namespace medistock::core
