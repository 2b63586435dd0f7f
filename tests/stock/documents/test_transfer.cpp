#include "documents/texts.h"
#include "stock/documents/entry.h"
#include "stock/documents/transfer.h"
#include "tests/stock/documents/stockdocstest.h"

using namespace medistock;
using namespace medistock::test;

class TransferTest : public StockDocsTest
{
protected:
    // 5 of 200001 in batch B1 from the main warehouse into the branch, at the proposed price.
    QString saveFiveToBranch(const QString &date = QStringLiteral("2025-03-14"))
    {
        const auto saved
            = stock::saveTransfer(session(), draft(date, mainStore, { line(amoxil, "5") }, branch));
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        return saved.ok() ? saved.value() : QString();
    }
    QStringList stockOf(const QString &goods)
    {
        return rows("select ck_sn,kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=? order by ck_sn",
                   { goods })
            + rows(
                "select ck_sn,t_ph,t_sl from jxc_tkc where g_sn=? order by ck_sn,t_ph", { goods })
            + rows("select g_kc,g_pjjj from jxc_goods where g_sn=?", { goods });
    }
};

TEST_F(TransferTest, CheckMovesStockAndCostIntoTheReceivingWarehouse)
{
    const QString number = saveFiveToBranch();
    EXPECT_EQ(number, "DB25031410001");
    ASSERT_TRUE(stock::checkTransfer(session(), number).ok());

    EXPECT_EQ(rows("select gl_flag,gl_djh,gl_kdrq,g_name,dw_name,gl_dj,gl_sl,gl_zje,gl_je,gl_lr,"
                   "gl_dzl,u_name,a_name,ck_sn,ck_name,ghs_sn,ghs_name,gl_sysl,t_ph,gl_checker,"
                   "gl_chkrq,gl_taxdj,gl_tax,gl_taxje,gl_lsj from jxc_goodslist where gl_djh=? "
                   "order by id",
                  { number }),
        (QStringList {
            "db|DB25031410001|2025-03-14|阿莫西林胶囊|粒|12|5|60|60|0|1|默认员工|admin|100002|"
            "分店仓库||调拨入库|5|B1|admin|2025-03-14|12|0|0|0",
            "db|DB25031410001|2025-03-14|阿莫西林胶囊|粒|12|-5|-60|-60|0|1|默认员工|admin|100001|"
            "主仓库||调拨出库|5|B1|admin|2025-03-14|12|0|0|0" }));
    // The branch averages 10 at 15 with 5 at 12; the main warehouse keeps its 12.
    EXPECT_EQ(runningColumns(amoxil, branch),
        (QStringList { "cj 10 150 10 15 150", "db 5 60 15 14 210" }));
    EXPECT_EQ(runningColumns(amoxil, mainStore),
        (QStringList { "cj 20 240 20 12 240", "db -5 -60 15 12 180" }));
    EXPECT_EQ(stockOf(amoxil),
        (QStringList {
            "100001|15|15|12", "100002|15|15|14", "100001|B1|15", "100002|B1|15", "30|13" }));
    EXPECT_EQ(
        rows("select ck_sn,js_sl,js_zje from jxc_kcjs where js_rq='2025-03-14' order by ck_sn"),
        (QStringList { "100001|25|260", "100002|15|210" }));
    EXPECT_EQ(rows("select db_status,db_checker,db_chkrq from jxc_kcdbd"),
        QStringList { "1|admin|2025-03-14" });
    EXPECT_EQ(lastLog(), "增加已审核库存调拨单DB25031410001，共1种商品");
}

TEST_F(TransferTest, CheckThenUncheckRestoresEveryRowAndRunningColumn)
{
    // A later receipt into the branch, whose running columns the transfer changes and gives back.
    addReceipt("CJ3", "2025-03-13", { { amoxil, 10, 16 } }, branch);
    postReceipt("CJ3");
    const QString number = saveFiveToBranch("2025-03-12");
    const QString before = everything();

    ASSERT_TRUE(stock::checkTransfer(session(), number).ok());
    EXPECT_EQ(runningColumns(amoxil, branch),
        (QStringList { "cj 10 150 10 15 150", "db 5 60 15 14 210", "cj 10 160 25 14.8 370" }));

    ui.answerNext(true);
    ASSERT_TRUE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(
        ui.asked, QStringList { "您的操作将取消当前选中的已审核单据：DB25031210001，确认吗？" });
    EXPECT_EQ(changedSince(before), QStringList {});
    EXPECT_EQ(lastLog(), "取消审核库存调拨单DB25031210001");
}

