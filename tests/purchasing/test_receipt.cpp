#include "core/oplog.h"
#include "purchasing/receipt.h"
#include "tests/purchasing/purchasingtest.h"
#include "tests/support/documentrows.h"

#include <cmath>
#include <limits>

using namespace medistock;
using namespace medistock::purchasing;
using medistock::test::PurchasingTest;

namespace {

QStringList logNotes(core::Connection &db)
{
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db, {}, {}))
        notes.append(entry.note);
    return notes;
}

} // namespace

TEST_F(PurchasingTest, ACheckWritesTheDialogsValuesThenMoneyThenStock)
{
    documents::LineDraft cases = line(QStringLiteral("200001"), "1", "240");
    cases.unit = QStringLiteral("件");
    cases.taxRate = QStringLiteral("13");
    PurchaseDraft d = draft({ cases, line(QStringLiteral("200002"), "5", "8", {}) });
    d.entry.discount = 2;
    d.header.supplierNumber = QStringLiteral("GYS-001");
    d.header.paid = 100;
    const QString number = saveReceipt(d);

    const Outcome checked = checkPurchaseReceipt(session(), number,
        { 300, QStringLiteral("2"), QStringLiteral("工行帐号"), QStringLiteral("到货(部分)'") });

    ASSERT_TRUE(checked) << checked.message().toStdString();
    EXPECT_EQ(rows(QStringLiteral("select j_status,j_checker,j_chkrq,j_jsfs,j_sfje,j_note,j_kmmc,"
                                  "j_yfje,j_yhje,j_sn2 from jxc_jhd")),
        QStringList { "1|admin|2025-03-14|2|300|到货(部分)‘|工行帐号|309.2|2|GYS-001" });
    EXPECT_EQ(rows(QStringLiteral("select k_type,k_ghskh,k_yfje,k_sfje,k_yhje,k_fkfs,k_djlx,"
                                  "k_djtxt,k_note,k_rq,u_sn,a_name,gl_djh from jxc_ysyfk")),
        QStringList { "ghs|100002|309.2|300|2|工行帐号|CJ|采购进货单|到货(部分)‘|2025-03-14|"
                      "100002|admin|CJ25031410001" });
    EXPECT_NEAR(figure(QStringLiteral("select k_ljje from jxc_ysyfk")), 9.2, 1e-9);
    EXPECT_NEAR(
        figure(QStringLiteral("select ghs_lwje from jxc_ghsxx where ghs_sn=?"), { supplier() }),
        9.2, 1e-9);
    EXPECT_EQ(rows(QStringLiteral("select xj_dlx,xj_je,xj_kmmc,gl_djh from jxc_xjyh where "
                                  "xj_dlx<>'期初金额'")),
        QStringList { "采购进货|-300|工行帐号|CJ25031410001" });
    EXPECT_EQ(rows(QStringLiteral("select gl_flag,g_sn,gl_sl,gl_dj,gl_zje,gl_kc,gl_pjjj,u_name,"
                                  "ghs_name,gl_note from jxc_goodslist order by id")),
        (QStringList { "cj|200001|20|12|271.2|20|12|小周|华东医药|到货(部分)‘",
            "cj|200002|5|8|40|5|8|小周|华东医药|到货(部分)‘",
            "cj|00000000|0|0|-2|0|0|小周|华东医药|到货(部分)‘" }));
    EXPECT_EQ(rows(QStringLiteral("select g_sn,g_kc,g_cgpl,g_pjjj,g_scjj,ghs_sn from jxc_goods "
                                  "where g_sn<>'00000000' order by g_sn")),
        (QStringList { "200001|20|1|12|12|100002", "200002|5|1|8|8|100002" }));
    EXPECT_EQ(rows(QStringLiteral("select g_sn,t_ph,t_sl from jxc_tkc order by id")),
        (QStringList { "200001|B1|20", "200002||5" }));
    EXPECT_EQ(figure(QStringLiteral("select u_cgpl from jxc_user where u_sn='100002'")), 1);
    EXPECT_EQ(logNotes(db()),
        (QStringList { "增加未审核采购进货单CJ25031410001，共2种商品",
            "审核采购进货单CJ25031410001，共2种商品" }));
}

