#include "ui/common/grid.h"

#include <QHeaderView>
#include <QTableView>
#include <QTableWidget>

namespace medistock::ui {

QTableWidget *makeGrid(const QStringList &captions, QWidget *parent)
{
    auto *grid = new QTableWidget(0, int(captions.size()), parent);
    grid->setHorizontalHeaderLabels(captions);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->setAlternatingRowColors(true);
    grid->verticalHeader()->setVisible(false);
    grid->verticalHeader()->setDefaultSectionSize(26);
    grid->horizontalHeader()->setSectionsMovable(true);
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->horizontalHeader()->setHighlightSections(false);
    return grid;
}

QTableView *makeTableView(QWidget *parent)
{
    auto *view = new QTableView(parent);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setAlternatingRowColors(true);
    view->setWordWrap(false);
    view->verticalHeader()->setVisible(false);
    view->verticalHeader()->setDefaultSectionSize(26);
    view->horizontalHeader()->setSectionsMovable(true);
    view->horizontalHeader()->setStretchLastSection(true);
    view->horizontalHeader()->setHighlightSections(false);
    return view;
}

void fillGrid(QTableWidget *grid, const QList<QStringList> &rows)
{
    grid->clearContents();
    grid->setRowCount(int(rows.size()));
    for (int row = 0; row < rows.size(); ++row)
        for (int column = 0; column < rows[row].size() && column < grid->columnCount(); ++column)
            grid->setItem(row, column, new QTableWidgetItem(rows[row][column]));
}

int chosenRow(const QTableWidget *grid)
{
    return grid->currentRow();
}

} // namespace medistock::ui
