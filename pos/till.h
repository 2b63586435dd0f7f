#pragma once

#include "core/outcome.h"
#include "members/retail.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// The till: a cashier rings a sale up line by line, takes the money and hands the receipt over.
// Everything here stands on members::postRetailDocument, which records what the till sold and
// never refuses for stock; the till asks about stock before it takes the money.
//
// Choices of the till, where the books leave it open:
// - A line's price is the goods' retail price g_lsj (the preset sale price g_sj when it has
//   none), per line unit. A special-price goods (g_tjsp) with a special price g_tj sells at that
//   price, within its period g_ks..g_js when "特价期限" (g_tjqx) is on. A member pays the member
//   price g_hyj where the goods has one; otherwise the member's level discount hl_zk (when
//   between 0 and 1) is the line's discount rate, except on special prices.
// - Stock is held against the warehouse stock kc_sl, per goods over all its lines (a gift line
//   takes stock like any other) in base units; the first short goods in code order is named.
//   With "库存为零时允许采购退货、销售" on the shortage is asked about, else refused.
// - The per-sale maximum g_xzsl is held as for a back-office sale, in the lines' own units.
// - Lines are taken from batches first expiry first (the sales module's FEFO rule): a line
//   without a batch is split over the warehouse's unexpired batches with stock, what no batch
//   covers stays a line without batch.
namespace medistock::pos {

// What a line of the goods starts with at the till, per line unit.
struct TillPrice
{
    double price = 0; // pos_dj
    double discountRate = 1; // pos_dzl
};

// The price of the goods for a line of `unitFactor` base units, for the member (may be empty).
TillPrice tillPrice(
    const shell::Session &session, const QString &goods, double unitFactor, const QString &member);

// The per-sale maximum and the stock of the sale's lines, before the money is taken. Reads only;
// a shortage is told and refused, or asked about where negative stock is allowed ("No" refuses).
Outcome confirmTillStock(const shell::Session &session, const members::RetailDocument &sale);

// The sale with its lines given batches, first expiry first. Reads only.
members::RetailDocument withBatches(
    const shell::Session &session, const members::RetailDocument &sale);

// Sells what was rung up (right "允许POS销售"): the stock questions, the batches, then one
// transaction that posts the sale and, for a sale recalled from hold (`heldNumber`), removes the
// held lines. A held sale keeps its number when it is sold on the day it was held. Returns the
// number; a refusal leaves everything, the held lines too, as it was.
Result<QString> sellAtTill(
    shell::Session &session, const members::RetailDocument &sale, const QString &heldNumber = {});

} // namespace medistock::pos
