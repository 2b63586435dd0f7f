// Returns of a sold receipt at the till: what is left of each line, the discount given back in
// proportion, and the money and points going back.
#include "documents/texts.h"
#include "members/member.h"
#include "pos/reprint.h"
#include "pos/returns.h"
#include "tests/pos/postest.h"
#include "tests/support/documentrows.h"

using namespace medistock;

namespace {

class TillReturns : public test::PosTest
{
protected:
    // 3 boxes of amoxicillin at 12 less 10%, 2 bottles of vitamin C at 10 and a box given away:
    // 52.40, less 2 discount and 0.40 rounded off, 50 paid in cash. 13 points: 10 for the
    // special-points bottles, 3 for the other 30 yuan.
    QString soldReceipt(const QString &member)
    {
        members::RetailLine amoxicillin
            = line(QStringLiteral("200001"), 3, 12, QStringLiteral("B1"));
        amoxicillin.discountRate = 0.9;
        members::RetailDocument d = sale({ amoxicillin, line(QStringLiteral("200002"), 2, 10),
                                             gift(QStringLiteral("200001"), 1, 12) },
            member);
        d.lines[2].batch = QStringLiteral("B1");
        d.payment.discount = 2;
        d.payment.roundingOff = 0.4;
        d.payment.counter.cash = 50;
        return post(d);
    }

    Result<QString> giveBack(const QString &number, const QList<double> &quantities)
    {
        const Result<pos::SoldReceipt> receipt = pos::readSoldReceipt(session(), number);
        EXPECT_TRUE(receipt);
        const Result<members::RetailDocument> refund
            = pos::returnOf(session(), receipt.value(), quantities);
        if (!refund)
            return refund.outcome();
        return pos::returnAtTill(session(), refund.value());
    }

    QStringList returnHeader(const QString &number)
    {
        return rows(QStringLiteral("jxc_posxsd"),
            QStringLiteral("pos_yfje,pos_sfje,pos_xj,pos_yhzkje,pos_mlje,pos_bcjf"),
            QStringLiteral("gl_djh=?"), { number });
    }
};

} // namespace

TEST_F(TillReturns, APartReturnGivesBackItsShareAndTheLastReturnTheRest)
{
    const QString member = addMember(QStringLiteral("张敏"));
    const QString number = soldReceipt(member);
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 13);
    const Result<pos::SoldReceipt> receipt = pos::readSoldReceipt(session(), number);
    ASSERT_TRUE(receipt);
    EXPECT_EQ(receipt->linesAmount, 52.4);
    ASSERT_EQ(receipt->lines.size(), 3);

    // 10.80 of 52.40: 0.41 of the discount and 0.08 of the rounding come back with it.
    const Result<QString> first = giveBack(number, { 1, 0, 0 });
    ASSERT_TRUE(first) << first.message().toStdString();
    EXPECT_EQ(first.value(), "XT25031410001");
    EXPECT_EQ(returnHeader(first.value()), QStringList { "-10.31|-10.31|-10.31|-0.41|-0.08|-1" });
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_flag,g_sn,gl_sl,gl_djh2"),
                  QStringLiteral("gl_djh=?"), { first.value() }),
        QStringList { "xt|200001|-1|" + number });
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_kmmc,xj_je"),
                  QStringLiteral("gl_djh=?"), { first.value() }),
        QStringList { "顾客退货|现金|-10.31" });
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 12);

    ui.clear();
    const QString before = snapshot();
    EXPECT_FALSE(giveBack(number, { 3, 0, 0 }));
    EXPECT_EQ(ui.informed, QStringList { "商品“阿莫西林胶囊”最多还能退2，不能超过这个数量！" });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});

    const Result<QString> rest = giveBack(number, { 2, 2, 1 });
    ASSERT_TRUE(rest) << rest.message().toStdString();
    // 10 special points come back with the bottles, 1 for the other 19.69: a point of the sale's
    // three stays with the member, each return truncating its own amount.
    EXPECT_EQ(returnHeader(rest.value()), QStringList { "-39.69|-39.69|-39.69|-1.59|-0.32|-11" });
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 1);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zje")), 0);
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("g_sn,kc_sl"),
                  QStringLiteral("g_sn in ('200001','200002')")),
        (QStringList { "200001|100", "200002|50" }));

    ui.clear();
    EXPECT_FALSE(giveBack(number, { 0, 0, 0 }));
    EXPECT_EQ(ui.informed, QStringList { "没有要退货的商品！" });
}

