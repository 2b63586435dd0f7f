#include "stock/purchasereceipt.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "stock/ledger.h"
#include "stock/movement.h"
#include "stock/options.h"
#include "stock/stores.h"
#include "stock/texts.h"

#include <QSqlQuery>

namespace medistock::stock {

namespace {

// A posted goods row read back with the quantity that went into the warehouse: 0 while receiving
// is deferred, else the full base quantity.
struct ReceiptRow
{
    qint64 id = 0;
    double quantity = 0; // gl_sl
    double price = 0; // gl_dj
    double received = 0;
    BatchKey batch;
};

void refuseSecondPosting(const shell::Session &session, const QString &number)
{
    if (session.db().exists(
            QStringLiteral("select id from jxc_goodslist where gl_djh=? limit 1"), { number }))
        throw core::DbError(receiptAlreadyPostedText(number));
}

void setReceivedQuantities(const shell::Session &session, const QString &number)
{
    if (receivesThroughNotes(session.params()))
        session.db().exec(
            QStringLiteral("update jxc_jhsp set jh_rksl=? where j_sn=?"), { 0, number });
    else
        session.db().exec(
            QStringLiteral("update jxc_jhsp set jh_rksl=jh_sl where j_sn=?"), { number });
}

void fixLineIdentities(const shell::Session &session, const QString &number)
{
    session.db().exec(
        QStringLiteral("update jxc_jhsp set id2=id,jh_qxsl=? where j_sn=?"), { 0, number });
}

LedgerRow ledgerRowOf(
    const shell::Session &session, const PostingHeader &header, const QSqlQuery &q)
{
    LedgerRow row = headerRow(session, header, QStringLiteral("cj"));
    row.goods = q.value(0).toString();
    const double unitQuantity = q.value(2).toDouble();
    const double baseQuantity = q.value(3).toDouble();
    row.price = basePrice(q.value(1).toDouble(), unitQuantity, baseQuantity);
    row.quantity = baseQuantity;
    row.total = q.value(4).toDouble();
    row.discountRate = q.value(5).toDouble();
    row.operatorName = q.value(6).toString();
    row.batch = q.value(7).toString();
    row.expiry = q.value(8).toString();
    row.produced = q.value(9).toString();
    row.lineNote = q.value(10).toString();
    row.taxRate = q.value(11).toDouble();
    row.tax = q.value(12).toDouble();
    row.amount = q.value(13).toDouble();
    row.lineId = q.value(14).toLongLong();
    row.doneFlag = q.value(15).toDouble();
    row.goodsName = q.value(16).toString();
    row.mnemonic = q.value(17).toString();
    row.unit = q.value(18).toString();
    row.packing = q.value(19).toString();
    row.approvalNumber = q.value(20).toString();
    row.average = q.value(21).toDouble();
    row.taxedPrice = baseQuantity > 0 ? row.total / baseQuantity : 0;
    row.unitQuantity = unitQuantity;
    return row;
}

// One ledger row per line, the discount line included, in line order.
void insertReceiptLedgerRows(const shell::Session &session, const PostingHeader &header)
{
    QList<LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.g_sn,b.jh_dj,b.jh_sl,b.jh_zsl,b.jh_zje,b.jh_dzl,b.a_name,b.t_ph,"
                       "b.t_yxq,b.t_scrq,b.jh_bz,b.jh_tax,b.jh_taxje,b.jh_je,b.id2,b.jh_qxsl,"
                       "c.g_name,c.g_jm,c.dw_name,c.gg_name,c.color_name,c.g_pjjj from jxc_jhsp b "
                       "left join jxc_goods c on c.g_sn=b.g_sn where b.j_sn=? order by b.id"),
        { header.number },
        [&](const QSqlQuery &q) { rows.append(ledgerRowOf(session, header, q)); });
    for (const LedgerRow &row : rows)
        insertLedgerRow(session, row);
}

