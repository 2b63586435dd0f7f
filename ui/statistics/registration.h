#pragma once

namespace medistock::ui {

class ScreenRegistry;

// The screens of "统计报表" (tjgl 1 to 13).
void registerStatisticsScreens(ScreenRegistry &registry);

} // namespace medistock::ui
