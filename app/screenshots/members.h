#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {
class MainWindow;
struct Workspace;
} // namespace medistock::ui

// Renders the members' and gifts' screens: the member list with its edit dialog, the changes by
// hand, top-up, history, levels, points settings and import preview; redeeming gifts, the
// redemptions and the gift items; on members, top-ups, till sales and redemptions made through
// the operations. Runs after the master data are seeded (it uses their goods and warehouse).
void shootMembers(const std::function<void(QWidget *, const QString &)> &shoot,
    medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace, const QString &scratch);
