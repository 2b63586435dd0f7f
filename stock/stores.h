#pragma once

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stores a posting changes besides the ledger: warehouse stock (jxc_kcsp), batch stock
// (jxc_tkc), the goods row's totals (jxc_goods) and the daily settlement (jxc_kcjs). Every step
// runs inside the caller's transaction and throws DbError; quantities are in base units. Every
// figure built by adding and subtracting is written rounded to the eight places its column
// declares (round(x, 8)), so that receiving 0.1 and 0.2 and issuing 0.3 leaves exactly 0, not
// the binary remainder of the sum, and a check followed by its uncheck restores it exactly.

// A batch of one goods in one warehouse. The three batch texts are compared exactly: an empty
// batch number, expiry or production date is a value like any other.
struct BatchKey
{
    QString goods; // g_sn
    QString warehouse; // ck_sn
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
};

// A change of one warehouse row. A missing row is created with the deltas as its quantities and
// `costOfNewRow` as its cost average.
struct WarehouseStockChange
{
    QString goods;
    QString warehouse;
    double physical = 0; // kc_sl: what is in the warehouse
    double book = 0; // kc_zsl: including goods checked in but not yet received
    double sold = 0; // kc_xssl: cumulative quantity sold
    double costOfNewRow = 0; // kc_cbj of a row created here
};

// The warehouse's physical quantity kc_sl; 0 when it has no row for the goods.
double warehouseQuantity(
    const shell::Session &session, const QString &goods, const QString &warehouse);
// Adds the deltas to the warehouse row, or creates it.
void applyWarehouseStock(const shell::Session &session, const WarehouseStockChange &change);

// The batch's quantity t_sl; nothing when the batch has no row.
std::optional<double> batchQuantity(const shell::Session &session, const BatchKey &batch);
// Adds to the batch, creating it when missing; a quantity of exactly 0 does nothing.
void addBatchStock(const shell::Session &session, const BatchKey &batch, double quantity);
// Takes from the batch; a missing batch is created with the negative quantity, on purpose.
void subtractBatchStock(const shell::Session &session, const BatchKey &batch, double quantity);

// Adds to the goods row's total stock g_kc and its purchase and sale counters g_cgpl, g_xspl.
void applyGoodsTotals(
    const shell::Session &session, const QString &goods, double stock, int purchases, int sales);
// Counts a purchase document for its employee (u_cgpl). Nothing takes the count back: an uncheck
// lowers only the goods' g_cgpl.
void countEmployeePurchase(const shell::Session &session, const QString &employee);
// Writes the last purchase price g_scjj (per base unit) and the last supplier ghs_sn.
void recordLastPurchase(
    const shell::Session &session, const QString &goods, double price, const QString &supplier);
// The goods average over all warehouses: the book-quantity-weighted mean of their cost averages,
// rounded to price decimals and taken absolute; -1 when the book quantities sum to zero.
double goodsAverage(const shell::Session &session, const QString &goods);
// Writes the goods average g_pjjj (linePrice when it is -1), then replaces a negative goods
// average by linePrice. Returns what g_pjjj holds afterwards.
double refreshGoodsAverage(const shell::Session &session, const QString &goods, double linePrice);

// Gives every warehouse its discount-line stock row and its settlement row of the date; when a
// settlement row was created, all warehouses' totals are written into that date's rows.
void ensureSettlementRows(const shell::Session &session, const QString &date);
// Writes the warehouse's physical quantity and its value at warehouse cost into the settlement
// row of the date.
void settleWarehouse(const shell::Session &session, const QString &warehouse, const QString &date);
// Adds a row's quantity and value to the settlement row of the date (transfers, stock-taking,
// losses and overflows adjust it instead of settling again).
void adjustSettlement(const shell::Session &session, const QString &warehouse, const QString &date,
    double quantity, double value);

} // namespace medistock::stock