TEST_F(PurchasingTest, NothingPaidWritesNoCashRowButAPayablesRow)
{
    const QString number = checkedReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));

    EXPECT_EQ(
        rows(QStringLiteral("select id from jxc_xjyh where gl_djh=?"), { number }), QStringList {});
    EXPECT_EQ(rows(QStringLiteral("select k_yfje,k_sfje,k_ljje from jxc_ysyfk where gl_djh=?"),
                  { number }),
        QStringList { "30|0|30" });
}

TEST_F(PurchasingTest, FreightAndPackingAreBookedOnlyWhenWePayAndGoAgainByTheirNote)
{
    PurchaseDraft d = draft({ line(QStringLiteral("200002"), "10", "3") });
    d.header.freight = 15;
    d.header.packing = 5;
    d.header.freightTerms = QStringLiteral("对方付运费");
    checkedReceipt(d);
    EXPECT_EQ(rows(QStringLiteral("select id from jxc_yyfy")), QStringList {});
    d.header.freightTerms = QStringLiteral("我方付运费");
    const QString number = saveReceipt(d);
    const QString before = snapshot();

    ASSERT_TRUE(checkPurchaseReceipt(session(), number));

    EXPECT_EQ(rows(QStringLiteral("select gl_djh,fy_lx,fy_je,fy_kmmc,fy_note from jxc_yyfy")),
        (QStringList { "CJ25031410002|运费|-15|现金|采购单CJ25031410002产生的运费",
            "CJ25031410002|包装费|-5|现金|采购单CJ25031410002产生的包装费" }));
    // The fee payments carry the number only in their note.
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,xj_dlx,xj_je,xj_ljje,xj_note from jxc_xjyh "
                                  "where xj_dlx='费用付款'")),
        (QStringList { "|费用付款|-15|-15|采购单CJ25031410002产生的运费",
            "|费用付款|-5|-20|采购单CJ25031410002产生的包装费" }));

    ASSERT_TRUE(uncheckPurchaseReceipt(session(), number));
    db().exec(QStringLiteral("update jxc_user set u_cgpl=u_cgpl-1 where u_sn='100002'"));
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
}

// A receipt dated between two others of the same goods and batch, with discount, tax, a unit of
// 20, invoices kept, fees paid and money paid: every row that its check moved comes back.
TEST_F(PurchasingTest, CheckThenUncheckRestoresEveryQuantityLedgerAndMoneyRow)
{
    setParameter(QStringLiteral("cs_kp"), 1);
    checkedReceipt(draft({ line(QStringLiteral("200001"), "10", "10"),
                             line(QStringLiteral("200002"), "5", "4", {}) },
        QStringLiteral("2025-03-10")));
    PurchaseDraft later = draft({ line(QStringLiteral("200001"), "2", "11") }, "2025-03-20");
    later.header.paid = 20;
    later.header.invoiceAmount = 22;
    checkedReceipt(later);
    documents::LineDraft cases = line(QStringLiteral("200001"), "1", "240");
    cases.unit = QStringLiteral("件");
    cases.taxRate = QStringLiteral("13");
    PurchaseDraft d = draft({ cases, line(QStringLiteral("200002"), "3", "5", {}) }, "2025-03-12");
    d.entry.discount = 1;
    d.header.paid = 200;
    d.header.invoiceNumber = QStringLiteral("FP-1");
    d.header.invoiceAmount = 300;
    d.header.freight = 15;
    d.header.packing = 5;
    d.header.freightTerms = QStringLiteral("我方付运费");
    const QString number = saveReceipt(d);
    // The check settles the day it is made and the uncheck the receipt's own day: settlement rows
    // are left as the posting rules leave them, and compared no further here.
    const auto everything = [this] {
        return test::dumpDatabase(db(),
            { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence"),
                QStringLiteral("jxc_kcjs") });
    };
    const QString before = everything();
    const QStringList kept
        = rows(QStringLiteral("select g_scjj,ghs_sn from jxc_goods order by id"));

    ASSERT_TRUE(checkPurchaseReceipt(session(), number));
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,gl_kc,gl_pjjj from jxc_goodslist where g_sn=? "
                                  "order by gl_kdrq,id"),
                  { QStringLiteral("200001") }),
        (QStringList {
            "CJ25031010001|10|10", "CJ25031210001|30|11.33", "CJ25032010001|32|11.31" }));
    EXPECT_EQ(rows(QStringLiteral("select k_rq,k_ljje from jxc_ysyfk order by k_rq,id")),
        (QStringList { "2025-03-10|120", "2025-03-12|205.2", "2025-03-20|207.2" }));

    ASSERT_TRUE(uncheckPurchaseReceipt(session(), number));
    // The buyer's purchase count stays as the check left it; only the goods' count goes back.
    EXPECT_EQ(figure(QStringLiteral("select u_cgpl from jxc_user where u_sn='100002'")), 3);
    db().exec(QStringLiteral("update jxc_user set u_cgpl=2 where u_sn='100002'"));
    // The check's last purchase price and supplier stay, as the posting rules keep them.
    EXPECT_NE(rows(QStringLiteral("select g_scjj,ghs_sn from jxc_goods order by id")), kept);
    db().exec(QStringLiteral("update jxc_goods set g_scjj=11 where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_goods set g_scjj=4 where g_sn='200002'"));
    EXPECT_EQ(rows(QStringLiteral("select g_scjj,ghs_sn from jxc_goods order by id")), kept);
    EXPECT_EQ(differences(before, everything()), QStringList {});
}

