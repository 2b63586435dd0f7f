#include "accounts/moneylists.h"
#include "accounts/registrations.h"
#include "core/spreadsheet.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/accounts/cashscreen.h"
#include "ui/accounts/invoicescreen.h"
#include "ui/accounts/ledgerscreen.h"
#include "ui/accounts/registrationscreen.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTableView>

using namespace medistock;
using medistock::test::Keyboard;

namespace {

const QString customer = QStringLiteral("100001"); // the seeded "普通客户"

} // namespace

class MoneyScreensTest : public test::UiTest
{
protected:
    // What the customer owes before a test: a receivable entry of `due`, checked, dated today.
    void owe(double due)
    {
        accounts::RegistrationDraft entry;
        entry.kind = accounts::RegistrationKind::Receivable;
        entry.party = customer;
        entry.date = session().today();
        entry.due = due;
        const auto number = accounts::saveRegistration(session(), entry);
        ASSERT_TRUE(number.ok()) << number.message().toStdString();
        ASSERT_TRUE(accounts::checkRegistration(session(), number.value()).ok());
    }

    // Opens the screen's form with `key` and fills it: each label's field gets its text typed
    // (the party field its code, then Enter, as a clerk would), then 确定.
    void enter(QWidget &screen, Qt::Key key, const QList<QPair<QString, QString>> &fields)
    {
        Keyboard keys;
        keys.setWindow(&screen);
        keys.onDialog<ui::MoneyFormDialog>([&](ui::MoneyFormDialog &form) {
            for (const auto &[label, text] : fields) {
                QWidget *field = form.field(label);
                ASSERT_NE(field, nullptr) << label.toStdString();
                if (auto *box = qobject_cast<QComboBox *>(field)) {
                    box->setCurrentText(text);
                    continue;
                }
                auto *edit = qobject_cast<QLineEdit *>(field);
                if (auto *date = qobject_cast<ui::DateField *>(field))
                    edit = date->lineEdit();
                ASSERT_NE(edit, nullptr);
                edit->setFocus();
                edit->selectAll();
                keys.type(text);
                if (qobject_cast<ui::CodeNameField *>(field))
                    keys.press(Qt::Key_Return);
            }
            test::buttonNamed(&form, QStringLiteral("确定"))->click();
        });
        screen.setFocus();
        keys.press(key);
        EXPECT_FALSE(keys.waiting());
    }

    static void press(QWidget &screen, Qt::Key key)
    {
        Keyboard keys;
        keys.setWindow(&screen);
        screen.setFocus();
        keys.press(key);
    }

    // The grid written to an xlsx file and read back: the captions, then every row as shown
    // (numbers as their values), the totals row last.
    void expectExportRoundTrip(ui::QueryScreen &screen, const QString &name)
    {
        const QString path = QDir(folder()).filePath(name + QStringLiteral(".xlsx"));
        screen.exportTo(path);
        const auto read = core::readXlsx(path);
        ASSERT_TRUE(read.ok()) << read.message().toStdString();
        const ui::QueryModel &model = *screen.model();
        ASSERT_EQ(read.value().size(), model.rowCount() + 1) << name.toStdString();
        for (int c = 0; c < model.columnCount(); ++c)
            EXPECT_EQ(read.value()[0].value(c), model.columns()[c].caption);
        for (int r = 0; r < model.rowCount(); ++r)
            for (int c = 0; c < model.columnCount(); ++c) {
                const QString cell = read.value()[r + 1].value(c);
                if (model.columns()[c].kind == ui::QueryColumn::Kind::Number
                    && !model.text(r, c).isEmpty())
                    EXPECT_DOUBLE_EQ(cell.toDouble(), model.value(r, c).toDouble())
                        << name.toStdString() << " row " << r << " column " << c;
                else
                    EXPECT_EQ(cell, model.text(r, c)) << name.toStdString() << " row " << r;
            }
        EXPECT_GT(model.dataRows(), 0) << name.toStdString();
    }

    static double balanceOf(ui::LedgerScreen &ledger, const QString &party)
    {
        ledger.run();
        for (int r = 0; r < ledger.model()->dataRows(); ++r)
            if (ledger.model()->text(r, 0) == party)
                return ledger.model()->value(r, 2).toDouble();
        return -1;
    }
};

