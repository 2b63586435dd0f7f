#pragma once

#include "shell/session.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/printing.h"

#include <QString>

#include <functional>

class QTableView;

namespace medistock::core {
class Connection;
}

namespace medistock::ui {

// What a screen is opened with: the logged-in session (its connection, operator, parameters
// and the way to tell and ask), the master file that keeps the register of account sets, and
// the store of grid layouts. Owned by the program; screens keep a reference.
struct Workspace
{
    shell::Session &session;
    core::Connection &master;
    QString accountSetName;
    GridLayouts &layouts;
    // The data folder the program started with; empty in a workspace built without one.
    QString dataFolder {};
    // Opens (or brings forward) the screen of an operation and returns it; nullptr when the
    // operator lacks its right or no screen is registered. Set by the main window; a screen
    // shown without one (a test, a screenshot) finds it empty.
    std::function<QWidget *(const QString &area, int position)> openScreen {};
    // How screens print (see printing.h); set by the program (ui/reports).
    PrintHandler print {};
    PrintAllHandler printAll {};

    // Where the workstation keeps its files (edited report templates, GSP documents): the data
    // folder, also when the books are on a server and no master file marks a folder; without
    // one, the master file's folder.
    QString folder() const;

    // Restores a grid's column widths and order for this screen and operator and keeps them.
    void rememberColumns(QTableView *grid, const QString &screen)
    {
        layouts.remember(grid, screen, session.user().code);
    }
};

} // namespace medistock::ui
