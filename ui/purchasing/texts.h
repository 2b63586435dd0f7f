#pragma once

#include <QString>

// The words of the purchasing screens.
namespace medistock::ui::pctexts {

// The check dialog "单据审核确认"
inline const QString checkTitle = QStringLiteral("单据审核确认");
inline const QString number = QStringLiteral("单据号");
inline const QString date = QStringLiteral("开单日期");
inline const QString employee = QStringLiteral("业务员");
inline const QString payable = QStringLiteral("应付金额");
inline const QString receivable = QStringLiteral("应收金额");
inline const QString note = QStringLiteral("备注");
inline const QString supplier = QStringLiteral("供货商");
inline const QString warehouse = QStringLiteral("仓库");
inline const QString operatorName = QStringLiteral("操作员");
inline const QString supplierNumber = QStringLiteral("原始单号");
inline const QString paid = QStringLiteral("实付金额");
inline const QString received = QStringLiteral("实收金额");
inline const QString mode = QStringLiteral("结算方式");
inline const QString account = QStringLiteral("结算帐户");
inline const QString byPaid = QStringLiteral("按实付款结算");
inline const QString remainderPayable = QStringLiteral("余款记入应付帐");

// A return taken from a receipt's lines
inline const QString fromReceipt = QStringLiteral("从进货单退货(F10)");
inline const QString receiptLinesTitle = QStringLiteral("选择进货单及退货商品");
inline const QString receipts = QStringLiteral("已审核的进货单");
inline const QString bought = QStringLiteral("进货数量");

// The query of receipts and returns
inline const QString queryTitle = QStringLiteral("进退货查询");

} // namespace medistock::ui::pctexts
