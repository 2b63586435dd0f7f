// Backup and restore of an account set: a backup holds one moment of the books whatever is
// posted meanwhile, a restore takes only a sound backup and keeps what it replaced, and the
// daily backup keeps the newest copies. The same tests run on a set file and on a set on the
// server (pg_dump files there); those about one kind of file alone skip on the other.
#include "core/dbfile.h"
#include "maintenance/backup.h"
#include "maintenance/pgdump.h"
#include "maintenance/verify.h"
#include "shell/session.h"
#include "tests/support/accountset.h"
#include "tests/support/books.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

namespace medistock::test {
namespace {

class BackupTest : public SessionTest
{
protected:
    void SetUp() override
    {
        SessionTest::SetUp();
        receipts = setUpReceipts(session(), 8);
        ASSERT_EQ(receipts.size(), 8);
        for (int i = 0; i < 4; ++i)
            ASSERT_TRUE(toggleReceipt(session(), receipts[i]));
        ui.clear();
    }

    // The set's name and its backups' extension: jxc and .db for the master file, the
    // database's name and .dump on the server.
    QString setName()
    {
        return onPostgres() ? db().postgresOptions().database : QStringLiteral("jxc");
    }
    QString extension() { return onPostgres() ? QStringLiteral(".dump") : QStringLiteral(".db"); }
    // What another process opens to reach the same set.
    QString target() { return onPostgres() ? db().postgresOptions().text() : path(); }
    Result<QString> restore(const QString &file)
    {
        return maintenance::restoreAccountSet(session(), folder(), file);
    }

