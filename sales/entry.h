#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// The header fields of a sales document besides the shared ones. A sale keeps all of them; a
// return has no freight or packing; an order keeps the settlement mode, account and amount paid.
struct SaleHeader
{
    QString settlementMode; // "1" 按实付款结算 (the default), "2" 余款记入应收帐, "0" remainder
                            // written off as discount at check
    QString account; // the payment's cash or bank account; empty: "现金"
    double paid = 0; // paid by the customer; refunded to the customer on a return
    QString invoiceNumber;
    double invoiceAmount = 0;
    double freight = 0;
    double packing = 0;
    QString freightTerms; // "我方付运费", "对方付运费" or empty
    QString linkNumber; // gl_djh2
};

// A sales document as entered. Lines taken over from an order carry the order line's identity
// in columns "id3" and the order's number in "gl_djh2", and the cost of their goods per base
// unit in "ls_cbj2"; return lines returned against a sale carry the sales line's "id2".
struct SaleDraft
{
    documents::DocumentDraft entry;
    SaleHeader header;
};

// Each of the three saves first gives a line typed without a price the customer's price for its
// unit (fillCustomerPrices).

// Saves a sale through the shared entry, in this order: the shared checks, the sales header, the
// order lines' open quantities, expired batches (refused with "过期商品不能销售", else asked),
// each line's cost as of the sale date (or the one it was taken over with), the stock of each
// goods in the warehouse and of each batch (refused, or asked when negative stock is allowed),
// the prepayment question, the confirmation; then in one transaction the rows, the source orders
// marked taken over (ls_qk) and the log. With check-on-save on the check follows. Returns the
// number.
Result<QString> saveSale(shell::Session &session, const SaleDraft &draft);

// Saves a sales order: the shared checks, the header, costs at today's warehouse cost, the
// confirmation, the rows and the log; checked at once with check-on-save on.
Result<QString> saveSalesOrder(shell::Session &session, const SaleDraft &draft);

// Saves a customer return with its amounts due and refunded stored negated: the shared checks,
// the header, the sales lines returned against (checked, not over what is left to return), costs
// as of the return date, the confirmation; then the rows, the returned sales marked (ls_th) and
// the log. With check-on-save on the check follows.
Result<QString> saveSalesReturn(shell::Session &session, const SaleDraft &draft);

// Delete an unchecked document with its lines (the shared entry's delete). A sales order, which
// posts nothing, may be deleted checked too, after the question "销售订单<number>已审核，删除后
// 不能再导入销售单，确认删除吗？"; its lines are then offered for take-over no more.
Outcome deleteSale(const shell::Session &session, const QString &number);
Outcome deleteSalesOrder(const shell::Session &session, const QString &number);
Outcome deleteSalesReturn(const shell::Session &session, const QString &number);

} // namespace medistock::sales
