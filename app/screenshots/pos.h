#pragma once

#include "app/screenshots/documents.h"

// Renders the till (during a sale and at payment, the return and the handover, the handover slip
// and the list of handovers) and the POS reports, on screen and in their print previews, on sales,
// a return and till cash posted through the operations today. Needs the goods and stock of
// shootDocuments and the members of shootMembers.
void shootPos(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
