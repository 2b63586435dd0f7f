#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stock-taking sheet "库存盘点单" (jxc_kcpd / jxc_kcpdsp): per goods and batch of one
// warehouse the counted quantity pd_sl beside the book quantity kc_sl of the time of counting.
// Only the differences are posted, as ledger kind "pd" at the count price pd_dj; a line's pd_zje
// is the value of its difference, (pd_sl - kc_sl) x pd_dj.
//
// The value differences are booked in jxc_yyfy, each only when not 0: the shortage, the sum of
// pd_zje over the lines counted short, as an expense row "费用" (a negative amount, money lost),
// and the surplus, the sum over the lines counted over, as an income row "收入" (positive); both
// dated the counting day, noted "商品盘点单<number>成本差额".

// Checks a sheet: right "库存盘点审核"; then status 1, checker and check date, unchecked copies
// deleted, the lines' identities id2 fixed, one "pd" row ("库存盘点") per line whose count
// differs, today's settlement rows; per row warehouse stock, g_kc, the day's settlement, the
// rerun and the batch; the log line; the expense and income rows. No batch check is made.
Outcome checkStockTaking(shell::Session &session, const QString &number);

// Unchecks a sheet: right "库存盘点取消审核" ("您没有取消审核库存盘点单的权限！"), the
// closed-period test, the question "您的操作将取消当前的单据，确认吗？", then the later-business
// test: a ledger row of a counted goods in the sheet's warehouse, dated after the counting day
// and written after the sheet's check, refuses (rows of the counting day never do). Then the
// stores taken back row by row, status 0, the expense and income rows deleted, the log line.
Outcome uncheckStockTaking(shell::Session &session, const QString &number);

} // namespace medistock::stock
