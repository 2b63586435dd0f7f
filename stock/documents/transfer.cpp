#include "stock/documents/transfer.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "shell/session.h"
#include "stock/checks.h"
#include "stock/documents/kinds.h"
#include "stock/documents/posting.h"
#include "stock/documents/texts.h"

#include <QSqlQuery>

namespace medistock::stock {

namespace {

const QString transferCheckKind = QStringLiteral("DB");

// The receiving side of a line; the issuing side is its mirror in the other warehouse.
LedgerRow receivingRow(const shell::Session &session, const StockHeader &header, const QSqlQuery &q)
{
    LedgerRow row = documentRow(session, header, QStringLiteral("db"));
    row.goods = q.value(0).toString();
    const double price = q.value(1).toDouble();
    const double quantity = q.value(2).toDouble();
    const double baseQuantity = q.value(3).toDouble();
    row.operatorName = q.value(4).toString();
    row.batch = q.value(5).toString();
    row.expiry = q.value(6).toString();
    row.produced = q.value(7).toString();
    copyGoods(row, q, 8);
    row.warehouse = header.secondWarehouse;
    row.warehouseName = header.secondWarehouseName;
    row.partyName = texts::transferIn();
    row.price = basePrice(price, quantity, baseQuantity);
    row.quantity = baseQuantity;
    row.total = row.amount = session.params().roundAmount(price * quantity);
    row.unitQuantity = quantity;
    row.taxedPrice = price;
    return row;
}

LedgerRow issuingRow(const StockHeader &header, LedgerRow row)
{
    row.warehouse = header.warehouse;
    row.warehouseName = header.warehouseName;
    row.partyName = texts::transferOut();
    row.quantity = -row.quantity;
    row.total = row.amount = -row.amount;
    return row;
}

// Every receiving row first, then every issuing row, each in line order. Returns the line count.
int insertTransferRows(const shell::Session &session, const StockHeader &header)
{
    QList<LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.g_sn,b.db_dj,b.db_sl,b.db_zsl,b.a_name,b.t_ph,b.t_yxq,b.t_scrq,")
            + goodsColumns()
            + QStringLiteral(" from jxc_dbsp b left join jxc_goods c on c.g_sn=b.g_sn where "
                             "b.gl_djh=? order by b.id"),
        { header.number },
        [&](const QSqlQuery &q) { rows.append(receivingRow(session, header, q)); });
    for (const LedgerRow &row : rows)
        insertLedgerRow(session, row);
    for (const LedgerRow &row : rows)
        insertLedgerRow(session, issuingRow(header, row));
    return int(rows.size());
}

Outcome postTransfer(shell::Session &session, const QString &number)
{
    const documents::DocumentKind &kind = transferEntry();
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, kind, number, 0);
    if (!header)
        return header.outcome();
    documents::markChecked(session, kind, header->id);
    documents::removeUncheckedCopies(session, kind, number);
    const int lines = insertTransferRows(session, header.value());
    ensureSettlementRows(session, session.today());
    for (const PostedRow &row : postedRows(session, number))
        postRow(session, row, false, session.today());
    session.log(texts::transferCheckedLog(number, lines));
    transaction.commit();
    return Outcome::done();
}

Outcome reverseTransfer(shell::Session &session, const QString &number)
{
    const documents::DocumentKind &kind = transferEntry();
    core::Transaction transaction(session.db());
    const Result<StockHeader> header = headerInTransaction(session, kind, number, 1);
    if (!header)
        return header.outcome();
    documents::removeUncheckedCopies(session, kind, number);
    for (const PostedRow &row : postedRows(session, number))
        reverseRow(session, row, false);
    documents::markUnchecked(session, kind, number);
    session.log(texts::transferUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Outcome checkTransfer(shell::Session &session, const QString &number)
{
    StockHeader header;
    Outcome outcome
        = prepareCheck(session, transferEntry(), number, transferRights().check, header);
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return confirmBatchCheck(session, number, header.warehouse, transferCheckKind);
        });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return postTransfer(session, number); });
}

Outcome uncheckTransfer(shell::Session &session, const QString &number)
{
    StockHeader header;
    Outcome outcome
        = prepareUncheck(session, transferEntry(), number, transferRights().uncheck, header);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    // Unchecking takes the goods back out of the receiving warehouse.
    if (outcome)
        outcome = core::guarded(session.ui(), [&] {
            return confirmBatchCheck(session, number, header.secondWarehouse, transferCheckKind);
        });
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return reverseTransfer(session, number); });
}

} // namespace medistock::stock
