#pragma once

#include "ui/documents/linemodel.h"

#include <QStyledItemDelegate>
#include <QTableView>

namespace medistock::ui {

// The editors of the line cells: the units of the line's goods in a drop-down, a line edit for
// everything else (numbers right-aligned).
class LineDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
        const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(
        QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
};

// The line grid of a document, keyed for entry without the mouse. Typing in a cell starts
// editing it; Enter takes what was typed and moves to the next cell of the line's Enter order
// (the goods cell first), past the last one to the goods of the next line, adding a line at the
// end; Tab moves to the next editable cell. Insert adds a line above the current one, Delete
// removes the current line, F4 asks for a picker (goods, batch) or a calendar (dates).
class LineGrid : public QTableView
{
    Q_OBJECT
public:
    LineGrid(LineModel *model, const QList<LineField> &enterFields, QWidget *parent = nullptr);

    LineModel *lines() const { return m_model; }
    // Opens a cell for typing.
    void editCell(int row, LineField field);
    // Moves on from `field` of `row` in the Enter order, as Enter does.
    void advance(int row, LineField field);
    // The goods cell of the first blank line, a new one at the end where lines may be added.
    void goToNewLine();
    // Takes what the open editor holds, if any, and closes it (before a save, a check, a load).
    void finishEditing();

signals:
    void pickRequested(int row, LineField field);
    void insertLineRequested(int row);
    void deleteLineRequested(int row);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void moveToNextEditable(int row, int column);

    LineModel *m_model;
    QList<LineField> m_enter;
};

} // namespace medistock::ui
