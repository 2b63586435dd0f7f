#pragma once

#include "purchasing/checking.h"
#include "purchasing/entry.h"
#include "tests/support/accountset.h"

namespace medistock::test {

// Goods "200001" 阿莫西林胶囊 (盒, also 件 of 20), "200002" 板蓝根颗粒 (袋), the supplier "100002"
// 华东医药, the buyer "100002" 小周 and the warehouse "100002" 分店仓库, with admin logged in and
// every question answered "Yes" unless a test says otherwise.
class PurchasingTest : public SessionTest
{
protected:
    void SetUp() override;

    static QString supplier() { return QStringLiteral("100002"); }

    documents::LineDraft line(const QString &goods, const QString &quantity, const QString &price,
        const QString &batch = QStringLiteral("B1")) const;
    // A draft from the supplier into warehouse 100001 by the buyer, dated `date`.
    purchasing::PurchaseDraft draft(const QList<documents::LineDraft> &lines,
        const QString &date = QStringLiteral("2025-03-14"));
    QString saveReceipt(const purchasing::PurchaseDraft &draft);
    QString saveReturn(const purchasing::PurchaseDraft &draft);
    // Saved and checked with the saved values.
    QString checkedReceipt(const purchasing::PurchaseDraft &draft);
    QString checkedReturn(const purchasing::PurchaseDraft &draft);
    // The receipt line's identity (id2) once its receipt is checked; lines counted from 0.
    qint64 receiptLineId(const QString &receipt, int line);

    // Everything except the log and the id counters.
    QString snapshot();
    // The lines of one dump that the other lacks, each marked "-" (only before) or "+" (only
    // after); empty when the two are the same.
    static QStringList differences(const QString &before, const QString &after);
    QStringList rows(const QString &sql, const QVariantList &params = {});
    double figure(const QString &sql, const QVariantList &params = {});
};

} // namespace medistock::test
