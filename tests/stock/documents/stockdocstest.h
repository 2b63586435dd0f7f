#pragma once

#include "documents/entry.h"
#include "tests/stock/stockfixture.h"

namespace medistock::test {

// Stock the documents move, posted as purchase receipts:
// - CJ1 of 2025-03-10 into the main warehouse 100001 (主仓库): 20 of 200001 阿莫西林胶囊 at 12
//   in batch B1, 10 of 200002 板蓝根颗粒 at 8 in batch G1;
// - CJ2 of 2025-03-11 into the branch warehouse 100002 (分店仓库): 10 of 200001 at 15 in B1.
// Every batch expires 2027-12-31 and was produced 2024-12-01. The goods average of 200001 is 13.
class StockDocsTest : public StockTest
{
protected:
    void SetUp() override;

    static const QString amoxil; // "200001"
    static const QString granules; // "200002"
    static const QString mainStore; // "100001"
    static const QString branch; // "100002"

    // A line of a batch with the fixture's expiry and production date; an empty price is left
    // for the entry to propose.
    documents::LineDraft line(const QString &goods, const QString &quantity,
        const QString &price = {}, const QString &batch = QStringLiteral("B1"),
        const QString &unit = {}) const;
    documents::DocumentDraft draft(const QString &date, const QString &warehouse,
        const QList<documents::LineDraft> &lines, const QString &secondWarehouse = {}) const;

    // Rows of a query as "a|b|c", numbers as their shortest text.
    QStringList rows(const QString &sql, const QVariantList &params = {});
    // Every table but the log and the row counters, to prove that nothing else changed.
    QString everything();
    // The lines of everything() that differ from an earlier dump: "-" gone, "+" new.
    QStringList changedSince(const QString &before);
    QString lastLog();
    // An operator (no password) whose role holds the given kcgl right string; added by admin.
    void addStockOperator(const QString &name, const QString &kcgl);
};

} // namespace medistock::test
