#include "ui/reports/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/reports/reportdesignscreen.h"

namespace medistock::ui {

void registerReportScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("qtcz"), QStringLiteral("报表设计"),
        [](Workspace &workspace) { return new ReportDesignScreen(workspace); });
}

} // namespace medistock::ui
