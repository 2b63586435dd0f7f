#pragma once

#include <QString>

#include <functional>

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
};

// Prints with preview; the program sets it once printing exists (Workspace::print). `parent` is
// the screen, for the preview to centre on.
using PrintHandler = std::function<void(Workspace &, QWidget *parent, const PrintRequest &)>;

// The "打印(F8)" button of a screen. Without a print handler it is disabled and its tooltip says
// why; with one, pressing it (or F8 anywhere in the screen) prints what `request` returns at that
// moment (nothing when its key is empty).
QPushButton *makePrintButton(
    Workspace &workspace, QWidget *screen, std::function<PrintRequest()> request);

} // namespace medistock::ui
