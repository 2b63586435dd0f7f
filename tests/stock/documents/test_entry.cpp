#include "stock/documents/entry.h"
#include "stock/documents/kinds.h"
#include "stock/documents/transfer.h"
#include "tests/stock/documents/stockdocstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::test;

class StockEntryTest : public StockDocsTest
{
};

TEST(StockDescriptors, NameOnlyColumnsOfTheirTables)
{
    for (const documents::DocumentKind *kind : { &stock::transferEntry(),
             &stock::stockTakingEntry(), &stock::lossEntry(), &stock::overflowEntry() })
        EXPECT_EQ(documents::descriptorProblems(*kind), QStringList {}) << kind->prefix;
}

struct ProposedPrice
{
    const char *date;
    double price;
};

class TransferPriceTest : public StockEntryTest, public ::testing::WithParamInterface<ProposedPrice>
{
};

// A second receipt on the 12th moves the main warehouse's average from 12 to 14.
TEST_P(TransferPriceTest, AnEmptyPriceIsTheIssuingWarehousesCostOfTheDocumentDate)
{
    addReceipt("CJ3", "2025-03-12", { { amoxil, 10, 18 } });
    postReceipt("CJ3");
    const ProposedPrice p = GetParam();
    const auto saved
        = stock::saveTransfer(session(), draft(p.date, mainStore, { line(amoxil, "2") }, branch));
    ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
    EXPECT_EQ(rows("select db_dj,db_zje from jxc_dbsp"),
        QStringList { QString("%1|%2").arg(p.price).arg(p.price * 2) });
    QStringList picked;
    for (const stock::BatchLine &b : stock::transferBatches(session(), mainStore, amoxil, p.date))
        picked.append(QString("%1|%2|%3").arg(b.batch).arg(b.quantity).arg(b.price));
    EXPECT_EQ(picked, QStringList { QString("B1|30|%1").arg(p.price) });
}

INSTANTIATE_TEST_SUITE_P(Dates, TransferPriceTest,
    ::testing::Values(ProposedPrice { "2025-03-09", 12 }, ProposedPrice { "2025-03-11", 12 },
        ProposedPrice { "2025-03-12", 14 }, ProposedPrice { "2025-03-14", 14 }));

TEST_F(StockEntryTest, ALineInALargerUnitIsPricedAndPostedPerBaseUnit)
{
    addGoodsUnit(db(), amoxil, "盒", 10);
    documents::LineDraft typed = line(amoxil, "1", "130");
    const auto saved = stock::saveTransfer(session(),
        draft("2025-03-14", mainStore, { line(amoxil, "1", {}, "B1", "盒"), typed }, branch));
    ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
    EXPECT_EQ(rows("select dw_name,db_sl,db_zsl,db_dj,db_zje from jxc_dbsp order by id"),
        (QStringList { "盒|1|10|120|120", "粒|1|1|130|130" }));
    ASSERT_TRUE(stock::checkTransfer(session(), saved.value()).ok());
    EXPECT_EQ(rows("select ck_sn,gl_dj,gl_sl,gl_zje,gl_sysl from jxc_goodslist where gl_djh=? "
                   "order by id",
                  { saved.value() }),
        (QStringList { "100002|12|10|120|1", "100002|130|1|130|1", "100001|12|-10|-120|1",
            "100001|130|-1|-130|1" }));
}

TEST_F(StockEntryTest, ATransferNeedsTwoWarehousesAndABatchOfTheIssuingOne)
{
    const QString before = everything();
    EXPECT_FALSE(stock::saveTransfer(
        session(), draft("2025-03-14", mainStore, { line(amoxil, "2") }, mainStore))
                     .ok());
    documents::LineDraft unknownBatch = line(granules, "1", "8", "G1");
    unknownBatch.expiry = "2028-01-31";
    EXPECT_FALSE(stock::saveTransfer(
        session(), draft("2025-03-14", mainStore, { line(amoxil, "2"), unknownBatch }, branch))
                     .ok());
    // Granules are in the main warehouse only.
    EXPECT_FALSE(stock::saveTransfer(
        session(), draft("2025-03-14", branch, { line(granules, "1", "8", "G1") }, mainStore))
                     .ok());
    EXPECT_EQ(ui.informed,
        (QStringList { "调出仓库和调入仓库不能相同！",
            "第2行：调出仓库没有商品“板蓝根颗粒”的这个批次（批号“G1”，有效期至“2028-01-31”，"
            "生产日期“2024-12-01”）！",
            "第1行：调出仓库没有商品“板蓝根颗粒”的这个批次（批号“G1”，有效期至“2027-12-31”，"
            "生产日期“2024-12-01”）！" }));
    EXPECT_EQ(changedSince(before), QStringList {});
}

TEST_F(StockEntryTest, ChangingAnUncheckedSheetCountsAgainstTheBookOfThatMoment)
{
    const auto saved
        = stock::saveStockTaking(session(), draft("2025-03-14", mainStore, { line(amoxil, "19") }));
    ASSERT_TRUE(saved.ok());
    postSale("XS1", "2025-03-14", { amoxil, 2, 20 });
    documents::DocumentDraft changed = draft("2025-03-14", mainStore, { line(amoxil, "19", "11") });
    changed.number = saved.value();
    ASSERT_TRUE(stock::saveStockTaking(session(), changed).ok());
    EXPECT_EQ(
        rows("select pd_sl,kc_sl,pd_dj,pd_zje from jxc_kcpdsp"), QStringList { "19|18|11|11" });
    EXPECT_EQ(rows("select pd_sl,kc_sl from jxc_kcpd"), QStringList { "19|18" });
    EXPECT_EQ(lastLog(), "修改未审核库存盘点单PD25031410001，共1种商品");
}
