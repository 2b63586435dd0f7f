// The members' and gifts' screens driven as a clerk would.
#include "members/member.h"
#include "tests/support/documentrows.h"
#include "tests/ui/uitest.h"
#include "ui/common/screenregistry.h"
#include "ui/masterdata/fields.h"
#include "ui/members/giftsscreen.h"
#include "ui/members/membersscreen.h"
#include "ui/members/redeempage.h"
#include "ui/members/registration.h"
#include "ui/members/topupdialog.h"
#include "ui/shell/logindialog.h"
#include "ui/shell/mainwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QSqlRecord>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using test::typeInto;

namespace {

class MemberScreens : public test::UiTest
{
protected:
    QStringList row(const QString &sql, const QVariantList &params = {})
    {
        const QSqlRecord r = db().firstRow(sql, params);
        QStringList values;
        for (int i = 0; i < r.count(); ++i)
            values.append(r.value(i).toString());
        return values;
    }
};

} // namespace

TEST_F(MemberScreens, AClerkAddsAMember)
{
    ui::MembersScreen screen(workspace());
    ASSERT_EQ(screen.rowCount(), 1);
    ui::MemberDialog dialog(session(), {});
    EXPECT_TRUE(dialog.checkBox(QStringLiteral("hy_sj"))->isChecked());
    EXPECT_EQ(dialog.lineEdit(QStringLiteral("hy_jrrq"))->text(), "2025-03-14");
    typeInto(dialog.lineEdit(QStringLiteral("hy_name")), QStringLiteral("张敏"));
    typeInto(dialog.lineEdit(QStringLiteral("hy_mobile")), QStringLiteral("13900001111"));
    typeInto(dialog.lineEdit(QStringLiteral("hy_sr")), QStringLiteral("1980-05-02"));
    dialog.save();
    ASSERT_EQ(dialog.result(), QDialog::Accepted) << ui.informed.join('|').toStdString();
    EXPECT_EQ(dialog.savedKey(), "100002");
    EXPECT_EQ(row(QStringLiteral("select hy_bh,hy_name,hy_jm,hl_sn,hh_sn,hy_sj,hy_status,hy_jrrq,"
                                 "hy_sr,hy_jf from jxc_hyxx where hy_sn='100002'")),
        (QStringList { "100001", "张敏", "ZM", "100001", "100001", "1", "1", "2025-03-14",
            "1980-05-02", "0" }));
    screen.reload();
    ASSERT_EQ(screen.rowCount(), 2);
    typeInto(screen.searchField(), QStringLiteral("1390000"));
    ASSERT_EQ(screen.rowCount(), 1);
    EXPECT_EQ(screen.recordAt(0).value(QStringLiteral("hl_name")).toString(), "普通会员");
}

TEST_F(MemberScreens, ATopUpWithAMonthlyGift)
{
    const QString member
        = members::addMember(session(), { { QStringLiteral("hy_name"), QStringLiteral("张敏") } })
              .value();
    ui::TopUpDialog dialog(session(), member);
    EXPECT_FALSE(dialog.perField()->isEnabled());
    dialog.amountField()->setValue(500);
    EXPECT_EQ(dialog.cashField()->value(), 500);
    dialog.bankField()->setValue(200);
    dialog.amountField()->setValue(500.5);
    EXPECT_EQ(dialog.cashField()->value(), 300.5);
    EXPECT_EQ(dialog.paidLabel()->text(), "收款合计：500.50");
    dialog.modeChoice()->setCurrentIndex(1);
    ASSERT_TRUE(dialog.perField()->isEnabled());
    dialog.perField()->setValue(50);
    dialog.giftField()->setValue(30);
    dialog.save();
    EXPECT_EQ(ui.informed.last(), "分期赠送时每次金额必须大于0，赠送金额不能小于每次金额！");
    EXPECT_EQ(dialog.result(), 0);
    dialog.giftField()->setValue(100);
    dialog.save();
    ASSERT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed.last(), "充值成功，单号：XF25031410001");
    EXPECT_EQ(row(QStringLiteral("select xf_je,xf_xj,xf_xyk,hs_zsfs,hs_myje,hs_zsje,xf_zsrq from "
                                 "jxc_hyxf")),
        (QStringList { "500.5", "300.5", "200", "1", "50", "100", "2025-03-14" }));
    EXPECT_EQ(row(QStringLiteral("select hy_zhje from jxc_hyxx where hy_sn=?"), { member }),
        QStringList { "500.5" });
}

