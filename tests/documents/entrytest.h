#pragma once

#include "documents/entry.h"
#include "tests/support/accountset.h"

namespace medistock::test {

// Two kinds of document for the entry's tests: one whose tables have every column the entry
// fills (the purchase receipt's tables), and one without party, unit, base quantity or tax (the
// loss report's tables).
const documents::DocumentKind &fullKind();
const documents::DocumentKind &plainKind();

// Goods "200001" 阿莫西林胶囊 (base unit 盒, also sold as 件 of 20 boxes, barcode "6901"),
// "200002" 板蓝根颗粒 (袋), the disabled "200003" 停用药品, the supplier "100002" 华东医药, the
// forbidden supplier "100003" 停用供货商 and the warehouse "100002" 分店仓库.
class EntryTest : public SessionTest
{
protected:
    void SetUp() override;

    documents::LineDraft line(const QString &goods, const QString &quantity, const QString &price,
        const QString &unit = {}) const;
    // A draft of the full kind dated 2025-03-14 from supplier 100002 into warehouse 100001.
    documents::DocumentDraft draft(const QList<documents::LineDraft> &lines) const;
    QString save(const documents::DocumentDraft &draft);

    // Rows of a table as "a|b|c" over the given columns, in id order.
    QStringList rows(const QString &table, const QString &columns, const QString &where = {},
        const QVariantList &params = {});
};

} // namespace medistock::test
