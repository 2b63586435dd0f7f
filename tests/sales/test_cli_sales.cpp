#include "core/connection.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QFile>
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

// An account set made by `init`, with 40 bags of 板蓝根颗粒 (200002) at 3 in warehouse 100001 in
// batch "P1" (2026-01-31), 20 more in batch "P0" (2025-09-30), and the customer 100002.
class SalesCommands : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        ASSERT_EQ(run({ QStringLiteral("init") }).status, 0);
        auto db
            = core::Connection::openSqlite(QDir(m_dir.path()).filePath(QStringLiteral("jxc.db")));
        db->exec(QStringLiteral("insert into jxc_goods (g_sn,g_name,dw_name,g_kc,g_pjjj,g_sj,"
                                "g_xspl,g_cgpl,g_xzsl,g_jy) values ('200002','板蓝根颗粒','袋',60,"
                                "3,8,0,0,0,0)"));
        db->exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_lwje,kh_forbid,kt_sn) "
                                "values ('100002','华康药店',0,0,'1000')"));
        db->exec(QStringLiteral("insert into jxc_kcsp (g_sn,ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl) "
                                "values ('200002','100001',60,60,3,0)"));
        db->exec(QStringLiteral("insert into jxc_tkc (g_sn,ck_sn,t_ph,t_yxq,t_scrq,t_sl,t_jhrq) "
                                "values ('200002','100001','P1','2026-01-31','',40,''),"
                                "('200002','100001','P0','2025-09-30','',20,'')"));
        db->exec(
            QStringLiteral("insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,ck_sn,gl_dj,"
                           "gl_sl,gl_je,gl_kc,gl_pjjj,gl_kczje) values ('qc','QC1',"
                           "'2025-01-02','200002','100001',3,60,180,60,3,180)"));
    }

    CliRun run(QStringList arguments)
    {
        QProcess process;
        process.start(QStringLiteral(MEDISTOCK_CLI_PATH), arguments_(arguments));
        process.waitForFinished(60000);
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()) };
    }

    QStringList arguments_(QStringList arguments) const
    {
        return QStringList { QStringLiteral("--today"), QStringLiteral("2025-03-14"),
            QStringLiteral("--data"), m_dir.path() }
        + arguments;
    }

    QString file(const QString &name, const QByteArray &json)
    {
        const QString path = QDir(m_dir.path()).filePath(name);
        QFile out(path);
        out.open(QIODevice::WriteOnly);
        out.write(json);
        return path;
    }

    QVariant value(const QString &sql)
    {
        auto db
            = core::Connection::openSqlite(QDir(m_dir.path()).filePath(QStringLiteral("jxc.db")));
        return db->firstValue(sql);
    }

private:
    QTemporaryDir m_dir;
};

} // namespace