TEST_F(MemberScreens, AClerkRedeemsAGiftByMobile)
{
    test::addGoods(db(), { .code = QStringLiteral("300001"), .name = QStringLiteral("保温杯") });
    db().exec(QStringLiteral("update jxc_goods set g_iszp=1,g_sy=1,g_zpjf=200,g_kc=10 where "
                             "g_sn='300001'"));
    db().exec(QStringLiteral("insert into jxc_kcsp (g_sn,ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl) values "
                             "('300001','100001',10,10,18,0)"));
    const QString member = members::addMember(session(),
        { { QStringLiteral("hy_name"), QStringLiteral("张敏") },
            { QStringLiteral("hy_mobile"), QStringLiteral("13900001111") },
            { QStringLiteral("hy_jf"),
                450 } }).value();
    ui::GiftsScreen screen(workspace());
    ui::RedeemPage *page = screen.redeemPage();
    ASSERT_EQ(page->giftGrid()->rowCount(), 1);
    EXPECT_EQ(page->giftGrid()->item(0, 2)->text(), "保温杯");
    EXPECT_EQ(page->giftGrid()->item(0, 6)->text(), "10");

    typeInto(page->cardField(), QStringLiteral("13900001111"));
    QTest::keyClick(page->cardField(), Qt::Key_Return);
    EXPECT_EQ(page->memberLabel()->text(), "张敏（100001）  初级会员  会员积分：450");
    page->pickGift(0);
    page->pickGift(0);
    page->pickGift(0);
    EXPECT_EQ(page->totalsLabel()->text(), "合计数量：3  合计积分：600");
    EXPECT_FALSE(page->save());
    EXPECT_EQ(ui.informed.last(), "会员积分不足：当前积分450，本次兑换需要600积分，不能兑换！");
    page->lineGrid()->item(0, 3)->setText(QStringLiteral("2"));
    EXPECT_EQ(page->totalsLabel()->text(), "合计数量：2  合计积分：400");
    EXPECT_TRUE(page->save());
    EXPECT_EQ(ui.informed.last(), "兑换成功，单号：DH25031410001");
    EXPECT_EQ(row(QStringLiteral("select hy_jf from jxc_hyxx where hy_sn=?"), { member }),
        QStringList { "50" });
    EXPECT_EQ(
        row(QStringLiteral("select kc_sl from jxc_kcsp where g_sn='300001'")), QStringList { "8" });
    EXPECT_EQ(page->lineGrid()->rowCount(), 0);
    EXPECT_EQ(screen.redemptionsPage()->grid()->rowCount(), 1);
    EXPECT_EQ(screen.redemptionsPage()->grid()->item(0, 0)->text(), "DH25031410001");
}

TEST_F(MemberScreens, TheScreensOpenFromTheirRights)
{
    ui::ScreenRegistry registry;
    ui::registerMemberScreens(registry);
    ui::MainWindow window(workspace(), registry);
    window.openOperation(QStringLiteral("qtcz"), 10);
    EXPECT_NE(qobject_cast<ui::MembersScreen *>(window.tabs()->currentWidget()), nullptr);
    window.openOperation(QStringLiteral("rcgl"), 11);
    EXPECT_NE(qobject_cast<ui::GiftsScreen *>(window.tabs()->currentWidget()), nullptr);
}

// Every successful login releases the top-up gifts that have fallen due: a daily gift of 10 a
// day from 2025-03-10, 35 in all, has three instalments due on 2025-03-14.
TEST_F(MemberScreens, LoggingInReleasesTheGiftsThatHaveFallenDue)
{
    const QString member
        = members::addMember(session(), { { QStringLiteral("hy_name"), QStringLiteral("张敏") } })
              .value();
    db().exec(QStringLiteral("insert into jxc_hyxf (gl_djh,hy_sn,xf_rq,xf_je,xf_zsrq,hs_zsfs,"
                             "hs_myje,hs_zsje) values ('XF25031010001',?,'2025-03-10',100,"
                             "'2025-03-10',3,10,35)"),
        { member });
    ui::LoginDialog login(openAgain(), folder(), clock, ui);
    login.show();
    QTest::keyClick(login.passwordField(), Qt::Key_Return);
    ASSERT_EQ(login.result(), QDialog::Accepted);
    EXPECT_EQ(row(QStringLiteral("select hy_zhje from jxc_hyxx where hy_sn=?"), { member }),
        QStringList { "30" });
    EXPECT_EQ(row(QStringLiteral("select hs_zsje from jxc_hyxf where gl_djh='XF25031010001'")),
        QStringList { "5" });
}
