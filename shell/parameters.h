#pragma once

#include "core/outcome.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace medistock::core {
class Connection;
}

namespace medistock::shell {

// The company row as it is loaded with the parameters.
struct Company
{
    QString name; // c_name
    QString shortName; // c_jc
    QString tele; // c_tele
    QString contact; // c_lxr
    QString address; // c_address
};

// The one row of jxc_xtcs, read whole. Values are asked for by column name; a name that is not a
// column of the parameter table reads as empty (and trips an assertion in debug builds).
class Parameters
{
public:
    // Reads the first row of jxc_xtcs; throws DbError.
    static Parameters load(core::Connection &connection);

    // true from 1/true/"True", false from 0/false/"False"/empty.
    bool flag(const char *column) const;
    int integer(const char *column) const;
    double number(const char *column) const;
    QString text(const char *column) const;
    QVariant value(const QString &column) const;

    // Decimal places: prices and costs (cs_cbjs), quantities (cs_xsws), money amounts (cs_jews);
    // each counts as 2 when it is not a whole number from 0 to 8.
    int priceDecimals() const;
    int quantityDecimals() const;
    int amountDecimals() const;
    // The places a stock value is rounded to: the amount places when "合计金额保留" (cs_zjews) is
    // on, the price places otherwise.
    int stockValueDecimals() const;

    double roundPrice(double value) const;
    double roundQuantity(double value) const;
    double roundAmount(double value) const;

    // The columns in table order, for listing.
    QStringList columns() const { return m_columns; }

private:
    QVariant raw(const char *column) const;

    QStringList m_columns;
    QHash<QString, QVariant> m_values;
};

// Whether a stored flag value reads as true.
bool readFlag(const QVariant &value);

Company loadCompany(core::Connection &connection);

} // namespace medistock::shell
