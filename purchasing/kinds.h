#pragma once

#include "accounts/postings.h"
#include "documents/descriptor.h"
#include "documents/returnlimits.h"

namespace medistock::purchasing {

// A purchase document: its entry descriptor, its money columns, and the header columns and
// rights that check and uncheck use besides them.
struct PurchaseKind
{
    const documents::DocumentKind &entry;
    const accounts::MoneyColumns &money; // paid, account, invoice, freight and packing columns
    const char *mode; // settlement mode: "1" 按实付款结算, "2" 余款记入应付帐
    const char *supplierNumber; // the supplier's own number "原始单号"; empty on returns
    const char *paidBack; // reset to 0 by uncheck
    const char *ledgerKind; // gl_flag of its ledger rows
    int checkRight; // position in "cggl"
    int uncheckRight;
};

// The purchase receipt "采购进货单": jxc_jhd / jxc_jhsp, key j_sn, prefix "CJ".
const PurchaseKind &purchaseReceipt();
// The purchase return "采购退货单": jxc_thd / jxc_thsp, key gl_djh, prefix "CT".
const PurchaseKind &purchaseReturn();

// How a return line points (id2) to the receipt line it gives back.
const documents::ReturnedLines &receiptReturnLinks();

} // namespace medistock::purchasing
