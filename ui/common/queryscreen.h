#pragma once

#include "ui/common/printing.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QList>
#include <QVariant>
#include <QWidget>

class QAbstractButton;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QShortcut;
class QSplitter;
class QTableView;

namespace medistock::ui {

struct Workspace;

// A column of a query grid.
struct QueryColumn
{
    enum class Kind { Text, Number };
    QString caption;
    Kind kind = Kind::Text;
    int decimals = 2; // numbers: shown with this many places
    bool summed = false; // numbers: added up in the totals row
    int width = 0; // pixels; 0: a width that fits the kind and the caption
};

// The rows of a query for a grid: texts as they are, numbers right-aligned with their column's
// places (negative ones red), a row's own colour where one is given, and a last row "合计" with
// the summed columns whenever a column is summed.
class QueryModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setColumns(const QList<QueryColumn> &columns);
    void setRows(QList<QVariantList> rows, QList<QColor> colours);
    const QList<QueryColumn> &columns() const { return m_columns; }
    // The rows of the query, without the totals row.
    int dataRows() const { return int(m_rows.size()); }
    bool isTotals(int row) const { return row >= dataRows(); }
    // The value of a cell (totals row included); texts as shown with text().
    QVariant value(int row, int column) const;
    QString text(int row, int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    bool hasTotals() const;

    QList<QueryColumn> m_columns;
    QList<QVariantList> m_rows;
    QList<QColor> m_colours;
    QVariantList m_totals;
};

// The screen every query and record list is built on: filters on top, the grid of results with
// its totals row, an optional panel below it (the lines of the chosen document), "记录数：N"
// under it all. Enter in a filter or F5 runs the query; Enter or a double-click on a row
// activates it; "导出(&X)" writes the grid to an .xlsx file; "打印(F8)" prints through the
// screen's report key once printing exists. A screen derives from it, adds its filters and
// columns in its constructor, and fills the rows in fetch().
class QueryScreen : public QWidget
{
    Q_OBJECT
public:
    QueryScreen(Workspace &workspace, const QString &title, QWidget *parent = nullptr);

    // A labelled filter field, laid out left to right in rows of five.
    void addFilter(const QString &label, QWidget *field);
    // A button after the standard ones.
    void addButton(QAbstractButton *button);
    // The grid's columns; `layoutKey` names the saved column layout (one per set of columns).
    void setColumns(const QList<QueryColumn> &columns, const QString &layoutKey);
    // Shows the rows of a run: values in column order, a colour per row where wanted.
    void setRows(QList<QVariantList> rows, QList<QColor> colours = {});
    // A panel under the grid, for what belongs to the current row.
    void setDetail(QWidget *detail);
    // The report key the print button prints with; without one the screen offers no printing.
    void setPrintKey(const QString &key);
    // The key that runs the query (F5); an empty sequence leaves it to the button, for a list
    // inside a dialog whose F5 means something else.
    void setRunKey(const QKeySequence &key);

    QTableView *grid() const { return m_grid; }
    QueryModel *model() const { return m_model; }
    QLabel *countLabel() const { return m_count; }
    QString title() const { return m_title; }
    // The current row of the query (never the totals row); -1 when none.
    int currentRow() const;

public slots:
    void run();
    void chooseExportFile();
    // Writes the grid as shown (columns in their order, the totals row last); tells the outcome.
    void exportTo(const QString &path);

signals:
    void activated(int row);
    void currentRowChanged(int row);

protected:
    // Runs the query and calls setRows(); a database error is told by run().
    virtual void fetch() = 0;
    // What the print button prints; the grid under the screen's key by default.
    virtual PrintRequest printRequest() const;
    bool eventFilter(QObject *watched, QEvent *event) override;

    Workspace &m_workspace;

private:
    QWidget *buildButtons();

    QString m_title;
    QString m_printKey;
    QGridLayout *m_filters;
    QHBoxLayout *m_buttons;
    QTableView *m_grid;
    QueryModel *m_model;
    QSplitter *m_split;
    QLabel *m_count;
    QShortcut *m_runKey;
    QPushButton *m_runButton = nullptr;
    QPushButton *m_printButton = nullptr;
    int m_filterCount = 0;
};

} // namespace medistock::ui
