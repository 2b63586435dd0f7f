#include "ui/documents/screenkind.h"

#include "documents/expiry.h"
#include "sales/fefo.h"
#include "shell/session.h"
#include "stock/stockview.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/texts.h"
#include "ui/documents/uncheckeddialog.h"

#include <QDate>

namespace medistock::ui {

QList<LineField> DocumentScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
        LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Quantity,
        LineField::Price, LineField::Discount, LineField::Amount, LineField::TaxRate,
        LineField::Total, LineField::Stock, LineField::Remark };
}

QList<LineField> DocumentScreenKind::enterFields() const
{
    if (outgoing())
        return { LineField::Code, LineField::Batch, LineField::Quantity, LineField::Price };
    return { LineField::Code, LineField::Batch, LineField::Produced, LineField::Expiry,
        LineField::Quantity, LineField::Price };
}

QList<std::pair<QString, QWidget *>> DocumentScreenKind::createHeaderFields(QWidget *)
{
    return {};
}

void DocumentScreenKind::loadHeader(const QSqlRecord &)
{ }

void DocumentScreenKind::clearHeader()
{ }

void DocumentScreenKind::setHeaderReadOnly(bool)
{ }

void DocumentScreenKind::loadLine(const documents::DocumentLineRow &, LineEntry &) const
{ }

void DocumentScreenKind::proposeFigures(
    const shell::Session &, LineEntry &, const QString &, const QString &) const
{ }

void DocumentScreenKind::addActions(DocumentScreen &)
{ }

QString DocumentScreenKind::saveCaption() const
{
    return doctexts::saveButton;
}

QString DocumentScreenKind::listCaption() const
{
    return doctexts::uncheckedButton;
}

void DocumentScreenKind::afterSave(DocumentScreen &screen, const QString &number)
{
    screen.openDocument(number);
}

void DocumentScreenKind::showList(DocumentScreen &screen)
{
    UncheckedDialog dialog(screen);
    dialog.exec();
}

QList<BatchChoice> DocumentScreenKind::batchChoices(const shell::Session &session,
    const QString &goods, const QString &warehouse, const QString &date) const
{
    const QDate day = QDate::fromString(date, QStringLiteral("yyyy-MM-dd"));
    const auto near = [&](const QString &expiry) {
        const QDate last
            = QDate::fromString(documents::expiryDay(expiry), QStringLiteral("yyyy-MM-dd"));
        return last.isValid() && day.isValid() && last <= day.addDays(nearExpiryDays);
    };
    QList<BatchChoice> choices;
    for (const stock::BatchStockRow &row : stock::batchStockRows(session, goods, warehouse))
        if (row.quantity > 0 && documents::expiredBy(row.expiry, date))
            choices.append(
                { row.batch, row.expiry, row.produced, row.quantity, true, true, false });
    // Everything the batches hold, so that the proposal lists every batch still good.
    double held = 0;
    for (const stock::BatchStockRow &row : stock::batchStockRows(session, goods, warehouse))
        held += std::max(row.quantity, 0.0);
    const sales::FefoProposal proposal
        = sales::proposeBatches(session, goods, warehouse, held, date);
    bool first = true;
    for (const sales::BatchProposal &batch : proposal.batches) {
        choices.append({ batch.batch, batch.expiry, batch.produced, batch.stock, false,
            near(batch.expiry), first });
        first = false;
    }
    return choices;
}

} // namespace medistock::ui
