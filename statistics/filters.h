#pragma once

#include "core/outcome.h"

#include <QString>
#include <QVariantList>

#include <functional>

namespace medistock::shell {
class Session;
}

namespace medistock::statistics {

// A report's date range, both ends included, as "yyyy-MM-dd".
struct DateRange
{
    QString from {};
    QString to {};
    // The upper bound as the ledger's text compares it: the end date + " 23:59:59".
    QString toEnd() const { return to + QStringLiteral(" 23:59:59"); }
};

// The filters a report may take; an empty one does not narrow.
struct ReportFilter
{
    DateRange range {};
    QString warehouse {}; // ck_sn
    QString classCode {}; // gc_sn: the class and its sub-classes, whose codes begin with it
    QString keyword {}; // part of the goods code, name or mnemonic
    QString goods {}; // one goods code
    QString party {}; // customer or supplier code, as the ledger row keeps it in ghs_sn
    QString employee {}; // employee name, as the ledger row keeps it in u_name
    QString batch {}; // one batch number t_ph, exactly
};

// Reports over many rows report how far they are: `done` of `total` steps. Answering false
// cancels; an operation that writes then rolls back and leaves the database as it was.
using Progress = std::function<bool(int done, int total)>;

// Tells progress when there is someone to tell; true (go on) otherwise.
bool goOn(const Progress &progress, int done, int total);

// Refuses (and tells) a range whose ends are not real dates or whose start lies after its end.
Outcome requireValidRange(const shell::Session &session, const DateRange &range);

// A piece of SQL with its bound values, in the order of its placeholders.
struct Sql
{
    QString text;
    QVariantList params;

    Sql &operator+=(const Sql &other)
    {
        text += other.text;
        params += other.params;
        return *this;
    }
};

// The conditions of a filter on the goods ledger `a` joined to its goods `b`, each starting with
// " and ": the date range on gl_kdrq, the warehouse, the class, the keyword, the goods, the party,
// the employee and the batch.
Sql ledgerConditions(const ReportFilter &filter);

// The condition "gl_flag in (...)" over the kinds, bound.
Sql kindIn(const QString &column, const QStringList &kinds);

// A profit rate in percent rounded to 2 places; 0 when there is no amount.
double profitRate(double profit, double amount);

} // namespace medistock::statistics
