#include "sales/fefo.h"
#include "tests/sales/salestest.h"

using namespace medistock;
using medistock::test::SalesTest;

namespace {

QStringList proposed(const sales::FefoProposal &proposal)
{
    QStringList batches;
    for (const sales::BatchProposal &b : proposal.batches)
        batches.append(QStringLiteral("%1|%2|%3").arg(b.batch, b.expiry).arg(b.quantity));
    return batches;
}

} // namespace

TEST_F(SalesTest, FefoProposesTheEarliestExpiringBatchFirstAndSplitsAcrossBatches)
{
    const auto one = sales::proposeBatches(session(), QStringLiteral("200001"),
        QStringLiteral("100001"), 30, QStringLiteral("2025-03-14"));
    EXPECT_EQ(proposed(one), QStringList { "B2|2025-12-31|30" });
    const auto split = sales::proposeBatches(session(), QStringLiteral("200001"),
        QStringLiteral("100001"), 60, QStringLiteral("2025-03-14"));
    EXPECT_EQ(proposed(split), (QStringList { "B2|2025-12-31|50", "B1|2026-06-30|10" }));
    EXPECT_DOUBLE_EQ(split.shortfall, 0);

    // An expired batch and an empty one are never proposed; what no batch holds is told.
    receive(QStringLiteral("200001"), QStringLiteral("100001"), 20, 5, QStringLiteral("B0"),
        QStringLiteral("2025-03-13"));
    db().exec(QStringLiteral("insert into jxc_tkc (g_sn,ck_sn,t_ph,t_yxq,t_scrq,t_sl) values "
                             "('200001','100001','BZ','2025-06-30','',0)"));
    const auto all = sales::proposeBatches(session(), QStringLiteral("200001"),
        QStringLiteral("100001"), 170, QStringLiteral("2025-03-14"));
    EXPECT_EQ(proposed(all), (QStringList { "B2|2025-12-31|50", "B1|2026-06-30|100" }));
    EXPECT_DOUBLE_EQ(all.shortfall, 20);
}

TEST_F(SalesTest, FefoSplitsALineWithoutBatchInItsOwnUnitWhereTheBatchAllows)
{
    sales::SaleDraft d = draft({ line(QStringLiteral("200001"), QStringLiteral("8"),
                                     QStringLiteral("110"), {}, QStringLiteral("件")),
        line(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("12"),
            QStringLiteral("B1")) });
    sales::applyFefo(session(), d.entry);
    QStringList lines;
    for (const documents::LineDraft &l : d.entry.lines)
        lines.append(QStringList { l.batch, l.expiry, l.unit, l.quantity, l.price }.join('|'));
    EXPECT_EQ(lines,
        (QStringList {
            "B2|2025-12-31|件|5.00|110", "B1|2026-06-30|件|3.00|110", "B1|2026-06-30||1|12" }));

    sales::SaleDraft odd = draft({ line(QStringLiteral("200001"), QStringLiteral("6"),
        QStringLiteral("110"), {}, QStringLiteral("件")) });
    db().exec(QStringLiteral("update jxc_tkc set t_sl=45 where t_ph='B2'"));
    sales::applyFefo(session(), odd.entry);
    lines.clear();
    for (const documents::LineDraft &l : odd.entry.lines)
        lines.append(QStringList { l.batch, l.unit, l.quantity, l.price }.join('|'));
    EXPECT_EQ(lines, (QStringList { "B2||45.00|11", "B1||15.00|11" }));
}
