#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "销售管理": 商品销售, 顾客退货, 销售订单 and 销售退货查询.
void registerSalesScreens(ScreenRegistry &registry);

} // namespace medistock::ui
