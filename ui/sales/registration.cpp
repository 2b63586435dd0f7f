#include "ui/sales/registration.h"

#include "sales/kinds.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/sales/quotationscreen.h"
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
    registry.addTab(area, sltexts::queryTitle, [area](Workspace &workspace) {
        // Returns count against sales: their quantities and amounts show negative.
        QList<ListedKind> kinds { { &sales::saleKind(), area, sales::rights::saveSale,
                                      QStringLiteral("spxs"), 1 },
            { &sales::salesReturnKind(), area, sales::rights::saveReturn, QStringLiteral("xsth"),
                -1, true } };
        auto *screen = new DocumentListScreen(workspace, sltexts::queryTitle, kinds, {});
        screen->run();
        return screen;
    });
    registry.addTab(QStringLiteral("rcgl"), sltexts::quotations, [](Workspace &workspace) {
        auto *screen = new QuotationScreen(workspace);
        screen->run();
        return screen;
    });
}

} // namespace medistock::ui
