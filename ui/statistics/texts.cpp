#include "ui/statistics/texts.h"

namespace medistock::ui::stats::texts {

QString warehouse()
{
    return QStringLiteral("仓库");
}

QString goodsClass()
{
    return QStringLiteral("类别");
}

QString allClasses()
{
    return QStringLiteral("所有类别");
}

QString keyword()
{
    return QStringLiteral("商品");
}

QString keywordHint()
{
    return QStringLiteral("编号、名称或简码");
}

QString cancelButton()
{
    return QStringLiteral("取消(Esc)");
}

QString running()
{
    return QStringLiteral("正在统计，按 Esc 可取消……");
}

QString cancelledRun()
{
    return QStringLiteral("统计已取消。");
}

QString checkButton()
{
    return QStringLiteral("差额核对(F9)");
}

QString syncButton()
{
    return QStringLiteral("出库成本价同步");
}

QString moreDifferences(int goods)
{
    return QStringLiteral("\r\n……\r\n共%1种商品有差额，详见列表。").arg(goods);
}

QString syncing()
{
    return QStringLiteral("正在同步出库成本价……");
}

QString synced(int rows, int lines)
{
    return QStringLiteral("出库成本价同步完成：共改写%1条出库记录、%2条单据明细。")
        .arg(rows)
        .arg(lines);
}

} // namespace medistock::ui::stats::texts
