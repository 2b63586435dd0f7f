#include "stock/stores.h"

#include "core/connection.h"
#include "shell/session.h"

#include <QSqlQuery>

#include <cmath>

namespace medistock::stock {

namespace {

// The discount line: it has a stock row in every warehouse and never any stock.
const QString discountGoods = QStringLiteral("00000000");

void changeBatch(const shell::Session &session, const BatchKey &batch, double quantity)
{
    core::Connection &db = session.db();
    const int changed = db.exec(
        QStringLiteral("update jxc_tkc set t_sl=round(t_sl+?,8) where g_sn=? and ck_sn=? and "
                       "t_yxq=? and t_ph=? and t_scrq=?"),
        { quantity, batch.goods, batch.warehouse, batch.expiry, batch.batch, batch.produced });
    if (changed > 0)
        return;
    db.exec(QStringLiteral("insert into jxc_tkc (g_sn,t_jhrq,t_ph,t_yxq,t_sl,ck_sn,t_scrq) "
                           "values (?,?,?,?,round(?,8),?,?)"),
        { batch.goods, QString(), batch.batch, batch.expiry, quantity, batch.warehouse,
            batch.produced });
}

struct StockTotals
{
    double quantity = 0;
    double value = 0;
};

void writeSettlement(
    const shell::Session &session, const QString &warehouse, const QString &date, StockTotals t)
{
    session.db().exec(
        QStringLiteral("update jxc_kcjs set js_sl=?,js_zje=? where js_rq=? and ck_sn=?"),
        { t.quantity, t.value, date, warehouse });
}

// Warehouses that lack a row: the discount line's stock row, or the settlement row of a date.
QStringList warehousesWithout(
    const shell::Session &session, const QString &sql, const QVariantList &params)
{
    QStringList warehouses;
    session.db().forEach(
        sql, params, [&](const QSqlQuery &q) { warehouses.append(q.value(0).toString()); });
    return warehouses;
}

void settleAllWarehouses(const shell::Session &session, const QString &date)
{
    QList<std::pair<QString, StockTotals>> totals;
    session.db().forEach(QStringLiteral("select round(sum(kc_sl),8),round(sum(kc_sl*kc_cbj),8),"
                                        "ck_sn from jxc_kcsp group by ck_sn"),
        {}, [&](const QSqlQuery &q) {
            totals.append(
                { q.value(2).toString(), { q.value(0).toDouble(), q.value(1).toDouble() } });
        });
    for (const auto &[warehouse, sums] : totals)
        writeSettlement(session, warehouse, date, sums);
}

} // namespace

double warehouseQuantity(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    return session.db()
        .firstValue(QStringLiteral("select kc_sl from jxc_kcsp where g_sn=? and ck_sn=?"),
            { goods, warehouse })
        .toDouble();
}

void applyWarehouseStock(const shell::Session &session, const WarehouseStockChange &change)
{
    core::Connection &db = session.db();
    const int changed = db.exec(
        QStringLiteral("update jxc_kcsp set kc_sl=round(kc_sl+?,8),kc_zsl=round(kc_zsl+?,8),"
                       "kc_xssl=round(kc_xssl+?,8) where ck_sn=? and g_sn=?"),
        { change.physical, change.book, change.sold, change.warehouse, change.goods });
    if (changed > 0)
        return;
    db.exec(QStringLiteral("insert into jxc_kcsp (kc_sl,kc_cbj,kc_xssl,g_sn,ck_sn,kc_zsl) "
                           "values (round(?,8),?,round(?,8),?,?,round(?,8))"),
        { change.physical, change.costOfNewRow, change.sold, change.goods, change.warehouse,
            change.book });
}

std::optional<double> batchQuantity(const shell::Session &session, const BatchKey &batch)
{
    const QVariant value = session.db().firstValue(
        QStringLiteral("select t_sl from jxc_tkc where g_sn=? and ck_sn=? and t_ph=? and t_yxq=? "
                       "and t_scrq=?"),
        { batch.goods, batch.warehouse, batch.batch, batch.expiry, batch.produced });
    if (!value.isValid())
        return std::nullopt;
    return value.toDouble();
}

void addBatchStock(const shell::Session &session, const BatchKey &batch, double quantity)
{
    if (quantity == 0)
        return;
    changeBatch(session, batch, quantity);
}

void subtractBatchStock(const shell::Session &session, const BatchKey &batch, double quantity)
{
    if (quantity == 0)
        return;
    changeBatch(session, batch, -quantity);
}

void applyGoodsTotals(
    const shell::Session &session, const QString &goods, double stock, int purchases, int sales)
{
    session.db().exec(QStringLiteral("update jxc_goods set g_kc=round(g_kc+?,8),g_cgpl=g_cgpl+?,"
                                     "g_xspl=g_xspl+? where g_sn=?"),
        { stock, purchases, sales, goods });
}

void countEmployeePurchase(const shell::Session &session, const QString &employee)
{
    session.db().exec(
        QStringLiteral("update jxc_user set u_cgpl=u_cgpl+1 where u_sn=?"), { employee });
}

void recordLastPurchase(
    const shell::Session &session, const QString &goods, double price, const QString &supplier)
{
    session.db().exec(QStringLiteral("update jxc_goods set g_scjj=?,ghs_sn=? where g_sn=?"),
        { price, supplier, goods });
}

double goodsAverage(const shell::Session &session, const QString &goods)
{
    const QSqlRecord sums = session.db().firstRow(
        QStringLiteral("select sum(kc_zsl),sum(kc_cbj*kc_zsl) from jxc_kcsp where g_sn=?"),
        { goods });
    const double book = sums.isEmpty() ? 0 : sums.value(0).toDouble();
    // The sum of stored decimals may miss zero by a hair; zero is judged at quantity decimals.
    if (session.params().roundQuantity(book) == 0)
        return -1;
    return std::abs(session.params().roundPrice(sums.value(1).toDouble() / book));
}

double refreshGoodsAverage(const shell::Session &session, const QString &goods, double linePrice)
{
    const double average = goodsAverage(session, goods);
    double written = average == -1 ? linePrice : average;
    // A negative goods average is never kept: the line's price stands in for it.
    if (written < 0)
        written = linePrice;
    session.db().exec(
        QStringLiteral("update jxc_goods set g_pjjj=? where g_sn=?"), { written, goods });
    return written;
}

void ensureSettlementRows(const shell::Session &session, const QString &date)
{
    core::Connection &db = session.db();
    for (const QString &warehouse : warehousesWithout(session,
             QStringLiteral("select ck_sn from jxc_ckxx where ck_sn not in "
                            "(select ck_sn from jxc_kcsp where g_sn=?)"),
             { discountGoods }))
        db.exec(QStringLiteral("insert into jxc_kcsp (kc_sl,kc_cbj,kc_xssl,ck_sn,g_sn,kc_zsl) "
                               "values (?,?,?,?,?,?)"),
            { 0, 0, 0, warehouse, discountGoods, 0 });
    const QStringList unsettled = warehousesWithout(session,
        QStringLiteral("select ck_sn from jxc_ckxx where ck_sn not in "
                       "(select ck_sn from jxc_kcjs where js_rq=?) order by ck_sn"),
        { date });
    for (const QString &warehouse : unsettled)
        db.exec(QStringLiteral("insert into jxc_kcjs (js_rq,js_sl,js_zje,ck_sn,js_xssl,js_xsje,"
                               "js_cgsl,js_cgje,js_xslr,js_xscb) values (?,?,?,?,?,?,?,?,?,?)"),
            { date, 0, 0, warehouse, 0, 0, 0, 0, 0, 0 });
    // A new day starts from every warehouse's totals; later postings of the day settle only the
    // warehouse they touch.
    if (!unsettled.isEmpty())
        settleAllWarehouses(session, date);
}

void settleWarehouse(const shell::Session &session, const QString &warehouse, const QString &date)
{
    const QSqlRecord sums = session.db().firstRow(
        QStringLiteral("select round(sum(kc_sl),8),round(sum(kc_sl*kc_cbj),8) from jxc_kcsp "
                       "where ck_sn=?"),
        { warehouse });
    StockTotals totals;
    if (!sums.isEmpty())
        totals = { sums.value(0).toDouble(), sums.value(1).toDouble() };
    writeSettlement(session, warehouse, date, totals);
}

void adjustSettlement(const shell::Session &session, const QString &warehouse, const QString &date,
    double quantity, double value)
{
    session.db().exec(
        QStringLiteral(
            "update jxc_kcjs set js_sl=round(js_sl+?,8),js_zje=round(js_zje+?,8) where js_rq=? "
            "and ck_sn=?"),
        { quantity, value, date, warehouse });
}

} // namespace medistock::stock
