#include "ui/stock/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/documents/documentscreen.h"
#include "ui/statistics/movementscreen.h"
#include "ui/statistics/reportscreen.h"
#include "ui/stock/alarmscreen.h"
#include "ui/stock/averagescreen.h"
#include "ui/stock/countkind.h"
#include "ui/stock/ledgerscreen.h"
#include "ui/stock/openingkind.h"
#include "ui/stock/stockkinds.h"
#include "ui/stock/stockqueryscreen.h"

namespace medistock::ui {

void registerStockScreens(ScreenRegistry &registry)
{
    for (const char *area : { "cggl", "xsgl" })
        registry.addTab(QString::fromLatin1(area), QStringLiteral("当前库存查询"),
            [](Workspace &workspace) { return new StockQueryScreen(workspace); });
    const QString area = QStringLiteral("kcgl");
    registry.addTab(area, QStringLiteral("库存调拨"), [](Workspace &workspace) {
        return new DocumentScreen(workspace, std::make_unique<TransferScreenKind>());
    });
    registry.addTab(area, QStringLiteral("库存盘点"), [](Workspace &workspace) {
        return new DocumentScreen(workspace, std::make_unique<CountScreenKind>());
    });
    registry.addTab(area, QStringLiteral("库存报损报溢"),
        [](Workspace &workspace) { return new LossOverflowScreen(workspace); });
    registry.addTab(area, QStringLiteral("库存报警查询"),
        [](Workspace &workspace) { return new StockAlarmScreen(workspace); });
    registry.addTab(area, QStringLiteral("修改商品均价"),
        [](Workspace &workspace) { return new AverageScreen(workspace); });
    registry.addTab(area, QStringLiteral("库存变动情况"),
        [](Workspace &workspace) { return new GoodsLedgerScreen(workspace); });
    // "库存变动查询" of "日常管理" is the ledger of every goods of the statistics.
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("库存变动查询"),
        [](Workspace &workspace) -> QWidget * { return stats::makeMovementScreen(workspace); });
    registry.addTab(
        QStringLiteral("qtcz"), QStringLiteral("商品期初建账"), [](Workspace &workspace) {
            return new DocumentScreen(workspace, std::make_unique<OpeningScreenKind>());
        });
}

} // namespace medistock::ui
