#include "core/connectionchoice.h"

#include "core/datafolder.h"
#include "core/dberror.h"

#include <QDir>
#include <QSettings>

namespace medistock::core {

namespace {

QString choiceFile(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("connection.ini"));
}

} // namespace

ConnectionChoice readConnectionChoice(const QString &folder)
{
    const QSettings file(choiceFile(folder), QSettings::IniFormat);
    if (file.value(QStringLiteral("engine")).toString() != QLatin1String("postgresql"))
        return {};
    Connection::PostgresOptions server;
    server.host = file.value(QStringLiteral("host")).toString();
    server.port = file.value(QStringLiteral("port"), 5432).toInt();
    server.database = file.value(QStringLiteral("dbname")).toString();
    server.user = file.value(QStringLiteral("user")).toString();
    if (server.database.isEmpty())
        return {};
    return { server };
}

Outcome writeConnectionChoice(const QString &folder, const ConnectionChoice &choice)
{
    QSettings file(choiceFile(folder), QSettings::IniFormat);
    file.clear();
    file.setValue(QStringLiteral("engine"),
        choice.server ? QStringLiteral("postgresql") : QStringLiteral("sqlite"));
    if (choice.server) {
        file.setValue(QStringLiteral("host"), choice.server->host);
        file.setValue(QStringLiteral("port"), choice.server->port);
        file.setValue(QStringLiteral("dbname"), choice.server->database);
        file.setValue(QStringLiteral("user"), choice.server->user);
    }
    file.sync();
    if (file.status() != QSettings::NoError)
        return Outcome::failed(QStringLiteral("无法保存连接设置：") + choiceFile(folder));
    return Outcome::done();
}

std::unique_ptr<Connection> openMaster(
    const QString &folder, const ConnectionChoice &choice, const SeedContext &seeds)
{
    if (!choice.server)
        return Connection::openSqlite(QDir(folder).filePath(masterFileName()));
    auto master = Connection::openPostgres(*choice.server);
    const Outcome made = initMasterDatabase(*master, seeds);
    if (!made)
        throw DbError(made.message());
    return master;
}

} // namespace medistock::core
