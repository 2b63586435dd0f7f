#pragma once

#include "app/screenshots/documents.h"

// Renders the loan screens (a checked loan, its return and its sale) and every tab of the
// customer and supplier statements on a loan, its return, sales of loaned goods and a sale with
// a customer return. Runs after shootDocuments, whose stock and purchases it uses.
void shootLoans(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
