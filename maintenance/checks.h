#pragma once

#include "accounts/runningbalance.h"
#include "maintenance/verify.h"
#include "stock/stores.h"

#include <QList>
#include <QString>
#include <QVariantList>

namespace medistock::core {
class Connection;
}

namespace medistock::maintenance::detail {

// Stock that disagrees with the ledger's sum: a warehouse row (batch empty), a batch or a goods
// row (warehouse empty).
struct StockDrift
{
    Finding::Area area = Finding::Area::Warehouse;
    stock::BatchKey key;
    double stored = 0;
    double ledger = 0;
};
QList<StockDrift> stockDrifts(core::Connection &db);
QString describe(core::Connection &db, const StockDrift &drift);

// A ledger row whose running columns a rerun would change.
struct LedgerDrift
{
    qint64 id = 0;
    QString goods;
    QString warehouse;
    QString number; // gl_djh
    QString date; // gl_kdrq
    QList<std::pair<QString, std::pair<double, double>>> figures; // label, stored and rerun
};
QList<LedgerDrift> ledgerDrifts(const shell::Session &session, int &rowsChecked);
QString describe(core::Connection &db, const LedgerDrift &drift);

// A running balance that disagrees with the chain's recomputation.
struct BalanceDrift
{
    const accounts::RunningBook *book = nullptr;
    QVariantList chain;
    qint64 id = 0;
    QString date;
    double stored = 0;
    double computed = 0;
};
QList<BalanceDrift> balanceDrifts(core::Connection &db, int &rowsChecked);
QString describe(core::Connection &db, const BalanceDrift &drift);

// Two stored figures that the program would have written alike.
bool same(double stored, double computed);
QString goodsLabel(core::Connection &db, const QString &goods);
QString warehouseLabel(core::Connection &db, const QString &warehouse);

} // namespace medistock::maintenance::detail
