// verify, backup and restore on the command line, on a data folder of its own.
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace medistock::test {
namespace {

class MaintenanceCli : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        ASSERT_EQ(run({ QStringLiteral("init") }).status, 0);
    }

    CliRun run(const QStringList &arguments)
    {
        return runCli(QStringList { QStringLiteral("--data"), dir.path(), QStringLiteral("--today"),
                          QStringLiteral("2025-03-14") }
            + arguments);
    }

    QTemporaryDir dir;
};

TEST_F(MaintenanceCli, VerifyBackupAndRestore)
{
    const CliRun verified = run({ QStringLiteral("verify") });
    EXPECT_EQ(verified.status, 0) << verified.err.toStdString();
    EXPECT_EQ(verified.out, QStringLiteral("没有发现问题。\n"));

    const QString file = QDir(dir.path()).filePath(QStringLiteral("copy.db"));
    const CliRun backup = run({ QStringLiteral("backup"), QStringLiteral("--to"), file });
    EXPECT_EQ(backup.status, 0) << backup.err.toStdString();
    EXPECT_EQ(backup.out, QDir::toNativeSeparators(file) + QLatin1Char('\n'));

    const CliRun unanswered = run({ QStringLiteral("restore"), file });
    EXPECT_EQ(unanswered.status, 1);
    EXPECT_TRUE(unanswered.err.startsWith(QStringLiteral("从备份文件恢复帐套数据：")));

    const CliRun restored = run({ QStringLiteral("--yes"), QStringLiteral("restore"), file });
    EXPECT_EQ(restored.status, 0) << restored.err.toStdString();
    EXPECT_TRUE(restored.out.startsWith(QStringLiteral("恢复前的帐套数据已另存为：")));

    QFile copy(file);
    ASSERT_TRUE(copy.resize(copy.size() - 1000));
    const CliRun refused = run({ QStringLiteral("--yes"), QStringLiteral("restore"), file });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, QString());
    EXPECT_TRUE(refused.err.startsWith(
        QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n帐套文件")))
        << refused.err.toStdString();
    EXPECT_EQ(run({ QStringLiteral("verify"), QStringLiteral("--repair") }).out,
        QStringLiteral("没有作任何修改。\n"));
}

// The same on a server: backup and restore go through pg_dump files in the data folder.
class ServerCli : public AccountSetTest
{
protected:
    CliRun run(const QStringList &arguments)
    {
        return runCli(QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--pg"),
                          db().postgresOptions().text(), QStringLiteral("--today"),
                          QStringLiteral("2025-03-14") }
            + arguments);
    }
};

TEST_F(ServerCli, BackupAndRestoreASetOnTheServer)
{
    if (!onPostgres())
        GTEST_SKIP() << "about a set on the server";
    const CliRun backup = run({ QStringLiteral("backup") });
    EXPECT_EQ(backup.status, 0) << backup.err.toStdString();
    const QString file = backup.out.trimmed();
    EXPECT_TRUE(file.startsWith(QDir::toNativeSeparators(QDir(folder()).filePath(
        QStringLiteral("backup/%1_20250314_").arg(db().postgresOptions().database)))))
        << file.toStdString();
    EXPECT_TRUE(file.endsWith(QStringLiteral(".dump")));
    db().exec(QStringLiteral("update jxc_xtcs set cs_cs032=5"));

    const CliRun restored = run({ QStringLiteral("--yes"), QStringLiteral("restore"), file });
    EXPECT_EQ(restored.status, 0) << restored.err.toStdString();
    EXPECT_TRUE(restored.out.startsWith(QStringLiteral("恢复前的帐套数据已另存为：")));
    EXPECT_TRUE(restored.out.trimmed().endsWith(QStringLiteral(".dump")));
    EXPECT_EQ(db().firstValue(QStringLiteral("select cs_cs032 from jxc_xtcs")).toInt(), 0);

    QFile copy(file);
    ASSERT_TRUE(copy.resize(copy.size() / 2));
    const CliRun refused = run({ QStringLiteral("--yes"), QStringLiteral("restore"), file });
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.startsWith(
        QStringLiteral("这个备份文件不能用来恢复，当前帐套没有任何改动。\r\n备份文件")))
        << refused.err.toStdString();
    const CliRun verified = run({ QStringLiteral("verify") });
    EXPECT_EQ(verified.status, 0) << verified.out.toStdString();
    EXPECT_TRUE(verified.out.startsWith(QStringLiteral("没有发现问题。\n")));
}

} // namespace
} // namespace medistock::test
