#include "shell/operators.h"
#include "shell/rights.h"
#include "tests/stock/stockfixture.h"

#include <QProcess>

using namespace medistock;
using namespace medistock::test;

namespace {

struct CliRun
{
    int status;
    QString out;
    QString err;
};

} // namespace

class StockCommandsTest : public StockTest
{
protected:
    void SetUp() override
    {
        StockTest::SetUp();
        addReceipt("CJ1", "2025-03-01", { { "200001", 10, 10 } });
        addReceipt("CJ2", "2025-03-10", { { "200001", 10, 12 } });
        postReceipt("CJ1");
        postReceipt("CJ2");
    }
    CliRun cli(QStringList arguments)
    {
        QProcess process;
        process.start(QStringLiteral(MEDISTOCK_CLI_PATH),
            QStringList { "--data", folder(), "--today", "2025-03-14" } + arguments);
        process.waitForFinished(60000);
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()) };
    }
};

TEST_F(StockCommandsTest, ShowStockLedgerAndCosts)
{
    const CliRun stock = cli({ "stock", "200001" });
    EXPECT_EQ(stock.status, 0) << stock.err.toStdString();
    EXPECT_EQ(stock.out,
        "商品编号\t商品名称\t库存数\t均价\t上次进价\t采购次数\t销售次数\t供货商\n"
        "200001\t阿莫西林胶囊\t20\t11\t12\t2\t0\t100001\n\n"
        "仓库编号\t库存数\t帐面库存\t成本价\t销售数量\n"
        "100001\t20\t20\t11\t0\n\n"
        "仓库编号\t产品批号\t有效期至\t生产日期\t库存数量\n"
        "100001\tB1\t2027-12-31\t2024-12-01\t20\n");
    EXPECT_TRUE(cli({ "stock", "200001", "100002" })
                    .out.endsWith("仓库编号\t库存数\t帐面库存\t成本价\t销售数量\n\n"
                                  "仓库编号\t产品批号\t有效期至\t生产日期\t库存数量\n"));
    const CliRun ledger = cli({ "ledger", "200001", "100001" });
    EXPECT_EQ(ledger.out.split('\n').mid(1),
        (QStringList { "1\t2025-03-01\tcj\tCJ1\t10\t100\t10\t10\t100\t10\t10\t100",
            "2\t2025-03-10\tcj\tCJ2\t10\t120\t12\t10\t120\t20\t11\t220", "" }));
    EXPECT_EQ(cli({ "cost", "200001", "100001", "2025-03-05" }).out, "10.00\n");
    EXPECT_EQ(cli({ "cost", "200001", "100001" }).out, "11.00\n");
    const CliRun unknown = cli({ "stock", "999999" });
    EXPECT_EQ(unknown.status, 1);
    EXPECT_EQ(unknown.err, "没有这个商品：999999\n");
}

TEST_F(StockCommandsTest, ChecksExitOneWithTheirMessage)
{
    addSaleLines("XS1", { { "200001", 3, 10 } });
    addSaleLines("XS1", { { "200001", 18, 10 } });
    db().exec("update jxc_goods set g_xzsl=20");
    const CliRun shortBatch = cli({ "batch-check", "xs", "XS1", "100001" });
    EXPECT_EQ(shortBatch.status, 1);
    EXPECT_EQ(shortBatch.err,
        "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：销售将会出现负库存，"
        "是否继续？\n");
    EXPECT_EQ(cli({ "batch-check", "XS", "XS1", "100002" }).status, 0);
    EXPECT_EQ(cli({ "batch-check", "QQ", "XS1", "100001" }).status, 2);
    const CliRun limit = cli({ "limit-check", "XS1" });
    EXPECT_EQ(limit.status, 1);
    EXPECT_EQ(
        limit.err, "其中的药品“阿莫西林胶囊 每次最多销售数量为20”，\r\n\r\n不能超过这个数量！\n");
}

TEST_F(StockCommandsTest, RepairsNeedTheStockCheckRight)
{
    db().exec("update jxc_goodslist set gl_kc=0,gl_pjjj=0,gl_kczje=0");
    const CliRun rerun = cli({ "rerun-ledger", "1" });
    EXPECT_EQ(rerun.status, 0) << rerun.err.toStdString();
    EXPECT_EQ(rerun.out, "重算 2 行，改写 2 行；库存数 20，均价 11，库存金额 220\n");
    EXPECT_EQ(cli({ "rerun-ledger", "99" }).err, "商品明细帐中没有编号为99的记录！\n");
    const CliRun settled = cli({ "settle", "2025-03-20", "100001" });
    EXPECT_EQ(settled.out, "100001\t20\t220\n100002\t0\t0\n");

    shell::RoleDraft clerk;
    clerk.name = "保管员";
    clerk.ticked.insert("kcgl", { true });
    const auto role = shell::saveRole(session(), clerk);
    ASSERT_TRUE(role.ok());
    ASSERT_TRUE(shell::addOperator(session(), "小王", role.value()).ok());
    const CliRun refused = cli({ "--user", "小王", "settle", "2025-03-20" });
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "您没有“库存核对”的权限！\n");
}

// The alarm lists what the screen lists; the average is set only on "--yes" and stays on "No".
TEST_F(StockCommandsTest, AlarmsAndTheAverageSetByHand)
{
    db().exec("update jxc_goods set g_zdkc=25 where g_sn='200001'");
    EXPECT_EQ(cli({ "stock-alarm" }).out,
        "商品编号\t商品名称\t规格\t单位\t仓库\t库存数\t最低库存\t短缺数量\n"
        "200001\t阿莫西林胶囊\t\t粒\t\t20\t25\t5\n");
    const CliRun no = cli({ "set-average", "200001", "9.5", "100001" });
    EXPECT_EQ(no.status, 1);
    EXPECT_EQ(number("select kc_cbj from jxc_kcsp where g_sn='200001' and ck_sn='100001'"), 11);
    const CliRun yes = cli({ "--yes", "set-average", "200001", "9.5", "100001" });
    EXPECT_EQ(yes.status, 0) << yes.err.toStdString();
    EXPECT_EQ(yes.out, "商品均价：9.5\n");
    EXPECT_EQ(number("select kc_cbj from jxc_kcsp where g_sn='200001' and ck_sn='100001'"), 9.5);
    EXPECT_EQ(number("select gl_kczje from jxc_goodslist where gl_djh='CJ2'"), 190);
}
