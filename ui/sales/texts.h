#pragma once

#include <QString>

// The words of the sales screens.
namespace medistock::ui::sltexts {

// Header fields of their own
inline const QString mode = QStringLiteral("结算方式");
inline const QString account = QStringLiteral("结算帐户");
inline const QString received = QStringLiteral("实收金额");
inline const QString refunded = QStringLiteral("退款金额");
inline const QString invoiceNumber = QStringLiteral("发票号");
inline const QString invoiceAmount = QStringLiteral("发票金额");
inline const QString freight = QStringLiteral("运费");
inline const QString packing = QStringLiteral("包装费");
inline const QString freightTerms = QStringLiteral("付费方式");

// Under the lines
inline const QString receivable = QStringLiteral("应收金额");
inline const QString refundDue = QStringLiteral("应退金额");

// A return taken from a sale's lines
inline const QString fromSale = QStringLiteral("从销售单退货(F10)");
inline const QString saleLinesTitle = QStringLiteral("选择销售单及退货商品");
inline const QString sales = QStringLiteral("已审核的销售单");
inline const QString sold = QStringLiteral("销售数量");

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

// The menu entries
inline const QString sale = QStringLiteral("商品销售");
inline const QString salesReturn = QStringLiteral("顾客退货");
inline const QString salesOrder = QStringLiteral("销售订单");
inline const QString queryTitle = QStringLiteral("销售退货查询");

} // namespace medistock::ui::sltexts
