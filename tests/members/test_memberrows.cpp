// Members added, changed by hand and imported; the points settings.
#include "core/spreadsheet.h"
#include "members/import.h"
#include "members/member.h"
#include "members/settings.h"
#include "tests/members/memberstest.h"

#include <QDir>

using namespace medistock;

namespace {

class MemberRows : public test::MembersTest
{
};

} // namespace

TEST_F(MemberRows, CardNumbersCountOnFromTheLargestSixDigitNumber)
{
    EXPECT_EQ(members::nextCardNumber(db()), "100001");
    const QString first = addMember(QStringLiteral("张敏"));
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"),
                  QStringLiteral("hy_bh,hy_jrrq,hy_status,hy_sj,hl_sn,hh_sn"),
                  QStringLiteral("hy_sn=?"), { first }),
        QStringList { "100001|2025-03-14|1|1|100001|100001" });
    for (const char *card : { "000123", "12345", "100005", "A10009", "1000099" })
        addMember(
            QStringLiteral("会员"), { { QStringLiteral("hy_bh"), QString::fromLatin1(card) } });
    EXPECT_EQ(members::nextCardNumber(db()), "100006");
    EXPECT_FALSE(members::addMember(session(),
        { { QStringLiteral("hy_name"), QStringLiteral("李娜") },
            { QStringLiteral("hy_bh"), QStringLiteral("100005") } }));
    EXPECT_EQ(ui.informed.last(), "会员卡号“100005”已经存在，请换一个卡号！");
}

TEST_F(MemberRows, PointsChangedByHandSetTheLevelAndAreKept)
{
    const QString member = addMember(QStringLiteral("张敏"));
    ASSERT_TRUE(members::setMemberPoints(session(), member, 80, 120, QStringLiteral("补录积分")));
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_jf,hy_zjf,hl_sn"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "80|120|100002" });
    EXPECT_EQ(rows(QStringLiteral("jxc_jfdh"), QStringLiteral("hy_sn,jf_xfjf,a_name,jf_note")),
        QStringList { member + "|80|admin|会员积分0→80，累计积分0→120：补录积分" });
    EXPECT_FALSE(members::setMemberPoints(session(), member, -1, 120, {}));
    EXPECT_EQ(ui.informed.last(), "会员积分和累计积分不能小于0！");

    ASSERT_TRUE(members::setMemberBalance(session(), member, 88.5, QStringLiteral("旧卡转入")));
    EXPECT_EQ(rows(QStringLiteral("jxc_czxf"), QStringLiteral("xf_je,hy_bz")),
        QStringList { "88.5|旧卡转入" });
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 88.5);
}

// Editing a member keeps its figures; the level follows the lifetime points while upgrading.
TEST_F(MemberRows, ChangingAMemberLeavesItsFiguresAlone)
{
    const QString member = addMember(QStringLiteral("张敏"), { { QStringLiteral("hy_jf"), 40 } });
    ASSERT_TRUE(members::changeMember(session(), member,
        { { QStringLiteral("hy_name"), QStringLiteral("张敏敏") }, { QStringLiteral("hy_jf"), 999 },
            { QStringLiteral("hl_sn"), QStringLiteral("100001") } }));
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_name,hy_jf,hl_sn"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "张敏敏|40|100002" });
    ASSERT_TRUE(members::changeMember(session(), member,
        { { QStringLiteral("hy_sj"), 0 }, { QStringLiteral("hl_sn"), QStringLiteral("100001") } }));
    EXPECT_EQ(text(member, QStringLiteral("hl_sn")), "100001");
}

TEST_F(MemberRows, AnImportGivesCardsToRowsWithoutOne)
{
    addMember(QStringLiteral("张敏"));
    const QString file = QDir(folder()).filePath(QStringLiteral("会员.xlsx"));
    ASSERT_TRUE(core::writeXlsx(file, QStringLiteral("会员"),
        { QStringLiteral("会员卡号"), QStringLiteral("会员姓名"), QStringLiteral("会员积分") },
        { { QString(), QStringLiteral("李娜"), 30 },
            { QStringLiteral("100003"), QStringLiteral("王强"), 0 },
            { QString(), QStringLiteral("赵敏"), 0 },
            { QStringLiteral("100001"), QStringLiteral("孙丽"), 0 } })
                    .ok());
    const Result<masterdata::ImportPlan> plan = members::planMemberImport(session(), file);
    ASSERT_TRUE(plan.ok()) << plan.message().toStdString();
    EXPECT_EQ(plan->accepted(), 3);
    EXPECT_EQ(plan->rows[3].reason, "会员卡号“100001”已经存在，请换一个卡号！");
    ASSERT_TRUE(members::runMemberImport(session(), plan.value()).ok());
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"),
                  QStringLiteral("hy_bh,hy_name,hy_jf,hy_zjf,hl_sn,hy_status"),
                  QStringLiteral("hy_sn>'100001'")),
        (QStringList { "100001|张敏|0|0|100001|1", "100002|李娜|30|30|100002|1",
            "100003|王强|0|0|100001|1", "100004|赵敏|0|0|100001|1" }));
}

TEST_F(MemberRows, PointsSettingsAreCheckedAndKept)
{
    members::PointsSettings s = members::loadPointsSettings(db());
    EXPECT_EQ(
        members::applyPointsSetting(s, QStringLiteral("jf_mfje"), QStringLiteral("-1")).message(),
        "每积一分的消费金额“-1”不是有效的金额！");
    EXPECT_EQ(
        members::applyPointsSetting(s, QStringLiteral("jf_srjflx"), QStringLiteral("2")).message(),
        "生日积分方式只能是 0（生日当天）或 1（生日前后几天），不能是“2”！");
    EXPECT_EQ(
        members::applyPointsSetting(s, QStringLiteral("jf_xx"), QStringLiteral("1")).message(),
        "积分设置中没有“jf_xx”这一项！");
    ASSERT_TRUE(members::applyPointsSetting(s, QStringLiteral("jf_dbjf"), QStringLiteral("2")));
    EXPECT_FALSE(members::savePointsSettings(session(), s));
    EXPECT_EQ(ui.informed.last(), "多倍积分需要填写有效的起止日期！");
    ASSERT_TRUE(
        members::applyPointsSetting(s, QStringLiteral("jf_dbrq1"), QStringLiteral("2025-05-01")));
    ASSERT_TRUE(
        members::applyPointsSetting(s, QStringLiteral("jf_dbrq2"), QStringLiteral("2025-05-07")));
    ASSERT_TRUE(members::applyPointsSetting(s, QStringLiteral("jf_jfgz"), QStringLiteral("0")));
    ASSERT_TRUE(members::savePointsSettings(session(), s));
    EXPECT_EQ(rows(QStringLiteral("jxc_jfsz"),
                  QStringLiteral("jf_mfje,jf_jfgz,jf_dbjf,jf_dbrq1,jf_dbrq2,jf_djjf")),
        QStringList { "10|0|2|2025-05-01|2025-05-07|0" });
}
