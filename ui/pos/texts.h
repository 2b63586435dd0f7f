#pragma once

#include <QString>

// The words of the till and the POS report screens.
namespace medistock::ui::postexts {

inline const QString tillTitle = QStringLiteral("POS销售");
inline const QString goodsHint = QStringLiteral("输入简码、编号或扫描条码后回车");
inline const QString goods = QStringLiteral("商品");
inline const QString memberNone = QStringLiteral("非会员");
inline const QString member = QStringLiteral("会员：%1  卡号：%2  等级：%3  积分：%4  卡余额：%5");
inline const QString warehouse = QStringLiteral("仓库");
inline const QString employee = QStringLiteral("经办人");
inline const QString totals = QStringLiteral("共 %1 行  数量 %2  应收金额 %3");
inline const QString giftMarker = QStringLiteral("(赠品)");
inline const QString returnReceipt = QStringLiteral("退货");
inline const QString handover = QStringLiteral("交班");
inline const QString print = QStringLiteral("打印小票");
inline const QString print58 = QStringLiteral("打印小票(58)");
inline const QString printHint = QStringLiteral("打印最近一张结账或退货的小票（80mm 或 58mm 纸）");
inline const QString printNothing = QStringLiteral("还没有结账或退货的小票可以打印");
inline const QString notYet = QStringLiteral("%1尚未提供");
inline const QString noTemplate = QStringLiteral("%1没有报表模板，请导出后打印");
inline const QString drawerDisabled = QStringLiteral("本机未连接钱箱");
inline const QStringList lineCaptions { QStringLiteral("商品编号"), QStringLiteral("商品名称"),
    QStringLiteral("规格"), QStringLiteral("单位"), QStringLiteral("数量"), QStringLiteral("单价"),
    QStringLiteral("折扣"), QStringLiteral("金额"), QStringLiteral("赠品"),
    QStringLiteral("批号") };

// Refusals and questions of the screen itself; the operations word their own.
inline const QString noGoods = QStringLiteral("没有找到商品：%1");
inline const QString noLine = QStringLiteral("请先选中一行商品");
inline const QString noLines = QStringLiteral("还没有录入商品");
inline const QString noMember = QStringLiteral("没有找到会员：%1");
inline const QString notPositive = QStringLiteral("%1应大于0");
inline const QString badRate = QStringLiteral("折扣应在 0 到 1 之间");
inline const QString clearAll = QStringLiteral("确认删除全部商品吗？");
inline const QString holdFirst = QStringLiteral("当前单据尚未结账，请先挂单或删除");
inline const QString recallTitle = QStringLiteral("解挂");
inline const QString heldCaptions = QStringLiteral("单据号|挂单时间|会员|行数|金额");
inline const QString noHeld = QStringLiteral("没有挂起的单据");
inline const QString held = QStringLiteral("已挂单：%1");
inline const QString sold = QStringLiteral("收款完成：%1  找零 %2");
inline const QString returned = QStringLiteral("退货完成：%1  退款 %2");
inline const QString handedOver = QStringLiteral("交班完成，交接金额 %1");
inline const QString shortPaid = QStringLiteral("付款不足，还差 %1");
inline const QString overPaid = QStringLiteral("除现金外的付款超过应收金额 %1");
inline const QString quantity = QStringLiteral("数量");
inline const QString rate = QStringLiteral("折扣(如 0.9)");
inline const QString memberPrompt = QStringLiteral("会员卡号或手机号");
inline const QString receiptPrompt = QStringLiteral("原销售单号");

// The payment
inline const QString payTitle = QStringLiteral("付款结账");
inline const QString receivable = QStringLiteral("应收金额");
inline const QString cash = QStringLiteral("现金");
inline const QString card = QStringLiteral("储值卡");
inline const QString bankCard = QStringLiteral("银行卡");
inline const QString insurance = QStringLiteral("医保卡");
inline const QString wechat = QStringLiteral("微信");
inline const QString alipay = QStringLiteral("支付宝");
inline const QString roundingOff = QStringLiteral("抹零金额");
inline const QString change = QStringLiteral("找零");

// The return and the handover
inline const QString returnTitle = QStringLiteral("POS退货");
inline const QString returnCaptions
    = QStringLiteral("商品编号|商品名称|单位|单价|已售|可退|退货数量");
inline const QString handoverTitle = QStringLiteral("交班");
inline const QString nextCashier = QStringLiteral("接班操作员");
inline const QString handedUp = QStringLiteral("上交营业款");
inline const QString leftForNext = QStringLiteral("下放营业款");
inline const QString note = QStringLiteral("备注");
inline const QString shift = QStringLiteral(
    "本班：%1 至 %2\n销售 %3 单 %4，退货 %5 单 %6\n本班收款总额 %7\n现金 %8  储值卡 %9  "
    "银行卡 %10  医保卡 %11  微信 %12  支付宝 %13\n入款 %14  出款 %15  接班备用金 %16\n"
    "钱箱应有现金 %17");
inline const QString firstShift = QStringLiteral("建账");
inline const QString printSlip = QStringLiteral("打印交班小票");
inline const QString slip80 = QStringLiteral("80mm 小票");
inline const QString slip58 = QStringLiteral("58mm 小票");
inline const QString noSlip = QStringLiteral("不打印");
inline const QString handovers = QStringLiteral("交班记录");
inline const QString handoverCaptions = QStringLiteral(
    "交班时间|交班操作员|接班操作员|本班收款总额|上交营业款|下放营业款|交接金额|备注");
inline const QString reprintSlip = QStringLiteral("打印交班小票");
inline const QString reprintSlip58 = QStringLiteral("打印交班小票(58)");
inline const QString cashier = QStringLiteral("收银员");
inline const QString noHandoverChosen = QStringLiteral("请先选中一条交班记录");

} // namespace medistock::ui::postexts
