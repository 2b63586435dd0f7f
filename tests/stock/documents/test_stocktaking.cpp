#include "stock/documents/entry.h"
#include "stock/documents/stocktaking.h"
#include "tests/stock/documents/stockdocstest.h"

using namespace medistock;
using namespace medistock::test;

class StockTakingTest : public StockDocsTest
{
protected:
    void SetUp() override
    {
        StockDocsTest::SetUp();
        addGoods({ vitamin, QStringLiteral("维生素C片") });
        addReceipt("CJ3", "2025-03-12", { { vitamin, 5, 2, 1, "V1" } });
        postReceipt("CJ3");
    }
    // 200001 counted 18 of 20 at the proposed 12, 200002 counted 12 of 10 at 8, and 200003
    // counted as booked.
    QString saveCount(const QString &date = QStringLiteral("2025-03-14"))
    {
        const auto saved = stock::saveStockTaking(session(),
            draft(date, mainStore,
                { line(amoxil, "18"), line(granules, "12", "8", "G1"),
                    line(vitamin, "5", {}, "V1") }));
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        return saved.ok() ? saved.value() : QString();
    }

    const QString vitamin = QStringLiteral("200003");
};

TEST_F(StockTakingTest, CountSheetListsTheWarehousesBatchesAtTheCurrentCost)
{
    addGoods({ "200004", "停用药品" });
    db().exec("update jxc_goods set g_jy=1 where g_sn='200004'");
    addReceipt("CJ4", "2025-03-12", { { "200004", 3, 1 }, { amoxil, 4, 12, 1, "B0" } });
    postReceipt("CJ4");
    postSale("XS1", "2025-03-13", { amoxil, 4, 20, 1, "B0" });
    QStringList sheet;
    for (const stock::BatchLine &l : stock::countSheet(session(), mainStore))
        sheet.append(QStringList { l.goods, l.goodsName, l.unit, l.batch, l.expiry, l.produced,
            QString::number(l.quantity), QString::number(l.price) }
                         .join('|'));
    // The emptied batch B0 and the disabled goods are left out; the branch is another sheet.
    EXPECT_EQ(sheet,
        (QStringList { "200001|阿莫西林胶囊|粒|B1|2027-12-31|2024-12-01|20|12",
            "200002|板蓝根颗粒|粒|G1|2027-12-31|2024-12-01|10|8",
            "200003|维生素C片|粒|V1|2027-12-31|2024-12-01|5|2" }));
}

// A class holds its sub-classes.
TEST_F(StockTakingTest, CountSheetOfAClassHoldsItsSubClasses)
{
    db().exec("update jxc_goods set gc_sn='1001' where g_sn='200001'");
    db().exec("update jxc_goods set gc_sn='100101' where g_sn='200002'");
    db().exec("update jxc_goods set gc_sn='1002' where g_sn='200003'");
    QStringList goods;
    for (const stock::BatchLine &l : stock::countSheet(session(), mainStore, "1001"))
        goods.append(l.goods);
    EXPECT_EQ(goods, (QStringList { "200001", "200002" }));
    EXPECT_EQ(stock::countSheet(session(), mainStore, "100101").size(), 1);
    EXPECT_EQ(stock::countSheet(session(), mainStore).size(), 3);
}

TEST_F(StockTakingTest, SaveKeepsTheBookQuantityAndTheValueOfTheDifference)
{
    const QString number = saveCount();
    EXPECT_EQ(number, "PD25031410001");
    EXPECT_EQ(
        rows("select g_sn,t_ph,pd_sl,kc_sl,kc_zsl,pd_dj,pd_zje,id2 from jxc_kcpdsp order by id"),
        (QStringList {
            "200001|B1|18|20|20|12|-24|", "200002|G1|12|10|10|8|16|", "200003|V1|5|5|5|2|0|" }));
    EXPECT_EQ(rows("select pd_rq,ck_sn,pd_sl,kc_sl,pd_status from jxc_kcpd"),
        QStringList { "2025-03-14|100001|35|35|0" });
}

