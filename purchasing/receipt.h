#pragma once

#include "core/outcome.h"
#include "purchasing/checking.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::purchasing {

// Checks a saved purchase receipt in one transaction: the check right "采购进货审核" and the
// closed-period test, the dialog's values, then the header (status, checker, date, mode, paid,
// note, account), the discount line, the money (cash row of the payment, payables row, invoice
// row, freight and packing under "我方付运费") and the stock posting with its log line; an
// unchecked copy of the number is removed. The status is read again inside the transaction. A
// receipt checked already is not posted again: only an unchecked copy of its number is removed.
Outcome checkPurchaseReceipt(
    shell::Session &session, const QString &number, const CheckInput &input = {});

// Unchecks a purchase receipt: refused without the uncheck right, while a receiving note or a
// checked purchase return depends on it, unless it is checked, by the checker rule and the
// closed-period test; asks the question and the batch check "CJ" before its transaction. Then logs,
// takes the stock posting back, resets the header and the lines' received quantities, done flags
// and identities, and removes every money row with its recalculations.
Outcome uncheckPurchaseReceipt(shell::Session &session, const QString &number);

} // namespace medistock::purchasing
