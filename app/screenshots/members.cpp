#include "app/screenshots/members.h"

#include "core/spreadsheet.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "members/giftitems.h"
#include "members/import.h"
#include "members/levels.h"
#include "members/member.h"
#include "members/redemption.h"
#include "members/retail.h"
#include "members/settings.h"
#include "members/topups.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"
#include "ui/common/workspace.h"
#include "ui/masterdata/importdialog.h"
#include "ui/members/adjustdialogs.h"
#include "ui/members/giftdialogs.h"
#include "ui/members/giftsscreen.h"
#include "ui/members/historydialog.h"
#include "ui/members/levelsdialog.h"
#include "ui/members/membersscreen.h"
#include "ui/members/redeempage.h"
#include "ui/members/settingsdialog.h"
#include "ui/members/topupdialog.h"
#include "ui/shell/mainwindow.h"

#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>

using namespace medistock;

namespace {

const QString amoxicillin = QStringLiteral("10020001");

QString addGift(shell::Session &admin)
{
    return masterdata::addMasterRow(admin, masterdata::goodsKind(),
        { { QStringLiteral("g_name"), QStringLiteral("保温杯") },
            { QStringLiteral("dw_name"), QStringLiteral("个") },
            { QStringLiteral("gg_name"), QStringLiteral("500ml") },
            { QStringLiteral("g_iszp"), QStringLiteral("1") },
            { QStringLiteral("g_sy"), QStringLiteral("1") },
            { QStringLiteral("g_zpjf"), QStringLiteral("200") } })
        .value();
}

// Stock bought in for the till and the gifts.
void receive(shell::Session &admin, const QString &gift)
{
    purchasing::PurchaseDraft draft;
    draft.entry.date = admin.today();
    draft.entry.party = QStringLiteral("100001");
    draft.entry.warehouse = QStringLiteral("100001");
    draft.entry.lines = { { amoxicillin, {}, QStringLiteral("200"), QStringLiteral("6.8"), {}, {},
                              QStringLiteral("A2401"), {}, QStringLiteral("2026-12-31"), {}, {} },
        { gift, {}, QStringLiteral("30"), QStringLiteral("18"), {}, {}, {}, {}, {}, {}, {} } };
    const Result<QString> number = purchasing::savePurchaseReceipt(admin, draft);
    if (number)
        purchasing::checkPurchaseReceipt(admin, number.value());
}

void seedMembers(shell::Session &admin)
{
    members::PointsSettings settings;
    settings.amountPerPoint = 10;
    settings.carryRemainder = true;
    settings.birthdayFactor = 2;
    settings.birthdayRule = 1;
    settings.birthdayDays = 3;
    members::savePointsSettings(admin, settings);
    members::saveLevel(
        admin, { QStringLiteral("100002"), QStringLiteral("初级会员"), 0.98, 1, 999 });
    members::saveLevel(admin, { {}, QStringLiteral("银卡会员"), 0.95, 1000, 4999 });
    members::saveLevel(admin, { {}, QStringLiteral("金卡会员"), 0.9, 5000, 9999999 });
    const std::initializer_list<std::pair<const char *, const char *>> people[] = {
        { { "hy_name", "张敏" }, { "hy_mobile", "13900001111" }, { "hy_sr", "1980-05-02" },
            { "hy_sex", "女" }, { "hy_jf", "1280" } },
        { { "hy_name", "李建国" }, { "hy_mobile", "13705712233" }, { "hy_sr", "1962-11-20" },
            { "hy_sex", "男" }, { "hy_jf", "6300" } },
        { { "hy_name", "王秀兰" }, { "hy_mobile", "13588887777" }, { "hy_sex", "女" } },
        { { "hy_name", "陈晓东" }, { "hy_mobile", "18667001234" }, { "hy_sex", "男" },
            { "hy_jf", "320" } },
    };
    for (const auto &person : people) {
        masterdata::Values values;
        for (const auto &[column, value] : person)
            values.insert(QString::fromLatin1(column), QString::fromUtf8(value));
        members::addMember(admin, values);
    }
    members::TopUpDraft topUp;
    topUp.member = QStringLiteral("100002");
    topUp.amount = 1000;
    topUp.payment.cash = 500;
    topUp.payment.wechat = 500;
    topUp.giftMode = members::GiftMode::Monthly;
    topUp.perInstalment = 50;
    topUp.gift = 300;
    members::topUp(admin, topUp);
    members::RetailDocument sale;
    sale.member = QStringLiteral("100002");
    sale.warehouse = QStringLiteral("100001");
    sale.lines = { { amoxicillin, 3, 12, 1, {}, 1, {}, QStringLiteral("A2401"),
        QStringLiteral("2026-12-31"), {} } };
    sale.payment.card = 36;
    members::postRetailDocument(admin, sale);
}

void seedGiftItems(shell::Session &admin)
{
    const QString umbrella
        = members::saveGiftItem(admin, { {}, QStringLiteral("折叠雨伞"), {}, 300 }, true).value();
    members::saveGiftItem(admin, { {}, QStringLiteral("环保购物袋"), {}, 50 }, true);
    members::addGiftPurchase(admin, umbrella, admin.clock().today(), 20, QStringLiteral("首批"));
    members::addGiveAway(
        admin, admin.clock().today(), {}, { { umbrella, 2 } }, QStringLiteral("开业活动"));
}

void writeMemberSheet(const QString &path)
{
    core::writeXlsx(path, QStringLiteral("会员"),
        { QStringLiteral("会员卡号"), QStringLiteral("会员姓名"), QStringLiteral("性别"),
            QStringLiteral("移动电话"), QStringLiteral("出生日期"), QStringLiteral("会员积分") },
        { { QString(), QStringLiteral("赵丽"), QStringLiteral("女"), QStringLiteral("13911112222"),
              QStringLiteral("1990-01-15"), 0 },
            { QStringLiteral("100001"), QStringLiteral("孙强"), QStringLiteral("男"),
                QStringLiteral("13811113333"), QString(), 150 },
            { QStringLiteral("880008"), QStringLiteral("周敏"), QStringLiteral("女"),
                QStringLiteral("13611114444"), QStringLiteral("1985-07-30"), 1200 } });
}

void shootMemberDialogs(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MainWindow &window, ui::Workspace &workspace, const QString &scratch)
{
    shell::Session &session = workspace.session;
    ui::MemberDialog edit(session, QStringLiteral("100002"), &window);
    for (int page = 0; page < edit.pages()->count(); ++page) {
        edit.pages()->setCurrentIndex(page);
        shoot(&edit, QStringLiteral("27-member-edit-%1").arg(page + 1));
    }
    edit.hide();
    ui::PointsAdjustDialog points(session, QStringLiteral("100002"), &window);
    shoot(&points, QStringLiteral("28-member-points"));
    points.hide();
    ui::BalanceAdjustDialog balance(session, QStringLiteral("100002"), &window);
    shoot(&balance, QStringLiteral("29-member-balance"));
    balance.hide();
    ui::TopUpDialog topUp(session, QStringLiteral("100003"), &window);
    topUp.amountField()->setValue(500);
    topUp.modeChoice()->setCurrentIndex(1);
    topUp.perField()->setValue(20);
    topUp.giftField()->setValue(100);
    shoot(&topUp, QStringLiteral("30-member-topup"));
    topUp.hide();
    ui::HistoryDialog history(workspace, QStringLiteral("100002"), &window);
    shoot(&history, QStringLiteral("31-member-history"));
    history.hide();
    ui::LevelsDialog levels(session, &window);
    shoot(&levels, QStringLiteral("32-member-levels"));
    levels.hide();
    ui::PointsSettingsDialog settings(session, &window);
    shoot(&settings, QStringLiteral("33-points-settings"));
    settings.hide();
    const QString sheet = QDir(scratch).filePath(QStringLiteral("会员导入.xlsx"));
    writeMemberSheet(sheet);
    ui::ImportDialog import(session, members::memberKind(), &window,
        { [&session](const QString &path) { return members::planMemberImport(session, path); },
            {} });
    import.load(sheet);
    shoot(&import, QStringLiteral("34-member-import"));
    import.hide();
}

} // namespace

