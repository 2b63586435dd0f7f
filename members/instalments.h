#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// The instalment gifts of top-ups (jxc_hyxf). A top-up row with gift mode 1 to 4 holds the gift
// still to be released (hs_zsje), the amount per instalment (hs_myje) and the date of its last
// release (xf_zsrq); each release is a history row of mode -1 to -4 whose amount reaches the card
// balance:
//   1 by calendar month ("按月到账"), released at login from the 10th of a month on;
//   2 once per month in which the member buys ("本月消费到账"), months without a purchase lost;
//   3 by calendar day ("按天到账"), released at login;
//   4 once per day on which the member buys ("今天消费到账"), days without a purchase lost.
// Months and days are counted as calendar differences between dates, whatever the day or time.

// At a sale numbered `number` of the member (inside the caller's transaction): every top-up row
// of mode 2 (then 4) whose instalment is due releases one instalment under the sale's number;
// only the first such row's instalment reaches the card, and the sale is marked pos_zftype "1".
void releaseConsumptionGifts(
    const shell::Session &session, const QString &number, const QString &member);

// At the reversal of a sale of `saleTime` (inside the caller's transaction): when the member has
// no other POS sale in the sale's month (day), the month's (day's) consumption release is deleted,
// its amount taken off the card, and the instalment given back to the member's top-up rows of
// mode 2 (4) last released in that month (day), their release date set to the sale's date.
void undoConsumptionGifts(
    const shell::Session &session, const QString &saleTime, const QString &member);

struct GiftRelease
{
    QString number; // the top-up number the release rows carry ("XF")
    int rows = 0; // release rows written
    double amount = 0; // credited to cards
};

// Run at every successful login, in one transaction: the instalments of modes 1 and 3 that have
// fallen due are released under a new top-up number (a row waiting k months gets k instalments
// at once, as far as its gift lasts), the forfeits of modes 2 and 4 are written, and the release
// rows are credited to the cards.
Result<GiftRelease> releaseInstalmentGifts(const shell::Session &session);

} // namespace medistock::members
