#pragma once

#include <QString>

// Every text the shared document entry shows or logs.
namespace medistock::documents::texts {

// Header refusals
QString dateInvalid(const QString &date);
QString partyRequired(bool supplier);
QString partyMissing(bool supplier, const QString &code);
QString partyForbidden(bool supplier, const QString &name);
QString warehouseRequired();
QString warehouseMissing(const QString &code);
QString employeeMissing(const QString &code);
QString discountNotOffered(const QString &title);
QString noLines();

// Line refusals; `row` counts the lines from 1
QString goodsRequired(int row);
QString goodsMissing(int row, const QString &code);
QString goodsDisabled(int row, const QString &name);
QString discountGoodsEntered(int row);
QString unitMissing(int row, const QString &goodsName, const QString &unit);
QString unitWithoutFactor(int row, const QString &goodsName, const QString &unit);
QString quantityZero(int row);
QString producedInvalid(int row, const QString &date);
QString expiryInvalid(int row, const QString &date);
QString expiryBeforeProduced(int row);

// The numbers of a line as number refusals name them ("第1行：数量")
QString quantityField(int row);
QString priceField(int row);
QString costField(int row);
QString taxRateField(int row);
QString discountRateField(int row);
QString baseQuantityField(int row);
QString lineTotalField(int row);

// The typed amounts of a header as number refusals name them
QString paidField(bool comesIn); // "实收金额" when the money comes in, else "实付金额"
QString invoiceAmountField(); // "发票金额"
QString freightField(); // "运费"
QString packingField(); // "包装费"

// Saving and deleting
QString documentMissing(const QString &number);
QString checkedCannotChange(const QString &number);
QString checkedCannotDelete(const QString &number);
QString numberTaken(const QString &number);
QString alreadyChecked(const QString &number);
QString notChecked(const QString &number);

// The uncheck rule for another operator's document, and its question
QString otherCheckerRefused(const QString &number, const QString &checker);
QString uncheckQuestion(const QString &number);

// The closed-period test's answer when nothing stands in the way
QString periodOpen();

// Log lines
QString savedLog(const QString &title, const QString &number, int goodsCount, bool isNew);
QString deletedLog(const QString &title, const QString &number);
QString deletedCheckedLog(const QString &title, const QString &number);

} // namespace medistock::documents::texts
