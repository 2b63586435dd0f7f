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

class SaleUncheck : public SalesTest
{
protected:
    void SetUp() override
    {
        SalesTest::SetUp();
        // The settlement rows of the day exist before, as after, a check and its uncheck.
        core::Transaction transaction(db());
        stock::ensureSettlementRows(session(), QStringLiteral("2025-03-14"));
        stock::ensureSettlementRows(session(), QStringLiteral("2025-03-10"));
        transaction.commit();
    }

    QString savedSale(const QString &date, double paid)
    {
        sales::SaleDraft d
            = draft({ line(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("120"),
                          QStringLiteral("B1"), QStringLiteral("件")),
                        line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")) },
                paid);
        d.entry.date = date;
        d.entry.discount = 2;
        d.header.freight = 6;
        d.header.freightTerms = QStringLiteral("我方付运费");
        return saveSale(d);
    }
    QString dumpWithoutSettlement()
    {
        return test::dumpDatabase(db(),
            { QStringLiteral("jxc_log"), QStringLiteral("sqlite_sequence"),
                QStringLiteral("jxc_kcjs") });
    }
};

} // namespace

// Everything the check wrote goes: stock, counters, ledger and money rows, running balances,
// party figures and the status; only the log stays.
TEST_F(SaleUncheck, CheckThenUncheckRestoresEveryStoreBalanceAndStatus)
{
    setParameter(QStringLiteral("cs_kp"), 1);
    const QString number = savedSale(QStringLiteral("2025-03-14"), 100);
    const QString before = snapshot();
    ASSERT_TRUE(sales::checkSale(session(), number));
    ASSERT_NE(snapshot(), before);
    ui.clear();
    ASSERT_TRUE(sales::uncheckSale(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("您的操作将取消当前选中的已审核单据：%1，确认吗？").arg(number) });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

// A sale dated before another checked one slots in before it and goes again: the later sale's
// running stock and running balance are as if the earlier had never been checked. (The day's
// settlement of the check date keeps what it was settled at; settlement rows are not unposted.)
TEST_F(SaleUncheck, UncheckingAnEarlierSaleRecomputesTheLaterRunningFigures)
{
    const QString later = savedSale(QStringLiteral("2025-03-14"), 50);
    const QString earlier = savedSale(QStringLiteral("2025-03-10"), 20);
    ASSERT_TRUE(sales::checkSale(session(), later));
    const QString laterAlone = dumpWithoutSettlement();
    ASSERT_TRUE(sales::checkSale(session(), earlier));
    EXPECT_EQ(rows(QStringLiteral("jxc_ysyfk"), QStringLiteral("gl_djh,k_ljje")),
        (QStringList { later + "|246", earlier + "|138" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_kc"),
                  QStringLiteral("gl_djh=? and g_sn='200001'"), { later }),
        QStringList { "130" });
    ASSERT_TRUE(sales::uncheckSale(session(), earlier));
    EXPECT_EQ(test::differences(laterAlone, dumpWithoutSettlement()), QStringList {});
}

// Two lines of one goods from two batches: unchecking withdraws both ledger rows, and the later
// sale's running figures come back to what they were without the earlier sale.
TEST_F(SaleUncheck, TwoLinesOfOneGoodsAreWithdrawnWithoutCountingEachOther)
{
    const QString later = savedSale(QStringLiteral("2025-03-14"), 50);
    sales::SaleDraft twoBatches = draft({ line(QStringLiteral("200001"), QStringLiteral("3"),
                                              QStringLiteral("12"), QStringLiteral("B1")),
        line(QStringLiteral("200001"), QStringLiteral("4"), QStringLiteral("12"),
            QStringLiteral("B2")) });
    twoBatches.entry.date = QStringLiteral("2025-03-10");
    const QString earlier = saveSale(twoBatches);
    ASSERT_TRUE(sales::checkSale(session(), later));
    const QString laterAlone = dumpWithoutSettlement();
    ASSERT_TRUE(sales::checkSale(session(), earlier));
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_kc"),
                  QStringLiteral("gl_djh=? and g_sn='200001'"), { later }),
        QStringList { "133" });
    ASSERT_TRUE(sales::uncheckSale(session(), earlier));
    EXPECT_EQ(test::differences(laterAlone, dumpWithoutSettlement()), QStringList {});
}

TEST_F(SaleUncheck, IsRefusedWhileUncheckedIssuedReturnedOrCheckedByAnother)
{
    const QString number = savedSale(QStringLiteral("2025-03-14"), 100);
    EXPECT_FALSE(sales::uncheckSale(session(), number));
    EXPECT_EQ(ui.informed.last(), documents::texts::notChecked(number));
    ASSERT_TRUE(sales::checkSale(session(), number));

    db().exec(QStringLiteral("insert into jxc_cksp (gl_djh,gl_djh2,g_sn) values (?,?,?)"),
        { QStringLiteral("CK25031410001"), number, QStringLiteral("200001") });
    EXPECT_FALSE(sales::uncheckSale(session(), number));
    EXPECT_EQ(ui.informed.last(),
        "该单据" + number
            + "已有出库信息，不能取消审核！\r\n\r\n请在商品出库单中删除该单据的所有信息，"
              "然后再取消审核！");
    db().exec(QStringLiteral("delete from jxc_cksp"));

    const qint64 soldLine = db().firstValue(QStringLiteral("select id2 from jxc_lsxssp where "
                                                           "g_sn='200002'"))
                                .toLongLong();
    sales::SaleDraft back
        = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) });
    back.entry.lines[0].columns.set(QStringLiteral("id2"), soldLine);
    const QString returned = saveReturn(back);
    EXPECT_FALSE(sales::uncheckSale(session(), number));
    EXPECT_EQ(ui.informed.last(),
        "该单据" + number
            + "已有退货信息，不能取消审核！\r\n\r\n请先删除或取消审核对应的顾客退货单！");
    ASSERT_TRUE(sales::deleteSalesReturn(session(), returned));

    // Checked by 小李, who may check but not uncheck: 小王's uncheck right does not reach it.
    ASSERT_TRUE(sales::uncheckSale(session(), number));
    test::addOperatorWithRights(session(), QStringLiteral("小李"), { { "xsgl", "0000001" } });
    test::addOperatorWithRights(session(), QStringLiteral("小王"), { { "xsgl", "00000000001" } });
    loginAs(QStringLiteral("小李"));
    ASSERT_TRUE(sales::checkSale(session(), number));
    loginAs(QStringLiteral("小王"));
    const QString unchanged = snapshot();
    EXPECT_FALSE(sales::uncheckSale(session(), number));
    EXPECT_EQ(ui.informed.last(), "单据：" + number + "，的审核人：小李\r\n不允许其他人取消审核！");
    EXPECT_EQ(test::differences(unchanged, snapshot()), QStringList {});
}

TEST_F(SaleUncheck, NoToTheQuestionLeavesTheSaleChecked)
{
    const QString number = savedSale(QStringLiteral("2025-03-14"), 100);
    ASSERT_TRUE(sales::checkSale(session(), number));
    const QString checked = snapshot();
    ui.answerNext(false);
    const Outcome outcome = sales::uncheckSale(session(), number);
    EXPECT_EQ(outcome.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(test::differences(checked, snapshot()), QStringList {});
}
