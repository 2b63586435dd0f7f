#include "purchasing/receipt.h"

#include "core/connection.h"
#include "core/operation.h"
#include "documents/lifecycle.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "stock/checks.h"
#include "stock/purchasereceipt.h"

namespace medistock::purchasing {

namespace {

// A later document that depends on the check stands in the way of unchecking it: a receiving
// note that took goods in from the receipt, or a checked return of its goods.
QString dependantRefusal(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    if (db.exists(QStringLiteral("select gl_djh from jxc_rksp where j_sn=? limit 1"), { number }))
        return texts::receivingNoteRefusal(number);
    if (db.exists(QStringLiteral("select a.id from jxc_thsp a,jxc_thd b,jxc_jhsp c where "
                                 "b.gl_djh=a.gl_djh and b.th_status=? and a.id2>0 and "
                                 "c.id2=a.id2 and c.j_sn=? limit 1"),
            { 1, number }))
        return texts::returnedReceiptRefusal(number);
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
    if (header.status == 1)
        return removeStrayCopies(session, kind, number);
    return postCheck(session, kind, header, values, [&](const stock::PostingHeader &posted) {
        stock::postPurchaseReceiptStock(session, posted);
    });
}

Outcome uncheckPurchaseReceipt(shell::Session &session, const QString &number)
{
    const PurchaseKind &kind = purchaseReceipt();
    PurchaseHeaderRow header;
    Outcome outcome = prepareUncheck(session, kind, number, texts::noUncheckReceiptRight(), header,
        [&] { return dependantRefusal(session, number); });
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return stock::confirmBatchCheck(
                session, number, header.warehouse, QStringLiteral("CJ"));
        });
    if (!outcome)
        return outcome;
    return postUncheck(session, kind, header, texts::receiptUncheckedLog(number),
        [&](const stock::PostingHeader &posted) {
            stock::reversePurchaseReceiptStock(session, posted);
            resetLines(session, number);
        });
}

} // namespace medistock::purchasing
