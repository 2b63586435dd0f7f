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

} // namespace medistock::ui::texts