TEST_F(PurchasingTest, OnlyTheRightOperatorsCheckAndUncheck)
{
    test::addOperatorWithRights(session(), QStringLiteral("小李"), { { "cggl", "100001" } });
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "cggl", "1000000001" } });
    const QString number = saveReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));
    loginAs(QStringLiteral("小王"));
    ui.setDefaultAnswer(true);
    QString before = snapshot();
    EXPECT_EQ(checkPurchaseReceipt(session(), number).message(),
        QStringLiteral("您没有“采购进货审核”的权限！"));
    EXPECT_EQ(differences(before, snapshot()), QStringList {});

    loginAs(QStringLiteral("小李"));
    ui.setDefaultAnswer(true);
    ASSERT_TRUE(checkPurchaseReceipt(session(), number));
    before = snapshot();
    EXPECT_EQ(uncheckPurchaseReceipt(session(), number).message(),
        QStringLiteral("您没有取消审核采购进货单的权限！"));

    loginAs(QStringLiteral("小王"));
    ui.setDefaultAnswer(true);
    EXPECT_EQ(uncheckPurchaseReceipt(session(), number).message(),
        QStringLiteral("单据：CJ25031410001，的审核人：小李\r\n不允许其他人取消审核！"));
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(differences(before, snapshot()), QStringList {});

    loginAs(QStringLiteral("admin"));
    ui.setDefaultAnswer(true);
    EXPECT_TRUE(uncheckPurchaseReceipt(session(), number));
    EXPECT_EQ(rows(QStringLiteral("select j_status,j_checker,j_chkrq from jxc_jhd")),
        QStringList { "0||" });
}

TEST_F(PurchasingTest, AReceivingNoteStopsTheUncheckBeforeAnyQuestion)
{
    const QString number = checkedReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));
    db().exec(QStringLiteral("insert into jxc_rksp (gl_djh,j_sn,g_sn,rk_sl) values (?,?,?,?)"),
        { QStringLiteral("RK25031410001"), number, QStringLiteral("200002"), 10 });
    const QString before = snapshot();

    const Outcome refused = uncheckPurchaseReceipt(session(), number);

    EXPECT_EQ(refused.message(),
        QStringLiteral("该单据CJ25031410001已有入库信息，不能取消审核！\r\n"
                       "请在商品入库单中删除该单据的所有信息，\r\n然后再取消审核！"));
    EXPECT_EQ(ui.informed, QStringList { refused.message() });
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
}

