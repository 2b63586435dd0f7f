#include "core/oplog.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "tests/purchasing/purchasingtest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::purchasing;
using medistock::test::PurchasingTest;

// A receipt CJ25031410001 of 10 boxes of 200001 at 10 (batch B1) and 4 bags of 200002 at 5, checked
// with nothing paid: 120 owed to the supplier.
class ReturnTest : public PurchasingTest
{
protected:
    void SetUp() override
    {
        PurchasingTest::SetUp();
        receipt = checkedReceipt(draft({ line(QStringLiteral("200001"), "10", "10"),
            line(QStringLiteral("200002"), "4", "5", {}) }));
    }
    documents::LineDraft returned(const QString &quantity, int receiptLine = 0)
    {
        documents::LineDraft l = line(QStringLiteral("200001"), quantity, "10");
        if (receiptLine >= 0)
            l.columns.set(QStringLiteral("id2"), receiptLineId(receipt, receiptLine));
        return l;
    }

    QString receipt;
};

TEST_F(ReturnTest, ACheckPostsNegativeRowsLowersStockAndPurchaseCountAndTakesTheMoneyBack)
{
    PurchaseDraft d = draft({ returned("4") });
    d.header.paid = 30;
    const QString number = checkedReturn(d);

    EXPECT_EQ(number, QStringLiteral("CT25031410001"));
    EXPECT_EQ(rows(QStringLiteral("select gl_flag,gl_sl,gl_dj,gl_zje,gl_je,gl_sysl,gl_taxje,"
                                  "gl_taxdj,id2,gl_djh2,gl_qxsl,gl_kc,gl_pjjj,ghs_name from "
                                  "jxc_goodslist where gl_djh=?"),
                  { number }),
        QStringList { "ct|-4|10|-40|-40|-4|0|10||||6|10|华东医药" });
    EXPECT_EQ(rows(QStringLiteral("select kc_sl,kc_zsl from jxc_kcsp where g_sn='200001'")),
        QStringList { "6|6" });
    EXPECT_EQ(
        rows(QStringLiteral("select t_sl from jxc_tkc where g_sn='200001'")), QStringList { "6" });
    EXPECT_EQ(rows(QStringLiteral("select g_kc,g_cgpl from jxc_goods where g_sn='200001'")),
        QStringList { "6|0" });
    EXPECT_EQ(figure(QStringLiteral("select u_cgpl from jxc_user where u_sn='100002'")), 2);
    EXPECT_EQ(rows(QStringLiteral("select k_yfje,k_sfje,k_ljje,k_djlx,k_djtxt,k_type from "
                                  "jxc_ysyfk where gl_djh=?"),
                  { number }),
        QStringList { "-40|-30|110|CT|采购退货单|ghs" });
    EXPECT_EQ(
        figure(QStringLiteral("select ghs_lwje from jxc_ghsxx where ghs_sn=?"), { supplier() }),
        110);
    EXPECT_EQ(rows(QStringLiteral("select xj_dlx,xj_je,xj_kmmc from jxc_xjyh where gl_djh=?"),
                  { number }),
        QStringList { "采购退货|30|现金" });
    EXPECT_EQ(core::readLog(db(), {}, {}).last().note,
        QStringLiteral("增加采购退货单CT25031410001，共1种商品"));
}

TEST_F(ReturnTest, CheckThenUncheckRestoresEverythingButTheNoteAndTheLinks)
{
    setParameter(QStringLiteral("cs_kp"), 1);
    PurchaseDraft d = draft({ returned("3"), returned("2") });
    d.entry.note = QStringLiteral("破损退回");
    d.header.paid = 25;
    d.header.invoiceAmount = 50;
    const QString number = saveReturn(d);
    const QString before = snapshot();

    ASSERT_TRUE(checkPurchaseReturn(session(), number));
    EXPECT_EQ(figure(QStringLiteral("select g_cgpl from jxc_goods where g_sn='200001'")), -1);
    ASSERT_TRUE(uncheckPurchaseReturn(session(), number));

    EXPECT_EQ(figure(QStringLiteral("select g_cgpl from jxc_goods where g_sn='200001'")), 1);
    // The buyer's count of purchase documents keeps the return, as a receipt's uncheck does.
    EXPECT_EQ(figure(QStringLiteral("select u_cgpl from jxc_user where u_sn='100002'")), 2);
    db().exec(QStringLiteral("update jxc_user set u_cgpl=1 where u_sn='100002'"));
    EXPECT_EQ(rows(QStringLiteral("select th_note from jxc_thd")), QStringList { "" });
    EXPECT_EQ(rows(QStringLiteral("select id2 from jxc_thsp")), (QStringList { "0", "0" }));
    db().exec(QStringLiteral("update jxc_thd set th_note='破损退回'"));
    db().exec(QStringLiteral("update jxc_thsp set id2=?"), { receiptLineId(receipt, 0) });
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
    EXPECT_EQ(
        core::readLog(db(), {}, {}).last().note, QStringLiteral("取消审核采购退货单CT25031410001"));
}

