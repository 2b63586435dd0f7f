#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// Cost prices per base unit of goods leaving a warehouse, each rounded to price decimals. A goods
// with the fixed-cost flag g_gdcbj always costs its purchase price g_jj.

// For a document of `date` ("yyyy-MM-dd"): the ledger average on or before the date, else the
// first one after it (both skipped while the warehouse cost is kept fixed); an average that is
// missing or exactly 0 falls through to the warehouse cost kc_cbj, a missing one to g_pjjj.
double costAsOf(const shell::Session &session, const QString &goods, const QString &warehouse,
    const QString &date);

// Today's cost for picking by barcode: the warehouse cost kc_cbj, else the goods average.
double currentCost(const shell::Session &session, const QString &goods, const QString &warehouse);

// The cost of a ledger row being rebuilt (statistics): an earlier row of the same day, then an
// earlier day (both without opening-stock rows "qc"), then any earlier row, a row of the day, the
// first later row, the warehouse cost and the goods average, in that order. Only a missing value
// falls through; an average of 0 is a cost.
double costAtLedgerPosition(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date, qint64 rowId);

} // namespace medistock::stock
