#include "core/oplog.h"
#include "sales/entry.h"
#include "tests/sales/salestest.h"
#include "tests/support/documentrows.h"

#include <cmath>
#include <limits>

using namespace medistock;
using medistock::test::SalesTest;

namespace {

const QString saveQuestion = QStringLiteral(
    "单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n处于“未审核”状态的销售单，可以在“待审核销"
    "\r\n\r\n售单”面板中，进行修改及审核操作！");

} // namespace

TEST_F(SalesTest, ASavedSaleKeepsItsHeaderLinesAtCostAsOfItsDateAndIsLogged)
{
    sales::SaleDraft d
        = draft({ line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("110"),
                      QStringLiteral("B1"), QStringLiteral("件")),
                    line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) },
            100);
    d.entry.discount = 0.5;
    d.header.freight = 6;
    d.header.freightTerms = QStringLiteral("我方付运费");
    EXPECT_EQ(saveSale(d), QStringLiteral("XS25031410001"));

    EXPECT_EQ(ui.asked, QStringList { saveQuestion });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_lsxsd"),
            QStringLiteral("gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,ls_yhje,ls_jsfs,ls_kmmc,"
                           "ls_yf,ls_yffs,ls_status,ls_th,ls_qk,a_name")),
        QStringList {
            "XS25031410001|100002|100001|2025-03-14|259.5|100|0.5|1|现金|6|我方付运费|0|0|0|"
            "admin" });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssp"),
                  QStringLiteral("g_sn,dw_name,g_zhxs,ls_sl,ls_zsl,ls_dj,ls_zje,ls_cbj2,ls_cbj,"
                                 "ls_zcb,ls_lsj,ls_cksl,ls_qxsl,id2,id3,t_ph,t_yxq")),
        (QStringList { "200001|件|10|2|20|110|220|5|50|100|150|2|0|0|0|B1|2026-06-30",
            "200002|袋|1|5|5|8|40|3|3|15|0|5|0|0|0||", "00000000||1|0|0|0|-0.5|||||0|0|0|||" }));
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db(), {}, {}))
        notes.append(entry.note);
    EXPECT_EQ(notes, QStringList { "增加未审核销售单XS25031410001，共2种商品" });
}

TEST_F(SalesTest, ASaleNotConfirmedOrRefusedWritesNothing)
{
    const QString before = snapshot();
    ui.setDefaultAnswer(false);
    const auto saved = sales::saveSale(session(),
        draft({ line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) }));
    EXPECT_EQ(saved.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(ui.asked, QStringList { saveQuestion });
    sales::SaleDraft badMode
        = draft({ line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) });
    badMode.header.settlementMode = QStringLiteral("3");
    EXPECT_FALSE(sales::saveSale(session(), badMode));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("结算方式“3”无效，应为 0、1 或 2！"));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

// Every typed amount of a sales header keeps the money limits, named as the screens name it: the
// paid amount comes in on a sale and goes back out on a return.
TEST_F(SalesTest, AbsurdHeaderAmountsAreRefusedByName)
{
    const QString before = snapshot();
    sales::SaleDraft d
        = draft({ line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) });
    d.header.paid = std::nan("");
    EXPECT_FALSE(sales::saveSale(session(), d));
    d.header.paid = 0;
    d.header.freight = 1e20;
    EXPECT_FALSE(sales::saveSale(session(), d));
    d.header.freight = 0;
    d.header.invoiceAmount = -1;
    EXPECT_FALSE(sales::saveSalesOrder(session(), d));
    d.header.invoiceAmount = 0;
    d.header.paid = -std::numeric_limits<double>::infinity();
    EXPECT_FALSE(sales::saveSalesReturn(session(), d));
    EXPECT_EQ(ui.informed,
        (QStringList { "实收金额“nan”不是数字！",
            "运费“1e+20”超出范围，应在 0 到 1000000000000 之间！", "发票金额不能为负数！",
            "实付金额“-inf”不是数字！" }));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(SalesTest, WithCheckOnSaveTheSaleAsksTheOtherQuestionAndIsCheckedAtOnce)
{
    setParameter(QStringLiteral("cs_shdj"), 1);
    const QString number = saveSale(
        draft({ line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) }, 40));
    EXPECT_EQ(ui.asked,
        QStringList { "单据保存后将直接审核，是否确认保存？\r\n\r\n保存后如果有问题可以在“销售退货"
                      "查询”功能中取消审核！" });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"), QStringLiteral("ls_status,ls_checker,ls_chkrq")),
        QStringList { "1|admin|2025-03-14" });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_goodslist")), 4); // 3 opening rows + 1
}

