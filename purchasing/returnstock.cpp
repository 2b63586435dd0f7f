#include "purchasing/returnstock.h"

#include "core/connection.h"
#include "documents/descriptor.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "stock/movement.h"

#include <QSqlQuery>

namespace medistock::purchasing {

namespace {

// A posted row of the return, as the per-row steps use it.
struct ReturnRow
{
    qint64 id = 0;
    double quantity = 0; // gl_sl, negative
    double price = 0; // gl_dj
    stock::BatchKey batch;
};

stock::LedgerRow ledgerRowOf(
    const shell::Session &session, const stock::PostingHeader &header, const QSqlQuery &q)
{
    stock::LedgerRow row = stock::headerRow(session, header, QStringLiteral("ct"));
    row.sourceNumber.reset();
    row.goods = q.value(0).toString();
    const double unitQuantity = q.value(2).toDouble();
    const double baseQuantity = q.value(3).toDouble();
    const double total = q.value(4).toDouble();
    row.price = stock::basePrice(q.value(1).toDouble(), unitQuantity, baseQuantity);
    row.quantity = -baseQuantity;
    row.total = -total;
    row.unitQuantity = -unitQuantity;
    row.discountRate = q.value(5).toDouble();
    row.operatorName = q.value(6).toString();
    row.batch = q.value(7).toString();
    row.expiry = q.value(8).toString();
    row.produced = q.value(9).toString();
    row.lineNote = q.value(10).toString();
    row.taxRate = q.value(11).toDouble();
    row.tax = -q.value(12).toDouble();
    row.amount = -q.value(13).toDouble();
    row.taxedPrice = baseQuantity > 0 ? total / baseQuantity : 0;
    row.goodsName = q.value(14).toString();
    row.mnemonic = q.value(15).toString();
    row.unit = q.value(16).toString();
    row.packing = q.value(17).toString();
    row.approvalNumber = q.value(18).toString();
    row.average = q.value(19).toDouble();
    return row;
}

void insertReturnLedgerRows(const shell::Session &session, const stock::PostingHeader &header)
{
    QList<stock::LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.g_sn,b.th_dj,b.th_sl,b.th_zsl,b.th_zje,b.th_dzl,b.a_name,b.t_ph,"
                       "b.t_yxq,b.t_scrq,b.th_bz,b.th_tax,b.th_taxje,b.th_je,c.g_name,c.g_jm,"
                       "c.dw_name,c.gg_name,c.color_name,c.g_pjjj from jxc_thsp b left join "
                       "jxc_goods c on c.g_sn=b.g_sn where b.gl_djh=? order by b.id"),
        { header.number },
        [&](const QSqlQuery &q) { rows.append(ledgerRowOf(session, header, q)); });
    for (const stock::LedgerRow &row : rows)
        stock::insertLedgerRow(session, row);
}

QList<ReturnRow> returnRows(const shell::Session &session, const QString &number)
{
    QList<ReturnRow> rows;
    session.db().forEach(
        QStringLiteral("select id,gl_sl,gl_dj,g_sn,ck_sn,t_ph,t_yxq,t_scrq from jxc_goodslist "
                       "where g_sn<>? and gl_djh=? order by id"),
        { documents::discountGoods(), number }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toLongLong(), q.value(1).toDouble(), q.value(2).toDouble(),
                { q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
                    q.value(6).toString(), q.value(7).toString() } });
        });
    return rows;
}

// A return lowers both the physical and the book quantity (gl_sl is negative), and the goods'
// purchase count.
stock::StoreMovement movementOf(const ReturnRow &row)
{
    stock::StoreMovement movement { row.id, row.batch, row.quantity, row.quantity };
    movement.purchases = -1;
    movement.price = row.price;
    movement.goodsAverage = true;
    return movement;
}

} // namespace

int postPurchaseReturnStock(const shell::Session &session, const stock::PostingHeader &header)
{
    insertReturnLedgerRows(session, header);
    const QList<ReturnRow> rows = returnRows(session, header.number);
    for (const ReturnRow &row : rows)
        stock::postMovement(session, movementOf(row));
    session.log(texts::returnCheckedLog(header.number, int(rows.size())));
    stock::settleDay(session, header.warehouse, header.date);
    stock::countEmployeePurchase(session, header.employee);
    return int(rows.size());
}

void reversePurchaseReturnStock(const shell::Session &session, const stock::PostingHeader &header)
{
    for (const ReturnRow &row : returnRows(session, header.number))
        stock::withdrawMovement(session, movementOf(row));
    session.db().exec(
        QStringLiteral("delete from jxc_goodslist where gl_djh=?"), { header.number });
    stock::settleDay(session, header.warehouse, header.date);
}

} // namespace medistock::purchasing
