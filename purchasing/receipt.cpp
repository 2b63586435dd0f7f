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

Outcome post(shell::Session &session, const PurchaseHeaderRow &header, const CheckValues &values)
{
    const PurchaseKind &kind = purchaseReceipt();
    const QString &number = header.number;
    core::Transaction transaction(session.db());
    const Outcome unchecked = documents::requireStatus(session, kind.entry, number, 0);
    if (!unchecked)
        return unchecked;
    const accounts::MoneyHeader posted = markChecked(session, kind, header, values);
    if (header.discount != 0)
        documents::writeDiscountLine(session, kind.entry, number, header.discount);
    accounts::postDocumentMoney(session, kind.money, posted);
    stock::postPurchaseReceiptStock(session, postingHeader(posted));
    documents::removeUncheckedCopies(session, kind.entry, number);
    transaction.commit();
    return Outcome::done();
}

Outcome unpost(shell::Session &session, const PurchaseHeaderRow &header)
{
    const PurchaseKind &kind = purchaseReceipt();
    const QString &number = header.number;
    core::Transaction transaction(session.db());
    const Outcome checked = documents::requireStatus(session, kind.entry, number, 1);
    if (!checked)
        return checked;
    session.log(texts::receiptUncheckedLog(number));
    documents::removeUncheckedCopies(session, kind.entry, number);
    stock::reversePurchaseReceiptStock(session, reversalHeader(header));
    documents::markUnchecked(session, kind.entry, number, { QString::fromLatin1(kind.paidBack) });
    accounts::removeDocumentPostings(session, number);
    resetLines(session, number);
    transaction.commit();
    return Outcome::done();
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
    return core::guarded(session.ui(), [&] { return post(session, header, values); });
}

Outcome uncheckPurchaseReceipt(shell::Session &session, const QString &number)
{
    PurchaseHeaderRow header;
    Outcome outcome = prepareUncheck(session, purchaseReceipt(), number,
        texts::noUncheckReceiptRight(), header, [&] { return dependantRefusal(session, number); });
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return stock::confirmBatchCheck(
                session, number, header.warehouse, QStringLiteral("CJ"));
        });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return unpost(session, header); });
}

} // namespace medistock::purchasing
