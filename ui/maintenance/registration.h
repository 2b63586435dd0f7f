#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "库存核对" of "库存管理" (the books' self-check) and "备份/恢复数据库" of "其它操作".
void registerMaintenanceScreens(ScreenRegistry &registry);

} // namespace medistock::ui
