#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// What a retail document does to its member: "XS" a sale posted, "XT" a return posted, "unXS"
// and "unXT" their reversals.
enum class MemberOperation { Sale, Return, SaleReversed, ReturnReversed };

// The member effects of the POS document `number` (jxc_posxsd and its lines) for the member
// `member`, inside the caller's transaction; throws DbError.
//
// A sale or return, in this order: the consumption gifts of modes 2 and 4 (a sale numbered "XS"
// only); the amount A (the amount payable, negated for a return) less the lines of special-points
// goods, whose points are their fixed points per unit S; with points switched off (jf_mfje empty
// or 0) the amount points are 0 and the steps up to the cash-back are skipped; else the part paid
// from the card is left out under points rule "0", the base is limited to goods neither special-
// priced nor special-points unless special prices take part (cs_tjcyjf), the carried remainder is
// added (a sale only) and A truncated. A of 0 ends there: a card payment still counts a visit,
// the consumption and (for a sale) the card balance, and nothing else is written. Otherwise the
// points are trunc(A / jf_mfje), multiplied by the birthday factor or else the date-range factor,
// never both; the cash-back of the member's discount scheme is trunc(trunc(A / hh_yh2) x hh_yh3).
// The member's points and lifetime points change by B = S + points, the level follows the lifetime
// points while "按积分升级" is on, the consumption, visits and card balance (less the card
// payment, plus the cash-back on a sale) change, and B, the new balance and the cash-back are
// written to the document (negated on a return); then the remainder is updated.
//
// A reversal subtracts what the document stored (it never recomputes points), undoes the
// consumption gifts of a reversed sale, resets the level to the one for the lifetime points
// whatever "按积分升级" says (unless they are 0), and updates the remainder.
//
// Every figure comes from the POS document of the number. A sales document entered in the back
// office has none, and nothing was posted for it that could be reversed: its member is left as
// it is.
void postMemberEffects(const shell::Session &session, const QString &number, const QString &member,
    MemberOperation operation);

} // namespace medistock::members
