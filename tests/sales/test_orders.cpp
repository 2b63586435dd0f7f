#include "sales/entry.h"
#include "sales/orders.h"
#include "sales/salecheck.h"
#include "tests/sales/salestest.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

class SalesOrders : public SalesTest
{
protected:
    // A checked order of 10 boxes of 200001 at 12 and 3 bags of 200002 at 8, mode "0", 50 paid.
    QString checkedOrder()
    {
        sales::SaleDraft d
            = draft({ line(QStringLiteral("200001"), QStringLiteral("10"), QStringLiteral("12"),
                          QStringLiteral("B1")),
                        line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("8")) },
                50);
        d.header.settlementMode = QStringLiteral("0");
        d.entry.note = QStringLiteral("月底送货");
        const QString number = saveOrder(d);
        EXPECT_TRUE(sales::checkSalesOrder(session(), number));
        return number;
    }
    qint64 lineOf(const QString &order, const QString &goods)
    {
        return db()
            .firstValue(QStringLiteral("select id2 from jxc_xssp where gl_djh=? and g_sn=?"),
                { order, goods })
            .toLongLong();
    }
};

} // namespace

TEST_F(SalesOrders, CheckingAnOrderWritesTheDiscountAndStartsEveryLineUndelivered)
{
    const QString order = checkedOrder();
    EXPECT_EQ(order, QStringLiteral("XD25031410001"));
    EXPECT_EQ(rows(QStringLiteral("jxc_xsd"),
                  QStringLiteral("ls_yfje,ls_sfje,ls_yhje,ls_status,ls_checker,ls_chkrq,ls_qk")),
        QStringList { "144|50|94|1|admin|2025-03-14|0" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_xssp"), QStringLiteral("g_sn,ls_cksl,ls_dhbz,id2-id,ls_cbj2")),
        (QStringList { "200001|0|0|0|5", "200002|0|0|0|3" }));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_goodslist")), 3); // the opening rows only
}

// An order line of 10 with 4 delivered is offered with 6 and taken over as 6.
TEST_F(SalesOrders, OnlyTheOpenQuantityIsOfferedAndTakenOver)
{
    const QString order = checkedOrder();
    db().exec(QStringLiteral("update jxc_xssp set ls_cksl=4 where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_xssp set ls_cksl=3 where g_sn='200002'"));
    db().exec(QStringLiteral("update jxc_kcsp set kc_cbj=5.5 where g_sn='200001'"));

    const QList<sales::OpenOrderLine> open = sales::openOrderLines(
        session(), { {}, QStringLiteral("9999-12-31"), QStringLiteral("华康") });
    ASSERT_EQ(open.size(), 1);
    EXPECT_EQ(open[0].order, order);
    EXPECT_DOUBLE_EQ(open[0].open, 6);
    EXPECT_TRUE(sales::openOrderLines(session(), { {}, {}, QStringLiteral("仁和") }).isEmpty());

    sales::SaleDraft sale;
    sale.entry.date = QStringLiteral("2025-03-14");
    ASSERT_TRUE(sales::takeOverOrder(session(), order, sale));
    EXPECT_EQ(sale.entry.party, QStringLiteral("100002"));
    EXPECT_EQ(sale.entry.warehouse, QStringLiteral("100001"));
    EXPECT_EQ(sale.entry.note, QStringLiteral("月底送货"));
    EXPECT_EQ(sale.header.settlementMode, QStringLiteral("0"));
    ASSERT_EQ(sale.entry.lines.size(), 1);
    EXPECT_EQ(sale.entry.lines[0].quantity, QStringLiteral("6"));
    const QString number = saveSale(sale);
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssp"),
                  QStringLiteral("g_sn,ls_sl,ls_dj,ls_zje,ls_cbj2,ls_zcb,gl_djh2,id3,t_ph"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { QStringLiteral("200001|6|12|72|5.5|33|%1|%2|B1")
                          .arg(order)
                          .arg(lineOf(order, QStringLiteral("200001"))) });
    EXPECT_EQ(rows(QStringLiteral("jxc_xsd"), QStringLiteral("ls_qk")), QStringList { "1" });

    // The check delivers the order line, the uncheck takes it back.
    ASSERT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(rows(QStringLiteral("jxc_xssp"), QStringLiteral("ls_cksl,ls_dhbz"),
                  QStringLiteral("g_sn='200001'")),
        QStringList { "10|1" });
    ASSERT_TRUE(sales::uncheckSale(session(), number));
    EXPECT_EQ(rows(QStringLiteral("jxc_xssp"), QStringLiteral("ls_cksl,ls_dhbz"),
                  QStringLiteral("g_sn='200001'")),
        QStringList { "4|0" });
}

TEST_F(SalesOrders, SingleLinesAreTakenOverAndNoMoreThanIsOpen)
{
    const QString order = checkedOrder();
    sales::SaleDraft sale;
    sale.entry.date = QStringLiteral("2025-03-14");
    ASSERT_TRUE(
        sales::takeOverOrderLines(session(), { lineOf(order, QStringLiteral("200002")) }, sale));
    ASSERT_EQ(sale.entry.lines.size(), 1);
    EXPECT_EQ(sale.entry.lines[0].goods, QStringLiteral("200002"));
    sale.entry.lines[0].quantity = QStringLiteral("4");
    ui.clear();
    EXPECT_FALSE(sales::saveSale(session(), sale));
    EXPECT_EQ(ui.informed, QStringList { "第1行：超过销售订单“" + order + "”的未出库数量 3！" });

    EXPECT_FALSE(sales::takeOverOrderLines(session(), { 9999 }, sale));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("销售订单中没有编号为 9999 的已审核商品行！"));
    const QString unchecked = saveOrder(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }));
    EXPECT_FALSE(sales::takeOverOrder(session(), unchecked, sale));
    EXPECT_EQ(ui.informed.last(), "销售订单：" + unchecked + "尚未审核，不能导入！");
}

// A checked order is deleted after a question: its header and lines go, so nothing of it is
// offered for take-over any more; "No" changes nothing. An unchecked one goes without a question.
TEST_F(SalesOrders, ACheckedOrderIsDeletedAfterTheQuestionAndIsOfferedNoMore)
{
    const QString order = checkedOrder();
    const QString before = snapshot();
    const QString question = "销售订单" + order + "已审核，删除后不能再导入销售单，确认删除吗？";
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(sales::deleteSalesOrder(session(), order));
    EXPECT_EQ(ui.asked, QStringList { question });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});

    ui.clear();
    ASSERT_TRUE(sales::deleteSalesOrder(session(), order));
    EXPECT_EQ(ui.asked, QStringList { question });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xsd")), 0);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xssp")), 0);
    EXPECT_TRUE(sales::openOrderLines(session(), {}).isEmpty());
    sales::SaleDraft sale;
    EXPECT_FALSE(sales::takeOverOrder(session(), order, sale));
    EXPECT_EQ(rows(QStringLiteral("jxc_log"), QStringLiteral("log_note"),
                  QStringLiteral("log_note like ?"), { QStringLiteral("删除%") }),
        QStringList { "删除已审核销售订单" + order });

    const QString unchecked = saveOrder(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }));
    ui.clear();
    ASSERT_TRUE(sales::deleteSalesOrder(session(), unchecked));
    EXPECT_EQ(ui.asked, QStringList {});
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xsd")), 0);
}