TEST_F(SalesCommands, ASaleIsSavedWithItsBatchesProposedCheckedShownAndUnchecked)
{
    EXPECT_EQ(run({ "fefo", "200002", "100001", "50" }).out,
        QStringLiteral("产品批号\t有效期至\t生产日期\t库存数量\t出库数量\n"
                       "P0\t2025-09-30\t\t20\t20\nP1\t2026-01-31\t\t40\t30\n"));
    EXPECT_EQ(run({ "fefo", "200002", "100001", "70" }).out.section('\n', 3, 3),
        QStringLiteral("库存不足：10"));
    EXPECT_EQ(run({ "price", "200002", "100002" }).out, QStringLiteral("8.00\n"));

    const QString json = file(QStringLiteral("xs.json"),
        R"({"kind":"XS","kh_sn":"100002","ck_sn":"100001","ls_sfje":100,"fefo":true,
            "lines":[{"g_sn":"200002","ls_sl":"25","ls_dj":"8"}]})");
    const CliRun declined = run({ "save", json });
    EXPECT_EQ(declined.status, 1);
    const CliRun saved = run({ "--yes", "save", json });
    EXPECT_EQ(saved.out, QStringLiteral("XS25031410001\n"));
    // 100 of 200 paid and no prepayment: the check asks, and only "yes" checks it.
    const CliRun asked = run({ "check", "XS25031410001" });
    EXPECT_EQ(asked.status, 1);
    EXPECT_EQ(asked.err,
        QStringLiteral(
            "该客户当前的预付款余额为：0，\r\n\r\n不足以支付本单的金额。\r\n\r\n继续保存吗？ "
            "[是/否] 否\n"));
    EXPECT_EQ(
        run({ "--yes", "check", "XS25031410001" }).out, QStringLiteral("已审核：XS25031410001\n"));
    EXPECT_EQ(value(QStringLiteral("select group_concat(t_ph||'='||t_sl) from (select * from "
                                   "jxc_tkc order by t_ph)"))
                  .toString(),
        QStringLiteral("P0=0,P1=35"));
    EXPECT_TRUE(run({ "show", "XS25031410001" }).out.contains(QStringLiteral("\"ls_status\": 1")));
    EXPECT_EQ(run({ "--yes", "uncheck", "XS25031410001" }).status, 0);
    EXPECT_EQ(
        value(QStringLiteral("select kc_sl from jxc_kcsp where g_sn='200002'")).toDouble(), 60);
    EXPECT_EQ(run({ "delete", "XS25031410001" }).out, QStringLiteral("已删除：XS25031410001\n"));

    const CliRun wrongKind = run({ "check-all", "XT" });
    EXPECT_EQ(wrongKind.status, 2);
}

// A line without "ls_dj" is saved at the customer's price.
TEST_F(SalesCommands, ALineWithoutAPriceIsSavedAtTheCustomersPrice)
{
    const QString json = file(QStringLiteral("xs.json"),
        R"({"kind":"XS","kh_sn":"100002","ck_sn":"100001","ls_sfje":24,
            "lines":[{"g_sn":"200002","ls_sl":"3","t_ph":"P1","t_yxq":"2026-01-31"}]})");
    const CliRun saved = run({ "--yes", "save", json });
    EXPECT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(value(QStringLiteral("select ls_dj||'|'||ls_zje from jxc_lsxssp where "
                                   "g_sn='200002'"))
                  .toString(),
        QStringLiteral("8|24"));
}

// Two workstations checking the same sale at the same moment: the one that comes second finds it
// checked and posts nothing.
TEST_F(SalesCommands, TwoProcessesCheckingTheSameSaleAtOncePostItOnce)
{
    const QString json = file(QStringLiteral("xs.json"),
        R"({"kind":"XS","kh_sn":"100002","ck_sn":"100001","ls_sfje":30,
            "lines":[{"g_sn":"200002","ls_sl":"2","ls_dj":"8","t_ph":"P1","t_yxq":"2026-01-31"},
                     {"g_sn":"200002","ls_sl":"1","ls_dj":"8","t_ph":"P0","t_yxq":"2025-09-30"}]})");
    ASSERT_EQ(run({ "--yes", "save", json }).status, 0);
    for (int round = 0; round < 3; ++round) {
        QProcess first;
        QProcess second;
        const QStringList check = arguments_({ "--yes", "check", "XS25031410001" });
        first.start(QStringLiteral(MEDISTOCK_CLI_PATH), check);
        second.start(QStringLiteral(MEDISTOCK_CLI_PATH), check);
        ASSERT_TRUE(first.waitForFinished(60000));
        ASSERT_TRUE(second.waitForFinished(60000));
        EXPECT_EQ(first.exitCode(), 0) << first.readAllStandardError().toStdString();
        EXPECT_EQ(second.exitCode(), 0) << second.readAllStandardError().toStdString();
        EXPECT_EQ(value(QStringLiteral("select count(*) from jxc_goodslist where "
                                       "gl_djh='XS25031410001'"))
                      .toInt(),
            2);
        EXPECT_EQ(value(QStringLiteral("select count(*) from jxc_ysyfk")).toInt(), 1);
        EXPECT_EQ(
            value(QStringLiteral("select kc_sl from jxc_kcsp where g_sn='200002'")).toDouble(), 57);
        ASSERT_EQ(run({ "--yes", "uncheck", "XS25031410001" }).status, 0);
    }
}
