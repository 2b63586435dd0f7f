#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// "商品期初建账": the stock a pharmacy already holds when it starts with the system, entered per
// goods, warehouse and batch with its cost, and posted at once as goods-ledger rows of kind "qc"
// (which adds to the running quantity and sets the average). An opening entry has no document
// tables of its own: its ledger rows, under a number "QC" + yymmdd + sequence, are the entry.
//
// An entry can be removed again as a whole, by its number, for as long as the operator holds
// "商品期初建账": its rows are taken back exactly as an uncheck takes a receipt's rows back (the
// batch check first, refused or asked by the negative-stock setting, then a question), so a
// wrong opening is corrected by removing it and entering it anew. There is no editing in place.

// The columns of the ledger rows an opening entry is written as, for the checks every document
// line passes and for the screens that enter lines; an entry has no header or line table of its
// own, so the descriptor serves entering, never storing.
const documents::DocumentKind &openingStockEntry();

// One line of an opening entry: the goods, its unit, quantity and cost per line unit, the batch
// and its dates, in the warehouse named.
struct OpeningLine
{
    QString warehouse; // ck_sn
    documents::LineDraft line; // goods, unit, quantity, price, batch, produced, expiry, remark
};

struct OpeningDraft
{
    QString date; // "yyyy-MM-dd": the ledger date of every row
    QList<OpeningLine> lines;
};

// Posts an opening entry in one transaction and returns its number. Needs "商品期初建账". The
// lines pass the checks every document line passes (goods, unit, numbers, dates; line numbers
// count from 1) and every warehouse must exist. Per line, in order: a ledger row "qc" (price per
// base unit, amount = quantity x price, no tax), warehouse stock (physical and book), goods
// stock, the settlement of today, the ledger rerun, the batch stock and the goods average; then
// the log "商品期初建账<number>，共N种商品".
Result<QString> postOpeningStock(const shell::Session &session, const OpeningDraft &draft);

// One warehouse's part of an opening entry.
struct OpeningEntry
{
    QString number;
    QString date;
    QString warehouse;
    QString warehouseName;
    int rows = 0;
    double quantity = 0; // base units
    double amount = 0;
    QString operatorName;
};

// Every opening entry, by number, then warehouse.
QList<OpeningEntry> openingEntries(const shell::Session &session);

// Removes an opening entry: needs "商品期初建账"; the batch check (refused, or asked when
// negative stock is allowed) and the question come before the transaction; then every row is
// taken back (warehouse, goods and batch stock, the settlement of its day, the rerun without it,
// the goods average) and deleted, and "删除商品期初建账<number>" is logged.
Outcome removeOpeningStock(const shell::Session &session, const QString &number);

} // namespace medistock::stock
