#include "purchasing/entry.h"
#include "shell/settings.h"
#include "statistics/reports.h"
#include "statistics/texts.h"
#include "tests/statistics/statisticstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::statistics;
using medistock::test::StatisticsTest;

namespace {

// January: 100 boxes at 10 and 50 bags at 4 bought; 30 boxes at 15 and 10 bags at 6 sold to
// 华康药店 by 小周. February: 30 boxes at 12 bought, 5 sent back at 12 (average 10.53), 10 boxes
// at 16 sold to 仁和诊所 by 小李 (cost 10.53), 2 boxes at 15 back from 华康药店 (小周).
class Reports : public StatisticsTest
{
protected:
    void SetUp() override
    {
        StatisticsTest::SetUp();
        januaryBooks();
        receipt("2025-02-03", { { "200001", "30", "12" } });
        purchaseReturn("2025-02-15", { { "200001", "5", "12" } });
        sale("2025-02-20", { { "200001", "10", "16" } }, QStringLiteral("100003"),
            QStringLiteral("100003"));
        salesReturn("2025-02-25", { { "200001", "2", "15" } });
    }

    ReportFilter quarter() const
    {
        ReportFilter filter;
        filter.range = { "2025-01-01", "2025-03-31" };
        return filter;
    }
};

QStringList shown(const Result<QList<SalesRow>> &rows)
{
    EXPECT_TRUE(rows.ok()) << rows.message().toStdString();
    QStringList lines;
    for (const SalesRow &r : rows.value())
        lines.append(QStringLiteral("%1 %2 %3: %4 docs, %5 for %6, cost %7, profit %8 (%9%)")
                         .arg(r.key, r.name, r.unit)
                         .arg(r.documents)
                         .arg(r.quantity)
                         .arg(r.amount)
                         .arg(r.cost)
                         .arg(r.profit)
                         .arg(r.rate));
    return lines;
}

QStringList shown(const Result<QList<PurchaseRow>> &rows)
{
    EXPECT_TRUE(rows.ok()) << rows.message().toStdString();
    QStringList lines;
    for (const PurchaseRow &r : rows.value())
        lines.append(QStringLiteral("%1 %2: %3 docs, in %4/%5, back %6/%7, net %8/%9")
                         .arg(r.key, r.name)
                         .arg(r.documents)
                         .arg(r.quantity)
                         .arg(r.amount)
                         .arg(r.returnQuantity)
                         .arg(r.returnAmount)
                         .arg(r.netQuantity)
                         .arg(r.netAmount));
    return lines;
}

QStringList shown(const Result<QList<PeriodMovementRow>> &rows)
{
    EXPECT_TRUE(rows.ok()) << rows.message().toStdString();
    QStringList lines;
    for (const PeriodMovementRow &r : rows.value()) {
        QStringList fields { r.period };
        for (int g = 0; g < 3; ++g)
            fields.append(QStringLiteral("%1/%2").arg(r.quantity[g]).arg(r.amount[g]));
        fields.append(QStringLiteral("= %1/%2").arg(r.totalQuantity).arg(r.totalAmount));
        lines.append(fields.join(' '));
    }
    return lines;
}

} // namespace

TEST_F(Reports, SalesAreGroupedByGoodsClassCustomerAndSupplierNetOfReturns)
{
    EXPECT_EQ(shown(salesBy(session(), quarter(), SalesGrouping::Goods)),
        (QStringList {
            "200001 阿莫西林胶囊 盒: 3 docs, 38 for 580, cost 384.24, profit 195.76 (33.75%)",
            "200002 板蓝根颗粒 袋: 1 docs, 10 for 60, cost 40, profit 20 (33.33%)" }));
    EXPECT_EQ(shown(salesBy(session(), quarter(), SalesGrouping::Customer)),
        (QStringList { "100002 华康药店 : 2 docs, 38 for 480, cost 318.94, profit 161.06 (33.55%)",
            "100003 仁和诊所 : 1 docs, 10 for 160, cost 105.3, profit 54.7 (34.19%)" }));
    EXPECT_EQ(shown(salesBy(session(), quarter(), SalesGrouping::Class)),
        (QStringList { "1001 西药 : 3 docs, 38 for 580, cost 384.24, profit 195.76 (33.75%)",
            "100101 中成药 : 1 docs, 10 for 60, cost 40, profit 20 (33.33%)" }));
    EXPECT_EQ(shown(salesBy(session(), quarter(), SalesGrouping::Supplier)),
        QStringList {
            "100002 华东医药 : 3 docs, 48 for 640, cost 424.24, profit 215.76 (33.71%)" });

    ReportFilter february = quarter();
    february.range = { "2025-02-01", "2025-02-28" };
    february.party = QStringLiteral("100002");
    EXPECT_EQ(shown(salesBy(session(), february, SalesGrouping::Goods)),
        QStringList {
            "200001 阿莫西林胶囊 盒: 1 docs, -2 for -30, cost -21.06, profit -8.94 (29.8%)" });
}

