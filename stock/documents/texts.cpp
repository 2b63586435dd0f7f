#include "stock/documents/texts.h"

namespace medistock::stock::texts {

namespace {

const QString twoBreaks = QStringLiteral("\r\n\r\n");

QString line(int row)
{
    return QStringLiteral("第%1行：").arg(row);
}

} // namespace

QString sameWarehouses()
{
    return QStringLiteral("调出仓库和调入仓库不能相同！");
}

QString batchNotInWarehouse(int row, const QString &goodsName, const QString &batch,
    const QString &expiry, const QString &produced)
{
    return line(row)
        + QStringLiteral("调出仓库没有商品“%1”的这个批次（批号“%2”，有效期至“%3”，生产日期“%4”）！")
              .arg(goodsName, batch, expiry, produced);
}

QString countedTwice(int row, const QString &goodsName, int firstRow)
{
    return line(row)
        + QStringLiteral("商品“%1”的这个批次已在第%2行盘点！").arg(goodsName).arg(firstRow);
}

QString noUncheckRight(const QString &title)
{
    return QStringLiteral("您没有取消审核") + title + QStringLiteral("的权限！");
}

QString stockTakingUncheckQuestion()
{
    return QStringLiteral("您的操作将取消当前的单据，确认吗？");
}

QString laterBusiness(const QString &date, const QString &laterNumber, const QString &number)
{
    return QStringLiteral("在【") + date + QStringLiteral("】日期之后盘点商品已发生业务，")
        + twoBreaks + QStringLiteral("单号为：【") + laterNumber + QStringLiteral("】，")
        + twoBreaks + QStringLiteral("该盘点单 ") + number + QStringLiteral(" 不能撤销！");
}

QString transferCheckedLog(const QString &number, int lineCount)
{
    return QStringLiteral("增加已审核库存调拨单") + number
        + QStringLiteral("，共%1种商品").arg(lineCount);
}

QString transferUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核库存调拨单") + number;
}

QString stockTakingCheckedLog(const QString &number, int rowCount)
{
    return QStringLiteral("库存盘点单通过") + number
        + QStringLiteral("审核，共%1个商品").arg(rowCount);
}

QString stockTakingUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核库存盘点单：") + number;
}

QString adjustmentCheckedLog(const QString &title, const QString &number, int lineCount)
{
    return QStringLiteral("增加已审核") + title + number
        + QStringLiteral("，共%1种商品").arg(lineCount);
}

QString adjustmentUncheckedLog(const QString &title, const QString &number)
{
    return QStringLiteral("取消审核") + title + number;
}

QString transferIn()
{
    return QStringLiteral("调拨入库");
}

QString transferOut()
{
    return QStringLiteral("调拨出库");
}

QString stockTakingParty()
{
    return QStringLiteral("库存盘点");
}

QString lossParty()
{
    return QStringLiteral("商品报损");
}

QString overflowParty()
{
    return QStringLiteral("商品报溢");
}

QString stockTakingDifferenceNote(const QString &number)
{
    return QStringLiteral("商品盘点单") + number + QStringLiteral("成本差额");
}

QString lossDifferenceNote(const QString &number)
{
    return QStringLiteral("报损单") + number + QStringLiteral("成本差额");
}

QString overflowDifferenceNote(const QString &number)
{
    return QStringLiteral("报溢单") + number + QStringLiteral("成本差额");
}

QString openingPostedLog(const QString &number, int rowCount)
{
    return QStringLiteral("商品期初建账") + number + QStringLiteral("，共%1种商品").arg(rowCount);
}

QString openingRemovedLog(const QString &number)
{
    return QStringLiteral("删除商品期初建账") + number;
}

QString openingMissing(const QString &number)
{
    return QStringLiteral("期初建账单据") + number + QStringLiteral("不存在！");
}

QString openingRemoveQuestion(const QString &number)
{
    return QStringLiteral("您的操作将删除期初建账单据：") + number
        + QStringLiteral("，其中的库存将被冲回，确认吗？");
}

QString openingParty()
{
    return QStringLiteral("期初建账");
}

} // namespace medistock::stock::texts
