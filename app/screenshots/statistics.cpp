#include "app/screenshots/statistics.h"

#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "purchasing/entry.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "sales/entry.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "stock/documents/entry.h"
#include "stock/documents/lossoverflow.h"
#include "ui/common/workspace.h"
#include "ui/shell/mainwindow.h"
#include "ui/statistics/documentdialog.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/jxcscreen.h"
#include "ui/statistics/movementscreen.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QSqlRecord>
#include <QTabWidget>
#include <QTableView>
#include <QThread>

using namespace medistock;

namespace {

QString codeOf(const shell::Session &session, const char *kind, const char *name)
{
    const masterdata::MasterKind &k = *masterdata::findMasterKind(QString::fromLatin1(kind));
    const QList<QSqlRecord> rows
        = masterdata::searchMasterRows(session.db(), k, QString::fromUtf8(name));
    return rows.isEmpty() ? QString() : rows.first().value(masterdata::keyColumn(k)).toString();
}

struct Book
{
    shell::Session &session;
    QString supplier, nearCustomer, farCustomer, seller, buyer;
    QStringList goods; // 阿莫西林胶囊, 感冒灵颗粒, 小儿氨酚黄那敏颗粒, 维生素C片

    QString batch; // of the month's receipt, which the month's sales take from

    documents::DocumentDraft entry(const QDate &date, const QString &party,
        const QList<std::pair<int, double>> &lines, const QList<double> &prices,
        const QString &employee) const
    {
        documents::DocumentDraft d;
        d.date = date.toString(QStringLiteral("yyyy-MM-dd"));
        d.party = party;
        d.warehouse = QStringLiteral("100001");
        d.employee = employee;
        for (const auto &[goodsIndex, quantity] : lines) {
            documents::LineDraft l;
            l.goods = goods.value(goodsIndex);
            l.quantity = QString::number(quantity);
            l.price = QString::number(prices.value(goodsIndex));
            l.batch = batch;
            l.produced = QStringLiteral("2024-12-01");
            l.expiry = QStringLiteral("2027-11-30");
            d.lines.append(l);
        }
        return d;
    }

    void receive(const QDate &date, const QList<std::pair<int, double>> &lines)
    {
        const purchasing::PurchaseDraft d {
            entry(date, supplier, lines, { 6.8, 8.2, 5.6, 2.1 }, buyer), {}
        };
        const Result<QString> number = purchasing::savePurchaseReceipt(session, d);
        if (number)
            purchasing::checkPurchaseReceipt(session, number.value());
    }

    void sell(const QDate &date, const QString &customer, const QString &employee,
        const QList<std::pair<int, double>> &lines)
    {
        sales::SaleDraft d;
        d.entry = entry(date, customer, lines, { 9.5, 11.5, 7.8, 3 }, employee);
        d.header.settlementMode = QStringLiteral("2");
        const Result<QString> number = sales::saveSale(session, d);
        if (number)
            sales::checkSale(session, number.value());
    }

    void takeBack(const QDate &date, const QList<std::pair<int, double>> &lines)
    {
        sales::SaleDraft d;
        d.entry = entry(date, nearCustomer, lines, { 9.5, 11.5, 7.8, 3 }, seller);
        d.header.settlementMode = QStringLiteral("2");
        const Result<QString> number = sales::saveSalesReturn(session, d);
        if (number)
            sales::checkSalesReturn(session, number.value());
    }

