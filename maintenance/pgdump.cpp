#include "maintenance/pgdump.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <optional>

namespace medistock::maintenance {

namespace {

using Options = core::Connection::PostgresOptions;

// How long a tool may stay silent between two looks at it, and so at the cancel button.
constexpr int pollMilliseconds = 100;

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString cancelledText()
{
    return QStringLiteral("复制已取消，没有做任何改动。");
}

// The client tools, taken from one folder so that they are of one version.
struct Tools
{
    QString dump;
    QString restore;
};

int serverMajor(core::Connection &set)
{
    return set.firstText(QStringLiteral("select current_setting('server_version_num')")).toInt()
        / 10000;
}

std::optional<Tools> toolsIn(const QString &folder)
{
    const Tools tools { QDir(folder).filePath(QStringLiteral("pg_dump")),
        QDir(folder).filePath(QStringLiteral("pg_restore")) };
    if (QFileInfo(tools.dump).isExecutable() && QFileInfo(tools.restore).isExecutable())
        return tools;
    return std::nullopt;
}

// The tools of the server's major version; else of the newest installed version above it (a
// pg_dump reads older servers, never newer ones); else those on PATH.
std::optional<Tools> findTools(int major)
{
    const QString installed = QStringLiteral("/usr/lib/postgresql");
    if (auto exact = toolsIn(QStringLiteral("%1/%2/bin").arg(installed).arg(major)))
        return exact;
    QStringList versions = QDir(installed).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::sort(versions.begin(), versions.end(),
        [](const QString &a, const QString &b) { return a.toInt() > b.toInt(); });
    for (const QString &version : versions)
        if (version.toInt() > major)
            if (auto newer = toolsIn(QStringLiteral("%1/%2/bin").arg(installed, version)))
                return newer;
    const QString dump = QStandardPaths::findExecutable(QStringLiteral("pg_dump"));
    const QString restore = QStandardPaths::findExecutable(QStringLiteral("pg_restore"));
    if (!dump.isEmpty() && !restore.isEmpty())
        return Tools { dump, restore };
    return std::nullopt;
}

QString noToolsText(int major)
{
    return QStringLiteral(
        "这台电脑上没有找到 PostgreSQL 的客户端程序 pg_dump 和 pg_restore，不能备份"
        "或恢复服务器上的帐套。请安装 postgresql-client-%1（与服务器的版本 %1 "
        "相同或更新）后再试。")
        .arg(major);
}

// The server, user and database for a tool; the password travels in its environment only.
QStringList connectionArguments(const Options &options, const QString &database)
{
    QStringList arguments;
    if (!options.host.isEmpty())
        arguments << QStringLiteral("--host") << options.host;
    arguments << QStringLiteral("--port") << QString::number(options.port);
    if (!options.user.isEmpty())
        arguments << QStringLiteral("--username") << options.user;
    arguments << QStringLiteral("--no-password") << QStringLiteral("--dbname") << database;
    return arguments;
}

QProcessEnvironment toolEnvironment(const Options &options)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!options.password.isEmpty())
        environment.insert(QStringLiteral("PGPASSWORD"), options.password);
    return environment;
}

// How a tool's run ended: done, cancelled, or failed with the tool's own error lines.
struct ToolRun
{
    bool done = false;
    bool cancelled = false;
    QString errors;
};

// Reads the tool's --verbose lines as they come: each line with `marker` is one more table of
// `total`. Answering false to the progress kills the tool.
class ToolWatch
{
public:
    ToolWatch(const QByteArray &marker, int total, const CopyProgress &progress)
        : m_marker(marker)
        , m_total(total)
        , m_progress(progress)
    { }

    // Takes what the tool wrote; false when the operator cancelled.
    bool take(const QByteArray &text)
    {
        m_pending += text;
        for (qsizetype end = m_pending.indexOf('\n'); end >= 0; end = m_pending.indexOf('\n')) {
            line(m_pending.left(end));
            m_pending.remove(0, end + 1);
        }
        return !m_progress || m_progress(std::min(m_done, m_total), m_total);
    }
    void finish()
    {
        line(m_pending);
        m_pending.clear();
    }
    QString errors() const { return m_errors.join(QStringLiteral("；")); }

private:
    void line(const QByteArray &text)
    {
        if (text.contains(m_marker))
            ++m_done;
        const qsizetype at = text.indexOf("error: ");
        if (at >= 0)
            m_errors.append(QString::fromUtf8(text.mid(at + 7)).trimmed());
    }

