#pragma once

#include <QString>
#include <QVariant>

namespace medistock::shell {

// What a value given for a parameter of jxc_xtcs must be, checked before it is saved (the limits
// come from core/numbers.h):
// - a flag (bit columns): 0 or 1, also true/false or 是/否;
// - decimal places (cs_cbjs price, cs_xsws quantity, cs_jews amount, cs_posfkws POS payment):
//   a whole number from 0 to 8;
// - any other int column (the code of a choice, a count): a whole number from 0 to 999 999 999;
// - the tax rate cs_tax: percent from 0 to 100; the lowest discount cs_zdzk: a price factor from
//   0 to 1, as every discount rate of the system is;
// - text: no longer than the column's declared width.
// Converts `value` to what is stored (flags and whole numbers as integers) and returns the
// refusal text, empty when the value fits.
QString checkParameterValue(const QString &column, QVariant &value);

} // namespace medistock::shell
