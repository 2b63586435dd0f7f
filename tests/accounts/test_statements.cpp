#include "accounts/statements.h"
#include "purchasing/entry.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "tests/sales/salestest.h"
#include "tests/support/documentrows.h"

#include <QStringList>

using namespace medistock;
using accounts::StatementFilter;

namespace {

QString n(double value)
{
    return QString::number(value, 'g', 12);
}

QStringList show(const QList<accounts::StatementDocument> &rows)
{
    QStringList lines;
    for (const auto &r : rows)
        lines.append(
            QStringList { r.number, r.date, n(r.due), n(r.paid), n(r.unpaid), n(r.discount), r.kind,
                r.sort, r.party, r.partyName, r.warehouse, n(r.freight), r.freightMode }
                .join(QLatin1Char('|')));
    return lines;
}

QStringList show(const QList<accounts::JournalLine> &rows)
{
    QStringList lines;
    for (const auto &r : rows)
        lines.append(QStringList { r.date, r.number, r.kind, r.goods, r.party, n(r.quantity),
            n(r.amount), n(r.profit), n(r.profitRate) }
                         .join(QLatin1Char('|')));
    return lines;
}

QStringList show(const QList<accounts::GoodsTotals> &rows)
{
    QStringList lines;
    for (const auto &r : rows)
        lines.append(QStringList { r.goods, r.goodsName, r.unit, n(r.stock), n(r.quantity),
            n(r.amount), n(r.beforeTax), n(r.profit), n(r.profitRate), r.lastDate }
                         .join(QLatin1Char('|')));
    return lines;
}

QStringList show(const QList<accounts::GroupTotals> &rows)
{
    QStringList lines;
    for (const auto &r : rows)
        lines.append(QStringList { r.group, n(r.quantity), n(r.amount), n(r.profit) }.join(
            QLatin1Char('|')));
    return lines;
}

// The sales fixture's goods (200001 at 5 in batch B1, 200002 at 3) and customers 华康药店
// (100002, type "三级", no region) and 仁和诊所 (100003, "零售客户", region 城东). In March:
// sale XS25031010001 to 华康药店 of 2 at 12 (paid 10, the rest owed, freight 3 we pay), its
// return XT25031010001 of 1 at 12 the same day (refunded), and sale XS25031210001 to 仁和诊所 of
// 5 bags at 8 (paid) and 1 bag given away at 0.
class Statements : public test::SalesTest
{
protected:
    void SetUp() override
    {
        SalesTest::SetUp();
        db().exec(QStringLiteral("update jxc_khxx set z_name=? where kh_sn=?"),
            { QStringLiteral("城东"), QStringLiteral("100003") });
        sale(QStringLiteral("2025-03-10"), QStringLiteral("100002"),
            { line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("12"),
                QStringLiteral("B1")) },
            10, 3);
        sales::SaleDraft back = draft({ line(QStringLiteral("200001"), QStringLiteral("1"),
                                          QStringLiteral("12"), QStringLiteral("B1")) },
            12);
        back.entry.date = QStringLiteral("2025-03-10");
        const QString returned = saveReturn(back);
        EXPECT_TRUE(sales::checkSalesReturn(session(), returned));
        sale(QStringLiteral("2025-03-12"), QStringLiteral("100003"),
            { line(QStringLiteral("200002"), QStringLiteral("5"), QStringLiteral("8")),
                line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("0")) },
            40);
    }

    QString sale(const QString &date, const QString &customer,
        const QList<documents::LineDraft> &lines, double paid, double freight = 0)
    {
        sales::SaleDraft d = draft(lines, paid);
        d.entry.date = date;
        d.entry.party = customer;
        d.header.settlementMode = QStringLiteral("2");
        d.header.freight = freight;
        d.header.freightTerms = freight > 0 ? QStringLiteral("我方付运费") : QString();
        const QString number = saveSale(d);
        EXPECT_TRUE(sales::checkSale(session(), number));
        return number;
    }

    static StatementFilter march(const QString &party = {}, const QString &text = {})
    {
        return { QStringLiteral("2025-03-01"), QStringLiteral("2025-03-14"), party, text, false };
    }
};

