#include "ui/statistics/reportscreen.h"

#include "core/interaction.h"
#include "shell/rights.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/texts.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui::stats {

namespace {

QTableView *makeGrid(QWidget *parent)
{
    auto *view = new QTableView(parent);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setAlternatingRowColors(true);
    view->setWordWrap(false);
    view->verticalHeader()->setVisible(false);
    view->verticalHeader()->setDefaultSectionSize(24);
    view->horizontalHeader()->setSectionsMovable(true);
    view->horizontalHeader()->setHighlightSections(false);
    return view;
}

// A column's first width: by its kind, and for texts by what they hold, so that a report's
// columns fit a 1366 pixels wide screen.
int widthOf(const ReportColumn &column)
{
    if (column.width > 0)
        return column.width;
    const QString &c = column.caption;
    switch (column.kind) {
    case CellKind::Count:
        return 55;
    case CellKind::Rate:
        return 65;
    case CellKind::Quantity:
    case CellKind::Price:
    case CellKind::Amount:
        return 80;
    case CellKind::Text:
        break;
    }
    if (c.endsWith(QStringLiteral("单位")) && c.size() > 2)
        return 140; // 往来单位
    if (c.contains(QStringLiteral("名称")) || c == QLatin1String("名称"))
        return 150;
    if (c.contains(QStringLiteral("单据号")))
        return 125;
    if (c == QStringLiteral("单位") || c == QStringLiteral("名次"))
        return 45;
    if (c.contains(QStringLiteral("日期")) || c.contains(QStringLiteral("有效期")))
        return 85;
    return 80;
}

void shortcut(QWidget *parent, const QKeySequence &key, const std::function<void()> &action)
{
    auto *s = new QShortcut(key, parent);
    s->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(s, &QShortcut::activated, parent, action);
}

} // namespace

ReportScreen::ReportScreen(
    Workspace &workspace, const QString &title, QList<ReportColumn> columns, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_title(title)
    , m_filters(new FilterBar(workspace, this))
    , m_grid(makeGrid(this))
    , m_model(new ReportModel(std::move(columns), workspace.session.params(), this))
    , m_split(new QSplitter(Qt::Horizontal, this))
    , m_count(new QLabel(ui::texts::rowCount(0), this))
    , m_status(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_runner(new ReportRunner(workspace.session, this))
{
    m_grid->setModel(m_model);
    const QFontMetrics header = m_grid->horizontalHeader()->fontMetrics();
    for (int c = 0; c < m_model->columnCount(); ++c) {
        const ReportColumn &column = m_model->columns()[c];
        m_grid->setColumnWidth(
            c, std::max(widthOf(column), header.horizontalAdvance(column.caption) + 14));
    }
    hideCostColumns();
    m_split->addWidget(m_grid);
    m_progress->setMaximumWidth(240);
    m_progress->setVisible(false);
    auto *status = new QHBoxLayout;
    status->addWidget(m_count);
    status->addWidget(m_status, 1);
    status->addWidget(m_progress);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filters);
    layout->addWidget(buildButtons());
    layout->addWidget(m_split, 1);
    layout->addLayout(status);

    connect(m_filters, &FilterBar::runRequested, this, &ReportScreen::run);
    connect(m_grid, &QTableView::doubleClicked, this, &ReportScreen::openCurrent);
    connect(m_runner, &ReportRunner::progressed, this, &ReportScreen::showProgress);
    connect(m_runner, &ReportRunner::finished, this, &ReportScreen::showResult);
    shortcut(this, QKeySequence(Qt::Key_F5), [this] { run(); });
    shortcut(this, QKeySequence(Qt::Key_Escape), [this] { cancel(); });
    shortcut(this, QKeySequence(Qt::Key_F7), [this] { chooseExportFile(); });
    m_grid->installEventFilter(this);
    setFocusProxy(m_filters);
}

ReportScreen::~ReportScreen() = default;

QWidget *ReportScreen::buildButtons()
{
    m_buttons = new QWidget(this);
    auto *row = new QHBoxLayout(m_buttons);
    row->setContentsMargins(0, 0, 0, 0);
    const auto button = [&](const QString &text, const std::function<void()> &action) {
        auto *b = new QPushButton(text, m_buttons);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, action);
        row->addWidget(b);
        return b;
    };
    m_run = button(ui::texts::queryButton(), [this] { run(); });
    m_cancel = button(texts::cancelButton(), [this] { cancel(); });
    m_cancel->setEnabled(false);
    m_export = button(ui::texts::exportButton(), [this] { chooseExportFile(); });
    m_print = button(ui::texts::printButton(), [] {});
    m_print->setEnabled(false);
    m_print->setToolTip(ui::texts::printingNotBuilt());
    row->addStretch(1);
    return m_buttons;
}

