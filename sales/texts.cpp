#include "sales/texts.h"

namespace medistock::sales::texts {

namespace {

const QString breakTwice = QStringLiteral("\r\n\r\n");

QString row(int number)
{
    return QStringLiteral("第%1行：").arg(number);
}

QString side(bool customer)
{
    return customer ? QStringLiteral("我方报价") : QStringLiteral("供货商报价");
}

} // namespace

QString saveAndCheckQuestion()
{
    return QStringLiteral("单据保存后将直接审核，是否确认保存？") + breakTwice
        + QStringLiteral("保存后如果有问题可以在“销售退货查询”功能中取消审核！");
}

QString saveSaleQuestion()
{
    return QStringLiteral("单据保存后处于“未审核”状态，是否确认保存？") + breakTwice
        + QStringLiteral("处于“未审核”状态的销售单，可以在“待审核销") + breakTwice
        + QStringLiteral("售单”面板中，进行修改及审核操作！");
}

QString saveReturnQuestion()
{
    return QStringLiteral("单据保存后处于“未审核”状态，是否确认保存？") + breakTwice
        + QStringLiteral("处于“未审核”状态的退货单，可以在“待审核") + breakTwice
        + QStringLiteral("退货单”面板中，进行修改及审核操作！");
}

// The refusal and the question share the opening that names the goods.
static QString stockEnding(bool negativeAllowed)
{
    return negativeAllowed ? QStringLiteral("销售将会出现负库存，是否继续？")
                           : QStringLiteral("不能销售。");
}

QString goodsNotInWarehouse(const QString &goodsName, bool negativeAllowed)
{
    return QStringLiteral("当前仓库中商品‘") + goodsName + QStringLiteral("’不存在，")
        + stockEnding(negativeAllowed);
}

QString goodsShortInWarehouse(const QString &goodsName, bool negativeAllowed)
{
    return QStringLiteral("当前仓库中商品‘") + goodsName + QStringLiteral("’库存不足，")
        + stockEnding(negativeAllowed);
}

QString prepaymentQuestion(const QString &prepayment)
{
    return QStringLiteral("该客户当前的预付款余额为：") + prepayment + QStringLiteral("，")
        + breakTwice + QStringLiteral("不足以支付本单的金额。") + breakTwice
        + QStringLiteral("继续保存吗？");
}

QString expiredBatchQuestion(
    int rowNumber, const QString &goodsName, const QString &batch, const QString &expiry)
{
    return row(rowNumber)
        + QStringLiteral("商品“%1”批号“%2”已过期（有效期至%3），").arg(goodsName, batch, expiry)
        + breakTwice + QStringLiteral("确定要销售过期商品吗？");
}

QString expiredBatchRefused(
    int rowNumber, const QString &goodsName, const QString &batch, const QString &expiry)
{
    return row(rowNumber)
        + QStringLiteral("商品“%1”批号“%2”已过期（有效期至%3），").arg(goodsName, batch, expiry)
        + breakTwice + QStringLiteral("过期商品不能销售！");
}

QString settlementModeInvalid(const QString &mode)
{
    return QStringLiteral("结算方式“%1”无效，应为 0、1 或 2！").arg(mode);
}

QString freightTermsInvalid(const QString &terms)
{
    return QStringLiteral("运费方式“%1”无效，应为“我方付运费”或“对方付运费”！").arg(terms);
}

QString orderMissing(const QString &number)
{
    return QStringLiteral("销售订单：") + number + QStringLiteral("不存在！");
}

QString orderNotChecked(const QString &number)
{
    return QStringLiteral("销售订单：") + number + QStringLiteral("尚未审核，不能导入！");
}

QString orderLineMissing(qint64 id)
{
    return QStringLiteral("销售订单中没有编号为 %1 的已审核商品行！").arg(id);
}

QString orderLineExceeded(int rowNumber, const QString &order, const QString &open)
{
    return row(rowNumber) + QStringLiteral("超过销售订单“%1”的未出库数量 %2！").arg(order, open);
}

QString deleteCheckedOrderQuestion(const QString &number)
{
    return QStringLiteral("销售订单") + number
        + QStringLiteral("已审核，删除后不能再导入销售单，确认删除吗？");
}

QString saleLineMissing(int rowNumber)
{
    return row(rowNumber) + QStringLiteral("退货的销售单商品行不存在或尚未审核！");
}

QString returnExceedsSale(int rowNumber, const QString &sale, const QString &left)
{
    return row(rowNumber) + QStringLiteral("退货数量超过销售单“%1”的可退数量 %2！").arg(sale, left);
}

QString issueNoteRefusal(const QString &number)
{
    return QStringLiteral("该单据") + number + QStringLiteral("已有出库信息，不能取消审核！")
        + breakTwice + QStringLiteral("请在商品出库单中删除该单据的所有信息，")
        + QStringLiteral("然后再取消审核！");
}

QString returnedSaleRefusal(const QString &number)
{
    return QStringLiteral("该单据") + number + QStringLiteral("已有退货信息，不能取消审核！")
        + breakTwice + QStringLiteral("请先删除或取消审核对应的顾客退货单！");
}

QString checkAllQuestion()
{
    return QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？") + breakTwice
        + QStringLiteral("（如需审核某个单据，请按右键！）");
}

QString checkHookOk()
{
    return QStringLiteral("ok");
}

QString quotationGoodsRefused(const QString &goods)
{
    return QStringLiteral("商品“%1”不存在或已禁用，不能报价！").arg(goods);
}

QString quotationMissing(qint64 id)
{
    return QStringLiteral("报价记录 %1 不存在！").arg(id);
}

QString quotationWorkEmpty()
{
    return QStringLiteral("没有选择报价的商品！");
}

QString quotationPartyMissing(bool customer)
{
    return customer ? QStringLiteral("请选择客户！") : QStringLiteral("请选择供货商！");
}

QString quotedPriceField()
{
    return QStringLiteral("报价");
}

QString saleCheckedLog(const QString &number, int goodsCount)
{
    return QStringLiteral("审核销售单") + number + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString saleUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核商品销售单") + number;
}

QString returnCheckedLog(const QString &number, int goodsCount)
{
    return QStringLiteral("审核顾客退货单") + number
        + QStringLiteral("，共%1种商品").arg(goodsCount);
}

QString returnUncheckedLog(const QString &number)
{
    return QStringLiteral("取消审核商品退货单") + number;
}

QString orderCheckedLog(const QString &number)
{
    return QStringLiteral("审核销售订单") + number;
}

QString quotationsAddedLog(bool customer, int count)
{
    return QStringLiteral("增加") + side(customer) + QStringLiteral("，共%1种商品").arg(count);
}

QString quotationChangedLog(bool customer, qint64 id)
{
    return QStringLiteral("修改") + side(customer) + QStringLiteral("%1").arg(id);
}

QString quotationDeletedLog(bool customer, qint64 id)
{
    return QStringLiteral("删除") + side(customer) + QStringLiteral("%1").arg(id);
}

QString saleTitle()
{
    return QStringLiteral("销售单");
}

QString returnTitle()
{
    return QStringLiteral("销售退货单");
}

QString orderTitle()
{
    return QStringLiteral("销售订单");
}

} // namespace medistock::sales::texts
