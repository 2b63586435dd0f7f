#include "accounts/cashbook.h"
#include "accounts/expenses.h"
#include "accounts/invoices.h"
#include "accounts/moneylists.h"
#include "tests/accounts/accountstest.h"

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

class MoneyListsTest : public AccountsTest
{
protected:
    QString saved(Result<QString> number)
    {
        EXPECT_TRUE(number.ok()) << number.message().toStdString();
        return number.ok() ? number.value() : QString();
    }
    QString movement(MovementKind kind, const QString &date, double amount)
    {
        MovementDraft draft;
        draft.kind = kind;
        draft.date = date;
        draft.amount = amount;
        draft.account = cashAccountName();
        return saved(saveMovement(session(), draft));
    }
};

TEST_F(MoneyListsTest, RegistrationsListTheirKindInDateOrderFilteredByStatusAndRange)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 100.5);
    const QString checked = checkedRegistration(collection(100, 0.5, "2025-03-14"));
    const QString waiting = saved(saveRegistration(session(), collection(30, 0, "2025-03-10")));
    RegistrationDraft entry = collection(0);
    entry.kind = RegistrationKind::Receivable;
    entry.due = 12;
    saved(saveRegistration(session(), entry));

    const auto all = listRegistrations(db(), RegistrationKind::Collection, {});
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0].number, waiting);
    EXPECT_EQ(all[1].number, checked);
    EXPECT_EQ(all[1].partyName, QStringLiteral("仁和医院"));
    EXPECT_EQ(all[1].paid, 100);
    EXPECT_EQ(all[1].writtenOff, 0.5);
    EXPECT_EQ(all[1].account, QStringLiteral("现金"));
    EXPECT_EQ(all[1].salesmanName, QStringLiteral("默认员工"));
    EXPECT_TRUE(all[1].checked);
    EXPECT_EQ(all[1].checker, QStringLiteral("admin"));
    EXPECT_FALSE(all[0].checked);

    MoneyFilter filter;
    filter.checked = false;
    ASSERT_EQ(listRegistrations(db(), RegistrationKind::Collection, filter).size(), 1);
    filter = { QStringLiteral("2025-03-11"), QStringLiteral("2025-03-14") };
    const auto inRange = listRegistrations(db(), RegistrationKind::Collection, filter);
    ASSERT_EQ(inRange.size(), 1);
    EXPECT_EQ(inRange[0].number, checked);
    ASSERT_EQ(listRegistrations(db(), RegistrationKind::Receivable, {}).size(), 1);
    EXPECT_EQ(listRegistrations(db(), RegistrationKind::Payment, {}).size(), 0);
}

TEST_F(MoneyListsTest, TheLedgerReadsDownToTheBalanceAndTheWrittenOffChangeIsListedAlone)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 100.5);
    owe(PartyKind::Customer, QStringLiteral("100001"), "2025-03-02", 7);
    checkedRegistration(collection(60, 0.5, "2025-03-14"));

    MoneyFilter one;
    one.party = customer();
    const auto rows = ledgerRows(db(), PartyKind::Customer, one);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].balance, 100.5);
    EXPECT_EQ(rows[1].paid, 60);
    EXPECT_EQ(rows[1].balance, 40.5);
    EXPECT_EQ(rows[2].text, QStringLiteral("增加应收款(抹零)"));
    EXPECT_EQ(rows[2].due, -0.5);
    EXPECT_EQ(rows[2].balance, 40);
    EXPECT_EQ(ledgerRows(db(), PartyKind::Customer, {}).size(), 4);
    EXPECT_EQ(ledgerRows(db(), PartyKind::Supplier, {}).size(), 0);

    const auto writtenOff = writtenOffRows(db(), PartyKind::Customer, {});
    ASSERT_EQ(writtenOff.size(), 1);
    EXPECT_EQ(writtenOff[0].link, QStringLiteral("SK25031410001"));
    EXPECT_EQ(writtenOff[0].due, -0.5);

    const auto balances = partyBalances(db(), PartyKind::Customer, QString(), true);
    ASSERT_EQ(balances.size(), 2);
    EXPECT_EQ(balances[0].party, QStringLiteral("100001"));
    EXPECT_EQ(balances[0].balance, 7);
    EXPECT_EQ(balances[1].balance, 40);
    EXPECT_EQ(partyBalances(db(), PartyKind::Customer, QStringLiteral("仁和"), false).size(), 1);
}

TEST_F(MoneyListsTest, InvoiceRowsCountedInOrderAndSetAsideOnesApart)
{
    InvoicingDraft draft;
    draft.party = customer();
    draft.date = QStringLiteral("2025-03-14");
    draft.amount = 40;
    draft.invoiceNumber = QStringLiteral("No.1");
    setParameter(QStringLiteral("cs_shdj"), 1);
    saved(addInvoicing(session(), draft));
    draft.date = QStringLiteral("2025-03-20");
    draft.amount = 25;
    saved(addInvoicing(session(), draft));
    setParameter(QStringLiteral("cs_shdj"), 0);
    draft.amount = 5;
    saved(addInvoicing(session(), draft));

    const auto counted = invoiceRows(db(), PartyKind::Customer, {});
    ASSERT_EQ(counted.size(), 2);
    EXPECT_EQ(counted[0].invoiced, 40);
    EXPECT_EQ(counted[0].balance, -40);
    EXPECT_EQ(counted[1].balance, -65);
    EXPECT_EQ(counted[1].invoiceNumber, QStringLiteral("No.1"));
    MoneyFilter aside;
    aside.checked = false;
    const auto waiting = invoiceRows(db(), PartyKind::Customer, aside);
    ASSERT_EQ(waiting.size(), 1);
    EXPECT_EQ(waiting[0].invoiced, 5);
    EXPECT_FALSE(waiting[0].counted);
    EXPECT_EQ(invoiceRows(db(), PartyKind::Supplier, {}).size(), 0);
}

