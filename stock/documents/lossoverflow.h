#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The loss report "商品报损单" (jxc_bsd / jxc_bssp) writes goods off a warehouse as ledger kind
// "bs" with negative quantities; the overflow report "商品报溢单" (jxc_byd / jxc_bysp) books goods
// found in excess as kind "by" with positive ones. Neither sets the moving average, and the line
// quantity is the base quantity.
//
// The cost difference: the stock value that the document's rows move at the moving average,
// sum(gl_sl x gl_pjjj) with each product rounded to amount decimals, less the value the document
// states, sum(gl_je). A row whose average is 0 (none was ever set for the goods) is valued at
// the current cost instead (a fixed cost, else the warehouse cost, else the goods average). A loss
// priced below the average thus costs more than its value: a negative expense amount; an overflow
// priced below the average gains more: a positive income amount. When it is not 0 after rounding it
// is booked as one row in jxc_yyfy: "费用" noted "报损单<number>成本差额" for a loss, "收入" noted
// "报溢单<number>成本差额" for an overflow, dated the document's date.

// Checks a report: right "报损报溢审核"; then status 1, checker and check date, unchecked copies
// deleted, one ledger row per line ("商品报损" / "商品报溢"), today's settlement rows; per row
// warehouse stock, g_kc, the day's settlement, the rerun and the batch (a batch without stock
// goes negative: no batch check is made); the log line; the cost difference.
Outcome checkLoss(shell::Session &session, const QString &number);
Outcome checkOverflow(shell::Session &session, const QString &number);

// Unchecks a report: right "报损报溢取消审核" ("您没有取消审核商品报损单的权限！", or the
// overflow report's), the closed-period test and the confirmation before the transaction; then
// unchecked copies deleted, the stores taken back row by row, status 0, the cost difference row
// deleted, the log line.
Outcome uncheckLoss(shell::Session &session, const QString &number);
Outcome uncheckOverflow(shell::Session &session, const QString &number);

} // namespace medistock::stock
