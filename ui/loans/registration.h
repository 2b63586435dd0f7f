#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "客户借货管理" ("rcgl" 4): the loan on the document screen with its returns and sales.
void registerLoanScreens(ScreenRegistry &registry);

} // namespace medistock::ui
