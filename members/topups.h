#pragma once

#include "core/outcome.h"
#include "members/payments.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// The gift modes of a top-up (hs_zsfs); see instalments.h.
enum class GiftMode {
    None = 0,
    Monthly = 1,
    MonthlyOnPurchase = 2,
    Daily = 3,
    DailyOnPurchase = 4
};

// A top-up "会员充值" as the form hands it over.
struct TopUpDraft
{
    QString member; // hy_sn
    double amount = 0; // xf_je, put on the card
    CounterPayment payment; // how it was paid; together exactly the amount
    GiftMode giftMode = GiftMode::None;
    double perInstalment = 0; // hs_myje
    double gift = 0; // hs_zsje, released in instalments
    double points = 0; // points given with the top-up (hy_jf and hy_zjf), whole
    QString note; // xf_note
};

// Saves the top-up under a new number "XF" of today: the row in jxc_hyxf (续费类别 "会员充值",
// the gift waiting from today), the amount on the card, the points given with the level they
// reach (see levelAfterPointsAdded), the payment in the cash book (kind "会员充值"), and the log.
// Refused for a member whose card is not active, an amount not above 0, a payment that differs
// from the amount, and a gift without an instalment or smaller than one. Returns the number.
Result<QString> topUp(const shell::Session &session, const TopUpDraft &draft);

} // namespace medistock::members
