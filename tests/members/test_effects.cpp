// The member effects of retail sales, returns and their reversals.
#include "members/levels.h"
#include "members/member.h"
#include "members/retail.h"
#include "tests/members/memberstest.h"

#include <QDate>

using namespace medistock;
using members::RetailKind;

namespace {

class MemberEffects : public test::MembersTest
{
protected:
    // The member's points, lifetime points, level, consumption, visits and card balance.
    QString figures(const QString &member)
    {
        return rows(QStringLiteral("jxc_hyxx"),
            QStringLiteral("hy_jf,hy_zjf,hl_sn,hy_zje,hy_cs,hy_zhje"), QStringLiteral("hy_sn=?"),
            { member })
            .join(QString());
    }
    QString stored(const QString &number)
    {
        return rows(QStringLiteral("jxc_posxsd"), QStringLiteral("pos_bcjf,pos_zjf,pos_jfye"),
            QStringLiteral("gl_djh=?"), { number })
            .join(QString());
    }
};

} // namespace

TEST_F(MemberEffects, ASaleEarnsAPointPerTenYuanAndTheLevelFollows)
{
    const QString member = addMember(QStringLiteral("张敏"));
    EXPECT_EQ(figures(member), "0|0|100001|0|0|0");
    const QString number = post(retail(member, { line(QStringLiteral("200001"), 2, 60) }));
    EXPECT_EQ(figures(member), "12|12|100002|120|1|0");
    EXPECT_EQ(stored(number), "12|12|0");
}

// With points off only the special-points goods earn (3 bottles x 5); the card still pays and
// the level still follows "按积分升级".
TEST_F(MemberEffects, PointsOffEarnsOnlyTheSpecialPoints)
{
    setPoints(0);
    const QString upgrading = addMember(QStringLiteral("张敏"));
    const QString fixed = addMember(QStringLiteral("李娜"), { { QStringLiteral("hy_sj"), 0 } });
    for (const QString &member : { upgrading, fixed }) {
        ASSERT_TRUE(members::setMemberBalance(session(), member, 200, {}));
        members::RetailDocument doc = retail(member,
            { line(QStringLiteral("200002"), 3, 10), line(QStringLiteral("200001"), 2, 50) });
        doc.payment.card = 40;
        doc.payment.counter.cash = 90;
        const QString number = post(doc);
        EXPECT_EQ(stored(number), "15|15|0");
    }
    EXPECT_EQ(figures(upgrading), "15|15|100002|130|1|160");
    EXPECT_EQ(figures(fixed), "15|15|100001|130|1|160");
}

// Under points rule "0" a sale paid wholly from the card has nothing left to earn on: the visit,
// the consumption and the card move, and nothing is written back to the document.
TEST_F(MemberEffects, ASalePaidWhollyByCardWithoutCardPointsEarnsNothing)
{
    setPoints(10, [](members::PointsSettings &s) { s.cardEarnsPoints = false; });
    const QString member = addMember(QStringLiteral("张敏"), { { QStringLiteral("hy_jf"), 50 } });
    ASSERT_TRUE(members::setMemberBalance(session(), member, 300, {}));
    members::RetailDocument doc = retail(member, { line(QStringLiteral("200001"), 1, 100) });
    doc.payment.counter.cash = 0;
    doc.payment.card = 100;
    const QString number = post(doc);
    EXPECT_EQ(figures(member), "50|50|100002|100|1|200");
    EXPECT_EQ(stored(number), "0|0|0");

    setPoints(10);
    const QString counted = post(doc);
    EXPECT_EQ(figures(member), "60|60|100002|200|2|100");
    EXPECT_EQ(stored(counted), "10|60|0");
}

struct FactorCase
{
    const char *birthday;
    int rule;
    int days;
    const char *rangeEnd;
    double points;
};

class PointsFactors : public test::MembersTest, public ::testing::WithParamInterface<FactorCase>
{
};

// Sale of 100 on 2025-03-14 10:00: 10 points, twice on the birthday, three times in the range
// from 2025-03-01; never both.
TEST_P(PointsFactors, TheBirthdayWinsOverTheDateRange)
{
    const FactorCase c = GetParam();
    setPoints(10, [&](members::PointsSettings &s) {
        s.birthdayFactor = 2;
        s.birthdayRule = c.rule;
        s.birthdayDays = c.days;
        s.multiple = 3;
        s.multipleFrom = QStringLiteral("2025-03-01");
        s.multipleTo = QString::fromLatin1(c.rangeEnd);
    });
    const QString member = addMember(
        QStringLiteral("张敏"), { { QStringLiteral("hy_sr"), QString::fromLatin1(c.birthday) } });
    post(retail(member, { line(QStringLiteral("200001"), 1, 100) }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), c.points);
}

INSTANTIATE_TEST_SUITE_P(Members, PointsFactors,
    ::testing::Values(FactorCase { "1980-03-14", 0, 0, "2025-03-31", 20 },
        FactorCase { "1980-03-15", 0, 0, "2025-03-31", 30 },
        FactorCase { "1980-03-17", 1, 3, "2025-03-31", 20 },
        FactorCase { "1980-03-11", 1, 3, "2025-03-31", 20 },
        FactorCase { "1980-03-18", 1, 3, "2025-03-31", 30 },
        FactorCase { "", 0, 0, "2025-03-31", 30 },
        // A sale at 10:00 on the end date sorts after the bare end date.
        FactorCase { "", 0, 0, "2025-03-14", 10 },
        FactorCase { "1980-03-14", 0, 0, "2025-03-13", 20 }));

