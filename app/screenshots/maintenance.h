#pragma once

#include "app/screenshots/documents.h"

// Renders "库存核对" on the sample books as the program left them, with a stock row and a
// ledger row changed by hand and after the repair, and "备份/恢复数据库" before and after a backup.
// Runs last: the books it changes by hand are mended again before it returns.
void shootMaintenance(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
