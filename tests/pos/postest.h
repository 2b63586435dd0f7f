#pragma once

#include "core/rounding.h"
#include "members/retail.h"
#include "tests/members/memberstest.h"

namespace medistock::test {

// The members' fixture with what the till's tests add: a second warehouse "100002" 分店, the
// employees 王芳 "100002" and 李强 "100003", and goods classes "01" 西药 (amoxicillin, vitamin C)
// and "02" 器械 (masks).
class PosTest : public MembersTest
{
protected:
    void SetUp() override;

    // A batch with an expiry, received into warehouse 100001 as opening stock.
    void receiveBatch(const QString &goods, double quantity, double price, const QString &batch,
        const QString &expiry);
    // An employee's commission settings: method 0 by amount, 1 by profit; rate in percent.
    void setCommission(const QString &employee, int method, double rate, double minimumProfit = 0);
    // A goods' own commission: kind 1 per piece, 2 by amount, 3 by profit.
    void setGoodsCommission(const QString &goods, int kind, double rate);

    // A retail sale at 2025-03-14 `time` in warehouse 100001, paid in cash exactly.
    members::RetailDocument sale(const QList<members::RetailLine> &lines,
        const QString &member = {}, const QString &time = QStringLiteral("10:00:00"));
    static members::RetailLine gift(const QString &goods, double quantity, double price);
};

} // namespace medistock::test
