#include "app/screenshots/pos.h"

#include "pos/returns.h"
#include "pos/till.h"
#include "pos/tillcash.h"
#include "shell/session.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/pos/handoverlist.h"
#include "ui/pos/reportscreen.h"
#include "ui/pos/tilldialogs.h"
#include "ui/pos/tillscreen.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"
#include "ui/shell/mainwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

using namespace medistock;

namespace {

members::RetailLine line(const char *goods, double quantity, double price)
{
    members::RetailLine l;
    l.goods = QString::fromLatin1(goods);
    l.quantity = quantity;
    l.price = price;
    return l;
}

// A morning at the counter: four sales, one of them a member's paid partly by card and WeChat,
// a box of amoxicillin brought back, a float put in and takings taken out.
// Returns the first sale's number.
QString seedTill(shell::Session &admin)
{
    const QList<QList<members::RetailLine>> sales { { line("10020001", 2, 12),
                                                        line("10030001", 3, 4.5) },
        { line("10010001", 1, 15), line("1001010001", 2, 9.9) },
        { line("10020001", 1, 12), line("10010001", 2, 15), line("10030001", 1, 4.5) },
        { line("10030001", 4, 4.5) } };
    QString first;
    for (int i = 0; i < sales.size(); ++i) {
        members::RetailDocument sale;
        sale.warehouse = QStringLiteral("100001");
        sale.employee = i < 2 ? QStringLiteral("100002") : QStringLiteral("100003");
        sale.lines = sales[i];
        sale.member = i == 2 ? QStringLiteral("100002") : QString();
        const double due = members::retailReceivable(admin, sale);
        if (i == 2) {
            sale.payment.card = 20;
            sale.payment.counter.wechat = due - 20;
        } else
            sale.payment.counter.cash = due;
        const Result<QString> sold = pos::sellAtTill(admin, sale);
        if (!sold)
            qFatal("sample till sale refused");
        if (first.isEmpty())
            first = sold.value();
    }
    const Result<pos::SoldReceipt> receipt = pos::readSoldReceipt(admin, first);
    const Result<members::RetailDocument> back = receipt
        ? pos::returnOf(admin, receipt.value(), { 1, 0 })
        : Result<members::RetailDocument>(receipt.outcome());
    if (!back || !pos::returnAtTill(admin, back.value()))
        qFatal("sample till return refused");
    pos::recordTillCash(admin, pos::TillCash::In, 200, QStringLiteral("备用零钱"));
    pos::recordTillCash(admin, pos::TillCash::Out, 100, QStringLiteral("上交保险柜"));
    return first;
}

void shootTill(
    const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace, const QString &sold)
{
    window.openOperation(QStringLiteral("xsgl"), 20);
    auto *till = qobject_cast<ui::TillScreen *>(window.tabs()->currentWidget());
    for (const char *code : { "10020001", "10020001", "10010001", "10030001" }) {
        till->goodsField()->setText(QString::fromLatin1(code));
        till->enterGoods();
    }
    till->toggleGift();
    till->readCard(QStringLiteral("13900001111"));
    till->goodsField()->setText(QStringLiteral("bl"));
    shots.shoot(&window, QStringLiteral("81-till-sale"));
    const members::RetailDocument sale = till->document();
    std::optional<members::Member> member
        = members::findMemberByCard(workspace.session.db(), QStringLiteral("13900001111"));
    ui::PaymentDialog pay(workspace.session, members::retailReceivable(workspace.session, sale),
        member ? member->balance : -1, &window);
    pay.field(4)->setValue(10);
    pay.field(0)->setValue(50);
    shots.shootOver(&window, &pay, QStringLiteral("82-till-payment"));
    pay.hide();
    const Result<pos::SoldReceipt> receipt = pos::readSoldReceipt(workspace.session, sold);
    if (receipt) {
        ui::ReturnDialog back(receipt.value(), 2, &window);
        back.grid()->item(0, 6)->setText(QStringLiteral("1.00"));
        shots.shootOver(&window, &back, QStringLiteral("83-till-return"));
        back.hide();
    }
    ui::HandoverDialog handover(workspace.session,
        pos::shiftFigures(
            workspace.session, workspace.session.user().name, workspace.session.clock().nowText()),
        QStringLiteral("jbxp"), &window);
    shots.shootOver(&window, &handover, QStringLiteral("84-till-handover"));
    handover.hide();
}

// The receipt of the sample sale, the handover of the morning's shift (100 left in the drawer) and
// its slip on both rolls, the list of handovers, and four POS reports in their print previews.
void shootPosPrints(
    const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace, const QString &sold)
{
    shell::Session &session = workspace.session;
    const pos::ShiftFigures shift
        = pos::shiftFigures(session, session.user().name, session.clock().nowText());
    const auto done = pos::handOver(session,
        { session.user().name, shift.drawer() - 100, 100, QStringLiteral("早班交班，钱箱已清点") });
    if (!done)
        qFatal("sample handover refused");
    int n = 210;
    for (const char *key : { "jbxp", "jbxp58" }) {
        ui::PreviewDialog *slip = ui::printWithPreview(
            workspace, QString::fromLatin1(key), QString::number(done->first.id), &window);
        if (!slip)
            continue;
        slip->setZoom(1.5);
        shots.shoot(slip, QStringLiteral("%1-preview-%2").arg(n++).arg(QString::fromLatin1(key)));
        slip->close();
    }
    if (ui::PreviewDialog *receipt
        = ui::printWithPreview(workspace, QStringLiteral("posxp"), sold, &window)) {
        receipt->setZoom(1.5);
        shots.shoot(receipt, QStringLiteral("217-preview-posxp"));
        receipt->close();
    }
    ui::HandoverListDialog handovers(workspace, &window);
    shots.shootOver(&window, &handovers, QStringLiteral("212-till-handovers"));
    handovers.hide();
    const std::pair<int, const char *> reports[]
        = { { 16, "213-preview-possxph1" }, { 14, "214-preview-poslsz" },
              { 18, "215-preview-possytj1" }, { 20, "216-preview-possytj2" } };
    for (const auto &[position, name] : reports) {
        window.openOperation(QStringLiteral("tjgl"), position);
        auto *report = qobject_cast<ui::PosReportScreen *>(window.tabs()->currentWidget());
        if (report && report->viewBox())
            report->viewBox()->setCurrentIndex(0);
        if (ui::PreviewDialog *preview = printFrom(report)) {
            // The landscape forms whole across the window.
            if (preview->report().pages.first().sizeMm.width() > 250)
                preview->setZoom(0.8);
            shots.shoot(preview, QString::fromLatin1(name));
            preview->close();
        }
    }
}

} // namespace

void shootPos(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    const QString sold = seedTill(workspace.session);
    shootTill(shots, window, workspace, sold);
    const char *names[] = { "85-pos-journal", "86-pos-goods", "88-pos-ranking", "90-pos-members",
        "91-pos-cashiers", "92-pos-cash", "93-pos-commission" };
    for (int i = 0; i < 7; ++i) {
        window.openOperation(QStringLiteral("tjgl"), 14 + i);
        auto *report = qobject_cast<ui::PosReportScreen *>(window.tabs()->currentWidget());
        shots.shoot(&window, QString::fromLatin1(names[i]));
        if (i == 1 || i == 2) {
            report->viewBox()->setCurrentIndex(i == 1 ? 1 : 2);
            shots.shoot(&window,
                QStringLiteral("%1-pos-%2")
                    .arg(i == 1 ? 87 : 89)
                    .arg(i == 1 ? QStringLiteral("details") : QStringLiteral("ranking-cashiers")));
        }
    }
    shootPosPrints(shots, window, workspace, sold);
}
