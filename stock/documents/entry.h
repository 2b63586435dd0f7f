#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// Entry of the stock documents through the shared document entry (its checks, numbering, log).
// A line whose price is left empty takes the proposed price: on a transfer, loss or overflow the
// cost of the document's date in its warehouse (the issuing one of a transfer), on a stock-taking
// sheet the warehouse's current cost; per base unit, times the line unit's factor.

// One batch of a goods in a warehouse, as it is offered for picking or counting.
struct BatchLine
{
    QString goods; // g_sn
    QString goodsName;
    QString unit; // the base unit
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
    double quantity = 0; // t_sl, base units
    double price = 0; // per base unit: the proposed transfer or count price
};

// The batches of `goods` that a transfer of `date` may pick in its issuing warehouse: those with
// stock above 0, by batch number, expiry and production date, each at the cost as of `date`.
QList<BatchLine> transferBatches(const shell::Session &session, const QString &warehouse,
    const QString &goods, const QString &date);

// The count sheet a new stock-taking starts from: every batch of the warehouse whose book
// quantity is not 0, of goods that are not disabled (of the goods class `classCode` and its
// sub-classes when one is given), by goods code, batch number, expiry and production date, each
// at the current cost.
QList<BatchLine> countSheet(
    const shell::Session &session, const QString &warehouse, const QString &classCode = {});

// Saves a transfer: the two warehouses must differ, and each line's batch must be one of the
// issuing warehouse's batches. Returns the number.
Result<QString> saveTransfer(const shell::Session &session, const documents::DocumentDraft &draft);

// Saves a stock-taking sheet from the counted quantities (0 allowed); a goods batch may be
// counted once. Each line keeps the batch's quantity at saving as its book quantity kc_sl (and
// kc_zsl), and pd_zje = (counted - book) x price; the header keeps the sums pd_sl and kc_sl.
Result<QString> saveStockTaking(
    const shell::Session &session, const documents::DocumentDraft &draft);

// Saves a document of another module through the shared entry with the price rule of the
// outgoing stock documents: a line whose price is left empty takes the cost as of the document's
// date in its warehouse. `rule` runs after the shared checks, before the prices are proposed.
Result<QString> saveAtCostOfDate(const shell::Session &session, const documents::DocumentKind &kind,
    const documents::DocumentDraft &draft, const documents::EntryRule &rule);

// Saves a loss or overflow report; any batch may be given.
Result<QString> saveLoss(const shell::Session &session, const documents::DocumentDraft &draft);
Result<QString> saveOverflow(const shell::Session &session, const documents::DocumentDraft &draft);

} // namespace medistock::stock