TEST_F(Reports, OneGoodsAndTheBusinessArePerMonthOrDay)
{
    ReportFilter amoxil = quarter();
    amoxil.goods = QStringLiteral("200001");
    EXPECT_EQ(shown(goodsSalesByPeriod(session(), amoxil, PeriodUnit::Month)),
        (QStringList { "2025-01 2025-01 : 1 docs, 30 for 450, cost 300, profit 150 (33.33%)",
            "2025-02 2025-02 : 2 docs, 8 for 130, cost 84.24, profit 45.76 (35.2%)" }));
    EXPECT_EQ(shown(businessByPeriod(session(), quarter(), PeriodUnit::Month)),
        (QStringList { "2025-01 2025-01 : 1 docs, 40 for 510, cost 340, profit 170 (33.33%)",
            "2025-02 2025-02 : 2 docs, 8 for 130, cost 84.24, profit 45.76 (35.2%)" }));
    EXPECT_EQ(shown(businessByPeriod(session(), quarter(), PeriodUnit::Day)).size(), 3);

    ui.clear();
    EXPECT_EQ(goodsSalesByPeriod(session(), quarter(), PeriodUnit::Month).message(),
        texts::goodsRequired());
}

TEST_F(Reports, TheRankingOrdersGoodsByTheMeasureChosen)
{
    const auto order = [&](RankMeasure measure, int top) {
        QStringList goods;
        const Result<QList<SalesRow>> ranked = salesRanking(session(), quarter(), measure, top);
        for (const SalesRow &r : ranked.value())
            goods.append(r.key);
        return goods;
    };
    EXPECT_EQ(order(RankMeasure::Amount, 0), (QStringList { "200001", "200002" }));
    EXPECT_EQ(order(RankMeasure::Rate, 0), (QStringList { "200001", "200002" }));
    db().exec(QStringLiteral("update jxc_goodslist set gl_lr=gl_lr+100 where g_sn='200002'"));
    EXPECT_EQ(order(RankMeasure::Rate, 0), (QStringList { "200002", "200001" }));
    EXPECT_EQ(order(RankMeasure::Quantity, 1), QStringList { "200001" });
}

TEST_F(Reports, SalesmenEarnTheirCommissionByAmountOrByProfitAboveTheirMinimum)
{
    const Result<QList<SalesmanRow>> rows = salesBySalesman(session(), quarter());
    ASSERT_TRUE(rows.ok());
    QStringList lines;
    for (const SalesmanRow &r : rows.value())
        lines.append(QStringLiteral("%1 %2: %3 docs, %4, profit %5, %6 %7%: base %8, %9 + %10")
                         .arg(r.employee, r.name)
                         .arg(r.documents)
                         .arg(r.amount)
                         .arg(r.profit)
                         .arg(r.method)
                         .arg(r.commissionRate)
                         .arg(r.commissionProfit)
                         .arg(r.commission)
                         .arg(r.profitCommission));
    // 小李: (16 - 10.53 - 1) x 10 boxes = 44.7 above his minimum, 10% of it.
    EXPECT_EQ(lines,
        (QStringList {
            "100002 小周: 2 docs, 480, profit 161.06, 按销售额提成 5%: base 161.06, 24 + 0",
            "100003 小李: 1 docs, 160, profit 54.7, 按利润提成 10%: base 44.7, 0 + 4.47" }));
}

TEST_F(Reports, PurchasesAreReceiptsLessReturnsByGoodsSupplierAndEmployee)
{
    EXPECT_EQ(shown(purchasesBy(session(), quarter(), PurchaseGrouping::Goods)),
        (QStringList { "200001 阿莫西林胶囊: 3 docs, in 130/1360, back 5/60, net 125/1300",
            "200002 板蓝根颗粒: 1 docs, in 50/200, back 0/0, net 50/200" }));
    EXPECT_EQ(shown(purchasesBy(session(), quarter(), PurchaseGrouping::Supplier)),
        QStringList { "100002 华东医药: 3 docs, in 180/1560, back 5/60, net 175/1500" });
    EXPECT_EQ(shown(purchasesBy(session(), quarter(), PurchaseGrouping::Employee)),
        QStringList { "小周 小周: 3 docs, in 180/1560, back 5/60, net 175/1500" });
}

