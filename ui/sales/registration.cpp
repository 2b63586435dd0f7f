#include "ui/sales/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentscreen.h"
#include "ui/sales/salekinds.h"
#include "ui/sales/texts.h"

namespace medistock::ui {

void registerSalesScreens(ScreenRegistry &registry)
{
    const QString area = QStringLiteral("xsgl");
    registry.addTab(area, sltexts::sale, [](Workspace &workspace) {
        return new DocumentScreen(workspace, std::make_unique<SaleScreenKind>(workspace.session));
    });
    registry.addTab(area, sltexts::salesReturn, [](Workspace &workspace) {
        return new DocumentScreen(
            workspace, std::make_unique<SalesReturnScreenKind>(workspace.session));
    });
    registry.addTab(area, sltexts::salesOrder, [](Workspace &workspace) {
        return new DocumentScreen(
            workspace, std::make_unique<SalesOrderScreenKind>(workspace.session));
    });
}

} // namespace medistock::ui
