// Backup and restore of an account set: a backup holds one moment of the books whatever is
// posted meanwhile, a restore takes only a sound backup and keeps what it replaced, and the
// daily backup keeps the newest copies.
#include "core/dbfile.h"
#include "maintenance/backup.h"
#include "maintenance/verify.h"
#include "shell/session.h"
#include "tests/support/accountset.h"
#include "tests/support/books.h"

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
        if (db().dialect() != core::Dialect::Sqlite)
            GTEST_SKIP() << "backup files are SQLite files; a server's sets use its own tools";
        receipts = setUpReceipts(session(), 8);
        ASSERT_EQ(receipts.size(), 8);
        for (int i = 0; i < 4; ++i)
            ASSERT_TRUE(toggleReceipt(session(), receipts[i]));
        ui.clear();
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
        const Result<QString> written = maintenance::backupAccountSet(session(), {});
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
        = maintenance::backupAccountSet(session(), {}, [&](int done, int total) {
              progress.append(QStringLiteral("%1/%2").arg(done).arg(total));
              return true;
          });
    ASSERT_TRUE(written.ok());
    const QString name = QFileInfo(written.value()).fileName();
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^jxc_20250314_\\d{6}\\.db$")).match(name).hasMatch())
        << name.toStdString();
    EXPECT_EQ(QFileInfo(written.value()).absolutePath(), backups());
    EXPECT_EQ(backupFiles(), QStringList { name });
    EXPECT_EQ(core::verifyDatabaseFile(written.value()), QString());
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_EQ(progress.last().section(QLatin1Char('/'), 0, 0),
        progress.last().section(QLatin1Char('/'), 1, 1));

    auto copy = core::Connection::openSqlite(written.value());
    EXPECT_EQ(dumpDatabase(*copy, { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") }),
        before);
    EXPECT_NE(copy->fileIdentity(), db().fileIdentity());
    EXPECT_EQ(ui.informed, QStringList());
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
    const Result<QString> restored = maintenance::restoreAccountSet(session(), backup);
    ASSERT_TRUE(restored.ok()) << restored.message().toStdString();
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_TRUE(ui.asked[0].startsWith(QStringLiteral("从备份文件恢复帐套数据：\r\n")));
    EXPECT_EQ(differences(atBackup, books()), QStringList());
    reopen();
    EXPECT_EQ(differences(atBackup, books()), QStringList());
    EXPECT_TRUE(QFileInfo(restored.value())
                    .fileName()
                    .startsWith(QStringLiteral("jxc_before_restore_20250314_")));
    auto kept = core::Connection::openSqlite(restored.value());
    EXPECT_EQ(dumpDatabase(*kept, { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence") }),
        replaced);
    EXPECT_EQ(booksProblems(db(), receipts), QStringList());
}

TEST_F(BackupTest, RestoreAnsweredNoChangesNothing)
{
    const QString backup = backUp();
    ASSERT_TRUE(toggleReceipt(session(), receipts[5]));
    const QString before = books();
    ui.answerNext(false);
    EXPECT_FALSE(maintenance::restoreAccountSet(session(), backup).ok());
    EXPECT_EQ(books(), before);
    EXPECT_EQ(backupFiles().size(), 1);
}

TEST_F(BackupTest, ATruncatedBackupIsRefusedAndNothingIsReplaced)
{
    const QString backup = backUp();
    ASSERT_TRUE(toggleReceipt(session(), receipts[5]));
    const QString before = books();
    QFile file(backup);
    ASSERT_TRUE(file.resize(file.size() / 2));
    ui.clear();
    ui.setDefaultAnswer(true);
    const Result<QString> restored = maintenance::restoreAccountSet(session(), backup);
    EXPECT_FALSE(restored.ok());
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n"
                           "帐套文件“%1”不完整（文件被截断了），无法打开。请用最近的备份恢复"
                           "这个帐套。系统没有改动这个文件。")
                .arg(QDir::toNativeSeparators(backup)) });
    EXPECT_EQ(ui.asked, QStringList());
    EXPECT_EQ(books(), before);
    EXPECT_EQ(backupFiles().size(), 1);
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
    EXPECT_FALSE(maintenance::restoreAccountSet(session(), path).ok());
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.informed[0].startsWith(QStringLiteral("这个备份文件不能用来恢复")));
    EXPECT_EQ(books(), before);
}

TEST_F(BackupTest, TheDailyBackupIsTakenOnceADayAndKeepsTheNewestCopies)
{
    EXPECT_EQ(maintenance::dailyBackup(session()).value(), QString());
    EXPECT_EQ(backupFiles(), QStringList());
    setParameter(QStringLiteral("cs_cs032"), 2);
    for (int day = 10; day <= 13; ++day) {
        session().clock().fix(QDate(2025, 3, day));
        EXPECT_TRUE(maintenance::dailyBackup(session()).value().endsWith(
            QStringLiteral("jxc_auto_202503%1.db").arg(day)));
        EXPECT_EQ(maintenance::dailyBackup(session()).value(), QString());
    }
    EXPECT_EQ(backupFiles(),
        QStringList(
            { QStringLiteral("jxc_auto_20250312.db"), QStringLiteral("jxc_auto_20250313.db") }));
}

// Another workstation checks and unchecks receipts while backups are taken; each backup, once
// restored, is books that balance and pass the self-check.
TEST_F(BackupTest, BackupsTakenWhileAnotherProcessPostsRestoreToSoundBooks)
{
    QProcess worker;
    worker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    worker.start(QStringLiteral(MEDISTOCK_BOOKWORKER_PATH),
        QStringList { path(), QStringLiteral("7"), QStringLiteral("4") } + receipts);
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
        ASSERT_TRUE(maintenance::restoreAccountSet(session(), backup).ok());
        EXPECT_EQ(booksProblems(db(), receipts), QStringList()) << backup.toStdString();
        const Result<maintenance::VerifyReport> report = maintenance::verifyBooks(session());
        ASSERT_TRUE(report.ok());
        EXPECT_TRUE(report->findings.isEmpty())
            << maintenance::reportLines(report.value()).join('\n').toStdString();
    }
}

// Where the set lives on a server, the program says which tools do the work instead.
TEST_F(SessionTest, OnAServerBackupAndRestoreAreLeftToItsTools)
{
    if (db().dialect() == core::Dialect::Sqlite)
        GTEST_SKIP() << "only for a set on PostgreSQL";
    const QString text = QStringLiteral(
        "这个帐套在 PostgreSQL 服务器上，请在服务器上用 pg_dump 备份、用 pg_restore 恢复。");
    EXPECT_FALSE(maintenance::backupAccountSet(session(), {}).ok());
    EXPECT_FALSE(maintenance::restoreAccountSet(session(), QStringLiteral("x.db")).ok());
    EXPECT_EQ(ui.informed, QStringList({ text, text }));
    EXPECT_EQ(maintenance::dailyBackup(session()).value(), QString());
}

} // namespace
} // namespace medistock::test
