#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
struct Workspace;
} // namespace medistock::ui

// Renders the GSP screens and the expiry query on example records made through the operations:
// receipts and sales of prescription, split and restricted drugs, a few days of the temperature
// log, the staff register with a plan and its training, an inspection and a tracking record; and
// the dialogs that enter them. Needs the master data of shootMasterData.
void shootGsp(const std::function<void(QWidget *, const QString &)> &shoot,
    medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
