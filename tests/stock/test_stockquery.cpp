// The stock a clerk looks up: per warehouse, per batch with its expiry, and a goods' movements.
#include "core/rounding.h"
#include "stock/stockquery.h"
#include "stock/texts.h"
#include "tests/stock/stockfixture.h"
#include "tests/support/cli.h"

using namespace medistock;
using medistock::test::StockTest;

namespace {

QStringList warehouseRows(const QList<stock::WarehouseStock> &rows)
{
    QStringList lines;
    for (const stock::WarehouseStock &r : rows)
        lines.append(QStringList { r.goods.code, r.goods.warehouseName,
            core::plainNumber(r.quantity), core::plainNumber(r.cost), core::plainNumber(r.value) }
                         .join(QLatin1Char('|')));
    return lines;
}

QStringList batchRows(const QList<stock::BatchStock> &rows)
{
    QStringList lines;
    for (const stock::BatchStock &r : rows)
        lines.append(QStringList {
            r.goods.code, r.goods.warehouse, r.batch, r.expiry, core::plainNumber(r.quantity) }
                         .join(QLatin1Char('|')));
    return lines;
}

} // namespace

// 200001 阿莫西林胶囊 (class 1000, mnemonic AMXLJN): 10 at 12.345 in B1 expiring 2025-04-13 (30
// days after today) in the main warehouse, 4 at 15 in B2 (2027-12-31) in the branch. 200002
// 板蓝根颗粒 (class 100101, barcode 6902): 5 at 8 in G1 expiring "2025-04", all sold again, and 2
// in G2 without expiry.
class StockQueryTest : public StockTest
{
protected:
    void SetUp() override
    {
        StockTest::SetUp();
        db().exec(QStringLiteral("update jxc_goods set gc_sn=?,g_jm=? where g_sn=?"),
            { QStringLiteral("1000"), QStringLiteral("AMXLJN"), QStringLiteral("200001") });
        db().exec(QStringLiteral("update jxc_goods set gc_sn=?,g_jm=?,g_sptm=? where g_sn=?"),
            { QStringLiteral("100101"), QStringLiteral("BLGKL"), QStringLiteral("6902"),
                QStringLiteral("200002") });
        addReceipt(QStringLiteral("CJ1"), QStringLiteral("2025-03-10"),
            { { QStringLiteral("200001"), 10, 12.345, 1, QStringLiteral("B1"),
                  QStringLiteral("2025-04-13") },
                { QStringLiteral("200002"), 5, 8, 1, QStringLiteral("G1"),
                    QStringLiteral("2025-04") },
                { QStringLiteral("200002"), 2, 8, 1, QStringLiteral("G2"), QString() } });
        postReceipt(QStringLiteral("CJ1"));
        addReceipt(QStringLiteral("CJ2"), QStringLiteral("2025-03-11"),
            { { QStringLiteral("200001"), 4, 15, 1, QStringLiteral("B2") } },
            QStringLiteral("100002"));
        postReceipt(QStringLiteral("CJ2"));
        postSale(QStringLiteral("XS1"), QStringLiteral("2025-03-12"),
            { QStringLiteral("200002"), 5, 10, 1, QStringLiteral("G1"),
                QStringLiteral("2025-04") });
    }

    QList<stock::BatchStock> expiring(int days)
    {
        stock::StockFilter filter;
        filter.expiringWithinDays = days;
        return stock::stockByBatch(session(), filter);
    }
};

