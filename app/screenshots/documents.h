#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
class PreviewDialog;
struct Workspace;
} // namespace medistock::ui

// How a screen is put into a picture: the widget alone, or a window with a dialog painted over it
// where the dialog stands.
struct Shots
{
    std::function<void(QWidget *, const QString &)> shoot;
    std::function<void(QWidget *window, QWidget *dialog, const QString &)> shootOver;
};

// Clicks the print button of `screen` and returns the preview it opened; nullptr when none did.
medistock::ui::PreviewDialog *printFrom(QWidget *screen);

// Renders the purchasing and stock screens on documents posted through the operations: the
// receipt filled (and with the goods picker open), the check dialog, the return taken from a
// receipt, the unchecked list, the query of receipts and returns, the stock query by warehouse
// and by batch, the goods ledger and the opening stock. Needs the goods, suppliers and
// warehouses that shootMasterData seeds.
void shootDocuments(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
