#include "maintenance/backup.h"

#include "core/connection.h"
#include "core/dbfile.h"
#include "core/operation.h"
#include "maintenance/pgdump.h"
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

QString badBackupText(const QString &refusal)
{
    return QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n") + refusal;
}

// What differs between a set in an SQLite file and one on a server, decided here once: the
// backups' extension, how one is written and checked, and how one replaces the set. Each
// returns the refusal text, empty when it went through.
struct SetCopies
{
    using Step = std::function<QString(const QString &file, const CopyProgress &progress)>;
    QString name; // the set's file or database name, which its backups' names start with
    QString extension;
    Step write; // a checked backup of the set into the file
    Step check; // whether the file may be restored from
    Step replace; // the set's data replaced by the file's
};

SetCopies fileCopies(core::Connection &db)
{
    const auto check = [&db](const QString &file, const CopyProgress &) {
        if (QFileInfo(file) == QFileInfo(db.filePath()))
            return QStringLiteral("这是当前帐套文件本身。");
        const QString refusal = core::inspectDatabaseFile(file);
        return refusal.isEmpty() ? core::verifyDatabaseFile(file) : refusal;
    };
    const auto write = [&db](const QString &file, const CopyProgress &progress) {
        const QString copied = copyDatabase(db.filePath(), file, CopyMode::ToNewFile, progress);
        return copied.isEmpty() ? core::verifyDatabaseFile(file) : copied;
    };
    // The backup carries the identity of the file it was taken from; the set keeps one of its own.
    const auto replace = [&db](const QString &file, const CopyProgress &progress) {
        const QString copied = copyDatabase(file, db.filePath(), CopyMode::IntoOpenSet, progress);
        if (copied.isEmpty())
            db.giveFileIdentity(true);
        return copied;
    };
    return { QFileInfo(db.filePath()).completeBaseName(), QStringLiteral(".db"), write, check,
        replace };
}

SetCopies serverCopies(core::Connection &db)
{
    const auto write = [&db](const QString &file, const CopyProgress &progress) {
        const QString dumped = dumpServerSet(db, file, progress);
        return dumped.isEmpty() ? checkServerDump(db, file, progress) : dumped;
    };
    const auto check = [&db](const QString &file, const CopyProgress &progress) {
        return checkServerDump(db, file, progress);
    };
    const auto replace = [&db](const QString &file, const CopyProgress &progress) {
        return restoreServerDump(db, file, progress);
    };
    return { db.postgresOptions().database, QStringLiteral(".dump"), write, check, replace };
}

SetCopies setCopies(const shell::Session &session)
{
    return session.db().dialect() == core::Dialect::Postgres ? serverCopies(session.db())
                                                             : fileCopies(session.db());
}

// Runs a step; a database error on the way is its refusal.
QString run(const SetCopies::Step &step, const QString &file, const CopyProgress &progress)
{
    try {
        return step(file, progress);
    } catch (const core::DbError &error) {
        return error.message();
    }
}

// Why the file cannot be restored from; empty when it is a sound backup of an account set.
QString backupRefusal(const SetCopies &copies, const QString &file, const CopyProgress &progress)
{
    if (!QFileInfo::exists(file))
        return badBackupText(QStringLiteral("备份文件不存在：") + shown(file));
    const QString refusal = run(copies.check, file, progress);
    return refusal.isEmpty() ? QString() : badBackupText(refusal);
}

// Writes a backup of the set to `target` through a temporary file that is checked before it
// takes the name, so that a file of that name is always a whole, sound backup.
Outcome writeBackup(const shell::Session &session, const SetCopies &copies, const QString &target,
    const CopyProgress &progress)
{
    if (!QDir().mkpath(QFileInfo(target).absolutePath()))
        return core::refuse(session.ui(),
            QStringLiteral("不能建立备份文件夹“%1”。")
                .arg(shown(QFileInfo(target).absolutePath())));
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial);
    QString refusal = run(copies.write, partial, progress);
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

QString datedName(const SetCopies &copies, const QString &infix, const QDateTime &when)
{
    return copies.name + infix + when.toString(QStringLiteral("yyyyMMdd_HHmmss"))
        + copies.extension;
}

