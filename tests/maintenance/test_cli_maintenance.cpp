// verify, backup and restore on the command line, on a data folder of its own.
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

} // namespace
} // namespace medistock::test
