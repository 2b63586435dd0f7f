#pragma once

namespace medistock::ui {

class ScreenRegistry;

// Registers the shell's screens: "操作员设置", "系统设置", "查看日志", "清除日志", "帐套管理".
void registerShellScreens(ScreenRegistry &registry);

} // namespace medistock::ui
