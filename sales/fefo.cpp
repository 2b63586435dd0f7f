#include "sales/fefo.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "documents/expiry.h"
#include "sales/options.h"
#include "sales/texts.h"
#include "shell/session.h"

#include <QHash>
#include <QSqlQuery>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace medistock::sales {

namespace {

double baseFactor(const shell::Session &session, const QString &goods, const QString &unit)
{
    if (unit.isEmpty())
        return 1;
    const QVariant factor = session.db().firstValue(
        QStringLiteral("select g_zhxs from jxc_goodsdw where g_sn=? and dw_name=? order by id "
                       "limit 1"),
        { goods, unit });
    return factor.isValid() && factor.toDouble() > 0 ? factor.toDouble() : 1;
}

// The batches with stock not expired by the date, first expiry first.
QList<BatchProposal> batchesWithStock(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date)
{
    QList<std::pair<QString, BatchProposal>> keyed;
    session.db().forEach(
        QStringLiteral("select t_ph,t_yxq,t_scrq,t_sl from jxc_tkc where g_sn=? and ck_sn=? and "
                       "t_sl>0 order by id"),
        { goods, warehouse }, [&](const QSqlQuery &q) {
            BatchProposal batch { q.value(0).toString(), q.value(1).toString(),
                q.value(2).toString(), q.value(3).toDouble(), 0 };
            if (!documents::expiredBy(batch.expiry, date))
                keyed.append({ documents::expirySortKey(batch.expiry), batch });
        });
    std::stable_sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) {
        return std::tie(a.first, a.second.batch, a.second.produced)
            < std::tie(b.first, b.second.batch, b.second.produced);
    });
    QList<BatchProposal> batches;
    for (const auto &[key, batch] : keyed)
        batches.append(batch);
    return batches;
}

// Each batch in order gives what it holds until the quantity is covered.
FefoProposal allocate(const QList<BatchProposal> &batches, double quantity, int decimals)
{
    FefoProposal proposal;
    double left = quantity;
    for (BatchProposal batch : batches) {
        if (left <= 0)
            break;
        if (batch.stock <= 0)
            continue;
        batch.quantity = core::roundTo(std::min(left, batch.stock), decimals);
        left = core::roundTo(left - batch.quantity, decimals);
        proposal.batches.append(batch);
    }
    proposal.shortfall = std::max(left, 0.0);
    return proposal;
}

// What the lines of a draft take from each batch, so that the next line is offered only what is
// left.
class BatchesLeft
{
public:
    BatchesLeft(const shell::Session &session, const documents::DocumentDraft &draft)
        : m_session(session)
        , m_draft(draft)
    { }

    QList<BatchProposal> &of(const QString &goods)
    {
        if (!m_batches.contains(goods)) {
            QList<BatchProposal> batches
                = batchesWithStock(m_session, goods, m_draft.warehouse, m_draft.date);
            // Lines that name their batch take from it first, wherever they stand.
            for (const documents::LineDraft &line : m_draft.lines)
                if (line.goods == goods && !line.batch.trimmed().isEmpty())
                    take(batches, line, baseQuantityOf(line));
            m_batches.insert(goods, batches);
        }
        return m_batches[goods];
    }

    static void take(QList<BatchProposal> &batches, const documents::LineDraft &line, double q)
    {
        for (BatchProposal &b : batches)
            if (b.batch == line.batch.trimmed() && b.expiry == line.expiry.trimmed()
                && b.produced == line.produced.trimmed())
                b.stock -= q;
    }

    double baseQuantityOf(const documents::LineDraft &line) const
    {
        return line.quantity.toDouble() * baseFactor(m_session, line.goods, line.unit.trimmed());
    }

private:
    const shell::Session &m_session;
    const documents::DocumentDraft &m_draft;
    QHash<QString, QList<BatchProposal>> m_batches;
};

QString quantityText(double value, int decimals)
{
    return QString::number(core::roundTo(value, decimals), 'f', decimals);
}

// One line of the split: in the line's unit when the batch quantity is whole units of it.
documents::LineDraft splitLine(const documents::LineDraft &line, const BatchProposal *batch,
    double baseQuantity, double factor, int decimals)
{
    documents::LineDraft part = line;
    if (batch) {
        part.batch = batch->batch;
        part.expiry = batch->expiry;
        part.produced = batch->produced;
    }
    const double units = baseQuantity / factor;
    if (factor == 1 || std::abs(units - std::round(units)) < core::comparisonMargin) {
        part.quantity = quantityText(units, decimals);
    } else {
        part.unit.clear();
        part.quantity = quantityText(baseQuantity, decimals);
        // A line without a price keeps none: the base unit's customer price is filled in later.
        if (!line.price.trimmed().isEmpty())
            part.price = QString::number(line.price.toDouble() / factor, 'g', 15);
    }
    return part;
}

} // namespace

FefoProposal proposeBatches(const shell::Session &session, const QString &goods,
    const QString &warehouse, double quantity, const QString &date)
{
    return allocate(batchesWithStock(session, goods, warehouse, date), quantity,
        session.params().quantityDecimals());
}

void applyFefo(const shell::Session &session, documents::DocumentDraft &draft)
{
    const int decimals = session.params().quantityDecimals();
    BatchesLeft left(session, draft);
    QList<documents::LineDraft> lines;
    for (const documents::LineDraft &line : draft.lines) {
        bool ok = false;
        const double quantity = line.quantity.toDouble(&ok);
        if (!line.batch.trimmed().isEmpty() || !ok || quantity <= 0) {
            lines.append(line);
            continue;
        }
        const double factor = baseFactor(session, line.goods, line.unit.trimmed());
        QList<BatchProposal> &batches = left.of(line.goods);
        const FefoProposal proposal = allocate(batches, quantity * factor, decimals);
        if (proposal.batches.isEmpty()) {
            lines.append(line);
            continue;
        }
        for (const BatchProposal &batch : proposal.batches) {
            lines.append(splitLine(line, &batch, batch.quantity, factor, decimals));
            BatchesLeft::take(batches, lines.last(), batch.quantity);
        }
        if (proposal.shortfall > 0)
            lines.append(splitLine(line, nullptr, proposal.shortfall, factor, decimals));
    }
    draft.lines = lines;
}

Outcome confirmExpiredBatches(const shell::Session &session, const documents::ValidDocument &doc)
{
    for (const documents::ValidLine &line : doc.lines) {
        if (!documents::expiredBy(line.expiry, doc.date))
            continue;
        if (refusesExpiredGoods(session.params()))
            return core::refuse(session.ui(),
                texts::expiredBatchRefused(line.row, line.goodsName, line.batch, line.expiry));
        const QString question
            = texts::expiredBatchQuestion(line.row, line.goodsName, line.batch, line.expiry);
        if (!session.ui().ask(question))
            return Outcome::refused(question);
    }
    return Outcome::done();
}

} // namespace medistock::sales
