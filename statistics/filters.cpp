#include "statistics/filters.h"

#include "core/operation.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "statistics/texts.h"

#include <QDate>

namespace medistock::statistics {

namespace {

bool isDate(const QString &text)
{
    return QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
}

} // namespace

bool goOn(const Progress &progress, int done, int total)
{
    return !progress || progress(done, total);
}

Outcome requireValidRange(const shell::Session &session, const DateRange &range)
{
    if (!isDate(range.from) || !isDate(range.to))
        return core::refuse(session.ui(), texts::badDate());
    if (range.from > range.to)
        return core::refuse(session.ui(), texts::rangeReversed());
    return Outcome::done();
}

Sql ledgerConditions(const ReportFilter &filter)
{
    Sql sql;
    if (!filter.range.from.isEmpty())
        sql += { QStringLiteral(" and a.gl_kdrq>=?"), { filter.range.from } };
    if (!filter.range.to.isEmpty())
        sql += { QStringLiteral(" and a.gl_kdrq<=?"), { filter.range.toEnd() } };
    if (!filter.warehouse.isEmpty())
        sql += { QStringLiteral(" and a.ck_sn=?"), { filter.warehouse } };
    if (!filter.classCode.isEmpty())
        sql += { QStringLiteral(" and b.gc_sn like ?"), { filter.classCode + QLatin1Char('%') } };
    if (!filter.keyword.trimmed().isEmpty()) {
        const QString pattern = QLatin1Char('%') + filter.keyword.trimmed() + QLatin1Char('%');
        sql += { QStringLiteral(
                     " and (a.g_sn like ? or b.g_name like ? or upper(b.g_jm) like upper(?))"),
            { pattern, pattern, pattern } };
    }
    if (!filter.goods.isEmpty())
        sql += { QStringLiteral(" and a.g_sn=?"), { filter.goods } };
    if (!filter.party.isEmpty())
        sql += { QStringLiteral(" and a.ghs_sn=?"), { filter.party } };
    if (!filter.employee.isEmpty())
        sql += { QStringLiteral(" and a.u_name=?"), { filter.employee } };
    if (!filter.batch.isEmpty())
        sql += { QStringLiteral(" and a.t_ph=?"), { filter.batch } };
    return sql;
}

Sql kindIn(const QString &column, const QStringList &kinds)
{
    Sql sql { column + QStringLiteral(" in ("), {} };
    for (int i = 0; i < kinds.size(); ++i) {
        sql.text += i == 0 ? QStringLiteral("?") : QStringLiteral(",?");
        sql.params.append(kinds.at(i));
    }
    sql.text += QLatin1Char(')');
    return sql;
}

double profitRate(double profit, double amount)
{
    if (amount == 0)
        return 0;
    return core::roundTo(profit * 100 / amount, 2);
}

} // namespace medistock::statistics
