#pragma once

#include <QString>

// Every text the members' and retail operations show, write or log.
namespace medistock::members::texts {

// Members
QString memberMissing(const QString &code);
QString cardNotActive(const QString &name);
QString cardTaken(const QString &card);
QString pointsNegative();
QString balanceNegative();
QString pointsChangeNote(double pointsBefore, double points, double lifetimeBefore, double lifetime,
    const QString &note);
QString pointsChangeKind(); // "积分调整"
QString balanceChangeKind(); // "储值调整"
QString memberAddedLog(const QString &code, const QString &name);
QString memberChangedLog(const QString &code);
QString pointsChangedLog(const QString &name, double before, double after);
QString balanceChangedLog(const QString &name, double before, double after);

// Levels
QString levelNameRequired();
QString levelNameTaken(const QString &name);
QString levelDiscountInvalid();
QString levelBoundsInvalid();
QString levelsOverlap(const QString &name, double lower, double upper);
QString levelMissing(const QString &code);
QString levelInUse(const QString &memberName);
QString defaultLevelKept();
QString levelSavedLog(const QString &code, const QString &name);
QString levelDeletedLog(const QString &code);

// Points settings
QString amountPerPointInvalid(const QString &value);
// `label` is what the settings form calls the setting
QString settingNotFlag(const QString &label, const QString &value);
QString settingNotDate(const QString &label, const QString &value);
QString settingNotWholeNumber(const QString &label, const QString &value);
QString birthdayRuleInvalid(const QString &value);
QString unknownSetting(const QString &column);
QString multipleRangeRequired();
QString multipleRangeReversed();
QString settingsSavedLog();

// Top-ups and their gifts
QString topUpState(); // "会员充值": 续费类别 and the cash book's kind
QString topUpAmountInvalid();
QString paymentNegative();
QString paymentDiffers(double paid, double amount);
QString givenPointsInvalid();
QString giftWithoutMode();
QString giftInstalmentInvalid();
QString topUpCashNote(const QString &card, const QString &name);
QString topUpLog(const QString &number, const QString &name, double amount);
// The release rows' notes (after the top-up's number) and 续费类别 (after the sale's number for
// consumption gifts)
QString purchaseReleaseNote(bool monthly);
QString purchaseReleaseState(bool monthly);
QString calendarReleaseNote(bool monthly, int count);
QString calendarReleaseState(bool monthly);
QString giftsReleasedLog(const QString &number, int rows);

// The cash-book accounts of the ways of paying at the counter
QString bankCardAccount(); // "银行卡"
QString insuranceAccount(); // "医保卡"
QString wechatAccount(); // "微信"
QString alipayAccount(); // "支付宝"

// Retail documents
QString retailBranchMark(); // gl_fdmc "99"
QString retailTitle(bool isReturn); // "POS销售单" / "POS退货单"
QString retailCashKind(bool isReturn); // "商品销售" / "顾客退货"
QString retailHistoryKind(bool isReturn); // "POS销售" / "POS退货"
QString retailNumberInvalid(const QString &number, const QString &prefix);
QString retailQuantitySign(int row, bool isReturn);
QString retailRateInvalid(int row);
QString retailPaymentSign(bool isReturn);
QString cardWithoutMember();
QString cardBalanceShort(double balance, double card);
QString receivedDiffers(double received, double receivable);
QString retailPostedLog(bool isReturn, const QString &number, int goodsCount);
QString retailRemovedLog(bool isReturn, const QString &number);

// Redemption
QString redeemedBefore(const QString &time);
QString noGiftsChosen();
QString notAGift(int row, const QString &goods);
QString giftQuantityInvalid(int row);
QString redeemQuantityField(int row); // "第1行：兑换数量", as number refusals name it
QString pointsShort(double points, double needed);
QString redemptionExpenseType(); // "费用"
QString redemptionExpenseNote(const QString &number);
QString deleteRedemptionQuestion(const QString &number);
QString redemptionHistoryKind(); // "积分兑换"
QString redemptionSavedLog(const QString &number, const QString &name, double points);
QString redemptionDeletedLog(const QString &number, double points);

// Gift items
QString giftNameRequired();
QString giftPointsNegative();
QString giftItemMissing(const QString &code);
QString giftCodeTaken(const QString &code);
QString giftCodeIsGoods(const QString &code);
QString giftItemHasMovements(const QString &code);
QString giftQuantityNotPositive();
QString giftQuantityField(); // "数量", as number refusals name it
QString giftDateInvalid();
QString giftPurchaseMissing();
QString giveAwayMissing(const QString &number);
QString giveAwayPrefix(); // "ZS"
QString giftPurchaseKind(); // "赠品进货"
QString giftRedemptionKind(); // "积分兑换"
QString giveAwayKind(); // "赠品赠送"
QString giftItemSavedLog(const QString &code, const QString &name);
QString giftItemDeletedLog(const QString &code);
QString giftPurchaseLog(const QString &code, double quantity);
QString giftPurchaseDeletedLog(qint64 id);
QString giveAwayLog(const QString &number, double quantity);
QString giveAwayDeletedLog(const QString &number);

} // namespace medistock::members::texts
