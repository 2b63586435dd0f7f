#include "purchasing/receipt.h"

#include "accounts/postings.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/entry.h"
#include "documents/lifecycle.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "stock/checks.h"
#include "stock/purchasereceipt.h"

namespace medistock::purchasing {

namespace {

// A receiving note that took goods in from the receipt must be deleted first.
QString receivingNoteRefusal(shell::Session &session, const QString &number)
{
    if (session.db().exists(
            QStringLiteral("select gl_djh from jxc_rksp where j_sn=? limit 1"), { number }))
        return texts::receivingNoteRefusal(number);
    return {};
}

// An unchecked receipt's lines are as saved: nothing received, not done, no identity yet.
void resetLines(shell::Session &session, const QString &number)
{
    session.db().exec(QStringLiteral("update jxc_jhsp set jh_rksl=?,jh_qxsl=?,id2=? where j_sn=?"),
        { 0, 0, 0, number });
}

} // namespace

Outcome checkPurchaseReceipt(
    shell::Session &session, const QString &number, const CheckInput &input)
{
    const PurchaseKind &kind = purchaseReceipt();
    PurchaseHeaderRow header;
    CheckValues values;
    const Outcome ready = prepareCheck(session, kind, number, input, header, values);
    if (!ready)
        return ready;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome unchecked = requireStatus(session, kind, number, 0);
        if (!unchecked)
            return unchecked;
        markChecked(session, kind, header, values);
        if (header.discount != 0)
            documents::writeDiscountLine(session, kind.entry, number, header.discount);
        accounts::postDocumentMoney(session, accounts::purchaseReceiptMoney(), number);
        stock::postPurchaseReceiptStock(session, number);
        removeUncheckedCopies(session, kind, number);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome uncheckPurchaseReceipt(shell::Session &session, const QString &number)
{
    const PurchaseKind &kind = purchaseReceipt();
    PurchaseHeaderRow header;
    Outcome outcome = prepareUncheck(session, kind, number, texts::noUncheckReceiptRight(), header,
        [&] { return receivingNoteRefusal(session, number); });
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return stock::confirmBatchCheck(
                session, number, header.warehouse, QStringLiteral("CJ"));
        });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome checked = requireStatus(session, kind, number, 1);
        if (!checked)
            return checked;
        session.log(texts::receiptUncheckedLog(number));
        removeUncheckedCopies(session, kind, number);
        stock::reversePurchaseReceiptStock(session, number);
        markUnchecked(session, kind, number);
        accounts::removeDocumentPostings(session, number);
        resetLines(session, number);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::purchasing
