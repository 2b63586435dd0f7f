#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "采购管理": 采购进货, 采购退货 and 进退货查询 ("当前库存查询" comes from the stock screens).
void registerPurchasingScreens(ScreenRegistry &registry);

} // namespace medistock::ui