void shootMembers(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MainWindow &window, ui::Workspace &workspace, const QString &scratch)
{
    shell::Session &admin = workspace.session;
    const QString gift = addGift(admin);
    receive(admin, gift);
    seedMembers(admin);
    seedGiftItems(admin);
    members::RedemptionDraft redemption;
    redemption.member = QStringLiteral("100003");
    redemption.warehouse = QStringLiteral("100001");
    redemption.lines = { { gift, {}, 0, 2 } };
    members::saveRedemption(admin, redemption);

    window.openOperation(QStringLiteral("qtcz"), 10);
    auto *list = qobject_cast<ui::MembersScreen *>(window.tabs()->currentWidget());
    list->selectKey(QStringLiteral("100002"));
    shoot(&window, QStringLiteral("26-members"));
    shootMemberDialogs(shoot, window, workspace, scratch);

    window.openOperation(QStringLiteral("rcgl"), 11);
    auto *gifts = qobject_cast<ui::GiftsScreen *>(window.tabs()->currentWidget());
    ui::RedeemPage *redeem = gifts->redeemPage();
    redeem->cardField()->setText(QStringLiteral("13900001111"));
    redeem->findMember();
    redeem->pickGift(0);
    shoot(&window, QStringLiteral("35-gifts-redeem"));
    gifts->pages()->setCurrentIndex(1);
    shoot(&window, QStringLiteral("36-gifts-redemptions"));
    gifts->pages()->setCurrentIndex(2);
    gifts->giftItemsPage()->itemGrid()->selectRow(0);
    shoot(&window, QStringLiteral("37-gift-items"));
    ui::GiftItemDialog item(admin, members::listGiftItems(admin.db()).first(), false, &window);
    shoot(&item, QStringLiteral("38-gift-item-edit"));
    item.hide();
    ui::GiftMovementDialog purchase(admin, ui::GiftMovementDialog::Kind::GiveAway,
        members::listGiftItems(admin.db()).first(), &window);
    shoot(&purchase, QStringLiteral("39-gift-give-away"));
    purchase.hide();
}
