#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// The account every automatic expense is paid from, and the one that cannot be deleted.
QString cashAccountName(); // "现金"
// The expense and income account choice that posts to no account.
QString noAccountName(); // "不记入账户"

// An account of jxc_yhzh, or a name that movements are kept under.
bool knownCashAccount(core::Connection &connection, const QString &account);
// Balance of the account after its latest counted movement; 0 when none.
double cashBalance(core::Connection &connection, const QString &account);
// Rewrites xj_ljje of the account's counted movements from `date` on; returns the final balance.
// Runs inside the caller's transaction.
double recalculateCash(core::Connection &connection, const QString &account, const QString &date);
// The command "recalc cash": the account must exist; one transaction.
Outcome recalculateCashBook(shell::Session &session, const QString &account, QDate from);

// One movement of the cash and bank book as the postings write it; amount signed (money out < 0).
struct CashRow
{
    QString number; // gl_djh
    QString date; // xj_rq
    QString kind; // xj_dlx, e.g. "商品销售"
    double amount = 0; // xj_je
    QString account; // xj_kmmc
    QString salesmanName; // u_name
    QString partyCode; // ghs_sn (customer or supplier)
    QString partyName; // ghs_name
    QString warehouseName; // ck_name
    QString note; // xj_note
    QString operatorName; // a_name
    bool counted = true; // xj_chk "1" / "0"
};
// Appends the row with xj_ljje 0; the caller recalculates the account from the row's date.
void appendCashRow(core::Connection &connection, const CashRow &row);
// Deletes the movements numbered `number` and recalculates each account they were in from the
// earliest deleted date. Inside the caller's transaction.
void deleteCashRowsOf(core::Connection &connection, const QString &number);
// The same for the movements numbered `number` or whose note holds it (automatic fee payments).
void deleteCashRowsMentioning(core::Connection &connection, const QString &number);

// Receipts "XJ" (现金银行收款), payments "XC" (现金银行付款, stored negative) and transfers "XZ"
// (现金银行转账: out of one account and into another, two rows under one number).
enum class MovementKind { Receipt, Payment, Transfer };

struct MovementDraft
{
    MovementKind kind = MovementKind::Receipt;
    QString number; // empty for a new movement; an unchecked movement's number to change it
    QString date; // "yyyy-MM-dd"
    double amount = 0; // as entered, above 0
    QString account; // the account; the source of a transfer
    QString targetAccount; // the target of a transfer
    QString salesmanName; // u_name, may be empty
    QString note;
};

QString movementPrefix(MovementKind kind); // "XJ" / "XC" / "XZ"
// Saves the movement unchecked under a new number of its date (or rewrites an unchecked one);
// returns the number.
Result<QString> saveMovement(shell::Session &session, const MovementDraft &draft);
// Counts the movement (xj_chk "1") and recalculates its accounts from its date.
Outcome checkMovement(shell::Session &session, const QString &number);
// Asks, then stops counting the movement and recalculates its accounts.
Outcome uncheckMovement(shell::Session &session, const QString &number);
// Asks, then counts every unchecked receipt, payment and transfer.
Outcome checkAllMovements(shell::Session &session);
// Deletes an unchecked movement.
Outcome deleteMovement(shell::Session &session, const QString &number);

} // namespace medistock::accounts