TEST_F(MoneyScreensTest, ACheckedCollectionLowersTheBalanceOnTheLedgerAndItsUncheckRestoresIt)
{
    owe(100);
    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Customer);
    EXPECT_EQ(balanceOf(ledger, customer), 100);

    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    collections.show();
    enter(collections, Qt::Key_F2,
        { { QStringLiteral("客户"), customer },
            { QStringLiteral("实收金额"), QStringLiteral("30") },
            { QStringLiteral("抹零金额"), QStringLiteral("0.5") },
            { QStringLiteral("备注"), QStringLiteral("三月货款") } });
    ASSERT_EQ(collections.model()->dataRows(), 1) << ui.informed.join('\n').toStdString();
    EXPECT_EQ(collections.model()->text(0, 9), QStringLiteral("未审核"));
    EXPECT_EQ(balanceOf(ledger, customer), 100); // saved, not yet checked

    collections.grid()->selectRow(0);
    press(collections, Qt::Key_F6);
    EXPECT_EQ(collections.model()->text(0, 9), QStringLiteral("已审核"));
    EXPECT_EQ(balanceOf(ledger, customer), 69.5);
    ledger.grid()->selectRow(ledger.model()->dataRows() - 1);
    for (int r = 0; r < ledger.model()->dataRows(); ++r)
        if (ledger.model()->text(r, 0) == customer)
            ledger.grid()->selectRow(r);
    ui::QueryModel &rows = *ledger.ledger()->model();
    ASSERT_EQ(rows.dataRows(), 3);
    EXPECT_EQ(rows.value(0, 7).toDouble(), 100);
    EXPECT_EQ(rows.value(1, 5).toDouble(), 30);
    EXPECT_EQ(rows.value(1, 7).toDouble(), 70);
    EXPECT_EQ(rows.text(2, 2), QStringLiteral("增加应收款(抹零)"));
    EXPECT_EQ(rows.value(2, 7).toDouble(), 69.5);

    ui.answerNext(true);
    press(collections, Qt::Key_F7);
    EXPECT_EQ(collections.model()->text(0, 9), QStringLiteral("未审核"));
    EXPECT_EQ(balanceOf(ledger, customer), 100);
}

TEST_F(MoneyScreensTest, RecalculationOnTheLedgerRepairsAPartysFigureAfterItsQuestion)
{
    owe(100);
    session().db().exec(
        QStringLiteral("update jxc_khxx set kh_lwje=7 where kh_sn=?"), { customer });
    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Customer);
    ledger.show();
    EXPECT_EQ(balanceOf(ledger, customer), 7);
    ui.answerNext(true);
    enter(ledger, Qt::Key_F6, {});
    ASSERT_EQ(ui.asked.size(), 1);
    EXPECT_EQ(balanceOf(ledger, customer), 100);
}

TEST_F(MoneyScreensTest, ARefusedCollectionKeepsTheFormAndWritesNothing)
{
    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    collections.show();
    Keyboard keys;
    keys.setWindow(&collections);
    bool stayedOpen = false;
    keys.onDialog<ui::MoneyFormDialog>([&](ui::MoneyFormDialog &form) {
        auto *amount = qobject_cast<QLineEdit *>(form.field(QStringLiteral("实收金额")));
        amount->setText(QStringLiteral("3x"));
        test::buttonNamed(&form, QStringLiteral("确定"))->click();
        stayedOpen = form.isVisible() && amount->text() == QStringLiteral("3x");
        form.reject();
    });
    collections.setFocus();
    keys.press(Qt::Key_F2);
    EXPECT_TRUE(stayedOpen);
    ASSERT_FALSE(ui.informed.isEmpty());
    EXPECT_TRUE(ui.informed.last().contains(QStringLiteral("实收金额")))
        << ui.informed.last().toStdString();
    EXPECT_EQ(test::rowCount(session().db(), QStringLiteral("jxc_ysyfk_dj")), 0);
}

TEST_F(MoneyScreensTest, AnInvoicingRowMovesTheRegistersRunningBalance)
{
    setParameter(QStringLiteral("cs_shdj"), 1);
    ui::InvoiceScreen invoices(workspace(), accounts::PartyKind::Customer, true);
    invoices.show();
    enter(invoices, Qt::Key_F2,
        { { QStringLiteral("客户"), customer },
            { QStringLiteral("开票金额"), QStringLiteral("40") },
            { QStringLiteral("发票号"), QStringLiteral("No.0012345") } });
    ASSERT_EQ(invoices.model()->dataRows(), 1) << ui.informed.join('\n').toStdString();
    EXPECT_EQ(invoices.model()->value(0, 7).toDouble(), 40);
    EXPECT_EQ(invoices.model()->value(0, 8).toDouble(), -40);
    enter(invoices, Qt::Key_F2,
        { { QStringLiteral("客户"), customer },
            { QStringLiteral("开票金额"), QStringLiteral("25") } });
    ASSERT_EQ(invoices.model()->dataRows(), 2);
    EXPECT_EQ(invoices.model()->value(1, 8).toDouble(), -65);

    // Set aside, the row leaves the register and waits on the other tab.
    invoices.grid()->selectRow(0);
    ui.answerNext(true);
    press(invoices, Qt::Key_F7);
    ASSERT_EQ(invoices.model()->dataRows(), 1);
    EXPECT_EQ(invoices.model()->value(0, 8).toDouble(), -25);
    ui::InvoiceScreen aside(workspace(), accounts::PartyKind::Customer, false);
    aside.show();
    aside.run();
    ASSERT_EQ(aside.model()->dataRows(), 1);
    aside.grid()->selectRow(0);
    press(aside, Qt::Key_F6);
    EXPECT_EQ(aside.model()->dataRows(), 0);
    invoices.run();
    EXPECT_EQ(invoices.model()->value(1, 8).toDouble(), -65);
}

