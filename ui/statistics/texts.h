#pragma once

#include <QString>

// The words of the statistics screens.
namespace medistock::ui::stats::texts {

QString warehouse(); // "仓库"
QString goodsClass(); // "类别"
QString allClasses(); // "所有类别"
QString keyword(); // "商品"
QString keywordHint(); // "编号、名称或简码"
QString cancelButton(); // "取消(Esc)"
QString running(); // while a report runs
QString cancelledRun();

// 进销存统计
QString checkButton(); // "差额核对(F9)"
QString syncButton(); // "出库成本价同步"
QString moreDifferences(int goods); // after the first goods of a long difference list
QString syncing();
QString synced(int rows, int lines);

} // namespace medistock::ui::stats::texts
