#include "app/screenshots/sales.h"

#include "documents/goodslookup.h"
#include "sales/entry.h"
#include "sales/orders.h"
#include "sales/quotations.h"
#include "sales/salecheck.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/picker.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/linegrid.h"
#include "ui/documents/pickers.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/documents/uncheckeddialog.h"
#include "ui/sales/orderlinesdialog.h"
#include "ui/sales/quotationscreen.h"
#include "ui/sales/salekinds.h"
#include "ui/shell/mainwindow.h"

#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>

using namespace medistock;

namespace {

QString today(ui::Workspace &workspace, int back = 0)
{
    return workspace.session.clock().today().addDays(-back).toString(QStringLiteral("yyyy-MM-dd"));
}

documents::LineDraft line(const char *goods, const char *quantity, const char *price)
{
    documents::LineDraft d;
    d.goods = QString::fromLatin1(goods);
    d.quantity = QString::fromLatin1(quantity);
    d.price = QString::fromLatin1(price);
    return d;
}

// A checked sale to 仁心诊所 two days ago, and a checked order of 康乐社区卫生服务站.
void seedSales(ui::Workspace &workspace)
{
    shell::Session &admin = workspace.session;
    sales::SaleDraft sale;
    sale.entry.date = today(workspace, 2);
    sale.entry.party = QStringLiteral("100002");
    sale.entry.warehouse = QStringLiteral("100001");
    sale.entry.lines = { line("10020001", "20", "9.5"), line("10010001", "12", "12") };
    sale.header.paid = 334;
    Result<QString> saved = sales::saveSale(admin, sale);
    if (!saved || !sales::checkSale(admin, saved.value()))
        qFatal("sample sale refused");
    sales::SaleDraft order = sale;
    order.entry.date = today(workspace, 1);
    order.entry.party = QStringLiteral("100003");
    order.entry.lines = { line("10030001", "30", "3.2"), line("1001010001", "10", "7.8") };
    order.header.paid = 0;
    saved = sales::saveSalesOrder(admin, order);
    if (!saved || !sales::checkSalesOrder(admin, saved.value()))
        qFatal("sample order refused");
}

ui::DocumentScreen *openSalesScreen(ui::MainWindow &window, int position)
{
    window.openOperation(QStringLiteral("xsgl"), position);
    return qobject_cast<ui::DocumentScreen *>(window.tabs()->currentWidget());
}

// Lines as a clerk picking the goods gets them: the customer's price, the batch expiring first.
void fillLines(ui::DocumentScreen &screen, ui::Workspace &workspace,
    const QList<std::pair<const char *, const char *>> &lines)
{
    QList<ui::LineEntry> entries;
    for (const auto &[goods, quantity] : lines) {
        ui::LineEntry entry = screen.lineFor(*documents::goodsChoice(
            workspace.session, QString::fromLatin1(goods), screen.warehouseCode()));
        entry.quantity = QString::fromLatin1(quantity);
        entries.append(entry);
    }
    screen.appendLines(entries);
}

void shootSale(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    ui::DocumentScreen *screen = openSalesScreen(window, 1);
    screen->partyField()->setChoice(QStringLiteral("100003"), QStringLiteral("康乐社区卫生服务站"));
    fillLines(
        *screen, workspace, { { "10020001", "10" }, { "10010001", "6" }, { "1001010001", "5" } });
    screen->partyField()->setFocus();
    shots.shoot(&window, QStringLiteral("52-sale"));
    ui::GoodsPickerDialog picker(workspace, QStringLiteral("颗粒"), screen->warehouseCode(),
        QStringLiteral("xsgl"), 0, &window);
    shots.shootOver(&window, &picker, QStringLiteral("53-sale-goods-picker"));
    picker.hide();
    const auto batches = ui::makeBatchPicker(
        screen->kind().batchChoices(
            workspace.session, QStringLiteral("10020001"), screen->warehouseCode(), screen->date()),
        &window);
    shots.shootOver(&window, batches.get(), QStringLiteral("54-sale-batch-picker"));
    batches->hide();
    screen->save();
    const auto unchecked = ui::uncheckedSalesDialog(*screen);
    shots.shootOver(&window, unchecked.get(), QStringLiteral("55-unchecked-sales"));
    unchecked->hide();
}

void shootReturn(const Shots &shots, ui::MainWindow &window)
{
    ui::DocumentScreen *screen = openSalesScreen(window, 2);
    screen->partyField()->setChoice(QStringLiteral("100002"), QStringLiteral("仁心诊所"));
    ui::SourceLinesDialog lines(*screen, ui::saleSource());
    lines.showLines();
    lines.tick(0, true);
    shots.shootOver(&window, &lines, QStringLiteral("56-sales-return-sale-lines"));
    lines.hide();
    lines.takeInto(*screen);
    screen->noteField()->setText(QStringLiteral("顾客买多退回"));
    shots.shoot(&window, QStringLiteral("57-sales-return"));
}

void shootOrders(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    ui::DocumentScreen *order = openSalesScreen(window, 15);
    order->partyField()->setChoice(QStringLiteral("100003"), QStringLiteral("康乐社区卫生服务站"));
    fillLines(*order, workspace, { { "10030001", "40" }, { "10010001", "12" } });
    shots.shoot(&window, QStringLiteral("58-sales-order"));

    ui::DocumentScreen *sale = openSalesScreen(window, 1);
    sale->newDocument();
    ui::OrderLinesDialog import(*sale);
    import.tick(0, true);
    shots.shootOver(&window, &import, QStringLiteral("59-import-orders"));
    import.hide();
}

void shootQuery(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    window.openOperation(QStringLiteral("xsgl"), 4);
    auto *query = qobject_cast<ui::DocumentListScreen *>(window.tabs()->currentWidget());
    query->fromField()->setText(today(workspace, 30));
    query->run();
    query->grid()->selectRow(0);
    shots.shoot(&window, QStringLiteral("150-sales-query"));
}

// Our prices to two customers and a supplier's to us, then the list, the dialog that adds and the
// price asked for one goods.
void shootQuotations(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    shell::Session &admin = workspace.session;
    const auto quote = [&](sales::QuotationSide side, const char *party,
                           QList<std::tuple<const char *, const char *, QString>> goods, int back) {
        sales::clearQuotationWork(admin);
        for (const auto &[code, price, note] : goods)
            sales::addQuotationWorkRow(
                admin, QString::fromLatin1(code), QString::fromLatin1(price), note);
        if (!sales::addQuotations(
                admin, side, QString::fromLatin1(party), today(workspace, back), QString()))
            qFatal("sample quotations refused");
    };
    quote(sales::QuotationSide::Customer, "100002",
        { { "10020001", "9.2", QStringLiteral("月结客户") }, { "10010001", "11.8", QString() } },
        20);
    quote(sales::QuotationSide::Customer, "100003",
        { { "10030001", "3.1", QStringLiteral("整件价") } }, 5);
    quote(sales::QuotationSide::Supplier, "100001", { { "10020001", "6.5", QString() } }, 3);
    window.openOperation(QStringLiteral("rcgl"), 14);
    auto *list = qobject_cast<ui::QuotationScreen *>(window.tabs()->currentWidget());
    list->run();
    list->sideBox()->setFocus();
    shots.shoot(&window, QStringLiteral("151-quotations"));

    ui::QuotationDialog add(workspace, sales::QuotationSide::Customer, &window);
    add.partyField()->setChoice(QStringLiteral("100003"), QStringLiteral("康乐社区卫生服务站"));
    add.goodsField()->setText(QStringLiteral("gml"));
    shots.shootOver(&window, &add, QStringLiteral("152-quotation-add"));
    ui::QuotationPriceDialog price(
        QStringLiteral("我方报价：感冒灵颗粒"), QStringLiteral("13.5"), QString(), nullptr, &add);
    shots.shootOver(&window, &price, QStringLiteral("153-quotation-price"));
    price.hide();
    add.reject();
}

} // namespace

void shootSales(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    seedSales(workspace);
    shootSale(shots, window, workspace);
    shootReturn(shots, window);
    shootOrders(shots, window, workspace);
    shootQuery(shots, window, workspace);
    shootQuotations(shots, window, workspace);
}
