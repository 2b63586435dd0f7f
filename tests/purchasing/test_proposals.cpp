// What the purchase screens propose while a line is entered: the price, and what a receipt's
// lines still hold to return.
#include "purchasing/proposals.h"
#include "tests/purchasing/purchasingtest.h"

using namespace medistock;
using medistock::test::PurchasingTest;

class ProposalsTest : public PurchasingTest
{
protected:
    double proposed(const QString &unit, const QString &goods = QStringLiteral("200001"))
    {
        return purchasing::proposedPurchasePrice(session(), goods, unit);
    }
};

TEST_F(ProposalsTest, APurchasePriceIsTheLastOneOnceBoughtElseThePresetOne)
{
    db().exec(QStringLiteral("update jxc_goods set g_jj=? where g_sn=?"),
        { 6.8, QStringLiteral("200001") });
    EXPECT_EQ(proposed(QString()), 6.8);
    EXPECT_EQ(proposed(QStringLiteral("盒")), 6.8);
    EXPECT_EQ(proposed(QStringLiteral("件")), 136);
    db().exec(QStringLiteral("update jxc_goodsdw set g_jj=? where g_sn=? and dw_name=?"),
        { 130, QStringLiteral("200001"), QStringLiteral("件") });
    EXPECT_EQ(proposed(QStringLiteral("件")), 130);

    checkedReceipt(draft({ [&] {
        documents::LineDraft l
            = line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("150"));
        l.unit = QStringLiteral("件");
        return l;
    }() }));
    // Bought: 150 for 20 boxes is 7.5 a box, whatever the unit's preset says.
    EXPECT_EQ(proposed(QString()), 7.5);
    EXPECT_EQ(proposed(QStringLiteral("件")), 150);
    db().exec(QStringLiteral("update jxc_goods set g_scjj=? where g_sn=?"),
        { 1.23456, QStringLiteral("200001") });
    EXPECT_EQ(proposed(QString()), 1.23);
    EXPECT_EQ(proposed(QStringLiteral("件")), 24.69);
    EXPECT_EQ(proposed(QStringLiteral("箱")), 0);
    EXPECT_EQ(proposed(QString(), QStringLiteral("299999")), 0);
}

TEST_F(ProposalsTest, AReceiptLineHoldsWhatOtherReturnsHaveNotTaken)
{
    documents::LineDraft inCases
        = line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("150"));
    inCases.unit = QStringLiteral("件");
    const QString receipt = checkedReceipt(draft(
        { line(QStringLiteral("200001"), QStringLiteral("10"), QStringLiteral("7")), inCases }));
    const qint64 boxes = receiptLineId(receipt, 0);
    const qint64 cases = receiptLineId(receipt, 1);
    documents::LineDraft back
        = line(QStringLiteral("200001"), QStringLiteral("4"), QStringLiteral("7"));
    back.columns.set(QStringLiteral("id2"), boxes);
    checkedReturn(draft({ back }));
    documents::LineDraft open
        = line(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("7.5"));
    open.columns.set(QStringLiteral("id2"), cases);
    const QString waiting = saveReturn(draft({ open }));

    const auto lines = purchasing::returnableReceiptLines(session(), receipt);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].lineId, boxes);
    EXPECT_EQ(lines[0].returned, 4);
    EXPECT_EQ(lines[0].left, 6);
    EXPECT_EQ(lines[1].line.unit, QStringLiteral("件"));
    EXPECT_EQ(lines[1].line.baseQuantity, 40);
    EXPECT_EQ(lines[1].returned, 30);
    EXPECT_EQ(lines[1].left, 10);
    // The return being changed does not count against itself.
    EXPECT_EQ(purchasing::returnableReceiptLines(session(), receipt, waiting)[1].left, 40);

    const QString unchecked = saveReceipt(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("3")) }));
    EXPECT_TRUE(purchasing::returnableReceiptLines(session(), unchecked).isEmpty());
}
