#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
struct Workspace;
} // namespace medistock::ui

// Renders printing: the report-design screen, the designer on the sale form, and the previews of
// a sale, a purchase receipt and a till receipt on 58 mm and 80 mm paper, on documents made
// through their operations.
void shootReports(const std::function<void(QWidget *, const QString &)> &shoot,
    medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
