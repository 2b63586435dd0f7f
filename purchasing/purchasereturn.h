#pragma once

#include "core/outcome.h"
#include "purchasing/checking.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::purchasing {

// Checks a saved purchase return: the check right "采购退货审核" and the closed-period test, the
// dialog's values, the batch check "CT" (refused or asked by the negative-stock setting, before
// the transaction); then in one transaction the header, the money (cash row of what was
// received, payables row, invoice row) and the stock posting with its log line "增加采购退货单".
// A return checked already is not posted again: only an unchecked copy of its number is removed.
Outcome checkPurchaseReturn(
    shell::Session &session, const QString &number, const CheckInput &input = {});

// Unchecks a purchase return (rights, checker rule, closed-period test and question as for the
// receipt): logs, reopens the receipt lines it returned, takes the stock posting back, clears the
// lines' links to the receipt and the header's note, reopens a receipt that has an open line
// (j_crk=0), resets the header and removes every money row with its recalculations.
Outcome uncheckPurchaseReturn(shell::Session &session, const QString &number);

} // namespace medistock::purchasing