const QString saleA = QStringLiteral(
    "XS25031010001|2025-03-10|24|10|14|0|商品销售付款|1|100002|华康药店|主仓库|3|我方付运费");
const QString returnA = QStringLiteral(
    "XT25031010001|2025-03-10|-12|-12|0|0|销售退货支出|2|100002|华康药店|主仓库|0|");
const QString saleB
    = QStringLiteral("XS25031210001|2025-03-12|40|40|0|0|商品销售付款|1|100003|仁和诊所|主仓库|0|");

} // namespace

// A return lists with its stored negative amounts; within a day the sale comes first, whichever
// the date order.
TEST_F(Statements, CustomerDocumentsInBothDateOrders)
{
    EXPECT_EQ(show(accounts::customerDocuments(session(), march())),
        (QStringList { saleA, returnA, saleB }));
    StatementFilter descending = march();
    descending.descending = true;
    EXPECT_EQ(show(accounts::customerDocuments(session(), descending)),
        (QStringList { saleB, saleA, returnA }));
}

TEST_F(Statements, CustomerDocumentsFilters)
{
    EXPECT_EQ(show(accounts::customerDocuments(session(), march(QStringLiteral("100003")))),
        QStringList { saleB });
    EXPECT_EQ(show(accounts::customerDocuments(session(), march({}, QStringLiteral("XT")))),
        QStringList { returnA });
    // The end date counts to the end of its day, also for a date kept with its time.
    db().exec(QStringLiteral("update jxc_lsxsd set ls_xsrq=? where gl_djh=?"),
        { QStringLiteral("2025-03-12 18:30:00"), QStringLiteral("XS25031210001") });
    StatementFilter twelfth { QStringLiteral("2025-03-11"), QStringLiteral("2025-03-12") };
    EXPECT_EQ(accounts::customerDocuments(session(), twelfth).size(), 1);
    twelfth.to = QStringLiteral("2025-03-11");
    EXPECT_EQ(accounts::customerDocuments(session(), twelfth).size(), 0);
}

// The line detail shows a return's quantity and amount as what came back.
TEST_F(Statements, LineDetailShowsReturnsPositiveWithTheirWarehouse)
{
    const accounts::DocumentLines back
        = accounts::statementDocumentLines(session(), QStringLiteral("XT25031010001"));
    EXPECT_EQ(back.caption, QStringLiteral("  入货仓库：主仓库"));
    EXPECT_EQ(show(back.lines),
        QStringList { "2025-03-10|XT25031010001|xt|200001|100002|1|12|-7|58.33" });
    const accounts::DocumentLines sold
        = accounts::statementDocumentLines(session(), QStringLiteral("XS25031010001"));
    EXPECT_EQ(sold.caption, QStringLiteral("  出货仓库：主仓库"));
    EXPECT_EQ(show(sold.lines),
        QStringList { "2025-03-10|XS25031010001|xs|200001|100002|2|24|14|58.33" });
}

TEST_F(Statements, FreightSummaryPerCustomerAndMode)
{
    const QList<accounts::FreightSummary> rows = accounts::customerFreight(session(), march());
    ASSERT_EQ(rows.size(), 1);
    const accounts::FreightSummary &r = rows.first();
    EXPECT_EQ(QStringList({ r.party, r.partyName, r.freightMode, n(r.due), n(r.paid), n(r.discount),
                              n(r.freight), n(r.packing), n(r.quantity) })
                  .join(QLatin1Char('|')),
        QStringLiteral("100002|华康药店|我方付运费|24|10|0|3|0|2"));
    EXPECT_TRUE(accounts::customerFreight(session(), march({}, QStringLiteral("仁和"))).isEmpty());
}

