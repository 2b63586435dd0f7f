#include "statistics/texts.h"

#include "core/rounding.h"

namespace medistock::statistics::texts {

QString badDate()
{
    return QStringLiteral("请输入正确的日期（yyyy-MM-dd）！");
}

QString rangeReversed()
{
    return QStringLiteral("开始日期不能晚于结束日期！");
}

QString cancelled()
{
    return QStringLiteral("操作已取消，数据没有任何改变。");
}

QString differenceLine(const QString &goods, const QString &name, double difference)
{
    return goods + QLatin1Char(' ') + name + QStringLiteral("，差额：")
        + core::plainNumber(difference);
}

QString noDifference()
{
    return QStringLiteral("进销存数据核对完毕，没有差额。");
}

QString costSyncQuestion(const QString &from, const QString &to)
{
    return QStringLiteral("您的操作将按移动加权平均价重新计算%1至%2的出库成本价和毛利，"
                          "并改写对应的单据，确认吗？")
        .arg(from, to);
}

QString costSyncLog(const QString &from, const QString &to, int rowsChanged)
{
    return QStringLiteral("出库成本价同步%1至%2，共改写%3条记录").arg(from, to).arg(rowsChanged);
}

QString unknownDocumentKind(const QString &number)
{
    return QStringLiteral("无法识别的单据号：") + number;
}

QString documentNotFound(const QString &number)
{
    return QStringLiteral("单据") + number + QStringLiteral("不存在！");
}

QString batchRequired()
{
    return QStringLiteral("请输入批号！");
}

QString goodsRequired()
{
    return QStringLiteral("请选择商品！");
}

QString commissionByAmount()
{
    return QStringLiteral("按销售额提成");
}

QString commissionByProfit()
{
    return QStringLiteral("按利润提成");
}

} // namespace medistock::statistics::texts
