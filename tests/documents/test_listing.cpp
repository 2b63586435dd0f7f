// How a line finds its goods, and the lists every goods document shows.
#include "core/rounding.h"
#include "documents/goodslookup.h"
#include "documents/listing.h"
#include "tests/documents/entrytest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::EntryTest;
using medistock::test::fullKind;

namespace {

QStringList codes(const QList<documents::GoodsChoice> &found)
{
    QStringList list;
    for (const documents::GoodsChoice &g : found)
        list.append(
            g.code + QLatin1Char('/') + g.unit + QLatin1Char('/') + core::plainNumber(g.factor));
    return list;
}

QStringList numbers(const QList<documents::DocumentRow> &rows)
{
    QStringList list;
    for (const documents::DocumentRow &row : rows)
        list.append(row.number);
    return list;
}

} // namespace

class GoodsLookupTest : public EntryTest
{
protected:
    void SetUp() override
    {
        EntryTest::SetUp();
        if (HasFatalFailure())
            return;
        db().exec(QStringLiteral("update jxc_goods set g_jm=?,g_sptm=? where g_sn=?"),
            { QStringLiteral("AMXLJN"), QStringLiteral("6900"), QStringLiteral("200001") });
        db().exec(QStringLiteral("update jxc_goods set g_jm=? where g_sn=?"),
            { QStringLiteral("BLGKL"), QStringLiteral("200002") });
        db().exec(QStringLiteral("insert into jxc_goodstm (g_sn,g_sptm) values (?,?)"),
            { QStringLiteral("200002"), QStringLiteral("6902") });
        // A further unit whose barcode looks like another goods' code.
        test::addGoodsUnit(
            db(), QStringLiteral("200002"), QStringLiteral("箱"), 50, QStringLiteral("200001"));
    }
};

TEST_F(GoodsLookupTest, ACodeOrABarcodeTypedInFullFindsItsGoodsInItsUnit)
{
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("6900"), {})),
        QStringList { QStringLiteral("200001/盒/1") });
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("6901"), {})),
        QStringList { QStringLiteral("200001/件/20") });
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral(" 6902 "), {})),
        QStringList { QStringLiteral("200002/袋/1") });
    // Both are typed in full: the unit's barcode and the other goods' code.
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("200001"), {})),
        (QStringList { QStringLiteral("200002/箱/50"), QStringLiteral("200001/盒/1") }));
}

TEST_F(GoodsLookupTest, OtherTextFindsByCodeMnemonicAndNameButNeverADisabledGoods)
{
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("amx"), {})),
        QStringList { QStringLiteral("200001/盒/1") });
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("20000"), {})),
        (QStringList { QStringLiteral("200001/盒/1"), QStringLiteral("200002/袋/1") }));
    EXPECT_EQ(codes(documents::findGoods(session(), QStringLiteral("颗粒"), {})),
        QStringList { QStringLiteral("200002/袋/1") });
    EXPECT_TRUE(documents::findGoods(session(), QStringLiteral("停用"), {}).isEmpty());
    EXPECT_TRUE(documents::findGoods(session(), QStringLiteral("00000000"), {}).isEmpty());
    EXPECT_EQ(codes(documents::findGoods(session(), QString(), {}, 1)),
        QStringList { QStringLiteral("200001/盒/1") });
    // A stored line may name a disabled goods: it is still found by its code.
    ASSERT_TRUE(documents::goodsChoice(session(), QStringLiteral("200003"), {}).has_value());
    EXPECT_FALSE(documents::goodsChoice(session(), QStringLiteral("299999"), {}).has_value());
}

TEST_F(GoodsLookupTest, StockIsTheWarehousesAndUnitsComeBaseFirst)
{
    db().exec(QStringLiteral("insert into jxc_kcsp (g_sn,ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl) values "
                             "(?,?,?,?,0,0)"),
        { QStringLiteral("200001"), QStringLiteral("100002"), 7.5, 9 });
    EXPECT_EQ(documents::findGoods(session(), QStringLiteral("amx"), QStringLiteral("100002"))
                  .first()
                  .stock,
        7.5);
    EXPECT_EQ(documents::findGoods(session(), QStringLiteral("amx"), QStringLiteral("100001"))
                  .first()
                  .stock,
        0);
    const QList<documents::UnitChoice> units
        = documents::unitChoices(db(), QStringLiteral("200002"));
    ASSERT_EQ(units.size(), 2);
    EXPECT_EQ(units[0].unit, QStringLiteral("袋"));
    EXPECT_EQ(units[0].factor, 1);
    EXPECT_EQ(units[1].unit, QStringLiteral("箱"));
    EXPECT_EQ(units[1].factor, 50);
}

