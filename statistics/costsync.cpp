#include "statistics/costsync.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/descriptor.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "statistics/texts.h"
#include "stock/costs.h"
#include "stock/ledger.h"

#include <QSqlQuery>

namespace medistock::statistics {

namespace {

const QStringList walkedKinds { "bs", "by", "pl", "wp", "wt", "hh", "xt", "lt", "xs", "ly", "dh",
    "jh" };

// Kinds whose ledger amount is the goods' cost rather than a price.
const QStringList valuedAtCost { "bs", "by", "jh", "ly", "pl" };

enum class LineLink { Id2, LineId, Batch };

// The document line a ledger row of a kind came from, and the total it holds at cost.
struct LineTarget
{
    const char *kind;
    const char *table;
    const char *total;
    const char *quantity;
    LineLink link;
};

constexpr LineTarget lineTargets[] = {
    { "xs", "jxc_lsxssp", "ls_zcb", "ls_sl", LineLink::Id2 },
    { "xt", "jxc_xsthsp", "th_zcb", "th_sl", LineLink::LineId },
    { "bs", "jxc_bssp", "bs_zje", "bs_sl", LineLink::Batch },
    { "by", "jxc_bysp", "by_zje", "by_sl", LineLink::Batch },
    { "jh", "jxc_khjhsp", "jh_zje", "jh_sl", LineLink::Batch },
};

struct Pair
{
    QString goods;
    QString warehouse;
};

struct WalkedRow
{
    qint64 id = 0;
    QString kind;
    QString date;
    QString number;
    qint64 lineId = 0; // id2
    double quantity = 0; // gl_sl
    double total = 0; // gl_zje
    double amount = 0; // gl_je
    QVariant cost, totalCost, profit; // gl_cbj, gl_zcb, gl_lr as stored
    QString batch, expiry, produced;
};

QList<Pair> pairsOf(const shell::Session &session, const DateRange &range)
{
    Sql sql { QStringLiteral("select distinct g_sn,ck_sn from jxc_goodslist a where g_sn<>? and "
                             "gl_kdrq>=? and gl_kdrq<=? and "),
        { documents::discountGoods(), range.from, range.toEnd() } };
    sql += kindIn(QStringLiteral("gl_flag"), walkedKinds);
    sql.text += QStringLiteral(" order by g_sn,ck_sn");
    QList<Pair> pairs;
    session.db().forEach(sql.text, sql.params, [&](const QSqlQuery &q) {
        pairs.append({ q.value(0).toString(), q.value(1).toString() });
    });
    return pairs;
}

QList<WalkedRow> rowsOf(const shell::Session &session, const Pair &pair, const DateRange &range)
{
    Sql sql { QStringLiteral("select id,gl_flag,gl_kdrq,gl_djh,id2,gl_sl,gl_zje,gl_je,gl_cbj,"
                             "gl_zcb,gl_lr,t_ph,t_yxq,t_scrq from jxc_goodslist where g_sn=? and "
                             "ck_sn=? and gl_kdrq>=? and gl_kdrq<=? and "),
        { pair.goods, pair.warehouse, range.from, range.toEnd() } };
    sql += kindIn(QStringLiteral("gl_flag"), walkedKinds);
    sql.text += QStringLiteral(" order by gl_kdrq,id");
    QList<WalkedRow> rows;
    session.db().forEach(sql.text, sql.params, [&](const QSqlQuery &q) {
        rows.append({ q.value(0).toLongLong(), q.value(1).toString(), q.value(2).toString(),
            q.value(3).toString(), q.value(4).toLongLong(), q.value(5).toDouble(),
            q.value(6).toDouble(), q.value(7).toDouble(), q.value(8), q.value(9), q.value(10),
            q.value(11).toString(), q.value(12).toString(), q.value(13).toString() });
    });
    return rows;
}

bool differs(const QVariant &stored, double computed)
{
    return stored.isNull() || stored.toDouble() != computed;
}

// Rewrites the ledger row at `cost`; true when any of its figures changed. `amountChanged` tells
// whether gl_je moved, which the running columns carry for the adding kinds.
bool rewriteLedgerRow(
    const shell::Session &session, const WalkedRow &row, double cost, bool &amountChanged)
{
    const shell::Parameters &p = session.params();
    const double totalCost = p.roundAmount(row.quantity * cost);
    const bool atCost = valuedAtCost.contains(row.kind);
    const double total = atCost ? totalCost : row.total;
    const double amount = atCost ? totalCost : row.amount;
    const double profit = p.roundAmount(total - totalCost);
    amountChanged = amount != row.amount;
    if (!differs(row.cost, cost) && !differs(row.totalCost, totalCost)
        && !differs(row.profit, profit) && total == row.total && !amountChanged)
        return false;
    session.db().exec(QStringLiteral("update jxc_goodslist set gl_cbj=?,gl_zcb=?,gl_lr=?,gl_zje=?,"
                                     "gl_je=? where id=?"),
        { cost, totalCost, profit, total, amount, row.id });
    return true;
}

Sql lineSelect(const LineTarget &target, const WalkedRow &row, const QString &goods)
{
    Sql sql { QStringLiteral("select id,%1,%2 from %3 where gl_djh=? and g_sn=?")
                  .arg(QLatin1String(target.quantity), QLatin1String(target.total),
                      QLatin1String(target.table)),
        { row.number, goods } };
    if (target.link == LineLink::Id2)
        sql += { QStringLiteral(" and id2=?"), { row.lineId } };
    else if (target.link == LineLink::LineId)
        sql += { QStringLiteral(" and id=?"), { row.lineId } };
    else
        sql += { QStringLiteral(" and t_ph=? and t_yxq=? and t_scrq=?"),
            { row.batch, row.expiry, row.produced } };
    return sql;
}

// Rewrites the document lines of the row at `cost`; returns how many changed.
int rewriteLines(
    const shell::Session &session, const WalkedRow &row, const QString &goods, double cost)
{
    for (const LineTarget &target : lineTargets) {
        if (row.kind != QLatin1String(target.kind))
            continue;
        struct Line
        {
            qint64 id;
            double total;
            QVariant stored;
        };
        QList<Line> lines;
        const Sql sql = lineSelect(target, row, goods);
        session.db().forEach(sql.text, sql.params, [&](const QSqlQuery &q) {
            lines.append({ q.value(0).toLongLong(),
                session.params().roundAmount(q.value(1).toDouble() * cost), q.value(2) });
        });
        int changed = 0;
        for (const Line &line : lines) {
            if (!differs(line.stored, line.total))
                continue;
            session.db().exec(QStringLiteral("update %1 set %2=? where id=?")
                                  .arg(QLatin1String(target.table), QLatin1String(target.total)),
                { line.total, line.id });
            ++changed;
        }
        return changed;
    }
    return 0;
}

void syncPair(const shell::Session &session, const Pair &pair, const DateRange &range,
    CostSyncSummary &summary)
{
    qint64 rerunFrom = 0;
    for (const WalkedRow &row : rowsOf(session, pair, range)) {
        const double cost
            = stock::costAtLedgerPosition(session, pair.goods, pair.warehouse, row.date, row.id);
        bool amountChanged = false;
        if (rewriteLedgerRow(session, row, cost, amountChanged))
            ++summary.rowsChanged;
        if (amountChanged && !rerunFrom
            && stock::kindRole(row.kind, row.quantity).direction
                == stock::KindRole::Direction::Adds)
            rerunFrom = row.id;
        summary.linesChanged += rewriteLines(session, row, pair.goods, cost);
        ++summary.rows;
    }
    if (rerunFrom)
        stock::rerunLedger(session, rerunFrom, false);
}

Outcome walk(const shell::Session &session, const DateRange &range, const Progress &progress,
    CostSyncSummary &summary)
{
    core::Transaction transaction(session.db());
    const QList<Pair> pairs = pairsOf(session, range);
    for (const Pair &pair : pairs) {
        syncPair(session, pair, range, summary);
        ++summary.pairs;
        if (!goOn(progress, summary.pairs, int(pairs.size())))
            return Outcome::refused(texts::cancelled());
    }
    session.log(texts::costSyncLog(range.from, range.to, summary.rowsChanged));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Result<CostSyncSummary> syncOutwardCosts(
    const shell::Session &session, const DateRange &range, const Progress &progress)
{
    const Outcome allowed = shell::requireRight(session, "tjgl", 13);
    if (!allowed)
        return allowed;
    const Outcome valid = requireValidRange(session, range);
    if (!valid)
        return valid;
    if (!session.ui().ask(texts::costSyncQuestion(range.from, range.to)))
        return Outcome::refused(QString());
    CostSyncSummary summary;
    const Outcome outcome
        = core::guarded(session.ui(), [&] { return walk(session, range, progress, summary); });
    if (!outcome)
        return outcome;
    return summary;
}

} // namespace medistock::statistics
