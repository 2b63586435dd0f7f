#include "stock/outgoing.h"

#include "stock/ledger.h"

namespace medistock::stock {

namespace {

// `leaving` is what leaves the warehouse: the row's own quantity for a posting, its negative for
// a reversal; `salesCount` is added to the goods' sale count.
void moveStores(const shell::Session &session, const OutgoingRow &row,
    const OutgoingCounting &counting, double leaving, int salesCount)
{
    const double sold = counting.countsAsSold ? leaving : 0;
    applyWarehouseStock(
        session, { row.batch.goods, row.batch.warehouse, -leaving, -leaving, sold, row.cost });
    applyGoodsTotals(session, row.batch.goods, -leaving, 0, salesCount);
    if (!counting.movesBatch)
        return;
    if (leaving > 0)
        subtractBatchStock(session, row.batch, leaving);
    else
        addBatchStock(session, row.batch, -leaving);
}

} // namespace

void postOutgoingRow(
    const shell::Session &session, const OutgoingRow &row, const OutgoingCounting &counting)
{
    moveStores(session, row, counting, row.quantity, counting.salesCount);
    rerunLedger(session, row.id, false);
}

void reverseOutgoingRow(
    const shell::Session &session, const OutgoingRow &row, const OutgoingCounting &counting)
{
    moveStores(session, row, counting, -row.quantity, -counting.salesCount);
    withdrawLedgerRow(session, row.id);
}

} // namespace medistock::stock
