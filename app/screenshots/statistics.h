#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
struct Workspace;
} // namespace medistock::ui

// Renders the statistics screens after a few months of business made through the document
// operations on the master data that shootMasterData left: each report run over those months, the
// charts beside them, the summary's movement view and a document opened from a row.
void shootStatistics(const std::function<void(QWidget *, const QString &)> &shoot,
    medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
