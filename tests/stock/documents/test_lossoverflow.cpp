#include "stock/documents/entry.h"
#include "stock/documents/lossoverflow.h"
#include "tests/stock/documents/stockdocstest.h"

using namespace medistock;
using namespace medistock::test;

namespace {

enum class Report { Loss, Overflow };

Result<QString> saveReport(
    Report report, const shell::Session &session, const documents::DocumentDraft &draft)
{
    return report == Report::Loss ? stock::saveLoss(session, draft)
                                  : stock::saveOverflow(session, draft);
}

Outcome checkReport(Report report, shell::Session &session, const QString &number)
{
    return report == Report::Loss ? stock::checkLoss(session, number)
                                  : stock::checkOverflow(session, number);
}

Outcome uncheckReport(Report report, shell::Session &session, const QString &number)
{
    return report == Report::Loss ? stock::uncheckLoss(session, number)
                                  : stock::uncheckOverflow(session, number);
}

} // namespace

class LossOverflowTest : public StockDocsTest
{
protected:
    QString saveThree(Report report, const QString &price, const QString &batch = "B1",
        const QString &date = "2025-03-14")
    {
        documents::LineDraft l = line(amoxil, "3", price, batch);
        l.remark = "破损";
        documents::DocumentDraft d = draft(date, mainStore, { l });
        d.note = "月中检查";
        const auto saved = saveReport(report, session(), d);
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        return saved.ok() ? saved.value() : QString();
    }
};

TEST_F(LossOverflowTest, ALossWritesTheGoodsOffEveryStore)
{
    const QString number = saveThree(Report::Loss, "10");
    EXPECT_EQ(number, "BS25031410001");
    ASSERT_TRUE(stock::checkLoss(session(), number).ok());

    EXPECT_EQ(rows("select gl_flag,gl_kdrq,gl_dj,gl_sl,gl_zje,gl_je,gl_sysl,ghs_sn,ghs_name,gl_dzl,"
                   "gl_taxdj,gl_bz,gl_note,u_name,ck_name,t_ph,gl_checker,gl_chkrq from "
                   "jxc_goodslist where gl_djh=?",
                  { number }),
        QStringList { "bs|2025-03-14|10|-3|-30|-30|3||商品报损|1|10|破损|月中检查|默认员工|主仓库|"
                      "B1|admin|2025-03-14" });
    // A loss sets no average: what is left keeps 12.
    EXPECT_EQ(
        runningColumns(amoxil), (QStringList { "cj 20 240 20 12 240", "bs -3 -30 17 12 204" }));
    EXPECT_EQ(rows("select kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=? and ck_sn=?",
                  { amoxil, mainStore }),
        QStringList { "17|17|12" });
    EXPECT_EQ(rows("select g_kc,g_pjjj from jxc_goods where g_sn=?", { amoxil }),
        QStringList { "27|13" });
    EXPECT_EQ(rows("select t_sl from jxc_tkc where g_sn=? and ck_sn=?", { amoxil, mainStore }),
        QStringList { "17" });
    EXPECT_EQ(rows("select js_sl,js_zje from jxc_kcjs where js_rq='2025-03-14' and ck_sn=?",
                  { mainStore }),
        QStringList { "27|290" });
    // Three at the average of 12 are worth 36, the report says 30.
    EXPECT_EQ(rows("select gl_djh,fy_rq,fy_lx,fy_je,fy_flag,u_sn,de_sn,fy_kmmc,fy_chk,fy_note,"
                   "a_name from jxc_yyfy"),
        QStringList { "BS25031410001|2025-03-14|费用|-6|1|100001|100001|现金|1|"
                      "报损单BS25031410001成本差额|admin" });
    EXPECT_EQ(lastLog(), "增加已审核商品报损单BS25031410001，共1种商品");
}

TEST_F(LossOverflowTest, ALossFromABatchWithoutStockDrivesItNegative)
{
    const QString number = saveThree(Report::Loss, "", "X9");
    ASSERT_TRUE(stock::checkLoss(session(), number).ok());
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(rows("select t_ph,t_sl from jxc_tkc where g_sn=? and ck_sn=? order by t_ph",
                  { amoxil, mainStore }),
        (QStringList { "B1|20", "X9|-3" }));
    EXPECT_EQ(rowCount(db(), "jxc_yyfy"), 0);
}