    QByteArray m_marker;
    int m_total;
    CopyProgress m_progress;
    QByteArray m_pending;
    int m_done = 0;
    QStringList m_errors;
};

ToolRun runTool(
    const QString &program, const QStringList &arguments, const Options &options, ToolWatch &watch)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setProcessEnvironment(toolEnvironment(options));
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start();
    if (!process.waitForStarted())
        return { false, false,
            QStringLiteral("不能启动 %1：%2").arg(program, process.errorString()) };
    bool going = true;
    while (going && process.state() != QProcess::NotRunning) {
        process.waitForFinished(pollMilliseconds);
        going = watch.take(process.readAllStandardError());
    }
    if (!going) {
        process.kill();
        process.waitForFinished(-1);
        return { false, true, QString() };
    }
    watch.take(process.readAllStandardError());
    watch.finish();
    const bool done = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    QString errors = watch.errors();
    if (!done && errors.isEmpty())
        errors = QStringLiteral("%1 异常结束（%2）")
                     .arg(QFileInfo(program).fileName())
                     .arg(process.exitCode());
    return { done, false, errors };
}

QString refusalOf(const ToolRun &run, const QString &failed)
{
    if (run.cancelled)
        return cancelledText();
    return run.done ? QString() : failed + run.errors;
}

int publicTables(core::Connection &connection)
{
    return connection
        .firstValue(QStringLiteral("select count(*) from pg_tables where schemaname=?"),
            { QStringLiteral("public") })
        .toInt();
}

// pg_dump's custom format starts with these five bytes.
bool isDumpFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(5) == "PGDMP";
}

QString damagedText(const QString &file)
{
    return QStringLiteral("备份文件“%1”不完整或已损坏，读不出其中的数据：").arg(shown(file));
}

// Writes the dump's table of contents without the schema `public` itself, which every database
// has already (and which --clean would try to drop): the list pg_restore then works through.
QString writeRestoreList(
    const Tools &tools, const Options &options, const QString &file, QTemporaryFile &list)
{
    if (!list.open())
        return QStringLiteral("不能建立临时文件：") + list.errorString();
    list.close();
    ToolWatch watch({}, 0, {});
    const ToolRun run = runTool(tools.restore,
        { QStringLiteral("--list"), QStringLiteral("--file"), list.fileName(), file }, options,
        watch);
    if (!run.done && !isDumpFile(file))
        return QStringLiteral("“%1”不是本系统的帐套备份（不是 pg_dump 自定义格式的备份文件）。")
            .arg(shown(file));
    if (!run.done)
        return damagedText(file) + run.errors;
    if (!list.open())
        return QStringLiteral("不能读临时文件：") + list.errorString();
    QByteArray kept;
    while (!list.atEnd()) {
        const QByteArray line = list.readLine();
        if (!line.contains(" SCHEMA - public ") && !line.contains(" COMMENT - SCHEMA public "))
            kept += line;
    }
    list.resize(0);
    list.write(kept);
    list.close();
    return {};
}

// Every declared table with its declared columns; the refusal names the first one missing.
QString missingTables(core::Connection &restored, const QString &file)
{
    for (const core::TableDef &table : core::schemaTables()) {
        const QString name = QString::fromLatin1(table.name);
        const QStringList columns
            = restored.tableExists(name) ? restored.columnNames(name) : QStringList();
        for (const QString &column : core::columnNames(table))
            if (!columns.contains(column, Qt::CaseInsensitive))
                return QStringLiteral("“%1”不是本系统的帐套备份：里面没有表 %2 或它的列 %3。")
                    .arg(shown(file), name, column);
    }
    return {};
}

QString scratchName()
{
    return QStringLiteral("medistock_check_%1_%2")
        .arg(QCoreApplication::applicationPid())
        .arg(QRandomGenerator::system()->bounded(1, 0x7fffffff), 0, 16);
}