TEST_F(StockTakingTest, CheckPostsOnlyTheDifferencesAndBooksTheirValues)
{
    const QString number = saveCount();
    ASSERT_TRUE(stock::checkStockTaking(session(), number).ok());

    EXPECT_EQ(rows("select gl_flag,g_sn,gl_dj,gl_sl,gl_zje,gl_je,gl_sysl,ghs_sn,ghs_name,gl_dzl,"
                   "gl_taxdj,t_ph,gl_checker,gl_chkrq,id2 from jxc_goodslist where gl_djh=? "
                   "order by id",
                  { number }),
        (QStringList { "pd|200001|12|-2|-24|-24|18||库存盘点|1|12|B1|admin|2025-03-14|1",
            "pd|200002|8|2|16|16|12||库存盘点|1|8|G1|admin|2025-03-14|2" }));
    EXPECT_EQ(
        runningColumns(amoxil), (QStringList { "cj 20 240 20 12 240", "pd -2 -24 18 12 216" }));
    EXPECT_EQ(runningColumns(granules), (QStringList { "cj 10 80 10 8 80", "pd 2 16 12 8 96" }));
    EXPECT_EQ(rows("select g_sn,kc_sl,kc_zsl,kc_cbj from jxc_kcsp where ck_sn=? and g_sn<>? "
                   "order by g_sn",
                  { mainStore, "00000000" }),
        (QStringList { "200001|18|18|12", "200002|12|12|8", "200003|5|5|2" }));
    EXPECT_EQ(rows("select g_sn,g_kc from jxc_goods where g_sn<>'00000000' order by g_sn"),
        (QStringList { "200001|28", "200002|12", "200003|5" }));
    EXPECT_EQ(rows("select t_ph,t_sl from jxc_tkc where ck_sn=? order by t_ph", { mainStore }),
        (QStringList { "B1|18", "G1|12", "V1|5" }));
    EXPECT_EQ(rows("select js_sl,js_zje from jxc_kcjs where js_rq='2025-03-14' and ck_sn=?",
                  { mainStore }),
        QStringList { "35|322" });
    EXPECT_EQ(rows("select gl_djh,fy_rq,fy_lx,fy_je,fy_flag,u_sn,de_sn,fy_kmmc,fy_chk,fy_note,"
                   "a_name from jxc_yyfy order by id"),
        (QStringList { "PD25031410001|2025-03-14|费用|-24|1|100001|100001|现金|1|"
                       "商品盘点单PD25031410001成本差额|admin",
            "PD25031410001|2025-03-14|收入|16|2|100001|100001|现金|1|"
            "商品盘点单PD25031410001成本差额|admin" }));
    EXPECT_EQ(lastLog(), "库存盘点单通过PD25031410001审核，共2个商品");
}

TEST_F(StockTakingTest, ASheetCountedAsBookedPostsNothing)
{
    const auto saved = stock::saveStockTaking(session(),
        draft("2025-03-14", mainStore, { line(amoxil, "20"), line(vitamin, "5", "9", "V1") }));
    ASSERT_TRUE(saved.ok());
    const QString before = everything();
    ASSERT_TRUE(stock::checkStockTaking(session(), saved.value()).ok());
    EXPECT_EQ(rowCount(db(), "jxc_goodslist"), 4);
    EXPECT_EQ(rowCount(db(), "jxc_yyfy"), 0);
    EXPECT_EQ(lastLog(), "库存盘点单通过PD25031410001审核，共0个商品");
    ui.setDefaultAnswer(true);
    ASSERT_TRUE(stock::uncheckStockTaking(session(), saved.value()).ok());
    db().exec("update jxc_kcpdsp set id2=null");
    EXPECT_EQ(changedSince(before), QStringList {});
}

TEST_F(StockTakingTest, CheckThenUncheckRestoresAllButTheLinesIdentities)
{
    // A later sale of a counted goods, already posted when the sheet is saved (its book
    // quantity is then 17), whose running columns the count changes and gives back.
    postSale("XS1", "2025-03-20", { amoxil, 3, 20 });
    const QString number = saveCount("2025-03-13");
    const QString before = everything();
    ASSERT_TRUE(stock::checkStockTaking(session(), number).ok());
    EXPECT_EQ(runningColumns(amoxil),
        (QStringList { "cj 20 240 20 12 240", "pd 1 12 21 12 252", "xs 0 0 18 12 216" }));

    ui.answerNext(false);
    EXPECT_FALSE(stock::uncheckStockTaking(session(), number).ok());
    EXPECT_EQ(ui.asked, QStringList { "您的操作将取消当前的单据，确认吗？" });
    EXPECT_EQ(rows("select pd_status from jxc_kcpd"), QStringList { "1" });

    ui.answerNext(true);
    ASSERT_TRUE(stock::uncheckStockTaking(session(), number).ok());
    EXPECT_EQ(rows("select id2 from jxc_kcpdsp order by id"), (QStringList { "1", "2", "3" }));
    db().exec("update jxc_kcpdsp set id2=null");
    EXPECT_EQ(changedSince(before), QStringList {});
    EXPECT_EQ(lastLog(), "取消审核库存盘点单：PD25031310001");
}

