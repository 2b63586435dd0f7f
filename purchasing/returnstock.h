#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}
namespace medistock::stock {
struct PostingHeader;
}

namespace medistock::purchasing {

// The stock side of a purchase return (header jxc_thd, lines jxc_thsp, key gl_djh), built from
// the stock engine's steps inside the caller's transaction with the header the check read; both
// throw DbError.

// Posts a checked return: one ledger row "ct" per line with the quantities and amounts negated
// (price per base unit, and the price incl. tax, stay positive; no line identity, source number
// or done flag), then per row, in ledger order: warehouse stock (physical and book quantity fall
// alike), the ledger rerun, goods stock down and purchase count g_cgpl down by one, the goods
// average, the batch stock down. Then the log "增加采购退货单<number>，共N种商品", the employee's
// purchase count, and the settlement of the warehouse for the return's date. Returns the number
// of goods rows.
int postPurchaseReturnStock(const shell::Session &session, const stock::PostingHeader &header);

// Takes a posted return back out, row by row: warehouse stock up again, the ledger rerun without
// the row, goods stock and g_cgpl up, the goods average, batch stock restored; deletes the ledger
// rows and settles the warehouse for the return's date. The employee's purchase count stays as
// the check left it, as on a receipt's uncheck.
void reversePurchaseReturnStock(const shell::Session &session, const stock::PostingHeader &header);

} // namespace medistock::purchasing
