#include "ui/shell/logscreen.h"

#include "core/interaction.h"
#include "shell/logbook.h"
#include "shell/rights.h"
#include "ui/common/grid.h"
#include "ui/common/keys.h"
#include "ui/common/workspace.h"
#include "ui/shell/texts.h"

#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDateEdit *dateField(QDate date, QWidget *parent)
{
    auto *edit = new QDateEdit(date, parent);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit->setCalendarPopup(true);
    edit->setMinimumWidth(130);
    return edit;
}

} // namespace

void clearLogWithQuestion(Workspace &workspace)
{
    if (shell::clearLog(workspace.session))
        workspace.session.ui().inform(shelltexts::logCleared);
}

LogScreen::LogScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
{
    const QDate today = workspace.session.clock().today();
    m_from = dateField(QDate(today.year(), today.month(), 1), this);
    m_to = dateField(today, this);
    m_grid = makeGrid({ shelltexts::logTime, shelltexts::logOperator, shelltexts::logNote }, this);
    auto *search = new QPushButton(shelltexts::query, this);
    m_clear = new QPushButton(shelltexts::clearLog, this);
    m_clear->setEnabled(shell::hasRight(workspace.session, QStringLiteral("qtcz"), 15));
    connect(search, &QPushButton::clicked, this, &LogScreen::query);
    connect(m_clear, &QPushButton::clicked, this, &LogScreen::clear);

    auto *bar = new QHBoxLayout;
    bar->addWidget(new QLabel(shelltexts::from, this));
    bar->addWidget(m_from);
    bar->addWidget(new QLabel(shelltexts::to, this));
    bar->addWidget(m_to);
    bar->addWidget(search);
    bar->addStretch(1);
    bar->addWidget(m_clear);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(m_grid, 1);

    m_grid->setColumnWidth(0, 170);
    m_grid->setColumnWidth(1, 120);
    m_workspace.rememberColumns(m_grid, QStringLiteral("查看日志"));
    enableEnterNavigation(this);
    query();
}

void LogScreen::query()
{
    const auto entries = shell::viewLog(m_workspace.session, m_from->date(), m_to->date());
    if (!entries)
        return;
    QList<QStringList> rows;
    for (const core::LogEntry &entry : entries.value())
        rows.append({ entry.time, entry.operatorName, entry.note });
    fillGrid(m_grid, rows);
}

void LogScreen::clear()
{
    clearLogWithQuestion(m_workspace);
    query();
}

} // namespace medistock::ui
