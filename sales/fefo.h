#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// First expiry, first out: which batches a goods picked without a batch should leave from.

struct BatchProposal
{
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
    double stock = 0; // t_sl, base units
    double quantity = 0; // proposed, base units
};

struct FefoProposal
{
    QList<BatchProposal> batches;
    double shortfall = 0; // what no batch with stock covers, base units
};

// The warehouse's batches of the goods that hold stock and have not expired by `date`, earliest
// expiry first (documents/expiry.h: a month expiry counts as the month's last day; a batch
// without expiry last; then by batch number and production date), each taking as much of
// `quantity` (base units) as it holds until the quantity is covered. Reads only.
FefoProposal proposeBatches(const shell::Session &session, const QString &goods,
    const QString &warehouse, double quantity, const QString &date);

// Splits each line of the draft that names no batch over the batches its goods has left: one
// line per proposed batch in the line's own unit (when the batch quantity divides evenly into
// it, else in the base unit), and a line without batch for any shortfall. The lines of one goods
// are allocated together: what the lines naming a batch take, and what each earlier line was
// given, is not offered again. Lines with a batch and goods without batches in stock stay as
// they are. Reads only.
void applyFefo(const shell::Session &session, documents::DocumentDraft &draft);

// The expired-batch rule of a sale's lines: with "过期商品不能销售" on the first expired line is
// refused, otherwise each is asked about and "No" refuses.
Outcome confirmExpiredBatches(const shell::Session &session, const documents::ValidDocument &doc);

} // namespace medistock::sales