TEST_F(StockQueryTest, WarehouseStockIsValuedAtTheWarehouseCostAndNarrowedByEachFilter)
{
    EXPECT_EQ(warehouseRows(stock::stockByWarehouse(session(), {})),
        (QStringList { QStringLiteral("200001|主仓库|10|12.35|123.5"),
            QStringLiteral("200001|分店仓库|4|15|60"), QStringLiteral("200002|主仓库|2|8|16") }));
    stock::StockFilter filter;
    filter.warehouse = QStringLiteral("100002");
    EXPECT_EQ(warehouseRows(stock::stockByWarehouse(session(), filter)),
        QStringList { QStringLiteral("200001|分店仓库|4|15|60") });
    filter = {};
    filter.classCode = QStringLiteral("1001"); // the class and its sub-classes
    EXPECT_EQ(stock::stockByWarehouse(session(), filter).size(), 1);
    filter.classCode = QStringLiteral("1002");
    EXPECT_TRUE(stock::stockByWarehouse(session(), filter).isEmpty());
    filter = {};
    for (const char *text : { "amxl", "阿莫", "200001" }) {
        filter.text = QString::fromUtf8(text);
        EXPECT_EQ(stock::stockByWarehouse(session(), filter).size(), 2) << text;
    }
    filter.text = QStringLiteral("6902");
    EXPECT_EQ(stock::stockByWarehouse(session(), filter).size(), 1);
}

TEST_F(StockQueryTest, BatchStockListsEveryBatchUnlessOnlyThoseInStockAreAsked)
{
    EXPECT_EQ(batchRows(stock::stockByBatch(session(), {})),
        (QStringList { QStringLiteral("200001|100001|B1|2025-04-13|10"),
            QStringLiteral("200001|100002|B2|2027-12-31|4"), QStringLiteral("200002|100001|G2||2"),
            QStringLiteral("200002|100001|G1|2025-04|0") }));
    stock::StockFilter filter;
    filter.inStockOnly = true;
    EXPECT_EQ(stock::stockByBatch(session(), filter).size(), 3);
    EXPECT_EQ(stock::stockByBatch(session(), filter).first().value, 123.5);
}

// An expiry on the last day counted is in; a month counts as its last day; no expiry never is.
TEST_F(StockQueryTest, ExpiringWithinDaysCountsTheLastDay)
{
    EXPECT_EQ(batchRows(expiring(29)), QStringList());
    EXPECT_EQ(
        batchRows(expiring(30)), QStringList { QStringLiteral("200001|100001|B1|2025-04-13|10") });
    EXPECT_EQ(expiring(46).size(), 1);
    EXPECT_EQ(batchRows(expiring(47)),
        (QStringList { QStringLiteral("200001|100001|B1|2025-04-13|10"),
            QStringLiteral("200002|100001|G1|2025-04|0") }));
    EXPECT_EQ(expiring(5000).size(), 3);
}

// What came in and went out follows each kind's direction, whatever the sign of its quantity.
// Minimums: 阿莫西林胶囊 15 (14 in all, 10 in the main warehouse, 4 in the branch), 板蓝根颗粒 2
// (exactly 2), and a disabled goods with 9 below its minimum that is never listed.
TEST_F(StockQueryTest, AlarmsListGoodsBelowTheirMinimumInAllOrOneWarehouse)
{
    db().exec(QStringLiteral("update jxc_goods set g_zdkc=15 where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_goods set g_zdkc=2 where g_sn='200002'"));
    addGoods({ "200009", "停用药品" });
    db().exec(QStringLiteral("update jxc_goods set g_zdkc=9,g_jy=1 where g_sn='200009'"));
    const auto alarms = [&](const QString &warehouse, const QString &classCode) {
        stock::StockFilter filter;
        filter.warehouse = warehouse;
        filter.classCode = classCode;
        QStringList lines;
        for (const stock::StockAlarm &a : stock::stockAlarms(session(), filter))
            lines.append(
                QStringList { a.goods.code, a.goods.warehouseName, core::plainNumber(a.quantity),
                    core::plainNumber(a.minimum), core::plainNumber(a.shortage) }
                    .join(QLatin1Char('|')));
        return lines;
    };
    EXPECT_EQ(alarms(QString(), QString()), QStringList { QStringLiteral("200001||14|15|1") });
    EXPECT_EQ(alarms(QStringLiteral("100002"), QString()),
        (QStringList {
            QStringLiteral("200001|分店仓库|4|15|11"), QStringLiteral("200002|分店仓库|0|2|2") }));
    EXPECT_EQ(alarms(QStringLiteral("100002"), QStringLiteral("1001")),
        QStringList { QStringLiteral("200002|分店仓库|0|2|2") });
}

