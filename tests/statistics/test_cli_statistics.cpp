#include "statistics/texts.h"
#include "tests/statistics/statisticstest.h"
#include "tests/support/cli.h"

using namespace medistock;
using medistock::test::runCli;

namespace {

// 100 boxes at 10 and 50 bags at 4 bought in January, 30 boxes and 10 bags sold; 30 boxes at 12
// bought in February.
class StatsCommand : public test::StatisticsTest
{
protected:
    void SetUp() override
    {
        StatisticsTest::SetUp();
        januaryBooks();
        receipt("2025-02-03", { { "200001", "30", "12" } });
    }

    test::CliRun stats(const QStringList &arguments)
    {
        return runCli(
            QStringList { "--data", folder(), "--today", "2025-03-14", "stats" } + arguments);
    }
};

} // namespace

TEST_F(StatsCommand, JxcPrintsTheSummaryAndDiffTheGoodsWithADifference)
{
    const test::CliRun jxc = stats({ "jxc", "--from", "2025-02-01", "--to", "2025-03-14" });
    ASSERT_EQ(jxc.status, 0) << jxc.err.toStdString();
    EXPECT_EQ(jxc.out,
        "商品编号\t商品名称\t期初数量\t期初金额\t入库数量\t入库金额\t出库数量\t出库金额\t结存数量\t"
        "结存金额\n"
        "200001\t阿莫西林胶囊\t70\t700\t30\t360\t0\t0\t100\t1060\n"
        "200002\t板蓝根颗粒\t40\t160\t0\t0\t0\t0\t40\t160\n");

    db().exec("update jxc_goodslist set gl_kczje=1000 where gl_flag='cj' and gl_kdrq='2025-02-03'");
    const test::CliRun diff = stats({ "diff", "--from", "2025-02-01", "--to", "2025-03-14" });
    ASSERT_EQ(diff.status, 0) << diff.err.toStdString();
    EXPECT_EQ(diff.out, "商品编号\t商品名称\t差额\n200001\t阿莫西林胶囊\t60\n");
}

TEST_F(StatsCommand, CostSyncAsksAndReportsWhatItRewrote)
{
    receipt("2025-01-10", { { "200001", "100", "12" } });
    const test::CliRun declined
        = stats({ "costsync", "--from", "2025-01-01", "--to", "2025-01-31" });
    EXPECT_EQ(declined.status, 1);
    EXPECT_TRUE(
        declined.err.contains(statistics::texts::costSyncQuestion("2025-01-01", "2025-01-31")));
    const test::CliRun synced = runCli(QStringList { "--data", folder(), "--yes", "stats",
        "costsync", "--from", "2025-01-01", "--to", "2025-01-31" });
    ASSERT_EQ(synced.status, 0) << synced.err.toStdString();
    EXPECT_EQ(synced.out, "同步 2 个商品仓库，2 条记录，改写 1 条记录、1 条单据明细\n");
}

TEST_F(StatsCommand, ReportsTakeTheirGroupingAndRefuseWhatTheyDoNotKnow)
{
    const test::CliRun customers
        = stats({ "sales", "--by", "customer", "--from", "2025-01-01", "--to", "2025-01-31" });
    ASSERT_EQ(customers.status, 0) << customers.err.toStdString();
    EXPECT_EQ(customers.out,
        "编号\t名称\t规格\t单位\t单据数\t数量\t金额\t成本\t毛利\t毛利率\n"
        "100002\t华康药店\t\t\t1\t40\t510\t340\t170\t33.33\n");
    const test::CliRun monthly
        = stats({ "monthly", "--out", "--from", "2025-01-01", "--to", "2025-03-31" });
    EXPECT_EQ(monthly.out.split('\n').value(1), "2025-01\t40\t340\t0\t0\t0\t0\t40\t340");

    EXPECT_EQ(stats({ "profit", "--from", "2025-01-01", "--to", "2025-01-31" }).status, 2);
    EXPECT_EQ(
        stats({ "sales", "--by", "colour", "--from", "2025-01-01", "--to", "2025-01-31" }).status,
        2);
    EXPECT_EQ(stats({ "jxc", "--from", "2025-01-01" }).status, 2);
    const test::CliRun reversed = stats({ "jxc", "--from", "2025-02-01", "--to", "2025-01-01" });
    EXPECT_EQ(reversed.status, 1);
    EXPECT_EQ(reversed.err.trimmed(), statistics::texts::rangeReversed());
}
