#include "core/transaction.h"
#include "documents/texts.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "stock/stores.h"
#include "tests/sales/salestest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

class SalesReturn : public SalesTest
{
protected:
    void SetUp() override
    {
        SalesTest::SetUp();
        core::Transaction transaction(db());
        stock::ensureSettlementRows(session(), QStringLiteral("2025-03-14"));
        transaction.commit();
    }

    // A checked sale of 10 bags at 10 to 100002, settled in full, and its line's identity.
    qint64 soldBags()
    {
        const QString sale = saveSale(draft(
            { line(QStringLiteral("200002"), QStringLiteral("10"), QStringLiteral("10")) }, 100));
        EXPECT_TRUE(sales::checkSale(session(), sale));
        m_sale = sale;
        return db()
            .firstValue(QStringLiteral("select id2 from jxc_lsxssp where gl_djh=? and "
                                       "g_sn='200002'"),
                { sale })
            .toLongLong();
    }

    QString returned(double quantity, double refunded, qint64 saleLine = 0)
    {
        sales::SaleDraft d = draft(
            { line(QStringLiteral("200002"), QString::number(quantity), QStringLiteral("10")) },
            refunded);
        if (saleLine)
            d.entry.lines[0].columns.set(QStringLiteral("id2"), saleLine);
        return saveReturn(d);
    }

    QString m_sale;
};

} // namespace

TEST_F(SalesReturn, IsSavedWithItsAmountsNegatedItsOwnQuestionAndMarksTheSale)
{
    const qint64 soldLine = soldBags();
    ui.clear();
    const QString number = returned(10, 30, soldLine);
    EXPECT_EQ(number, QStringLiteral("XT25031410001"));
    EXPECT_EQ(ui.asked,
        QStringList {
            "单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n处于“未审核”状态的退货单，可以在"
            "“待审核\r\n\r\n退货单”面板中，进行修改及审核操作！" });
    EXPECT_EQ(rows(QStringLiteral("jxc_xsthd"),
                  QStringLiteral("gl_djh,th_yfje,th_sfje,th_jsfs,th_kmmc,th_status")),
        QStringList { number + "|-100|-30|1|现金|0" });
    EXPECT_EQ(rows(QStringLiteral("jxc_xsthsp"),
                  QStringLiteral("g_sn,th_sl,th_zsl,th_zje,th_cbj,th_zcb,id2")),
        QStringList { QStringLiteral("200002|10|10|100|3|30|%1").arg(soldLine) });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"), QStringLiteral("ls_th")), QStringList { "1" });

    // No more can come back than was sold, counting the other returns against the line.
    ui.clear();
    EXPECT_FALSE(sales::saveSalesReturn(session(), [&] {
        sales::SaleDraft d
            = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("10")) });
        d.entry.lines[0].columns.set(QStringLiteral("id2"), soldLine);
        return d;
    }()));
    EXPECT_EQ(
        ui.informed, QStringList { "第1行：退货数量超过销售单“" + m_sale + "”的可退数量 0！" });
}

class RefundedReturn : public SalesReturn,
                       public ::testing::WithParamInterface<std::pair<double, double>>
{
};

