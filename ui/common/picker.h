#pragma once

#include <QColor>
#include <QDialog>
#include <QStringList>

#include <functional>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace medistock::ui {

// One row a picker offers: its texts in column order and, where it stands out (an expired
// batch), its colour.
struct PickRow
{
    QStringList texts;
    QColor colour = {};
};

// Choosing one row with the keyboard: a filter field above a grid. Typing in the field narrows
// the rows (when a search is given), Up and Down move in the grid without leaving the field,
// Enter takes the current row, a double-click takes the clicked one, Esc closes without a choice.
// The first row is current when the rows change; the filter field has the focus.
class PickerDialog : public QDialog
{
    Q_OBJECT
public:
    using Search = std::function<QList<PickRow>(const QString &text)>;

    // Without `search` the rows are set once (setRows) and the filter field stays hidden.
    PickerDialog(const QString &title, const QStringList &captions, Search search = {},
        QWidget *parent = nullptr);

    // Gives the picker its search (and shows the filter field) after construction.
    void setSearch(Search search);
    // Puts the text into the filter field and searches for it.
    void setFilterText(const QString &text);
    void setRows(const QList<PickRow> &rows);
    void setCurrentRow(int row);
    // Columns whose texts are numbers, shown right-aligned.
    void setNumberColumns(const QList<int> &columns) { m_numberColumns = columns; }
    // A button beside the closing buttons (a new goods from the goods picker).
    void addButton(QWidget *button);

    // The row taken, counted in the rows last shown; -1 when none.
    int chosenRow() const { return m_chosen; }
    int rowCount() const;
    QLineEdit *filterField() const { return m_filter; }
    QTableWidget *grid() const { return m_grid; }

public slots:
    void takeCurrent();
    void refresh();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Search m_search;
    QLineEdit *m_filter;
    QTableWidget *m_grid;
    QLabel *m_count;
    QHBoxLayout *m_buttons;
    int m_chosen = -1;
    QList<int> m_numberColumns;
};

} // namespace medistock::ui
