// Gifts for points, and the register of gift items.
#include "members/giftitems.h"
#include "members/member.h"
#include "members/redemption.h"
#include "tests/members/memberstest.h"

#include <cmath>

using namespace medistock;
using members::RedemptionPeriod;

namespace {

class Redemption : public test::MembersTest
{
protected:
    void SetUp() override
    {
        MembersTest::SetUp();
        member = addMember(QStringLiteral("张敏"),
            { { QStringLiteral("hy_bh"), QStringLiteral("880001") },
                { QStringLiteral("hy_mobile"), QStringLiteral("13900001111") },
                { QStringLiteral("hy_jf"), 500 } });
    }
    members::RedemptionDraft draft(RedemptionPeriod period = RedemptionPeriod::Unlimited)
    {
        members::RedemptionDraft d;
        d.member = member;
        d.warehouse = QStringLiteral("100001");
        d.period = period;
        return d;
    }
    QString save(const members::RedemptionDraft &d)
    {
        const Result<QString> saved = members::saveRedemption(session(), d);
        EXPECT_TRUE(saved.ok()) << saved.message().toStdString();
        return saved.ok() ? saved.value() : QString();
    }
    members::GiftOffer offer(const QString &goods)
    {
        for (const members::GiftOffer &gift : members::giftsOffered(db(), QStringLiteral("100001")))
            if (gift.goods == goods)
                return gift;
        return { goods, {}, {}, {}, {}, {}, 50, 0 };
    }

    QString member;
};

} // namespace

TEST_F(Redemption, FindsActiveCardsByCardMobileOrTelephone)
{
    EXPECT_EQ(members::findMemberByCard(db(), QStringLiteral("880001"))->code, member);
    EXPECT_EQ(
        members::findMemberByCard(db(), QStringLiteral("13900001111"))->levelName, "初级会员");
    ASSERT_TRUE(members::changeMember(session(), member, { { QStringLiteral("hy_status"), 0 } }));
    EXPECT_FALSE(members::findMemberByCard(db(), QStringLiteral("880001")));
    EXPECT_FALSE(members::findMemberByCard(db(), QStringLiteral("0000")));
}

// Two cups of 200 points at the warehouse's cost of 18: points down, stock out, a ledger row
// "dh" and the cost as an expense. The lifetime points and the level stay.
TEST_F(Redemption, ARedemptionSpendsPointsIssuesTheGiftsAndBooksTheirCost)
{
    members::RedemptionDraft d = draft();
    d.pick(offer(QStringLiteral("300001")));
    d.pick(offer(QStringLiteral("300001")));
    EXPECT_EQ(d.points(), 400);
    const QString number = save(d);
    EXPECT_EQ(number, "DH25031410001");
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zjf,hl_sn"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "100|500|100002" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_dhd"), QStringLiteral("gl_djh,hy_sn,ck_sn,dh_sl,dh_jf,a_name")),
        QStringList { number + "|" + member + "|100001|2|400|admin" });
    EXPECT_EQ(rows(QStringLiteral("jxc_dhzp"), QStringLiteral("g_sn,dh_zpjf,dh_sl,dh_jf")),
        QStringList { "300001|200|2|400" });
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,g_sn,gl_dj,gl_sl,gl_zje,gl_lr,gl_dzl,gl_kc"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "dh|300001|18|2|36|0|1|8" });
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl,kc_zsl,kc_xssl"),
                  QStringLiteral("g_sn='300001'")),
        QStringList { "8|8|0" });
    EXPECT_EQ(rows(QStringLiteral("jxc_yyfy"),
                  QStringLiteral("gl_djh,fy_lx,fy_je,fy_kmmc,fy_chk,fy_note")),
        QStringList { number + "|费用|36|现金|1|赠品兑换单" + number + "的成本费用" });
}

TEST_F(Redemption, AGiftWithoutAStockRowIsIssuedIntoNegativeStock)
{
    members::RedemptionDraft d = draft();
    d.pick(offer(QStringLiteral("300002")));
    d.setQuantity(0, 3);
    const QString number = save(d);
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl,kc_zsl,kc_cbj"),
                  QStringLiteral("g_sn='300002'")),
        QStringList { "-3|-3|4" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_goods"), QStringLiteral("g_kc"), QStringLiteral("g_sn='300002'")),
        QStringList { "-3" });
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_dj,gl_sl,gl_zje,gl_kc"),
                  QStringLiteral("gl_djh=?"), { number }),
        QStringList { "4|3|12|-3" });
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 350);
}

TEST_F(Redemption, DeletingGivesBackExactlyWhatItTook)
{
    const QString before = snapshot();
    members::RedemptionDraft d = draft();
    d.pick(offer(QStringLiteral("300001")));
    d.pick(offer(QStringLiteral("300002")));
    const QString number = save(d);
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 250);
    ui.clear();
    ASSERT_TRUE(members::deleteRedemption(session(), number));
    EXPECT_EQ(ui.asked,
        QStringList { "您确认删除赠品兑换单：" + number
            + " 吗？\r\n\r\n删除后积分退回会员，赠品退回库存。" });
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 500);
    // The warehouse row the gift without stock got stays, at 0.
    QStringList changed = test::differences(before, snapshot());
    EXPECT_EQ(changed.size(), 1);
    EXPECT_TRUE(changed.value(0).startsWith(QStringLiteral("+"))) << changed.value(0).toStdString();
    EXPECT_EQ(rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl,kc_zsl"),
                  QStringLiteral("g_sn='300002'")),
        QStringList { "0|0" });
}