// Checking a checked receipt posts nothing again; it only removes an unchecked copy of its
// number that another workstation left beside it, as the sale's check does.
TEST_F(PurchasingTest, ADocumentIsCheckedOnceAndUncheckedOnlyWhenChecked)
{
    const QString number = saveReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));
    EXPECT_EQ(uncheckPurchaseReceipt(session(), number).message(),
        QStringLiteral("单据：CJ25031410001尚未审核！"));
    ASSERT_TRUE(checkPurchaseReceipt(session(), number));
    const QString before = snapshot();
    db().exec(QStringLiteral("insert into jxc_jhd (j_sn,j_jhrq,ghs_sn,ck_sn,j_status,j_yfje) "
                             "values (?,'2025-03-14',?,'100001',0,99)"),
        { number, supplier() });
    ui.clear();
    EXPECT_TRUE(checkPurchaseReceipt(session(), number));
    EXPECT_EQ(ui.informed, QStringList {});
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
    EXPECT_EQ(checkPurchaseReceipt(session(), QStringLiteral("CJ25031499999")).message(),
        QStringLiteral("单据：CJ25031499999不存在！"));
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
}

TEST_F(PurchasingTest, TheNoQuestionAndWrongDialogValuesChangeNothing)
{
    const QString number = saveReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));
    const QString unchecked = snapshot();
    EXPECT_EQ(
        checkPurchaseReceipt(session(), number, { {}, QStringLiteral("3"), {}, {} }).message(),
        QStringLiteral("结算方式“3”不正确，应为 1（按实付款结算）或 2（余款记入应付帐）！"));
    EXPECT_EQ(checkPurchaseReceipt(session(), number, { 5, {}, QStringLiteral("农行帐号"), {} })
                  .message(),
        QStringLiteral("账户“农行帐号”不存在！"));
    EXPECT_EQ(differences(unchecked, snapshot()), QStringList {});

    ASSERT_TRUE(checkPurchaseReceipt(session(), number));
    const QString checked = snapshot();
    ui.answerNext(false);
    const Outcome no = uncheckPurchaseReceipt(session(), number);
    EXPECT_EQ(no.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(
        ui.asked, QStringList { "您的操作将取消当前选中的已审核单据：CJ25031410001，确认吗？" });
    EXPECT_EQ(differences(checked, snapshot()), QStringList {});
}

// Unchecking a receipt takes its goods back out of the batch: a batch that a return has since
// lowered is short, and the negative-stock setting decides.
struct ShortBatch
{
    bool negativeAllowed;
    bool answer;
    const char *message;
};

class ReceiptBatchCheck : public PurchasingTest, public ::testing::WithParamInterface<ShortBatch>
{
};

TEST_P(ReceiptBatchCheck, IsToldOrAskedAndNoChangesNothing)
{
    setParameter(QStringLiteral("cs_kc"), GetParam().negativeAllowed ? 1 : 0);
    const QString number = checkedReceipt(draft({ line(QStringLiteral("200001"), "10", "10") }));
    checkedReturn(draft({ line(QStringLiteral("200001"), "4", "10") }));
    const QString before = snapshot();
    ui.clear();
    ui.answerNext(true);
    ui.answerNext(GetParam().answer);

    const Outcome outcome = uncheckPurchaseReceipt(session(), number);

    const QString message = QString::fromUtf8(GetParam().message);
    if (GetParam().negativeAllowed) {
        EXPECT_EQ(ui.asked.value(1), message);
    } else {
        EXPECT_EQ(ui.informed, QStringList { message });
        EXPECT_EQ(ui.asked.size(), 1);
    }
    if (GetParam().answer && GetParam().negativeAllowed) {
        ASSERT_TRUE(outcome);
        EXPECT_EQ(rows(QStringLiteral("select t_sl from jxc_tkc")), QStringList { "-4" });
        EXPECT_EQ(figure(QStringLiteral("select g_kc from jxc_goods where g_sn='200001'")), -4);
    } else {
        EXPECT_FALSE(outcome);
        EXPECT_EQ(differences(before, snapshot()), QStringList {});
    }
}

