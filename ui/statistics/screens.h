#pragma once

class QWidget;

namespace medistock::ui {
struct Workspace;
}

namespace medistock::ui::stats {

class ReportScreen;

// The screens of the statistics area, one per operation of "统计报表" (tjgl). Each is a
// ReportScreen with its filters, columns and run; charts sit beside the grids of the business
// analysis, the ranking and the stock cost.

ReportScreen *makeInwardScreen(Workspace &workspace); // 1 进货月报
ReportScreen *makeOutwardScreen(Workspace &workspace); // 4 出库月报
ReportScreen *makePurchaseScreen(Workspace &workspace); // 2 商品采购统计
ReportScreen *makeBuyerScreen(Workspace &workspace); // 3 业务员采购统计
ReportScreen *makeSalesScreen(Workspace &workspace); // 5 商品销售统计, with 单品分析
ReportScreen *makeSalesmanScreen(Workspace &workspace); // 6 业务员销售统计
ReportScreen *makeBusinessScreen(Workspace &workspace); // 9 营业分析
ReportScreen *makeRankingScreen(Workspace &workspace); // 10 商品销售排行
// 8 库存成本统计: two tabs, "库存成本统计" and "库存数量金额统计".
QWidget *makeStockScreen(Workspace &workspace);
ReportScreen *makeStockCostScreen(Workspace &workspace);
ReportScreen *makeStockValueScreen(Workspace &workspace);
ReportScreen *makeDocumentScreen(Workspace &workspace); // 11 单据查询
ReportScreen *makeBatchScreen(Workspace &workspace); // 12 批次查询

} // namespace medistock::ui::stats
