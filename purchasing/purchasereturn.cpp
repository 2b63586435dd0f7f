#include "purchasing/purchasereturn.h"

#include "core/connection.h"
#include "core/operation.h"
#include "documents/lifecycle.h"
#include "purchasing/returnstock.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "stock/checks.h"

#include <QSqlQuery>

namespace medistock::purchasing {

namespace {

// The receipts whose lines the return went back against, read before the links are cleared.
QStringList sourceReceipts(shell::Session &session, const QString &number)
{
    QStringList receipts;
    session.db().forEach(
        QStringLiteral("select distinct b.j_sn from jxc_thsp a,jxc_jhsp b where a.gl_djh=? and "
                       "a.id2<>? and b.id2=a.id2 order by b.j_sn"),
        { number, 0 }, [&](const QSqlQuery &q) { receipts.append(q.value(0).toString()); });
    return receipts;
}

void reopenReceiptLines(shell::Session &session, const QString &number)
{
    session.db().exec(QStringLiteral("update jxc_jhsp set jh_qxsl=? where id2 in (select id2 from "
                                     "jxc_thsp where gl_djh=? and id2<>?)"),
        { 0, number, 0 });
}

// The return's lines lose their links and its note is cleared, on purpose: a return unchecked
// is entered again against whatever the receipts then hold.
void clearLinks(shell::Session &session, const QString &number)
{
    session.db().exec(QStringLiteral("update jxc_thsp set id2=? where gl_djh=?"), { 0, number });
    session.db().exec(
        QStringLiteral("update jxc_thd set th_note=? where gl_djh=?"), { QString(), number });
}

// A receipt with a line not yet fully received or returned is no longer marked finished.
void reopenReceipts(shell::Session &session, const QStringList &receipts)
{
    for (const QString &receipt : receipts)
        if (session.db().exists(QStringLiteral("select id from jxc_jhsp where "
                                               "jh_sl>jh_rksl+jh_qxsl and j_sn=? limit 1"),
                { receipt }))
            session.db().exec(
                QStringLiteral("update jxc_jhd set j_crk=? where j_sn=?"), { 0, receipt });
}

} // namespace

Outcome checkPurchaseReturn(shell::Session &session, const QString &number, const CheckInput &input)
{
    const PurchaseKind &kind = purchaseReturn();
    PurchaseHeaderRow header;
    CheckValues values;
    Outcome outcome = prepareCheck(session, kind, number, input, header, values);
    if (outcome && header.status == 1)
        return removeStrayCopies(session, kind, number);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return stock::confirmBatchCheck(
                session, number, header.warehouse, QStringLiteral("CT"));
        });
    if (!outcome)
        return outcome;
    return postCheck(session, kind, header, values,
        [&](const stock::PostingHeader &posted) { postPurchaseReturnStock(session, posted); });
}

Outcome uncheckPurchaseReturn(shell::Session &session, const QString &number)
{
    const PurchaseKind &kind = purchaseReturn();
    PurchaseHeaderRow header;
    Outcome outcome = prepareUncheck(session, kind, number, texts::noUncheckReturnRight(), header);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (!outcome)
        return outcome;
    return postUncheck(session, kind, header, texts::returnUncheckedLog(number),
        [&](const stock::PostingHeader &posted) {
            const QStringList receipts = sourceReceipts(session, number);
            reopenReceiptLines(session, number);
            reversePurchaseReturnStock(session, posted);
            clearLinks(session, number);
            reopenReceipts(session, receipts);
        });
}

} // namespace medistock::purchasing