TEST_F(MemberEffects, TheRemainderCarriesToTheNextSale)
{
    setPoints(10, [](members::PointsSettings &s) { s.carryRemainder = true; });
    const QString member = addMember(QStringLiteral("张敏"));
    post(retail(member, { line(QStringLiteral("200001"), 1, 95) }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 9);
    EXPECT_EQ(figure(member, QStringLiteral("hy_ye")), 5);
    post(retail(member, { line(QStringLiteral("200001"), 1, 17) }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_jf")), 11);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zje")), 112);
    EXPECT_EQ(figure(member, QStringLiteral("hy_ye")), 2);
}

// 100 yuan: 20 of special-points goods (2 x 5 points), 50 special-priced, 30 plain.
TEST_F(MemberEffects, SpecialPricedGoodsEarnOnlyWhenTheyTakePart)
{
    const QList<members::RetailLine> lines { line(QStringLiteral("200002"), 2, 10),
        line(QStringLiteral("200003"), 10, 5), line(QStringLiteral("200001"), 1, 30) };
    const QString without = addMember(QStringLiteral("张敏"));
    post(retail(without, lines));
    EXPECT_EQ(figure(without, QStringLiteral("hy_jf")), 13);

    setParameter(QStringLiteral("cs_tjcyjf"), 1);
    const QString with = addMember(QStringLiteral("李娜"));
    post(retail(with, lines));
    EXPECT_EQ(figure(with, QStringLiteral("hy_jf")), 18);
}

TEST_F(MemberEffects, TheDiscountSchemeGivesCashBackThatTheReversalTakesAway)
{
    db().exec(QStringLiteral("insert into jxc_hyyh (hh_sn,hh_name,hh_yh2,hh_yh3) values "
                             "('100002','满百返五',100,5)"));
    const QString member = addMember(
        QStringLiteral("张敏"), { { QStringLiteral("hh_sn"), QStringLiteral("100002") } });
    const QString number = post(retail(member, { line(QStringLiteral("200001"), 1, 250) }));
    EXPECT_EQ(figures(member), "25|25|100002|250|1|10");
    EXPECT_EQ(stored(number), "25|25|10");
    ASSERT_TRUE(members::reverseRetailDocument(session(), number));
    EXPECT_EQ(figures(member), "0|0|100002|0|0|0");
}

TEST_F(MemberEffects, AReturnTakesBackItsOwnPoints)
{
    const QString member = addMember(QStringLiteral("张敏"));
    post(retail(member, { line(QStringLiteral("200001"), 2, 60) }));
    const QString number
        = post(retail(member, { line(QStringLiteral("200001"), -1, 60) }, RetailKind::Return));
    EXPECT_EQ(figures(member), "6|6|100002|60|0|0");
    EXPECT_EQ(stored(number), "-6|6|0");
    ASSERT_TRUE(members::reverseRetailDocument(session(), number));
    EXPECT_EQ(figures(member), "12|12|100002|120|1|0");
}

// The reversal's level: kept when the lifetime points come back to 0, the default level when no
// level holds them, and set whatever "按积分升级" says.
TEST_F(MemberEffects, TheReversalResetsTheLevelByTheLifetimePoints)
{
    const QString fresh = addMember(QStringLiteral("张敏"));
    const QString sale = post(retail(fresh, { line(QStringLiteral("200001"), 2, 60) }));
    ASSERT_TRUE(members::reverseRetailDocument(session(), sale));
    EXPECT_EQ(figures(fresh), "0|0|100002|0|0|0");

    ASSERT_TRUE(members::saveLevel(
        session(), { QStringLiteral("100002"), QStringLiteral("初级会员"), 1, 20, 999 }));
    ASSERT_TRUE(
        members::saveLevel(session(), { {}, QStringLiteral("金卡会员"), 0.9, 1000, 99999 }));
    const QString between = addMember(QStringLiteral("李娜"), { { QStringLiteral("hy_jf"), 10 } });
    EXPECT_EQ(text(between, QStringLiteral("hl_sn")), "100001");
    const QString second = post(retail(between, { line(QStringLiteral("200001"), 2, 60) }));
    EXPECT_EQ(text(between, QStringLiteral("hl_sn")), "100002");
    ASSERT_TRUE(members::reverseRetailDocument(session(), second));
    EXPECT_EQ(figures(between), "10|10|100001|0|0|0");

    const QString gold = addMember(QStringLiteral("王强"),
        { { QStringLiteral("hy_jf"), 30 }, { QStringLiteral("hy_sj"), 0 },
            { QStringLiteral("hl_sn"), QStringLiteral("100003") } });
    const QString third = post(retail(gold, { line(QStringLiteral("200001"), 2, 60) }));
    EXPECT_EQ(figures(gold), "42|42|100003|120|1|0");
    ASSERT_TRUE(members::reverseRetailDocument(session(), third));
    EXPECT_EQ(figures(gold), "30|30|100002|0|0|0");
}

TEST_F(MemberEffects, LevelsByPointsIncludeBothBounds)
{
    EXPECT_EQ(members::levelForPoints(db(), 0), "100001");
    EXPECT_EQ(members::levelForPoints(db(), 1), "100002");
    EXPECT_EQ(members::levelForPoints(db(), 999999), "100002");
    EXPECT_EQ(members::levelForPoints(db(), 1000000), "100001");
    EXPECT_EQ(members::levelForPoints(db(), 0.5), "100001");
    const Result<QString> overlapping
        = members::saveLevel(session(), { {}, QStringLiteral("金卡会员"), 0.9, 5000, 9999 });
    EXPECT_FALSE(overlapping);
    EXPECT_EQ(ui.informed.last(), "积分范围与会员等级“初级会员”（1～999999）重叠！");
    EXPECT_EQ(rows(QStringLiteral("jxc_hyfl"), QStringLiteral("hl_sn")),
        (QStringList { "100001", "100002" }));
}
