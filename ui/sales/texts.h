#pragma once

#include <QString>

// The words of the sales screens.
namespace medistock::ui::sltexts {

// Header fields of their own
inline const QString mode = QStringLiteral("结算方式");
inline const QString account = QStringLiteral("结算帐户");
inline const QString received = QStringLiteral("实收金额");
inline const QString refunded = QStringLiteral("退款金额");

// Under the lines
inline const QString receivable = QStringLiteral("应收金额");
inline const QString refundDue = QStringLiteral("应退金额");

// A return taken from a sale's lines
inline const QString fromSale = QStringLiteral("从销售单退货(F10)");
inline const QString saleLinesTitle = QStringLiteral("选择销售单及退货商品");
inline const QString sales = QStringLiteral("已审核的销售单");
inline const QString sold = QStringLiteral("销售数量");

// The unchecked sales
inline const QString checkAll = QStringLiteral("审核所有(F6)");
inline const QString checkRightName = QStringLiteral("商品销售审核");

// "导入销售订单"
inline const QString importOrders = QStringLiteral("导入销售订单");
inline const QString importButton = QStringLiteral("导入销售订单(F10)");
inline const QString orderSearch = QStringLiteral("订单号、客户编号、简码或名称");
inline const QString wholeOrder = QStringLiteral("整单导入(F6)");
inline const QString take = QStringLiteral("导入");
inline const QString order = QStringLiteral("订单号");
inline const QString orderDate = QStringLiteral("订货日期");
inline const QString customer = QStringLiteral("客户");
inline const QString ordered = QStringLiteral("订货数量");
inline const QString delivered = QStringLiteral("已出库数量");
inline const QString open = QStringLiteral("未出库数量");

// "报价管理"
inline const QString quotations = QStringLiteral("报价管理");
inline const QString ourQuotations = QStringLiteral("我方报价");
inline const QString supplierQuotations = QStringLiteral("供货商报价");
inline const QString ourPriceTitle = QStringLiteral("我方报价：");
inline const QString supplierPriceTitle = QStringLiteral("供货商报价：");
inline const QString quotationSide = QStringLiteral("报价类别");
inline const QString from = QStringLiteral("开始日期");
inline const QString to = QStringLiteral("结束日期");
inline const QString partyName = QStringLiteral("单位名称");
inline const QString partyNameHint = QStringLiteral("客户或供货商名称");
inline const QString goods = QStringLiteral("商品");
inline const QString goodsHint = QStringLiteral("商品编号、条码、简码或名称");
inline const QString goodsCode = QStringLiteral("商品编号");
inline const QString goodsName = QStringLiteral("商品名称");
inline const QString quotedPrice = QStringLiteral("报价");
inline const QString quotedOn = QStringLiteral("报价日期");
inline const QString supplier = QStringLiteral("供货商");
inline const QString salesman = QStringLiteral("业务员");
inline const QString note = QStringLiteral("备注");
inline const QString addQuotation = QStringLiteral("新增(F2)");
inline const QString changeQuotation = QStringLiteral("修改(Enter)");
inline const QString deleteQuotation = QStringLiteral("删除(Del)");
inline const QString saveQuotations = QStringLiteral("保存(F3)");
inline const QString confirm = QStringLiteral("确定");
inline const QString cancel = QStringLiteral("取消(Esc)");
inline QString deleteQuotationQuestion(const QString &name)
{
    return QStringLiteral("确定要删除“%1”的这条报价吗？").arg(name);
}

// The menu entries
inline const QString sale = QStringLiteral("商品销售");
inline const QString salesReturn = QStringLiteral("顾客退货");
inline const QString salesOrder = QStringLiteral("销售订单");
inline const QString queryTitle = QStringLiteral("销售退货查询");

} // namespace medistock::ui::sltexts
