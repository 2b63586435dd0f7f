#pragma once

#include "core/outcome.h"

#include <QString>
#include <QVariantList>

namespace medistock::shell {
class Session;
}

namespace medistock::pos {

// The days a report covers, "yyyy-MM-dd", both included.
struct DateRange
{
    QString from;
    QString to;

    // The range's bounds for a column holding a date and time: from 00:00:00 to 23:59:59.
    QString start() const { return from + QStringLiteral(" 00:00:00"); }
    QString end() const { return to + QStringLiteral(" 23:59:59"); }
};

// Both dates real and in order; otherwise told and refused.
Outcome checkRange(const shell::Session &session, const DateRange &range);

// " and <column> ..." narrowing a report to one warehouse, its value appended to `params`. With
// operators bound to warehouses ("操作员与仓库绑定") an operator other than the administrators
// sees only the warehouses that list him (ck_asn), whichever he picks.
QString warehouseCondition(const shell::Session &session, const QString &column,
    const QString &warehouse, QVariantList &params);

// The goods-ledger rows (alias x) that POS documents posted, kinds "xs" and "xt" with gl_fdmc
// "99", dated in the range and narrowed to the warehouse; the conditions after "where".
QString posLedgerConditions(const shell::Session &session, const DateRange &range,
    const QString &warehouse, QVariantList &params);

} // namespace medistock::pos
