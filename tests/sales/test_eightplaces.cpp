#include "sales/entry.h"
#include "sales/salecheck.h"
#include "stock/checks.h"
#include "tests/sales/salestest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

// Batch "B9" of 200001 in the branch warehouse 100002, received as 0.1 and then 0.2 boxes.
class EightPlaces : public SalesTest
{
protected:
    void SetUp() override
    {
        SalesTest::SetUp();
        test::addWarehouse(db(), QStringLiteral("100002"), QStringLiteral("分店仓库"));
        receive(QStringLiteral("200001"), QStringLiteral("100002"), 0.1, 5, QStringLiteral("B9"),
            QStringLiteral("2026-01-31"));
        receive(QStringLiteral("200001"), QStringLiteral("100002"), 0.2, 5, QStringLiteral("B9"),
            QStringLiteral("2026-01-31"));
    }
    QString checkedSaleFromB9(const QString &quantity)
    {
        documents::LineDraft l
            = line(QStringLiteral("200001"), quantity, QStringLiteral("12"), QStringLiteral("B9"));
        l.expiry = QStringLiteral("2026-01-31");
        sales::SaleDraft d = draft({ l });
        d.entry.warehouse = QStringLiteral("100002");
        const QString number = saveSale(d);
        EXPECT_TRUE(sales::checkSale(session(), number));
        return number;
    }
    // The stored values as text: a binary remainder shows as "5.551115123125783e-17".
    QStringList stored(const QString &sql)
    {
        QStringList values;
        for (const QSqlRecord &r : db().rows(sql)) {
            QStringList row;
            for (int i = 0; i < r.count(); ++i)
                row.append(r.value(i).toString());
            values.append(row.join(QLatin1Char('|')));
        }
        return values;
    }
};

} // namespace

// 0.1 + 0.2 - 0.3 leaves every store at exactly 0, not at the binary remainder of the sums.
TEST_F(EightPlaces, ReceivingPointOneAndPointTwoThenSellingPointThreeLeavesExactlyNothing)
{
    checkedSaleFromB9(QStringLiteral("0.3"));
    EXPECT_EQ(
        stored(QStringLiteral("select t_sl from jxc_tkc where t_ph='B9'")), QStringList { "0" });
    EXPECT_EQ(
        stored(QStringLiteral("select kc_sl,kc_zsl,kc_xssl from jxc_kcsp where g_sn='200001' and "
                              "ck_sn='100002'")),
        QStringList { "0|0|0.3" });
    EXPECT_EQ(stored(QStringLiteral("select g_kc from jxc_goods where g_sn='200001'")),
        QStringList { "150" });
    EXPECT_EQ(stored(QStringLiteral("select js_sl from jxc_kcjs where ck_sn='100002'")),
        QStringList { "0" });
}

// A batch emptied to exactly 0 is a batch of zero: with negative stock forbidden, a sale of 1
// from it is refused on saving by the warehouse's stock, as any sale from an empty warehouse, and
// a sale saved before is not held back by the batch check, which leaves batches without stock
// alone.
TEST_F(EightPlaces, AnEmptiedBatchIsNotReportedShortWhenNegativeStockIsForbidden)
{
    checkedSaleFromB9(QStringLiteral("0.3"));
    documents::LineDraft l
        = line(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("12"), "B9");
    l.expiry = QStringLiteral("2026-01-31");
    sales::SaleDraft d = draft({ l });
    d.entry.warehouse = QStringLiteral("100002");
    setParameter(QStringLiteral("cs_kc"), 0);
    ui.clear();
    EXPECT_FALSE(sales::saveSale(session(), d));
    EXPECT_EQ(ui.informed, QStringList { "当前仓库中商品‘阿莫西林胶囊’库存不足，不能销售。" });
    setParameter(QStringLiteral("cs_kc"), 1);
    const QString number = saveSale(d);
    setParameter(QStringLiteral("cs_kc"), 0);
    EXPECT_EQ(stock::batchCheck(session(), number, QStringLiteral("100002"), QStringLiteral("XS")),
        QString());
    ui.clear();
    EXPECT_TRUE(sales::checkSale(session(), number));
    EXPECT_EQ(ui.informed, QStringList {});
    EXPECT_EQ(
        stored(QStringLiteral("select t_sl from jxc_tkc where t_ph='B9'")), QStringList { "-1" });
}
