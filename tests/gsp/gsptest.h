#pragma once

#include "gsp/filters.h"
#include "stock/ledger.h"
#include "tests/support/accountset.h"

#include <QStringList>

namespace medistock::test {

// Goods "200001" 阿莫西林胶囊 (prescription, split into 10), "200002" 复方甘草片 (sold at most 2 a
// time: a restricted drug), "200003" 板蓝根颗粒 (GSP category 中药饮片, under no maintenance),
// the supplier "100002" 华东医药 (mnemonic HDYY), the customer "100002" 华康药店 (HKYD) and the
// warehouse "100002" 分店仓库, with admin logged in and every question answered "Yes".
class GspTest : public SessionTest
{
protected:
    void SetUp() override;

    // A purchase receipt of one line into warehouse 100001, dated `date`; checked unless told.
    QString receipt(const QString &goods, const QString &quantity, const QString &price,
        const QString &date = QStringLiteral("2025-03-10"), bool checked = true,
        const QString &warehouse = QStringLiteral("100001"));
    // A sale of one line from warehouse 100001 with a prescription number; checked unless told.
    QString sale(
        const QString &goods, const QString &quantity, const QString &date, bool checked = true);
    // A ledger row written directly (kinds no document posts yet), dated 2025-03-10 unless told.
    qint64 ledgerRow(const QString &kind, const QString &goods, double quantity, double amount,
        const QString &date = QStringLiteral("2025-03-10"));
    // A batch row written directly.
    void batch(const QString &goods, const QString &warehouse, const QString &number,
        const QString &expiry, double quantity, const QString &produced = {});

    // A whole range, or a range with a keyword / warehouse.
    static gsp::RecordFilter filter(const QString &key = {}, const QString &warehouse = {},
        const QString &from = {}, const QString &to = {});
    QStringList rows(const QString &sql, const QVariantList &params = {});
    // Everything except the log, the id counters and the work tables' own rows.
    QString snapshot();
};

} // namespace medistock::test