TEST_F(Redemption, TheSecondRedemptionOfThePeriodIsRefusedWithTheFirstDate)
{
    members::RedemptionDraft d = draft(RedemptionPeriod::Day);
    d.pick(offer(QStringLiteral("300002")));
    const QString first = save(d);
    const QString when
        = db().firstText(QStringLiteral("select dh_dhrq from jxc_dhd where gl_djh=?"), { first });
    ASSERT_TRUE(when.startsWith(QStringLiteral("2025-03-14 ")));
    const QString before = snapshot();
    EXPECT_FALSE(members::saveRedemption(session(), d));
    EXPECT_EQ(ui.informed.last(), "已经兑换过赠品，不能重复兑换，兑换日期【" + when + "】");
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});

    // Monday 2025-03-17 starts a new week but not a new month.
    session().clock().fix(QDate(2025, 3, 17));
    d.period = RedemptionPeriod::Week;
    EXPECT_TRUE(members::saveRedemption(session(), d));
    d.period = RedemptionPeriod::Month;
    EXPECT_FALSE(members::saveRedemption(session(), d));
    d.period = RedemptionPeriod::Unlimited;
    EXPECT_TRUE(members::saveRedemption(session(), d));
}

TEST_F(Redemption, MorePointsThanTheMemberHoldsAreRefused)
{
    members::RedemptionDraft d = draft();
    d.pick(offer(QStringLiteral("300001")));
    d.setQuantity(0, 3);
    const QString before = snapshot();
    EXPECT_FALSE(members::saveRedemption(session(), d));
    EXPECT_EQ(ui.informed.last(), "会员积分不足：当前积分500，本次兑换需要600积分，不能兑换！");
    d.lines[0].goods = QStringLiteral("200001");
    EXPECT_FALSE(members::saveRedemption(session(), d));
    EXPECT_EQ(ui.informed.last(), "第1行：商品“200001”不是可兑换的赠品！");
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(Redemption, TheGiftListIsTheWarehousesGiftsWithStock)
{
    const QList<members::GiftOffer> gifts = members::giftsOffered(db(), QStringLiteral("100001"));
    ASSERT_EQ(gifts.size(), 1);
    EXPECT_EQ(gifts[0].goods, "300001");
    EXPECT_EQ(gifts[0].points, 200);
    EXPECT_EQ(gifts[0].stock, 10);
}

TEST_F(Redemption, TheGiftRegisterListsPurchasesRedemptionsAndGiveAways)
{
    ASSERT_FALSE(members::saveGiftItem(
        session(), { QStringLiteral("200001"), QStringLiteral("雨伞"), {}, 80 }, true));
    EXPECT_EQ(ui.informed.last(), "赠品编号“200001”已是商品编号，请换一个编号！");
    const QString umbrella
        = members::saveGiftItem(session(), { {}, QStringLiteral("雨伞"), {}, 80 }, true).value();
    EXPECT_EQ(umbrella, "100001");
    EXPECT_FALSE(
        members::saveGiftItem(session(), { umbrella, QStringLiteral("雨伞"), {}, 80 }, true));
    EXPECT_EQ(ui.informed.last(), "赠品编号“100001”已经存在！");
    EXPECT_EQ(members::listGiftItems(db()).first().mnemonic, "YS");

    members::addGiftPurchase(session(), umbrella, QDate(2025, 3, 1), 20, QStringLiteral("首批"));
    members::addGiftPurchase(session(), umbrella, QDate(2025, 3, 5), 10, {});
    const QString given = members::addGiveAway(
        session(), QDate(2025, 3, 10), QStringLiteral("XS25031010001"), { { umbrella, 2 } }, {})
                              .value();
    EXPECT_EQ(given, "ZS25031010001");
    QStringList listed;
    for (const members::GiftMovement &m : members::giftRegister(db(), umbrella))
        listed.append(
            QStringLiteral("%1|%2|%3|%4").arg(m.sort).arg(m.date, m.kind).arg(m.quantity));
    EXPECT_EQ(listed,
        (QStringList {
            "1|2025-03-05|赠品进货|10", "1|2025-03-01|赠品进货|20", "3|2025-03-10|赠品赠送|-2" }));
    EXPECT_EQ(members::giftBalance(db(), umbrella), 28);
    EXPECT_FALSE(members::deleteGiftItem(session(), umbrella));
    EXPECT_EQ(ui.informed.last(), "赠品“100001”已有进货、兑换或赠送记录，不能删除！");
}

// Gift quantities bought, given away and redeemed keep the shared quantity limits; NaN is no
// quantity. Nothing is written by a refusal.
TEST_F(Redemption, AbsurdGiftQuantitiesAreRefused)
{
    const QString umbrella
        = members::saveGiftItem(session(), { {}, QStringLiteral("雨伞"), {}, 80 }, true).value();
    const QString before = snapshot();
    const QDate day(2025, 3, 10);
    EXPECT_EQ(members::addGiftPurchase(session(), umbrella, day, std::nan(""), {}).message(),
        QStringLiteral("数量“nan”不是数字！"));
    EXPECT_EQ(members::addGiftPurchase(session(), umbrella, day, 0, {}).message(),
        QStringLiteral("数量必须大于0！"));
    EXPECT_EQ(members::addGiveAway(session(), day, {}, { { umbrella, 1e20 } }, {}).message(),
        QStringLiteral("数量“1e+20”超出范围，应在 0 到 100000000 之间！"));
    members::RedemptionDraft d = draft();
    d.pick(offer(QStringLiteral("300001")));
    d.setQuantity(0, 1e9);
    EXPECT_EQ(members::saveRedemption(session(), d).message(),
        QStringLiteral("第1行：兑换数量“1000000000”超出范围，应在 0 到 100000000 之间！"));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}
