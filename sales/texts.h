#pragma once

#include <QString>

// Every text the sales documents show, ask or log.
namespace medistock::sales::texts {

// Saving: the confirmation of a sale or order, and of a return, with check-on-save on or off
QString saveAndCheckQuestion();
QString saveSaleQuestion();
QString saveReturnQuestion();

// The stock checks of saving a sale, per warehouse
QString goodsNotInWarehouse(const QString &goodsName, bool negativeAllowed);
QString goodsShortInWarehouse(const QString &goodsName, bool negativeAllowed);

// The prepayment question of saving and checking a sale; `prepayment` as shown
QString prepaymentQuestion(const QString &prepayment);

// Expired batches
QString expiredBatchQuestion(
    int row, const QString &goodsName, const QString &batch, const QString &expiry);
QString expiredBatchRefused(
    int row, const QString &goodsName, const QString &batch, const QString &expiry);

// Header refusals of the sales documents
QString settlementModeInvalid(const QString &mode);
QString freightTermsInvalid(const QString &terms);

// Lines taken over from orders and lines returned against a sale
QString orderMissing(const QString &number);
QString orderNotChecked(const QString &number);
QString orderLineMissing(qint64 id);
QString orderLineExceeded(int row, const QString &order, const QString &open);
QString deleteCheckedOrderQuestion(const QString &number);
QString saleLineMissing(int row);
QString returnExceedsSale(int row, const QString &sale, const QString &left);

// Unchecking
QString issueNoteRefusal(const QString &number);
QString returnedSaleRefusal(const QString &number);

// Check all listed sales
QString checkAllQuestion();
QString checkHookOk();

// Quotations
QString quotationGoodsRefused(const QString &goods);
QString quotationMissing(qint64 id);
QString quotationWorkEmpty();
QString quotationPartyMissing(bool customer);
QString quotedPriceField(); // "报价", as number refusals name it

// Log lines
QString saleCheckedLog(const QString &number, int goodsCount);
QString saleUncheckedLog(const QString &number);
QString returnCheckedLog(const QString &number, int goodsCount);
QString returnUncheckedLog(const QString &number);
QString orderCheckedLog(const QString &number);
QString quotationsAddedLog(bool customer, int count);
QString quotationChangedLog(bool customer, qint64 id);
QString quotationDeletedLog(bool customer, qint64 id);

// Words
QString saleTitle(); // "销售单"
QString returnTitle(); // "销售退货单"
QString orderTitle(); // "销售订单"

} // namespace medistock::sales::texts
