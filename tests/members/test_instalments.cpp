// Top-ups, their instalment gifts released at login and at purchases, and their forfeits.
#include "members/instalments.h"
#include "members/member.h"
#include "members/retail.h"
#include "members/topups.h"
#include "tests/members/memberstest.h"

using namespace medistock;
using members::GiftMode;

namespace {

class Instalments : public test::MembersTest
{
protected:
    // A top-up of `amount` in cash on `date`, with a gift of `gift` in instalments of `per`.
    QString topUp(const QString &member, const QDate &date, double amount, GiftMode mode,
        double per, double gift)
    {
        clock.fix(date);
        session().clock().fix(date);
        members::TopUpDraft draft;
        draft.member = member;
        draft.amount = amount;
        draft.payment.cash = amount;
        draft.giftMode = mode;
        draft.perInstalment = per;
        draft.gift = gift;
        const Result<QString> number = members::topUp(session(), draft);
        EXPECT_TRUE(number.ok()) << number.message().toStdString();
        return number.ok() ? number.value() : QString();
    }
    members::GiftRelease releaseOn(const QDate &date)
    {
        session().clock().fix(date);
        const Result<members::GiftRelease> release = members::releaseInstalmentGifts(session());
        EXPECT_TRUE(release.ok());
        return release.ok() ? release.value() : members::GiftRelease {};
    }
    // The member's top-up rows: gl_djh, xf_je, hs_zsfs, hs_zsje, xf_zsrq, xf_zt, xf_note.
    QStringList history(const QString &member)
    {
        return rows(QStringLiteral("jxc_hyxf"),
            QStringLiteral("gl_djh,xf_je,hs_zsfs,hs_zsje,xf_zsrq,xf_zt,xf_note"),
            QStringLiteral("hy_sn=?"), { member });
    }
    QString saleOn(const QString &member, const QString &time)
    {
        members::RetailDocument d = retail(member, { line(QStringLiteral("200001"), 1, 10) });
        d.time = time;
        return post(d);
    }
};

} // namespace

TEST_F(Instalments, ATopUpGoesOnTheCardAndIntoTheCashBook)
{
    const QString member = addMember(QStringLiteral("张敏"));
    members::TopUpDraft draft;
    draft.member = member;
    draft.amount = 500;
    draft.payment.cash = 350;
    draft.payment.change = 50;
    draft.payment.bankCard = 200;
    draft.giftMode = GiftMode::Monthly;
    draft.perInstalment = 50;
    draft.gift = 100;
    draft.points = 100;
    const Result<QString> number = members::topUp(session(), draft);
    ASSERT_TRUE(number.ok());
    EXPECT_EQ(number.value(), "XF25031410001");
    EXPECT_EQ(history(member), QStringList { "XF25031410001|500|1|100|2025-03-14|会员充值|" });
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxx"), QStringLiteral("hy_zhje,hy_jf,hy_zjf,hl_sn"),
                  QStringLiteral("hy_sn=?"), { member }),
        QStringList { "500|100|100|100002" });
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_kmmc,xj_je,xj_ljje"),
                  QStringLiteral("gl_djh=?"), { number.value() }),
        (QStringList { "会员充值|现金|300|300", "会员充值|银行卡|200|200" }));

    const QString before = snapshot();
    draft.payment.change = 40;
    EXPECT_FALSE(members::topUp(session(), draft));
    EXPECT_EQ(ui.informed.last(), "收款合计510元与充值金额500元不符！");
    draft.payment.change = 50;
    draft.perInstalment = 150;
    EXPECT_FALSE(members::topUp(session(), draft));
    EXPECT_EQ(ui.informed.last(), "分期赠送时每次金额必须大于0，赠送金额不能小于每次金额！");
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

// A mode-1 top-up of 2025-01-05 waits until the 10th of a month; on 2025-03-10 it has waited
// two months and gets both instalments at once.
TEST_F(Instalments, MonthlyGiftsWaitUntilTheTenth)
{
    const QString member = addMember(QStringLiteral("张敏"));
    const QString topped = topUp(member, QDate(2025, 1, 5), 1000, GiftMode::Monthly, 100, 250);
    EXPECT_EQ(releaseOn(QDate(2025, 3, 9)).rows, 0);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 1000);

    const members::GiftRelease release = releaseOn(QDate(2025, 3, 10));
    EXPECT_EQ(release.number, "XF25031010001");
    EXPECT_EQ(release.rows, 1);
    EXPECT_EQ(history(member),
        (QStringList { topped + "|1000|1|50|2025-03-10|会员充值|",
            "XF25031010001|200|-1|0|2025-03-10|按月到账|" + topped
                + "该单据充值按月赠送，本次赠送：2个月" }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 1200);

    // What is left (50) no longer covers an instalment of 100.
    EXPECT_EQ(releaseOn(QDate(2025, 5, 12)).rows, 0);
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 1200);
}