QPushButton *ReportScreen::addButton(const QString &text, std::function<void()> action)
{
    auto *b = new QPushButton(text, m_buttons);
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, std::move(action));
    auto *row = static_cast<QHBoxLayout *>(m_buttons->layout());
    row->insertWidget(row->count() - 1, b);
    return b;
}

// The grid keeps the width its columns need; the side takes the rest and grows with the window.
// Enter on a row opens it, as a double-click does.
bool ReportScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_grid && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openCurrent();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ReportScreen::setSide(QWidget *side)
{
    m_split->addWidget(side);
    int columns = 24;
    for (int c = 0; c < m_model->columnCount(); ++c)
        if (!m_grid->isColumnHidden(c))
            columns += m_grid->columnWidth(c);
    m_split->setStretchFactor(0, 0);
    m_split->setStretchFactor(1, 1);
    m_split->setSizes({ columns, 480 });
}

void ReportScreen::rememberColumns()
{
    m_workspace.rememberColumns(m_grid, QStringLiteral("统计/") + m_title);
}

void ReportScreen::hideCostColumns()
{
    const bool seesCost = shell::hasRight(m_workspace.session, QStringLiteral("qtcz"), 7);
    for (int c = 0; c < m_model->columnCount(); ++c)
        m_grid->setColumnHidden(c, m_model->columns()[c].cost && !seesCost);
}

void ReportScreen::run()
{
    if (!m_jobMaker)
        return;
    const ReportRunner::Job job = m_jobMaker();
    if (!job)
        return;
    setRunning(true);
    m_status->setText(texts::running());
    m_runner->start(job);
}

void ReportScreen::cancel()
{
    if (!m_runner->running())
        return;
    m_runner->cancel();
    setRunning(false);
    m_status->setText(texts::cancelledRun());
    emit finished(false);
}

void ReportScreen::setRunning(bool running)
{
    m_run->setEnabled(!running);
    m_cancel->setEnabled(running);
    m_export->setEnabled(!running);
    m_progress->setVisible(running);
    m_progress->setRange(0, 0);
}

void ReportScreen::showProgress(int done, int total)
{
    m_progress->setRange(0, total);
    m_progress->setValue(done);
}

void ReportScreen::showResult(const RunResult &result, const QStringList &told)
{
    setRunning(false);
    m_status->clear();
    for (const QString &text : told)
        if (!text.isEmpty())
            m_workspace.session.ui().inform(text);
    if (!result.ok) {
        emit finished(false);
        return;
    }
    m_model->setTable(result.table);
    m_detail = result.detail;
    m_count->setText(ui::texts::rowCount(m_model->dataRows()));
    if (m_model->dataRows() > 0)
        m_grid->selectRow(0);
    if (m_shown)
        m_shown();
    emit finished(true);
}

void ReportScreen::openCurrent()
{
    const int row = m_grid->currentIndex().row();
    if (!m_opener || row < 0 || row >= m_model->dataRows())
        return;
    const QString key = m_model->table().keys.value(row);
    if (!key.isEmpty())
        m_opener(key);
}

void ReportScreen::chooseExportFile()
{
    if (running())
        return;
    const QString path = QFileDialog::getSaveFileName(this, ui::texts::exportTitle(),
        QDir::home().filePath(m_title + QStringLiteral(".xlsx")), ui::texts::xlsxFilter());
    if (!path.isEmpty())
        exportTo(path);
}

bool ReportScreen::exportTo(const QString &path)
{
    // The columns as the clerk arranged them: moved ones where they were put, hidden ones left out.
    const QHeaderView *header = m_grid->horizontalHeader();
    QList<int> shown;
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (!header->isSectionHidden(logical))
            shown.append(logical);
    }
    QString error;
    const bool written = exportTable(*m_model, shown, path, m_title, error);
    m_workspace.session.ui().inform(written ? ui::texts::exported(path) : error);
    return written;
}

} // namespace medistock::ui::stats
