#pragma once

#include "core/outcome.h"
#include "documents/descriptor.h"
#include "stock/movement.h"

#include <QList>
#include <QString>

#include <optional>

class QSqlQuery;

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// What the checks and unchecks of the stock documents share. Steps that write run inside the
// caller's transaction and throw DbError.

// A stock document's header as check and uncheck read it, with the names its ledger rows copy.
// A checked row wins over a stray unchecked copy of the same number.
struct StockHeader
{
    qint64 id = 0;
    QString number;
    QString date;
    QString warehouse; // ck_sn, ck_out on a transfer
    QString warehouseName;
    QString secondWarehouse; // ck_in on a transfer
    QString secondWarehouseName;
    QString employee; // u_sn
    QString employeeName;
    QString note;
    int status = 0;
};
std::optional<StockHeader> readStockHeader(
    const shell::Session &session, const documents::DocumentKind &kind, const QString &number);

// Before a check asks anything: the check right in "kcgl", the document there and unchecked.
// Tells its refusals.
Outcome prepareCheck(const shell::Session &session, const documents::DocumentKind &kind,
    const QString &number, int checkRight, StockHeader &header);
// Before an uncheck asks anything: the uncheck right in "kcgl" ("您没有取消审核<title>的权限！"),
// the document there and checked, the closed-period test. Tells its refusals. Whoever holds the
// uncheck right may uncheck whoever's check.
Outcome prepareUncheck(const shell::Session &session, const documents::DocumentKind &kind,
    const QString &number, int uncheckRight, StockHeader &header);
// Inside the transaction: the status read again and the header read anew.
Result<StockHeader> headerInTransaction(const shell::Session &session,
    const documents::DocumentKind &kind, const QString &number, int status);

// A ledger row of the document with what the header gives it: kind, number, date, warehouse,
// employee, checker and check date (today), header note, discount rate 1, no profit.
LedgerRow documentRow(
    const shell::Session &session, const StockHeader &header, const QString &ledgerKind);
// The goods columns of a ledger row from six query columns starting at `first`: g_name, g_jm,
// dw_name, gg_name, color_name, g_pjjj (the row's average until the rerun sets it).
void copyGoods(LedgerRow &row, const QSqlQuery &query, int first);
// The select list that copyGoods reads, from jxc_goods joined as `c`.
QString goodsColumns();

// A ledger row of the document as the stores are moved by it.
struct PostedRow
{
    qint64 id = 0;
    BatchKey batch; // goods, warehouse and batch
    double quantity = 0; // gl_sl, signed
    double price = 0; // gl_dj
    double amount = 0; // gl_je
    double total = 0; // gl_zje
    double average = 0; // gl_pjjj: the moving average after the row
    QString checkDate; // gl_chkrq
};
QList<PostedRow> postedRows(const shell::Session &session, const QString &number);

// Moves the stores by one row: the settlement of `settlementDate` by gl_je, then the shared
// posting of the row (warehouse stock, physical and book alike; the ledger rerun; the goods total
// g_kc when `goodsTotal`; the batch).
void postRow(const shell::Session &session, const PostedRow &row, bool goodsTotal,
    const QString &settlementDate);
// Takes one row back: the settlement of the day the check adjusted (the row's check date) by
// gl_zje, then the shared withdrawal of the row (the rerun without it, which is then deleted).
void reverseRow(const shell::Session &session, const PostedRow &row, bool goodsTotal);

} // namespace medistock::stock
