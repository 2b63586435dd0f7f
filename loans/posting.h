#pragma once

#include "core/outcome.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::loans {

// What the checks and unchecks of loans and returns share. Steps that write run inside the
// caller's transaction and throw DbError.

// A loan's or a return's header with the names its ledger rows copy. A checked row wins over a
// stray unchecked copy of the same number.
struct LoanHeader
{
    qint64 id = 0;
    QString number;
    QString date; // jh_rq
    QString customer; // kh_sn
    QString customerName;
    QString warehouse; // ck_sn
    QString warehouseName;
    QString employee; // u_sn
    QString employeeName;
    QString note;
    QString flag; // "jh" loan, "hh" return
    QString checker;
    int status = 0;
};
std::optional<LoanHeader> readLoanHeader(const shell::Session &session, const QString &number);

// A loan or return dated after today is asked about ("您选择的日期：...确认继续吗？"); "No"
// refuses.
Outcome confirmFutureDate(const shell::Session &session, const QString &date);

// One ledger row per line of the document, in line order: "jh" rows of a loan with the lent
// quantity jh_sl, "hh" rows of a return with the quantity it brings back jh_hhsl; the customer as
// the row's party, gl_fdmc "jh" on a loan, "hh" on a return line and "xs" on a line sold. Then
// today's settlement rows, and per row the settlement of today, warehouse stock, the rerun, g_kc
// and the batch: down for a loan, up for a return. Returns the number of rows.
int postLedgerRows(const shell::Session &session, const LoanHeader &header);

// Takes the document's ledger rows back one by one: the settlement of the day each was checked,
// the stores, the rerun without the row, which is then deleted.
void reverseLedgerRows(const shell::Session &session, const LoanHeader &header);

} // namespace medistock::loans