TEST_F(MoneyScreensTest, ACashMovementMovesTheCashBookOnceChecked)
{
    ui::CashBookScreen book(workspace());
    book.show();
    book.fromField()->setText(session().today());
    book.run();
    ASSERT_EQ(book.accountBox()->currentText(), QStringLiteral("现金"));
    const int opening = book.model()->dataRows();
    enter(book, Qt::Key_F2,
        { { QStringLiteral("金额"), QStringLiteral("100") },
            { QStringLiteral("备注"), QStringLiteral("备用金") } });
    ASSERT_EQ(book.model()->dataRows(), opening + 1) << ui.informed.join('\n').toStdString();
    const int last = opening;
    EXPECT_EQ(book.model()->text(last, 8 + 1), QStringLiteral("未审核"));
    EXPECT_EQ(book.model()->text(last, 6), QString());
    book.grid()->selectRow(last);
    press(book, Qt::Key_F6);
    EXPECT_EQ(book.model()->value(last, 4).toDouble(), 100);
    EXPECT_EQ(book.model()->value(last, 6).toDouble(), 100);

    enter(book, Qt::Key_F3, { { QStringLiteral("金额"), QStringLiteral("30") } });
    book.grid()->selectRow(last + 1);
    press(book, Qt::Key_F6);
    EXPECT_EQ(book.model()->value(last + 1, 5).toDouble(), 30);
    EXPECT_EQ(book.model()->value(last + 1, 6).toDouble(), 70);

    ui::BankAccountsScreen accountsScreen(workspace());
    accountsScreen.run();
    EXPECT_EQ(accountsScreen.model()->text(0, 1), QStringLiteral("现金"));
    EXPECT_EQ(accountsScreen.model()->value(0, 4).toDouble(), 70);
}

TEST_F(MoneyScreensTest, AnExpenseCheckedOnItsScreenPaysOutOfCash)
{
    ui::ExpenseScreen expenses(workspace());
    expenses.show();
    enter(expenses, Qt::Key_F2,
        { { QStringLiteral("金额"), QStringLiteral("80") },
            { QStringLiteral("备注"), QStringLiteral("三月房租") } });
    ASSERT_EQ(expenses.model()->dataRows(), 1) << ui.informed.join('\n').toStdString();
    EXPECT_EQ(expenses.model()->text(0, 2), QStringLiteral("费用"));
    expenses.grid()->selectRow(0);
    press(expenses, Qt::Key_F6);
    EXPECT_EQ(expenses.model()->text(0, 8), QStringLiteral("已审核"));
    ui::BankAccountsScreen accountsScreen(workspace());
    accountsScreen.run();
    EXPECT_EQ(accountsScreen.model()->value(0, 4).toDouble(), -80);
}

TEST_F(MoneyScreensTest, EveryListExportsWhatItShows)
{
    owe(100);
    setParameter(QStringLiteral("cs_shdj"), 1);
    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    collections.show();
    enter(collections, Qt::Key_F2,
        { { QStringLiteral("客户"), customer },
            { QStringLiteral("实收金额"), QStringLiteral("30") },
            { QStringLiteral("抹零金额"), QStringLiteral("0.5") } });
    collections.grid()->selectRow(0);
    press(collections, Qt::Key_F6);
    expectExportRoundTrip(collections, QStringLiteral("收款登记"));
    ui::RegistrationScreen entries(workspace(), accounts::RegistrationKind::Receivable);
    entries.run();
    expectExportRoundTrip(entries, QStringLiteral("应收登记"));

    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Customer);
    ledger.run();
    expectExportRoundTrip(ledger, QStringLiteral("应收帐表"));
    ledger.grid()->selectRow(0);
    expectExportRoundTrip(*ledger.ledger(), QStringLiteral("应收明细"));
    ui::WrittenOffScreen writtenOff(workspace(), accounts::PartyKind::Customer);
    writtenOff.run();
    expectExportRoundTrip(writtenOff, QStringLiteral("抹零金额"));

    ui::InvoiceScreen invoices(workspace(), accounts::PartyKind::Customer, true);
    invoices.show();
    enter(invoices, Qt::Key_F2,
        { { QStringLiteral("客户"), customer },
            { QStringLiteral("开票金额"), QStringLiteral("40") } });
    expectExportRoundTrip(invoices, QStringLiteral("发票台账"));
    ui::InvoiceSummaryScreen summary(workspace(), accounts::PartyKind::Customer);
    summary.run();
    ASSERT_EQ(summary.model()->dataRows(), 1);
    EXPECT_EQ(summary.model()->value(0, 5).toDouble(), -40);
    expectExportRoundTrip(summary, QStringLiteral("发票汇总"));

    ui::CashBookScreen book(workspace());
    book.run();
    expectExportRoundTrip(book, QStringLiteral("现金银行"));
    ui::BankAccountsScreen accountsScreen(workspace());
    accountsScreen.run();
    expectExportRoundTrip(accountsScreen, QStringLiteral("现金银行期初建账"));
    ui::ExpenseScreen expenses(workspace());
    expenses.show();
    enter(expenses, Qt::Key_F3, { { QStringLiteral("金额"), QStringLiteral("12.5") } });
    expectExportRoundTrip(expenses, QStringLiteral("费用及收入"));
}

