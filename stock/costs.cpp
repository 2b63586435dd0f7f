#include "stock/costs.h"

#include "core/connection.h"
#include "shell/session.h"
#include "stock/options.h"

#include <QVariant>

#include <optional>

namespace medistock::stock {

namespace {

// A price read from the database; nothing when there is no row or the column is NULL.
using Found = std::optional<double>;

Found lookUp(const shell::Session &session, const QString &sql, const QVariantList &params)
{
    const QVariant value = session.db().firstValue(sql, params);
    if (!value.isValid() || value.isNull())
        return std::nullopt;
    return value.toDouble();
}

Found fixedCost(const shell::Session &session, const QString &goods)
{
    const QVariant flag = session.db().firstValue(
        QStringLiteral("select g_gdcbj from jxc_goods where g_sn=?"), { goods });
    if (!shell::readFlag(flag))
        return std::nullopt;
    return lookUp(session, QStringLiteral("select g_jj from jxc_goods where g_sn=?"), { goods })
        .value_or(0);
}

Found warehouseCost(const shell::Session &session, const QString &goods, const QString &warehouse)
{
    return lookUp(session, QStringLiteral("select kc_cbj from jxc_kcsp where ck_sn=? and g_sn=?"),
        { warehouse, goods });
}

Found goodsAverageCost(const shell::Session &session, const QString &goods)
{
    return lookUp(session, QStringLiteral("select g_pjjj from jxc_goods where g_sn=?"), { goods });
}

Found lastAverageOnOrBefore(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date)
{
    return lookUp(session,
        QStringLiteral("select gl_pjjj from jxc_goodslist where ck_sn=? and g_sn=? and gl_kdrq<=? "
                       "order by gl_kdrq desc,id desc limit 1"),
        { warehouse, goods, date });
}

Found firstAverageAfter(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date)
{
    return lookUp(session,
        QStringLiteral("select gl_pjjj from jxc_goodslist where ck_sn=? and g_sn=? and gl_kdrq>? "
                       "order by gl_kdrq,id limit 1"),
        { warehouse, goods, date });
}

double rounded(const shell::Session &session, Found cost)
{
    return session.params().roundPrice(cost.value_or(0));
}

// The position-based steps before the warehouse cost, in their order.
Found ledgerAverageAtPosition(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date, qint64 rowId)
{
    const QVariantList keys { warehouse, goods, date };
    if (Found c = lookUp(session,
            QStringLiteral("select gl_pjjj from jxc_goodslist where gl_flag<>? and ck_sn=? and "
                           "g_sn=? and gl_kdrq=? and id<? order by gl_kdrq desc,id desc limit 1"),
            { QStringLiteral("qc"), warehouse, goods, date, rowId }))
        return c;
    if (Found c = lookUp(session,
            QStringLiteral("select gl_pjjj from jxc_goodslist where gl_flag<>? and ck_sn=? and "
                           "g_sn=? and gl_kdrq<? order by gl_kdrq desc,id desc limit 1"),
            { QStringLiteral("qc"), warehouse, goods, date }))
        return c;
    if (Found c = lookUp(session,
            QStringLiteral("select gl_pjjj from jxc_goodslist where ck_sn=? and g_sn=? and "
                           "gl_kdrq<? order by gl_kdrq desc,id desc limit 1"),
            keys))
        return c;
    if (Found c = lastAverageOnOrBefore(session, goods, warehouse, date))
        return c;
    return firstAverageAfter(session, goods, warehouse, date);
}

} // namespace

double costAsOf(const shell::Session &session, const QString &goods, const QString &warehouse,
    const QString &date)
{
    if (Found fixed = fixedCost(session, goods))
        return rounded(session, fixed);
    Found cost;
    if (!keepsWarehouseCost(session.params())) {
        cost = lastAverageOnOrBefore(session, goods, warehouse, date);
        if (!cost)
            cost = firstAverageAfter(session, goods, warehouse, date);
    }
    if (!cost || *cost == 0)
        cost = warehouseCost(session, goods, warehouse);
    if (!cost)
        cost = goodsAverageCost(session, goods);
    return rounded(session, cost);
}

double currentCost(const shell::Session &session, const QString &goods, const QString &warehouse)
{
    if (Found fixed = fixedCost(session, goods))
        return rounded(session, fixed);
    Found cost = warehouseCost(session, goods, warehouse);
    if (!cost)
        cost = goodsAverageCost(session, goods);
    return rounded(session, cost);
}

double costAtLedgerPosition(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date, qint64 rowId)
{
    if (Found fixed = fixedCost(session, goods))
        return rounded(session, fixed);
    Found cost = ledgerAverageAtPosition(session, goods, warehouse, date, rowId);
    if (!cost)
        cost = warehouseCost(session, goods, warehouse);
    if (!cost)
        cost = goodsAverageCost(session, goods);
    return rounded(session, cost);
}

} // namespace medistock::stock
