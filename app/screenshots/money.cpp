#include "app/screenshots/money.h"

#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/expenses.h"
#include "accounts/invoices.h"
#include "accounts/registrations.h"
#include "shell/session.h"
#include "ui/accounts/cashscreen.h"
#include "ui/accounts/invoicescreen.h"
#include "ui/accounts/ledgerscreen.h"
#include "ui/accounts/registrationscreen.h"
#include "ui/common/workspace.h"
#include "ui/reports/previewdialog.h"
#include "ui/reports/printing.h"
#include "ui/shell/mainwindow.h"

#include <QApplication>
#include <QDate>
#include <QDialog>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

using namespace medistock;

namespace {

QString day(const shell::Session &session, int back)
{
    return session.clock().today().addDays(-back).toString(Qt::ISODate);
}

template<class T> T required(const Result<T> &result, const char *what)
{
    if (!result)
        qFatal("sample %s refused: %s", what, qPrintable(result.message()));
    return result.value();
}

void required(const Outcome &outcome, const char *what)
{
    if (!outcome)
        qFatal("sample %s refused: %s", what, qPrintable(outcome.message()));
}

QString registration(shell::Session &admin, accounts::RegistrationKind kind, const char *party,
    int back, double due, double paid, double writtenOff, const char *note, bool check)
{
    accounts::RegistrationDraft draft;
    draft.kind = kind;
    draft.party = QString::fromLatin1(party);
    draft.date = day(admin, back);
    draft.due = due;
    draft.paid = paid;
    draft.changeWrittenOff = writtenOff;
    draft.account = accounts::cashAccountName();
    draft.note = QString::fromUtf8(note);
    const QString number = required(accounts::saveRegistration(admin, draft), "registration");
    if (check)
        required(accounts::checkRegistration(admin, number), "registration check");
    return number;
}

void seedMoney(shell::Session &admin)
{
    using accounts::RegistrationKind;
    registration(admin, RegistrationKind::Receivable, "100002", 20, 1200, 0, 0, "上月欠款", true);
    registration(admin, RegistrationKind::Receivable, "100003", 12, 356.8, 0, 0, "补记货款", false);
    registration(admin, RegistrationKind::Collection, "100002", 6, 0, 800, 0.5, "收三月货款", true);
    registration(admin, RegistrationKind::Collection, "100003", 1, 0, 200, 0, "转账收款", false);
    registration(admin, RegistrationKind::Payable, "100002", 18, 5600, 0, 0, "期初应付", true);
    registration(admin, RegistrationKind::Payment, "100002", 4, 0, 3000, 0, "付部分货款", true);

    required(accounts::addBankAccount(admin, QStringLiteral("工商银行"), QStringLiteral("银行存款"),
                 QStringLiteral("基本户")),
        "bank account");
    required(accounts::setOpeningAmount(admin, QStringLiteral("工商银行"), 50000), "opening");
    required(accounts::setOpeningAmount(admin, accounts::cashAccountName(), 2000), "opening");
    const auto movement = [&](accounts::MovementKind kind, int back, double amount,
                              const char *account, const char *target, const char *note) {
        accounts::MovementDraft draft;
        draft.kind = kind;
        draft.date = day(admin, back);
        draft.amount = amount;
        draft.account = QString::fromUtf8(account);
        draft.targetAccount = QString::fromUtf8(target);
        draft.note = QString::fromUtf8(note);
        const QString number = required(accounts::saveMovement(admin, draft), "movement");
        if (back > 2)
            required(accounts::checkMovement(admin, number), "movement check");
    };
    movement(accounts::MovementKind::Receipt, 9, 500, "现金", "", "房租押金退回");
    movement(accounts::MovementKind::Transfer, 7, 1500, "现金", "工商银行", "现金存行");
    movement(accounts::MovementKind::Payment, 1, 120, "现金", "", "办公用品");

    const auto expense = [&](accounts::ExpenseKind kind, int back, const char *type, double amount,
                             const char *note, bool check) {
        accounts::ExpenseDraft draft;
        draft.kind = kind;
        draft.date = day(admin, back);
        draft.type = QString::fromUtf8(type);
        draft.amount = amount;
        draft.account = accounts::cashAccountName();
        draft.note = QString::fromUtf8(note);
        const QString number = required(accounts::saveExpense(admin, draft), "expense");
        if (check)
            required(accounts::checkExpense(admin, number), "expense check");
    };
    expense(accounts::ExpenseKind::Expense, 8, "费用", 3200, "三月房租", true);
    expense(accounts::ExpenseKind::Income, 5, "收入", 260, "废纸箱变卖", true);
    expense(accounts::ExpenseKind::Expense, 2, "费用", 86.5, "水电费", false);

    // Invoicings wait to be checked unless checking on save is on: two are taken in, one waits.
    accounts::InvoicingDraft invoicing;
    invoicing.party = QStringLiteral("100002");
    invoicing.date = day(admin, 10);
    invoicing.amount = 1000;
    invoicing.invoiceNumber = QStringLiteral("No.04512873");
    const QString first = required(accounts::addInvoicing(admin, invoicing), "invoicing");
    required(accounts::takeBackInvoiceRows(admin, first), "invoicing check");
    invoicing.date = day(admin, 3);
    invoicing.amount = 180;
    invoicing.invoiceNumber = QStringLiteral("No.04512890");
    required(accounts::addInvoicing(admin, invoicing), "invoicing");
    invoicing.kind = accounts::PartyKind::Supplier;
    invoicing.amount = 2400;
    invoicing.invoiceNumber = QStringLiteral("No.33018822");
    const QString bought = required(accounts::addInvoicing(admin, invoicing), "invoicing");
    required(accounts::takeBackInvoiceRows(admin, bought), "invoicing check");
}

// The form a key opens, shot over the window and closed again.
void shootForm(const Shots &shots, ui::MainWindow &window, const QString &name,
    const std::function<void()> &open)
{
    QTimer::singleShot(0, &window, [&] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        shots.shootOver(&window, dialog, name);
        if (auto *d = qobject_cast<QDialog *>(dialog))
            d->reject();
    });
    open();
}

