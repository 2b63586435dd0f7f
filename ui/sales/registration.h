#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "销售管理": 商品销售, 顾客退货 and 销售订单.
void registerSalesScreens(ScreenRegistry &registry);

} // namespace medistock::ui
