#include "reports/texts.h"

namespace medistock::reports::texts {

QString templateMissing(const QString &path)
{
    return QStringLiteral("报表文件不存在：") + path + QStringLiteral("，不能打印！");
}

QString templateUnreadable(const QString &path)
{
    return QStringLiteral("报表文件无法读取：") + path;
}

QString templateDamaged(qint64 line, const QString &reason)
{
    return QStringLiteral("报表文件格式有误（第%1行）：").arg(line) + reason;
}

QString notATemplate()
{
    return QStringLiteral("这不是报表文件：根元素应为 TfrxReport");
}

QString templateNotSaved(const QString &path)
{
    return QStringLiteral("报表文件保存失败：") + path
        + QStringLiteral("\r\n\r\n请检查该文件夹是否可以写入。");
}

QString expressionError(const QString &expression, int column)
{
    return QStringLiteral("表达式“%1”第%2个字符处有误").arg(expression).arg(column);
}

QString objectFault(const QString &objectName, const QString &fault)
{
    return QStringLiteral("报表对象“") + objectName + QStringLiteral("”：") + fault;
}

QString styleTitle()
{
    return QStringLiteral("选择打印单据样式");
}

QString stylePrompt()
{
    return QStringLiteral("请选择需要的单据样式：");
}

QString styleNotOffered(const QString &style, const QString &key)
{
    return QStringLiteral("打印样式“") + style + QStringLiteral("”不能用于“") + key
        + QStringLiteral("”的打印！");
}

QString unknownKey(const QString &key)
{
    return QStringLiteral("没有“") + key + QStringLiteral("”这种单据的打印！");
}

QString printAllQuestion()
{
    return QStringLiteral("您的操作将打印当前查询中的所有单据，\r\n\r\n"
                          "将直接打印不做预览，确认打印吗？");
}

QString noPrinter()
{
    return QStringLiteral("没有可用的打印机，请先在系统中安装打印机！");
}

QString loanTitle()
{
    return QStringLiteral("借货");
}

QString loanReturnTitle()
{
    return QStringLiteral("还货");
}

QString lossTitle()
{
    return QStringLiteral("商品报损单");
}

QString overflowTitle()
{
    return QStringLiteral("商品报溢单");
}

QString posSaleTitle()
{
    return QStringLiteral("POS销售单");
}

QString posReturnTitle()
{
    return QStringLiteral("POS退货单");
}

} // namespace medistock::reports::texts
