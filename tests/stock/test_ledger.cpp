#include "stock/ledger.h"
#include "tests/stock/stockfixture.h"

using namespace medistock;
using namespace medistock::test;

namespace {

struct StepCase
{
    const char *name;
    stock::RunningState before;
    stock::LedgerMovement row;
    double carriedQuantity, carriedAmount, quantity, average, value;
};

void PrintTo(const StepCase &c, std::ostream *os)
{
    *os << c.name;
}

const stock::RunningState tenAtTen = stock::openingAfter(10, 10, 100);
// Ten left after a sale of five, in a run whose receipts so far were 10 costing 100.
const stock::RunningState fiveOfARun { 5, 10, 50, 10, 100 };

// Each kind against 10 in stock at 10: whether it adds or subtracts, whether it sets the average
// (some only when they add), and what it carries (subtracting kinds carry nothing).
const StepCase stepCases[] = {
    { "cj_sets", tenAtTen, { "cj", 5, 60, 12 }, 5, 60, 15, 10.67, 160.05 },
    { "ct_negative_sets", tenAtTen, { "ct", -5, -60, 12 }, -5, -60, 5, 8, 40 },
    { "db_in_sets", tenAtTen, { "db", 5, 60, 12 }, 5, 60, 15, 10.67, 160.05 },
    { "db_out_keeps", tenAtTen, { "db", -5, -60, 12 }, -5, -60, 5, 10, 50 },
    { "cf_out_keeps", tenAtTen, { "cf", -5, -60, 12 }, -5, -60, 5, 10, 50 },
    { "bh_in_sets", tenAtTen, { "bh", 5, 60, 12 }, 5, 60, 15, 10.67, 160.05 },
    { "pd_shortage_sets", tenAtTen, { "pd", -2, -30, 15 }, -2, -30, 8, 8.75, 70 },
    { "qc_sets", tenAtTen, { "qc", 10, 140, 14 }, 10, 140, 20, 12, 240 },
    { "bs_keeps", tenAtTen, { "bs", -2, -30, 15 }, -2, -30, 8, 10, 80 },
    { "by_keeps", tenAtTen, { "by", 2, 30, 15 }, 2, 30, 12, 10, 120 },
    { "hh_keeps", tenAtTen, { "hh", 2, 30, 15 }, 2, 30, 12, 10, 120 },
    { "xs_subtracts_at_average", tenAtTen, { "xs", 4, 48, 12 }, 0, 0, 6, 10, 60 },
    { "xt_negative_adds_back", tenAtTen, { "xt", -4, -48, 12 }, 0, 0, 14, 10, 140 },
    { "jh_subtracts", tenAtTen, { "jh", 4, 48, 12 }, 0, 0, 6, 10, 60 },
    { "dh_subtracts", tenAtTen, { "dh", 1, 0, 0 }, 0, 0, 9, 10, 90 },
    { "unknown_kind_ignored", tenAtTen, { "zz", 4, 48, 12 }, 0, 0, 10, 10, 100 },
    // The sums of the run, not the stock left, are what the average is taken over.
    { "receipt_after_a_sale_of_the_run", fiveOfARun, { "cj", 10, 160, 16 }, 10, 160, 15, 13, 195 },
    // Receipt into negative stock: the sums are taken absolute and go on.
    { "receipt_into_negative", stock::openingAfter(-5, 10, -50), { "cj", 10, 120, 12 }, 10, 120, 5,
        11.33, 56.65 },
    { "receipt_into_negative_of_a_run", { -5, 10, -50, 10, 100 }, { "cj", 10, 120, 12 }, 10, 120, 5,
        11, 55 },
    { "receipt_to_exactly_zero", stock::openingAfter(-10, 10, -100), { "cj", 10, 150, 15 }, 10, 150,
        0, 15, 0 },
    { "return_of_everything", tenAtTen, { "ct", -10, -120, 12 }, -10, -120, 0, 10, 0 },
    { "sale_before_any_receipt", stock::openingAfter(0, 7.5, 0), { "xs", 3, 30, 10 }, 0, 0, -3, 7.5,
        -22.5 },
    { "exact_half_rounds_up", {}, { "cj", 8, 1, 0.125 }, 8, 1, 8, 0.13, 1.04 },
};

class LedgerStepTest : public ::testing::TestWithParam<StepCase>
{
};

} // namespace

TEST_P(LedgerStepTest, MovesTheRunningState)
{
    const StepCase &c = GetParam();
    const stock::LedgerStep step = stock::stepLedger(c.before, c.row, { 2, 2, 2 });
    EXPECT_DOUBLE_EQ(step.carriedQuantity, c.carriedQuantity);
    EXPECT_DOUBLE_EQ(step.carriedAmount, c.carriedAmount);
    EXPECT_DOUBLE_EQ(step.after.quantity, c.quantity);
    EXPECT_DOUBLE_EQ(step.after.average, c.average);
    EXPECT_DOUBLE_EQ(step.after.value, c.value);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LedgerStepTest, ::testing::ValuesIn(stepCases),
    [](const auto &test) { return std::string(test.param.name); });

