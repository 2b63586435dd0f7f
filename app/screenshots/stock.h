#pragma once

#include "app/screenshots/documents.h"

// Renders the stock screens of "库存管理": a transfer with its batch picker and its query, a count
// sheet with a difference, the loss and overflow pages, the stock alarms and the average changed
// by hand ("库存变动查询" of "日常管理" is the statistics' screen, shot with them). Runs after
// shootDocuments, whose stock it moves.
void shootStock(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
