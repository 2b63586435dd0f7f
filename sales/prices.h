#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// The price proposed for a goods line of a sale, per line unit, rounded half up to the price
// decimals (cs_cbjs). In this order: the customer's latest quotation (it always wins); with the
// price source on "last sale" (cs_xsdj 1) the price of the customer's last checked sale line in
// the base unit, the latest line entered first; the customer type's level price (with the
// source on 0 only for a type other than "1000"); the standard price g_sj; 0. Reads only.
double customerPrice(const shell::Session &session, const QString &goods, const QString &customer);

// The same for a line in another unit: the last sale is the one in that unit with the latest sale
// date (then the latest line), and the level prices are the unit's own in jxc_goodsdw. The last
// step still reads the goods' own standard price g_sj: a unit without a price of its own is
// offered the base unit's.
double customerUnitPrice(const shell::Session &session, const QString &goods,
    const QString &customer, const QString &unit);

// The price of a line in `unit`: the base unit (empty, or the goods' own unit) takes
// customerPrice, any other unit customerUnitPrice.
double linePrice(const shell::Session &session, const QString &goods, const QString &customer,
    const QString &unit);

// The customer's price type kt_sn with customer-type pricing on (cs_cs013); "1000" (the standard
// level) when it is off, empty or the customer unknown.
QString customerPriceType(const shell::Session &session, const QString &customer);

} // namespace medistock::sales