TEST(LedgerStep, RoundsEachColumnToItsOwnDecimals)
{
    const stock::LedgerStep step = stock::stepLedger({}, { "cj", 3.0004, 100, 33 }, { 4, 3, 0 });
    EXPECT_DOUBLE_EQ(step.after.quantity, 3);
    EXPECT_DOUBLE_EQ(step.after.average, 33.3289);
    EXPECT_DOUBLE_EQ(step.after.value, 100);
}

class RerunTest : public StockTest
{
protected:
    const QString amoxil = QStringLiteral("200001");

    // A ledger of every sort of row, with two rows on one day.
    QList<qint64> buildMixedLedger()
    {
        return { postRow("cj", "2025-01-02", amoxil, 10, 100, 10),
            postRow("xs", "2025-01-03", amoxil, 4, 60, 15),
            postRow("cj", "2025-01-03", amoxil, 6, 72, 12),
            postRow("pd", "2025-01-05", amoxil, -1, -11, 11),
            postRow("xs", "2025-01-06", amoxil, 20, 300, 15),
            postRow("cj", "2025-01-07", amoxil, 5, 65, 13),
            postRow("bs", "2025-01-08", amoxil, -1, -13, 13),
            postRow("db", "2025-01-09", amoxil, 8, 100, 12.5),
            postRow("xt", "2025-01-10", amoxil, -2, -30, 15),
            postRow("ct", "2025-01-11", amoxil, -3, -39, 13) };
    }
};

TEST_F(RerunTest, MovingAverageAfterPurchaseSaleAndPurchase)
{
    addReceipt("CJ250301", "2025-03-01", { { amoxil, 10, 10 } });
    addReceipt("CJ250303", "2025-03-03", { { amoxil, 6, 12 } });
    postReceipt("CJ250301");
    postSale("XS250302", "2025-03-02", { amoxil, 4, 15 });
    postReceipt("CJ250303");
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 6 10 60", "cj 6 72 12 11 132" }));
    EXPECT_EQ(
        number("select kc_cbj from jxc_kcsp where g_sn=? and ck_sn=?", { amoxil, "100001" }), 11);
}

TEST_F(RerunTest, BackdatedRowRewritesEveryLaterRowAndNoEarlierOne)
{
    postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    postRow("xs", "2025-01-03", amoxil, 4, 60, 15);
    postRow("cj", "2025-01-05", amoxil, 6, 72, 12);
    postRow("cj", "2025-01-02", amoxil, 1, 1, 1, "100002");
    db().exec("update jxc_goodslist set gl_sqje=999 where gl_kdrq='2025-01-01' or ck_sn='100002'");
    postRow("cj", "2025-01-02", amoxil, 10, 130, 13);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 999 10 10 100", "cj 10 130 20 11.5 230", "xs 0 0 16 11.5 184",
            "cj 6 72 22 11.62 255.64" }));
    EXPECT_EQ(runningColumns(amoxil, "100002"), QStringList { "cj 1 999 1 1 1" });
}

// Seven later rows are written back in statements of four, two and one: each row gets its own
// figures, and a second rerun finds every stored figure equal to its recomputation.
TEST_F(RerunTest, BackdatedReceiptRewritesSevenLaterSalesEachWithItsOwnFigures)
{
    for (int day = 2; day <= 8; ++day)
        postRow("xs", QStringLiteral("2025-01-0%1").arg(day), amoxil, 1, 15, 15);
    const qint64 receipt = postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 9 10 90", "xs 0 0 8 10 80", "xs 0 0 7 10 70",
            "xs 0 0 6 10 60", "xs 0 0 5 10 50", "xs 0 0 4 10 40", "xs 0 0 3 10 30" }));
    const stock::RerunSummary again = stock::rerunLedger(session(), receipt, false);
    EXPECT_EQ(again.rowsRun, 8);
    EXPECT_EQ(again.rowsRewritten, 0);
}

TEST_F(RerunTest, RowsOfOneDateRunInIdOrder)
{
    postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    postRow("xs", "2025-01-02", amoxil, 5, 75, 15);
    postRow("cj", "2025-01-02", amoxil, 10, 160, 16);
    postRow("xs", "2025-01-02", amoxil, 3, 45, 15);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList {
            "cj 10 100 10 10 100", "xs 0 0 5 10 50", "cj 10 160 15 13 195", "xs 0 0 12 13 156" }));
}

TEST_F(RerunTest, FirstRowOfAWarehouseStartsFromTheGoodsAverage)
{
    db().exec("update jxc_goods set g_pjjj=7.5 where g_sn=?", { amoxil });
    postRow("xs", "2025-01-01", amoxil, 3, 30, 10);
    EXPECT_EQ(runningColumns(amoxil), QStringList { "xs 0 0 -3 7.5 -22.5" });
}

