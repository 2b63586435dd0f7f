#pragma once

#include <QString>

// Every text purchasing shows, logs or stores as a fixed word.
namespace medistock::purchasing::texts {

// Refusals
QString noUncheckReceiptRight(); // "您没有取消审核采购进货单的权限！"
QString noUncheckReturnRight(); // "您没有取消审核采购退货单的权限！"
QString receivingNoteRefusal(const QString &number);
QString returnedReceiptRefusal(const QString &number);
QString settlementModeInvalid(const QString &mode);
QString freightTermsInvalid(const QString &terms);
QString receiptLineMissing(int row);
QString returnExceedsReceipt(int row, const QString &receipt, const QString &left);

// Log lines
QString receiptUncheckedLog(const QString &number);
QString returnCheckedLog(const QString &number, int goodsCount);
QString returnUncheckedLog(const QString &number);

// Words
QString receiptTitle(); // "采购进货单"
QString returnTitle(); // "采购退货单"

} // namespace medistock::purchasing::texts