struct ShortReturn
{
    bool negativeAllowed;
    bool answer;
    const char *message;
};

class ReturnBatchCheck : public ReturnTest, public ::testing::WithParamInterface<ShortReturn>
{
};

TEST_P(ReturnBatchCheck, ReturningMoreThanTheBatchHoldsIsToldOrAsked)
{
    setParameter(QStringLiteral("cs_kc"), GetParam().negativeAllowed ? 1 : 0);
    const QString number = saveReturn(draft({ returned("12", -1) }));
    const QString before = snapshot();
    ui.clear();
    ui.answerNext(GetParam().answer);

    const Outcome outcome = checkPurchaseReturn(session(), number);

    const QString message = QString::fromUtf8(GetParam().message);
    EXPECT_EQ(GetParam().negativeAllowed ? ui.asked : ui.informed, QStringList { message });
    if (GetParam().answer && GetParam().negativeAllowed) {
        ASSERT_TRUE(outcome);
        EXPECT_EQ(rows(QStringLiteral("select t_sl from jxc_tkc where g_sn='200001'")),
            QStringList { "-2" });
    } else {
        EXPECT_FALSE(outcome);
        EXPECT_EQ(differences(before, snapshot()), QStringList {});
    }
}

INSTANTIATE_TEST_SUITE_P(NegativeStock, ReturnBatchCheck,
    ::testing::Values(ShortReturn { false, true,
                          "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”："
                          "不能退货！" },
        ShortReturn { true, false,
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：退货将会出现负库存，"
            "是否继续？" },
        ShortReturn { true, true,
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：退货将会出现负库存，"
            "是否继续？" }));

TEST_F(ReturnTest, ALineReturnsNoMoreThanItsReceiptLineStillHolds)
{
    PurchaseDraft first = draft({ returned("6") });
    first.entry.number = saveReturn(first);
    const QString before = test::dumpDatabase(db());

    EXPECT_EQ(savePurchaseReturn(session(), draft({ returned("3"), returned("2") })).message(),
        QStringLiteral("第2行：退货数量超过进货单CJ25031410001中该商品尚可退货的数量4！"));
    documents::LineDraft otherGoods = returned("1", 1);
    EXPECT_EQ(savePurchaseReturn(session(), draft({ otherGoods })).message(),
        QStringLiteral("第1行：退货对应的进货单明细不存在、未审核或不是同一商品！"));
    EXPECT_EQ(differences(before, test::dumpDatabase(db())), QStringList {});

    saveReturn(draft({ returned("4") }));
    // The first return's own lines do not count against its change.
    first.entry.lines = { returned("6") };
    EXPECT_EQ(saveReturn(first), first.entry.number);
    first.entry.lines = { returned("7") };
    EXPECT_EQ(savePurchaseReturn(session(), first).message(),
        QStringLiteral("第1行：退货数量超过进货单CJ25031410001中该商品尚可退货的数量6！"));
}