TEST_F(MoneyScreensTest, ATransferMovesMoneyBetweenTwoAccountsOnceChecked)
{
    ui::CashBookScreen book(workspace());
    book.show();
    book.accountBox()->setCurrentIndex(0); // all accounts
    enter(book, Qt::Key_F4,
        { { QStringLiteral("金额"), QStringLiteral("500") },
            { QStringLiteral("转出账户"), QStringLiteral("现金") },
            { QStringLiteral("转入账户"), QStringLiteral("工行帐号") } });
    ui::BankAccountsScreen accountsScreen(workspace());
    accountsScreen.run();
    EXPECT_EQ(accountsScreen.model()->value(0, 4).toDouble(), 0); // not counted before its check
    const int row = book.model()->dataRows() - 1;
    ASSERT_GE(row, 1) << ui.informed.join('\n').toStdString();
    book.grid()->selectRow(row);
    press(book, Qt::Key_F6);
    accountsScreen.run();
    EXPECT_EQ(accountsScreen.model()->text(0, 1), QStringLiteral("现金"));
    EXPECT_EQ(accountsScreen.model()->value(0, 4).toDouble(), -500);
    EXPECT_EQ(accountsScreen.model()->text(1, 1), QStringLiteral("工行帐号"));
    EXPECT_EQ(accountsScreen.model()->value(1, 4).toDouble(), 500);
}

TEST_F(MoneyScreensTest, ANewDateOnACheckedCollectionMovesItsLedgerRow)
{
    owe(100);
    accounts::RegistrationDraft draft;
    draft.kind = accounts::RegistrationKind::Collection;
    draft.party = customer;
    draft.date = session().clock().today().addDays(-3).toString(Qt::ISODate);
    draft.paid = 40;
    draft.account = QStringLiteral("现金");
    const auto number = accounts::saveRegistration(session(), draft);
    ASSERT_TRUE(number.ok());
    ASSERT_TRUE(accounts::checkRegistration(session(), number.value()).ok());

    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    collections.show();
    collections.run();
    collections.grid()->selectRow(0);
    enter(collections, Qt::Key_F4, { { QStringLiteral("新日期"), session().today() } });
    EXPECT_EQ(collections.model()->text(0, 1), session().today());
    ui::LedgerScreen ledger(workspace(), accounts::PartyKind::Customer);
    ledger.run();
    ledger.grid()->selectRow(0);
    const ui::QueryModel &rows = *ledger.ledger()->model();
    ASSERT_EQ(rows.dataRows(), 2);
    EXPECT_EQ(rows.text(0, 2), QStringLiteral("增加应收款")); // the entry now comes first
    EXPECT_EQ(rows.value(0, 7).toDouble(), 100);
    EXPECT_EQ(rows.value(1, 7).toDouble(), 60);
}

TEST_F(MoneyScreensTest, WithoutTheCheckRightTheCheckButtonsAreOffWithTheirTooltip)
{
    addOperatorWithRights(
        QStringLiteral("小李"), { { QStringLiteral("wlzk"), QStringLiteral("11") } });
    switchOperator(QStringLiteral("小李"));
    ui::RegistrationScreen collections(workspace(), accounts::RegistrationKind::Collection);
    QAbstractButton *add = test::buttonNamed(&collections, QStringLiteral("新增(F2)"));
    QAbstractButton *check = test::buttonNamed(&collections, QStringLiteral("审核(F6)"));
    QAbstractButton *uncheck = test::buttonNamed(&collections, QStringLiteral("取消审核(F7)"));
    ASSERT_TRUE(add && check && uncheck);
    EXPECT_TRUE(add->isEnabled());
    EXPECT_FALSE(check->isEnabled());
    EXPECT_FALSE(uncheck->isEnabled());
    EXPECT_EQ(check->toolTip(), QStringLiteral("您没有此项操作的权限"));
}