// Returns count negative in the sums; a row without an amount has a profit rate of 0.
TEST_F(Statements, WhatCustomersBought)
{
    EXPECT_EQ(show(accounts::customerGoods(session(), march())),
        (QStringList { "200001|阿莫西林胶囊|盒|149|1|12|12|7|58.33|2025-03-10",
            "200002|板蓝根颗粒|袋|34|6|40|40|22|55|2025-03-12" }));
    EXPECT_EQ(
        show(accounts::customerGoods(session(), march({}, QStringLiteral("板蓝")))).size(), 1);
    EXPECT_EQ(show(accounts::customerJournal(session(), march(QStringLiteral("100003")))),
        (QStringList { "2025-03-12|XS25031210001|xs|200002|100003|5|40|25|62.5",
            "2025-03-12|XS25031210001|xs|200002|100003|1|0|-3|0" }));
    const QList<accounts::MonthTotals> months = accounts::customerMonths(session(), march());
    ASSERT_EQ(months.size(), 1);
    EXPECT_EQ(QStringList({ months[0].month, n(months[0].quantity), n(months[0].amount),
                              n(months[0].profit) })
                  .join(QLatin1Char('|')),
        QStringLiteral("2025-03|8|64|36"));
}

TEST_F(Statements, ByCustomerTypeAndRegion)
{
    EXPECT_EQ(show(accounts::byCustomerType(session(), march(), QStringLiteral("所有类型"))),
        (QStringList { "三级|1|12|7", "零售客户|6|40|22" }));
    EXPECT_EQ(show(accounts::byCustomerType(session(), march(), QStringLiteral("零售"))),
        QStringList { "零售客户|6|40|22" });
    EXPECT_EQ(show(accounts::byRegion(session(), march(), QStringLiteral("所有地区"))),
        (QStringList { "城东|6|40|22", "无地区|1|12|7" }));
}

// 康泰药房 last bought 40 days ago; 济民药店 never bought and is never listed.
TEST_F(Statements, LostCustomersAreThoseNotSeenWithinTheDays)
{
    test::addCustomer(db(), QStringLiteral("100004"), QStringLiteral("康泰药房"));
    test::addCustomer(db(), QStringLiteral("100005"), QStringLiteral("济民药店"));
    sale(QStringLiteral("2025-02-02"), QStringLiteral("100004"),
        { line(QStringLiteral("200002"), QStringLiteral("2"), QStringLiteral("8")) }, 16);
    const StatementFilter year { QStringLiteral("2025-01-01"), QStringLiteral("2025-03-14") };
    const auto lost = [&](int days) {
        QStringList lines;
        for (const auto &c : accounts::lostCustomers(session(), year, days))
            lines.append(QStringList {
                c.customer, c.customerName, c.lastDate, n(c.quantity), n(c.amount), n(c.profit) }
                             .join(QLatin1Char('|')));
        return lines;
    };
    EXPECT_EQ(lost(30), QStringList { "100004|康泰药房|2025-02-02|2|16|10" });
    EXPECT_EQ(lost(39), QStringList { "100004|康泰药房|2025-02-02|2|16|10" });
    EXPECT_EQ(lost(40), QStringList {});
    EXPECT_EQ(lost(60), QStringList {});
    EXPECT_EQ(lost(3),
        (QStringList {
            "100002|华康药店|2025-03-10|1|12|7", "100004|康泰药房|2025-02-02|2|16|10" }));
}

// With operators bound to warehouses, an operator sees only his warehouses' rows.
TEST_F(Statements, AnOperatorBoundToWarehousesSeesOnlyTheirRows)
{
    test::addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店"));
    sales::SaleDraft branch
        = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }, 8);
    branch.entry.warehouse = QStringLiteral("100002");
    EXPECT_TRUE(sales::checkSale(session(), saveSale(branch)));
    test::addOperatorWithRights(session(), QStringLiteral("小李"), {});
    const QString code = db().firstText(
        QStringLiteral("select a_sn from jxc_admin where a_name=?"), { QStringLiteral("小李") });
    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=? where ck_sn=?"),
        { code + QLatin1Char(','), QStringLiteral("100002") });
    setParameter(QStringLiteral("cs_cgyh"), 1);
    EXPECT_EQ(accounts::customerDocuments(session(), march()).size(), 4);
    loginAs(QStringLiteral("小李"));
    const QList<accounts::StatementDocument> seen = accounts::customerDocuments(session(), march());
    ASSERT_EQ(seen.size(), 1);
    EXPECT_EQ(seen.first().warehouse, QStringLiteral("分店"));
    EXPECT_EQ(show(accounts::customerJournal(session(), march())).size(), 1);
    EXPECT_EQ(accounts::customerGoods(session(), march()).size(), 1);
}

