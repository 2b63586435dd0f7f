#include "ui/stock/openingkind.h"

#include "core/interaction.h"
#include "purchasing/proposals.h"
#include "shell/session.h"
#include "stock/documents/openingstock.h"
#include "ui/common/queryscreen.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/stock/texts.h"

#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// The entries as a query: number, date, warehouse, rows, quantity, amount, operator.
class OpeningEntriesList : public QueryScreen
{
public:
    OpeningEntriesList(Workspace &workspace, QWidget *parent)
        : QueryScreen(workspace, sttexts::entriesTitle, parent)
    {
        const shell::Parameters &params = workspace.session.params();
        setColumns(
            { { sttexts::number, QueryColumn::Kind::Text, 0, false, 130 }, { sttexts::date },
                { sttexts::warehouse }, { sttexts::rows, QueryColumn::Kind::Number, 0, true },
                { sttexts::quantity, QueryColumn::Kind::Number, params.quantityDecimals(), true },
                { sttexts::costAmount, QueryColumn::Kind::Number, params.amountDecimals(), true },
                { sttexts::operatorName } },
            QStringLiteral("期初建账记录"));
    }

    QString numberAt(int row) const { return row >= 0 ? m_numbers.value(row) : QString(); }

protected:
    void fetch() override
    {
        QList<QVariantList> rows;
        m_numbers.clear();
        for (const stock::OpeningEntry &e : stock::openingEntries(m_workspace.session)) {
            rows.append({ e.number, e.date, e.warehouseName, e.rows, e.quantity, e.amount,
                e.operatorName });
            m_numbers.append(e.number);
        }
        setRows(rows);
    }

private:
    QStringList m_numbers;
};

} // namespace

const documents::DocumentKind &OpeningScreenKind::entry() const
{
    return stock::openingStockEntry();
}

QList<LineField> OpeningScreenKind::lineFields() const
{
    return { LineField::Row, LineField::Code, LineField::Name, LineField::Packing, LineField::Unit,
        LineField::Batch, LineField::Produced, LineField::Expiry, LineField::Quantity,
        LineField::Price, LineField::Amount, LineField::Stock, LineField::Remark };
}

QString OpeningScreenKind::dueLabel() const
{
    return sttexts::costAmount;
}

double OpeningScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &unit, const QString &) const
{
    return purchasing::proposedPurchasePrice(session, goods.code, unit);
}

Result<QString> OpeningScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    stock::OpeningDraft opening;
    opening.date = draft.date;
    for (const documents::LineDraft &line : draft.lines)
        opening.lines.append({ draft.warehouse, line });
    return stock::postOpeningStock(session, opening);
}

Outcome OpeningScreenKind::check(shell::Session &, const QString &, QWidget *)
{
    return Outcome::refused(QString());
}

Outcome OpeningScreenKind::uncheck(shell::Session &, const QString &)
{
    return Outcome::refused(QString());
}

Outcome OpeningScreenKind::remove(shell::Session &session, const QString &number)
{
    return stock::removeOpeningStock(session, number);
}

QString OpeningScreenKind::saveCaption() const
{
    return sttexts::postButton;
}

QString OpeningScreenKind::listCaption() const
{
    return sttexts::entriesButton;
}

void OpeningScreenKind::afterSave(DocumentScreen &screen, const QString &number)
{
    screen.workspace().session.ui().inform(sttexts::posted(number));
    screen.newDocument();
}

void OpeningScreenKind::showList(DocumentScreen &screen)
{
    OpeningEntriesDialog dialog(screen.workspace(), &screen);
    dialog.exec();
}

OpeningEntriesDialog::OpeningEntriesDialog(Workspace &workspace, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_list(new OpeningEntriesList(workspace, this))
{
    setWindowTitle(sttexts::entriesTitle);
    auto *remove = new QPushButton(sttexts::removeEntry, this);
    connect(remove, &QPushButton::clicked, this, &OpeningEntriesDialog::removeChosen);
    auto *key = new QShortcut(QKeySequence(Qt::Key_Delete), m_list->grid());
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &OpeningEntriesDialog::removeChosen);
    m_list->addButton(remove);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    resize(900, 480);
    m_list->run();
    m_list->grid()->setFocus();
}

void OpeningEntriesDialog::removeChosen()
{
    const QString number
        = static_cast<OpeningEntriesList *>(m_list)->numberAt(m_list->currentRow());
    if (number.isEmpty())
        return;
    stock::removeOpeningStock(m_workspace.session, number);
    m_list->run();
}

} // namespace medistock::ui
