#pragma once

namespace medistock::ui {

class ScreenRegistry;

// The stock a clerk sees and moves: "当前库存查询" of "采购管理" and "销售管理"; "库存调拨",
// "库存盘点", "库存报损报溢", "库存报警查询", "库存变动情况" (the goods ledger) and "修改商品均价"
// of "库存管理"; the statistics' ledger of every goods as "库存变动查询" of "日常管理"; and
// "商品期初建账" of "其它操作".
void registerStockScreens(ScreenRegistry &registry);

} // namespace medistock::ui