TEST_F(LossOverflowTest, GoodsWithoutAnAverageAreValuedAtTheirWarehouseCost)
{
    addGoods({ "200005", "新到药品" });
    const auto saved = stock::saveOverflow(
        session(), draft("2025-03-14", mainStore, { line("200005", "4", "9", "N1") }));
    ASSERT_TRUE(saved.ok());
    ASSERT_TRUE(stock::checkOverflow(session(), saved.value()).ok());
    EXPECT_EQ(runningColumns("200005"), QStringList { "by 4 36 4 0 0" });
    EXPECT_EQ(rows("select kc_sl,kc_cbj from jxc_kcsp where g_sn='200005'"), QStringList { "4|9" });
    EXPECT_EQ(rowCount(db(), "jxc_yyfy"), 0);
}

struct CostDifference
{
    Report report;
    const char *price;
    const char *booked; // "fy_lx|fy_je|fy_flag|fy_note", empty when nothing is booked
};

class CostDifferenceTest : public LossOverflowTest,
                           public ::testing::WithParamInterface<CostDifference>
{
};

TEST_P(CostDifferenceTest, TheDocumentValueAgainstTheStockValueAtTheAverage)
{
    const CostDifference c = GetParam();
    const QString number = saveThree(c.report, c.price);
    ASSERT_TRUE(checkReport(c.report, session(), number).ok());
    const QStringList booked = rows("select fy_lx,fy_je,fy_flag,fy_note from jxc_yyfy");
    EXPECT_EQ(booked.join(""), *c.booked ? QString::fromUtf8(c.booked).arg(number) : QString());
}

INSTANTIATE_TEST_SUITE_P(Prices, CostDifferenceTest,
    ::testing::Values(CostDifference { Report::Loss, "12", "" },
        CostDifference { Report::Loss, "", "" },
        CostDifference { Report::Loss, "10", "费用|-6|1|报损单%1成本差额" },
        CostDifference { Report::Loss, "13", "费用|3|1|报损单%1成本差额" },
        CostDifference { Report::Overflow, "12", "" },
        CostDifference { Report::Overflow, "15", "收入|-9|2|报溢单%1成本差额" },
        CostDifference { Report::Overflow, "11.5", "收入|1.5|2|报溢单%1成本差额" }));

class LossOverflowRestoreTest : public LossOverflowTest,
                                public ::testing::WithParamInterface<Report>
{
};

TEST_P(LossOverflowRestoreTest, CheckThenUncheckRestoresEverything)
{
    const Report report = GetParam();
    // A later sale, whose running columns the report changes and gives back; two lines of one
    // goods, so that taking back the second must not count the first again.
    postSale("XS1", "2025-03-20", { amoxil, 4, 20 });
    const auto saved = saveReport(report, session(),
        draft("2025-03-12", mainStore, { line(amoxil, "3", "10"), line(amoxil, "2", "12") }));
    ASSERT_TRUE(saved.ok());
    const QString number = saved.value();
    const QString before = everything();
    ASSERT_TRUE(checkReport(report, session(), number).ok());
    EXPECT_EQ(runningColumns(amoxil).last(),
        report == Report::Loss ? "xs 0 0 11 12 132" : "xs 0 0 21 12 252");
    EXPECT_EQ(rowCount(db(), "jxc_yyfy"), 1);

    ui.answerNext(true);
    ASSERT_TRUE(uncheckReport(report, session(), number).ok());
    EXPECT_EQ(
        ui.asked, QStringList { "您的操作将取消当前选中的已审核单据：" + number + "，确认吗？" });
    EXPECT_EQ(changedSince(before), QStringList {});
    EXPECT_EQ(
        lastLog(), (report == Report::Loss ? "取消审核商品报损单" : "取消审核商品报溢单") + number);
}

INSTANTIATE_TEST_SUITE_P(
    Reports, LossOverflowRestoreTest, ::testing::Values(Report::Loss, Report::Overflow));

TEST_F(LossOverflowTest, UncheckNeedsTheRightThatNamesTheReport)
{
    addStockOperator("保管员", "1111111111111");
    const QString loss = saveThree(Report::Loss, "12");
    const QString overflow = saveThree(Report::Overflow, "12");
    ASSERT_TRUE(stock::checkLoss(session(), loss).ok());
    ASSERT_TRUE(stock::checkOverflow(session(), overflow).ok());
    const QString before = everything();
    loginAs("保管员");
    EXPECT_FALSE(stock::uncheckLoss(session(), loss).ok());
    EXPECT_FALSE(stock::uncheckOverflow(session(), overflow).ok());
    EXPECT_EQ(ui.informed,
        (QStringList { "您没有取消审核商品报损单的权限！", "您没有取消审核商品报溢单的权限！" }));
    EXPECT_EQ(changedSince(before), QStringList {});
}
