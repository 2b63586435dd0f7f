#pragma once

#include "core/outcome.h"
#include "sales/salecheck.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// Checks a customer return: the check right; a return without lines is never checked (refused
// without a message); one already checked only loses a stray unchecked copy. Then in one
// transaction, with the status read again: status, checker, today's date; the money postings of
// its negated amounts (a refund equal to the return leaves the customer's balance as it was);
// the stock coming back; the sales lines returned against count its quantity (ls_qxsl); members;
// the log.
Outcome checkSalesReturn(
    shell::Session &session, const QString &number, CheckStart start = CheckStart::Listed);

// Unchecks a customer return: checked, right "顾客退货取消审核" and the checker rule, the question,
// the batch stock "XT" of the goods going back out. Then in one transaction: stock out, the
// returned sales lines give back this return's quantity (another return of the same line keeps
// its own) and their sales are reopened, the return's links and remark cleared,
// members and POS rows, the header reset, the money postings removed, the log.
Outcome uncheckSalesReturn(shell::Session &session, const QString &number);

} // namespace medistock::sales
