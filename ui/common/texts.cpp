#include "ui/common/texts.h"

namespace medistock::ui::texts {

QString promptTitle()
{
    return QStringLiteral("系统提示");
}

QString yes()
{
    return QStringLiteral("是(&Y)");
}

QString no()
{
    return QStringLiteral("否(&N)");
}

QString ok()
{
    return QStringLiteral("确定");
}

QString cancel()
{
    return QStringLiteral("取消");
}

QString notAvailable()
{
    return QStringLiteral("此功能尚未提供");
}

QString checkButton()
{
    return QStringLiteral("审核通过(F5)");
}

QString pleaseWait()
{
    return QStringLiteral("请稍候");
}

QString printButton()
{
    return QStringLiteral("打印(F8)");
}

QString printingNotBuilt()
{
    return QStringLiteral("打印功能尚未完成，完成后即可在此打印");
}

QString queryButton()
{
    return QStringLiteral("查询(F5)");
}

QString query()
{
    return QStringLiteral("查询");
}

QString exportButton()
{
    return QStringLiteral("导出(&X)");
}

QString exportTitle()
{
    return QStringLiteral("导出到Excel表格");
}

QString xlsxFilter()
{
    return QStringLiteral("Excel表格 (*.xlsx)");
}

QString exported(const QString &path)
{
    return QStringLiteral("已导出到：") + path;
}

QString rowCount(int rows)
{
    return QStringLiteral("记录数：%1").arg(rows);
}

QString totalRow()
{
    return QStringLiteral("合计");
}

QString all()
{
    return QStringLiteral("全部");
}

QString allWarehouses()
{
    return QStringLiteral("所有仓库");
}

QString dateFrom()
{
    return QStringLiteral("日期从");
}

QString dateTo()
{
    return QStringLiteral("到");
}

QString calendar()
{
    return QStringLiteral("选择日期（也可直接输入，如 20250314）");
}

QString nothingFound(const QString &text)
{
    return QStringLiteral("没有找到：") + text;
}

QString choose()
{
    return QStringLiteral("选择");
}

QString choiceTitle(const QString &what)
{
    return QStringLiteral("选择") + what;
}

} // namespace medistock::ui::texts
