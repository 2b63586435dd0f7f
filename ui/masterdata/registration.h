#pragma once

namespace medistock::ui {

class ScreenRegistry;

// Registers the master-data screens of "其它操作": "商品管理", "供货商设置", "客户设置",
// "员工设置", "仓库设置".
void registerMasterDataScreens(ScreenRegistry &registry);

} // namespace medistock::ui
