#include "ui/common/queryscreen.h"

#include "core/interaction.h"
#include "core/spreadsheet.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFont>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

constexpr int filtersPerRow = 5;

bool isNumber(const QueryColumn &column)
{
    return column.kind == QueryColumn::Kind::Number;
}

int defaultWidth(const QueryColumn &column, const QFontMetrics &metrics)
{
    const int caption = metrics.horizontalAdvance(column.caption) + 24;
    if (column.width > 0)
        return column.width;
    return std::max(isNumber(column) ? 84 : 100, caption);
}

} // namespace

void QueryModel::setColumns(const QList<QueryColumn> &columns)
{
    beginResetModel();
    m_columns = columns;
    m_rows.clear();
    m_colours.clear();
    m_totals.clear();
    endResetModel();
}

void QueryModel::setRows(QList<QVariantList> rows, QList<QColor> colours)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_colours = std::move(colours);
    m_totals = QVariantList(m_columns.size());
    for (int column = 0; column < m_columns.size(); ++column) {
        if (!m_columns[column].summed)
            continue;
        double sum = 0;
        for (const QVariantList &row : std::as_const(m_rows))
            sum += row.value(column).toDouble();
        m_totals[column] = sum;
    }
    if (!m_columns.isEmpty() && !m_columns.first().summed)
        m_totals[0] = texts::totalRow();
    endResetModel();
}

bool QueryModel::hasTotals() const
{
    return std::any_of(
        m_columns.begin(), m_columns.end(), [](const QueryColumn &c) { return c.summed; });
}

QVariant QueryModel::value(int row, int column) const
{
    if (row < dataRows())
        return m_rows.at(row).value(column);
    return m_totals.value(column);
}

QString QueryModel::text(int row, int column) const
{
    const QVariant v = value(row, column);
    if (!v.isValid() || v.isNull())
        return QString();
    const QueryColumn &c = m_columns.at(column);
    if (isNumber(c) && v.typeId() != QMetaType::QString)
        return QString::number(v.toDouble(), 'f', c.decimals);
    return v.toString();
}

int QueryModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return dataRows() + (hasTotals() ? 1 : 0);
}

int QueryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant QueryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const QueryColumn &column = m_columns.at(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::EditRole: // the value itself, numbers as numbers: what a printed grid hands on
        return value(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return isNumber(column) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
        if (index.row() < m_colours.size() && m_colours.at(index.row()).isValid())
            return m_colours.at(index.row());
        if (isNumber(column) && value(index.row(), index.column()).toDouble() < 0)
            return QColor(Qt::red);
        return {};
    case Qt::FontRole:
        if (isTotals(index.row())) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant QueryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section < m_columns.size())
        return m_columns.at(section).caption;
    return QAbstractTableModel::headerData(section, orientation, role);
}

QueryScreen::QueryScreen(Workspace &workspace, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_title(title)
    , m_filters(new QGridLayout)
    , m_buttons(new QHBoxLayout)
    , m_grid(new QTableView(this))
    , m_model(new QueryModel(this))
    , m_split(new QSplitter(Qt::Vertical, this))
    , m_count(new QLabel(this))
    , m_runKey(new QShortcut(QKeySequence(Qt::Key_F5), this))
{
    m_grid->setModel(m_model);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setAlternatingRowColors(true);
    m_grid->setWordWrap(false);
    m_grid->verticalHeader()->setVisible(false);
    m_grid->verticalHeader()->setDefaultSectionSize(24);
    m_grid->horizontalHeader()->setSectionsMovable(true);
    m_grid->horizontalHeader()->setHighlightSections(false);
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->installEventFilter(this);
    connect(m_grid, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.isValid() && !m_model->isTotals(index.row()))
            emit activated(index.row());
    });
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this] { emit currentRowChanged(currentRow()); });

    m_filters->setHorizontalSpacing(6);
    auto *top = new QHBoxLayout;
    top->addLayout(m_filters);
    top->addStretch(1);
    top->addWidget(buildButtons(), 0, Qt::AlignTop);
    m_split->addWidget(m_grid);
    m_split->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_split, 1);
    layout->addWidget(m_count);

    m_runKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(m_runKey, &QShortcut::activated, this, &QueryScreen::run);
    m_count->setText(texts::rowCount(0));
}

QWidget *QueryScreen::buildButtons()
{
    auto *box = new QWidget(this);
    m_buttons->setParent(nullptr);
    box->setLayout(m_buttons);
    m_buttons->setContentsMargins(0, 0, 0, 0);
    auto *query = new QPushButton(texts::queryButton(), box);
    m_runButton = query;
    auto *exportButton = new QPushButton(texts::exportButton(), box);
    connect(query, &QPushButton::clicked, this, &QueryScreen::run);
    connect(exportButton, &QPushButton::clicked, this, &QueryScreen::chooseExportFile);
    m_printButton = makePrintButton(m_workspace, this, [this] { return printRequest(); });
    m_printButton->setVisible(false);
    for (QPushButton *button : { query, exportButton, m_printButton }) {
        button->setAutoDefault(false);
        m_buttons->addWidget(button);
    }
    return box;
}

