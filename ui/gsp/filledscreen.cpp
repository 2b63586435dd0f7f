#include "ui/gsp/filledscreen.h"

#include "core/interaction.h"
#include "gsp/filled.h"
#include "ui/common/grid.h"
#include "ui/common/workspace.h"
#include "ui/gsp/filleddialog.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/texts.h"

#include <QTableView>

namespace medistock::ui {

namespace {

Result<gsp::RecordTable> recordsOf(
    Workspace &workspace, gsp::FilledKind kind, const gsp::RecordFilter &filter)
{
    if (kind == gsp::FilledKind::Inspection) {
        const auto records = gsp::inspectionRecords(workspace.session, filter);
        if (!records)
            return records.outcome();
        return gsp::inspectionTable(records.value());
    }
    const auto records = gsp::trackingRecords(workspace.session, filter);
    if (!records)
        return records.outcome();
    return gsp::trackingTable(records.value());
}

} // namespace

FilledScreen::FilledScreen(Workspace &workspace, gsp::FilledKind kind, QWidget *parent)
    : RecordScreen(
        workspace,
        kind == gsp::FilledKind::Inspection ? QStringLiteral("陈列检查")
                                            : QStringLiteral("近效期跟踪"),
        {},
        [&workspace, kind](
            const RecordScreen &screen) { return recordsOf(workspace, kind, screen.filter()); },
        parent)
    , m_kind(kind)
    , m_lines(makeTableView(this))
    , m_linesModel(new RecordTableModel(workspace.session.params(), this))
{
    m_lines->setModel(m_linesModel);
    setBelow(m_lines);
    addButton(gsptexts::add, QKeySequence(Qt::Key_F2), [this] { addRecord(); });
    addButton(gsptexts::remove, QKeySequence(), [this] { deleteRecord(); });
    addButton(gsptexts::removeLine, QKeySequence(), [this] { deleteLine(); });
    connect(this, &RecordScreen::currentRowChanged, this, &FilledScreen::showLines);
    reload();
}

void FilledScreen::showLines()
{
    const QString number = currentKey().toString();
    m_linesModel->setTable(gsp::filledLinesTable(m_kind,
        number.isEmpty() ? QList<gsp::FilledLine>()
                         : gsp::filledLines(m_workspace.session, m_kind, number)));
    m_lines->resizeColumnsToContents();
}

PrintRequest FilledScreen::printRequest() const
{
    const gsp::RecordTable &lines = m_linesModel->table();
    return { lines.printKey, {}, m_linesModel, lines.printFields, m_linesModel->recordCount(),
        filterText() };
}

void FilledScreen::addRecord()
{
    FilledDialog dialog(m_workspace, m_kind, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void FilledScreen::deleteRecord()
{
    const QString number = currentKey().toString();
    if (number.isEmpty()) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    if (gsp::deleteFilledRecord(m_workspace.session, m_kind, number))
        reload();
}

void FilledScreen::deleteLine()
{
    const int row = m_lines->currentIndex().row();
    if (row < 0 || row >= m_linesModel->recordCount()) {
        m_workspace.session.ui().inform(gsptexts::chooseRowFirst);
        return;
    }
    if (gsp::deleteFilledLine(
            m_workspace.session, m_kind, m_linesModel->table().keys.value(row).toLongLong()))
        reload();
}

} // namespace medistock::ui