TEST_F(Instalments, DailyGiftsAreReleasedAsFarAsTheGiftLasts)
{
    const QString member = addMember(QStringLiteral("张敏"));
    topUp(member, QDate(2025, 3, 10), 100, GiftMode::Daily, 10, 35);
    const members::GiftRelease release = releaseOn(QDate(2025, 3, 14));
    EXPECT_EQ(release.amount, 30);
    EXPECT_EQ(history(member).last(),
        release.number
            + "|30|-3|0|2025-03-14|按天到账|XF25031010001该单据充值按天赠送，本次赠送：3天");
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 130);
}

// A purchase releases one instalment of every mode-2 top-up due; only the first one's amount
// reaches the card. A second purchase in the month releases nothing.
TEST_F(Instalments, APurchaseReleasesTheMonthsInstalmentOnce)
{
    const QString member = addMember(QStringLiteral("张敏"));
    const QString first
        = topUp(member, QDate(2025, 2, 3), 500, GiftMode::MonthlyOnPurchase, 50, 200);
    const QString second
        = topUp(member, QDate(2025, 2, 4), 300, GiftMode::MonthlyOnPurchase, 30, 90);
    session().clock().fix(QDate(2025, 3, 14));
    const QString sale = saleOn(member, QStringLiteral("2025-03-14 10:00:00"));
    EXPECT_EQ(history(member),
        (QStringList { first + "|500|2|150|2025-03-14|会员充值|",
            second + "|300|2|60|2025-03-14|会员充值|",
            sale + "|50|-2|0|2025-03-14|" + sale + "本月消费到账|" + first
                + "该单据充值按月消费赠送，本次消费赠送：1个月",
            sale + "|30|-2|0|2025-03-14|" + sale + "本月消费到账|" + second
                + "该单据充值按月消费赠送，本次消费赠送：1个月" }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 850);
    EXPECT_EQ(rows(QStringLiteral("jxc_posxsd"), QStringLiteral("pos_zftype"),
                  QStringLiteral("gl_djh=?"), { sale }),
        QStringList { "1" });

    const QString again = saleOn(member, QStringLiteral("2025-03-14 15:00:00"));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 850);

    // Reversing one of two sales of the month keeps the release; reversing the last undoes it.
    ASSERT_TRUE(members::reverseRetailDocument(session(), again));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 850);
    ASSERT_TRUE(members::reverseRetailDocument(session(), sale));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 800);
    EXPECT_EQ(history(member),
        (QStringList { first + "|500|2|200|2025-03-14|会员充值|",
            second + "|300|2|90|2025-03-14|会员充值|",
            sale + "|30|-2|0|2025-03-14|" + sale + "本月消费到账|" + second
                + "该单据充值按月消费赠送，本次消费赠送：1个月" }));
}

// Months (days) without a purchase are lost at login; the next purchase releases again.
TEST_F(Instalments, InstalmentsWithoutAPurchaseAreForfeited)
{
    const QString member = addMember(QStringLiteral("张敏"));
    const QString monthly
        = topUp(member, QDate(2025, 1, 5), 500, GiftMode::MonthlyOnPurchase, 50, 200);
    const QString daily = topUp(member, QDate(2025, 3, 10), 100, GiftMode::DailyOnPurchase, 5, 20);
    releaseOn(QDate(2025, 3, 14));
    EXPECT_EQ(history(member),
        (QStringList { monthly + "|500|2|150|2025-02-14|会员充值|",
            daily + "|100|4|5|2025-03-13|会员充值|" }));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 600);

    const QString sale = saleOn(member, QStringLiteral("2025-03-14 10:00:00"));
    EXPECT_EQ(figure(member, QStringLiteral("hy_zhje")), 655);
    EXPECT_EQ(rows(QStringLiteral("jxc_hyxf"), QStringLiteral("xf_je,hs_zsfs,xf_zt"),
                  QStringLiteral("gl_djh=?"), { sale }),
        (QStringList { "50|-2|" + sale + "本月消费到账", "5|-4|" + sale + "今天消费到账" }));
}