void QueryScreen::addFilter(const QString &label, QWidget *field)
{
    const int row = m_filterCount / filtersPerRow;
    const int column = (m_filterCount % filtersPerRow) * 2;
    auto *caption = new QLabel(label, this);
    caption->setBuddy(field);
    m_filters->addWidget(caption, row, column, Qt::AlignRight);
    m_filters->addWidget(field, row, column + 1);
    field->installEventFilter(this);
    for (QLineEdit *edit : field->findChildren<QLineEdit *>())
        edit->installEventFilter(this);
    if (m_filterCount == 0)
        setFocusProxy(field);
    ++m_filterCount;
    m_filterFields.append({ label, field });
}

void QueryScreen::addButton(QAbstractButton *button)
{
    if (auto *push = qobject_cast<QPushButton *>(button))
        push->setAutoDefault(false);
    m_buttons->addWidget(button);
}

void QueryScreen::setColumns(const QList<QueryColumn> &columns, const QString &layoutKey)
{
    m_model->setColumns(columns);
    const QFontMetrics metrics = m_grid->horizontalHeader()->fontMetrics();
    for (int i = 0; i < columns.size(); ++i)
        m_grid->setColumnWidth(i, defaultWidth(columns[i], metrics));
    m_workspace.rememberColumns(m_grid, layoutKey);
}

void QueryScreen::setPrintKey(const QString &key)
{
    m_printKey = key;
    m_printButton->setVisible(!key.isEmpty());
}

void QueryScreen::setRunKey(const QKeySequence &key)
{
    m_runKey->setKey(key);
    m_runButton->setText(key.isEmpty() ? texts::query() : texts::queryButton());
}

void QueryScreen::setRows(QList<QVariantList> rows, QList<QColor> colours)
{
    m_model->setRows(std::move(rows), std::move(colours));
    m_count->setText(texts::rowCount(m_model->dataRows()));
    if (m_model->dataRows() > 0)
        m_grid->selectRow(0);
    emit currentRowChanged(currentRow());
}

void QueryScreen::setDetail(QWidget *detail)
{
    m_split->addWidget(detail);
    m_split->setStretchFactor(0, 3);
    m_split->setStretchFactor(1, 2);
}

int QueryScreen::currentRow() const
{
    const int row = m_grid->currentIndex().row();
    return row >= 0 && row < m_model->dataRows() ? row : -1;
}

void QueryScreen::run()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    readSafely(m_workspace.session.ui(), [&] { fetch(); });
    QApplication::restoreOverrideCursor();
}

void QueryScreen::chooseExportFile()
{
    const QString path = QFileDialog::getSaveFileName(this, texts::exportTitle(),
        QDir::home().filePath(m_title + QStringLiteral(".xlsx")), texts::xlsxFilter());
    if (!path.isEmpty())
        exportTo(path);
}

void QueryScreen::exportTo(const QString &path)
{
    QList<int> order;
    QHeaderView *header = m_grid->horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (!header->isSectionHidden(logical))
            order.append(logical);
    }
    QStringList captions;
    for (int column : order)
        captions.append(m_model->columns().at(column).caption);
    QList<QVariantList> rows;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QVariantList values;
        for (int column : order) {
            const QVariant value = m_model->value(row, column);
            const bool number = isNumber(m_model->columns().at(column)) && value.isValid()
                && !value.isNull() && value.typeId() != QMetaType::QString;
            values.append(number ? QVariant(m_model->text(row, column).toDouble())
                                 : QVariant(m_model->text(row, column)));
        }
        rows.append(values);
    }
    const Outcome written = core::writeXlsx(path, m_title, captions, rows);
    m_workspace.session.ui().inform(written ? texts::exported(path) : written.message());
}

PrintRequest QueryScreen::printRequest() const
{
    QStringList fields;
    for (const QueryColumn &column : m_model->columns())
        fields.append(column.field);
    return { m_printKey, {}, m_model, fields, m_model->dataRows(), filterText() };
}

QString QueryScreen::filterText() const
{
    return filterHeading(m_filterFields);
}

bool QueryScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (enter && watched == m_grid) {
            if (currentRow() >= 0)
                emit activated(currentRow());
            return true;
        }
        // The field takes its Enter first (a party field looks its text up), then the query runs.
        if (enter)
            QTimer::singleShot(0, this, &QueryScreen::run);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace medistock::ui
