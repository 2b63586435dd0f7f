#pragma once

#include "core/outcome.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// Expenses "FY" (费用, fy_flag "费用") and income "SR" (收入, fy_flag "收入") of jxc_yyfy. Once
// checked, each is a counted movement of its account: "费用付款" out, "收入收款" in; an account of
// "不记入账户" posts nothing.
enum class ExpenseKind { Expense, Income };

QString expensePrefix(ExpenseKind kind); // "FY" / "SR"
std::optional<ExpenseKind> expenseKindFromPrefix(const QString &prefix);

struct ExpenseDraft
{
    ExpenseKind kind = ExpenseKind::Expense;
    QString number; // empty for a new one; an unchecked document's number to change it
    QString date; // fy_rq "yyyy-MM-dd"
    QString type; // fy_lx, a type of jxc_fylx
    double amount = 0; // fy_je, as entered (above 0)
    QString salesman; // u_sn; the default employee when empty
    QString department; // de_sn; "100001" when empty
    QString account; // fy_kmmc: an account of jxc_yhzh or "不记入账户"
    QString note;
};

// Saves the document unchecked under a number of its date (or rewrites an unchecked one).
Result<QString> saveExpense(shell::Session &session, const ExpenseDraft &draft);
// Checks it: fy_chk "1" and, unless "不记入账户", its movement and the account's recalculation.
Outcome checkExpense(shell::Session &session, const QString &number);
// Asks, then sets it unchecked and removes its movement (recalculating the account).
Outcome uncheckExpense(shell::Session &session, const QString &number);
// Deletes an unchecked document.
Outcome deleteExpense(shell::Session &session, const QString &number);

// Expense and income types (jxc_fylx): the name must be unique. Returns the row's id.
Result<qint64> addExpenseType(
    shell::Session &session, const QString &name, const QString &note, int direction);
Outcome changeExpenseType(
    shell::Session &session, qint64 id, const QString &name, const QString &note, int direction);
// "添加新部门...": a department under the next code; the name must be new. Returns the code.
Result<QString> addDepartment(shell::Session &session, const QString &name);

} // namespace medistock::accounts