struct LaterRow
{
    const char *date;
    const char *warehouse;
    const char *goods;
    bool blocks;
};

class StockTakingLaterBusinessTest : public StockTakingTest,
                                     public ::testing::WithParamInterface<LaterRow>
{
};

TEST_P(StockTakingLaterBusinessTest, OnlyLaterDaysOfCountedGoodsInItsWarehouseBlock)
{
    const LaterRow later = GetParam();
    const auto saved
        = stock::saveStockTaking(session(), draft("2025-03-14", mainStore, { line(amoxil, "18") }));
    ASSERT_TRUE(saved.ok());
    ASSERT_TRUE(stock::checkStockTaking(session(), saved.value()).ok());
    postSale("XS25031510001", later.date,
        { later.goods, 1, 20, 1, later.goods == granules ? "G1" : "B1" }, later.warehouse);
    const QString afterSale = everything();

    ui.setDefaultAnswer(true);
    const Outcome outcome = stock::uncheckStockTaking(session(), saved.value());
    if (later.blocks) {
        EXPECT_FALSE(outcome.ok());
        EXPECT_EQ(ui.informed,
            QStringList { "在【2025-03-14】日期之后盘点商品已发生业务，\r\n\r\n单号为：【"
                          "XS25031510001】，\r\n\r\n该盘点单 PD25031410001 不能撤销！" });
        EXPECT_EQ(changedSince(afterSale), QStringList {});
    } else {
        EXPECT_TRUE(outcome.ok()) << outcome.message().toStdString();
        EXPECT_EQ(rows("select pd_status from jxc_kcpd"), QStringList { "0" });
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, StockTakingLaterBusinessTest,
    ::testing::Values(LaterRow { "2025-03-14", "100001", "200001", false },
        LaterRow { "2025-03-15", "100001", "200001", true },
        LaterRow { "2025-03-15", "100002", "200001", false },
        LaterRow { "2025-03-15", "100001", "200002", false }));

TEST_F(StockTakingTest, RefusalsOfEntryAndUncheck)
{
    const QString before = everything();
    const auto twice = stock::saveStockTaking(session(),
        draft("2025-03-14", mainStore,
            { line(amoxil, "18"), line(granules, "3", "8", "G1"), line(amoxil, "1") }));
    EXPECT_FALSE(twice.ok());
    EXPECT_EQ(ui.informed.last(), "第3行：商品“阿莫西林胶囊”的这个批次已在第1行盘点！");
    EXPECT_EQ(changedSince(before), QStringList {});

    addStockOperator("盘点员", "111111111111");
    const QString number = saveCount();
    ASSERT_TRUE(stock::checkStockTaking(session(), number).ok());
    loginAs("盘点员");
    EXPECT_FALSE(stock::uncheckStockTaking(session(), number).ok());
    EXPECT_EQ(ui.informed.last(), "您没有取消审核库存盘点单的权限！");
    EXPECT_TRUE(ui.asked.isEmpty());
}

TEST_F(StockTakingTest, ACountOfZeroTakesTheWholeBatchOut)
{
    const auto saved = stock::saveStockTaking(
        session(), draft("2025-03-14", mainStore, { line(vitamin, "0", {}, "V1") }));
    ASSERT_TRUE(saved.ok()) << saved.message().toStdString();
    ASSERT_TRUE(stock::checkStockTaking(session(), saved.value()).ok());
    EXPECT_EQ(rows("select t_sl from jxc_tkc where g_sn=?", { vitamin }), QStringList { "0" });
    EXPECT_EQ(rows("select fy_lx,fy_je from jxc_yyfy"), QStringList { "费用|-10" });
}
