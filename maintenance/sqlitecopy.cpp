#include "maintenance/sqlitecopy.h"

#include "core/dbfile.h"

#include <QDir>
#include <QRandomGenerator>

#include <sqlite3.h>

namespace medistock::maintenance {

namespace {

constexpr int pagesPerStep = 256;
constexpr int busyTimeout = 15000;
constexpr int busyAttempts = 3;

// Closes the handle however the copy ends.
struct Handle
{
    sqlite3 *db = nullptr;
    ~Handle() { sqlite3_close_v2(db); }
    QString error() const { return QString::fromUtf8(sqlite3_errmsg(db)); }
};

QString failedText(const QString &to, const QString &detail)
{
    return QStringLiteral("复制数据库到“%1”没有完成：%2").arg(QDir::toNativeSeparators(to), detail);
}

bool open(Handle &handle, const QString &path, int flags)
{
    const int rc = sqlite3_open_v2(path.toUtf8().constData(), &handle.db, flags, nullptr);
    if (rc == SQLITE_OK)
        sqlite3_busy_timeout(handle.db, busyTimeout);
    return rc == SQLITE_OK;
}

// Runs the pages over; SQLITE_DONE when all were copied. Each busy answer has already waited
// the busy timeout; past busyAttempts of them the copy gives up.
int runSteps(sqlite3_backup *backup, const CopyProgress &progress)
{
    int busy = 0;
    for (;;) {
        const int rc = sqlite3_backup_step(backup, pagesPerStep);
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED) {
            if (++busy >= busyAttempts)
                return rc;
            sqlite3_sleep(50);
            continue;
        }
        const int total = sqlite3_backup_pagecount(backup);
        if (rc == SQLITE_DONE && progress)
            progress(total, total);
        if (rc != SQLITE_OK)
            return rc;
        if (progress && !progress(total - sqlite3_backup_remaining(backup), total))
            return SQLITE_INTERRUPT;
    }
}

// What went wrong in words the operator can act on; SQLite's own text after it.
QString stepFailure(int rc)
{
    if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
        return QStringLiteral("其他工作站一直在写这个帐套，请稍后再试");
    return QStringLiteral("数据库错误（%1）").arg(QString::fromUtf8(sqlite3_errstr(rc)));
}

// A backup file stands alone: no WAL beside it, and an identity of its own (core/dbfile.h).
QString finishNewFile(Handle &to)
{
    const qint32 identity = qint32(QRandomGenerator::system()->bounded(1, 0x7fffffff));
    // The number is the program's own; pragmas take no bound values.
    const QByteArray sql = QStringLiteral("pragma journal_mode=delete; pragma user_version=%1;")
                               .arg(identity)
                               .toUtf8();
    if (sqlite3_exec(to.db, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        return to.error();
    return {};
}

} // namespace

QString copyDatabase(
    const QString &from, const QString &to, CopyMode mode, const CopyProgress &progress)
{
    Handle source, target;
    if (!open(source, from, SQLITE_OPEN_READONLY))
        return failedText(to, source.error());
    const int targetFlags = mode == CopyMode::ToNewFile ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                                                        : SQLITE_OPEN_READWRITE;
    if (!open(target, to, targetFlags))
        return failedText(to, target.error());
    // One read snapshot for the whole copy.
    if (sqlite3_exec(
            source.db, "begin; select count(*) from sqlite_master;", nullptr, nullptr, nullptr)
        != SQLITE_OK)
        return failedText(to, source.error());
    sqlite3_backup *backup = sqlite3_backup_init(target.db, "main", source.db, "main");
    if (!backup)
        return failedText(to, target.error());
    const int rc = runSteps(backup, progress);
    sqlite3_backup_finish(backup);
    sqlite3_exec(source.db, "commit", nullptr, nullptr, nullptr);
    if (rc == SQLITE_INTERRUPT)
        return QStringLiteral("复制已取消，没有做任何改动。");
    if (rc != SQLITE_DONE)
        return failedText(to, stepFailure(rc));
    if (mode == CopyMode::ToNewFile) {
        const QString finished = finishNewFile(target);
        if (!finished.isEmpty())
            return failedText(to, finished);
    }
    return {};
}

} // namespace medistock::maintenance
