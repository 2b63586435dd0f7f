#include "sales/prices.h"

#include "core/connection.h"
#include "core/rounding.h"
#include "sales/options.h"
#include "shell/session.h"

#include <optional>

namespace medistock::sales {

namespace {

const QString standardType = QStringLiteral("1000");

// A price as stored: nothing when there is no row or the column is empty.
std::optional<double> storedPrice(
    const shell::Session &session, const QString &sql, const QVariantList &params)
{
    const QVariant value = session.db().firstValue(sql, params);
    if (!value.isValid() || value.isNull() || value.toString().isEmpty())
        return std::nullopt;
    return value.toDouble();
}

std::optional<double> latestQuotation(
    const shell::Session &session, const QString &goods, const QString &customer)
{
    return storedPrice(session,
        QStringLiteral("select kb_bj from jxc_khbj where g_sn=? and kh_sn=? order by id desc "
                       "limit 1"),
        { goods, customer });
}

// The level column of a type: "1003" reads g_sj3; "1000", and a code that names no level,
// read g_sj.
QString levelColumn(const QString &type)
{
    if (type != standardType && type.size() >= 4) {
        const QChar level = type.at(3);
        if (level >= QLatin1Char('1') && level <= QLatin1Char('5'))
            return QStringLiteral("g_sj") + level;
    }
    return QStringLiteral("g_sj");
}

// Where the level prices of a line are kept: the goods row for the base unit, the unit's row of
// jxc_goodsdw for another unit.
struct PriceSource
{
    QString goods;
    QString unit; // empty: the base unit
};

std::optional<double> levelPrice(
    const shell::Session &session, const PriceSource &source, const QString &column)
{
    if (source.unit.isEmpty())
        return storedPrice(session,
            QStringLiteral("select %1 from jxc_goods where g_sn=? order by id limit 1").arg(column),
            { source.goods });
    return storedPrice(session,
        QStringLiteral("select %1 from jxc_goodsdw where g_sn=? and dw_name=? order by id limit 1")
            .arg(column),
        { source.goods, source.unit });
}

std::optional<double> lastSalePrice(
    const shell::Session &session, const PriceSource &source, const QString &customer)
{
    if (source.unit.isEmpty())
        return storedPrice(session,
            QStringLiteral("select a.ls_dj from jxc_lsxssp a,jxc_lsxsd b,jxc_goods c where "
                           "a.gl_djh=b.gl_djh and a.g_sn=c.g_sn and a.dw_name=c.dw_name and "
                           "b.ls_status=1 and b.kh_sn=? and a.g_sn=? order by a.id desc limit 1"),
            { customer, source.goods });
    return storedPrice(session,
        QStringLiteral("select a.ls_dj from jxc_lsxssp a,jxc_lsxsd b where a.gl_djh=b.gl_djh and "
                       "a.dw_name=? and b.ls_status=1 and b.kh_sn=? and a.g_sn=? order by "
                       "b.ls_xsrq desc,a.id desc limit 1"),
        { source.unit, customer, source.goods });
}

double proposedPrice(
    const shell::Session &session, const PriceSource &source, const QString &customer)
{
    std::optional<double> price = latestQuotation(session, source.goods, customer);
    if (!price) {
        const QString type = customerPriceType(session, customer);
        if (pricesFromLastSale(session.params())) {
            price = lastSalePrice(session, source, customer);
            if (!price)
                price = levelPrice(session, source, levelColumn(type));
        } else if (type != standardType) {
            price = levelPrice(session, source, levelColumn(type));
        }
    }
    if (!price)
        price = levelPrice(session, { source.goods, {} }, QStringLiteral("g_sj"));
    return core::roundTo(price.value_or(0), session.params().priceDecimals());
}

} // namespace

double customerPrice(const shell::Session &session, const QString &goods, const QString &customer)
{
    return proposedPrice(session, { goods, {} }, customer);
}

double customerUnitPrice(const shell::Session &session, const QString &goods,
    const QString &customer, const QString &unit)
{
    return proposedPrice(session, { goods, unit }, customer);
}

double linePrice(const shell::Session &session, const QString &goods, const QString &customer,
    const QString &unit)
{
    const QString baseUnit = session.db().firstText(
        QStringLiteral("select dw_name from jxc_goods where g_sn=? order by id limit 1"),
        { goods });
    if (unit.isEmpty() || unit == baseUnit)
        return customerPrice(session, goods, customer);
    return customerUnitPrice(session, goods, customer, unit);
}

QString customerPriceType(const shell::Session &session, const QString &customer)
{
    if (!pricesByCustomerType(session.params()))
        return standardType;
    const QString type = session.db().firstText(
        QStringLiteral("select kt_sn from jxc_khxx where kh_sn=? order by id limit 1"),
        { customer });
    return type.isEmpty() ? standardType : type;
}

} // namespace medistock::sales
