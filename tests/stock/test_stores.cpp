#include "stock/stores.h"
#include "tests/stock/stockfixture.h"

using namespace medistock;
using namespace medistock::test;

namespace {

const QString amoxil = QStringLiteral("200001");
const QString mainStore = QStringLiteral("100001");
const QString branchStore = QStringLiteral("100002");

stock::BatchKey batch(const QString &number, const QString &expiry = "2027-12-31",
    const QString &produced = "2024-12-01")
{
    return { amoxil, mainStore, number, expiry, produced };
}

} // namespace

using StoresTest = StockTest;

TEST_F(StoresTest, BatchIdentityIsTheExactTextOfItsThreeFields)
{
    stock::addBatchStock(session(), batch("B1"), 10);
    stock::addBatchStock(session(), batch("B1"), 5);
    stock::addBatchStock(session(), batch(""), 2);
    stock::addBatchStock(session(), batch("B1", "2027-12-30"), 3);
    stock::addBatchStock(session(), batch("B1", "2027-12-31", ""), 4);
    EXPECT_EQ(dumpTable(db(), "jxc_tkc"),
        (QStringList { "1|200001||B1|2024-12-01|2027-12-31|15|<null>|100001",
            "2|200001|||2024-12-01|2027-12-31|2|<null>|100001",
            "3|200001||B1|2024-12-01|2027-12-30|3|<null>|100001",
            "4|200001||B1||2027-12-31|4|<null>|100001" }));
    EXPECT_EQ(stock::batchQuantity(session(), batch("B1")), 15);
    EXPECT_EQ(stock::batchQuantity(session(), batch("b1")), std::nullopt);
}

TEST_F(StoresTest, SubtractingFromAMissingBatchCreatesItNegative)
{
    stock::subtractBatchStock(session(), batch("B9"), 3);
    stock::subtractBatchStock(session(), batch("B9"), 2);
    EXPECT_EQ(stock::batchQuantity(session(), batch("B9")), -5);
    stock::addBatchStock(session(), batch("B9"), 5);
    EXPECT_EQ(stock::batchQuantity(session(), batch("B9")), 0);
    EXPECT_EQ(rowCount(db(), "jxc_tkc"), 1);
}

TEST_F(StoresTest, QuantityZeroTouchesNoBatch)
{
    stock::addBatchStock(session(), batch("B1"), 0);
    stock::subtractBatchStock(session(), batch("B1"), 0);
    EXPECT_EQ(rowCount(db(), "jxc_tkc"), 0);
}

TEST_F(StoresTest, WarehouseRowIsCreatedOnceThenChanged)
{
    EXPECT_EQ(stock::warehouseQuantity(session(), amoxil, mainStore), 0);
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 0, 10, 0, 12.5 });
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 10, 0, 0, 99 });
    stock::applyWarehouseStock(session(), { amoxil, mainStore, -3, -3, 3, 99 });
    EXPECT_EQ(dumpTable(db(), "jxc_kcsp"), QStringList { "1|7|12.5|7|3|200001|100001" });
    EXPECT_EQ(stock::warehouseQuantity(session(), amoxil, mainStore), 7);
}

TEST_F(StoresTest, GoodsAverageWeighsWarehouseCostsByBookQuantity)
{
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 0, 10, 0, 10 });
    stock::applyWarehouseStock(session(), { amoxil, branchStore, 0, 20, 0, 11.5 });
    EXPECT_EQ(stock::goodsAverage(session(), amoxil), 11);
    EXPECT_EQ(stock::refreshGoodsAverage(session(), amoxil, 30), 11);
    stock::applyWarehouseStock(session(), { amoxil, branchStore, 0, -30, 0, 0 });
    EXPECT_EQ(stock::goodsAverage(session(), amoxil), -1);
    EXPECT_EQ(stock::refreshGoodsAverage(session(), amoxil, 30), 30);
    EXPECT_EQ(number("select g_pjjj from jxc_goods where g_sn=?", { amoxil }), 30);
    EXPECT_EQ(stock::refreshGoodsAverage(session(), amoxil, -4), -4);
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 0, -20, 0, 0 });
    db().exec("update jxc_kcsp set kc_cbj=10.555");
    EXPECT_EQ(stock::goodsAverage(session(), amoxil), 10.56);
}

class SettlementTest : public StockTest
{
protected:
    QStringList settlement(const QString &date)
    {
        QStringList rows;
        for (const QString &row : dumpTable(db(), "jxc_kcjs"))
            if (row.section('|', 1, 1) == date)
                rows.append(row.section('|', 1));
        return rows;
    }
};

TEST_F(SettlementTest, NewDateStartsFromEveryWarehousesPhysicalStockAtCost)
{
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 10, 15, 0, 2.5 });
    stock::applyWarehouseStock(session(), { "200002", mainStore, 4, 4, 0, 10 });
    stock::applyWarehouseStock(session(), { amoxil, branchStore, 3, 3, 0, 2 });
    stock::ensureSettlementRows(session(), "2025-03-14");
    EXPECT_EQ(settlement("2025-03-14"),
        (QStringList {
            "2025-03-14|14|65|0|0|0|0|0|0|100001", "2025-03-14|3|6|0|0|0|0|0|0|100002" }));
    EXPECT_EQ(rowCount(db(), "jxc_kcsp"), 5);
    EXPECT_EQ(number("select count(*) from jxc_kcsp where g_sn='00000000' and kc_sl=0"), 2);
}

TEST_F(SettlementTest, SameDateIsRefreshedOnlyWarehouseByWarehouse)
{
    stock::ensureSettlementRows(session(), "2025-03-14");
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 10, 10, 0, 3 });
    stock::applyWarehouseStock(session(), { amoxil, branchStore, 5, 5, 0, 3 });
    stock::ensureSettlementRows(session(), "2025-03-14");
    EXPECT_EQ(settlement("2025-03-14"),
        (QStringList { "2025-03-14|0|0|0|0|0|0|0|0|100001", "2025-03-14|0|0|0|0|0|0|0|0|100002" }));
    stock::settleWarehouse(session(), branchStore, "2025-03-14");
    stock::adjustSettlement(session(), mainStore, "2025-03-14", 2, 7);
    EXPECT_EQ(settlement("2025-03-14"),
        (QStringList {
            "2025-03-14|2|7|0|0|0|0|0|0|100001", "2025-03-14|5|15|0|0|0|0|0|0|100002" }));
}

TEST_F(SettlementTest, AWarehouseWithoutItsRowMakesTheDateStartAgain)
{
    stock::ensureSettlementRows(session(), "2025-03-14");
    stock::applyWarehouseStock(session(), { amoxil, mainStore, 10, 10, 0, 3 });
    db().exec("insert into jxc_ckxx (ck_sn,ck_name) values ('100003','新仓库')");
    stock::ensureSettlementRows(session(), "2025-03-14");
    EXPECT_EQ(settlement("2025-03-14"),
        (QStringList { "2025-03-14|10|30|0|0|0|0|0|0|100001", "2025-03-14|0|0|0|0|0|0|0|0|100002",
            "2025-03-14|0|0|0|0|0|0|0|0|100003" }));
}
