#include "sales/prices.h"
#include "tests/sales/salestest.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

class CustomerPrices : public SalesTest
{
protected:
    double price(const QString &customer, const QString &unit = {})
    {
        return unit.isEmpty()
            ? sales::customerPrice(session(), QStringLiteral("200001"), customer)
            : sales::customerUnitPrice(session(), QStringLiteral("200001"), customer, unit);
    }
    void quote(const QString &customer, double price)
    {
        db().exec(QStringLiteral("insert into jxc_khbj (g_sn,kb_bj,kh_sn,kb_bjrq) values "
                                 "(?,?,?,?)"),
            { QStringLiteral("200001"), price, customer, QStringLiteral("2025-03-01") });
    }
    // A checked sale line of 200001 to the customer, written as a checked sale leaves it.
    void sold(const QString &customer, const QString &number, const QString &date,
        const QString &unit, double price)
    {
        db().exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ls_xsrq,ls_status) values "
                                 "(?,?,?,1)"),
            { number, customer, date });
        db().exec(QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,dw_name,ls_dj) values "
                                 "(?,?,?,?)"),
            { number, QStringLiteral("200001"), unit, price });
    }
};

} // namespace

TEST_F(CustomerPrices, TheLatestQuotationAlwaysWinsWhateverThePriceSource)
{
    quote(QStringLiteral("100002"), 9.8);
    quote(QStringLiteral("100002"), 9.6);
    sold(QStringLiteral("100002"), QStringLiteral("XS25031010001"), QStringLiteral("2025-03-10"),
        QStringLiteral("盒"), 13);
    for (int source : { 0, 1 }) {
        setParameter(QStringLiteral("cs_xsdj"), source);
        EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 9.6) << source;
        EXPECT_DOUBLE_EQ(price(QStringLiteral("100002"), QStringLiteral("件")), 9.6) << source;
    }
}

TEST_F(CustomerPrices, WithSourceZeroTheTypePicksItsLevelAndTheStandardTypeGetsTheStandardPrice)
{
    setParameter(QStringLiteral("cs_xsdj"), 0);
    EXPECT_EQ(
        sales::customerPriceType(session(), QStringLiteral("100002")), QStringLiteral("1003"));
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 10.5);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100003")), 12);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002"), QStringLiteral("件")), 100);
    // The standard type skips the level prices with source 0, so its last step, the goods'
    // standard price, is what any unit is offered.
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100003"), QStringLiteral("件")), 12);
    setParameter(QStringLiteral("cs_xsdj"), 1);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100003"), QStringLiteral("件")), 115);
    setParameter(QStringLiteral("cs_xsdj"), 0);

    // A level the unit has no price for falls back to the goods' standard price, as the last
    // step of the lookup reads it from the goods row for every unit.
    db().exec(QStringLiteral("update jxc_khxx set kt_sn=? where kh_sn=?"),
        { QStringLiteral("1004"), QStringLiteral("100002") });
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002"), QStringLiteral("件")), 12);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 10);

    setParameter(QStringLiteral("cs_cs013"), 0);
    EXPECT_EQ(
        sales::customerPriceType(session(), QStringLiteral("100002")), QStringLiteral("1000"));
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 12);
}

TEST_F(CustomerPrices, WithSourceOneTheBaseUnitTakesTheLastLineAndAUnitTheLastDate)
{
    setParameter(QStringLiteral("cs_xsdj"), 1);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100003")), 12); // no sale yet: the level price
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 10.5);
    // Entered first but dated later, then entered last but dated earlier.
    sold(QStringLiteral("100002"), QStringLiteral("XS25031210001"), QStringLiteral("2025-03-12"),
        QStringLiteral("盒"), 11.2);
    sold(QStringLiteral("100002"), QStringLiteral("XS25031210002"), QStringLiteral("2025-03-12"),
        QStringLiteral("件"), 108);
    sold(QStringLiteral("100002"), QStringLiteral("XS25030510001"), QStringLiteral("2025-03-05"),
        QStringLiteral("盒"), 11.4);
    sold(QStringLiteral("100002"), QStringLiteral("XS25030510002"), QStringLiteral("2025-03-05"),
        QStringLiteral("件"), 112);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 11.4);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002"), QStringLiteral("件")), 108);
    // An unchecked sale does not count.
    db().exec(QStringLiteral("update jxc_lsxsd set ls_status=0 where gl_djh=?"),
        { QStringLiteral("XS25030510001") });
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 11.2);
}

TEST_F(CustomerPrices, PricesRoundHalfUpToThePriceDecimals)
{
    quote(QStringLiteral("100002"), 10.125);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 10.13);
    setParameter(QStringLiteral("cs_cbjs"), 0);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002")), 10);
    EXPECT_DOUBLE_EQ(
        sales::customerPrice(session(), QStringLiteral("999999"), QStringLiteral("100003")), 0);
}

// A line of a sale, an order or a return saved without a price gets the customer's price for its
// unit; a typed price stays.
TEST_F(CustomerPrices, LinesSavedWithoutAPriceTakeTheCustomersPriceForTheirUnit)
{
    setParameter(QStringLiteral("cs_xsdj"), 0);
    const QList<documents::LineDraft> lines { line(QStringLiteral("200001"), QStringLiteral("2"),
                                                  {}, QStringLiteral("B1")),
        line(QStringLiteral("200001"), QStringLiteral("1"), {}, QStringLiteral("B1"),
            QStringLiteral("件")),
        line(QStringLiteral("200002"), QStringLiteral("3"), {}),
        line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("7.5")) };
    const QString sale = saveSale(draft(lines));
    const QString order = saveOrder(draft(lines));
    const QString back = saveReturn(draft(lines));
    for (const auto &[table, number] : { std::pair { "jxc_lsxssp", sale }, { "jxc_xssp", order } })
        EXPECT_EQ(rows(QString::fromLatin1(table), QStringLiteral("dw_name,ls_dj,ls_zje"),
                      QStringLiteral("gl_djh=?"), { number }),
            (QStringList { "盒|10.5|21", "件|100|100", "袋|8|24", "袋|7.5|7.5" }))
            << table;
    EXPECT_EQ(rows(QStringLiteral("jxc_xsthsp"), QStringLiteral("dw_name,th_dj"),
                  QStringLiteral("gl_djh=?"), { back }),
        (QStringList { "盒|10.5", "件|100", "袋|8", "袋|7.5" }));
}

// A unit without a price of its own falls back to the goods' standard price g_sj, the last step
// of the lookup, as it reads the goods row whatever the unit.
TEST_F(CustomerPrices, AUnitWithoutItsOwnPriceTakesTheGoodsStandardPrice)
{
    setParameter(QStringLiteral("cs_xsdj"), 0);
    db().exec(QStringLiteral("update jxc_goodsdw set g_sj=null,g_sj3=null"));
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100003"), QStringLiteral("件")), 12);
    EXPECT_DOUBLE_EQ(price(QStringLiteral("100002"), QStringLiteral("件")), 12);
}