TEST_F(Reports, InwardAndOutwardArePerMonthInTheirThreeGroups)
{
    EXPECT_EQ(shown(inwardByPeriod(session(), quarter(), PeriodUnit::Month)),
        (QStringList {
            "2025-01 150/1200 0/0 0/0 = 150/1200", "2025-02 30/360 2/21.06 0/0 = 32/381.06" }));
    EXPECT_EQ(shown(outwardByPeriod(session(), quarter(), PeriodUnit::Month)),
        (QStringList {
            "2025-01 40/340 0/0 0/0 = 40/340", "2025-02 10/105.3 5/60 0/0 = 15/165.3" }));
    ReportFilter branch = quarter();
    branch.warehouse = QStringLiteral("100002");
    EXPECT_TRUE(shown(inwardByPeriod(session(), branch, PeriodUnit::Day)).isEmpty());
}

TEST_F(Reports, StockIsValuedAsTheLedgerHeldItAndAtTodaysPrices)
{
    const auto costs = [&](const QString &date, StockGrouping grouping) {
        QStringList lines;
        const Result<QList<StockCostRow>> rows
            = stockCostAsOf(session(), date, quarter(), grouping);
        for (const StockCostRow &r : rows.value())
            lines.append(QStringLiteral("%1 %2: %3 %4 at %5")
                             .arg(r.key, r.name)
                             .arg(r.quantity)
                             .arg(r.amount)
                             .arg(r.averageCost));
        return lines;
    };
    EXPECT_EQ(costs("2025-02-28", StockGrouping::Goods),
        (QStringList {
            "200001 阿莫西林胶囊: 87 916.11 at 10.53", "200002 板蓝根颗粒: 40 160 at 4" }));
    EXPECT_EQ(costs("2025-01-31", StockGrouping::Class),
        (QStringList { "1001 西药: 70 700 at 10", "100101 中成药: 40 160 at 4" }));
    EXPECT_EQ(costs("2025-02-28", StockGrouping::Warehouse),
        QStringList { "100001 主仓库: 127 1076.11 at 8.47" });
    EXPECT_TRUE(costs("2024-12-31", StockGrouping::Goods).isEmpty());

    const Result<QList<StockValueRow>> values = stockValues(session(), quarter());
    ASSERT_TRUE(values.ok());
    QStringList lines;
    for (const StockValueRow &r : values.value())
        lines.append(QStringLiteral("%1 %2 %3: %4, cost %5, bought %6, sold %7, retail %8")
                         .arg(r.goods, r.name, r.className)
                         .arg(r.quantity)
                         .arg(r.costAmount)
                         .arg(r.purchaseAmount)
                         .arg(r.saleAmount)
                         .arg(r.retailAmount));
    EXPECT_EQ(lines,
        (QStringList {
            "200001 阿莫西林胶囊 西药: 87, cost 916.11, bought 783, sold 1392, retail 1566",
            "200002 板蓝根颗粒 中成药: 40, cost 160, bought 0, sold 0, retail 0" }));
}

TEST_F(Reports, DocumentsAreFoundByKindNumberPartyAndStatusAndOpenReadOnly)
{
    const auto found = [&](const DocumentSearch &search) {
        QStringList lines;
        const Result<QList<DocumentRow>> rows = searchDocuments(session(), search);
        for (const DocumentRow &r : rows.value())
            lines.append(QStringLiteral("%1 %2 %3 %4 %5")
                             .arg(r.number, r.date, r.partyName)
                             .arg(r.amount)
                             .arg(r.status));
        return lines;
    };
    DocumentSearch all;
    all.range = { "2025-01-01", "2025-03-31" };
    const QStringList everything = found(all);
    ASSERT_EQ(everything.size(), 6);
    EXPECT_EQ(everything.first(), "XT25022510001 2025-02-25 华康药店 30 1");
    EXPECT_EQ(everything.last(), "CJ25010510001 2025-01-05 华东医药 1200 1");

    DocumentSearch customer = all;
    customer.party = QStringLiteral("华康");
    EXPECT_EQ(found(customer).size(), 2);
    DocumentSearch receipts = all;
    receipts.prefix = QStringLiteral("CJ");
    receipts.status = 0;
    EXPECT_TRUE(found(receipts).isEmpty());

    const QString saleNumber = everything.at(4).section(' ', 0, 0);
    const Result<DocumentView> view = documentView(session(), saleNumber);
    ASSERT_TRUE(view.ok());
    EXPECT_EQ(view->header.kindTitle, QStringLiteral("销售单"));
    EXPECT_EQ(view->header.partyName, QStringLiteral("华康药店"));
    ASSERT_EQ(view->lines.size(), 2);
    EXPECT_EQ(QStringLiteral("%1 %2 %3 %4 %5")
                  .arg(view->lines[0].goods, view->lines[0].name, view->lines[0].unit)
                  .arg(view->lines[0].quantity)
                  .arg(view->lines[0].total),
        "200001 阿莫西林胶囊 盒 30 450");
    ui.clear();
    EXPECT_FALSE(documentView(session(), "ZZ25010110001").ok());
    EXPECT_EQ(ui.informed, QStringList { texts::unknownDocumentKind("ZZ25010110001") });
}

