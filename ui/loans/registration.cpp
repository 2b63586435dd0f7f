#include "ui/loans/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/documents/documentscreen.h"
#include "ui/loans/loankind.h"

namespace medistock::ui {

void registerLoanScreens(ScreenRegistry &registry)
{
    registry.addTab(
        QStringLiteral("rcgl"), QStringLiteral("客户借货管理"), [](Workspace &workspace) {
            return new DocumentScreen(workspace, std::make_unique<LoanScreenKind>());
        });
}

} // namespace medistock::ui