// Three receipts: 03-10 from 华东医药 into the main warehouse (阿莫西林胶囊 and a discount of 5),
// 03-12 into the branch (板蓝根颗粒), 03-14 checked (阿莫西林胶囊).
class ListingTest : public EntryTest
{
protected:
    void SetUp() override
    {
        EntryTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addEmployee(db(), QStringLiteral("100002"), QStringLiteral("小周"));
        documents::DocumentDraft d = draft({ line(QStringLiteral("200001"), QStringLiteral("2"),
            QStringLiteral("10"), QStringLiteral("件")) });
        d.date = QStringLiteral("2025-03-10");
        d.discount = 5;
        d.employee = QStringLiteral("100002");
        d.note = QStringLiteral("补货");
        first = save(d);
        d = draft({ line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("4")),
            line(QStringLiteral("200002"), QStringLiteral("1.5"), QStringLiteral("4")) });
        d.date = QStringLiteral("2025-03-12");
        d.warehouse = QStringLiteral("100002");
        second = save(d);
        third = save(
            draft({ line(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("12")) }));
        db().exec(
            QStringLiteral("update jxc_jhd set j_status=?,j_checker=?,j_chkrq=? where j_sn=?"),
            { 1, QStringLiteral("admin"), QStringLiteral("2025-03-14"), third });
    }

    QList<documents::DocumentRow> list(const documents::DocumentFilter &filter)
    {
        return documents::listDocuments(session(), fullKind(), filter);
    }

    QString first;
    QString second;
    QString third;
};

TEST_F(ListingTest, ARowCarriesItsNamesCountsAndDueAmount)
{
    const QList<documents::DocumentRow> rows = list({});
    ASSERT_EQ(numbers(rows), (QStringList { first, second, third }));
    const documents::DocumentRow &r = rows[0];
    EXPECT_EQ(r.date, QStringLiteral("2025-03-10"));
    EXPECT_EQ(r.partyName, QStringLiteral("华东医药"));
    EXPECT_EQ(r.warehouseName, QStringLiteral("主仓库"));
    EXPECT_EQ(r.employeeName, QStringLiteral("小周"));
    EXPECT_EQ(r.note, QStringLiteral("补货"));
    EXPECT_EQ(r.goodsCount, 1); // the discount line is not a goods
    EXPECT_EQ(r.quantity, 2);
    EXPECT_EQ(r.due, 15); // 2 件 at 10, less the discount of 5
    EXPECT_EQ(rows[1].goodsCount, 2);
    EXPECT_EQ(rows[1].quantity, 4.5);
    EXPECT_EQ(rows[2].status, 1);
    EXPECT_EQ(rows[2].checker, QStringLiteral("admin"));
}

TEST_F(ListingTest, EachFilterNarrowsTheList)
{
    EXPECT_EQ(
        numbers(list({ .from = QStringLiteral("2025-03-11") })), (QStringList { second, third }));
    // The end date takes in the whole day.
    EXPECT_EQ(
        numbers(list({ .to = QStringLiteral("2025-03-12") })), (QStringList { first, second }));
    EXPECT_EQ(numbers(list({ .warehouse = QStringLiteral("100002") })), QStringList { second });
    EXPECT_EQ(numbers(list({ .party = QStringLiteral("100003") })), QStringList());
    EXPECT_EQ(numbers(list({ .goodsText = QStringLiteral("板蓝根") })), QStringList { second });
    EXPECT_EQ(numbers(list({ .status = 0 })), (QStringList { first, second }));
    EXPECT_EQ(numbers(list({ .status = 1 })), QStringList { third });
}

TEST_F(ListingTest, ACheckedHeaderWinsOverAStrayUncheckedCopyOfItsNumber)
{
    db().exec(QStringLiteral(
                  "insert into jxc_jhd (j_sn,j_jhrq,ghs_sn,ck_sn,j_status) values (?,?,?,?,?)"),
        { third, QStringLiteral("2025-03-14"), QStringLiteral("100002"), QStringLiteral("100001"),
            0 });
    const auto found = documents::findDocument(session(), fullKind(), third);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->status, 1);
    EXPECT_FALSE(documents::findDocument(session(), fullKind(), QStringLiteral("CJ25031499999")));
}

TEST_F(ListingTest, TheLinesComeInEntryOrderWithoutTheDiscountLine)
{
    const QList<documents::DocumentLineRow> lines
        = documents::documentLines(db(), fullKind(), first);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0].goodsName, QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(lines[0].unit, QStringLiteral("件"));
    EXPECT_EQ(lines[0].baseUnit, QStringLiteral("盒"));
    EXPECT_EQ(lines[0].quantity, 2);
    EXPECT_EQ(lines[0].baseQuantity, 40);
    EXPECT_EQ(lines[0].total, 20);
    EXPECT_EQ(lines[0].batch, QStringLiteral("B1"));

    // A kind whose lines keep no unit shows the base unit and the quantity as base quantity.
    documents::DocumentDraft loss;
    loss.date = QStringLiteral("2025-03-14");
    loss.warehouse = QStringLiteral("100001");
    loss.lines = { line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("4")) };
    ASSERT_TRUE(documents::saveDocument(session(), test::plainKind(), loss).ok());
    const auto plain
        = documents::documentLines(db(), test::plainKind(), QStringLiteral("BS25031410001"));
    ASSERT_EQ(plain.size(), 1);
    EXPECT_EQ(plain[0].unit, QStringLiteral("袋"));
    EXPECT_EQ(plain[0].baseQuantity, 3);
}
