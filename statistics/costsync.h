#pragma once

#include "core/outcome.h"
#include "statistics/filters.h"

namespace medistock::shell {
class Session;
}

namespace medistock::statistics {

// Outward cost resynchronisation ("出库成本价同步"). Costs of outgoing lines are taken when a
// document is entered; a receipt backdated later, or a receipt unchecked, moves the moving
// average under them, and the summary's difference check then shows the gap. The resync walks,
// per goods and warehouse, the outgoing ledger rows of the range in date-then-id order and values
// each at the cost of its ledger position (stock::costAtLedgerPosition):
// - the ledger row: gl_cbj = cost, gl_zcb = gl_sl x cost, gl_lr = gl_zje - gl_zcb; rows of the
//   kinds whose amount is their cost (loss, overflow, loan, issue, split) also get
//   gl_je = gl_zje = gl_zcb, so their profit is 0;
// - the document line it came from: a sale's ls_zcb = ls_sl x cost, a sales return's
//   th_zcb = th_sl x cost, a loss's bs_zje = bs_sl x cost, an overflow's by_zje = by_sl x cost, a
//   loan's jh_zje = jh_sl x cost. Sales and returns find their line by the row's id2; the other
//   kinds by number, goods and batch, which give every line of one batch in one document the same
//   cost anyway. Kinds whose documents this system does not keep rewrite the ledger row alone.
// Amounts are rounded to the amount places. Where an amount of an adding kind changed, the goods'
// ledger is rerun from that row, so that the carried amounts stay what a rerun writes.
// The walked kinds: bs by pl wp wt hh xt lt xs ly dh jh.

struct CostSyncSummary
{
    int pairs = 0; // goods and warehouses walked
    int rows = 0; // ledger rows walked
    int rowsChanged = 0;
    int linesChanged = 0; // document lines rewritten
};

// Asks first, then rewrites in one transaction; right "进销存统计" (tjgl 13). `progress` counts
// goods and warehouses; a cancel rolls everything back. A "No" is refused with an empty message.
Result<CostSyncSummary> syncOutwardCosts(
    const shell::Session &session, const DateRange &range, const Progress &progress = {});

} // namespace medistock::statistics
