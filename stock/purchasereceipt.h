#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

struct PostingHeader;

// The stock side of a purchase receipt (header jxc_jhd, lines jxc_jhsp, key j_sn). The receipt's
// check and uncheck call these inside their own transaction, after their money postings and with
// the header they read and marked checked; each also opens a joining transaction guard, so that
// a call on its own is whole or nothing. They throw DbError.

// Posts a checked receipt into stock: received quantities (none while goods come in through
// receiving notes), the lines' stable identities, one ledger row "cj" per line, then per row
// warehouse stock, ledger rerun, goods totals and average, last price and supplier, and batch
// stock; the log line, the day's settlement for the warehouse, the employee's purchase count and
// the purchase plan lines. Refuses a receipt that already has ledger rows. Returns the number of
// goods rows posted (the discount line not counted).
int postPurchaseReceiptStock(const shell::Session &session, const PostingHeader &header);

// Takes a posted receipt back out of stock, row by row in the same order: warehouse stock, the
// ledger rerun without the row, goods totals and average, batch stock; then deletes its ledger
// rows, reduces the plan lines and settles the warehouse for the receipt's date. The batch check
// "CJ" (confirmBatchCheck) belongs before the caller's transaction; the header reset and the
// money rows are the caller's. Kept on purpose, as the posting rules keep them: the lines'
// received quantities and identities, g_scjj, the goods' last supplier, the employee's purchase
// count u_cgpl (only the goods' g_cgpl is taken back), stock and batch rows created at zero, and
// settlement rows. Uses the header's number, date and warehouse.
void reversePurchaseReceiptStock(const shell::Session &session, const PostingHeader &header);

} // namespace medistock::stock
