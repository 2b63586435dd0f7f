#pragma once

#include "core/connection.h"
#include "core/operation.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "statistics/filters.h"

#include <QSqlQuery>

namespace medistock::statistics {

// What every report does around its select: the right of its operation (tjgl position), a valid
// range when it takes one, and a database error told and returned instead of thrown.
template<class T, class Body>
Result<T> readReport(const shell::Session &session, int right, const DateRange *range, Body &&body)
{
    const Outcome allowed = shell::requireRight(session, "tjgl", right);
    if (!allowed)
        return allowed;
    if (range) {
        const Outcome valid = requireValidRange(session, *range);
        if (!valid)
            return valid;
    }
    T value {};
    const Outcome read = core::guarded(session.ui(), [&] {
        value = body();
        return Outcome::done();
    });
    if (!read)
        return read;
    return value;
}

// Rows of a select, each made by `make` from the query.
template<class Row, class Make>
QList<Row> selectRows(const shell::Session &session, const Sql &sql, Make &&make)
{
    QList<Row> rows;
    session.db().forEach(sql.text, sql.params, [&](const QSqlQuery &q) { rows.append(make(q)); });
    return rows;
}

// A select of the id of the last ledger row of each goods and warehouse dated before `bound`
// (with `inclusive`, on or before it), over every warehouse or one. Its running columns are the
// stock at that point.
Sql lastLedgerRowIds(const QString &bound, bool inclusive, const QString &warehouse);

// The ledger joined to its goods, as the business reports read it.
inline QString ledgerWithGoods()
{
    return QStringLiteral(" from jxc_goodslist a left join jxc_goods b on b.g_sn=a.g_sn");
}

// The key of a day or month on gl_kdrq.
inline QString periodKey(bool monthly)
{
    return monthly ? QStringLiteral("substr(a.gl_kdrq,1,7)")
                   : QStringLiteral("substr(a.gl_kdrq,1,10)");
}

// What a grouped report selects for its group over the ledger `a` and its goods `b`: the key it
// groups by, and the name, packing and unit shown beside it (empty texts where they mean nothing).
struct GroupColumns
{
    QString key;
    QString name;
    QString packing = QStringLiteral("null");
    QString unit = QStringLiteral("null");

    QString select() const
    {
        return key + QLatin1Char(',') + name + QLatin1Char(',') + packing + QLatin1Char(',') + unit;
    }
};

inline GroupColumns byGoods()
{
    return { QStringLiteral("a.g_sn"), QStringLiteral("max(b.g_name)"),
        QStringLiteral("max(b.gg_name)"), QStringLiteral("max(b.dw_name)") };
}

inline GroupColumns byClass()
{
    return { QStringLiteral("b.gc_sn"),
        QStringLiteral("(select gc_name from jxc_goodsclass where gc_sn=b.gc_sn order by id "
                       "limit 1)") };
}

// The supplier or customer of the ledger row.
inline GroupColumns byParty()
{
    return { QStringLiteral("a.ghs_sn"), QStringLiteral("max(a.ghs_name)") };
}

// The goods' last supplier.
inline GroupColumns byGoodsSupplier()
{
    return { QStringLiteral("b.ghs_sn"),
        QStringLiteral("(select ghs_name from jxc_ghsxx where ghs_sn=b.ghs_sn order by id "
                       "limit 1)") };
}

inline GroupColumns byEmployee()
{
    return { QStringLiteral("a.u_name"), QStringLiteral("a.u_name") };
}

inline GroupColumns byPeriod(bool monthly)
{
    return { periodKey(monthly), periodKey(monthly) };
}

} // namespace medistock::statistics