// The warehouse test of saving: a missing row or too little stock is refused without negative
// stock, asked about with it.
TEST_F(SalesTest, SavingTestsTheWarehouseStockOfEachGoods)
{
    test::addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
    setParameter(QStringLiteral("cs_kc"), 0);
    sales::SaleDraft other
        = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) });
    other.entry.warehouse = QStringLiteral("100002");
    EXPECT_FALSE(sales::saveSale(session(), other));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("当前仓库中商品‘板蓝根颗粒’不存在，不能销售。"));
    // Two lines of one goods count together: 30 + 11 bags of 40.
    const sales::SaleDraft twoLines
        = draft({ line(QStringLiteral("200002"), QStringLiteral("30"), QStringLiteral("8")),
            line(QStringLiteral("200002"), QStringLiteral("11"), QStringLiteral("8")) });
    EXPECT_FALSE(sales::saveSale(session(), twoLines));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("当前仓库中商品‘板蓝根颗粒’库存不足，不能销售。"));
    EXPECT_TRUE(ui.asked.isEmpty());

    setParameter(QStringLiteral("cs_kc"), 1);
    ui.answerNext(false);
    EXPECT_FALSE(sales::saveSale(session(), twoLines));
    EXPECT_EQ(ui.asked,
        QStringList { "当前仓库中商品‘板蓝根颗粒’库存不足，销售将会出现负库存，是否继续？" });
    EXPECT_EQ(saveSale(twoLines), QStringLiteral("XS25031410001"));
}

TEST_F(SalesTest, SavingTestsEachBatchSummedOverItsLines)
{
    setParameter(QStringLiteral("cs_kc"), 0);
    // 30 + 30 from batch B2 of 50, while the warehouse holds 150.
    const sales::SaleDraft d = draft({ line(QStringLiteral("200001"), QStringLiteral("30"),
                                           QStringLiteral("12"), QStringLiteral("B2")),
        line(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("12"),
            QStringLiteral("B2")) });
    EXPECT_FALSE(sales::saveSale(session(), d));
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral(
            "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001”：不能销售！"));
    // A batch without a row is not short: the check guards existing batches only.
    EXPECT_EQ(saveSale(draft({ line(QStringLiteral("200001"), QStringLiteral("30"),
                  QStringLiteral("12"), QStringLiteral("B9")) })),
        QStringLiteral("XS25031410001"));
}

class Prepayment : public SalesTest, public ::testing::WithParamInterface<std::pair<double, bool>>
{
};

// A prepayment of 50 does not cover 60 left unpaid; one of 60 does (the test is strictly greater).
TEST_P(Prepayment, IsAskedOnlyWhenItDoesNotCoverWhatIsLeftUnpaid)
{
    const auto [prepaid, asked] = GetParam();
    setParameter(QStringLiteral("cs_xsjgts"), 1);
    db().exec(QStringLiteral("insert into jxc_ysyfk (k_type,k_ghskh,k_rq,k_qcje,k_yfje,k_sfje,"
                             "k_ljje,k_flag) values ('kh','100002','2025-03-01',0,0,?,?,1)"),
        { prepaid, -prepaid });
    ui.setDefaultAnswer(true);
    saveSale(
        draft({ line(QStringLiteral("200002"), QStringLiteral("10"), QStringLiteral("8")) }, 20));
    const QString question
        = QStringLiteral("该客户当前的预付款余额为：%1，\r\n\r\n不足以支付本单的金额。"
                         "\r\n\r\n继续保存吗？")
              .arg(prepaid);
    EXPECT_EQ(ui.asked.contains(question), asked);
    EXPECT_EQ(ui.asked.size(), asked ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(
    SalesTest, Prepayment, ::testing::Values(std::pair { 50.0, true }, std::pair { 60.0, false }));

TEST_F(SalesTest, AnExpiredBatchIsAskedAboutOrRefusedWhenExpiredGoodsMayNotBeSold)
{
    receive(QStringLiteral("200001"), QStringLiteral("100001"), 10, 5, QStringLiteral("B0"),
        QStringLiteral("2025-03-13"));
    documents::LineDraft expired = line(
        QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("12"), QStringLiteral("B0"));
    expired.expiry = QStringLiteral("2025-03-13");
    const QString question = QStringLiteral("第1行：商品“阿莫西林胶囊”批号“B0”已过期（有效期至2025-"
                                            "03-13），\r\n\r\n确定要销售过期商品吗？");
    ui.answerNext(false);
    EXPECT_FALSE(sales::saveSale(session(), draft({ expired })));
    EXPECT_EQ(ui.asked, QStringList { question });

    setParameter(QStringLiteral("cs_cs017"), 1);
    ui.clear();
    EXPECT_FALSE(sales::saveSale(session(), draft({ expired })));
    EXPECT_EQ(ui.informed,
        QStringList {
            "第1行：商品“阿莫西林胶囊”批号“B0”已过期（有效期至2025-03-13），\r\n\r\n过期商品不能"
            "销售！" });
    EXPECT_TRUE(ui.asked.isEmpty());
    // Expiring on the sale date itself is not expired.
    expired.expiry = QStringLiteral("2025-03-14");
    ui.setDefaultAnswer(true);
    EXPECT_TRUE(sales::saveSale(session(), draft({ expired })).ok());
}