// pg_restore of the listed entries of the dump into `database`, in one transaction of the
// server, with `extra` options before the file.
ToolRun restoreInto(const Tools &tools, const Options &options, const QString &database,
    const QString &list, const QString &file, const QStringList &extra,
    const CopyProgress &progress)
{
    ToolWatch watch("processing data for table", int(core::schemaTables().size()), progress);
    return runTool(tools.restore,
        connectionArguments(options, database)
            + QStringList { QStringLiteral("--use-list"), list, QStringLiteral("--no-owner"),
                QStringLiteral("--no-privileges"), QStringLiteral("--single-transaction"),
                QStringLiteral("--exit-on-error"), QStringLiteral("--verbose") }
            + extra + QStringList { file },
        options, watch);
}

// Restores the dump into the scratch database and looks at its tables.
QString checkInScratch(const Tools &tools, const Options &options, const QString &scratch,
    const QString &file, const QString &list, const CopyProgress &progress)
{
    const ToolRun run = restoreInto(tools, options, scratch, list, file, {}, progress);
    const QString refusal = refusalOf(run, damagedText(file));
    if (!refusal.isEmpty())
        return refusal;
    auto restored = core::Connection::openPostgres(options.withDatabase(scratch));
    return missingTables(*restored, file);
}

// The tools for the set's server, or the refusal that none is installed.
std::optional<Tools> toolsFor(core::Connection &set, QString &refusal)
{
    const int major = serverMajor(set);
    std::optional<Tools> tools = findTools(major);
    if (!tools)
        refusal = noToolsText(major);
    return tools;
}

// Finds the tools and writes the dump's list of what to restore; the refusal, empty when both
// are there.
QString prepareRestore(
    core::Connection &set, const QString &file, Tools &tools, QTemporaryFile &list)
{
    QString refusal;
    const std::optional<Tools> found = toolsFor(set, refusal);
    if (!found)
        return refusal;
    tools = *found;
    return writeRestoreList(tools, set.postgresOptions(), file, list);
}

} // namespace

QString dumpServerSet(core::Connection &set, const QString &file, const CopyProgress &progress)
{
    const Options &options = set.postgresOptions();
    QString refusal;
    const std::optional<Tools> tools = toolsFor(set, refusal);
    if (!tools)
        return refusal;
    ToolWatch watch("dumping contents of table", publicTables(set), progress);
    const ToolRun run = runTool(tools->dump,
        connectionArguments(options, options.database)
            + QStringList { QStringLiteral("--format=custom"), QStringLiteral("--schema=public"),
                QStringLiteral("--verbose"), QStringLiteral("--file"), file },
        options, watch);
    return refusalOf(run, QStringLiteral("备份到“%1”没有完成：").arg(shown(file)));
}

QString checkServerDump(core::Connection &set, const QString &file, const CopyProgress &progress)
{
    const Options &options = set.postgresOptions();
    Tools tools;
    QTemporaryFile list;
    QString refusal = prepareRestore(set, file, tools, list);
    if (!refusal.isEmpty())
        return refusal;
    const QString scratch = scratchName();
    try {
        set.execDirect(QStringLiteral("create database ") + core::quotedName(scratch));
    } catch (const core::DbError &error) {
        return QStringLiteral("不能在服务器上建立检查备份用的临时数据库（登录用户需要建立数据库的"
                              "权限）：")
            + error.message();
    }
    try {
        refusal = checkInScratch(tools, options, scratch, file, list.fileName(), progress);
    } catch (const core::DbError &error) {
        refusal = error.message();
    }
    // A scratch database left behind holds nothing of the set's; the check's answer counts.
    try {
        set.execDirect(QStringLiteral("drop database if exists %1 with (force)")
                           .arg(core::quotedName(scratch)));
    } catch (const core::DbError &) { }
    return refusal;
}

QString restoreServerDump(core::Connection &set, const QString &file, const CopyProgress &progress)
{
    const Options &options = set.postgresOptions();
    Tools tools;
    QTemporaryFile list;
    QString refusal = prepareRestore(set, file, tools, list);
    if (!refusal.isEmpty())
        return refusal;
    // Holding the set's write lock (taken with every write transaction) keeps other
    // workstations' postings out until the restore has committed; this transaction itself
    // reads and writes nothing.
    core::Transaction writeLock(set);
    const ToolRun run = restoreInto(tools, options, options.database, list.fileName(), file,
        { QStringLiteral("--clean"), QStringLiteral("--if-exists") }, progress);
    writeLock.commit();
    return refusalOf(run, QStringLiteral("恢复没有完成，当前帐套没有任何改动："));
}

} // namespace medistock::maintenance