    void lose(const QDate &date, const QList<std::pair<int, double>> &lines)
    {
        const Result<QString> number
            = stock::saveLoss(session, entry(date, {}, lines, { 6.8, 8.2, 5.6, 2.1 }, seller));
        if (number)
            stock::checkLoss(session, number.value());
    }
};

// Four months of business, each a little busier than the one before.
void seedBusiness(shell::Session &session)
{
    Book book { session, codeOf(session, "supplier", "英特"), codeOf(session, "customer", "仁心"),
        codeOf(session, "customer", "康乐"), codeOf(session, "employee", "张伟"),
        codeOf(session, "employee", "刘洋"), {}, {} };
    for (const char *name : { "阿莫西林胶囊", "感冒灵颗粒", "小儿氨酚黄那敏颗粒", "维生素C片" })
        book.goods.append(codeOf(session, "goods", name));
    const QDate today = session.clock().today();
    for (int month = 3; month >= 0; --month) {
        const QDate first = QDate(today.year(), today.month(), 1).addMonths(-month);
        const double more = 4 - month;
        book.batch = first.toString(QStringLiteral("'PH'yyMM"));
        book.receive(first, { { 0, 200 }, { 1, 150 }, { 2, 120 }, { 3, 300 } });
        book.sell(first.addDays(3), book.nearCustomer, book.seller,
            { { 0, 30 + 10 * more }, { 1, 25 + 5 * more }, { 3, 60 } });
        book.sell(first.addDays(8), book.farCustomer, book.buyer,
            { { 0, 20 + 5 * more }, { 2, 18 + 4 * more }, { 3, 40 + 10 * more } });
        book.sell(first.addDays(15), book.nearCustomer, book.seller,
            { { 1, 20 + 8 * more }, { 2, 15 }, { 3, 50 } });
    }
    book.takeBack(today.addDays(-2), { { 0, 5 } });
    book.lose(today.addDays(-1), { { 3, 6 } });
}

void waitFor(ui::stats::ReportScreen *screen)
{
    for (int i = 0; i < 600 && screen->running(); ++i) {
        QApplication::processEvents();
        QThread::msleep(20);
    }
    QApplication::processEvents();
}

ui::stats::ReportScreen *reportIn(QWidget *tab)
{
    if (auto *screen = qobject_cast<ui::stats::ReportScreen *>(tab))
        return screen;
    auto *tabs = qobject_cast<QTabWidget *>(tab);
    return tabs ? qobject_cast<ui::stats::ReportScreen *>(tabs->currentWidget()) : nullptr;
}

// Runs the report over the seeded months and waits for its rows.
void runOverTheMonths(ui::stats::ReportScreen *screen, const QDate &today)
{
    if (QDateEdit *from = screen->filters()->from())
        from->setDate(QDate(today.year(), today.month(), 1).addMonths(-3));
    screen->run();
    waitFor(screen);
}

} // namespace

void shootStatistics(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MainWindow &window, ui::Workspace &workspace)
{
    seedBusiness(workspace.session);
    const QDate today = workspace.session.clock().today();
    // A clerk's laptop: every report must read well at 1366x768.
    window.resize(1366, 768);
    const char *names[] = { "121-inward", "122-purchases", "123-buyers", "124-outward", "125-sales",
        "126-salesmen", "127-movements", "128-stock-cost", "129-business", "130-ranking", "131-documents",
        "132-batches", "133-jxc" };
    for (int position = 1; position <= 13; ++position) {
        window.openOperation(QStringLiteral("tjgl"), position);
        ui::stats::ReportScreen *screen = reportIn(window.tabs()->currentWidget());
        if (position == 12)
            screen->filters()
                ->text(QStringLiteral("batch"))
                ->setText(today.toString(QStringLiteral("'PH'yyMM")));
        runOverTheMonths(screen, today);
        shoot(&window, QString::fromLatin1(names[position - 1]));
        if (position == 8) {
            auto *tabs = qobject_cast<QTabWidget *>(window.tabs()->currentWidget());
            tabs->setCurrentIndex(1);
            runOverTheMonths(reportIn(tabs), today);
            shoot(&window, QStringLiteral("128-stock-value"));
        }
        if (position == 11) {
            screen->grid()->selectRow(0);
            ui::stats::DocumentDialog *document = ui::stats::DocumentDialog::open(
                workspace, screen->model()->table().keys.value(0), &window);
            if (document) {
                shoot(document, QStringLiteral("131-document"));
                document->close();
            }
        }
    }
    auto *jxc = qobject_cast<ui::stats::JxcScreen *>(window.tabs()->currentWidget());
    jxc->grid()->selectRow(0);
    ui::stats::MovementDialog *movements = jxc->openMovements();
    waitFor(movements->screen());
    shoot(movements, QStringLiteral("134-jxc-movements"));
    movements->close();
}
