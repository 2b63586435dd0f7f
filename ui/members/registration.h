#pragma once

namespace medistock::ui {

class ScreenRegistry;

// "会员管理" under "其它操作" and "赠品管理" under "日常管理".
void registerMemberScreens(ScreenRegistry &registry);

} // namespace medistock::ui