INSTANTIATE_TEST_SUITE_P(NegativeStock, ReceiptBatchCheck,
    ::testing::Values(ShortBatch { false, true,
                          "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”："
                          "不能出库！" },
        ShortBatch { true, false,
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：出库将会出现负库存，"
            "是否继续？" },
        ShortBatch { true, true,
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：出库将会出现负库存，"
            "是否继续？" }));

TEST_F(PurchasingTest, PlanLinesCountWhatTheirReceiptsBringIn)
{
    setParameter(QStringLiteral("cs_cs007"), 1);
    db().exec(QStringLiteral("insert into jxc_cgsp (gl_djh,g_sn,jh_sl,jh_rksl,jh_qxsl,id2) values "
                             "('CP25031010001','200001',30,0,0,77)"));
    documents::LineDraft planned = line(QStringLiteral("200001"), "20", "10");
    planned.columns.set(QStringLiteral("id3"), 77);
    checkedReceipt(draft({ planned }));
    planned.quantity = QStringLiteral("10");
    const QString second = checkedReceipt(draft({ planned }));
    EXPECT_EQ(rows(QStringLiteral("select jh_rksl,jh_qxsl from jxc_cgsp")), QStringList { "30|1" });

    ASSERT_TRUE(uncheckPurchaseReceipt(session(), second));
    EXPECT_EQ(rows(QStringLiteral("select jh_rksl,jh_qxsl from jxc_cgsp")), QStringList { "20|0" });
}

TEST_F(PurchasingTest, TheSaveChecksThePurchaseHeader)
{
    PurchaseDraft d = draft({ line(QStringLiteral("200002"), "1", "3") });
    const QString before = snapshot();
    d.header.settlementMode = QStringLiteral("0");
    EXPECT_EQ(savePurchaseReceipt(session(), d).message(),
        QStringLiteral("结算方式“0”不正确，应为 1（按实付款结算）或 2（余款记入应付帐）！"));
    d.header.settlementMode.clear();
    d.header.freightTerms = QStringLiteral("到付");
    EXPECT_EQ(savePurchaseReceipt(session(), d).message(),
        QStringLiteral("付费方式“到付”不正确，应为“我方付运费”或“对方付运费”！"));
    d.header.freightTerms.clear();
    d.header.freight = -1;
    EXPECT_EQ(savePurchaseReceipt(session(), d).message(), QStringLiteral("运费不能为负数！"));
    d.header.freight = 0;
    d.header.invoiceAmount = std::nan("");
    EXPECT_EQ(
        savePurchaseReceipt(session(), d).message(), QStringLiteral("发票金额“nan”不是数字！"));
    d.header.invoiceAmount = 0;
    d.header.packing = 1e12 + 1;
    EXPECT_EQ(savePurchaseReceipt(session(), d).message(),
        QStringLiteral("包装费“1000000000001”超出范围，应在 0 到 1000000000000 之间！"));
    d.header.packing = 0;
    d.header.paid = std::numeric_limits<double>::infinity();
    EXPECT_EQ(
        savePurchaseReceipt(session(), d).message(), QStringLiteral("实付金额“inf”不是数字！"));
    EXPECT_EQ(differences(before, snapshot()), QStringList {});
}

// The paid amount confirmed at the check keeps the money limits too, named as the dialog names
// it; nothing is posted.
TEST_F(PurchasingTest, TheCheckRefusesAnAbsurdPaidAmount)
{
    const QString number = saveReceipt(draft({ line(QStringLiteral("200002"), "10", "3") }));
    const QString unchecked = snapshot();
    EXPECT_EQ(checkPurchaseReceipt(session(), number, { 1e308, {}, {}, {} }).message(),
        QStringLiteral("实付金额“1e+308”超出范围，应在 0 到 1000000000000 之间！"));
    EXPECT_EQ(checkPurchaseReceipt(session(), number, { std::nan(""), {}, {}, {} }).message(),
        QStringLiteral("实付金额“nan”不是数字！"));
    EXPECT_EQ(checkPurchaseReceipt(session(), number, { -0.5, {}, {}, {} }).message(),
        QStringLiteral("实付金额不能为负数！"));
    EXPECT_EQ(differences(unchecked, snapshot()), QStringList {});
}
