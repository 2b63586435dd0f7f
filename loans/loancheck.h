#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::loans {

// Checks a loan, in this order: the right "客户借货管理"; the loan there (a return is refused);
// a loan already checked only loses a stray unchecked copy of its number; a loan without lines
// is left alone; the closed-period test; the batch stock "JH" (refused, or asked when negative
// stock is allowed). Then in one transaction, with the status read again: status 1, checker and
// today's date; stray copies removed; the lines' identities id2 fixed; one ledger row "jh" per
// line; per row the day's settlement, warehouse stock, the rerun, g_kc and the batch lowered; the
// log "审核客户借货单...".
Outcome checkLoan(shell::Session &session, const QString &number);

// Unchecks a loan, in this order: the loan checked; the right and the checker rule; the
// closed-period test; refused while a return or a sale of its goods exists; the question. Then
// in one transaction, with the status and the returns read again: stray copies removed, every
// ledger row taken back (stores raised, settlement of its check date), status 0 with checker and
// check date emptied, the lines' identities cleared, the log "取消审核客户借货单...".
Outcome uncheckLoan(shell::Session &session, const QString &number);

} // namespace medistock::loans
