#pragma once

#include "core/outcome.h"
#include "pos/reportfilter.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// Cash put into the till or taken out of it ("POS 出入款管理", jxc_crk): a float brought in,
// takings taken to the safe, small payments made out of the drawer. The rows count in the
// cashier's shift (handover.h); they are till money only and write nothing into the cash book.
namespace medistock::pos {

enum class TillCash { In, Out };

// Asks "您确认生成入款单吗 吗？" (in) or "您确认生成出款单 吗？" (out), then records the amount
// (above 0) under the next number of prefix "RK" or "CK", dated now, for the operator (right
// "收银员出入款管理"). Returns the number.
Result<QString> recordTillCash(
    shell::Session &session, TillCash direction, double amount, const QString &note);

struct TillCashRow
{
    QString number; // gl_djh
    QString time; // crk_rq
    double in = 0; // rkje
    double out = 0; // ckje
    QString kind; // lx: "POS 入款" / "POS 出款"
    QString note; // crk_note
    QString cashier; // a_name
};

// The rows in the date range, in and out together, newest first; `cashier` narrows to one
// operator when given.
Result<QList<TillCashRow>> tillCashRows(
    const shell::Session &session, const DateRange &range, const QString &cashier = {});

} // namespace medistock::pos
