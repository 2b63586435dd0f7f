#pragma once

#include "accounts/expenses.h"
#include "ui/accounts/moneyscreen.h"

class QTabWidget;

namespace medistock::ui {

// "现金银行": the movements of one account (or all) in the range by status, in book order with
// the account's running balance on each counted row. F2 a receipt ("进款"), F3 a payment
// ("出款"), F4 a transfer ("转账"), Enter changes an unchecked receipt or payment (a transfer is
// deleted and entered again, since its two rows are one movement), Del deletes, F6 checks, F7
// unchecks (both with "现金银行审核"), F9 checks every unchecked movement after the question.
// Movements that other documents wrote are shown but changed only through their documents.
class CashBookScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    explicit CashBookScreen(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *accountBox() const { return m_account; }

public slots:
    void enter(int kind); // an accounts::MovementKind
    void change();
    void remove();
    void check();
    void uncheck();
    void checkAll();

protected:
    void fetch() override;

private:
    const accounts::CashMovement *current() const;
    bool edit(int kind, const accounts::CashMovement *row);

    QComboBox *m_account;
    QList<accounts::CashMovement> m_rows;
};

// "现金银行期初建账": the accounts with their opening amount and current balance; F2 adds an
// account, F3 renames it, F4 sets its opening amount (asking first when it has business), Del
// deletes it.
class BankAccountsScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    explicit BankAccountsScreen(Workspace &workspace, QWidget *parent = nullptr);

public slots:
    void add();
    void rename();
    void setOpening();
    void remove();

protected:
    void fetch() override;

private:
    QString currentName() const;
};

// "费用及收入": expenses and income of the range by kind and status. F2 an expense ("费用信息"),
// F3 an income ("收入信息"), Enter changes an unchecked one, Del deletes, F6 checks, F7 unchecks
// (both with "费用及收入审核"). The department list ends with "添加新部门..." which adds one.
class ExpenseScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    explicit ExpenseScreen(Workspace &workspace, QWidget *parent = nullptr);

    QComboBox *kindBox() const { return m_kind; }

public slots:
    void enter(accounts::ExpenseKind kind);
    void change();
    void remove();
    void check();
    void uncheck();

protected:
    void fetch() override;

private:
    const accounts::ExpenseRow *current() const;
    bool edit(accounts::ExpenseKind kind, const accounts::ExpenseRow *row);

    QComboBox *m_kind;
    QList<accounts::ExpenseRow> m_rows;
};

// The window of "现金银行": the book and the accounts with their opening amounts.
QTabWidget *cashWindow(Workspace &workspace);

} // namespace medistock::ui
