#include "ui/common/grid.h"

#include <QHeaderView>
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
