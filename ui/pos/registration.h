#pragma once

namespace medistock::ui {

class ScreenRegistry;

// The till under "销售管理" and the POS reports under "统计报表".
void registerPosScreens(ScreenRegistry &registry);

} // namespace medistock::ui