template<class Screen> Screen *current(ui::MainWindow &window, int tab = -1)
{
    QWidget *widget = window.tabs()->currentWidget();
    if (auto *tabs = qobject_cast<QTabWidget *>(widget)) {
        if (tab >= 0)
            tabs->setCurrentIndex(tab);
        widget = tabs->currentWidget();
    }
    return qobject_cast<Screen *>(widget);
}

} // namespace

void shootMoney(const Shots &shots, ui::MainWindow &window, ui::Workspace &workspace)
{
    seedMoney(workspace.session);
    const QString area = QStringLiteral("wlzk");
    const int registrations[] = { 1, 2, 4, 5 };
    const char *const names[]
        = { "receivable-entries", "collections", "payable-entries", "payments" };
    int n = 180;
    for (int i = 0; i < 4; ++i) {
        window.openOperation(area, registrations[i]);
        auto *screen = current<ui::RegistrationScreen>(window);
        screen->grid()->selectRow(0);
        shots.shoot(&window, QStringLiteral("%1-%2").arg(n++).arg(QLatin1String(names[i])));
        // The collection's and the payment's forms as F8 shows them.
        if (i == 1 || i == 3) {
            const QString key = i == 1 ? QStringLiteral("ysyfskd") : QStringLiteral("ysyffkd");
            if (ui::PreviewDialog *preview = ui::printWithPreview(
                    workspace, key, screen->model()->text(0, 0), &window)) {
                shots.shoot(preview, QStringLiteral("%1-preview-%2").arg(223 + i / 2).arg(key));
                preview->close();
            }
        }
        if (i == 1)
            shootForm(shots, window, QStringLiteral("%1-collection-form").arg(n++),
                [screen] { screen->add(); });
    }
    window.openOperation(area, 3);
    auto *ledger = current<ui::LedgerScreen>(window, 0);
    ledger->grid()->selectRow(1);
    shots.shoot(&window, QStringLiteral("%1-receivables-ledger").arg(n++));
    if (ui::PreviewDialog *statement = printFrom(ledger)) {
        statement->setZoom(0.8); // the landscape form whole across the window
        shots.shoot(statement, QStringLiteral("225-preview-khdzd"));
        statement->close();
    }
    current<ui::WrittenOffScreen>(window, 1)->run();
    shots.shoot(&window, QStringLiteral("%1-written-off").arg(n++));
    window.openOperation(area, 6);
    current<ui::LedgerScreen>(window, 0)->grid()->selectRow(1);
    shots.shoot(&window, QStringLiteral("%1-payables-ledger").arg(n++));

    window.openOperation(area, 13);
    auto *invoices = current<ui::InvoiceScreen>(window, 0);
    shots.shoot(&window, QStringLiteral("%1-sales-invoices").arg(n++));
    shootForm(shots, window, QStringLiteral("%1-invoicing-form").arg(n++),
        [invoices] { invoices->addInvoicing(); });
    current<ui::InvoiceScreen>(window, 1);
    shots.shoot(&window, QStringLiteral("%1-invoices-set-aside").arg(n++));
    current<ui::InvoiceSummaryScreen>(window, 2);
    shots.shoot(&window, QStringLiteral("%1-invoice-summary").arg(n++));
    window.openOperation(area, 12);
    current<ui::InvoiceScreen>(window, 0);
    shots.shoot(&window, QStringLiteral("%1-purchase-invoices").arg(n++));

    window.openOperation(QStringLiteral("rcgl"), 6);
    auto *expenses = current<ui::ExpenseScreen>(window);
    shots.shoot(&window, QStringLiteral("%1-expenses").arg(n++));
    shootForm(shots, window, QStringLiteral("%1-expense-form").arg(n++),
        [expenses] { expenses->enter(accounts::ExpenseKind::Expense); });
    window.openOperation(QStringLiteral("rcgl"), 7);
    auto *book = current<ui::CashBookScreen>(window, 0);
    shots.shoot(&window, QStringLiteral("%1-cash-book").arg(n++));
    shootForm(shots, window, QStringLiteral("%1-transfer-form").arg(n++),
        [book] { book->enter(int(accounts::MovementKind::Transfer)); });
    current<ui::BankAccountsScreen>(window, 1);
    shots.shoot(&window, QStringLiteral("%1-bank-accounts").arg(n++));
}
