#include "stock/costs.h"
#include "tests/stock/stockfixture.h"

using namespace medistock;
using namespace medistock::test;

namespace {

const QString amoxil = QStringLiteral("200001");
const QString mainStore = QStringLiteral("100001");
const QString branchStore = QStringLiteral("100002");

} // namespace

class CostTest : public StockTest
{
protected:
    // 10 at 10 on March 1st, 10 at 12 on March 10th: averages 10, then 11.
    void twoReceipts()
    {
        addReceipt("CJ1", "2025-03-01", { { amoxil, 10, 10 } });
        addReceipt("CJ2", "2025-03-10", { { amoxil, 10, 12 } });
        postReceipt("CJ1");
        postReceipt("CJ2");
    }
    double asOf(const QString &date, const QString &warehouse = mainStore)
    {
        return stock::costAsOf(session(), amoxil, warehouse, date);
    }
};

TEST_F(CostTest, AsOfADateTakesTheLastAverageOnOrBeforeIt)
{
    twoReceipts();
    EXPECT_EQ(asOf("2025-03-09"), 10);
    EXPECT_EQ(asOf("2025-03-10"), 11);
    EXPECT_EQ(asOf("2025-12-31"), 11);
}

TEST_F(CostTest, SaleBeforeTheFirstReceiptTakesTheFirstLaterAverage)
{
    twoReceipts();
    EXPECT_EQ(asOf("2025-02-28"), 10);
}

TEST_F(CostTest, WithoutLedgerTheWarehouseCostThenTheGoodsAverage)
{
    twoReceipts();
    stock::applyWarehouseStock(session(), { amoxil, branchStore, 0, 0, 0, 9.876 });
    EXPECT_EQ(asOf("2025-03-05", branchStore), 9.88);
    EXPECT_EQ(asOf("2025-03-05", "100009"), 11);
    EXPECT_EQ(stock::currentCost(session(), amoxil, branchStore), 9.88);
    EXPECT_EQ(stock::currentCost(session(), amoxil, "100009"), 11);
    EXPECT_EQ(stock::currentCost(session(), "999999", mainStore), 0);
}

TEST_F(CostTest, ZeroAverageFallsThroughOnlyForTheCostOfADate)
{
    const qint64 free = postRow("cj", "2025-03-01", amoxil, 10, 0, 0);
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 10, 10, 0, 0 });
    db().exec("update jxc_kcsp set kc_cbj=7");
    EXPECT_EQ(asOf("2025-03-01"), 7);
    EXPECT_EQ(stock::costAtLedgerPosition(session(), amoxil, mainStore, "2025-03-01", free + 1), 0);
}

TEST_F(CostTest, KeptWarehouseCostIsTheCostOfEveryDate)
{
    twoReceipts();
    db().exec("update jxc_kcsp set kc_cbj=8.5 where g_sn=?", { amoxil });
    setParameter("cs_cs009", 1);
    EXPECT_EQ(asOf("2025-03-05"), 8.5);
    EXPECT_EQ(stock::costAtLedgerPosition(session(), amoxil, mainStore, "2025-03-05", 100), 10);
}

TEST_F(CostTest, PositionSkipsOpeningStockUntilItsFourthStep)
{
    const qint64 opening = postRow("qc", "2025-03-01", amoxil, 10, 50, 5);
    const qint64 receipt = postRow("cj", "2025-03-02", amoxil, 10, 70, 7);
    const qint64 sale = postRow("xs", "2025-03-02", amoxil, 2, 30, 15);
    const qint64 recount = postRow("qc", "2025-03-05", amoxil, 4, 40, 10);
    const auto at = [&](const QString &date, qint64 id) {
        return stock::costAtLedgerPosition(session(), amoxil, mainStore, date, id);
    };
    EXPECT_EQ(at("2025-03-02", receipt), 5);
    EXPECT_EQ(at("2025-03-02", sale), 6);
    EXPECT_EQ(at("2025-03-05", recount + 1), 6);
    EXPECT_EQ(at("2025-02-01", opening), 5);
}

class FixedCostFlag : public StockTest,
                      public ::testing::WithParamInterface<std::pair<const char *, bool>>
{
};

TEST_P(FixedCostFlag, IsReadAsABoolean)
{
    addGoods({ "200009", "维生素C片", 3, 8.456, GetParam().first });
    postRow("cj", "2025-03-01", "200009", 10, 20, 2);
    const double expected = GetParam().second ? 8.46 : 2;
    EXPECT_EQ(stock::costAsOf(session(), "200009", mainStore, "2025-03-01"), expected);
    EXPECT_EQ(
        stock::costAtLedgerPosition(session(), "200009", mainStore, "2025-03-09", 99), expected);
    EXPECT_EQ(stock::currentCost(session(), "200009", mainStore), GetParam().second ? 8.46 : 3);
}

INSTANTIATE_TEST_SUITE_P(Texts, FixedCostFlag,
    ::testing::Values(std::pair { "True", true }, std::pair { "1", true },
        std::pair { "true", true }, std::pair { "False", false }, std::pair { "0", false },
        std::pair { "", false }));
