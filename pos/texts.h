#pragma once

#include <QString>

// Every text the till, the shift handover, the till's cash and the POS reports show, write or log.
namespace medistock::pos::texts {

// The till
QString goodsNotFound(const QString &text);
// The warehouse holds `stock` of the goods and the sale takes `wanted` (base units).
QString stockShort(
    const QString &name, double stock, double wanted, const QString &unit, bool negativeAllowed);
QString nothingToHold();
QString heldSaleMissing(const QString &number);
QString heldMark(); // ls_flag of the lines a till holds: "POS"
QString heldLog(const QString &number, int goodsCount);
QString heldDroppedLog(const QString &number);

// Returns at the till
QString notARetailSale(const QString &number);
QString nothingReturned();
QString returnBeyondSold(const QString &name, double left);

// The till's cash in and out
QString cashQuestion(bool in);
QString cashAmountInvalid();
QString cashPrefix(bool in); // "RK" / "CK"
QString cashKind(bool in); // "POS 入款" / "POS 出款"
QString cashLog(bool in, const QString &number, double amount);

// The shift handover
QString nextCashierMissing(const QString &name);
QString handoverNegative();
QString handoverDiffers(double counted, double expected);
QString handoverLog(const QString &from, const QString &to, double takings);

// Reports
QString dateRangeInvalid(const QString &from, const QString &to);
QString allLevels(); // "所有级别"
QString allCashiers(); // "所有收银员"
QString documentKind(bool isReturn); // "商品销售单" / "销售退货单"
QString commissionKind(int flag); // hz_txt2 of a kind code (101 ... 5001)
QString commissionLog(const QString &from, const QString &to, int rows);

} // namespace medistock::pos::texts
