#pragma once

#include "core/outcome.h"
#include "loans/posting.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Parameters;
class Session;
} // namespace medistock::shell

namespace medistock::loans {

// A line of a checked loan with what is still out with the customer.
struct OpenLine
{
    qint64 line = 0; // the loan line's id, its id2 since the check
    QString goods;
    QString goodsName;
    QString unit; // the base unit
    QString batch;
    QString expiry;
    QString produced;
    double lent = 0; // jh_sl
    double returned = 0; // jh_hhsl
    double sold = 0; // jh_xssl
    double open = 0; // jh_sl-jh_hhsl-jh_xssl
    double price = 0; // jh_dj
    double deposit = 0; // jh_yj-jh_yj2: what is left of the deposit
    double rent = 0; // jh_zj, per unit and day
    QString account; // jh_kmmc
};

// The open lines of a loan in line order (lines with nothing open left out). Reads only.
QList<OpenLine> openLines(const shell::Session &session, const QString &loan);

// What `quantity` of an open line coming back (or sold) after `days` days comes to: its value at
// the loan's price, its share of the remaining deposit (all of it for the whole open quantity),
// the rent jh_zj x days x quantity, and the deposit to refund, the share less the rent but never
// below 0. Each rounded to amount places.
struct ReturnLine
{
    OpenLine loan;
    double quantity = 0; // jh_hhsl of the return line
    double amount = 0; // jh_zje
    double deposit = 0; // jh_yj: the share of the deposit
    int days = 0; // jh_ts
    double rent = 0; // jh_zzj
    double refund = 0; // jh_thyj
};
ReturnLine returnLine(
    const shell::Parameters &params, const OpenLine &line, double quantity, int days);

// Days of a loan from its date to the return's, at least 1.
int loanDays(const QString &loanDate, const QString &returnDate);

// "新增还货": a return of a checked loan dated `date`, one line by its id or the whole loan
// ("整单还货"), each open line with its whole open quantity. Refused (and told) when the loan is
// not a checked loan, the line is not one of its open lines, or nothing is open. Reads only.
struct ReturnPlan
{
    LoanHeader loan;
    QString date;
    int days = 0;
    QList<ReturnLine> lines;
};
Result<ReturnPlan> prepareReturn(const shell::Session &session, const QString &loan,
    std::optional<qint64> line, const QString &date);

// A return as the operator confirms it: the loan, the date (empty: today), a note, and the loan
// lines coming back with their quantities (empty: the open quantity). No lines: the whole loan.
struct ReturnChoice
{
    qint64 line = 0;
    QString quantity;
};
struct ReturnDraft
{
    QString loan;
    QString date;
    QString note;
    QList<ReturnChoice> lines;
};

// The plan of a draft: the loan's open lines chosen, each quantity above 0 and not above what is
// open, the date a real date not before the loan's. Refusals told. Reads only.
Result<ReturnPlan> planReturn(const shell::Session &session, const ReturnDraft &draft);

// Inside the caller's transaction: the loan still checked and each planned quantity still open
// (another workstation may have returned or sold some of it meanwhile). Refusals told.
Outcome requireStillOpen(const shell::Session &session, const ReturnPlan &plan);

// Saves and checks a return, in this order: the right "客户借货管理", the plan, a date after
// today (asked). Then in one transaction, with the loan's status and open quantities read again:
// the header "hh" and its lines under a new number "HH", the postings of writeReturn, the log.
// Returns the number.
Result<QString> saveReturn(shell::Session &session, const ReturnDraft &draft);

// Inside the caller's transaction, for a plan whose quantities are still open: a checked header
// "hh" and one line per plan line under a new number "HH" of the plan's date (`sold`: lines "销售"
// and the note "还货：借货转销售", else lines "还货" and `note`); one ledger row per line ("hh",
// gl_fdmc "hh" or "xs") moving the goods back into stock; the loan lines' returned (or sold)
// quantity and used deposit raised; the rent booked as income per account. Returns the number.
Result<QString> writeReturn(
    shell::Session &session, const ReturnPlan &plan, const QString &note, bool sold);

// Unchecks a return, in this order: the return there and checked; the right and the checker
// rule; the closed-period test; refused while the sale it was turned into is checked; the
// question. Then in one transaction, with the status read again: every ledger row taken back
// (stores lowered, settlement of its check date); the loan lines' returned or sold quantity and
// used deposit lowered, none below 0; the return deleted with its income rows and their
// movements, and the unchecked sale it was turned into; the log "取消审核客户还货单...".
Outcome uncheckReturn(shell::Session &session, const QString &number);

} // namespace medistock::loans
