#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "往来账务": the supplier statements in "采购管理" ("cggl" 3), the customer statements in
// "销售管理" ("xsgl" 3).
void registerStatementScreens(ScreenRegistry &registry);

} // namespace medistock::ui
