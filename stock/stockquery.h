#pragma once

#include "stock/ledger.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stock a clerk looks up: per warehouse, per batch with its expiry, and the movements of one
// goods in the goods ledger. Reads only; the discount line is never listed.

struct StockFilter
{
    QString warehouse; // ck_sn; empty: every warehouse
    QString classCode; // gc_sn of a goods class, its sub-classes included; empty: every class
    QString text; // code, name, mnemonic or barcode contains it; empty: any goods
    bool inStockOnly = false; // only rows whose quantity is above 0
    // Batch rows only: those whose expiry (its last day, documents/expiry.h) falls on or before
    // today + N days, expired ones included; a negative N sets no limit. Batches without an
    // expiry never qualify.
    int expiringWithinDays = -1;
};

// What every stock row tells of its goods.
struct StockGoods
{
    QString code; // g_sn
    QString name;
    QString packing; // gg_name
    QString unit; // the base unit
    QString maker; // g_sccs
    QString warehouse; // ck_sn
    QString warehouseName;
};

// One goods in one warehouse (jxc_kcsp).
struct WarehouseStock
{
    StockGoods goods;
    double quantity = 0; // kc_sl, in the warehouse
    double book = 0; // kc_zsl, including what is checked in but not yet received
    double cost = 0; // kc_cbj, the warehouse's cost average per base unit
    double value = 0; // quantity x cost, rounded to amount decimals
};

// One batch of a goods in a warehouse (jxc_tkc), valued at the warehouse's cost average.
struct BatchStock
{
    StockGoods goods;
    QString batch; // t_ph
    QString produced; // t_scrq
    QString expiry; // t_yxq
    double quantity = 0; // t_sl
    double cost = 0;
    double value = 0;
};

// By goods code, then warehouse.
QList<WarehouseStock> stockByWarehouse(const shell::Session &session, const StockFilter &filter);
// By goods code, warehouse, expiry, batch number and production date.
QList<BatchStock> stockByBatch(const shell::Session &session, const StockFilter &filter);

// A goods whose stock is below its minimum g_zdkc ("最低库存"); goods without a minimum (0) never
// are. The goods row keeps no maximum, so there is no alarm for too much stock.
struct StockAlarm
{
    StockGoods goods; // warehouse fields set only when the alarm is for one warehouse
    double quantity = 0; // kc_sl of the warehouse, or the goods' total g_kc
    double minimum = 0; // g_zdkc
    double shortage = 0; // minimum - quantity
};

// The alarms of one warehouse (its kc_sl, 0 where it never held the goods), or of all
// warehouses together (g_kc) when `filter.warehouse` is empty, narrowed by the filter's class and
// text; the disabled goods and the discount line are left out. By goods code.
QList<StockAlarm> stockAlarms(const shell::Session &session, const StockFilter &filter);

// One movement of the goods ledger as the ledger view shows it.
struct LedgerEntry
{
    qint64 id = 0;
    QString warehouse; // ck_sn
    QString warehouseName;
    QString date; // gl_kdrq
    QString kind; // gl_flag
    QString number; // gl_djh
    QString partyName; // ghs_name: supplier, or customer of a sales kind
    QString batch;
    QString expiry;
    double in = 0; // base units that came in, 0 for an outgoing row
    double out = 0; // base units that went out, 0 for an incoming row
    double price = 0; // gl_dj, per base unit
    double amount = 0; // gl_je, as stored
    RunningState running; // gl_kc, gl_pjjj, gl_kczje after the row
};

// The ledger rows of a goods in a warehouse (every warehouse when `warehouse` is empty) dated
// from `from` to `to` ("yyyy-MM-dd", each empty for no limit), of one kind gl_flag (any when
// `kind` is empty), by warehouse, date and id. The running figures are those of the whole
// ledger: a row keeps the stock after it, whichever rows are left out around it.
QList<LedgerEntry> goodsLedger(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &from, const QString &to, const QString &kind = {});

} // namespace medistock::stock