QList<ReceiptRow> receiptRows(const shell::Session &session, const QString &number)
{
    QList<ReceiptRow> rows;
    session.db().forEach(
        QStringLiteral("select a.id,a.gl_sl,a.gl_dj,case when b.jh_rksl=0 then b.jh_rksl else "
                       "b.jh_zsl end,a.g_sn,a.ck_sn,a.t_ph,a.t_yxq,a.t_scrq from jxc_goodslist a,"
                       "jxc_jhsp b where a.gl_djh=b.j_sn and a.id2=b.id2 and a.g_sn=b.g_sn and "
                       "a.g_sn<>? and a.gl_djh=? order by a.id"),
        { QStringLiteral("00000000"), number }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toLongLong(), q.value(1).toDouble(), q.value(2).toDouble(),
                q.value(3).toDouble(),
                { q.value(4).toString(), q.value(5).toString(), q.value(6).toString(),
                    q.value(7).toString(), q.value(8).toString() } });
        });
    return rows;
}

// The warehouse takes what was received, the book the whole quantity.
StoreMovement movementOf(const ReceiptRow &row)
{
    StoreMovement movement { row.id, row.batch, row.received, row.quantity };
    movement.purchases = 1;
    movement.price = row.price;
    movement.goodsAverage = true;
    return movement;
}

struct PlanLink
{
    qint64 id = 0;
    qint64 planLine = 0; // the plan line's id2
    double quantity = 0; // the receipt line's jh_sl
};

QList<PlanLink> planLinks(const shell::Session &session, const QString &number)
{
    QList<PlanLink> links;
    session.db().forEach(
        QStringLiteral("select a.id,a.id2,c.jh_sl from jxc_cgsp a,jxc_jhsp c where a.id2=c.id3 "
                       "and a.g_sn=c.g_sn and c.j_sn=? order by a.id"),
        { number }, [&](const QSqlQuery &q) {
            links.append(
                { q.value(0).toLongLong(), q.value(1).toLongLong(), q.value(2).toDouble() });
        });
    return links;
}

// A plan line is done once it has been received in full.
void receivePlanLines(const shell::Session &session, const QString &number)
{
    for (const PlanLink &link : planLinks(session, number)) {
        session.db().exec(
            QStringLiteral("update jxc_cgsp set jh_rksl=round(jh_rksl+?,8) where id2=?"),
            { link.quantity, link.planLine });
        session.db().exec(
            QStringLiteral("update jxc_cgsp set jh_qxsl=? where jh_rksl>=jh_sl and id=?"),
            { 1, link.id });
    }
}

void reducePlanLines(const shell::Session &session, const QString &number)
{
    for (const PlanLink &link : planLinks(session, number)) {
        session.db().exec(
            QStringLiteral(
                "update jxc_cgsp set jh_rksl=round(jh_rksl-(?),8),jh_qxsl=? where id2=?"),
            { link.quantity, 0, link.planLine });
        session.db().exec(QStringLiteral("update jxc_cgsp set jh_rksl=? where jh_rksl<=? and id=?"),
            { 0, 0, link.id });
    }
}

} // namespace

int postPurchaseReceiptStock(const shell::Session &session, const PostingHeader &header)
{
    const QString &number = header.number;
    core::Transaction transaction(session.db());
    refuseSecondPosting(session, number);
    setReceivedQuantities(session, number);
    fixLineIdentities(session, number);
    insertReceiptLedgerRows(session, header);
    const QList<ReceiptRow> rows = receiptRows(session, number);
    for (const ReceiptRow &row : rows) {
        postMovement(session, movementOf(row));
        recordLastPurchase(session, row.batch.goods, row.price, header.party);
    }
    session.log(receiptPostedLogText(number, int(rows.size())));
    settleDay(session, header.warehouse, session.today());
    countEmployeePurchase(session, header.employee);
    if (linksPurchasePlans(session.params()))
        receivePlanLines(session, number);
    transaction.commit();
    return int(rows.size());
}

void reversePurchaseReceiptStock(const shell::Session &session, const PostingHeader &header)
{
    const QString &number = header.number;
    core::Transaction transaction(session.db());
    for (const ReceiptRow &row : receiptRows(session, number))
        withdrawMovement(session, movementOf(row));
    session.db().exec(QStringLiteral("delete from jxc_goodslist where gl_djh=?"), { number });
    if (linksPurchasePlans(session.params()))
        reducePlanLines(session, number);
    settleDay(session, header.warehouse, header.date);
    transaction.commit();
}

} // namespace medistock::stock
