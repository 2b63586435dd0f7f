#pragma once

#include "app/screenshots/documents.h"

// Renders the stock screens of "库存管理": a transfer with its batch picker and its query, a count
// sheet with a difference, the loss and overflow pages, the stock alarms, and the ledger of every
// goods of "日常管理". Runs after shootDocuments, whose stock it moves.
void shootStock(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