// A receipt of 10 at 4 from 华东医药 with 2 sent back, and 3 bags of a goods later disabled.
TEST_F(Statements, SupplierTabs)
{
    test::addSupplier(db(), QStringLiteral("100002"), QStringLiteral("华东医药"));
    purchasing::PurchaseDraft receipt;
    receipt.entry.date = QStringLiteral("2025-03-05");
    receipt.entry.party = QStringLiteral("100002");
    receipt.entry.warehouse = QStringLiteral("100001");
    receipt.entry.lines = { line(QStringLiteral("200001"), QStringLiteral("10"),
                                QStringLiteral("4"), QStringLiteral("B1")),
        line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("2")) };
    receipt.header.freight = 2;
    receipt.header.freightTerms = QStringLiteral("我方付运费");
    const Result<QString> in = purchasing::savePurchaseReceipt(session(), receipt);
    ASSERT_TRUE(in.ok());
    ASSERT_TRUE(purchasing::checkPurchaseReceipt(session(), in.value()));
    purchasing::PurchaseDraft back = receipt;
    back.entry.lines = { line(
        QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("4"), QStringLiteral("B1")) };
    back.header = {};
    const Result<QString> out = purchasing::savePurchaseReturn(session(), back);
    ASSERT_TRUE(out.ok());
    ASSERT_TRUE(purchasing::checkPurchaseReturn(session(), out.value()));
    db().exec(QStringLiteral("update jxc_goods set g_jy=1 where g_sn='200002'"));

    EXPECT_EQ(show(accounts::supplierDocuments(session(), march())),
        (QStringList { "CJ25030510001|2025-03-05|46|0|46|0|进货支付|1|100002|华东医药|主仓库|2|"
                       "我方付运费",
            "CT25030510001|2025-03-05|8|0|8|0|退货还款|2|100002|华东医药|主仓库|0|" }));
    EXPECT_EQ(accounts::supplierFreight(session(), march()).size(), 1);
    EXPECT_EQ(accounts::statementDocumentLines(session(), out.value()).caption,
        QStringLiteral("  出货仓库：主仓库"));
    EXPECT_EQ(show(accounts::supplierDeliveries(session(), march())),
        QStringList { "200001|阿莫西林胶囊|盒|157|8|32|32|0|0|2025-03-05" });
    EXPECT_EQ(show(accounts::supplierDeliveryJournal(session(), march(QStringLiteral("100002")))),
        (QStringList { "2025-03-05|CJ25030510001|cj|200001|100002|10|40|0|0",
            "2025-03-05|CJ25030510001|cj|200002|100002|3|6|0|0",
            "2025-03-05|CT25030510001|ct|200001|100002|-2|-8|0|0" }));
    // The receipt made 华东医药 the catalogue supplier of both goods: their sales, newest first.
    EXPECT_EQ(show(accounts::supplierGoodsSales(session(), march(QStringLiteral("100002")))),
        (QStringList { "200001|阿莫西林胶囊|盒|157|1|12|12|7|58.33|2025-03-10",
            "200002|板蓝根颗粒|袋|37|6|40|40|22|55|2025-03-12" }));
    EXPECT_EQ(show(accounts::supplierGoodsSalesJournal(session(), march(QStringLiteral("100002"))))
                  .first()
                  .left(24),
        QStringLiteral("2025-03-12|XS25031210001"));
}
