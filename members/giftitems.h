#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::members {

// Gift items "赠品管理" kept apart from the goods (jxc_zpxx): bought in (jxc_zpjh), given away
// (jxc_zsd with lines jxc_zszp, numbered "ZS") and redeemed. Every change needs the right
// "赠品管理". A gift item's code is unique, and is no goods code either, since the register
// counts the redemption lines of its code.
struct GiftItem
{
    QString code; // zp_sn; empty for a new item: the next code
    QString name; // zp_name
    QString mnemonic; // zp_jm; from the name when empty
    double points = 0; // zp_jf "兑换积分"
};

QList<GiftItem> listGiftItems(core::Connection &connection);
// Adds (`isNew`) or changes an item. Returns its code.
Result<QString> saveGiftItem(const shell::Session &session, const GiftItem &item, bool isNew);
// Deletes an item without movements.
Outcome deleteGiftItem(const shell::Session &session, const QString &code);

// A purchase of gift items "赠品进货": quantity above 0. Returns the row's id.
Result<qint64> addGiftPurchase(const shell::Session &session, const QString &code, QDate date,
    double quantity, const QString &note);
Outcome deleteGiftPurchase(const shell::Session &session, qint64 id);

struct GiveAwayLine
{
    QString code; // zp_sn
    double quantity = 0;
};
// A give-away "赠品赠送", optionally against a sale's number. Returns its number.
Result<QString> addGiveAway(const shell::Session &session, QDate date, const QString &saleNumber,
    const QList<GiveAwayLine> &lines, const QString &note);
Outcome deleteGiveAway(const shell::Session &session, const QString &number);

// One movement of a gift item: purchases (sort 1, +), redemptions (2, -) and give-aways (3, -),
// listed by sort, newest first within each.
struct GiftMovement
{
    int sort = 0;
    qint64 id = 0; // jxc_zpjh.id, jxc_dhzp.id or jxc_zszp.id
    QString date;
    QString number; // the redemption's or give-away's number; empty for a purchase
    double quantity = 0; // signed
    QString kind; // "赠品进货", "积分兑换", "赠品赠送"
    QString note;
    QString operatorName;
};
QList<GiftMovement> giftRegister(core::Connection &connection, const QString &code);
// What the movements leave in hand.
double giftBalance(core::Connection &connection, const QString &code);

} // namespace medistock::members
