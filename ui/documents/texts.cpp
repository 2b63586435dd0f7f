#include "ui/documents/texts.h"

#include <QStringList>

namespace medistock::ui::doctexts {

QString lineCaption(int field)
{
    static const QStringList captions { QStringLiteral("行"), QStringLiteral("商品编号"),
        QStringLiteral("商品名称"), QStringLiteral("规格"), QStringLiteral("单位"),
        QStringLiteral("批号"), QStringLiteral("生产日期"), QStringLiteral("有效期至"),
        QStringLiteral("数量"), QStringLiteral("单价"), QStringLiteral("折扣"),
        QStringLiteral("金额"), QStringLiteral("税率%"), QStringLiteral("价税合计"),
        QStringLiteral("库存"), QStringLiteral("备注"), QStringLiteral("帐面数量"),
        QStringLiteral("盈亏数量"), QStringLiteral("成本价"), QStringLiteral("限售数量") };
    return captions.value(field);
}

QString statusChecked(const QString &by, const QString &on)
{
    return QStringLiteral("已审核　审核人：%1　审核日期：%2").arg(by, on);
}

QString totals(const QString &quantitySum, const QString &amountSum)
{
    return QStringLiteral("合计数量：%1　　合计金额：%2").arg(quantitySum, amountSum);
}

QString due(const QString &label, const QString &value)
{
    return QStringLiteral("%1：%2").arg(label, value);
}

QString deleteQuestion(const QString &title, const QString &documentNumber)
{
    return QStringLiteral("确定要删除%1：%2 吗？").arg(title, documentNumber);
}

QString goodsNotFound(const QString &text)
{
    return QStringLiteral("没有找到商品：%1\r\n请输入商品编号、条码、简码或名称。").arg(text);
}

} // namespace medistock::ui::doctexts
