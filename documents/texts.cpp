#include "documents/texts.h"

namespace medistock::documents::texts {

namespace {

QString line(int row)
{
    return QStringLiteral("第%1行：").arg(row);
}

QString partyWord(bool supplier)
{
    return supplier ? QStringLiteral("供货商") : QStringLiteral("客户");
}

} // namespace

QString dateInvalid(const QString &date)
{
    return QStringLiteral("单据日期“%1”不是有效的日期（yyyy-MM-dd）！").arg(date);
}

QString partyRequired(bool supplier)
{
    return QStringLiteral("请选择") + partyWord(supplier) + QStringLiteral("！");
}

QString partyMissing(bool supplier, const QString &code)
{
    return partyWord(supplier) + QStringLiteral("编号“%1”不存在！").arg(code);
}

QString partyForbidden(bool supplier, const QString &name)
{
    return partyWord(supplier) + QStringLiteral("“%1”已禁用，不能开单！").arg(name);
}

QString warehouseRequired()
{
    return QStringLiteral("请选择仓库！");
}

QString warehouseMissing(const QString &code)
{
    return QStringLiteral("仓库编号“%1”不存在！").arg(code);
}

QString employeeMissing(const QString &code)
{
    return QStringLiteral("业务员编号“%1”不存在！").arg(code);
}

QString discountNotOffered(const QString &title)
{
    return title + QStringLiteral("没有整单优惠！");
}

QString noLines()
{
    return QStringLiteral("单据中没有商品，不能保存！");
}

QString goodsRequired(int row)
{
    return line(row) + QStringLiteral("请选择商品！");
}

QString goodsMissing(int row, const QString &code)
{
    return line(row) + QStringLiteral("商品编号“%1”不存在！").arg(code);
}

QString goodsDisabled(int row, const QString &name)
{
    return line(row) + QStringLiteral("商品“%1”已禁用，不能开单！").arg(name);
}

QString discountGoodsEntered(int row)
{
    return line(row) + QStringLiteral("优惠商品不能作为明细录入，整单优惠请填写优惠金额！");
}

QString unitMissing(int row, const QString &goodsName, const QString &unit)
{
    return line(row) + QStringLiteral("商品“%1”没有单位“%2”！").arg(goodsName, unit);
}

QString unitWithoutFactor(int row, const QString &goodsName, const QString &unit)
{
    return line(row) + QStringLiteral("商品“%1”的单位“%2”没有转换系数！").arg(goodsName, unit);
}

QString quantityZero(int row)
{
    return line(row) + QStringLiteral("数量不能为零！");
}

QString quantityField(int row)
{
    return line(row) + QStringLiteral("数量");
}

QString paidField(bool comesIn)
{
    return comesIn ? QStringLiteral("实收金额") : QStringLiteral("实付金额");
}

QString invoiceAmountField()
{
    return QStringLiteral("发票金额");
}

QString freightField()
{
    return QStringLiteral("运费");
}

QString packingField()
{
    return QStringLiteral("包装费");
}

QString priceField(int row)
{
    return line(row) + QStringLiteral("单价");
}

QString costField(int row)
{
    return line(row) + QStringLiteral("成本价");
}

QString taxRateField(int row)
{
    return line(row) + QStringLiteral("税率");
}

QString discountRateField(int row)
{
    return line(row) + QStringLiteral("折扣");
}

QString baseQuantityField(int row)
{
    return line(row) + QStringLiteral("基本单位数量");
}

QString lineTotalField(int row)
{
    return line(row) + QStringLiteral("价税合计");
}

QString producedInvalid(int row, const QString &date)
{
    return line(row) + QStringLiteral("生产日期“%1”不是有效的日期（yyyy-MM-dd）！").arg(date);
}

QString expiryInvalid(int row, const QString &date)
{
    return line(row)
        + QStringLiteral("有效期“%1”不是有效的有效期（yyyy-MM-dd 或 yyyy-MM，无有效期为 "
                         "0000-00）！")
              .arg(date);
}

QString expiryBeforeProduced(int row)
{
    return line(row) + QStringLiteral("有效期不能早于生产日期！");
}

QString documentMissing(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("不存在！");
}

QString checkedCannotChange(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("已经审核，不能修改！");
}

QString checkedCannotDelete(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("已经审核，不能删除！");
}

QString numberTaken(const QString &number)
{
    return QStringLiteral("单据号：") + number
        + QStringLiteral("，已被其他操作员使用，请重新保存！");
}

QString alreadyChecked(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("已经审核！");
}

QString notChecked(const QString &number)
{
    return QStringLiteral("单据：") + number + QStringLiteral("尚未审核！");
}

QString otherCheckerRefused(const QString &number, const QString &checker)
{
    return QStringLiteral("单据：") + number + QStringLiteral("，的审核人：") + checker
        + QStringLiteral("\r\n") + QStringLiteral("不允许其他人取消审核！");
}

QString uncheckQuestion(const QString &number)
{
    return QStringLiteral("您的操作将取消当前选中的已审核单据：") + number
        + QStringLiteral("，确认吗？");
}

QString periodOpen()
{
    return QStringLiteral("ok");
}

QString savedLog(const QString &title, const QString &number, int goodsCount, bool isNew)
{
    return (isNew ? QStringLiteral("增加未审核") : QStringLiteral("修改未审核")) + title + number
        + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString deletedLog(const QString &title, const QString &number)
{
    return QStringLiteral("删除未审核") + title + number;
}

QString deletedCheckedLog(const QString &title, const QString &number)
{
    return QStringLiteral("删除已审核") + title + number;
}

} // namespace medistock::documents::texts