TEST_F(TillReturns, AReturnOfWhatAnotherReturnTookMeanwhileIsRefused)
{
    const QString number = soldReceipt({});
    const Result<members::RetailDocument> late
        = pos::returnOf(session(), pos::readSoldReceipt(session(), number).value(), { 0, 1, 0 });
    ASSERT_TRUE(late);
    ASSERT_TRUE(giveBack(number, { 0, 2, 0 }));
    const QString before = snapshot();
    ui.clear();
    EXPECT_FALSE(pos::returnAtTill(session(), late.value()));
    EXPECT_EQ(ui.informed, QStringList { "商品“维生素C片”最多还能退0，不能超过这个数量！" });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(TillReturns, ACardPaymentCanGoBackOntoTheCard)
{
    const QString member = addMember(QStringLiteral("张敏"));
    ASSERT_TRUE(members::setMemberBalance(session(), member, 100, {}));
    members::RetailDocument byCard = sale({ line(QStringLiteral("200001"), 2, 12) }, member);
    byCard.payment.counter.cash = 0;
    byCard.payment.card = 24;
    const QString number = post(byCard);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 76);
    Result<members::RetailDocument> refund
        = pos::returnOf(session(), pos::readSoldReceipt(session(), number).value(), { 2 });
    ASSERT_TRUE(refund);
    EXPECT_EQ(refund->payment.counter.cash, -24);
    refund->payment.counter.cash = 0;
    refund->payment.card = -24;
    ASSERT_TRUE(pos::returnAtTill(session(), refund.value()));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 100);
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_je"),
                  QStringLiteral("gl_djh like 'X%'")),
        QStringList {});
}

TEST_F(TillReturns, OnlyAPostedSaleCanBeGivenBack)
{
    const QString number = soldReceipt({});
    const QString returned = giveBack(number, { 1, 0, 0 }).value();
    ui.clear();
    EXPECT_FALSE(pos::readSoldReceipt(session(), returned));
    EXPECT_FALSE(pos::readSoldReceipt(session(), QStringLiteral("XS25031499999")));
    EXPECT_EQ(ui.informed,
        (QStringList { "POS销售单“XT25031410001”不存在！", "POS销售单“XS25031499999”不存在！" }));
    members::RetailDocument stray
        = retail({}, { line(QStringLiteral("200001"), -1, 12) }, members::RetailKind::Return);
    stray.original = QStringLiteral("XS25031499999");
    ui.clear();
    EXPECT_FALSE(members::postRetailDocument(session(), stray));
    EXPECT_EQ(ui.informed, QStringList { documents::texts::documentMissing(stray.original) });
}

// The reprint of the sale and of its return: the return's title, its negative figures, the
// member as he stands after it, and each line's price after discount.
TEST_F(TillReturns, AReturnReprintsAsAPosReturnWithTheMembersFigures)
{
    const QString member = addMember(
        QStringLiteral("张敏"), { { QStringLiteral("hy_mobile"), QStringLiteral("13900001111") } });
    const QString number = soldReceipt(member);
    const Result<QString> back = giveBack(number, { 1, 0, 0 });
    ASSERT_TRUE(back) << back.message().toStdString();
    const auto shown = [](const pos::Reprint &r) {
        QStringList lines;
        for (const pos::ReprintLine &l : r.lines)
            lines.append(QStringList { l.goods, l.name, core::plainNumber(l.price),
                core::plainNumber(l.discountRate), core::plainNumber(l.quantity),
                core::plainNumber(l.amount), core::plainNumber(l.discounted) }
                             .join(QLatin1Char('|')));
        return lines;
    };
    const Result<pos::Reprint> sale = pos::posReprint(session(), number);
    ASSERT_TRUE(sale);
    EXPECT_EQ(sale->title, "POS销售单");
    EXPECT_EQ(shown(sale.value()),
        (QStringList { "200001|阿莫西林胶囊|12|0.9|3|32.4|10.8", "200002|维生素C片|10|1|2|20|10",
            "200001|阿莫西林胶囊(赠品)|12|1|1|0|12" }));
    // 10.80 back less its share of the discount (0.41) and of the rounding off (0.08).
    const Result<pos::Reprint> refund = pos::posReprint(session(), back.value());
    ASSERT_TRUE(refund);
    const QVariantMap v = refund->variables();
    EXPECT_EQ(v.value("sTitle").toString(), "POS退货单");
    EXPECT_EQ(v.value("yf").toDouble(), -10.31);
    EXPECT_EQ(v.value("sf").toDouble(), -10.31);
    EXPECT_EQ(v.value("hybh").toString(), text(member, QStringLiteral("hy_bh")));
    EXPECT_EQ(v.value("hyname").toString(), "张敏");
    EXPECT_EQ(v.value("hymobile").toString(), "13900001111");
    EXPECT_EQ(v.value("hyye").toDouble(), 0);
    // 13 points for the sale, one taken back with the 10.31 yuan.
    EXPECT_EQ(v.value("hyjf").toDouble(), 12);
    EXPECT_EQ(shown(refund.value()), QStringList { "200001|阿莫西林胶囊|12|0.9|-1|-10.8|10.8" });

    ui.clear();
    EXPECT_FALSE(pos::posReprint(session(), QStringLiteral("XT25031499999")));
    EXPECT_EQ(ui.informed, QStringList { "POS销售单“XT25031499999”不存在！" });
}
