#include "ui/stock/texts.h"

#include <QStringList>

namespace medistock::ui::sttexts {

QString ledgerOf(const QString &goodsName)
{
    return QStringLiteral("商品明细帐：") + goodsName;
}

QString posted(const QString &entry)
{
    return QStringLiteral("已建账：") + entry;
}

QString averageShown(const QString &perUnit, const QString &onHand, const QString &baseUnit)
{
    return QStringLiteral("%1（帐面库存 %2 %3）").arg(perUnit, onHand, baseUnit);
}

QString notOnSheet(const QString &scanned)
{
    return QStringLiteral("条码“%1”的商品不在盘点表中！").arg(scanned);
}

QString rowNotOnSheet(int row, const QString &goodsCode, const QString &batchNumber)
{
    return QStringLiteral("第%1行：商品“%2”批号“%3”不在盘点表中")
        .arg(row)
        .arg(goodsCode, batchNumber);
}

QString badCount(int row, const QString &typed)
{
    return QStringLiteral("第%1行：盘点数量“%2”不是有效的数量").arg(row).arg(typed);
}

QString importRefused(const QStringList &problems)
{
    return QStringLiteral("盘点数量未导入：\r\n") + problems.join(QStringLiteral("\r\n"));
}

QString imported(int lines)
{
    return QStringLiteral("已导入 %1 行盘点数量").arg(lines);
}

} // namespace medistock::ui::sttexts
