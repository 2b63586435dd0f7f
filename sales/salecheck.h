#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// Who started a check: the operator on a listed document (the check right is asked for), or the
// save with check-on-save on (the right is not asked for then).
enum class CheckStart { Listed, OnSave };

// Checks a sale, in this order: the check right; the per-sale quantity limits (told, refused);
// a sale without lines is left alone (refused without a message); a sale already checked only
// loses a stray unchecked copy of its number; the closed-period test; the batch stock "XS"
// (refused, or asked when negative stock is allowed); the prepayment question. Then in one
// transaction, with the status read again: settlement mode "0" writes the unpaid remainder off
// as discount; status, checker and today's date; stray copies removed; the money postings (cash,
// receivables, invoice, freight and packing); the stock postings; members; the log.
Outcome checkSale(
    shell::Session &session, const QString &number, CheckStart start = CheckStart::Listed);

// Checks a saved sale inside the caller's transaction, asking nothing (a sale of loaned goods,
// whose questions were asked before it): the per-sale quantity limits (told, refused), then the
// check's transaction as above.
Outcome checkSaleWithin(shell::Session &session, const QString &number);

// The question before a listed sale is checked one by one: "ok" lets it be checked, anything else
// is told and the sale skipped. Nothing refuses a sale here yet; this is where a per-document
// refusal belongs.
QString saleCheckHook(const shell::Session &session, const QString &number, const QString &date);

struct CheckAllSummary
{
    int listed = 0;
    int checked = 0;
};

// Checks every unchecked sale dated from..to (to through its end of day; empty ends are open), in
// date then number order, after one question; each sale passes the hook and is checked on its
// own (its refusals told, the others go on). Nothing is asked when none is listed.
Result<CheckAllSummary> checkAllSales(
    shell::Session &session, const QString &from, const QString &to);

// The same for the sales a list shows (its filters chosen by the clerk), in the list's order; a
// number no longer unchecked is passed over and not counted.
Result<CheckAllSummary> checkListedSales(shell::Session &session, const QStringList &numbers);

// Unchecks a sale, in this order: the sale must be checked; refused while an issue note or a
// customer return refers to it; right "商品销售取消审核" and the checker rule; the question. Then
// in one transaction, with the status read again: stock back, members, POS rows, the header
// reset, the money postings and ledger rows removed with their recalculations, the order lines,
// the log.
Outcome uncheckSale(shell::Session &session, const QString &number);

} // namespace medistock::sales
