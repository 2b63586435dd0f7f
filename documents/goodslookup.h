#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::documents {

// How a goods document's line finds its goods: what a clerk types into the goods cell (a code,
// a barcode of any unit, a mnemonic, a fragment of the name) and what the picker shows.

// A goods as a line takes it, in the unit that was matched: a barcode of a further unit names
// that unit, anything else the base unit.
struct GoodsChoice
{
    QString code; // g_sn
    QString name; // g_name
    QString mnemonic; // g_jm
    QString packing; // gg_name
    QString maker; // g_sccs
    QString approval; // color_name
    QString baseUnit; // dw_name
    QString unit; // the unit the match names
    double factor = 1; // base units per `unit`
    QString barcode; // of `unit`, else the goods' own
    double presetPurchasePrice = 0; // g_jj, per base unit
    double presetSalePrice = 0; // g_sj, per base unit
    double lastPurchasePrice = 0; // g_scjj, per base unit
    double average = 0; // g_pjjj, per base unit
    double stock = 0; // kc_sl of the warehouse asked about, base units
};

// The goods a typed text finds. A code or a barcode (the goods' own, a further one or a unit's)
// typed in full finds that goods alone, in the barcode's unit; otherwise every goods whose code
// starts with the text or whose mnemonic or name contains it (case is ignored), by code, at most
// `limit`; an empty text finds every goods (the first `limit`). Disabled goods and the discount
// line are never offered. Stock is that of `warehouse`.
QList<GoodsChoice> findGoods(
    const shell::Session &session, const QString &text, const QString &warehouse, int limit = 200);

// The goods with this code in its base unit, with the stock of `warehouse`; nothing when there is
// no such goods (a disabled one is found: a stored line may name it).
std::optional<GoodsChoice> goodsChoice(
    const shell::Session &session, const QString &code, const QString &warehouse);

// A unit a line of the goods may be given in.
struct UnitChoice
{
    QString unit; // dw_name
    double factor = 1; // base units per unit
};

// The base unit (factor 1) first, then the goods' further units in the order they were added.
QList<UnitChoice> unitChoices(core::Connection &connection, const QString &goods);

} // namespace medistock::documents
