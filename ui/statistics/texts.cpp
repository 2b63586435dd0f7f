#include "ui/statistics/texts.h"

#include "ui/masterdata/texts.h"

namespace medistock::ui::stats::texts {

QString totalsRow()
{
    return QStringLiteral("合计");
}

QString from()
{
    return QStringLiteral("日期从");
}

QString to()
{
    return QStringLiteral("至");
}

QString warehouse()
{
    return QStringLiteral("仓库");
}

QString allWarehouses()
{
    return QStringLiteral("所有仓库");
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

QString rowCount(int rows)
{
    return mdtexts::rowCount(rows);
}

QString runButton()
{
    return QStringLiteral("查询(F5)");
}

QString cancelButton()
{
    return QStringLiteral("取消(Esc)");
}

QString exportButton()
{
    return QStringLiteral("导出(F7)");
}

QString printButton()
{
    return QStringLiteral("打印(F8)");
}

QString running()
{
    return QStringLiteral("正在统计，按 Esc 可取消……");
}

QString cancelledRun()
{
    return QStringLiteral("统计已取消。");
}

QString exportTitle()
{
    return mdtexts::exportTitle;
}

QString xlsxFilter()
{
    return mdtexts::xlsxFilter;
}

QString exported(const QString &path)
{
    return mdtexts::exported(path);
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
