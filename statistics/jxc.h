#pragma once

#include "core/outcome.h"
#include "statistics/filters.h"
#include "statistics/movements.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::statistics {

// The purchase-sales-stock summary ("进销存统计") of a date range, per goods:
// - opening stock: per goods and warehouse, the running quantity gl_kc and stock value gl_kczje
//   of its last ledger row (in date-then-id order) before the start;
// - inward and outward quantity and amount of the rows in the range, by the kind table of
//   movements.h;
// - the ledger's own closing stock: per goods and warehouse, the running columns of its last
//   row on or before the end date.
// The figures are written into the operator's rows of jxc_jxchz (a_name), one row per goods that
// has a ledger row by the end of the range, with the opening and closing stock summed over its
// warehouses, so that the printed report and the difference check read what the screen showed.
// Building the rows for one operator never touches another operator's.

struct JxcRequest
{
    DateRange range {};
    QString warehouse {}; // empty for every warehouse
    Valuation valuation = Valuation::Cost;
};

// Clears the operator's rows of jxc_jxchz and writes the summary of the request, in one
// transaction. Right "进销存统计" (tjgl 13). Two steps for `progress` (cleared, written); a
// cancel rolls back.
Outcome buildJxcSummary(
    const shell::Session &session, const JxcRequest &request, const Progress &progress = {});

struct JxcRow
{
    QString goods; // g_sn
    QString name; // g_name
    QString unit; // dw_name
    QString packing; // gg_name
    QString className; // gc_name
    double openingQuantity = 0; // hz_kc
    double openingAmount = 0; // hz_kczje
    double inQuantity = 0; // hz_rksl
    double inAmount = 0; // hz_rkzje
    double outQuantity = 0; // hz_cksl
    double outAmount = 0; // hz_ckzje
    double closingQuantity = 0; // hz_glkc
    double closingAmount = 0; // hz_glkczje
    // Opening amount + inward amount - outward amount - closing amount, rounded to amount places:
    // what the ledger's running value lost or gained beyond the rows themselves.
    double difference = 0;
};

struct JxcFilter
{
    QString classCode {}; // the class and its sub-classes
    QString keyword {}; // part of the goods code, name or mnemonic
};

// The operator's summary rows as the last build left them, by goods code, narrowed by class and
// keyword.
QList<JxcRow> jxcRows(const shell::Session &session, const JxcFilter &filter = {});

// The rows of the last build whose difference is not zero ("进销存差额核对").
QList<JxcRow> jxcDifferences(const shell::Session &session, const JxcFilter &filter = {});

// The message of the difference check: each goods with "，差额：" and its difference, one per
// line; a plain "no difference" text when the list is empty.
QString differenceMessage(const QList<JxcRow> &rows);

} // namespace medistock::statistics