// A refund equal to the return leaves the customer's balance; nothing refunded lowers it by all.
TEST_P(RefundedReturn, MovesTheCustomersBalanceByWhatWasNotRefunded)
{
    const auto [refunded, change] = GetParam();
    soldBags();
    const double before = balance();
    const QString number = returned(10, refunded);
    ASSERT_TRUE(sales::checkSalesReturn(session(), number));
    EXPECT_DOUBLE_EQ(balance() - before, change);
    EXPECT_DOUBLE_EQ(partyFigure(), balance());
    EXPECT_EQ(rows(QStringLiteral("jxc_ysyfk"), QStringLiteral("k_djlx,k_djtxt,k_yfje,k_sfje"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { QStringLiteral("XT|顾客退货单|-100|%1").arg(-refunded) });
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_je"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { QStringLiteral("顾客退货|%1").arg(-refunded) });
}

INSTANTIATE_TEST_SUITE_P(SalesReturn, RefundedReturn,
    ::testing::Values(std::pair { 100.0, 0.0 }, std::pair { 0.0, -100.0 }));

TEST_F(SalesReturn, CheckBringsTheGoodsBackAndUncheckRestoresEverything)
{
    const qint64 soldLine = soldBags();
    const QString number = returned(4, 40, soldLine);
    const QString before = snapshot();
    ASSERT_TRUE(sales::checkSalesReturn(session(), number));
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,gl_dj,gl_sl,gl_zje,gl_je,gl_cbj,gl_zcb,gl_lr,gl_kc"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "xt|10|-4|-40|-40|3|-12|-28|34" });
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl,kc_zsl,kc_xssl"),
                  QStringLiteral("g_sn='200002'")),
        QStringList { "34|34|6" });
    EXPECT_EQ(rows(QStringLiteral("jxc_goods"), QStringLiteral("g_kc,g_xspl"),
                  QStringLiteral("g_sn='200002'")),
        QStringList { "34|2" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_tkc"), QStringLiteral("t_sl"), QStringLiteral("g_sn='200002'")),
        QStringList { "34" });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssp"), QStringLiteral("ls_qxsl"),
                  QStringLiteral("g_sn='200002'")),
        QStringList { "4" });

    ui.clear();
    ASSERT_TRUE(sales::uncheckSalesReturn(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("您的操作将取消当前选中的已审核单据：%1，确认吗？").arg(number) });
    // The uncheck frees the sales line and, as it should, drops the return's link and remark.
    db().exec(QStringLiteral("update jxc_xsthsp set id2=? where gl_djh=?"), { soldLine, number });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(SalesReturn, AReturnWithoutLinesIsNeverChecked)
{
    db().exec(
        QStringLiteral("insert into jxc_xsthd (gl_djh,kh_sn,ck_sn,th_xsrq,th_status,th_yfje,"
                       "th_sfje) values ('XT25031410009','100002','100001','2025-03-14',0,-50,0)"));
    const QString before = snapshot();
    const Outcome outcome = sales::checkSalesReturn(session(), QStringLiteral("XT25031410009"));
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

// Two returns of one sales line, 4 and 3: unchecking the second gives back only its own 3, so the
// line still counts the 4 that stay returned, and the 6 left may still be returned, no more.
TEST_F(SalesReturn, UncheckingOneOfTwoReturnsKeepsWhatTheOtherReturned)
{
    const qint64 soldLine = soldBags();
    const QString first = returned(4, 0, soldLine);
    ASSERT_TRUE(sales::checkSalesReturn(session(), first));
    const QString second = returned(3, 0, soldLine);
    ASSERT_TRUE(sales::checkSalesReturn(session(), second));
    const auto returnedOnLine = [&] {
        return rows(QStringLiteral("jxc_lsxssp"), QStringLiteral("ls_qxsl"),
            QStringLiteral("g_sn='200002'"));
    };
    EXPECT_EQ(returnedOnLine(), QStringList { "7" });
    ASSERT_TRUE(sales::uncheckSalesReturn(session(), second));
    EXPECT_EQ(returnedOnLine(), QStringList { "4" });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"), QStringLiteral("ls_crk"),
                  QStringLiteral("gl_djh=?"), { m_sale }),
        QStringList { "0" });
    ui.clear();
    EXPECT_FALSE(sales::saveSalesReturn(session(), [&] {
        sales::SaleDraft d
            = draft({ line(QStringLiteral("200002"), QStringLiteral("7"), QStringLiteral("10")) });
        d.entry.lines[0].columns.set(QStringLiteral("id2"), soldLine);
        return d;
    }()));
    EXPECT_EQ(
        ui.informed, QStringList { "第1行：退货数量超过销售单“" + m_sale + "”的可退数量 6！" });
    EXPECT_FALSE(returned(6, 0, soldLine).isEmpty());
}
