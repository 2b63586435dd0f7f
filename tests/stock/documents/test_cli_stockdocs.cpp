#include "tests/stock/documents/stockdocstest.h"

#include <QFile>
#include <QProcess>

using namespace medistock;
using namespace medistock::test;

class StockDocsCliTest : public StockDocsTest
{
protected:
    struct Run
    {
        int status;
        QString out;
        QString err;
    };
    Run cli(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(MEDISTOCK_CLI_PATH),
            QStringList { "--data", folder(), "--today", "2025-03-14" } + arguments);
        process.waitForFinished(60000);
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()) };
    }
    QString file(const QString &name, const QByteArray &json)
    {
        const QString path = folder() + "/" + name;
        QFile out(path);
        out.open(QIODevice::WriteOnly);
        out.write(json);
        return path;
    }
};

TEST_F(StockDocsCliTest, ATransferFromSaveToDelete)
{
    const QString path = file("db.json",
        R"({"kind":"DB","db_dbrq":"2025-03-14","ck_out":"100001","ck_in":"100002","db_note":"补货",
            "lines":[{"g_sn":"200001","db_sl":5,"t_ph":"B1","t_yxq":"2027-12-31",
                      "t_scrq":"2024-12-01"}]})");
    const Run saved = cli({ "save", path });
    ASSERT_EQ(saved.status, 0) << saved.err.toStdString();
    EXPECT_EQ(saved.out, "DB25031410001\n");
    EXPECT_EQ(cli({ "check", "DB25031410001" }).out, "已审核：DB25031410001\n");
    EXPECT_TRUE(cli({ "show", "DB25031410001" }).out.contains("\"db_status\": 1"));

    const Run declined = cli({ "uncheck", "DB25031410001" });
    EXPECT_EQ(declined.status, 1);
    EXPECT_EQ(
        declined.err, "您的操作将取消当前选中的已审核单据：DB25031410001，确认吗？ [是/否] 否\n");
    EXPECT_EQ(cli({ "--yes", "uncheck", "DB25031410001" }).out, "已取消审核：DB25031410001\n");
    EXPECT_EQ(cli({ "delete", "DB25031410001" }).out, "已删除：DB25031410001\n");
    EXPECT_EQ(rowCount(db(), "jxc_kcdbd"), 0);
    EXPECT_EQ(rows("select ck_sn,t_sl from jxc_tkc where g_sn='200001' order by ck_sn"),
        (QStringList { "100001|20", "100002|10" }));
}

TEST_F(StockDocsCliTest, ACountFromItsSheetAndTheReportsByPrefix)
{
    const Run sheet = cli({ "count-sheet", "100001" });
    EXPECT_EQ(sheet.out,
        "商品编号\t商品名称\t单位\t产品批号\t有效期至\t生产日期\t库存数\t核算单价\n"
        "200001\t阿莫西林胶囊\t粒\tB1\t2027-12-31\t2024-12-01\t20\t12\n"
        "200002\t板蓝根颗粒\t粒\tG1\t2027-12-31\t2024-12-01\t10\t8\n");
    const Run unknown = cli({ "count-sheet", "999999" });
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "没有这个仓库：999999\n");

    const QString count = file("pd.json",
        R"({"kind":"PD","ck_sn":"100001","lines":[
            {"g_sn":"200001","pd_sl":"19","t_ph":"B1","t_yxq":"2027-12-31","t_scrq":"2024-12-01"}]})");
    EXPECT_EQ(cli({ "save", count }).out, "PD25031410001\n");
    EXPECT_EQ(cli({ "check", "PD25031410001" }).out, "已审核：PD25031410001\n");
    const QString loss = file("bs.json",
        R"({"kind":"BS","ck_sn":"100001","lines":[{"g_sn":"200002","bs_sl":2,"bs_dj":8,
            "bs_note":"受潮","t_ph":"G1","t_yxq":"2027-12-31","t_scrq":"2024-12-01"}]})");
    EXPECT_EQ(cli({ "save", loss }).out, "BS25031410001\n");
    EXPECT_EQ(cli({ "check", "BS25031410001" }).out, "已审核：BS25031410001\n");
    const QString overflow = file("by.json",
        R"({"kind":"BY","ck_sn":"100002","lines":[{"g_sn":"200001","by_sl":1,
            "t_ph":"B1","t_yxq":"2027-12-31","t_scrq":"2024-12-01"}]})");
    EXPECT_EQ(cli({ "save", overflow }).out, "BY25031410001\n");
    EXPECT_EQ(cli({ "check", "BY25031410001" }).out, "已审核：BY25031410001\n");
    EXPECT_EQ(rows("select gl_djh,ck_sn,g_sn,gl_sl from jxc_goodslist where gl_flag in "
                   "('pd','bs','by') order by id"),
        (QStringList { "PD25031410001|100001|200001|-1", "BS25031410001|100001|200002|-2",
            "BY25031410001|100002|200001|1" }));
    EXPECT_EQ(rows("select fy_lx,fy_je from jxc_yyfy"), QStringList { "费用|-12" });
    const Run stranger
        = cli({ "save", file("x.json", R"({"kind":"BS","ck_sn":"100001","bs_sl":1})") });
    EXPECT_EQ(stranger.status, 2);
}