TEST_F(StockQueryTest, TheLedgerSplitsMovementsIntoInAndOut)
{
    postRow(
        QStringLiteral("xt"), QStringLiteral("2025-03-13"), QStringLiteral("200002"), -1, -10, 10);
    postRow(
        QStringLiteral("ct"), QStringLiteral("2025-03-14"), QStringLiteral("200002"), -2, -16, 8);
    QStringList moves;
    for (const stock::LedgerEntry &e :
        stock::goodsLedger(session(), QStringLiteral("200002"), {}, {}, {}))
        moves.append(QStringList { e.date, e.kind, core::plainNumber(e.in),
            core::plainNumber(e.out), core::plainNumber(e.running.quantity) }
                         .join(QLatin1Char('|')));
    EXPECT_EQ(moves,
        (QStringList { QStringLiteral("2025-03-10|cj|5|0|5"), QStringLiteral("2025-03-10|cj|2|0|7"),
            QStringLiteral("2025-03-12|xs|0|5|2"), QStringLiteral("2025-03-13|xt|1|0|3"),
            QStringLiteral("2025-03-14|ct|0|2|1") }));
    EXPECT_EQ(stock::goodsLedger(session(), QStringLiteral("200002"), {},
                  QStringLiteral("2025-03-12"), QStringLiteral("2025-03-13"))
                  .size(),
        2);
    // One kind keeps the running quantity of the whole ledger.
    const auto receipts
        = stock::goodsLedger(session(), QStringLiteral("200002"), {}, {}, {}, QStringLiteral("xt"));
    ASSERT_EQ(receipts.size(), 1);
    EXPECT_EQ(receipts[0].running.quantity, 3);
    const auto branch
        = stock::goodsLedger(session(), QStringLiteral("200001"), QStringLiteral("100002"), {}, {});
    ASSERT_EQ(branch.size(), 1);
    EXPECT_EQ(branch[0].warehouseName, QStringLiteral("分店仓库"));
}

TEST(LedgerKindText, NamesEachKindAndTheDirectionOfATransfer)
{
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("qc"), 5), QStringLiteral("期初数"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("cj"), 5), QStringLiteral("采购入库单"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("db"), 5), QStringLiteral("库存调拨入库"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("db"), -5), QStringLiteral("库存调拨出库"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("kb"), -1), QStringLiteral("被捆绑出库"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("xt"), -1), QStringLiteral("顾客退货单"));
    EXPECT_EQ(stock::ledgerKindText(QStringLiteral("wp"), 1), QStringLiteral("wp"));
}

TEST_F(StockQueryTest, TheCommandShowsTheSameRows)
{
    const QStringList global { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
        QStringLiteral("2025-03-14") };
    const test::CliRun batches = test::runCli(global
        + QStringList { QStringLiteral("stock-query"), QStringLiteral("--batches"),
            QStringLiteral("--expiring"), QStringLiteral("30") });
    ASSERT_EQ(batches.status, 0) << batches.err.toStdString();
    EXPECT_EQ(batches.out,
        QStringLiteral(
            "商品编号\t商品名称\t规格\t单位\t仓库\t产品批号\t生产日期\t有效期至\t库存数\t"
            "成本价\t库存金额\n"
            "200001\t阿莫西林胶囊\t\t粒\t主仓库\tB1\t2024-12-01\t2025-04-13\t10\t12.35\t123.5\n"));
    const test::CliRun branch = test::runCli(global
        + QStringList { QStringLiteral("stock-query"), QStringLiteral("--warehouse"),
            QStringLiteral("100002"), QStringLiteral("--in-stock") });
    EXPECT_EQ(branch.out.split(QLatin1Char('\n')).value(1),
        QStringLiteral("200001\t阿莫西林胶囊\t\t粒\t分店仓库\t4\t4\t15\t60"));
    EXPECT_EQ(test::runCli(global
                  + QStringList { QStringLiteral("stock-query"), QStringLiteral("--expiring"),
                      QStringLiteral("-1") })
                  .status,
        2);
}
