#include "purchasing/returnstock.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "documents/descriptor.h"
#include "documents/texts.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "stock/ledger.h"
#include "stock/stores.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::purchasing {

namespace {

struct ReturnHeader
{
    QString number;
    QString date; // th_thrq
    QString warehouse;
    QString warehouseName;
    QString supplier;
    QString supplierName;
    QString employee;
    QString employeeName;
    QString note;
};

// A posted row of the return, as the per-row steps use it.
struct ReturnRow
{
    qint64 id = 0;
    double quantity = 0; // gl_sl, negative
    double price = 0; // gl_dj
    stock::BatchKey batch;
};

ReturnHeader checkedHeader(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const QSqlRecord row = db.firstRow(
        QStringLiteral("select a.th_thrq,a.ck_sn,a.ghs_sn,a.u_sn,a.th_note,"
                       "(select ck_name from jxc_ckxx where ck_sn=a.ck_sn order by id limit 1),"
                       "(select ghs_name from jxc_ghsxx where ghs_sn=a.ghs_sn order by id limit 1),"
                       "(select u_name from jxc_user where u_sn=a.u_sn order by id limit 1) "
                       "from jxc_thd a where a.gl_djh=? and a.th_status=? order by a.id limit 1"),
        { number, 1 });
    if (row.isEmpty())
        throw core::DbError(documents::texts::notChecked(number));
    return { number, row.value(0).toString(), row.value(1).toString(), row.value(5).toString(),
        row.value(2).toString(), row.value(6).toString(), row.value(3).toString(),
        row.value(7).toString(), row.value(4).toString() };
}

// The price per base unit: a line in a larger unit divides its price by the unit's factor.
double basePrice(double price, double quantity, double baseQuantity)
{
    if (quantity == baseQuantity || quantity == 0 || baseQuantity == 0)
        return price;
    return price / (baseQuantity / quantity);
}

stock::LedgerRow ledgerRowOf(
    const shell::Session &session, const ReturnHeader &header, const QSqlQuery &q)
{
    stock::LedgerRow row;
    row.kind = QStringLiteral("ct");
    row.number = header.number;
    row.date = header.date;
    row.goods = q.value(0).toString();
    const double unitQuantity = q.value(2).toDouble();
    const double baseQuantity = q.value(3).toDouble();
    const double total = q.value(4).toDouble();
    row.price = basePrice(q.value(1).toDouble(), unitQuantity, baseQuantity);
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
    row.employeeName = header.employeeName;
    row.warehouse = header.warehouse;
    row.warehouseName = header.warehouseName;
    row.party = header.supplier;
    row.partyName = header.supplierName;
    row.checker = session.user().name;
    row.checkDate = session.today();
    row.note = header.note;
    return row;
}

void insertReturnLedgerRows(const shell::Session &session, const ReturnHeader &header)
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

// A return lowers both the physical and the book quantity: gl_sl is negative.
void postRow(const shell::Session &session, const ReturnRow &row)
{
    const QString &goods = row.batch.goods;
    stock::applyWarehouseStock(
        session, { goods, row.batch.warehouse, row.quantity, row.quantity, 0, row.price });
    stock::rerunLedger(session, row.id, false);
    stock::applyGoodsTotals(session, goods, row.quantity, -1, 0);
    stock::refreshGoodsAverage(session, goods, row.price);
    stock::addBatchStock(session, row.batch, row.quantity);
}

void reverseRow(const shell::Session &session, const ReturnRow &row)
{
    const QString &goods = row.batch.goods;
    stock::applyWarehouseStock(
        session, { goods, row.batch.warehouse, -row.quantity, -row.quantity, 0, row.price });
    stock::withdrawLedgerRow(session, row.id);
    stock::applyGoodsTotals(session, goods, -row.quantity, 1, 0);
    stock::refreshGoodsAverage(session, goods, row.price);
    stock::subtractBatchStock(session, row.batch, row.quantity);
}

void countEmployeePurchase(const shell::Session &session, const QString &employee, int delta)
{
    session.db().exec(
        QStringLiteral("update jxc_user set u_cgpl=u_cgpl+? where u_sn=?"), { delta, employee });
}

void settle(const shell::Session &session, const ReturnHeader &header)
{
    stock::ensureSettlementRows(session, header.date);
    stock::settleWarehouse(session, header.warehouse, header.date);
}

} // namespace

int postPurchaseReturnStock(const shell::Session &session, const QString &number)
{
    const ReturnHeader header = checkedHeader(session, number);
    insertReturnLedgerRows(session, header);
    const QList<ReturnRow> rows = returnRows(session, number);
    for (const ReturnRow &row : rows)
        postRow(session, row);
    session.log(texts::returnCheckedLog(number, int(rows.size())));
    settle(session, header);
    countEmployeePurchase(session, header.employee, 1);
    return int(rows.size());
}

void reversePurchaseReturnStock(const shell::Session &session, const QString &number)
{
    const ReturnHeader header = checkedHeader(session, number);
    for (const ReturnRow &row : returnRows(session, number))
        reverseRow(session, row);
    session.db().exec(QStringLiteral("delete from jxc_goodslist where gl_djh=?"), { number });
    // The check counted the return for its employee, as a receipt's check does; taking it back
    // keeps the counter true.
    countEmployeePurchase(session, header.employee, -1);
    settle(session, header);
}

} // namespace medistock::purchasing
