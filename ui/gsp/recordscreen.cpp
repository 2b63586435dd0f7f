#include "ui/gsp/recordscreen.h"

#include "core/interaction.h"
#include "gsp/expiry.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "ui/common/grid.h"
#include "ui/common/printing.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/texts.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QSplitter>
#include <QSqlRecord>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

QComboBox *makeWarehouseBox(Workspace &workspace, bool withAll, QWidget *parent)
{
    auto *box = new QComboBox(parent);
    if (withAll)
        box->addItem(texts::allWarehouses(), QString());
    const masterdata::MasterKind *kind = masterdata::findMasterKind(QStringLiteral("warehouse"));
    readSafely(workspace.session.ui(), [&] {
        for (const QSqlRecord &row :
            masterdata::searchMasterRows(workspace.session.db(), *kind, {}))
            box->addItem(row.value(QStringLiteral("ck_name")).toString(),
                row.value(QStringLiteral("ck_sn")).toString());
    });
    box->setMinimumWidth(110);
    return box;
}

QDateEdit *makeDateField(const QDate &date, QWidget *parent)
{
    auto *field = new QDateEdit(date, parent);
    field->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    field->setCalendarPopup(true);
    field->setDateRange(QDate(1900, 1, 1), QDate(9999, 12, 31));
    return field;
}

QHBoxLayout *saveCancelRow(QDialog *dialog, const std::function<void()> &save, bool byEnter)
{
    auto *saveButton = new QPushButton(gsptexts::save, dialog);
    auto *cancel = new QPushButton(texts::cancel(), dialog);
    saveButton->setAutoDefault(false);
    cancel->setAutoDefault(false);
    saveButton->setDefault(byEnter);
    QObject::connect(saveButton, &QPushButton::clicked, dialog, save);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    auto *row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(saveButton);
    row->addWidget(cancel);
    return row;
}

RecordScreen::RecordScreen(
    Workspace &workspace, const QString &name, Filters filters, Fetch fetch, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_name(name)
    , m_fetch(std::move(fetch))
    , m_bar(new QHBoxLayout)
    , m_grid(makeTableView(this))
    , m_model(new RecordTableModel(workspace.session.params(), this))
    , m_split(new QSplitter(Qt::Vertical, this))
    , m_count(new QLabel(this))
    , m_caption(new QLabel(this))
    , m_export(new QPushButton(texts::exportButton(), this))
    , m_print(makePrintButton(workspace, this, [this] { return printRequest(); }))
{
    m_grid->setModel(m_model);
    m_grid->installEventFilter(this);
    connect(m_grid, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.isValid() && !m_model->isTotalsRow(index.row()))
            emit rowActivated(index.row());
    });
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this] { emit currentRowChanged(currentRow()); });
    buildFilters(filters);
    auto *query = new QPushButton(texts::queryButton(), this);
    query->setAutoDefault(false);
    connect(query, &QPushButton::clicked, this, &RecordScreen::reload);
    m_query = query;
    auto *f5 = new QShortcut(QKeySequence(Qt::Key_F5), this);
    f5->setContext(Qt::WidgetWithChildrenShortcut);
    connect(f5, &QShortcut::activated, this, &RecordScreen::reload);
    m_bar->addWidget(query);
    m_bar->addStretch(1);

    m_export->setAutoDefault(false);
    connect(m_export, &QPushButton::clicked, this, &RecordScreen::chooseExportFile);
    m_bar->addWidget(m_export);
    m_bar->addWidget(m_print);

    m_split->addWidget(m_grid);
    m_split->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 4);
    layout->addLayout(m_bar);
    layout->addWidget(m_split, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_count);
    bottom->addSpacing(24);
    bottom->addWidget(m_caption);
    bottom->addStretch(1);
    layout->addLayout(bottom);
    setFocusProxy(m_key ? static_cast<QWidget *>(m_key) : m_grid);
}

void RecordScreen::buildFilters(const Filters &filters)
{
    m_bar->setContentsMargins(0, 0, 0, 0);
    if (filters.dates) {
        m_from = makeDateField(QDate(2000, 1, 1), this);
        m_to = makeDateField(QDate(9999, 12, 31), this);
        addFilter(texts::dateFrom(), m_from);
        addFilter(texts::dateTo(), m_to);
    }
    if (filters.warehouse)
        addFilter(gsptexts::warehouse, m_warehouse = makeWarehouseBox(m_workspace, true, this));
    if (filters.days) {
        m_days = new QSpinBox(this);
        m_days->setRange(0, 36500);
        m_days->setValue(gsp::nearExpiryDays(m_workspace.session.params()));
        addFilter(gsptexts::days, m_days);
    }
    if (filters.sex) {
        m_sex = new QComboBox(this);
        m_sex->addItem(texts::all(), QString());
        m_sex->addItem(QStringLiteral("男"), QStringLiteral("男"));
        m_sex->addItem(QStringLiteral("女"), QStringLiteral("女"));
        addFilter(gsptexts::sex, m_sex);
    }
    if (filters.key) {
        m_key = new QLineEdit(this);
        m_key->setPlaceholderText(
            filters.keyHint.isEmpty() ? gsptexts::keywordHint : filters.keyHint);
        m_key->setClearButtonEnabled(true);
        m_key->setMinimumWidth(200);
        addFilter(gsptexts::keyword, m_key);
    }
}