TEST_F(TransferTest, AnIssueBeyondTheBatchIsRefusedOrAskedBeforeAnythingIsWritten)
{
    const auto saved = stock::saveTransfer(
        session(), draft("2025-03-14", mainStore, { line(amoxil, "25") }, branch));
    ASSERT_TRUE(saved.ok());
    setParameter("cs_kc", 0);
    const QString before = everything();
    const QString shortage = "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”";

    EXPECT_FALSE(stock::checkTransfer(session(), saved.value()).ok());
    EXPECT_EQ(ui.informed, QStringList { shortage + "：不能出库！" });
    EXPECT_EQ(changedSince(before), QStringList {});

    setParameter("cs_kc", 1);
    const QString allowed = everything();
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(stock::checkTransfer(session(), saved.value()).ok());
    EXPECT_EQ(ui.asked, QStringList { shortage + "：出库将会出现负库存，是否继续？" });
    EXPECT_EQ(changedSince(allowed), QStringList {});

    ui.answerNext(true);
    ASSERT_TRUE(stock::checkTransfer(session(), saved.value()).ok());
    EXPECT_EQ(rows("select ck_sn,t_sl from jxc_tkc where g_sn=? order by ck_sn", { amoxil }),
        (QStringList { "100001|-5", "100002|35" }));
}

TEST_F(TransferTest, UncheckAfterASaleInTheReceivingWarehouseChecksItsBatch)
{
    const QString number = saveFiveToBranch();
    ASSERT_TRUE(stock::checkTransfer(session(), number).ok());
    postSale("XS1", "2025-03-14", { amoxil, 12, 20 }, branch);
    setParameter("cs_kc", 0);
    const QString afterSale = everything();
    const QString shortage = "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”";

    ui.clear();
    ui.answerNext(true); // the confirmation
    EXPECT_FALSE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(ui.informed, QStringList { shortage + "：不能出库！" });
    EXPECT_EQ(changedSince(afterSale), QStringList {});

    setParameter("cs_kc", 1);
    ui.clear();
    ui.setDefaultAnswer(true);
    ASSERT_TRUE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(ui.asked.last(), shortage + "：出库将会出现负库存，是否继续？");
    EXPECT_EQ(rows("select ck_sn,t_sl from jxc_tkc where g_sn=? order by ck_sn", { amoxil }),
        (QStringList { "100001|20", "100002|-2" }));
    EXPECT_EQ(runningColumns(amoxil, branch),
        (QStringList { "cj 10 150 10 15 150", "xs 0 0 -2 15 -30" }));
}

TEST_F(TransferTest, StatusIsReadBeforeAndInsideTheTransaction)
{
    const QString number = saveFiveToBranch();
    EXPECT_FALSE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(ui.informed.last(), documents::texts::notChecked(number));
    ASSERT_TRUE(stock::checkTransfer(session(), number).ok());
    EXPECT_FALSE(stock::checkTransfer(session(), number).ok());
    EXPECT_EQ(ui.informed.last(), documents::texts::alreadyChecked(number));
    EXPECT_FALSE(stock::checkTransfer(session(), "DB25031499999").ok());
    EXPECT_EQ(ui.informed.last(), documents::texts::documentMissing("DB25031499999"));
    EXPECT_EQ(rowCount(db(), "jxc_goodslist"), 5);
}

TEST_F(TransferTest, RightsOfCheckAndUncheckButNoCheckerTest)
{
    addStockOperator("库管员", "1111111000011111");
    addStockOperator("调拨员", "111111111110");
    addStockOperator("主管", "111111111111");
    const QString number = saveFiveToBranch();
    const QString before = everything();
    loginAs("库管员");
    EXPECT_FALSE(stock::checkTransfer(session(), number).ok());
    EXPECT_EQ(ui.informed.last(), "您没有“库存调拨审核”的权限！");
    EXPECT_EQ(changedSince(before), QStringList {});

    loginAs("admin");
    ASSERT_TRUE(stock::checkTransfer(session(), number).ok());
    loginAs("调拨员");
    EXPECT_FALSE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(ui.informed.last(), "您没有取消审核库存调拨单的权限！");

    // Another operator with the right unchecks what admin checked.
    loginAs("主管");
    ui.setDefaultAnswer(true);
    ASSERT_TRUE(stock::uncheckTransfer(session(), number).ok());
    EXPECT_EQ(rows("select db_status,db_checker,db_chkrq from jxc_kcdbd"), QStringList { "0||" });
}

TEST_F(TransferTest, IntoAWarehouseThatNeverHeldTheGoodsOnlyZeroRowsRemain)
{
    const auto saved = stock::saveTransfer(
        session(), draft("2025-03-14", mainStore, { line(granules, "4", {}, "G1") }, branch));
    ASSERT_TRUE(saved.ok());
    const QString before = everything();
    ASSERT_TRUE(stock::checkTransfer(session(), saved.value()).ok());
    ui.answerNext(true);
    ASSERT_TRUE(stock::uncheckTransfer(session(), saved.value()).ok());
    // The branch's stock row (kc_sl, kc_cbj at the goods average, kc_xssl, kc_zsl) and batch row
    // stay, at zero.
    EXPECT_EQ(changedSince(before),
        (QStringList { "+  6|0|8|0|0|200002|100002",
            "+  4|200002||G1|2024-12-01|2027-12-31|0|<null>|100002" }));
}
