#include "core/connection.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace medistock;

namespace {

struct CliRun
{
    int status;
    QString out;
    QString err;
};

CliRun runCli(const QStringList &arguments, const QString &dataEnvironment = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("MEDISTOCK_DATA"));
    if (!dataEnvironment.isEmpty())
        environment.insert(QStringLiteral("MEDISTOCK_DATA"), dataEnvironment);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(MEDISTOCK_CLI_PATH), arguments);
    process.waitForFinished(60000);
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
             QString::fromUtf8(process.readAllStandardError()) };
}

} // namespace

TEST(CommandLine, InitCreatesTheFolderAndLeavesAnExistingMasterFileAlone)
{
    QTemporaryDir dir;
    const QString data = QDir(dir.path()).filePath(QStringLiteral("数据"));
    CliRun first = runCli({ QStringLiteral("--data"), data, QStringLiteral("init"),
                         QStringLiteral("--company"), QStringLiteral("康宁大药房") });
    EXPECT_EQ(first.status, 0) << first.err.toStdString();
    EXPECT_TRUE(first.out.contains(QStringLiteral("已创建数据目录：")));
    EXPECT_TRUE(first.out.contains(QStringLiteral("已创建主帐套文件：")));
    const QString master = QDir(data).filePath(QStringLiteral("jxc.db"));
    {
        auto db = core::Connection::openSqlite(master);
        EXPECT_EQ(db->firstText(QStringLiteral("select c_name from jxc_company")), QStringLiteral("康宁大药房"));
        db->exec(QStringLiteral("insert into jxc_dw (dw_sn,dw_name) values (?,?)"),
                 { QStringLiteral("100004"), QStringLiteral("瓶") });
    }
    CliRun second = runCli({ QStringLiteral("init") }, data);
    EXPECT_EQ(second.status, 0);
    EXPECT_TRUE(second.out.contains(QStringLiteral("主帐套文件已存在，未作改动：")));
    auto db = core::Connection::openSqlite(master);
    EXPECT_EQ(test::rowCount(*db, QStringLiteral("jxc_dw")), 3);
}

TEST(CommandLine, TableRoutinesAskFirstAndNeedYes)
{
    QTemporaryDir dir;
    ASSERT_EQ(runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("init") }).status, 0);
    const QString master = QDir(dir.path()).filePath(QStringLiteral("jxc.db"));
    {
        auto db = core::Connection::openSqlite(master);
        db->exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,g_kc) values (?,?,?)"),
                 { QStringLiteral("100001"), QStringLiteral("板蓝根颗粒"), 8 });
        db->exec(QStringLiteral("insert into jxc_log (a_name,log_note) values (?,?)"),
                 { QStringLiteral("admin"), QStringLiteral("登录系统") });
    }

    CliRun refused = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("create-tables") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("重新创建全部数据表将清空本帐套的全部数据，确认吗？ [是/否] 否")))
        << refused.err.toStdString();

    CliRun cleared = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("--yes"),
                           QStringLiteral("clear-business-data") });
    EXPECT_EQ(cleared.status, 0) << cleared.err.toStdString();
    {
        auto db = core::Connection::openSqlite(master);
        EXPECT_EQ(db->firstText(QStringLiteral("select g_kc from jxc_goods where g_sn=?"), { QStringLiteral("100001") }),
                  QStringLiteral("0"));
        EXPECT_EQ(test::rowCount(*db, QStringLiteral("jxc_log")), 0);
    }

    CliRun recreated = runCli({ QStringLiteral("create-tables"), QStringLiteral("--yes"),
                             QStringLiteral("--data"), dir.path() });
    EXPECT_EQ(recreated.status, 0) << recreated.err.toStdString();
    auto db = core::Connection::openSqlite(master);
    EXPECT_EQ(test::rowCount(*db, QStringLiteral("jxc_goods")), 1);
    EXPECT_TRUE(db->tableExists(QStringLiteral("jxc_xtzt")));
}

TEST(CommandLine, UsageErrorsExitWithTwo)
{
    QTemporaryDir dir;
    EXPECT_EQ(runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("no-such-command") }).status, 2);
    EXPECT_EQ(runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("init"), QStringLiteral("--bogus") }).status, 2);
    // a missing account-set file is a database error, not a new empty file
    CliRun missing = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("--set"),
                           QStringLiteral("100009"), QStringLiteral("--yes"), QStringLiteral("create-tables") });
    EXPECT_EQ(missing.status, 2);
    EXPECT_FALSE(QFile::exists(QDir(dir.path()).filePath(QStringLiteral("jxc_100009.db"))));
}
