#include "members/texts.h"

#include "core/rounding.h"

namespace medistock::members::texts {

namespace {

QString n(double value)
{
    return core::plainNumber(value);
}

QString line(int row)
{
    return QStringLiteral("第%1行：").arg(row);
}

} // namespace

QString memberMissing(const QString &code)
{
    return QStringLiteral("会员编号“%1”不存在！").arg(code);
}

QString cardNotActive(const QString &name)
{
    return QStringLiteral("会员“%1”的会员卡已停用，不能使用！").arg(name);
}

QString cardTaken(const QString &card)
{
    return QStringLiteral("会员卡号“%1”已经存在，请换一个卡号！").arg(card);
}

QString pointsNegative()
{
    return QStringLiteral("会员积分和累计积分不能小于0！");
}

QString balanceNegative()
{
    return QStringLiteral("卡内余额不能小于0！");
}

QString pointsChangeNote(
    double pointsBefore, double points, double lifetimeBefore, double lifetime, const QString &note)
{
    QString text = QStringLiteral("会员积分%1→%2，累计积分%3→%4")
                       .arg(n(pointsBefore), n(points), n(lifetimeBefore), n(lifetime));
    if (!note.trimmed().isEmpty())
        text += QStringLiteral("：") + note.trimmed();
    return text.left(200);
}

QString pointsChangeKind()
{
    return QStringLiteral("积分调整");
}

QString balanceChangeKind()
{
    return QStringLiteral("储值调整");
}

QString memberAddedLog(const QString &code, const QString &name)
{
    return QStringLiteral("增加会员：%1 %2").arg(code, name);
}

QString memberChangedLog(const QString &code)
{
    return QStringLiteral("修改会员：") + code;
}

QString pointsChangedLog(const QString &name, double before, double after)
{
    return QStringLiteral("调整会员积分：%1，%2→%3").arg(name, n(before), n(after));
}

QString balanceChangedLog(const QString &name, double before, double after)
{
    return QStringLiteral("调整会员卡内余额：%1，%2→%3").arg(name, n(before), n(after));
}

QString levelNameRequired()
{
    return QStringLiteral("会员等级名称必须填写！");
}

QString levelNameTaken(const QString &name)
{
    return QStringLiteral("会员等级“%1”已经存在！").arg(name);
}

QString levelDiscountInvalid()
{
    return QStringLiteral("级别折扣必须大于0且不大于1！");
}

QString levelBoundsInvalid()
{
    return QStringLiteral("积分下限不能小于0，积分上限不能小于积分下限！");
}

QString levelsOverlap(const QString &name, double lower, double upper)
{
    return QStringLiteral("积分范围与会员等级“%1”（%2～%3）重叠！").arg(name, n(lower), n(upper));
}

QString levelMissing(const QString &code)
{
    return QStringLiteral("会员等级编号“%1”不存在！").arg(code);
}

QString levelInUse(const QString &memberName)
{
    return QStringLiteral("会员“%1”属于该等级，不能删除！").arg(memberName);
}

QString defaultLevelKept()
{
    return QStringLiteral("默认会员等级不能删除！");
}

QString levelSavedLog(const QString &code, const QString &name)
{
    return QStringLiteral("保存会员等级：%1 %2").arg(code, name);
}

QString levelDeletedLog(const QString &code)
{
    return QStringLiteral("删除会员等级：") + code;
}

QString amountPerPointInvalid(const QString &value)
{
    return QStringLiteral("每积一分的消费金额“%1”不是有效的金额！").arg(value);
}

QString settingNotFlag(const QString &label, const QString &value)
{
    return QStringLiteral("%1只能是 0 或 1，不能是“%2”！").arg(label, value);
}

QString settingNotDate(const QString &label, const QString &value)
{
    return QStringLiteral("%1“%2”不是有效的日期（yyyy-MM-dd）！").arg(label, value);
}

QString settingNotWholeNumber(const QString &label, const QString &value)
{
    return QStringLiteral("%1必须是不小于0的整数，不能是“%2”！").arg(label, value);
}

QString birthdayRuleInvalid(const QString &value)
{
    return QStringLiteral("生日积分方式只能是 0（生日当天）或 1（生日前后几天），不能是“%1”！")
        .arg(value);
}

QString unknownSetting(const QString &column)
{
    return QStringLiteral("积分设置中没有“%1”这一项！").arg(column);
}

QString multipleRangeRequired()
{
    return QStringLiteral("多倍积分需要填写有效的起止日期！");
}

QString multipleRangeReversed()
{
    return QStringLiteral("多倍积分的开始日期不能晚于结束日期！");
}

QString settingsSavedLog()
{
    return QStringLiteral("保存积分设置");
}

QString topUpState()
{
    return QStringLiteral("会员充值");
}

QString topUpAmountInvalid()
{
    return QStringLiteral("充值金额必须大于0！");
}

QString paymentNegative()
{
    return QStringLiteral("收款金额不能为负数！");
}

QString paymentDiffers(double paid, double amount)
{
    return QStringLiteral("收款合计%1元与充值金额%2元不符！").arg(n(paid), n(amount));
}

QString givenPointsInvalid()
{
    return QStringLiteral("赠送积分必须是不小于0的整数！");
}

QString giftWithoutMode()
{
    return QStringLiteral("有赠送金额时请选择赠送方式！");
}

QString giftInstalmentInvalid()
{
    return QStringLiteral("分期赠送时每次金额必须大于0，赠送金额不能小于每次金额！");
}

QString topUpCashNote(const QString &card, const QString &name)
{
    return QStringLiteral("会员充值：%1 %2").arg(card, name);
}

QString topUpLog(const QString &number, const QString &name, double amount)
{
    return QStringLiteral("会员充值%1：%2，%3元").arg(number, name, n(amount));
}

QString purchaseReleaseNote(bool monthly)
{
    return monthly ? QStringLiteral("该单据充值按月消费赠送，本次消费赠送：1个月")
                   : QStringLiteral("该单据充值按天消费赠送，本次消费赠送：1天");
}

QString purchaseReleaseState(bool monthly)
{
    return monthly ? QStringLiteral("本月消费到账") : QStringLiteral("今天消费到账");
}

QString calendarReleaseNote(bool monthly, int count)
{
    return monthly ? QStringLiteral("该单据充值按月赠送，本次赠送：%1个月").arg(count)
                   : QStringLiteral("该单据充值按天赠送，本次赠送：%1天").arg(count);
}

QString calendarReleaseState(bool monthly)
{
    return monthly ? QStringLiteral("按月到账") : QStringLiteral("按天到账");
}

QString giftsReleasedLog(const QString &number, int rows)
{
    return QStringLiteral("会员充值赠送到账%1：共%2笔").arg(number).arg(rows);
}

QString bankCardAccount()
{
    return QStringLiteral("银行卡");
}

QString insuranceAccount()
{
    return QStringLiteral("医保卡");
}

QString wechatAccount()
{
    return QStringLiteral("微信");
}

QString alipayAccount()
{
    return QStringLiteral("支付宝");
}

QString retailBranchMark()
{
    return QStringLiteral("99");
}

QString retailTitle(bool isReturn)
{
    return isReturn ? QStringLiteral("POS退货单") : QStringLiteral("POS销售单");
}

QString retailCashKind(bool isReturn)
{
    return isReturn ? QStringLiteral("顾客退货") : QStringLiteral("商品销售");
}

QString retailHistoryKind(bool isReturn)
{
    return isReturn ? QStringLiteral("POS退货") : QStringLiteral("POS销售");
}

QString retailNumberInvalid(const QString &number, const QString &prefix)
{
    return QStringLiteral("单据号“%1”不正确：应为%2开头的13位单据号！").arg(number, prefix);
}

QString retailQuantitySign(int row, bool isReturn)
{
    return line(row)
        + (isReturn ? QStringLiteral("退货单的数量必须小于0！")
                    : QStringLiteral("销售单的数量必须大于0！"));
}

QString retailRateInvalid(int row)
{
    return line(row) + QStringLiteral("打折率和转换系数必须大于0！");
}

QString retailPaymentSign(bool isReturn)
{
    return isReturn ? QStringLiteral("退货单的收款、优惠和抹零金额不能大于0！")
                    : QStringLiteral("销售单的收款、优惠和抹零金额不能小于0！");
}

QString cardWithoutMember()
{
    return QStringLiteral("没有会员，不能用储值卡付款！");
}

QString cardBalanceShort(double balance, double card)
{
    return QStringLiteral("会员卡内余额不足：卡内余额%1元，本次储值卡付款%2元！")
        .arg(n(balance), n(card));
}

QString receivedDiffers(double received, double receivable)
{
    return QStringLiteral("实收金额%1元与应收金额%2元不符！").arg(n(received), n(receivable));
}

QString retailPostedLog(bool isReturn, const QString &number, int goodsCount)
{
    return QStringLiteral("记帐%1%2，共%3种商品")
        .arg(retailTitle(isReturn), number)
        .arg(goodsCount);
}

QString retailRemovedLog(bool isReturn, const QString &number)
{
    return QStringLiteral("取消记帐%1%2").arg(retailTitle(isReturn), number);
}

QString redeemedBefore(const QString &time)
{
    return QStringLiteral("已经兑换过赠品，不能重复兑换，兑换日期【") + time + QStringLiteral("】");
}

QString noGiftsChosen()
{
    return QStringLiteral("请先选择赠品！");
}

QString notAGift(int row, const QString &goods)
{
    return line(row) + QStringLiteral("商品“%1”不是可兑换的赠品！").arg(goods);
}

QString giftQuantityInvalid(int row)
{
    return line(row) + QStringLiteral("兑换数量必须是大于0的整数！");
}

QString redeemQuantityField(int row)
{
    return line(row) + QStringLiteral("兑换数量");
}

QString pointsShort(double points, double needed)
{
    return QStringLiteral("会员积分不足：当前积分%1，本次兑换需要%2积分，不能兑换！")
        .arg(n(points), n(needed));
}

QString redemptionExpenseType()
{
    return QStringLiteral("费用");
}

QString redemptionExpenseNote(const QString &number)
{
    return QStringLiteral("赠品兑换单") + number + QStringLiteral("的成本费用");
}

QString deleteRedemptionQuestion(const QString &number)
{
    return QStringLiteral("您确认删除赠品兑换单：%1 吗？\r\n\r\n删除后积分退回会员，赠品退回库存。")
        .arg(number);
}

QString redemptionHistoryKind()
{
    return QStringLiteral("积分兑换");
}

QString redemptionSavedLog(const QString &number, const QString &name, double points)
{
    return QStringLiteral("积分兑换赠品%1：%2，%3积分").arg(number, name, n(points));
}

QString redemptionDeletedLog(const QString &number, double points)
{
    return QStringLiteral("删除赠品兑换单%1，退回%2积分").arg(number, n(points));
}

QString giftNameRequired()
{
    return QStringLiteral("赠品名称必须填写！");
}

QString giftPointsNegative()
{
    return QStringLiteral("兑换积分不能为负数！");
}

QString giftItemMissing(const QString &code)
{
    return QStringLiteral("赠品编号“%1”不存在！").arg(code);
}

QString giftCodeTaken(const QString &code)
{
    return QStringLiteral("赠品编号“%1”已经存在！").arg(code);
}

QString giftCodeIsGoods(const QString &code)
{
    return QStringLiteral("赠品编号“%1”已是商品编号，请换一个编号！").arg(code);
}

QString giftItemHasMovements(const QString &code)
{
    return QStringLiteral("赠品“%1”已有进货、兑换或赠送记录，不能删除！").arg(code);
}

QString giftQuantityNotPositive()
{
    return QStringLiteral("数量必须大于0！");
}

QString giftQuantityField()
{
    return QStringLiteral("数量");
}

QString giftDateInvalid()
{
    return QStringLiteral("日期不正确！");
}

QString giftPurchaseMissing()
{
    return QStringLiteral("该赠品进货记录不存在！");
}

QString giveAwayMissing(const QString &number)
{
    return QStringLiteral("赠品赠送单“%1”不存在！").arg(number);
}

QString giveAwayPrefix()
{
    return QStringLiteral("ZS");
}

QString giftPurchaseKind()
{
    return QStringLiteral("赠品进货");
}

QString giftRedemptionKind()
{
    return QStringLiteral("积分兑换");
}

QString giveAwayKind()
{
    return QStringLiteral("赠品赠送");
}

QString giftItemSavedLog(const QString &code, const QString &name)
{
    return QStringLiteral("保存赠品：%1 %2").arg(code, name);
}

QString giftItemDeletedLog(const QString &code)
{
    return QStringLiteral("删除赠品：") + code;
}

QString giftPurchaseLog(const QString &code, double quantity)
{
    return QStringLiteral("赠品进货：%1，数量%2").arg(code, n(quantity));
}

QString giftPurchaseDeletedLog(qint64 id)
{
    return QStringLiteral("删除赠品进货记录：%1").arg(id);
}

QString giveAwayLog(const QString &number, double quantity)
{
    return QStringLiteral("赠品赠送%1：数量%2").arg(number, n(quantity));
}

QString giveAwayDeletedLog(const QString &number)
{
    return QStringLiteral("删除赠品赠送单") + number;
}

} // namespace medistock::members::texts
