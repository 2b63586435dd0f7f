#include "ui/stock/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/documents/documentscreen.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/openingkind.h"
#include "ui/stock/stockqueryscreen.h"

namespace medistock::ui {

void registerStockScreens(ScreenRegistry &registry)
{
    for (const char *area : { "cggl", "xsgl" })
        registry.addTab(QString::fromLatin1(area), QStringLiteral("当前库存查询"),
            [](Workspace &workspace) { return new StockQueryScreen(workspace); });
    registry.addTab(QStringLiteral("kcgl"), QStringLiteral("库存变动情况"),
        [](Workspace &workspace) { return new GoodsLedgerScreen(workspace); });
    registry.addTab(
        QStringLiteral("qtcz"), QStringLiteral("商品期初建账"), [](Workspace &workspace) {
            return new DocumentScreen(workspace, std::make_unique<OpeningScreenKind>());
        });
}

} // namespace medistock::ui
