#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "销售管理": 商品销售 and 顾客退货.
void registerSalesScreens(ScreenRegistry &registry);

} // namespace medistock::ui
