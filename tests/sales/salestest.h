#pragma once

#include "sales/entry.h"
#include "tests/support/accountset.h"

namespace medistock::test {

// Goods "200001" 阿莫西林胶囊 (盒; 件 of 10; standard price 12, levels 11 to 9, retail 15; per 件
// 115 and level 3 100), "200002" 板蓝根颗粒 (袋, standard price 8), customers "100002" 华康药店
// (type "1003") and "100003" 仁和诊所 (type "1000"), and in warehouse "100001" the opening stock
// of 200001: batch "B1" (expiring 2026-06-30) 100 boxes and batch "B2" (2025-12-31) 50 boxes at
// 5, and of 200002: 40 bags without batch at 3. Check-on-save and the prepayment warning are off;
// negative stock is allowed.
class SalesTest : public SessionTest
{
protected:
    void SetUp() override;

    // Opening stock into a warehouse and batch, dated 2025-01-02, at `price` per base unit.
    void receive(const QString &goods, const QString &warehouse, double quantity, double price,
        const QString &batch, const QString &expiry);

    documents::LineDraft line(const QString &goods, const QString &quantity, const QString &price,
        const QString &batch = {}, const QString &unit = {}) const;
    // A sale to 100002 from warehouse 100001 dated 2025-03-14, settled by the amount paid.
    sales::SaleDraft draft(const QList<documents::LineDraft> &lines, double paid = 0) const;
    // Saves with every question answered yes; fails the test when refused.
    QString saveSale(const sales::SaleDraft &draft);
    QString saveReturn(const sales::SaleDraft &draft);
    QString saveOrder(const sales::SaleDraft &draft);

    // Rows of a table as "a|b|c" over the given columns, in id order.
    QStringList rows(const QString &table, const QString &columns, const QString &where = {},
        const QVariantList &params = {});
    // The customer's balance after his last ledger row, and kh_lwje.
    double balance(const QString &customer = QStringLiteral("100002"));
    double partyFigure(const QString &customer = QStringLiteral("100002"));
    // The whole database without the log and the tables' id counters, for comparing before and
    // after.
    QString snapshot();
};

} // namespace medistock::test
