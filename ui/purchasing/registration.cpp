#include "ui/purchasing/registration.h"

#include "purchasing/kinds.h"
#include "ui/common/screenregistry.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/purchasing/purchasekinds.h"
#include "ui/purchasing/texts.h"

namespace medistock::ui {

void registerPurchasingScreens(ScreenRegistry &registry)
{
    const QString area = QStringLiteral("cggl");
    registry.addTab(area, QStringLiteral("采购进货"), [](Workspace &workspace) {
        return new DocumentScreen(workspace, std::make_unique<ReceiptScreenKind>());
    });
    registry.addTab(area, QStringLiteral("采购退货"), [](Workspace &workspace) {
        return new DocumentScreen(workspace, std::make_unique<ReturnScreenKind>());
    });
    registry.addTab(area, QStringLiteral("进退货查询"), [area](Workspace &workspace) {
        // Returns count against receipts: their quantities and amounts show negative.
        QList<ListedKind> kinds { { &purchasing::purchaseReceipt().entry, area, 1,
                                      QStringLiteral("cgjh"), 1 },
            { &purchasing::purchaseReturn().entry, area, 2, QStringLiteral("cgth"), -1 } };
        auto *screen = new DocumentListScreen(workspace, pctexts::queryTitle, kinds, {});
        screen->run();
        return screen;
    });
}

} // namespace medistock::ui
