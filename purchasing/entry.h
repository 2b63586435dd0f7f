#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::purchasing {

// The header fields of a purchase document besides the shared ones. The receipt keeps all of
// them; the return has no supplier's number, freight or packing.
struct PurchaseHeader
{
    QString supplierNumber; // j_sn2 "原始单号"
    QString settlementMode; // "1" 按实付款结算 (the default), "2" 余款记入应付帐
    QString account; // the payment's cash or bank account; empty: "现金"
    double paid = 0; // what the check dialog proposes as paid (received on a return)
    QString invoiceNumber;
    double invoiceAmount = 0;
    double freight = 0;
    double packing = 0;
    QString freightTerms; // "我方付运费", "对方付运费" or empty
};

// A purchase document as entered. A return line that goes back against a receipt line names it
// by the receipt line's identity: lines[i].columns "id2" (the receipt's jxc_jhsp.id2).
struct PurchaseDraft
{
    documents::DocumentDraft entry;
    PurchaseHeader header;
};

// Saves a receipt or a return through the shared entry (its checks, numbering and log), with the
// purchase header checked too: settlement mode, an existing account, the freight terms, every
// amount within the money limits (documents::headerAmountProblem); a return line must not return
// more than its receipt line still holds (its base quantity less what other return lines against it
// take). Returns the number.
Result<QString> savePurchaseReceipt(const shell::Session &session, const PurchaseDraft &draft);
Result<QString> savePurchaseReturn(const shell::Session &session, const PurchaseDraft &draft);

// Deletes an unchecked receipt or return with its lines.
Outcome deletePurchaseReceipt(const shell::Session &session, const QString &number);
Outcome deletePurchaseReturn(const shell::Session &session, const QString &number);

} // namespace medistock::purchasing
