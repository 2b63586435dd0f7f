#pragma once

#include "core/outcome.h"
#include "members/retail.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// Returns of a sold receipt at the till. A return ("XT") names the sale it gives back
// (RetailDocument::original, kept in gl_djh2 of its ledger rows), so that what has come back is
// known: a receipt's goods can be given back, in several returns, up to what was sold.
//
// A return gives back the lines' amounts at the sale's prices and discount rates; the sale's
// whole-document discount and rounding off come back in proportion to the lines' amount
// returned (rounded to the amount places), so that returning a whole receipt refunds exactly
// what was received.
namespace medistock::pos {

// The goods of a sale, one row per goods, unit, batch, price, discount rate and gift marker.
struct SoldLine
{
    members::RetailLine line; // quantity: what was sold, in the line's unit
    QString name; // g_name
    double amount = 0; // pos_zje
    double returned = 0; // given back by earlier returns, in the line's unit (positive)

    double returnable() const { return line.quantity - returned; }
};

struct SoldReceipt
{
    QString number;
    QString time;
    QString member;
    QString warehouse;
    QString employee;
    QString customer;
    double linesAmount = 0; // the lines' amounts before discount and rounding off
    double discount = 0; // pos_yhzkje
    double roundingOff = 0; // pos_mlje
    double card = 0; // pos_czk
    QList<SoldLine> lines;
};

// A posted retail sale with what has come back of each line; a number that is no posted sale is
// told and refused.
Result<SoldReceipt> readSoldReceipt(const shell::Session &session, const QString &number);

// The return of `quantities` (one per line of the receipt, in the line's unit, 0 for none):
// negative lines, the proportional discount, refunded in cash. The cashier may share the refund
// out otherwise before it is posted. Refused when nothing is returned or a line is returned
// beyond what is left of it.
Result<members::RetailDocument> returnOf(
    const shell::Session &session, const SoldReceipt &receipt, const QList<double> &quantities);

// Posts a return of a sold receipt (right "允许POS销售"): what is left of each line is read again
// inside the posting's transaction, so that two tills cannot give the same goods back twice.
Result<QString> returnAtTill(shell::Session &session, const members::RetailDocument &refund);

} // namespace medistock::pos
