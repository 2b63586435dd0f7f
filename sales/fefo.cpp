#include "sales/fefo.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "sales/options.h"
#include "sales/texts.h"
#include "shell/session.h"

#include <QSqlQuery>

#include <cmath>

namespace medistock::sales {

namespace {

QList<BatchProposal> batchesWithStock(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &date)
{
    QList<BatchProposal> batches;
    session.db().forEach(
        QStringLiteral("select t_ph,t_yxq,t_scrq,t_sl from jxc_tkc where g_sn=? and ck_sn=? and "
                       "t_sl>0 and (t_yxq='' or t_yxq is null or t_yxq>=?) order by case when "
                       "t_yxq='' or t_yxq is null then 1 else 0 end,t_yxq,t_ph,t_scrq,id"),
        { goods, warehouse, date }, [&](const QSqlQuery &q) {
            batches.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toDouble(), 0 });
        });
    return batches;
}

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

bool isExpired(const QString &expiry, const QString &date)
{
    return !expiry.isEmpty() && expiry < date;
}

FefoProposal proposeBatches(const shell::Session &session, const QString &goods,
    const QString &warehouse, double quantity, const QString &date)
{
    FefoProposal proposal;
    double left = quantity;
    const int decimals = session.params().quantityDecimals();
    for (BatchProposal batch : batchesWithStock(session, goods, warehouse, date)) {
        if (left <= 0)
            break;
        batch.quantity = core::roundTo(std::min(left, batch.stock), decimals);
        left = core::roundTo(left - batch.quantity, decimals);
        proposal.batches.append(batch);
    }
    proposal.shortfall = std::max(left, 0.0);
    return proposal;
}

void applyFefo(const shell::Session &session, documents::DocumentDraft &draft)
{
    const int decimals = session.params().quantityDecimals();
    QList<documents::LineDraft> lines;
    for (const documents::LineDraft &line : draft.lines) {
        bool ok = false;
        const double quantity = line.quantity.toDouble(&ok);
        if (!line.batch.trimmed().isEmpty() || !ok || quantity <= 0) {
            lines.append(line);
            continue;
        }
        const double factor = baseFactor(session, line.goods, line.unit.trimmed());
        const FefoProposal proposal
            = proposeBatches(session, line.goods, draft.warehouse, quantity * factor, draft.date);
        if (proposal.batches.isEmpty()) {
            lines.append(line);
            continue;
        }
        for (const BatchProposal &batch : proposal.batches)
            lines.append(splitLine(line, &batch, batch.quantity, factor, decimals));
        if (proposal.shortfall > 0)
            lines.append(splitLine(line, nullptr, proposal.shortfall, factor, decimals));
    }
    draft.lines = lines;
}

Outcome confirmExpiredBatches(const shell::Session &session, const documents::ValidDocument &doc)
{
    for (const documents::ValidLine &line : doc.lines) {
        if (!isExpired(line.expiry, doc.date))
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
