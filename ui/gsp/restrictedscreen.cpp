#include "ui/gsp/restrictedscreen.h"

#include "core/interaction.h"
#include "gsp/restricted.h"
#include "gsp/texts.h"
#include "ui/common/grid.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/texts.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

RestrictedScreen::RestrictedScreen(Workspace &workspace, QWidget *parent)
    : RecordScreen(
        workspace, QStringLiteral("含麻药品"), {},
        [this](const RecordScreen &screen) -> Result<gsp::RecordTable> {
            shell::Session &session = m_workspace.session;
            if (m_summary) {
                const auto rows = gsp::restrictedSummary(session, screen.filter());
                if (!rows)
                    return rows.outcome();
                return gsp::restrictedSummaryTable(rows.value());
            }
            const auto rows = gsp::restrictedLedger(session, screen.filter());
            if (!rows)
                return rows.outcome();
            return gsp::restrictedTable(rows.value());
        },
        parent)
{
    m_toggle = addButton(gsptexts::summary, QKeySequence(), [this] { setSummary(!m_summary); });
    connect(this, &RecordScreen::rowActivated, this, &RestrictedScreen::openDocument);
    reload();
}

void RestrictedScreen::setSummary(bool summary)
{
    m_summary = summary;
    m_toggle->setText(summary ? gsptexts::ledgerView : gsptexts::summary);
    reload();
}

void RestrictedScreen::openDocument(int row)
{
    if (m_summary || row < 0)
        return;
    const QVariantList &cells = model()->table().rows.value(row);
    const QString number = cells.value(1).toString();
    const QString title = gsptexts::documentTitle(cells.value(2).toString(), number);
    TableDialog dialog(m_workspace,
        gsp::postedLinesTable(title, gsp::postedLines(m_workspace.session, number)), this);
    dialog.exec();
}

TableDialog::TableDialog(Workspace &workspace, const gsp::RecordTable &table, QWidget *parent)
    : QDialog(parent)
    , m_grid(makeTableView(this))
{
    setWindowTitle(table.title);
    auto *model = new RecordTableModel(workspace.session.params(), this);
    model->setTable(table);
    m_grid->setModel(model);
    m_grid->resizeColumnsToContents();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_grid, 1);
    layout->addWidget(new QLabel(texts::rowCount(model->recordCount()), this));
    layout->addWidget(buttons);
    resize(900, 360);
}

} // namespace medistock::ui
