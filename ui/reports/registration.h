#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "报表设计" of "其它操作".
void registerReportScreens(ScreenRegistry &registry);

} // namespace medistock::ui
