#include "ui/accounts/registration.h"

#include "ui/accounts/statementscreen.h"
#include "ui/common/screenregistry.h"

#include <QTabWidget>

namespace medistock::ui {

void registerStatementScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("cggl"), QStringLiteral("往来账务"),
        [](Workspace &workspace) { return supplierStatements(workspace); });
    registry.addTab(QStringLiteral("xsgl"), QStringLiteral("往来账务"),
        [](Workspace &workspace) { return customerStatements(workspace); });
}

} // namespace medistock::ui
