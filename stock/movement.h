#pragma once

#include "stock/ledger.h"
#include "stock/stores.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// What every posting of a goods document shares: the header its ledger rows copy, the way one
// posted row moves the stores, and the day's settlement. Steps run inside the caller's
// transaction and throw DbError.

// The header of a checked document as its ledger rows copy it. A document's check reads its
// header once, inside its transaction, and hands it down; the stock postings read no header.
struct PostingHeader
{
    QString number {}; // gl_djh
    QString date {}; // gl_kdrq, the date that orders the ledger
    QString warehouse {}; // ck_sn
    QString warehouseName {};
    QString party {}; // ghs_sn: supplier, or customer for sales kinds
    QString partyName {};
    QString employee {}; // u_sn
    QString employeeName {}; // u_name
    QString note {}; // gl_note
    std::optional<QString> sourceNumber {}; // gl_djh2; NULL when the kind writes none
};

// A ledger row of `kind` with what the header gives every row of the document, and the operator
// as its checker today.
LedgerRow headerRow(
    const shell::Session &session, const PostingHeader &header, const QString &kind);

// How one posted ledger row moves the stores. Every figure is a change, in base units.
struct StoreMovement
{
    qint64 ledgerRow = 0;
    BatchKey batch; // goods, warehouse and batch
    double physical = 0; // kc_sl, the batch, and g_kc unless `goodsStock` is off
    double book = 0; // kc_zsl
    double sold = 0; // kc_xssl
    int purchases = 0; // g_cgpl
    int sales = 0; // g_xspl
    double price = 0; // gl_dj: the cost of a warehouse row created here, and the goods
                      // average when the book quantities sum to zero
    bool goodsStock = true; // a transfer leaves the goods' total alone
    bool batchStock = true; // a gift redemption names no batch and leaves the batches alone
    bool goodsAverage = false; // purchase rows refresh g_pjjj
};

// Posts the row: warehouse stock, the ledger rerun from the row, the goods' totals (and average),
// the batch.
void postMovement(const shell::Session &session, const StoreMovement &movement);
// Takes the row back: every change reversed in the same order, the ledger row withdrawn (the
// rerun without it, then deleted).
void withdrawMovement(const shell::Session &session, const StoreMovement &movement);

// The day's settlement of a warehouse: the date's settlement rows ensured, the warehouse settled.
void settleDay(const shell::Session &session, const QString &warehouse, const QString &date);

} // namespace medistock::stock
