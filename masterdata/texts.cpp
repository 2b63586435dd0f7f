#include "masterdata/texts.h"

namespace medistock::masterdata::texts {

QString nameRequired(const QString &nameLabel)
{
    return nameLabel + QStringLiteral("必须填写！");
}

QString codeTaken(const QString &code)
{
    return QStringLiteral("编号：%1 已经存在，请重新输入！").arg(code);
}

QString nameTaken(const QString &nameLabel, const QString &name)
{
    return QStringLiteral("%1：%2 已经存在，请重新输入！").arg(nameLabel, name);
}

QString notADate(const QString &field, const QString &text)
{
    return QStringLiteral("%1不是正确的日期（yyyy-MM-dd）：%2").arg(field, text);
}

QString tooLong(const QString &field, int limit)
{
    return QStringLiteral("%1不能超过%2个字！").arg(field).arg(limit);
}

QString unknownColumn(const QString &column)
{
    return QStringLiteral("没有这个字段：") + column;
}

QString notFound(const QString &label, const QString &code)
{
    return QStringLiteral("没有这个%1：%2").arg(label, code);
}

QString inUse(const QString &label, const QString &name, const QString &what, bool canDisable)
{
    QString text = QStringLiteral("%1“%2”已有%3记录，不能删除！").arg(label, name, what);
    if (canDisable)
        text += QStringLiteral("可以将它设为禁用。");
    return text;
}

QString codeRequired()
{
    return QStringLiteral("编号必须填写！");
}

QString barcodeTaken(const QString &barcode, const QString &goodsName)
{
    return QStringLiteral("条码：%1 已被商品“%2”使用！").arg(barcode, goodsName);
}

QString unitTaken(const QString &unit)
{
    return QStringLiteral("单位：%1 已经存在，请重新输入！").arg(unit);
}

QString classNotEmpty(const QString &name)
{
    return QStringLiteral("商品类别“%1”下还有子类别或商品，不能删除！").arg(name);
}

QString classCycle()
{
    return QStringLiteral("不能把商品类别移到它自己或它的下级类别下面！");
}

QString classNotFound()
{
    return QStringLiteral("该商品类别已不存在！");
}

QString unknownClass(const QString &name)
{
    return QStringLiteral("没有这个商品类别：") + name;
}

QString deleteQuestion(const QString &label, const QString &name)
{
    return QStringLiteral("确实要删除%1：%2 吗？").arg(label, name);
}

QString importSummary(int accepted, int rejected)
{
    return QStringLiteral("可以导入 %1 行，有错误 %2 行。").arg(accepted).arg(rejected);
}

QString importQuestion(int accepted, int rejected)
{
    return QStringLiteral("共 %1 行可以导入，%2 行有错误将被跳过。确认导入吗？")
        .arg(accepted)
        .arg(rejected);
}

QString imported(int written)
{
    return QStringLiteral("已导入 %1 行。").arg(written);
}

} // namespace medistock::masterdata::texts
