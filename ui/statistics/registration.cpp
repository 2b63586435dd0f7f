#include "ui/statistics/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/statistics/jxcscreen.h"
#include "ui/statistics/movementscreen.h"
#include "ui/statistics/screens.h"

namespace medistock::ui {

void registerStatisticsScreens(ScreenRegistry &registry)
{
    using namespace stats;
    const QString area = QStringLiteral("tjgl");
    const std::pair<const char *, QWidget *(*)(Workspace &)> screens[] = {
        { "进货月报", [](Workspace &w) -> QWidget * { return makeInwardScreen(w); } },
        { "商品采购统计", [](Workspace &w) -> QWidget * { return makePurchaseScreen(w); } },
        { "业务员采购统计", [](Workspace &w) -> QWidget * { return makeBuyerScreen(w); } },
        { "出库月报", [](Workspace &w) -> QWidget * { return makeOutwardScreen(w); } },
        { "商品销售统计", [](Workspace &w) -> QWidget * { return makeSalesScreen(w); } },
        { "业务员销售统计", [](Workspace &w) -> QWidget * { return makeSalesmanScreen(w); } },
        { "库存变动查询", [](Workspace &w) -> QWidget * { return makeMovementScreen(w); } },
        { "库存成本统计", [](Workspace &w) -> QWidget * { return makeStockScreen(w); } },
        { "营业分析", [](Workspace &w) -> QWidget * { return makeBusinessScreen(w); } },
        { "商品销售排行", [](Workspace &w) -> QWidget * { return makeRankingScreen(w); } },
        { "单据查询", [](Workspace &w) -> QWidget * { return makeDocumentScreen(w); } },
        { "批次查询", [](Workspace &w) -> QWidget * { return makeBatchScreen(w); } },
        { "进销存统计", [](Workspace &w) -> QWidget * { return new JxcScreen(w); } },
    };
    for (const auto &[operation, make] : screens)
        registry.addTab(area, QString::fromUtf8(operation), make);
}

} // namespace medistock::ui