    QString books()
    {
        return dumpDatabase(db(), { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") });
    }
    QString backups() const { return QDir(folder()).filePath(QStringLiteral("backup")); }
    QStringList backupFiles() const
    {
        return QDir(backups()).entryList({ QStringLiteral("*") }, QDir::Files, QDir::Name);
    }

    QString backUp()
    {
        const Result<QString> written = maintenance::backupAccountSet(session(), folder(), {});
        EXPECT_TRUE(written.ok()) << written.message().toStdString();
        return written ? written.value() : QString();
    }

    QStringList receipts;
};

TEST_F(BackupTest, ABackupIsADatedSoundCopyOfTheBooks)
{
    const QString before = books();
    QStringList progress;
    const Result<QString> written
        = maintenance::backupAccountSet(session(), folder(), {}, [&](int done, int total) {
              progress.append(QStringLiteral("%1/%2").arg(done).arg(total));
              return true;
          });
    ASSERT_TRUE(written.ok());
    const QString name = QFileInfo(written.value()).fileName();
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^%1_20250314_\\d{6}\\%2$").arg(setName(), extension()))
            .match(name)
            .hasMatch())
        << name.toStdString();
    EXPECT_EQ(QFileInfo(written.value()).absolutePath(), backups());
    EXPECT_EQ(backupFiles(), QStringList { name });
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_EQ(progress.last().section(QLatin1Char('/'), 0, 0),
        progress.last().section(QLatin1Char('/'), 1, 1));
    EXPECT_EQ(ui.informed, QStringList());
    if (onPostgres())
        return; // the dump's rows are compared through a restore below
    EXPECT_EQ(core::verifyDatabaseFile(written.value()), QString());
    auto copy = core::Connection::openSqlite(written.value());
    EXPECT_EQ(dumpDatabase(*copy, { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") }),
        before);
    EXPECT_NE(copy->fileIdentity(), db().fileIdentity());
}

// Cancelling leaves no file behind, not even a partial one.
TEST_F(BackupTest, ACancelledBackupLeavesNoFile)
{
    const Result<QString> written
        = maintenance::backupAccountSet(session(), folder(), {}, [](int, int) { return false; });
    EXPECT_FALSE(written.ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("复制已取消，没有做任何改动。") });
    EXPECT_EQ(backupFiles(), QStringList());
}

TEST_F(BackupTest, RestoreBringsTheBooksBackAndKeepsTheSetItReplaced)
{
    const QString atBackup = books();
    const QString backup = backUp();
    ui.setDefaultAnswer(true);
    for (int i = 2; i < 8; ++i)
        ASSERT_TRUE(toggleReceipt(session(), receipts[i]));
    const QString replaced = books();
    ui.clear();
    const Result<QString> restored = restore(backup);
    ASSERT_TRUE(restored.ok()) << restored.message().toStdString();
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_TRUE(ui.asked[0].startsWith(QStringLiteral("从备份文件恢复帐套数据：\r\n")));
    EXPECT_EQ(differences(atBackup, books()), QStringList());
    reopen();
    EXPECT_EQ(differences(atBackup, books()), QStringList());
    EXPECT_EQ(booksProblems(db(), receipts), QStringList());
    EXPECT_TRUE(QFileInfo(restored.value())
                    .fileName()
                    .startsWith(setName() + QStringLiteral("_before_restore_20250314_")));
    EXPECT_TRUE(restored.value().endsWith(extension()));

    // The copy kept holds the books the restore replaced.
    loginAs(QStringLiteral("admin"));
    ui.setDefaultAnswer(true);
    const Result<QString> back = restore(restored.value());
    ASSERT_TRUE(back.ok()) << back.message().toStdString();
    EXPECT_EQ(differences(replaced, books()), QStringList());
    EXPECT_NE(back.value(), restored.value());
}

TEST_F(BackupTest, RestoreAnsweredNoChangesNothing)
{
    const QString backup = backUp();
    ASSERT_TRUE(toggleReceipt(session(), receipts[5]));
    const QString before = books();
    ui.answerNext(false);
    EXPECT_FALSE(restore(backup).ok());
    EXPECT_EQ(books(), before);
    EXPECT_EQ(backupFiles().size(), 1);
}

// The file's own check says why: SQLite's file checks, or on the server what pg_restore could
// not read. The server's scratch database is gone afterwards.
TEST_F(BackupTest, ATruncatedBackupIsRefusedAndNothingIsReplaced)
{
    const QString backup = backUp();
    ASSERT_TRUE(toggleReceipt(session(), receipts[5]));
    const QString before = books();
    QFile file(backup);
    ASSERT_TRUE(file.resize(file.size() / 2));
    ui.clear();
    ui.setDefaultAnswer(true);
    const Result<QString> restored = restore(backup);
    EXPECT_FALSE(restored.ok());
    const QString refused = QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n");
    ASSERT_EQ(ui.informed.size(), 1);
    if (onPostgres()) {
        const QString why = refused
            + QStringLiteral("备份文件“%1”不完整或已损坏，读不出其中的数据：")
                  .arg(QDir::toNativeSeparators(backup));
        EXPECT_TRUE(ui.informed[0].startsWith(why)) << ui.informed[0].toStdString();
        EXPECT_GT(ui.informed[0].size(), why.size());
        // The scratch databases of this process only: other tests on the same server may be
        // checking a dump of their own at this moment.
        EXPECT_EQ(
            queryRows(db(), QStringLiteral("select datname from pg_database where datname like ?"),
                { QStringLiteral("medistock_check_%1_%").arg(QCoreApplication::applicationPid()) }),
            QStringList());
    } else {
        EXPECT_EQ(ui.informed[0],
            refused
                + QStringLiteral("帐套文件“%1”不完整（文件被截断了），无法打开。请用最近的备份恢复"
                                 "这个帐套。系统没有改动这个文件。")
                      .arg(QDir::toNativeSeparators(backup)));
    }
    EXPECT_EQ(ui.asked, QStringList());
    EXPECT_EQ(books(), before);
    EXPECT_EQ(backupFiles().size(), 1);
}

// A whole dump that restores but holds no account set: the check looks for the tables too.
TEST_F(BackupTest, ADumpOfAnotherDatabaseIsRefused)
{
    if (!onPostgres())
        GTEST_SKIP() << "about pg_dump files only";
    auto other = core::Connection::openPostgres(*testServer());
    const QString dump = QDir(folder()).filePath(QStringLiteral("other.dump"));
    ASSERT_EQ(maintenance::dumpServerSet(*other, dump, {}), QString());
    const QString before = books();
    ui.setDefaultAnswer(true);
    EXPECT_FALSE(restore(dump).ok());
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.informed[0].startsWith(
        QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n“%1”不是本系统的帐套"
                       "备份：里面没有表 jxc_")
            .arg(QDir::toNativeSeparators(dump))))
        << ui.informed[0].toStdString();
    EXPECT_EQ(ui.asked, QStringList());
    EXPECT_EQ(books(), before);
}

// Cancelled while the backup's data replaces the set's: the set stays as it was; only the copy
// kept before is there.
TEST_F(BackupTest, ARestoreCancelledOnTheWayChangesNothing)
{
    const QString backup = backUp();
    ASSERT_TRUE(toggleReceipt(session(), receipts[5]));
    const QString before = books();
    ui.setDefaultAnswer(true);
    const auto replacing = [&] { return backupFiles().size() == 2; };
    const Result<QString> restored = maintenance::restoreAccountSet(
        session(), folder(), backup, [&](int, int) { return !replacing(); });
    EXPECT_FALSE(restored.ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("复制已取消，没有做任何改动。"));
    EXPECT_EQ(differences(before, books()), QStringList());
    reopen();
    EXPECT_EQ(differences(before, books()), QStringList());
}

TEST_F(BackupTest, AFileThatIsNoAccountSetIsRefused)
{
    const QString path = QDir(folder()).filePath(QStringLiteral("notes.db"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(8192, 'x'));
    file.close();
    const QString before = books();
    ui.setDefaultAnswer(true);
    EXPECT_FALSE(restore(path).ok());
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.informed[0].startsWith(QStringLiteral("这个备份文件不能用来恢复")));
    EXPECT_EQ(books(), before);
}

TEST_F(BackupTest, TheDailyBackupIsTakenOnceADayAndKeepsTheNewestCopies)
{
    EXPECT_EQ(maintenance::dailyBackup(session(), folder()).value(), QString());
    EXPECT_EQ(backupFiles(), QStringList());
    setParameter(QStringLiteral("cs_cs032"), 2);
    for (int day = 10; day <= 13; ++day) {
        session().clock().fix(QDate(2025, 3, day));
        EXPECT_TRUE(
            maintenance::dailyBackup(session(), folder())
                .value()
                .endsWith(
                    QStringLiteral("%1_auto_202503%2%3").arg(setName()).arg(day).arg(extension())));
        EXPECT_EQ(maintenance::dailyBackup(session(), folder()).value(), QString());
    }
    EXPECT_EQ(backupFiles(),
        QStringList({ setName() + QStringLiteral("_auto_20250312") + extension(),
            setName() + QStringLiteral("_auto_20250313") + extension() }));
}

// Another workstation checks and unchecks receipts while backups are taken; each backup, once
// restored, is books that balance and pass the self-check.
TEST_F(BackupTest, BackupsTakenWhileAnotherProcessPostsRestoreToSoundBooks)
{
    QProcess worker;
    worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.start(QStringLiteral(MEDISTOCK_BOOKWORKER_PATH),
        QStringList { target(), QStringLiteral("7"),
            onPostgres() ? QStringLiteral("20") : QStringLiteral("4") }
            + receipts);
    ASSERT_TRUE(worker.waitForStarted());
    QByteArray output;
    const auto doneLines = [&] { return int(output.count("done ")); };
    QStringList taken;
    while (taken.size() < 3 && worker.state() == QProcess::Running) {
        worker.waitForReadyRead(200);
        output += worker.readAll();
        if (doneLines() >= 5 * (taken.size() + 1))
            taken.append(backUp());
    }
    ASSERT_TRUE(worker.waitForFinished(60000));
    output += worker.readAll();
    ASSERT_EQ(worker.exitCode(), 0) << output.toStdString();
    ASSERT_EQ(output.count("failed "), 0) << output.toStdString();
    ASSERT_EQ(taken.size(), 3) << output.toStdString();
    EXPECT_GT(doneLines(), 15);

    ui.setDefaultAnswer(true);
    for (const QString &backup : taken) {
        ASSERT_TRUE(restore(backup).ok());
        EXPECT_EQ(booksProblems(db(), receipts), QStringList()) << backup.toStdString();
        const Result<maintenance::VerifyReport> report = maintenance::verifyBooks(session());
        ASSERT_TRUE(report.ok());
        EXPECT_TRUE(report->findings.isEmpty())
            << maintenance::reportLines(report.value()).join('\n').toStdString();
    }
}

} // namespace
} // namespace medistock::test
