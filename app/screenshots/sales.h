#pragma once

#include "app/screenshots/documents.h"

// Renders the sales screens on the business shootDocuments seeded: the sale filled (with the
// goods picker and the batch picker open), the unchecked sales, the customer return taken from
// a checked sale, the sales order and "导入销售订单"; the query of sales and returns; "报价管理"
// with its dialogs.
void shootSales(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
