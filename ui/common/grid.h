#pragma once

#include <QStringList>

class QTableView;
class QTableWidget;
class QWidget;

namespace medistock::ui {

// A read-only grid of whole-row selection with the given column captions.
QTableWidget *makeGrid(const QStringList &captions, QWidget *parent);
// A read-only view of whole-row selection over a model: alternating rows, no row numbers, columns
// the operator may move; the last column takes what room is left.
QTableView *makeTableView(QWidget *parent);
// Replaces the grid's rows; each inner list holds one row's texts in column order.
void fillGrid(QTableWidget *grid, const QList<QStringList> &rows);
// The row of the current cell, or -1 when no row is chosen.
int chosenRow(const QTableWidget *grid);

} // namespace medistock::ui
