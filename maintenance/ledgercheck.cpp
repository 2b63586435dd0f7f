#include "core/connection.h"
#include "core/rounding.h"
#include "maintenance/checks.h"
#include "shell/session.h"
#include "stock/ledger.h"

#include <QHash>
#include <QSqlQuery>

namespace medistock::maintenance::detail {

namespace {

using stock::LedgerStep;
using stock::RunningState;

struct StoredRow
{
    qint64 id = 0;
    QString goods;
    QString warehouse;
    QString date;
    QString number;
    stock::LedgerMovement movement;
    double carriedQuantity = 0;
    double carriedAmount = 0;
    double average = 0;
    double quantity = 0;
    double value = 0;
};

bool sameState(const RunningState &a, const RunningState &b)
{
    return a.quantity == b.quantity && a.average == b.average && a.value == b.value
        && a.sumQuantity == b.sumQuantity && a.sumAmount == b.sumAmount;
}

void addCandidate(QList<RunningState> &candidates, const RunningState &state)
{
    for (const RunningState &c : candidates)
        if (sameState(c, state))
            return;
    candidates.append(state);
}

QList<std::pair<QString, std::pair<double, double>>> differing(
    const StoredRow &row, const LedgerStep &step)
{
    const std::pair<const char *, std::pair<double, double>> all[] = {
        { "结存数量", { row.quantity, step.after.quantity } },
        { "成本均价", { row.average, step.after.average } },
        { "结存金额", { row.value, step.after.value } },
        { "计入均价数量", { row.carriedQuantity, step.carriedQuantity } },
        { "计入均价金额", { row.carriedAmount, step.carriedAmount } },
    };
    QList<std::pair<QString, std::pair<double, double>>> result;
    for (const auto &[label, figures] : all)
        if (!same(figures.first, figures.second))
            result.append({ QString::fromUtf8(label), figures });
    return result;
}

// Walks one goods-and-warehouse ledger. The reruns that may have written a date's rows are kept
// as candidates: one that starts at this date from the stored row before it, and each one that
// started earlier and still agrees. A row no candidate gives is a drift, shown with what the
// first candidate computes (the rerun from the row's own date when that still agrees); the walk
// then goes on from there, so one row changed by hand is one finding.
class ChainWalk
{
public:
    ChainWalk(const stock::RunningRounding &rounding, double goodsAverage)
        : m_rounding(rounding)
        , m_goodsAverage(goodsAverage)
    { }

    std::optional<LedgerDrift> step(const StoredRow &row)
    {
        if (m_candidates.isEmpty()) {
            addCandidate(m_candidates, stock::openingAfter(0, m_goodsAverage, 0));
            addCandidate(m_candidates, stock::openingAfter(0, row.average, 0));
        } else if (row.date != m_date) {
            // A rerun from this date comes first: it is what the repair would run.
            QList<RunningState> candidates { stock::openingAfter(
                m_last.quantity, m_last.average, m_last.value) };
            for (const RunningState &c : std::as_const(m_candidates))
                addCandidate(candidates, c);
            m_candidates = candidates;
        }
        m_date = row.date;
        m_last = row;
        QList<RunningState> agreeing;
        std::optional<LedgerStep> first;
        for (const RunningState &candidate : m_candidates) {
            const LedgerStep step = stock::stepLedger(candidate, row.movement, m_rounding);
            if (!first)
                first = step;
            if (differing(row, step).isEmpty())
                addCandidate(agreeing, step.after);
        }
        if (!agreeing.isEmpty()) {
            m_candidates = agreeing;
            return std::nullopt;
        }
        m_candidates = { first->after };
        return LedgerDrift { row.id, row.goods, row.warehouse, row.number, row.date,
            differing(row, *first) };
    }

private:
    stock::RunningRounding m_rounding;
    double m_goodsAverage;
    QList<RunningState> m_candidates;
    QString m_date;
    StoredRow m_last;
};

StoredRow readRow(const QSqlQuery &q)
{
    StoredRow row;
    row.id = q.value(0).toLongLong();
    row.goods = q.value(1).toString();
    row.warehouse = q.value(2).toString();
    row.date = q.value(3).toString();
    row.number = q.value(4).toString();
    row.movement = { q.value(5).toString(), q.value(6).toDouble(), q.value(7).toDouble(),
        q.value(8).toDouble() };
    row.carriedQuantity = q.value(9).toDouble();
    row.carriedAmount = q.value(10).toDouble();
    row.average = q.value(11).toDouble();
    row.quantity = q.value(12).toDouble();
    row.value = q.value(13).toDouble();
    return row;
}

} // namespace

QList<LedgerDrift> ledgerDrifts(const shell::Session &session, int &rowsChecked)
{
    core::Connection &db = session.db();
    QHash<QString, double> goodsAverages;
    db.forEach(QStringLiteral("select g_sn,g_pjjj from jxc_goods"), {},
        [&](const QSqlQuery &q) { goodsAverages[q.value(0).toString()] = q.value(1).toDouble(); });
    const stock::RunningRounding rounding = stock::RunningRounding::of(session.params());
    QList<LedgerDrift> drifts;
    std::optional<ChainWalk> walk;
    QString chain;
    db.forEach(QStringLiteral("select id,g_sn,ck_sn,gl_kdrq,gl_djh,gl_flag,gl_sl,gl_je,gl_dj,"
                              "gl_sqsl,gl_sqje,gl_pjjj,gl_kc,gl_kczje from jxc_goodslist "
                              "order by g_sn,ck_sn,gl_kdrq,id"),
        {}, [&](const QSqlQuery &q) {
            const StoredRow row = readRow(q);
            const QString key = row.goods + QChar(0) + row.warehouse;
            if (!walk || key != chain) {
                walk.emplace(rounding, goodsAverages.value(row.goods));
                chain = key;
            }
            if (auto drift = walk->step(row))
                drifts.append(*drift);
            ++rowsChecked;
        });
    return drifts;
}

QString describe(core::Connection &db, const LedgerDrift &drift)
{
    QStringList parts;
    for (const auto &[label, figures] : drift.figures)
        parts.append(
            QStringLiteral("%1 帐上 %2，重算 %3")
                .arg(label, core::plainNumber(figures.first), core::plainNumber(figures.second)));
    return QStringLiteral("流水账 %1 %2（%3，%4）：%5")
        .arg(drift.number, drift.date, goodsLabel(db, drift.goods),
            warehouseLabel(db, drift.warehouse), parts.join(QStringLiteral("；")));
}

} // namespace medistock::maintenance::detail