void RecordScreen::addFilter(const QString &label, QWidget *field)
{
    // Filters go before the query button once it is there.
    const int at = m_query ? m_bar->indexOf(m_query) : m_bar->count();
    if (!label.isEmpty()) {
        m_bar->insertWidget(at, new QLabel(label, this));
        m_filterFields.append({ label, field });
    }
    m_bar->insertWidget(m_query ? m_bar->indexOf(m_query) : m_bar->count(), field);
    field->installEventFilter(this);
}

QPushButton *RecordScreen::addButton(
    const QString &text, const QKeySequence &key, std::function<void()> action)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    if (!key.isEmpty()) {
        auto *shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    m_bar->insertWidget(m_bar->indexOf(m_export), button);
    return button;
}

void RecordScreen::setBelow(QWidget *panel)
{
    m_split->addWidget(panel);
    m_split->setStretchFactor(0, 3);
    m_split->setStretchFactor(1, 2);
}

void RecordScreen::setBeside(QWidget *panel)
{
    auto *side = new QSplitter(Qt::Horizontal, this);
    side->addWidget(m_grid);
    side->addWidget(panel);
    side->setStretchFactor(0, 3);
    side->setStretchFactor(1, 2);
    m_split->insertWidget(0, side);
}

gsp::RecordFilter RecordScreen::filter() const
{
    gsp::RecordFilter f;
    if (m_from) {
        f.from = m_from->date().toString(QStringLiteral("yyyy-MM-dd"));
        f.to = m_to->date().toString(QStringLiteral("yyyy-MM-dd"));
    }
    if (m_warehouse)
        f.warehouse = m_warehouse->currentData().toString();
    if (m_key)
        f.key = m_key->text();
    return f;
}

int RecordScreen::days() const
{
    return m_days ? m_days->value() : 0;
}

QString RecordScreen::sex() const
{
    return m_sex ? m_sex->currentData().toString() : QString();
}

int RecordScreen::currentRow() const
{
    const int row = m_grid->currentIndex().row();
    return row >= 0 && row < m_model->recordCount() ? row : -1;
}

QVariant RecordScreen::currentKey() const
{
    const int row = currentRow();
    return row >= 0 ? m_model->table().keys.value(row) : QVariant();
}

void RecordScreen::reload()
{
    const QVariant key = currentKey();
    const Result<gsp::RecordTable> table = m_fetch(*this);
    if (!table)
        return;
    m_model->setTable(table.value());
    m_count->setText(texts::rowCount(m_model->recordCount()));
    // A record without a report template offers no printing.
    m_print->setVisible(!m_model->table().printKey.isEmpty());
    // Widths fit the contents the first time, and again when the grid shows other columns (the
    // restricted ledger's summary); the first layout is the one kept per operator.
    if (m_model->table().headers != m_headers) {
        m_grid->resizeColumnsToContents();
        for (int column = 0; column < m_model->columnCount(); ++column)
            m_grid->setColumnWidth(column, std::min(m_grid->columnWidth(column) + 12, 180));
        if (m_headers.isEmpty())
            m_workspace.rememberColumns(m_grid, QStringLiteral("GSP/") + m_name);
        m_headers = m_model->table().headers;
    }
    const int found = int(m_model->table().keys.indexOf(key));
    if (found >= 0)
        m_grid->selectRow(found);
    else if (m_model->recordCount() > 0)
        m_grid->selectRow(0);
    emit currentRowChanged(currentRow());
    // Asked once the screen's panels follow the current row (a record's lines print).
    if (m_workspace.print) {
        const bool printable = !printRequest().key.isEmpty();
        m_print->setEnabled(printable);
        m_print->setToolTip(printable ? QString() : texts::printingNotBuilt());
    }
}

PrintRequest RecordScreen::printRequest() const
{
    const gsp::RecordTable &table = m_model->table();
    if (table.printFields.isEmpty())
        return {};
    return { table.printKey, {}, m_model, table.printFields, m_model->recordCount(), filterText() };
}

QString RecordScreen::filterText() const
{
    return filterHeading(m_filterFields);
}

void RecordScreen::chooseExportFile()
{
    const QString path = QFileDialog::getSaveFileName(this, texts::exportTitle(),
        QDir::home().filePath(m_model->table().title + QStringLiteral(".xlsx")),
        texts::xlsxFilter());
    if (!path.isEmpty())
        exportTo(path);
}

void RecordScreen::exportTo(const QString &path)
{
    const Outcome outcome = gsp::exportTable(m_model->table(), path);
    m_workspace.session.ui().inform(outcome ? texts::exported(path) : outcome.message());
}

bool RecordScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QWidget::eventFilter(watched, event);
    if (watched == m_grid) {
        if (currentRow() >= 0)
            emit rowActivated(currentRow());
        return true;
    }
    if (auto *combo = qobject_cast<QComboBox *>(watched); combo && combo->view()->isVisible())
        return false;
    reload();
    return true;
}

} // namespace medistock::ui
