#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// "修改商品均价": the moving average of a goods set by hand (a cost that came in wrong and cannot
// be mended through its documents any more).
//
// The average of a goods lives in the running state of its ledger and in the warehouse cost
// kc_cbj of each warehouse; the goods average g_pjjj is the book-quantity weighted average of
// those. The change sets, in each warehouse asked for (one, or every warehouse holding a stock
// row of the goods), the last ledger row's average gl_pjjj and stock value gl_kczje = average x
// its running quantity, and the warehouse cost; then g_pjjj anew from the warehouse costs (the
// posting's own rule; the new average where no book stock is left). Every later posting reruns
// from its own row and opens with that stored state, so it goes on from the new average. A
// posting dated before that last row reruns over it and takes the change back; the question says
// so.

// What the screen shows before the change: the warehouse's (or the goods') average now.
struct AverageNow
{
    QString goodsName;
    QString unit; // the base unit
    double average = 0; // kc_cbj of the warehouse, g_pjjj for every warehouse
    double stock = 0; // kc_zsl of the warehouse, g_kc for every warehouse
};
Result<AverageNow> averageNow(
    const shell::Session &session, const QString &goods, const QString &warehouse);

// Sets the average per base unit (typed; a price from 0 on). Needs "修改商品均价" (kcgl 18); asks
// "确认将商品“…”的成本均价由 X 改为 Y 吗？…" before the transaction; logs
// "修改商品均价：<goods> <name> <old> -> <new>".
Outcome changeAverage(const shell::Session &session, const QString &goods, const QString &warehouse,
    const QString &typedAverage);

} // namespace medistock::stock
