#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
struct Workspace;
} // namespace medistock::ui

// Renders the master-data screens: the goods list with its class tree, the goods dialog's tabs,
// customers, suppliers, warehouses, employees, a small list and an import preview with a rejected
// row, on example rows made through the operations. `scratch` is a folder for the spreadsheet.
void shootMasterData(const std::function<void(QWidget *, const QString &)> &shoot,
    medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace, const QString &scratch);
