#pragma once

#include "stock/stores.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stores moved by one goods-ledger row of an outgoing kind ("xs", "xt", "dh"): the row is
// already in the ledger; these steps move the warehouse, goods and batch stock by it and rerun
// or withdraw it. They run inside the caller's transaction and throw DbError.
struct OutgoingRow
{
    qint64 id = 0; // the ledger row
    BatchKey batch; // goods, warehouse and batch
    double quantity = 0; // base units leaving the warehouse; negative when they come back
    double cost = 0; // kc_cbj of a warehouse row created here, per base unit
};

// How a kind counts what leaves: sales raise the warehouse's quantity sold kc_xssl and the
// goods' sale count g_xspl; a batch is moved only when the document names batches.
struct OutgoingCounting
{
    bool countsAsSold = true; // kc_xssl follows the quantity
    int salesCount = 1; // added to g_xspl by a posting, taken off by its reversal
    bool movesBatch = true;
};

// Takes the row's quantity out of the warehouse (physical and book), reruns the ledger from the
// row, lowers the goods' total stock and takes the quantity from the batch.
void postOutgoingRow(
    const shell::Session &session, const OutgoingRow &row, const OutgoingCounting &counting);
// The exact reverse: the quantity back into the warehouse, goods and batch, and the row withdrawn
// from the ledger (the later rows rerun without it, then the row deleted).
void reverseOutgoingRow(
    const shell::Session &session, const OutgoingRow &row, const OutgoingCounting &counting);

} // namespace medistock::stock
