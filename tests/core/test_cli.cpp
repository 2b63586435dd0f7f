#include "core/connection.h"
#include "tests/support/accountset.h"
#include "tests/support/cli.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace medistock;

using medistock::test::cliPath;
using medistock::test::CliRun;
using medistock::test::runCli;

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
        EXPECT_EQ(db->firstText(QStringLiteral("select c_name from jxc_company")),
            QStringLiteral("康宁大药房"));
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

    CliRun refused
        = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("create-tables") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(
        QStringLiteral("重新创建全部数据表将清空本帐套的全部数据，确认吗？ [是/否] 否")))
        << refused.err.toStdString();

    CliRun cleared = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("--yes"),
        QStringLiteral("clear-business-data") });
    EXPECT_EQ(cleared.status, 0) << cleared.err.toStdString();
    {
        auto db = core::Connection::openSqlite(master);
        EXPECT_EQ(db->firstText(QStringLiteral("select g_kc from jxc_goods where g_sn=?"),
                      { QStringLiteral("100001") }),
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
    EXPECT_EQ(
        runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("no-such-command") }).status,
        2);
    EXPECT_EQ(runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("init"),
                         QStringLiteral("--bogus") })
                  .status,
        2);
    // a missing account-set file is a database error, not a new empty file
    CliRun missing = runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("--set"),
        QStringLiteral("100009"), QStringLiteral("--yes"), QStringLiteral("create-tables") });
    EXPECT_EQ(missing.status, 2);
    EXPECT_FALSE(QFile::exists(QDir(dir.path()).filePath(QStringLiteral("jxc_100009.db"))));
}

namespace {

// A data folder with its master file, for the commands that need an account set.
class CliSet : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(
            runCli({ QStringLiteral("--data"), dir.path(), QStringLiteral("init") }).status, 0);
    }
    CliRun cli(QStringList arguments)
    {
        return runCli(QStringList { QStringLiteral("--data"), dir.path(), QStringLiteral("--today"),
                          QStringLiteral("2025-03-14") }
            + arguments);
    }
    QString master() const { return QDir(dir.path()).filePath(QStringLiteral("jxc.db")); }
    QTemporaryDir dir;
};

} // namespace

TEST_F(CliSet, AccountSetsLoginAndOperators)
{
    CliRun created = cli({ QStringLiteral("set-create"), QStringLiteral("城西店"),
        QStringLiteral("--default"), QStringLiteral("--company"), QStringLiteral("康宁城西店") });
    EXPECT_EQ(created.status, 0) << created.err.toStdString();
    EXPECT_EQ(created.out, QStringLiteral("100001\tjxc_100001.db\n"));
    EXPECT_EQ(cli({ QStringLiteral("set-create"), QString() }).err,
        QStringLiteral("帐套名称必须填写！\n"));
    EXPECT_EQ(cli({ QStringLiteral("sets") }).out, QStringLiteral("100001\t城西店\t默认\t\n"));

    CliRun hint
        = cli({ QStringLiteral("--set"), QStringLiteral("100001"), QStringLiteral("login") });
    EXPECT_EQ(hint.status, 0);
    EXPECT_EQ(hint.err, QStringLiteral("初始密码为空\n"));
    CliRun wrong
        = cli({ QStringLiteral("--password"), QStringLiteral("x"), QStringLiteral("login") });
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.err, QStringLiteral("初始密码为空\n用户密码不正确，请重新输入！\n"));

    EXPECT_EQ(cli({ QStringLiteral("operator-add"), QStringLiteral("小王") }).out,
        QStringLiteral("100002\n"));
    EXPECT_EQ(
        cli({ QStringLiteral("passwd"), QStringLiteral("小王"), QStringLiteral("abc123") }).status,
        0);
    EXPECT_EQ(cli({ QStringLiteral("--user"), QStringLiteral("小王"), QStringLiteral("--password"),
                      QStringLiteral("abc123"), QStringLiteral("login") })
                  .status,
        0);
    auto db = core::Connection::openSqlite(master());
    EXPECT_NE(db->firstText(QStringLiteral("select a_pwd from jxc_admin where a_name='小王'")),
        QStringLiteral("abc123"));
    EXPECT_EQ(
        db->firstText(QStringLiteral("select count(*) from jxc_log where log_note='登录系统'")),
        QStringLiteral("1"));
}

