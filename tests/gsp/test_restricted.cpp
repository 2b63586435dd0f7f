#include "gsp/restricted.h"
#include "tests/gsp/gsptest.h"

namespace medistock::test {

// One ledger row of the restricted goods and where the ledger view puts it.
struct KindCase
{
    const char *kind;
    double quantity;
    const char *text; // nullptr: not listed
    bool in;
};

class RestrictedKinds : public GspTest, public ::testing::WithParamInterface<KindCase>
{
};

TEST_P(RestrictedKinds, ShowTheKindTextOnTheirSide)
{
    const KindCase &c = GetParam();
    ledgerRow(QString::fromLatin1(c.kind), QStringLiteral("200002"), c.quantity, c.quantity * 3);
    const auto rows = gsp::restrictedLedger(session(), filter());
    ASSERT_TRUE(rows.ok());
    if (!c.text) {
        EXPECT_TRUE(rows->isEmpty()) << c.kind << " " << c.quantity;
        return;
    }
    ASSERT_EQ(rows->size(), 1) << c.kind << " " << c.quantity;
    const gsp::RestrictedRow &row = rows->first();
    EXPECT_EQ(row.kindText, QString::fromUtf8(c.text));
    EXPECT_EQ(row.side, c.in ? gsp::Side::In : gsp::Side::Out);
    const double quantity = std::abs(c.quantity);
    EXPECT_DOUBLE_EQ(row.inQuantity, c.in ? quantity : 0);
    EXPECT_DOUBLE_EQ(row.inAmount, c.in ? quantity * 3 : 0);
    EXPECT_DOUBLE_EQ(row.outQuantity, c.in ? 0 : quantity);
    EXPECT_DOUBLE_EQ(row.outAmount, c.in ? 0 : quantity * 3);
    EXPECT_DOUBLE_EQ(c.in ? row.inPrice : row.outPrice, 3);
}

INSTANTIATE_TEST_SUITE_P(Gsp, RestrictedKinds,
    ::testing::Values(KindCase { "qc", 10, "期初数", true },
        KindCase { "cj", 10, "采购入库单", true }, KindCase { "xt", -2, "顾客退货单", true },
        KindCase { "pd", 3, "库存盘点单", true }, KindCase { "pd", -3, "库存盘点单", true },
        KindCase { "db", 4, "库存调拨入库", true }, KindCase { "db", -4, "库存调拨出库", false },
        KindCase { "cf", 5, "拆分入库", true }, KindCase { "cf", -5, "被拆分出库", false },
        KindCase { "kb", 6, "捆绑入库", true }, KindCase { "kb", -6, "被捆绑出库", false },
        KindCase { "xs", -1, "商品销售单", true }, KindCase { "xs", 2, "商品销售单", false },
        KindCase { "hh", 2, "客户还货", true }, KindCase { "ct", -7, "采购退货单", false },
        KindCase { "bs", -1, "商品报损", false }, KindCase { "dh", 1, "积分换赠品", false },
        KindCase { "jh", 3, "客户借货", false },
        // An overflow report has a kind text but no side; a transfer of nothing neither.
        KindCase { "by", 2, nullptr, true }, KindCase { "db", 0, nullptr, true },
        KindCase { "lt", 2, nullptr, true }));

TEST_F(GspTest, TheRestrictedLedgerListsOnlyRestrictedGoodsNewestFirst)
{
    receipt(QStringLiteral("200002"), QStringLiteral("10"), QStringLiteral("4"));
    receipt(QStringLiteral("200001"), QStringLiteral("10"), QStringLiteral("4"));
    const QString sold
        = sale(QStringLiteral("200002"), QStringLiteral("2"), QStringLiteral("2025-03-12"));
    // The ledger row's prescription columns are what the view shows.
    db().exec(QStringLiteral("update jxc_goodslist set t_cfhm=?,gl_xm=? where gl_djh=?"),
        { QStringLiteral("CF0318"), QStringLiteral("王芳"), sold });
    const auto rows = gsp::restrictedLedger(session(), filter());
    ASSERT_EQ(rows->size(), 2);
    EXPECT_EQ(rows->at(0).number, sold);
    EXPECT_EQ(rows->at(0).kindText, QStringLiteral("商品销售单"));
    EXPECT_DOUBLE_EQ(rows->at(0).outQuantity, 2);
    EXPECT_EQ(rows->at(0).prescriptionNumber, QStringLiteral("CF0318"));
    EXPECT_EQ(rows->at(0).patient, QStringLiteral("王芳"));
    EXPECT_EQ(rows->at(1).kindText, QStringLiteral("采购入库单"));
    EXPECT_DOUBLE_EQ(rows->at(1).inQuantity, 10);
    EXPECT_DOUBLE_EQ(rows->at(1).inAmount, 40);
    EXPECT_EQ(gsp::restrictedLedger(session(), filter(sold)).value().size(), 1);
}

TEST_F(GspTest, TheRestrictedSummaryCountsOpeningMovementsAndLedgerStockPerGoods)
{
    ledgerRow(QStringLiteral("qc"), QStringLiteral("200002"), 10, 30, QStringLiteral("2025-01-02"));
    ledgerRow(QStringLiteral("cj"), QStringLiteral("200002"), 5, 15, QStringLiteral("2025-03-02"));
    ledgerRow(QStringLiteral("xs"), QStringLiteral("200002"), 4, 12, QStringLiteral("2025-03-05"));
    ledgerRow(QStringLiteral("xs"), QStringLiteral("200002"), 1, 3, QStringLiteral("2025-04-02"));
    // Another operator's rows of the work table are his own.
    db().exec(
        QStringLiteral("insert into jxc_jxchz (g_sn,hz_kc,a_name) values ('200002',99,'小王')"));
    db().exec(
        QStringLiteral("insert into jxc_jxchz (g_sn,hz_kc,a_name) values ('200002',99,'admin')"));
    const auto summary = gsp::restrictedSummary(
        session(), filter({}, {}, QStringLiteral("2025-03-01"), QStringLiteral("2025-03-31")));
    ASSERT_TRUE(summary.ok());
    ASSERT_EQ(summary->size(), 1);
    const gsp::RestrictedSummaryRow &row = summary->first();
    EXPECT_EQ(row.goodsName, QStringLiteral("复方甘草片"));
    EXPECT_DOUBLE_EQ(row.opening, 10);
    EXPECT_DOUBLE_EQ(row.openingAmount, 30);
    EXPECT_DOUBLE_EQ(row.inQuantity, 5);
    EXPECT_DOUBLE_EQ(row.inAmount, 15);
    EXPECT_DOUBLE_EQ(row.outQuantity, 4);
    EXPECT_DOUBLE_EQ(row.outAmount, 12);
    EXPECT_DOUBLE_EQ(row.ledgerStock, 11);
    EXPECT_DOUBLE_EQ(row.ledgerAmount, 33);
    EXPECT_EQ(rows(QStringLiteral("select a_name,hz_kc from jxc_jxchz where hz_kc=99")),
        QStringList { QStringLiteral("小王|99") });
}

TEST_F(GspTest, TheRestrictedLedgerNarrowsToAWarehouseAndADocumentOpensWithAllItsLines)
{
    ledgerRow(QStringLiteral("cj"), QStringLiteral("200002"), 10, 30);
    receipt(QStringLiteral("200002"), QStringLiteral("6"), QStringLiteral("3"),
        QStringLiteral("2025-03-11"), true, QStringLiteral("100002"));
    const auto branch = gsp::restrictedLedger(session(), filter({}, QStringLiteral("100002")));
    ASSERT_EQ(branch->size(), 1);
    EXPECT_EQ(branch->first().warehouseName, QStringLiteral("分店仓库"));
    EXPECT_DOUBLE_EQ(branch->first().inQuantity, 6);
    const auto summary = gsp::restrictedSummary(session(), filter({}, QStringLiteral("100002")));
    ASSERT_EQ(summary->size(), 1);
    EXPECT_DOUBLE_EQ(summary->first().inQuantity, 6);
    EXPECT_DOUBLE_EQ(summary->first().ledgerStock, 6);
    // The source document: every line it posted, whatever the goods.
    const QString number
        = sale(QStringLiteral("200002"), QStringLiteral("2"), QStringLiteral("2025-03-12"));
    const QList<gsp::PostedLine> lines = gsp::postedLines(session(), number);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines.first().kindText, QStringLiteral("商品销售单"));
    EXPECT_EQ(lines.first().goodsName, QStringLiteral("复方甘草片"));
    EXPECT_DOUBLE_EQ(lines.first().quantity, 2);
    EXPECT_DOUBLE_EQ(lines.first().amount, 24);
    EXPECT_TRUE(gsp::postedLines(session(), QStringLiteral("XS99999999999")).isEmpty());
}

} // namespace medistock::test