TEST_F(MoneyListsTest, TheInvoiceSummaryCarriesTheOpeningIntoWhatRemainsToBeInvoiced)
{
    setParameter(QStringLiteral("cs_shdj"), 1);
    InvoicingDraft draft;
    draft.party = customer();
    draft.date = QStringLiteral("2025-02-20");
    draft.amount = 30;
    saved(addInvoicing(session(), draft));
    draft.date = QStringLiteral("2025-03-10");
    draft.amount = 25;
    saved(addInvoicing(session(), draft));
    setParameter(QStringLiteral("cs_shdj"), 0);
    draft.amount = 5; // set aside: counts nowhere
    saved(addInvoicing(session(), draft));
    // The row of a checked document: 100 to invoice, 30 of it invoiced already.
    db().exec(QStringLiteral("update jxc_fpdjb set fp_yfje=100 where fp_rq=?"),
        { QStringLiteral("2025-02-20") });
    recalculateInvoices(db(), PartyKind::Customer, customer(), QStringLiteral("2025-01-01"));

    const MoneyFilter march { QStringLiteral("2025-03-01"), QStringLiteral("2025-03-31") };
    const auto rows = invoiceSummary(db(), PartyKind::Customer, march);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].party, customer());
    EXPECT_EQ(rows[0].opening, 70);
    EXPECT_EQ(rows[0].due, 0);
    EXPECT_EQ(rows[0].invoiced, 25);
    EXPECT_EQ(rows[0].outstanding, 45);
    const MoneyFilter april { QStringLiteral("2025-04-01"), QStringLiteral("2025-04-30") };
    ASSERT_EQ(invoiceSummary(db(), PartyKind::Customer, april).size(), 1);
    EXPECT_EQ(invoiceSummary(db(), PartyKind::Customer, april)[0].outstanding, 45);
    const MoneyFilter january { QStringLiteral("2025-01-01"), QStringLiteral("2025-01-31") };
    EXPECT_EQ(invoiceSummary(db(), PartyKind::Customer, january).size(), 0);
}

TEST_F(MoneyListsTest, CashMovementsShowTheBalanceOfCountedRowsOnly)
{
    const QString in = movement(MovementKind::Receipt, "2025-03-14", 200);
    ASSERT_TRUE(checkMovement(session(), in).ok());
    movement(MovementKind::Payment, "2025-03-15", 50);

    MoneyFilter filter;
    filter.account = cashAccountName();
    filter.from = QStringLiteral("2025-03-14");
    filter.to = QStringLiteral("2025-03-31");
    auto rows = cashMovements(db(), filter);
    // The seeded opening row of "现金" is dated the day the set was made, in the fixture's March.
    rows.removeIf([](const CashMovement &m) { return m.kind == QStringLiteral("期初金额"); });
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].amount, 200);
    EXPECT_EQ(rows[0].balance, 200);
    EXPECT_TRUE(rows[0].counted);
    EXPECT_EQ(rows[1].amount, -50);
    EXPECT_EQ(rows[1].balance, 0);
    EXPECT_FALSE(rows[1].counted);
    filter.checked = false;
    EXPECT_EQ(cashMovements(db(), filter).size(), 1);
    filter.account = QStringLiteral("农行");
    EXPECT_EQ(cashMovements(db(), filter).size(), 0);
}

TEST_F(MoneyListsTest, ExpensesAndIncomeAreListedByKindWithTheirNames)
{
    ExpenseDraft expense;
    expense.date = QStringLiteral("2025-03-14");
    expense.type = QStringLiteral("费用");
    expense.amount = 80;
    expense.account = cashAccountName();
    const QString fy = saved(saveExpense(session(), expense));
    ExpenseDraft income = expense;
    income.kind = ExpenseKind::Income;
    income.type = QStringLiteral("收入");
    income.amount = 30;
    income.date = QStringLiteral("2025-03-12");
    saved(saveExpense(session(), income));

    const auto both = listExpenses(db(), std::nullopt, {});
    ASSERT_EQ(both.size(), 2);
    EXPECT_EQ(both[0].kind, ExpenseKind::Income);
    EXPECT_EQ(both[1].number, fy);
    EXPECT_EQ(both[1].departmentName.isEmpty(), false);
    EXPECT_EQ(both[1].salesmanName, QStringLiteral("默认员工"));
    const auto expenses = listExpenses(db(), ExpenseKind::Expense, {});
    ASSERT_EQ(expenses.size(), 1);
    EXPECT_EQ(expenses[0].amount, 80);
    EXPECT_TRUE(expenseTypeNames(db()).contains(QStringLiteral("收入")));
}