TEST_F(StatisticsTest, ABatchShowsItsWholeHistoryWithItsRunningQuantity)
{
    receipt("2025-01-05", { { "200001", "100", "10", "B1" }, { "200001", "20", "10", "B2" } });
    sale("2025-01-20", { { "200001", "30", "15", "B1" } });
    loss("2025-02-01", { { "200001", "5", "10", "B1" } });
    const Result<BatchHistory> history = batchHistory(session(), QStringLiteral("B1"));
    ASSERT_TRUE(history.ok()) << history.message().toStdString();
    QStringList lines;
    for (int i = 0; i < history->rows.size(); ++i)
        lines.append(QStringLiteral("%1 %2 %3")
                         .arg(history->rows[i].date, kindName(history->rows[i].kind),
                             QString::number(history->balances[i])));
    EXPECT_EQ(lines,
        (QStringList {
            "2025-01-05 采购进货 100", "2025-01-20 商品销售 70", "2025-02-01 商品报损 65" }));
    ASSERT_EQ(history->stock.size(), 1);
    EXPECT_EQ(history->stock[0].quantity, 65);
    EXPECT_EQ(history->stock[0].expiry, QStringLiteral("2027-11-30"));

    ui.clear();
    EXPECT_EQ(batchHistory(session(), QStringLiteral(" ")).message(), texts::batchRequired());
}

TEST_F(StatisticsTest, EachReportNeedsItsOwnRight)
{
    // 商品销售统计 (5) and 进销存统计 (13) only.
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "tjgl", "0000100000001" } });
    loginAs(QStringLiteral("小王"));
    ReportFilter filter;
    filter.range = { "2025-01-01", "2025-01-31" };
    EXPECT_TRUE(salesBy(session(), filter, SalesGrouping::Goods).ok());
    ui.clear();
    EXPECT_FALSE(salesBySalesman(session(), filter).ok());
    EXPECT_FALSE(purchasesBy(session(), filter, PurchaseGrouping::Goods).ok());
    EXPECT_EQ(ui.informed,
        (QStringList { shell::noRightText("业务员销售统计"), shell::noRightText("商品采购统计") }));
    MovementQuery query;
    EXPECT_TRUE(movementRows(session(), query, 13).ok());
    EXPECT_FALSE(movementRows(session(), query).ok());
}

TEST_F(Reports, UncheckedDocumentsCountNowhereButAreFoundByTheirStatus)
{
    purchasing::PurchaseDraft d;
    d.entry.date = QStringLiteral("2025-03-01");
    d.entry.party = QStringLiteral("100002");
    d.entry.warehouse = QStringLiteral("100001");
    documents::LineDraft line;
    line.goods = QStringLiteral("200001");
    line.quantity = QStringLiteral("7");
    line.price = QStringLiteral("11");
    d.entry.lines = { line };
    const Result<QString> saved = purchasing::savePurchaseReceipt(session(), d);
    ASSERT_TRUE(saved.ok());

    EXPECT_EQ(shown(purchasesBy(session(), quarter(), PurchaseGrouping::Goods)).value(0),
        "200001 阿莫西林胶囊: 3 docs, in 130/1360, back 5/60, net 125/1300");
    DocumentSearch unchecked;
    unchecked.status = 0;
    const Result<QList<DocumentRow>> found = searchDocuments(session(), unchecked);
    ASSERT_TRUE(found.ok());
    ASSERT_EQ(found->size(), 1);
    EXPECT_EQ(found->first().number, saved.value());
    EXPECT_EQ(found->first().amount, 77);
    DocumentSearch january;
    january.range = { "2025-01-01", "2025-01-31" };
    january.number = QStringLiteral("XS");
    const Result<QList<DocumentRow>> sales = searchDocuments(session(), january);
    ASSERT_TRUE(sales.ok());
    EXPECT_EQ(sales->size(), 1);
}

TEST_F(Reports, StockCostOfOneWarehouseFollowsATransfer)
{
    transfer("2025-03-10", { { "200001", "7", "10.53" } }, QStringLiteral("100002"));
    ReportFilter branch = quarter();
    branch.warehouse = QStringLiteral("100002");
    const Result<QList<StockCostRow>> rows
        = stockCostAsOf(session(), "2025-03-14", branch, StockGrouping::Goods);
    ASSERT_TRUE(rows.ok());
    ASSERT_EQ(rows->size(), 1);
    EXPECT_EQ(QStringLiteral("%1 %2 %3 %4")
                  .arg(rows->first().key)
                  .arg(rows->first().quantity)
                  .arg(rows->first().amount)
                  .arg(rows->first().averageCost),
        "200001 7 73.71 10.53");
    EXPECT_TRUE(stockCostAsOf(session(), "2025-03-09", branch, StockGrouping::Goods)->isEmpty());
}
