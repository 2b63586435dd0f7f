#pragma once

#include "core/outcome.h"
#include "members/member.h"

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::members {

// Gifts for points "兑换赠品": goods marked as gifts (g_iszp) and offered for redemption (g_sy),
// not disabled, at g_zpjf points a unit. A redemption (jxc_dhd, lines jxc_dhzp) lowers the
// member's points hy_jf (never the lifetime points or the level), issues the goods from the
// warehouse with ledger rows "dh" at the warehouse's cost kc_cbj (the goods average where the
// warehouse has no row), books that cost as an expense "费用" paid in cash, and is numbered
// "DH" + date + sequence. No batch is named, so batch stock is left alone.

// How often a member may redeem: "不限制", "今天", "本周" (Monday to Sunday), "本月".
enum class RedemptionPeriod { Unlimited, Day, Week, Month };
QString periodName(RedemptionPeriod period);

// A gift the warehouse offers, as the gift list shows it.
struct GiftOffer
{
    QString goods; // g_sn
    QString mnemonic; // g_jm
    QString name; // g_name
    QString unit; // dw_name
    QString packing; // gg_name
    QString approval; // color_name
    double points = 0; // g_zpjf, per unit
    double stock = 0; // kc_sl of the warehouse
};
// The gifts with a stock row in the warehouse, in code order.
QList<GiftOffer> giftsOffered(core::Connection &connection, const QString &warehouse);

struct RedemptionLine
{
    QString goods;
    QString name;
    double pointsPerUnit = 0; // dh_zpjf
    double quantity = 0; // dh_sl
    double points() const { return pointsPerUnit * quantity; } // dh_jf
};

// A redemption being entered.
struct RedemptionDraft
{
    QString member; // hy_sn
    QString warehouse; // ck_sn
    RedemptionPeriod period = RedemptionPeriod::Unlimited;
    QList<RedemptionLine> lines;
    QString note; // dh_note

    // Picking a gift adds a line of 1, or one more unit to its line.
    void pick(const GiftOffer &gift);
    // Sets a line's quantity; 0 or less removes it.
    void setQuantity(int line, double quantity);
    double points() const;
    double quantity() const;
};

// The date of the member's redemption in the period of today, empty when there is none.
QString redeemedInPeriod(
    core::Connection &connection, const QString &member, RedemptionPeriod period, QDate today);

// Saves a redemption (right "赠品管理"). Refused: a member not found or whose card is not
// active, a redemption in the period already ("已经兑换过赠品，不能重复兑换，兑换日期【…】"), a
// warehouse unknown, no lines, a goods that is not a gift offered, a quantity that is not a whole
// number above 0, more points than the member holds. The points per unit are read afresh from the
// goods. Returns the number.
Result<QString> saveRedemption(const shell::Session &session, const RedemptionDraft &draft);

// Asks, then deletes a redemption and everything its saving wrote: the points back, the stock
// back, its ledger rows and expense gone (right "赠品管理").
Outcome deleteRedemption(shell::Session &session, const QString &number);

struct RedemptionRow
{
    QString number;
    QString time; // dh_dhrq
    QString member;
    QString memberName;
    QString card;
    QString warehouse;
    double quantity = 0;
    double points = 0;
    QString operatorName;
    QString note;
};
// The redemptions from `from` to `to` (dates, inclusive), newest first.
QList<RedemptionRow> listRedemptions(
    core::Connection &connection, const QString &from, const QString &to);

} // namespace medistock::members
