#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace medistock::shell {
class Session;
}

namespace medistock::maintenance {

// The books' self-check ("库存核对", right kcgl 17). It reads only, and finds where the stored
// figures disagree with what the program's own routines compute from the rows beneath them:
// - warehouse stock kc_sl, batch stock t_sl and goods stock g_kc against the ledger's signed
//   quantities summed per warehouse, per batch (gift redemptions "dh" left out: they name no
//   batch and leave the batches alone) and per goods;
// - every ledger row's running columns (gl_kc, gl_pjjj, gl_kczje, gl_sqsl, gl_sqje) against the
//   stock engine's rerun step. A posting reruns from its own date with the stored state before
//   it, a backdated one carries the average's sums on across later dates; a row passes when one
//   of those reruns (from any earlier date of its goods and warehouse) gives its figures;
// - every running balance (receivables and payables, invoices, cash) against the chain's
//   recomputation from its first row;
// - the purchase-sales-stock difference check over the whole ledger, when the operator holds
//   its right (its figures then stay in the operator's summary rows, as that screen leaves them);
// - the database's own integrity check (SQLite; a PostgreSQL server keeps its own).
// Decisions of our own: the difference check and a damaged file are shown but not repaired (the
// first is mended by the outward cost resynchronisation, the second needs a backup); a stock
// row is mended by the store routines that postings use, so a missing row is created as a
// posting would create it.

struct Finding
{
    enum class Area { Warehouse, Batch, Goods, Ledger, Balance, Difference, Integrity };
    Area area = Area::Integrity;
    QString text; // Chinese, naming the goods, party or account and both figures
    bool repairable = false;
};

struct VerifyReport
{
    QList<Finding> findings;
    // The difference check's goods: shown apart, since the program's own postings leave such
    // differences (a backdated receipt reruns the averages but not the costs of the sales already
    // posted; "出库成本价同步" of the purchase-sales-stock statistics mends them).
    QList<Finding> differences;
    QStringList notes; // what was not checked and why
    int ledgerRows = 0; // rows whose running figures were checked
    int balanceRows = 0;
};

// Steps done of total; answering false cancels.
using VerifyProgress = std::function<bool(int done, int total)>;

// Runs every check. Refused without the right, or when cancelled.
Result<VerifyReport> verifyBooks(
    const shell::Session &session, const VerifyProgress &progress = {});

// The report as lines of text: each finding ("没有发现问题。" when there is none), then the
// difference check's goods under their heading, then the notes.
QStringList reportLines(const VerifyReport &report);

// Checks, asks "是否修复…" when something can be mended, and in one transaction reruns each ledger
// whose running figures disagree from its first wrong row, recomputes each running balance from
// its first wrong row, and brings each stock row to the ledger's sum. Returns the lines saying
// what it changed (empty when nothing was to mend or the answer was no). The log records it.
Result<QStringList> repairBooks(const shell::Session &session);

} // namespace medistock::maintenance
