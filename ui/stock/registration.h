#pragma once

namespace medistock::ui {

class ScreenRegistry;

// The stock a clerk sees: "当前库存查询" of "采购管理" and "销售管理", "库存变动情况" of "库存管理"
// (the goods ledger), and "商品期初建账" of "其它操作".
void registerStockScreens(ScreenRegistry &registry);

} // namespace medistock::ui
