#include "ui/documents/linegrid.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace medistock::ui {

namespace {

const LineModel *lineModel(const QModelIndex &index)
{
    return qobject_cast<const LineModel *>(index.model());
}

} // namespace

QWidget *LineDelegate::createEditor(
    QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const LineModel *model = lineModel(index);
    if (model && model->fieldAt(index.column()) == LineField::Unit) {
        auto *box = new QComboBox(parent);
        for (const documents::UnitChoice &choice : model->line(index.row()).units)
            box->addItem(choice.unit);
        return box;
    }
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto *edit = qobject_cast<QLineEdit *>(editor))
        edit->setAlignment(
            Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()) & Qt::AlignHorizontal_Mask);
    return editor;
}

void LineDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        box->setCurrentIndex(std::max(0, box->findText(index.data(Qt::EditRole).toString())));
        return;
    }
    QStyledItemDelegate::setEditorData(editor, index);
}

void LineDelegate::setModelData(
    QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *box = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, box->currentText(), Qt::EditRole);
        return;
    }
    QStyledItemDelegate::setModelData(editor, model, index);
}

LineGrid::LineGrid(LineModel *model, const QList<LineField> &enterFields, QWidget *parent)
    : QTableView(parent)
    , m_model(model)
    , m_enter(enterFields)
{
    setModel(model);
    setItemDelegate(new LineDelegate(this));
    setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked
        | QAbstractItemView::EditKeyPressed);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(24);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
}

void LineGrid::editCell(int row, LineField field)
{
    const int column = m_model->columnOf(field);
    if (row < 0 || row >= m_model->rowCount() || column < 0)
        return;
    const QModelIndex index = m_model->index(row, column);
    setCurrentIndex(index);
    scrollTo(index);
    setFocus();
    if (m_model->flags(index) & Qt::ItemIsEditable)
        edit(index);
}

void LineGrid::goToNewLine()
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (m_model->line(row).isBlank()) {
            editCell(row, LineField::Code);
            return;
        }
    if (m_model->isEditable() && m_model->isAddingAllowed()) {
        m_model->appendBlank();
        editCell(m_model->rowCount() - 1, LineField::Code);
        return;
    }
    if (m_model->rowCount() > 0)
        editCell(m_model->rowCount() - 1, LineField::Quantity);
}

void LineGrid::finishEditing()
{
    if (state() != EditingState)
        return;
    QWidget *editor = QApplication::focusWidget();
    while (editor && editor->parentWidget() != viewport())
        editor = editor->parentWidget();
    if (!editor)
        return;
    commitData(editor);
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
}

void LineGrid::advance(int row, LineField field)
{
    const int at = int(m_enter.indexOf(field));
    for (int next = at + 1; next < m_enter.size(); ++next) {
        const int column = m_model->columnOf(m_enter[next]);
        if (column >= 0 && (m_model->flags(m_model->index(row, column)) & Qt::ItemIsEditable)) {
            editCell(row, m_enter[next]);
            return;
        }
    }
    if (row + 1 < m_model->rowCount()) {
        editCell(row + 1, LineField::Code);
        return;
    }
    goToNewLine();
}

void LineGrid::moveToNextEditable(int row, int column)
{
    for (int next = column + 1; next < m_model->columnCount(); ++next)
        if (m_model->flags(m_model->index(row, next)) & Qt::ItemIsEditable) {
            editCell(row, m_model->fieldAt(next));
            return;
        }
    advance(row, m_enter.isEmpty() ? LineField::Code : m_enter.last());
}

void LineGrid::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool enter = hint == QAbstractItemDelegate::SubmitModelCache;
    const bool tab = hint == QAbstractItemDelegate::EditNextItem;
    QTableView::closeEditor(editor, enter || tab ? QAbstractItemDelegate::NoHint : hint);
    if (!enter && !tab)
        return;
    const QModelIndex index = currentIndex();
    if (!index.isValid())
        return;
    const LineField field = m_model->fieldAt(index.column());
    const LineEntry &line = m_model->line(index.row());
    // A goods text being looked up: the screen moves on once the goods is chosen.
    if (field == LineField::Code && !line.chosen && !line.goods.isEmpty())
        return;
    if (field == LineField::Code && line.goods.isEmpty())
        return;
    // Moving on opens the next editor; the one closing now must be gone first.
    const int row = index.row();
    const int column = index.column();
    QTimer::singleShot(0, this, [this, row, column, field, enter] {
        if (enter)
            advance(row, field);
        else
            moveToNextEditable(row, column);
    });
}

void LineGrid::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex index = currentIndex();
    const int row = index.row();
    const LineField field = index.isValid() ? m_model->fieldAt(index.column()) : LineField::Code;
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (state() == EditingState || !index.isValid())
            break;
        if (m_model->flags(index) & Qt::ItemIsEditable)
            edit(index);
        else
            advance(row, field);
        return;
    case Qt::Key_F4:
        if (!index.isValid())
            return;
        if (QWidget *editor = focusWidget(); state() == EditingState && editor != this) {
            commitData(editor);
            QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
            // A goods text just taken is looked up as typed; the lookup opens the picker.
            if (field == LineField::Code && !m_model->line(row).chosen
                && !m_model->line(row).goods.isEmpty())
                return;
        }
        emit pickRequested(row, field);
        return;
    case Qt::Key_Insert:
        if (state() != EditingState) {
            emit insertLineRequested(std::max(row, 0));
            return;
        }
        break;
    case Qt::Key_Delete:
        if (state() != EditingState && index.isValid()) {
            emit deleteLineRequested(row);
            return;
        }
        break;
    default:
        break;
    }
    QTableView::keyPressEvent(event);
}

} // namespace medistock::ui
