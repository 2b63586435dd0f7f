#pragma once

#include <QString>
#include <QStringList>

// The words of the members' and gifts' screens. What the operations say when they refuse lives
// with them (members/texts.h).
namespace medistock::ui::mbtexts {

// The member list
inline const QString searchHint = QStringLiteral("输入卡号、姓名、简码或手机号");
inline const QString adjustPoints = QStringLiteral("积分调整");
inline const QString adjustBalance = QStringLiteral("储值调整");
inline const QString topUp = QStringLiteral("会员充值(F6)");
inline const QString history = QStringLiteral("会员记录");
inline const QString levels = QStringLiteral("会员等级");
inline const QString pointsSettings = QStringLiteral("积分设置");
inline const QString pointsAndSettings = QStringLiteral("积分与设置");
inline const QString chooseMemberFirst = QStringLiteral("请先选择一个会员！");
inline const QString cardPlaceholder = QStringLiteral("不填时自动编卡号");
QString memberLine(const QString &card, const QString &name); // "会员：100001 张敏"

// Changes by hand
inline const QString pointsTitle = QStringLiteral("会员积分调整");
inline const QString balanceTitle = QStringLiteral("会员储值调整");
inline const QString points = QStringLiteral("会员积分：");
inline const QString lifetimePoints = QStringLiteral("累计积分：");
inline const QString balance = QStringLiteral("卡内余额：");
inline const QString now = QStringLiteral("现在");
inline const QString changeTo = QStringLiteral("调整为");
inline const QString reason = QStringLiteral("调整原因：");
inline const QString save = QStringLiteral("保存(&S)");
inline const QString close = QStringLiteral("关闭");

// Top-up
inline const QString topUpTitle = QStringLiteral("会员充值");
inline const QString amount = QStringLiteral("充值金额：");
inline const QString cash = QStringLiteral("现金：");
inline const QString bankCard = QStringLiteral("银行卡：");
inline const QString wechat = QStringLiteral("微信：");
inline const QString alipay = QStringLiteral("支付宝：");
inline const QString change = QStringLiteral("找零金额：");
inline const QString paymentGroup = QStringLiteral("收款方式");
inline const QString giftGroup = QStringLiteral("充值赠送");
inline const QString giftMode = QStringLiteral("赠送方式：");
inline const QString perInstalment = QStringLiteral("每次金额：");
inline const QString giftAmount = QStringLiteral("赠送金额：");
inline const QString givenPoints = QStringLiteral("赠送积分：");
inline const QString note = QStringLiteral("备注：");
inline const QStringList giftModes { QStringLiteral("不赠送"),
    QStringLiteral("按月到账（每月10日起登录时发放）"), QStringLiteral("本月消费到账"),
    QStringLiteral("按天到账（登录时发放）"), QStringLiteral("今天消费到账") };
QString paidTotal(double paid); // "收款合计：500.00"
QString toppedUp(const QString &number); // "充值成功，单号：XF…"

// History
inline const QString historyTitle = QStringLiteral("会员记录");
inline const QStringList historyColumns { QStringLiteral("日期"), QStringLiteral("类别"),
    QStringLiteral("单据号"), QStringLiteral("金额"), QStringLiteral("积分"),
    QStringLiteral("备注") };
inline const QString exportButton = QStringLiteral("导出(&X)");

// Levels
inline const QString levelsTitle = QStringLiteral("会员等级");
inline const QStringList levelColumns { QStringLiteral("编号"), QStringLiteral("会员等级"),
    QStringLiteral("级别折扣"), QStringLiteral("积分下限"), QStringLiteral("积分上限") };
inline const QString add = QStringLiteral("增加(&A)");
inline const QString edit = QStringLiteral("修改(F2)");
inline const QString remove = QStringLiteral("删除(&D)");
inline const QString levelName = QStringLiteral("会员等级：");
inline const QString levelDiscount = QStringLiteral("级别折扣：");
inline const QString levelLower = QStringLiteral("积分下限：");
inline const QString levelUpper = QStringLiteral("积分上限：");
inline const QString chooseLevelFirst = QStringLiteral("请先选择一个会员等级！");
QString deleteLevelQuestion(const QString &name); // "确实要删除会员等级：金卡会员 吗？"

// Points settings: the labels of the form
inline const QString settingsTitle = QStringLiteral("积分设置");
inline const QString amountPerPoint = QStringLiteral("每积一分的消费金额：");
inline const QString yuan = QStringLiteral("元");
inline const QString notZero = QStringLiteral("(不能为0)");
inline const QString cardEarns = QStringLiteral("储值卡付款部分参与积分");
inline const QString carryRemainder = QStringLiteral("积分后的消费余额累计到下次消费");
inline const QString multipleGroup = QStringLiteral("多倍积分");
inline const QString multiple = QStringLiteral("积分倍数：");
inline const QString times = QStringLiteral("倍（0为不使用）");
inline const QString from = QStringLiteral("开始日期：");
inline const QString to = QStringLiteral("结束日期：");
inline const QString birthdayGroup = QStringLiteral("会员生日积分");
inline const QString birthdayFactor = QStringLiteral("生日积分倍数：");
inline const QString onBirthday = QStringLiteral("只在生日当天");
inline const QString aroundBirthday = QStringLiteral("生日前后");
inline const QString days = QStringLiteral("天内");
inline const QString dateHint = QStringLiteral("yyyy-MM-dd");

// Gifts
inline const QString redeemPage = QStringLiteral("兑换赠品");
inline const QString redemptionsPage = QStringLiteral("兑换记录");
inline const QString giftItemsPage = QStringLiteral("赠品资料");
inline const QString findMember = QStringLiteral("会员卡号/手机/电话：");
inline const QString find = QStringLiteral("查找(&F)");
inline const QString warehouse = QStringLiteral("仓库：");
inline const QString period = QStringLiteral("兑换限制：");
inline const QString giftsGroup = QStringLiteral("可兑换的赠品（双击或回车选择）");
inline const QString chosenGroup = QStringLiteral("本次兑换");
inline const QStringList giftColumns { QStringLiteral("商品编号"), QStringLiteral("简码"),
    QStringLiteral("赠品名称"), QStringLiteral("单位"), QStringLiteral("规格"),
    QStringLiteral("兑换积分"), QStringLiteral("库存") };
inline const QStringList lineColumns { QStringLiteral("商品编号"), QStringLiteral("赠品名称"),
    QStringLiteral("兑换积分"), QStringLiteral("数量"), QStringLiteral("总积分") };
inline const QString saveRedemption = QStringLiteral("保存(F3)");
inline const QString clear = QStringLiteral("清空");
inline const QString findMemberFirst = QStringLiteral("请先输入会员卡号并查找会员！");
inline const QString memberNotFound = QStringLiteral("没有找到该会员，或会员卡已停用！");
QString memberFound(const QString &card, const QString &name, const QString &level,
    double memberPoints); // "张敏（100001）  初级会员  会员积分：500"
QString redemptionTotals(double totalQuantity, double totalPoints); // "合计数量：2  合计积分：400"
QString redeemed(const QString &number); // "兑换成功，单号：DH…"
inline const QStringList redemptionColumns { QStringLiteral("单据号"), QStringLiteral("兑换日期"),
    QStringLiteral("会员卡号"), QStringLiteral("会员姓名"), QStringLiteral("仓库"),
    QStringLiteral("数量"), QStringLiteral("总积分"), QStringLiteral("操作员"),
    QStringLiteral("备注") };
inline const QString query = QStringLiteral("查询(F5)");
inline const QString deleteRedemption = QStringLiteral("删除兑换单");
inline const QString chooseRedemptionFirst = QStringLiteral("请先选择一张兑换单！");
inline const QStringList itemColumns { QStringLiteral("赠品编号"), QStringLiteral("赠品名称"),
    QStringLiteral("简码"), QStringLiteral("兑换积分"), QStringLiteral("结存") };
inline const QStringList movementColumns { QStringLiteral("业务类型"), QStringLiteral("业务日期"),
    QStringLiteral("单据号"), QStringLiteral("业务数量"), QStringLiteral("备注"),
    QStringLiteral("操作员") };
inline const QString purchase = QStringLiteral("赠品进货");
inline const QString giveAway = QStringLiteral("赠品赠送");
inline const QString deleteMovement = QStringLiteral("删除记录");
inline const QString chooseItemFirst = QStringLiteral("请先选择一个赠品！");
inline const QString chooseMovementFirst = QStringLiteral("请先选择一条进货或赠送记录！");
inline const QString redemptionsElsewhere
    = QStringLiteral("兑换记录请在“兑换记录”页中删除整张兑换单。");
inline const QString itemCode = QStringLiteral("赠品编号：");
inline const QString itemName = QStringLiteral("赠品名称：");
inline const QString itemMnemonic = QStringLiteral("简码：");
inline const QString itemPoints = QStringLiteral("兑换积分：");
inline const QString autoCode = QStringLiteral("自动编号");
inline const QString date = QStringLiteral("日期：");
inline const QString quantity = QStringLiteral("数量：");
inline const QString saleNumber = QStringLiteral("销售单号：");
QString deleteQuestion(const QString &what); // "确实要删除…吗？"

} // namespace medistock::ui::mbtexts
