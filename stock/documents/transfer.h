#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stock transfer "库存调拨单" (jxc_kcdbd / jxc_dbsp) moves goods from its issuing warehouse
// ck_out into its receiving warehouse ck_in at the transfer price; the goods totals g_kc and
// the goods average stay as they are.

// Checks a transfer: right "库存调拨审核"; the batch check "DB" against the issuing warehouse
// (refused, or asked when negative stock is allowed) before the transaction; then status 1,
// checker and check date, unchecked copies deleted, per line a "db" ledger row into the
// receiving warehouse ("调拨入库", +db_zsl) and, after all of them, one out of the issuing
// warehouse ("调拨出库", -db_zsl), each at db_dj x db_sl; today's settlement rows; per ledger row
// warehouse stock, the day's settlement by gl_je, the rerun and the batch; the log line.
Outcome checkTransfer(shell::Session &session, const QString &number);

// Unchecks a transfer: right "库存调拨取消审核" ("您没有取消审核库存调拨单的权限！"), the
// closed-period test, the confirmation, and the batch check "DB" against the receiving warehouse,
// all before the transaction; then unchecked copies deleted, per ledger row the stores taken back
// and the row deleted, status 0 without checker, and the log line. Whoever checked it, the right
// is all an operator needs.
Outcome uncheckTransfer(shell::Session &session, const QString &number);

} // namespace medistock::stock
