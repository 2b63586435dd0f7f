#include "core/connection.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace medistock;

using medistock::test::CliRun;
using medistock::test::runCli;

namespace {

// A data folder whose master file has the operator 小王 with the password "s3cret".
class CliLogin : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(
            runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("init") }).status, 0);
        ASSERT_EQ(cli({ QStringLiteral("operator-add"), QStringLiteral("小王") }).status, 0);
        ASSERT_EQ(
            cli({ QStringLiteral("passwd"), QStringLiteral("小王"), QStringLiteral("s3cret") })
                .status,
            0);
    }
    CliRun cli(const QStringList &arguments)
    {
        return runCli(QStringList { QStringLiteral("--data"), dir.path(), QStringLiteral("--today"),
                          QStringLiteral("2025-03-14") }
            + arguments);
    }
    QString dump()
    {
        auto db = core::Connection::openSqlite(QDir(dir.path()).filePath(QStringLiteral("jxc.db")));
        return test::dumpDatabase(*db);
    }
    QString storedPassword(const QString &name)
    {
        auto db = core::Connection::openSqlite(QDir(dir.path()).filePath(QStringLiteral("jxc.db")));
        return db->firstText(
            QStringLiteral("select a_pwd from jxc_admin where a_name=?"), { name });
    }
    QTemporaryDir dir;
};

class WrongPassword : public CliLogin, public ::testing::WithParamInterface<const char *>
{
};

} // namespace

// Each command that reads or writes the books logs in first: a wrong password stops it before it
// answers anything, with the login's own message, and leaves every row as it was.
TEST_P(WrongPassword, StopsTheCommandBeforeItReadsOrWrites)
{
    const QString export_ = QDir(dir.path()).filePath(QStringLiteral("goods.xlsx"));
    QStringList command = QString::fromUtf8(GetParam()).split(QLatin1Char(' '));
    command.replaceInStrings(QStringLiteral("EXPORT"), export_);
    const QString before = dump();
    const CliRun run
        = cli(QStringList { QStringLiteral("--user"), QStringLiteral("小王"),
                  QStringLiteral("--password"), QStringLiteral("wrong"), QStringLiteral("--yes") }
            + command);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, QStringLiteral("用户密码不正确，请重新输入！\n"));
    EXPECT_EQ(run.out, QString());
    EXPECT_FALSE(QFile::exists(export_));
    EXPECT_EQ(dump(), before);
}

INSTANTIATE_TEST_SUITE_P(CliLogin, WrongPassword,
    ::testing::Values("operators", "master-list goods", "export goods EXPORT",
        "next-code jxc_goods g_sn", "next-number jxc_lsxsd gl_djh XS",
        "number-taken jxc_lsxsd gl_djh XS25031410001", "params", "log", "company", "create-tables",
        "clear-business-data", "param-set cs_kc 0", "passwd admin x", "operator-add 小赵",
        "stock 100001", "accounts", "show XS25031410001", "count-sheet 100001"));

TEST_F(CliLogin, OnlyTheSetNamesHelpAndTextHelpersAnswerWithoutALogin)
{
    const QStringList wrong { QStringLiteral("--password"), QStringLiteral("wrong") };
    const CliRun sets = cli(wrong + QStringList { QStringLiteral("sets") });
    EXPECT_EQ(sets.status, 0);
    EXPECT_EQ(sets.out, QString());
    EXPECT_EQ(cli(wrong + QStringList { QStringLiteral("help") }).status, 0);
    EXPECT_EQ(cli(wrong + QStringList { QStringLiteral("clean"), QStringLiteral("a'b") }).out,
        QStringLiteral("a‘b\n"));
    const CliRun login = cli(wrong + QStringList { QStringLiteral("login") });
    EXPECT_EQ(login.status, 1);
    EXPECT_EQ(login.err, QStringLiteral("初始密码为空\n用户密码不正确，请重新输入！\n"));
}

// passwd takes the password whole; an empty one only with --yes to the question.
TEST_F(CliLogin, PasswdTakesThePasswordWholeAndClearsItOnlyWhenConfirmed)
{
    ASSERT_EQ(cli({ QStringLiteral("passwd"), QStringLiteral("小王"), QStringLiteral("^^^^^^^^") })
                  .status,
        0);
    const auto loginAs = [&](const QString &password) {
        return cli({ QStringLiteral("--user"), QStringLiteral("小王"), QStringLiteral("--password"),
            password, QStringLiteral("operators") });
    };
    EXPECT_EQ(loginAs(QString()).status, 1);
    EXPECT_EQ(loginAs(QStringLiteral("^^^^^^^^")).status, 0);

    const QString stored = storedPassword(QStringLiteral("小王"));
    const CliRun declined = cli({ QStringLiteral("passwd"), QStringLiteral("小王"), QString() });
    EXPECT_EQ(declined.status, 1);
    EXPECT_EQ(declined.err,
        QStringLiteral("确定要清除操作员：小王 的密码吗？清除后不输入密码即可登录。 [是/否] 否\n"));
    EXPECT_EQ(storedPassword(QStringLiteral("小王")), stored);

    EXPECT_EQ(cli({ QStringLiteral("--yes"), QStringLiteral("passwd"), QStringLiteral("小王"),
                      QString() })
                  .status,
        0);
    EXPECT_EQ(storedPassword(QStringLiteral("小王")), QString());
    EXPECT_EQ(loginAs(QString()).status, 0);
}