// Receipt 10 at 10, sale 5, receipt 10 at 16 on one day: the average is what the receipts of the
// run cost together, 260 / 20 = 13, not the stock left valued at the old average plus the new
// receipt ((50 + 160) / 15 = 14).
TEST_F(RerunTest, OneDayAveragesTheReceiptsOfTheRun)
{
    postRow("cj", "2025-01-02", amoxil, 10, 100, 10);
    postRow("xs", "2025-01-02", amoxil, 5, 75, 15);
    postRow("cj", "2025-01-02", amoxil, 10, 160, 16);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 5 10 50", "cj 10 160 15 13 195" }));
}

// Receipt 10 at 10 (day 1), sale 4 (day 2), receipt 4 at 14 (day 3). Each posting reruns from its
// own day, so day 3 starts from the sale's 6 valued 60: 116 / 10 = 11.60. A rerun from day 1
// carries both receipts: 156 / 14 = 11.14, and 11.14 x 10 = 111.40. A rerun from day 3's row
// alone starts from the sale's row again and gives 11.60 once more.
TEST_F(RerunTest, TheAverageDependsOnWhereTheRerunStarts)
{
    const qint64 first = postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    postRow("xs", "2025-01-02", amoxil, 4, 60, 15);
    const qint64 last = postRow("cj", "2025-01-03", amoxil, 4, 56, 14);
    EXPECT_EQ(runningColumns(amoxil).last(), "cj 4 56 10 11.6 116");
    stock::rerunLedger(session(), first, false);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 6 10 60", "cj 4 56 10 11.14 111.4" }));
    stock::rerunLedger(session(), last, false);
    EXPECT_EQ(runningColumns(amoxil).last(), "cj 4 56 10 11.6 116");
}

// The same rows posted newest first: the backdated receipt of day 1 reruns every later row from
// an empty opening and gives what a rerun from day 1 gives.
TEST_F(RerunTest, BackdatedReceiptRerunsTheLaterRowsFromItsOwnOpening)
{
    postRow("cj", "2025-01-03", amoxil, 4, 56, 14);
    postRow("xs", "2025-01-02", amoxil, 4, 60, 15);
    EXPECT_EQ(runningColumns(amoxil), (QStringList { "xs 0 0 -4 0 0", "cj 4 56 0 14 0" }));
    postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 6 10 60", "cj 4 56 10 11.14 111.4" }));
}

// Receipt 10 at 10, sale 15, receipt 10 at 12 on one day: the stock was negative before the
// second receipt, so the sums are taken absolute and go on (not restarted): 220 / 20 = 11.
TEST_F(RerunTest, StockCrossingZeroKeepsTheSumsOfTheRun)
{
    postRow("cj", "2025-01-02", amoxil, 10, 100, 10);
    postRow("xs", "2025-01-02", amoxil, 15, 225, 15);
    postRow("cj", "2025-01-02", amoxil, 10, 120, 12);
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 10 100 10 10 100", "xs 0 0 -5 10 -50", "cj 10 120 5 11 55" }));
}

// Without the excluded row the rerun writes what a rerun from the same opening writes when the
// row was never there.
TEST_F(RerunTest, ExcludedRowIsLeftOutAndLeftAlone)
{
    const QList<qint64> ids = buildMixedLedger();
    stock::rerunLedger(session(), ids.at(3), false);
    const QStringList before = runningColumns(amoxil);
    const qint64 extra = postRow("cj", "2025-01-04", amoxil, 10, 200, 20);
    db().exec("update jxc_goodslist set gl_kczje=555 where id=?", { extra });
    const stock::RerunSummary summary = stock::rerunLedger(session(), extra, true);
    EXPECT_EQ(summary.rowsRun, 7);
    EXPECT_EQ(number("select gl_kczje from jxc_goodslist where id=?", { extra }), 555);
    db().exec("delete from jxc_goodslist where id=?", { extra });
    EXPECT_EQ(runningColumns(amoxil), before);
}

TEST_F(RerunTest, WarehouseCostFollowsOnlyAverageSettingStartRows)
{
    const auto cost = [&] {
        return number("select kc_cbj from jxc_kcsp where g_sn=? and ck_sn=?", { amoxil, "100001" });
    };
    stock::applyWarehouseStock(session(), { amoxil, "100001", 0, 0, 0, 1 });
    postRow("cj", "2025-01-01", amoxil, 10, 100, 10);
    EXPECT_EQ(cost(), 10);
    db().exec("update jxc_kcsp set kc_cbj=3");
    postRow("xs", "2025-01-02", amoxil, 1, 15, 15);
    EXPECT_EQ(cost(), 3);
    setParameter("cs_cs009", 1);
    postRow("cj", "2025-01-03", amoxil, 10, 200, 20);
    EXPECT_EQ(cost(), 3);
    EXPECT_EQ(runningColumns(amoxil).last(), "cj 10 200 19 15.26 289.94");
}

TEST_F(RerunTest, StockValueTakesTheAmountDecimalsWhenTheyAreSeparate)
{
    setParameter("cs_zjews", 1);
    setParameter("cs_jews", 0);
    postRow("cj", "2025-01-01", amoxil, 3, 100, 33.33);
    EXPECT_EQ(runningColumns(amoxil), QStringList { "cj 3 100 3 33.33 100" });
}
