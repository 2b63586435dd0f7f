#pragma once

#include <QString>

// Every text the stock documents show, log or write into rows.
namespace medistock::stock::texts {

// Entry refusals; `row` counts the lines from 1
QString sameWarehouses();
QString batchNotInWarehouse(int row, const QString &goodsName, const QString &batch,
    const QString &expiry, const QString &produced);
QString countedTwice(int row, const QString &goodsName, int firstRow);

// Unchecking
QString noUncheckRight(const QString &title); // "您没有取消审核<title>的权限！"
QString stockTakingUncheckQuestion();
QString laterBusiness(const QString &date, const QString &laterNumber, const QString &number);

// Log lines
QString transferCheckedLog(const QString &number, int lineCount);
QString transferUncheckedLog(const QString &number);
QString stockTakingCheckedLog(const QString &number, int rowCount);
QString stockTakingUncheckedLog(const QString &number);
// `title` is "商品报损单" or "商品报溢单".
QString adjustmentCheckedLog(const QString &title, const QString &number, int lineCount);
QString adjustmentUncheckedLog(const QString &title, const QString &number);

// Opening stock
QString openingPostedLog(const QString &number, int rowCount);
QString openingRemovedLog(const QString &number);
QString openingMissing(const QString &number);
QString openingRemoveQuestion(const QString &number);

// Party names of the ledger rows
QString transferIn(); // "调拨入库"
QString transferOut(); // "调拨出库"
QString stockTakingParty(); // "库存盘点"
QString lossParty(); // "商品报损"
QString overflowParty(); // "商品报溢"
QString openingParty(); // "期初建账"

// Notes of the expense and income rows that book value differences
QString stockTakingDifferenceNote(const QString &number);
QString lossDifferenceNote(const QString &number);
QString overflowDifferenceNote(const QString &number);

} // namespace medistock::stock::texts