// The kept copy never takes the name of a file that is there (the backup restored from may be
// one kept a moment ago).
QString unusedName(const QString &path)
{
    const QFileInfo info(path);
    QString name = path;
    for (int n = 2; QFileInfo::exists(name); ++n)
        name = info.dir().filePath(
            info.completeBaseName() + QStringLiteral("_%1.").arg(n) + info.suffix());
    return name;
}

QString restoreQuestion(const QString &file)
{
    return QStringLiteral("从备份文件恢复帐套数据：\r\n%1\r\n当前帐套的全部数据将被备份"
                          "文件里的数据替换（替换前的数据另存一份），确认吗？")
        .arg(shown(file));
}

} // namespace

QString backupFolder(const QString &dataFolder)
{
    return QDir(dataFolder).filePath(QStringLiteral("backup"));
}

QString backupFileName(const shell::Session &session, const QDateTime &when)
{
    return datedName(setCopies(session), QStringLiteral("_"), when);
}

QString backupFilePattern(const shell::Session &session)
{
    return QLatin1Char('*') + setCopies(session).extension;
}

Result<QString> backupAccountSet(const shell::Session &session, const QString &dataFolder,
    const QString &target, const CopyProgress &progress)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", 13);
    if (!allowed)
        return allowed;
    const SetCopies copies = setCopies(session);
    const QString file = target.isEmpty()
        ? QDir(backupFolder(dataFolder)).filePath(backupFileName(session, session.clock().now()))
        : QFileInfo(target).absoluteFilePath();
    if (session.db().dialect() == core::Dialect::Sqlite
        && QFileInfo(file) == QFileInfo(session.db().filePath()))
        return core::refuse(session.ui(), QStringLiteral("备份文件不能是帐套文件本身。"));
    const Outcome written = writeBackup(session, copies, file, progress);
    if (!written)
        return written;
    session.log(QStringLiteral("帐套数据备份到文件：") + shown(file));
    return file;
}

Result<QString> restoreAccountSet(const shell::Session &session, const QString &dataFolder,
    const QString &source, const CopyProgress &progress)
{
    const Outcome allowed = shell::requireRight(session, "qtcz", 13);
    if (!allowed)
        return allowed;
    const SetCopies copies = setCopies(session);
    const QString file = QFileInfo(source).absoluteFilePath();
    const QString refusal = backupRefusal(copies, file, progress);
    if (!refusal.isEmpty())
        return core::refuse(session.ui(), refusal);
    if (!session.ui().ask(restoreQuestion(file)))
        return Outcome::refused(QString());
    const QString kept = unusedName(
        QDir(backupFolder(dataFolder))
            .filePath(
                datedName(copies, QStringLiteral("_before_restore_"), session.clock().now())));
    const Outcome copied = writeBackup(session, copies, kept, progress);
    if (!copied)
        return copied;
    const QString restored = run(copies.replace, file, progress);
    if (!restored.isEmpty())
        return core::refuse(session.ui(), restored);
    const Outcome logged = core::guarded(session.ui(), [&] {
        session.log(QStringLiteral("从备份文件恢复帐套数据：") + shown(file));
        return Outcome::done();
    });
    if (!logged)
        return logged;
    return kept;
}

Result<QString> dailyBackup(const shell::Session &session, const QString &dataFolder)
{
    const int kept = session.params().integer("cs_cs032");
    if (kept <= 0)
        return QString();
    const SetCopies copies = setCopies(session);
    const QDir folder(backupFolder(dataFolder));
    const QString prefix = copies.name + QStringLiteral("_auto_");
    const QString file = folder.filePath(
        prefix + session.clock().today().toString(QStringLiteral("yyyyMMdd")) + copies.extension);
    if (QFileInfo::exists(file))
        return QString();
    const Outcome written = writeBackup(session, copies, file, {});
    if (!written)
        return written;
    // The date in the name sorts as text; the newest come first.
    const QStringList daily = folder.entryList(
        { prefix + QLatin1Char('*') + copies.extension }, QDir::Files, QDir::Name | QDir::Reversed);
    for (qsizetype i = kept; i < daily.size(); ++i)
        QFile::remove(folder.filePath(daily.at(i)));
    return file;
}

} // namespace medistock::maintenance