// A receipt whose goods went back on a checked return cannot be unchecked: the return depends on
// it. Nothing changes and the return keeps its link to the receipt line.
TEST_F(ReturnTest, TheReceiptOfACheckedReturnIsNotUnchecked)
{
    const QString number = checkedReturn(draft({ returned("3") }));
    const QString before = snapshot();
    ui.clear();
    const Outcome refused = uncheckPurchaseReceipt(session(), receipt);
    EXPECT_EQ(refused.message(),
        QStringLiteral("该单据CJ25031410001已有退货信息，不能取消审核！\r\n\r\n"
                       "请先取消审核对应的采购退货单！"));
    EXPECT_EQ(ui.informed, QStringList { refused.message() });
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
    EXPECT_EQ(rows(QStringLiteral("select id2 from jxc_thsp where gl_djh=?"), { number }),
        QStringList { QString::number(receiptLineId(receipt, 0)) });

    ASSERT_TRUE(uncheckPurchaseReturn(session(), number));
    EXPECT_TRUE(uncheckPurchaseReceipt(session(), receipt));
}

// Two returns of one receipt line, 4 and 3: unchecking the second frees only its own 3, so 6 are
// left to return, no more. (A return's check leaves jh_qxsl alone; what is left is counted from
// the other returns' lines.)
TEST_F(ReturnTest, UncheckingOneOfTwoReturnsKeepsWhatTheOtherReturned)
{
    checkedReturn(draft({ returned("4") }));
    const QString second = checkedReturn(draft({ returned("3") }));
    ASSERT_TRUE(uncheckPurchaseReturn(session(), second));
    EXPECT_EQ(
        rows(QStringLiteral("select jh_qxsl from jxc_jhsp where j_sn=? order by id"), { receipt }),
        (QStringList { "0", "0" }));
    EXPECT_EQ(savePurchaseReturn(session(), draft({ returned("7") })).message(),
        QStringLiteral("第1行：退货数量超过进货单CJ25031410001中该商品尚可退货的数量6！"));
    EXPECT_FALSE(saveReturn(draft({ returned("6") })).isEmpty());
}

// The receipt is marked finished (j_crk) by later business; unchecking a return reopens it only
// while one of its lines is not wholly received or returned.
class ReopenedReceipt : public PurchasingTest, public ::testing::WithParamInterface<bool>
{
};

TEST_P(ReopenedReceipt, UncheckingAReturnReopensAReceiptWithAnOpenLine)
{
    const bool deferred = GetParam();
    setParameter(QStringLiteral("cs_sprk"), deferred ? 1 : 0);
    const QString receipt = checkedReceipt(draft({ line(QStringLiteral("200001"), "10", "10") }));
    db().exec(QStringLiteral("update jxc_jhd set j_crk=1"));
    db().exec(QStringLiteral("update jxc_jhsp set jh_qxsl=1"));
    documents::LineDraft back = line(QStringLiteral("200001"), "3", "10");
    back.columns.set(QStringLiteral("id2"), receiptLineId(receipt, 0));
    const QString number = checkedReturn(draft({ back }));

    ASSERT_TRUE(uncheckPurchaseReturn(session(), number));

    EXPECT_EQ(rows(QStringLiteral("select jh_qxsl from jxc_jhsp")), QStringList { "0" });
    EXPECT_EQ(
        rows(QStringLiteral("select j_crk from jxc_jhd")), QStringList { deferred ? "0" : "1" });
}

INSTANTIATE_TEST_SUITE_P(Receiving, ReopenedReceipt, ::testing::Values(false, true));

TEST_F(ReturnTest, ReturnsHaveTheirOwnRights)
{
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "cggl", "01" } });
    const QString number = saveReturn(draft({ returned("1") }));
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(checkPurchaseReturn(session(), number).message(),
        QStringLiteral("您没有“采购退货审核”的权限！"));
    loginAs(QStringLiteral("admin"));
    ASSERT_TRUE(checkPurchaseReturn(session(), number));
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(uncheckPurchaseReturn(session(), number).message(),
        QStringLiteral("您没有取消审核采购退货单的权限！"));
}

// A return's paid amount is what the supplier pays back: the check names it so when it is absurd.
TEST_F(ReturnTest, TheCheckRefusesAnAbsurdAmountReceived)
{
    const QString number = saveReturn(draft({ returned("2") }));
    const QString before = snapshot();
    EXPECT_EQ(checkPurchaseReturn(session(), number, { 1e13, {}, {}, {} }).message(),
        QStringLiteral("实收金额“10000000000000”超出范围，应在 0 到 1000000000000 之间！"));
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
}
