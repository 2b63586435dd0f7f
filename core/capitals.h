#pragma once

#include <QString>

namespace medistock::core {

// An amount in Chinese capitals as written on cheques and invoices: 123.45 is
// "壹佰贰拾叁元肆角伍分", 1005 is "壹仟零伍元整", 10.05 is "壹拾元零伍分", 0 is "零元整".
// Rounded half up to the fen; "整" closes an amount that ends at 元 or 角; a negative amount
// begins with "负".
QString amountInCapitals(double amount);

} // namespace medistock::core
