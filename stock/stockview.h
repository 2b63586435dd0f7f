#pragma once

#include "core/outcome.h"
#include "stock/ledger.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// What the stock, ledger and cost commands show, and the two repairs (rerun and settle) as
// operations of their own.

struct GoodsTotals
{
    QString goods; // g_sn
    QString name; // g_name
    QString unit; // dw_name
    double stock = 0; // g_kc
    double average = 0; // g_pjjj
    double lastPrice = 0; // g_scjj
    int purchases = 0; // g_cgpl
    int sales = 0; // g_xspl
    QString supplier; // ghs_sn
};

struct WarehouseStockRow
{
    QString warehouse;
    double physical = 0; // kc_sl
    double book = 0; // kc_zsl
    double cost = 0; // kc_cbj
    double sold = 0; // kc_xssl
};

struct BatchStockRow
{
    QString warehouse;
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
    double quantity = 0; // t_sl
};

struct LedgerLine
{
    qint64 id = 0;
    QString date; // gl_kdrq
    QString kind; // gl_flag
    QString number; // gl_djh
    LedgerMovement movement;
    double carriedQuantity = 0; // gl_sqsl
    double carriedAmount = 0; // gl_sqje
    RunningState running; // gl_kc, gl_pjjj, gl_kczje
};

struct SettlementRow
{
    QString warehouse;
    double quantity = 0; // js_sl
    double value = 0; // js_zje
};

std::optional<GoodsTotals> goodsTotals(const shell::Session &session, const QString &goods);
// The goods' warehouse rows (one warehouse, or all when `warehouse` is empty), by warehouse.
QList<WarehouseStockRow> warehouseStockRows(
    const shell::Session &session, const QString &goods, const QString &warehouse);
// The goods' batch rows, by warehouse, then batch number, expiry and production date.
QList<BatchStockRow> batchStockRows(
    const shell::Session &session, const QString &goods, const QString &warehouse);
// The ledger of one goods in one warehouse in date-then-id order.
QList<LedgerLine> ledgerLines(
    const shell::Session &session, const QString &goods, const QString &warehouse);
QList<SettlementRow> settlementRows(const shell::Session &session, const QString &date);

// Reruns the ledger from a row in one transaction (right "库存核对"); refused when there is no
// such row.
Result<RerunSummary> repairLedger(const shell::Session &session, qint64 rowId, bool exclude);
// Ensures the date's settlement rows and settles one warehouse, or every warehouse when
// `warehouse` is empty, in one transaction (right "库存核对").
Outcome repairSettlement(
    const shell::Session &session, const QString &date, const QString &warehouse);

} // namespace medistock::stock
