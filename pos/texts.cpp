#include "pos/texts.h"

#include "core/rounding.h"

namespace medistock::pos::texts {

namespace {

QString n(double value)
{
    return core::plainNumber(value);
}

} // namespace

QString goodsNotFound(const QString &text)
{
    return QStringLiteral("没有找到商品：%1").arg(text);
}

QString stockShort(
    const QString &name, double stock, double wanted, const QString &unit, bool negativeAllowed)
{
    const QString opening = QStringLiteral("商品“%1”库存不足：库存%2%4，本次销售%3%4，")
                                .arg(name, n(stock), n(wanted), unit);
    return opening
        + (negativeAllowed ? QStringLiteral("销售将会出现负库存，是否继续？")
                           : QStringLiteral("不能销售！"));
}

QString nothingToHold()
{
    return QStringLiteral("没有商品，不能挂单！");
}

QString heldSaleMissing(const QString &number)
{
    return QStringLiteral("挂单“%1”不存在，可能已经结账或删除！").arg(number);
}

QString heldMark()
{
    return QStringLiteral("POS");
}

QString heldLog(const QString &number, int goodsCount)
{
    return QStringLiteral("POS挂单%1，共%2种商品").arg(number).arg(goodsCount);
}

QString heldDroppedLog(const QString &number)
{
    return QStringLiteral("删除POS挂单%1").arg(number);
}

QString notARetailSale(const QString &number)
{
    return QStringLiteral("POS销售单“%1”不存在！").arg(number);
}

QString nothingReturned()
{
    return QStringLiteral("没有要退货的商品！");
}

QString returnBeyondSold(const QString &name, double left)
{
    return QStringLiteral("商品“%1”最多还能退%2，不能超过这个数量！").arg(name, n(left));
}

// The question is the kind's text followed by "吗？", as the books have always asked it.
QString cashQuestion(bool in)
{
    return (in ? QStringLiteral("您确认生成入款单吗 ") : QStringLiteral("您确认生成出款单 "))
        + QStringLiteral("吗？");
}

QString cashAmountInvalid()
{
    return QStringLiteral("金额必须大于0！");
}

QString cashPrefix(bool in)
{
    return in ? QStringLiteral("RK") : QStringLiteral("CK");
}

QString cashKind(bool in)
{
    return in ? QStringLiteral("POS 入款") : QStringLiteral("POS 出款");
}

QString cashLog(bool in, const QString &number, double amount)
{
    return QStringLiteral("%1%2，金额：%3").arg(cashKind(in), number, n(amount));
}

QString nextCashierMissing(const QString &name)
{
    return QStringLiteral("接班操作员“%1”不存在！").arg(name);
}

QString handoverNegative()
{
    return QStringLiteral("上交营业款和下放营业款不能小于0！");
}

QString handoverDiffers(double counted, double expected)
{
    return QStringLiteral("上交营业款与下放营业款合计%1元，与应有现金%2元不符，确认交班吗？")
        .arg(n(counted), n(expected));
}

QString handoverLog(const QString &from, const QString &to, double takings)
{
    return QStringLiteral("交班：%1→%2，本班收款总额%3").arg(from, to, n(takings));
}

QString dateRangeInvalid(const QString &from, const QString &to)
{
    return QStringLiteral("日期范围不正确：%1 至 %2").arg(from, to);
}

QString allLevels()
{
    return QStringLiteral("所有级别");
}

QString allCashiers()
{
    return QStringLiteral("所有收银员");
}

QString documentKind(bool isReturn)
{
    return isReturn ? QStringLiteral("销售退货单") : QStringLiteral("商品销售单");
}

QString commissionKind(int flag)
{
    switch (flag) {
    case 101:
    case 1001:
        return QStringLiteral("业务员按销售额提成");
    case 1002:
        return QStringLiteral("业务员按销售额提成欠款");
    case 201:
    case 2001:
        return QStringLiteral("业务员按利润提成");
    case 3001:
        return QStringLiteral("商品按件提成");
    case 4001:
        return QStringLiteral("商品按金额提成");
    case 5001:
        return QStringLiteral("商品按利润提成");
    default:
        return {};
    }
}

QString commissionLog(const QString &from, const QString &to, int rows)
{
    return QStringLiteral("POS销售提成统计：%1 至 %2，共%3行").arg(from, to).arg(rows);
}

} // namespace medistock::pos::texts