TEST_F(CliSet, NumbersRightsAndParameters)
{
    EXPECT_EQ(cli({ QStringLiteral("next-number"), QStringLiteral("jxc_lsxsd"),
                      QStringLiteral("gl_djh"), QStringLiteral("XS") })
                  .out,
        QStringLiteral("XS25031410001\n"));
    CliRun injected = cli({ QStringLiteral("next-code"),
        QStringLiteral("jxc_goods;drop table jxc_goods"), QStringLiteral("g_sn") });
    EXPECT_EQ(injected.status, 1);
    EXPECT_EQ(injected.err,
        QStringLiteral(
            "jxc_goods;drop table jxc_goods.g_sn 不是基础资料的编号字段，不能取下一个编号！\n"));
    CliRun password = cli(
        { QStringLiteral("next-code"), QStringLiteral("jxc_admin"), QStringLiteral("a_pwd") });
    EXPECT_EQ(password.status, 1);
    EXPECT_EQ(password.out, QString());
    CliRun pattern = cli({ QStringLiteral("next-number"), QStringLiteral("jxc_lsxsd"),
        QStringLiteral("gl_djh"), QStringLiteral("X%") });
    EXPECT_EQ(pattern.status, 1);
    EXPECT_EQ(pattern.err, QStringLiteral("没有这种单据号前缀：X%\n"));
    EXPECT_EQ(cli({ QStringLiteral("next-number"), QStringLiteral("jxc_lsxsd"),
                      QStringLiteral("gl_djh"), QStringLiteral("'") })
                  .err,
        QStringLiteral("没有这种单据号前缀：'\n"));
    EXPECT_EQ(cli({ QStringLiteral("number-taken"), QStringLiteral("jxc_lsxsd"),
                      QStringLiteral("gl_djh"), QStringLiteral("XS25031410001") })
                  .out,
        QStringLiteral("no\n"));
    EXPECT_EQ(cli({ QStringLiteral("clean"), QStringLiteral("a'b") }).out, QStringLiteral("a‘b\n"));
    EXPECT_EQ(cli({ QStringLiteral("capitals"), QStringLiteral("123.45") }).out,
        QStringLiteral("壹佰贰拾叁元肆角伍分\n"));

    EXPECT_EQ(
        cli({ QStringLiteral("role-save"), QStringLiteral("营业员"), QStringLiteral("xsgl=11") })
            .out,
        QStringLiteral("100002\n"));
    cli({ QStringLiteral("operator-add"), QStringLiteral("小李"), QStringLiteral("--role"),
        QStringLiteral("100002") });
    const QStringList asLi { QStringLiteral("--user"), QStringLiteral("小李") };
    EXPECT_EQ(cli(asLi
                  + QStringList { QStringLiteral("has-right"), QStringLiteral("xsgl"),
                      QStringLiteral("2") })
                  .out,
        QStringLiteral("yes\n"));
    EXPECT_EQ(cli(asLi
                  + QStringList { QStringLiteral("has-right"), QStringLiteral("xsgl"),
                      QStringLiteral("3") })
                  .out,
        QStringLiteral("no\n"));

    EXPECT_EQ(
        cli({ QStringLiteral("param-set"), QStringLiteral("cs_kc"), QStringLiteral("0") }).status,
        0);
    EXPECT_TRUE(cli({ QStringLiteral("params") }).out.contains(QStringLiteral("\ncs_kc=0\n")));
    {
        auto db = core::Connection::openSqlite(master());
        db->exec(QStringLiteral(
                     "insert into jxc_jhsp (j_sn,g_sn,jh_sl,jh_rksl,jh_qxsl) values (?,?,?,?,?)"),
            { QStringLiteral("CJ25031410001"), QStringLiteral("100001"), 5, 0, 0 });
    }
    CliRun refused = cli({ QStringLiteral("params-restore") });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
        QStringLiteral(
            "至少有一种商品没有完成入库，\r\n\r\n单据号：CJ25031410001，商品编号：100001\r\n\r\n"
            "不能取消商品入库功能！\n"));
}

TEST_F(CliSet, TwoProcessesAtTheSameMomentNeverCorruptTheFile)
{
    const QStringList base { QStringLiteral("--data"), dir.path() };
    for (int round = 0; round < 6; ++round) {
        QList<QProcess *> running;
        for (const QString &command : { QStringLiteral("next-number"), QStringLiteral("login") }) {
            auto *process = new QProcess;
            process->start(cliPath(),
                command == QLatin1String("login") ? base + QStringList { command }
                                                  : base
                        + QStringList { command, QStringLiteral("jxc_lsxsd"),
                            QStringLiteral("gl_djh"), QStringLiteral("XS") });
            running.append(process);
        }
        for (QProcess *process : running) {
            process->waitForFinished(60000);
            EXPECT_EQ(process->exitCode(), 0) << process->readAllStandardError().toStdString();
            delete process;
        }
    }
    auto db = core::Connection::openSqlite(master());
    EXPECT_EQ(db->firstText(QStringLiteral("pragma integrity_check")), QStringLiteral("ok"));
    EXPECT_EQ(test::rowCount(*db, QStringLiteral("jxc_log")), 6);
}

TEST_F(CliSet, CompanyAndLogClearing)
{
    CliRun changed = cli({ QStringLiteral("company"), QStringLiteral("--name"),
        QStringLiteral("康宁大药房"), QStringLiteral("--tele"), QStringLiteral("0571-88886666") });
    EXPECT_EQ(changed.status, 0) << changed.err.toStdString();
    EXPECT_EQ(changed.out, QStringLiteral("康宁大药房\t\t0571-88886666\t\t\n"));

    CliRun declined = cli({ QStringLiteral("log-clear") });
    EXPECT_EQ(declined.status, 1);
    EXPECT_TRUE(declined.err.contains(
        QStringLiteral("清除日志后将无法恢复，确认清除全部操作日志吗？ [是/否] 否")))
        << declined.err.toStdString();
    EXPECT_EQ(cli({ QStringLiteral("--yes"), QStringLiteral("log-clear") }).status, 0);
    EXPECT_EQ(cli({ QStringLiteral("log") }).out.section(QLatin1Char('\t'), 1),
        QStringLiteral("admin\t清除日志\n"));
}
