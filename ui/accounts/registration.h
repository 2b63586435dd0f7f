#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "往来账务": the supplier statements in "采购管理" ("cggl" 3), the customer statements in
// "销售管理" ("xsgl" 3).
void registerStatementScreens(ScreenRegistry &registry);

// "往来帐款": the registrations, the ledgers with their written-off change and the invoice
// registers; "日常管理": expenses and income, cash and bank. The check entries open the same
// screens on what waits for checking.
void registerMoneyScreens(ScreenRegistry &registry);

} // namespace medistock::ui
