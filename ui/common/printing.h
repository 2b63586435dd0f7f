#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

class QAbstractItemModel;
class QPushButton;
class QWidget;

namespace medistock::ui {

struct Workspace;

// What a screen asks to print: the report template's key ("cgjh" for a purchase receipt, "kccx"
// for the stock query) and the document's number, or the rows of a query grid.
struct PrintRequest
{
    QString key;
    QString number; // empty when a grid is printed
    const QAbstractItemModel *grid
        = nullptr; // the rows shown, totals row last; null for a document
    QStringList fields {}; // the template's field of each grid column; empty: not printed
    int gridRows = 0; // the grid's rows without the totals row
    QString filter {}; // the query's filters as shown ("仓库：主仓库  查找：阿莫"), for the heading
    QList<std::pair<QString, QString>> variables {}; // further variables a grid's template reads
};

// Prints with preview (Workspace::print). `parent` is the screen, for the preview to centre on.
using PrintHandler = std::function<void(Workspace &, QWidget *parent, const PrintRequest &)>;

// "连续打印": each document in the order given, without preview, after one question. Returns how
// many were printed.
using PrintAllHandler
    = std::function<int(Workspace &, QWidget *parent, const QList<PrintRequest> &documents)>;

// The "打印(F8)" button of a screen. Pressing it (or F8 anywhere in the screen) prints what
// `request` returns at that moment (nothing when its key is empty). A workspace without a print
// handler (a screen test) leaves it disabled, with the tooltip printingNotBuilt.
QPushButton *makePrintButton(
    Workspace &workspace, QWidget *screen, std::function<PrintRequest()> request);

// A query's filters with what they hold, for a printed heading: "仓库：主仓库  查找：阿莫" (a
// field left empty is left out).
QString filterHeading(const QList<QPair<QString, QWidget *>> &filters);

} // namespace medistock::ui
