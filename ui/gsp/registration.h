#pragma once

namespace medistock::ui {

class MainWindow;
class ScreenRegistry;
struct Workspace;

// The screens of "GSP管理", and "过期查询" of "库存管理".
void registerGspScreens(ScreenRegistry &registry);

// The main window's reminders: the count of near-expiry batches in its status bar (a click opens
// the expiry query; counted again every ten minutes), and at login the temperature log's
// reminder for an operator who keeps it.
void addGspReminders(MainWindow &window, Workspace &workspace);

} // namespace medistock::ui
