#include "ui/maintenance/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/maintenance/backupdialog.h"
#include "ui/maintenance/verifyscreen.h"

namespace medistock::ui {

void registerMaintenanceScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("kcgl"), QStringLiteral("库存核对"),
        [](Workspace &workspace) { return new VerifyScreen(workspace); });
    registry.addAction(QStringLiteral("qtcz"), QStringLiteral("备份/恢复数据库"),
        [](Workspace &workspace, QWidget *window) {
            BackupDialog dialog(workspace, window);
            dialog.exec();
            // The open screens hold the replaced books: the program logs in again.
            if (dialog.restored())
                window->close();
        });
}

} // namespace medistock::ui
