#include "ui/members/historydialog.h"

#include "core/interaction.h"
#include "core/rounding.h"
#include "core/spreadsheet.h"
#include "members/history.h"
#include "members/member.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/masterdata/texts.h"
#include "ui/members/texts.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString figure(double value)
{
    return value == 0 ? QString() : core::plainNumber(value);
}

} // namespace

HistoryDialog::HistoryDialog(Workspace &workspace, const QString &member, QWidget *parent)
    : QDialog(parent)
    , m_workspace(workspace)
    , m_grid(makeGrid(mbtexts::historyColumns, this))
{
    const shell::Session &session = workspace.session;
    std::optional<members::Member> m;
    QList<members::HistoryRow> history;
    readSafely(session.ui(), [&] {
        m = members::readMember(session.db(), member);
        history = members::memberHistory(session.db(), member);
    });
    setWindowTitle(mbtexts::historyTitle);
    QList<QStringList> rows;
    for (const members::HistoryRow &row : history)
        rows.append(
            { row.time, row.kind, row.number, figure(row.amount), figure(row.points), row.note });
    fillGrid(m_grid, rows);
    for (int r = 0; r < m_grid->rowCount(); ++r)
        for (const int c : { 3, 4 })
            if (QTableWidgetItem *item = m_grid->item(r, c))
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_grid->setColumnWidth(0, 150);
    m_grid->setColumnWidth(1, 190);
    m_grid->setColumnWidth(2, 120);
    workspace.rememberColumns(m_grid, QStringLiteral("会员记录"));

    auto *top = new QHBoxLayout;
    top->addWidget(new QLabel(m ? mbtexts::memberLine(m->card, m->name) : member, this), 1);
    top->addWidget(new QLabel(texts::rowCount(m_grid->rowCount()), this));
    auto *exportButton = new QPushButton(mbtexts::exportButton, this);
    auto *close = new QPushButton(mbtexts::close, this);
    connect(exportButton, &QPushButton::clicked, this, &HistoryDialog::exportGrid);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    top->addWidget(exportButton);
    top->addWidget(close);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_grid, 1);
    resize(900, 480);
}

void HistoryDialog::exportGrid()
{
    const QString path = QFileDialog::getSaveFileName(this, texts::exportTitle(),
        QDir::home().filePath(mbtexts::historyTitle + QStringLiteral(".xlsx")),
        texts::xlsxFilter());
    if (path.isEmpty())
        return;
    QList<QVariantList> rows;
    for (int r = 0; r < m_grid->rowCount(); ++r) {
        QVariantList row;
        for (int c = 0; c < m_grid->columnCount(); ++c)
            row.append(m_grid->item(r, c) ? m_grid->item(r, c)->text() : QString());
        rows.append(row);
    }
    const Outcome written
        = core::writeXlsx(path, mbtexts::historyTitle, mbtexts::historyColumns, rows);
    m_workspace.session.ui().inform(written ? texts::exported(path) : written.message());
}

} // namespace medistock::ui
