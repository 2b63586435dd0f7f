#include "app/screenshots/documents.h"

#include "documents/goodslookup.h"
#include "purchasing/entry.h"
#include "purchasing/kinds.h"
#include "purchasing/proposals.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "shell/session.h"
#include "stock/documents/openingstock.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/documents/uncheckeddialog.h"
#include "ui/purchasing/checkdialog.h"
#include "ui/purchasing/purchasekinds.h"
#include "ui/reports/previewdialog.h"
#include "ui/shell/mainwindow.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/openingkind.h"
#include "ui/stock/stockqueryscreen.h"

#include <QApplication>
#include <QCheckBox>
#include <QDate>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>

using namespace medistock;

namespace {

// A sample line; its dates are days from today, so that the pictures show the same mix of
// batches (good, near expiry, expired) whenever they are made.
struct Line
{
    const char *goods;
    const char *quantity;
    const char *price;
    const char *batch;
    int produced;
    int expiry;
};

QString dayText(int fromToday)
{
    return QDate::currentDate().addDays(fromToday).toString(QStringLiteral("yyyy-MM-dd"));
}

documents::LineDraft lineDraft(const Line &l)
{
    documents::LineDraft d;
    d.goods = QString::fromLatin1(l.goods);
    d.quantity = QString::fromLatin1(l.quantity);
    d.price = QString::fromLatin1(l.price);
    d.batch = QString::fromLatin1(l.batch);
    d.produced = dayText(l.produced);
    d.expiry = dayText(l.expiry);
    return d;
}

ui::LineEntry lineEntry(ui::DocumentScreen &screen, ui::Workspace &workspace, const Line &l)
{
    ui::LineEntry line = screen.lineFor(*documents::goodsChoice(
        workspace.session, QString::fromLatin1(l.goods), screen.warehouseCode()));
    const documents::LineDraft d = lineDraft(l);
    line.quantity = d.quantity;
    line.price = d.price;
    line.batch = d.batch;
    line.produced = d.produced;
    line.expiry = d.expiry;
    return line;
}

QString receipt(shell::Session &admin, const QString &date, const QList<Line> &lines, bool check)
{
    purchasing::PurchaseDraft draft;
    draft.entry.date = date;
    draft.entry.party = QStringLiteral("100002");
    draft.entry.warehouse = QStringLiteral("100001");
    draft.entry.note = QStringLiteral("月初补货");
    for (const Line &l : lines)
        draft.entry.lines.append(lineDraft(l));
    const Result<QString> saved = purchasing::savePurchaseReceipt(admin, draft);
    if (!saved)
        qFatal("sample receipt refused: %s", qPrintable(saved.message()));
    if (check && !purchasing::checkPurchaseReceipt(admin, saved.value(), { 500.0, {}, {}, {} }))
        qFatal("sample receipt not checked");
    return saved.value();
}

// Business of the last weeks: opening stock, receipts checked and one waiting, a return.
void seedBusiness(shell::Session &admin)
{
    const auto day = [](int back) { return dayText(-back); };
    stock::OpeningDraft opening { day(30), {} };
    for (const Line &l : { Line { "10020001", "40", "6.5", "A2301", -700, -20 },
             Line { "10010001", "60", "8", "GML2401", -400, 95 } })
        opening.lines.append({ QStringLiteral("100001"), lineDraft(l) });
    if (!stock::postOpeningStock(admin, opening))
        qFatal("sample opening stock refused");
    const QString first = receipt(admin, day(12),
        { { "10020001", "100", "6.8", "A2405", -200, 520 },
            { "10010001", "50", "8.2", "GML2409", -80, 640 },
            { "10030001", "80", "2.1", "VC2408", -100, 150 } },
        true);
    receipt(admin, day(3),
        { { "1001010001", "30", "5.6", "XE2410", -40, 690 },
            { "10020001", "40", "6.75", "A2409", -60, 1030 } },
        true);
    receipt(admin, day(0), { { "10030001", "20", "2.05", "VC2411", -20, 710 } }, false);
    // Part of the first receipt's amoxicillin goes back to the supplier.
    purchasing::PurchaseDraft back;
    back.entry.date = day(2);
    back.entry.party = QStringLiteral("100002");
    back.entry.warehouse = QStringLiteral("100001");
    back.entry.note = QStringLiteral("包装破损");
    documents::LineDraft line = lineDraft({ "10020001", "6", "6.8", "A2405", -200, 520 });
    line.columns.set(
        QStringLiteral("id2"), purchasing::returnableReceiptLines(admin, first).first().lineId);
    back.entry.lines = { line };
    const Result<QString> returned = purchasing::savePurchaseReturn(admin, back);
    if (!returned || !purchasing::checkPurchaseReturn(admin, returned.value()))
        qFatal("sample return refused");
}

ui::DocumentScreen *openDocumentScreen(ui::MainWindow &window, int position)
{
    window.openOperation(QStringLiteral("cggl"), position);
    return qobject_cast<ui::DocumentScreen *>(window.tabs()->currentWidget());
}

void fillReceipt(ui::DocumentScreen &screen, ui::Workspace &workspace)
{
    QList<ui::LineEntry> lines;
    for (const Line &l : { Line { "10020001", "50", "6.80", "A2411", -20, 1075 },
             Line { "10010001", "24", "8.20", "GML2411", -13, 717 },
             Line { "1001010001", "30", "5.60", "XE2411", -11, 719 } })
        lines.append(lineEntry(screen, workspace, l));
    screen.appendLines(lines);
    screen.grid()->setCurrentIndex(
        screen.lines()->index(3, screen.lines()->columnOf(ui::LineField::Code)));
}

void shootReceipt(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    ui::DocumentScreen *screen = openDocumentScreen(window, 1);
    fillReceipt(*screen, workspace);
    screen->partyField()->setFocus();
    shots.shoot(&window, QStringLiteral("40-receipt"));
    ui::GoodsPickerDialog picker(workspace, QStringLiteral("颗粒"), screen->warehouseCode(),
        QStringLiteral("cggl"), 18, &window);
    shots.shootOver(&window, &picker, QStringLiteral("41-receipt-goods-picker"));
    picker.hide();
    screen->save();
    ui::PurchaseCheckDialog check(
        workspace.session, purchasing::purchaseReceipt(), screen->number(), &window);
    shots.shootOver(&window, &check, QStringLiteral("42-receipt-check"));
    check.hide();
    ui::UncheckedDialog unchecked(*screen);
    shots.shootOver(&window, &unchecked, QStringLiteral("43-unchecked-receipts"));
    unchecked.hide();
}

void shootReturn(const Shots &shots, ui::MainWindow &window)
{
    ui::DocumentScreen *screen = openDocumentScreen(window, 2);
    screen->partyField()->setChoice(
        QStringLiteral("100002"), QStringLiteral("浙江英特药业有限责任公司"));
    ui::SourceLinesDialog lines(*screen, ui::receiptSource());
    lines.sourceGrid()->setCurrentCell(1, 0);
    lines.tick(0, true);
    lines.tick(2, true);
    shots.shootOver(&window, &lines, QStringLiteral("44-return-receipt-lines"));
    lines.hide();
    lines.takeInto(*screen);
    screen->noteField()->setText(QStringLiteral("包装破损退回"));
    shots.shoot(&window, QStringLiteral("45-return"));
}

void shootQueries(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.openOperation(QStringLiteral("cggl"), 4);
    auto *query = qobject_cast<ui::DocumentListScreen *>(window.tabs()->currentWidget());
    query->fromField()->setText(
        workspace.session.clock().today().addDays(-40).toString(QStringLiteral("yyyy-MM-dd")));
    query->run();
    query->grid()->selectRow(1);
    shots.shoot(&window, QStringLiteral("46-receipt-query"));

    window.openOperation(QStringLiteral("cggl"), 5);
    auto *stock = qobject_cast<ui::StockQueryScreen *>(window.tabs()->currentWidget());
    stock->run();
    shots.shoot(&window, QStringLiteral("47-stock-query"));
    stock->batchBox()->setChecked(true);
    shots.shoot(&window, QStringLiteral("48-stock-query-batches"));

    window.openOperation(QStringLiteral("kcgl"), 6);
    auto *ledger = qobject_cast<ui::GoodsLedgerScreen *>(window.tabs()->currentWidget());
    ledger->showGoods(QStringLiteral("10020001"), QStringLiteral("100001"));
    shots.shoot(&window, QStringLiteral("49-goods-ledger"));
}

void shootOpening(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.openOperation(QStringLiteral("qtcz"), 16);
    auto *screen = qobject_cast<ui::DocumentScreen *>(window.tabs()->currentWidget());
    QList<ui::LineEntry> lines;
    for (const Line &l : { Line { "1001010001", "12", "5.50", "XE2312", -330, 400 },
             Line { "10030001", "36", "2.00", "VC2402", -270, 460 } })
        lines.append(lineEntry(*screen, workspace, l));
    screen->appendLines(lines);
    shots.shoot(&window, QStringLiteral("50-opening-stock"));
    ui::OpeningEntriesDialog entries(workspace, &window);
    shots.shootOver(&window, &entries, QStringLiteral("51-opening-entries"));
    entries.hide();
}

} // namespace

ui::PreviewDialog *printFrom(QWidget *screen)
{
    for (QPushButton *button : screen->findChildren<QPushButton *>())
        if (button->text() == ui::texts::printButton() && !button->isHidden()
            && button->isEnabled())
            button->click();
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *preview = qobject_cast<ui::PreviewDialog *>(widget);
            preview && preview->isVisible())
            return preview;
    return nullptr;
}

void shootDocuments(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    seedBusiness(workspace.session);
    window.resize(1366, 768);
    shootReceipt(shots, window, workspace);
    shootReturn(shots, window);
    shootQueries(shots, window, workspace);
    shootOpening(shots, window, workspace);
}
