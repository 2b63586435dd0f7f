#include "ui/common/picker.h"

#include "ui/common/grid.h"
#include "ui/common/texts.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

PickerDialog::PickerDialog(
    const QString &title, const QStringList &captions, Search search, QWidget *parent)
    : QDialog(parent)
    , m_search(std::move(search))
    , m_filter(new QLineEdit(this))
    , m_grid(makeGrid(captions, this))
    , m_count(new QLabel(this))
    , m_buttons(new QHBoxLayout)
{
    setWindowTitle(title);
    m_grid->setWordWrap(false);
    m_grid->setFocusPolicy(Qt::NoFocus);
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &PickerDialog::refresh);
    connect(m_grid, &QTableWidget::cellDoubleClicked, this, [this](int row) {
        m_grid->setCurrentCell(row, 0);
        takeCurrent();
    });

    auto *choose = new QPushButton(texts::choose(), this);
    auto *cancel = new QPushButton(texts::cancel(), this);
    for (QPushButton *button : { choose, cancel })
        button->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &PickerDialog::takeCurrent);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    m_buttons->addWidget(m_count);
    m_buttons->addStretch(1);
    m_buttons->addWidget(choose);
    m_buttons->addWidget(cancel);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_grid, 1);
    layout->addLayout(m_buttons);
    resize(900, 460);
    m_grid->installEventFilter(this);
    setSearch(m_search);
}

void PickerDialog::setSearch(Search search)
{
    m_search = std::move(search);
    m_filter->setVisible(bool(m_search));
    // Without a filter field the grid takes the keys itself.
    m_grid->setFocusPolicy(m_search ? Qt::NoFocus : Qt::StrongFocus);
    QWidget *first = m_search ? static_cast<QWidget *>(m_filter) : m_grid;
    setFocusProxy(first);
    first->setFocus();
}

void PickerDialog::setFilterText(const QString &text)
{
    if (m_filter->text() == text)
        refresh();
    else
        m_filter->setText(text);
}

void PickerDialog::refresh()
{
    if (m_search)
        setRows(m_search(m_filter->text()));
}

void PickerDialog::setRows(const QList<PickRow> &rows)
{
    QList<QStringList> texts;
    for (const PickRow &row : rows)
        texts.append(row.texts);
    fillGrid(m_grid, texts);
    for (int row = 0; row < rows.size(); ++row)
        for (int column = 0; column < m_grid->columnCount(); ++column)
            if (QTableWidgetItem *item = m_grid->item(row, column)) {
                if (rows[row].colour.isValid())
                    item->setForeground(rows[row].colour);
                if (m_numberColumns.contains(column))
                    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
    m_count->setText(texts::rowCount(int(rows.size())));
    setCurrentRow(rows.isEmpty() ? -1 : 0);
}

void PickerDialog::setCurrentRow(int row)
{
    if (row < 0 || row >= m_grid->rowCount()) {
        m_grid->setCurrentCell(-1, -1);
        return;
    }
    m_grid->setCurrentCell(row, 0);
    m_grid->selectRow(row);
}

void PickerDialog::addButton(QWidget *button)
{
    m_buttons->insertWidget(2, button);
}

int PickerDialog::rowCount() const
{
    return m_grid->rowCount();
}

void PickerDialog::takeCurrent()
{
    const int row = m_grid->currentRow();
    if (row < 0 || row >= m_grid->rowCount())
        return;
    m_chosen = row;
    accept();
}

bool PickerDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (watched == m_grid && !m_search) {
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return QDialog::eventFilter(watched, event);
        takeCurrent();
        return true;
    }
    if (watched != m_filter)
        return QDialog::eventFilter(watched, event);
    const int row = m_grid->currentRow();
    switch (key) {
    case Qt::Key_Down:
        setCurrentRow(std::min(row + 1, m_grid->rowCount() - 1));
        return true;
    case Qt::Key_Up:
        setCurrentRow(std::max(row - 1, 0));
        return true;
    case Qt::Key_PageDown:
        setCurrentRow(std::min(row + 10, m_grid->rowCount() - 1));
        return true;
    case Qt::Key_PageUp:
        setCurrentRow(std::max(row - 10, 0));
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        takeCurrent();
        return true;
    default:
        return QDialog::eventFilter(watched, event);
    }
}

} // namespace medistock::ui
