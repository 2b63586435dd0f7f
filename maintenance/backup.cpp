#include "maintenance/backup.h"

#include "core/connection.h"
#include "core/dbfile.h"
#include "core/operation.h"
#include "maintenance/sqlitecopy.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace medistock::maintenance {

namespace {

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QString postgresText()
{
    return QStringLiteral("这个帐套在 PostgreSQL 服务器上，请在服务器上用 pg_dump 备份、用 "
                          "pg_restore 恢复。");
}

QString badBackupText(const QString &refusal)
{
    return QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n") + refusal;
}

QString setFolder(const shell::Session &session)
{
    return QFileInfo(session.db().filePath()).absolutePath();
}

// Refuses (and tells) an operator without the right "备份/恢复数据库", and a set that is not an
// SQLite file.
Outcome requireBackupRight(const shell::Session &session)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", 13);
    if (allowed && session.db().dialect() != core::Dialect::Sqlite)
        return core::refuse(session.ui(), postgresText());
    return allowed;
}

// Why the file cannot be restored from; empty when it is a sound account-set file other than
// the open one.
QString backupRefusal(const shell::Session &session, const QString &file)
{
    if (!QFileInfo::exists(file))
        return badBackupText(QStringLiteral("备份文件不存在：") + shown(file));
    if (QFileInfo(file) == QFileInfo(session.db().filePath()))
        return badBackupText(QStringLiteral("这是当前帐套文件本身。"));
    QString refusal = core::inspectDatabaseFile(file);
    if (refusal.isEmpty())
        refusal = core::verifyDatabaseFile(file);
    return refusal.isEmpty() ? QString() : badBackupText(refusal);
}

// Copies the open set to `target` through a temporary file that is checked before it takes the
// name, so that a file of that name is always a whole, sound backup.
Outcome writeBackup(
    const shell::Session &session, const QString &target, const CopyProgress &progress)
{
    if (!QDir().mkpath(QFileInfo(target).absolutePath()))
        return core::refuse(session.ui(),
            QStringLiteral("不能建立备份文件夹“%1”。")
                .arg(shown(QFileInfo(target).absolutePath())));
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial);
    const QString copied
        = copyDatabase(session.db().filePath(), partial, CopyMode::ToNewFile, progress);
    QString refusal = copied.isEmpty() ? core::verifyDatabaseFile(partial) : copied;
    if (refusal.isEmpty() && QFile::exists(target) && !QFile::remove(target))
        refusal = QStringLiteral("不能替换已有的备份文件“%1”。").arg(shown(target));
    if (refusal.isEmpty() && !QFile::rename(partial, target))
        refusal = QStringLiteral("不能写备份文件“%1”。").arg(shown(target));
    if (!refusal.isEmpty()) {
        QFile::remove(partial);
        return core::refuse(session.ui(), refusal);
    }
    return Outcome::done();
}

QString baseName(const shell::Session &session)
{
    return QFileInfo(session.db().filePath()).completeBaseName();
}

} // namespace

QString backupFolder(const QString &dataFolder)
{
    return QDir(dataFolder).filePath(QStringLiteral("backup"));
}

QString backupFileName(const QString &setFile, const QDateTime &when)
{
    return QFileInfo(setFile).completeBaseName() + QLatin1Char('_')
        + when.toString(QStringLiteral("yyyyMMdd_HHmmss")) + QStringLiteral(".db");
}

Result<QString> backupAccountSet(
    const shell::Session &session, const QString &target, const CopyProgress &progress)
{
    const Outcome allowed = requireBackupRight(session);
    if (!allowed)
        return allowed;
    const QString file = target.isEmpty()
        ? QDir(backupFolder(setFolder(session)))
              .filePath(backupFileName(session.db().filePath(), session.clock().now()))
        : QFileInfo(target).absoluteFilePath();
    if (QFileInfo(file) == QFileInfo(session.db().filePath()))
        return core::refuse(session.ui(), QStringLiteral("备份文件不能是帐套文件本身。"));
    const Outcome written = writeBackup(session, file, progress);
    if (!written)
        return written;
    session.log(QStringLiteral("帐套数据备份到文件：") + shown(file));
    return file;
}

Result<QString> restoreAccountSet(
    const shell::Session &session, const QString &source, const CopyProgress &progress)
{
    const Outcome allowed = requireBackupRight(session);
    if (!allowed)
        return allowed;
    const QString file = QFileInfo(source).absoluteFilePath();
    const QString refusal = backupRefusal(session, file);
    if (!refusal.isEmpty())
        return core::refuse(session.ui(), refusal);
    if (!session.ui().ask(
            QStringLiteral("从备份文件恢复帐套数据：\r\n%1\r\n当前帐套的全部数据将被备份"
                           "文件里的数据替换（替换前的数据另存一份），确认吗？")
                .arg(shown(file))))
        return Outcome::refused(QString());
    const QString kept = QDir(backupFolder(setFolder(session)))
                             .filePath(baseName(session) + QStringLiteral("_before_restore_")
                                 + session.clock().now().toString(QStringLiteral("yyyyMMdd_HHmmss"))
                                 + QStringLiteral(".db"));
    const Outcome copied = writeBackup(session, kept, {});
    if (!copied)
        return copied;
    const QString restored
        = copyDatabase(file, session.db().filePath(), CopyMode::IntoOpenSet, progress);
    if (!restored.isEmpty())
        return core::refuse(session.ui(), restored);
    // The backup carries the identity of the file it was taken from; the set keeps one of its own.
    const Outcome marked = core::guarded(session.ui(), [&] {
        session.db().giveFileIdentity(true);
        session.log(QStringLiteral("从备份文件恢复帐套数据：") + shown(file));
        return Outcome::done();
    });
    if (!marked)
        return marked;
    return kept;
}

Result<QString> dailyBackup(const shell::Session &session)
{
    const int kept = session.params().integer("cs_cs032");
    if (kept <= 0 || session.db().dialect() != core::Dialect::Sqlite)
        return QString();
    const QDir folder(backupFolder(setFolder(session)));
    const QString prefix = baseName(session) + QStringLiteral("_auto_");
    const QString file = folder.filePath(prefix
        + session.clock().today().toString(QStringLiteral("yyyyMMdd")) + QStringLiteral(".db"));
    if (QFileInfo::exists(file))
        return QString();
    const Outcome written = writeBackup(session, file, {});
    if (!written)
        return written;
    // The date in the name sorts as text; the newest come first.
    const QStringList daily = folder.entryList(
        { prefix + QStringLiteral("*.db") }, QDir::Files, QDir::Name | QDir::Reversed);
    for (qsizetype i = kept; i < daily.size(); ++i)
        QFile::remove(folder.filePath(daily.at(i)));
    return file;
}

} // namespace medistock::maintenance
