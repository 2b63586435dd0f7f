#pragma once

#include "documents/returnlimits.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::purchasing {

// What the purchase screens propose while a line is entered. Reads only.

// The price of a purchase line per line unit: the goods' last purchase price g_scjj (per base
// unit) times the unit's factor once the goods has been bought; before that the unit's own preset
// purchase price (jxc_goodsdw.g_jj) where a further unit has one, else the goods' preset purchase
// price g_jj times the factor. Rounded to the price decimals; 0 for an unknown goods or unit.
double proposedPurchasePrice(
    const shell::Session &session, const QString &goods, const QString &unit);

// The lines of a checked receipt that a return can give back, with what other returns than
// `returnNumber` already took; empty when the receipt is not checked.
QList<documents::ReturnableLine> returnableReceiptLines(
    const shell::Session &session, const QString &receipt, const QString &returnNumber = {});

} // namespace medistock::purchasing
