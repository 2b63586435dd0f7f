#include "stock/movement.h"

#include "shell/session.h"

namespace medistock::stock {

namespace {

// The stores moved by `sign` x the movement; the ledger is rerun or withdrawn by the caller.
void moveStores(const shell::Session &session, const StoreMovement &m, double sign)
{
    const QString &goods = m.batch.goods;
    applyWarehouseStock(session,
        { goods, m.batch.warehouse, sign * m.physical, sign * m.book, sign * m.sold, m.price });
}

void moveGoodsAndBatch(const shell::Session &session, const StoreMovement &m, double sign)
{
    const QString &goods = m.batch.goods;
    applyGoodsTotals(session, goods, m.goodsStock ? sign * m.physical : 0, int(sign) * m.purchases,
        int(sign) * m.sales);
    if (m.goodsAverage)
        refreshGoodsAverage(session, goods, m.price);
    if (m.batchStock)
        addBatchStock(session, m.batch, sign * m.physical);
}

} // namespace

LedgerRow headerRow(const shell::Session &session, const PostingHeader &header, const QString &kind)
{
    LedgerRow row;
    row.kind = kind;
    row.number = header.number;
    row.date = header.date;
    row.warehouse = header.warehouse;
    row.warehouseName = header.warehouseName;
    row.party = header.party;
    row.partyName = header.partyName;
    row.employeeName = header.employeeName;
    row.note = header.note;
    row.sourceNumber = header.sourceNumber;
    row.checker = session.user().name;
    row.checkDate = session.today();
    return row;
}

void postMovement(const shell::Session &session, const StoreMovement &movement)
{
    moveStores(session, movement, 1);
    rerunLedger(session, movement.ledgerRow, false);
    moveGoodsAndBatch(session, movement, 1);
}

void withdrawMovement(const shell::Session &session, const StoreMovement &movement)
{
    moveStores(session, movement, -1);
    withdrawLedgerRow(session, movement.ledgerRow);
    moveGoodsAndBatch(session, movement, -1);
}

void settleDay(const shell::Session &session, const QString &warehouse, const QString &date)
{
    ensureSettlementRows(session, date);
    settleWarehouse(session, warehouse, date);
}

} // namespace medistock::stock
