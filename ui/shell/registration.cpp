#include "ui/shell/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/shell/accountsetscreen.h"
#include "ui/shell/logscreen.h"
#include "ui/shell/operatorscreen.h"
#include "ui/shell/settingsscreen.h"

namespace medistock::ui {

void registerShellScreens(ScreenRegistry &registry)
{
    const QString area = QStringLiteral("qtcz");
    registry.addTab(area, QStringLiteral("操作员设置"),
        [](Workspace &workspace) { return new OperatorScreen(workspace); });
    registry.addTab(area, QStringLiteral("系统设置"),
        [](Workspace &workspace) { return new SettingsScreen(workspace); });
    registry.addTab(area, QStringLiteral("查看日志"),
        [](Workspace &workspace) { return new LogScreen(workspace); });
    registry.addAction(area, QStringLiteral("清除日志"),
        [](Workspace &workspace, QWidget *) { clearLogWithQuestion(workspace); });
    registry.addTab(area, QStringLiteral("帐套管理"),
        [](Workspace &workspace) { return new AccountSetScreen(workspace); });
}

} // namespace medistock::ui
