#include "documents/expiry.h"
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

// Two lines of one goods without a batch take their sum from the earliest batches together: 30
// and 40 boxes are 50 of B2 and 20 of B1, and the save asks no shortage question.
TEST_F(SalesTest, FefoAllocatesTheLinesOfOneGoodsTogether)
{
    sales::SaleDraft d
        = draft({ line(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("12")),
            line(QStringLiteral("200001"), QStringLiteral("40"), QStringLiteral("12")) });
    sales::applyFefo(session(), d.entry);
    QStringList lines;
    for (const documents::LineDraft &l : d.entry.lines)
        lines.append(QStringList { l.batch, l.quantity }.join('|'));
    EXPECT_EQ(lines, (QStringList { "B2|30.00", "B2|20.00", "B1|20.00" }));
    ui.clear();
    saveSale(d);
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_EQ(ui.asked.first().left(4), QStringLiteral("单据保存"));
}

// An expiry printed as a month counts as that month's last day: it sorts after the days before
// it and with the month's last day, and its batch is still sold in that month. "0000-00" is no
// expiry at all.
TEST_F(SalesTest, FefoOrdersMonthExpiriesAsTheMonthsLastDay)
{
    const QString goods = QStringLiteral("200002");
    for (const auto &[batch, expiry] : { std::pair { "M1", "2025-12" }, { "D1", "2025-12-20" },
             { "M0", "2025-03" }, { "N0", "0000-00" }, { "X0", "2025-02" } })
        receive(goods, QStringLiteral("100001"), 10, 3, QString::fromLatin1(batch),
            QString::fromLatin1(expiry));
    db().exec(QStringLiteral("update jxc_tkc set t_sl=0 where g_sn=? and t_ph=''"), { goods });
    const auto all = sales::proposeBatches(
        session(), goods, QStringLiteral("100001"), 100, QStringLiteral("2025-03-14"));
    EXPECT_EQ(proposed(all),
        (QStringList { "M0|2025-03|10", "D1|2025-12-20|10", "M1|2025-12|10", "N0|0000-00|10" }));
    EXPECT_FALSE(documents::expiredBy(QStringLiteral("2025-03"), QStringLiteral("2025-03-31")));
    EXPECT_TRUE(documents::expiredBy(QStringLiteral("2025-03"), QStringLiteral("2025-04-01")));
    EXPECT_FALSE(documents::expiredBy(QStringLiteral("0000-00"), QStringLiteral("2025-03-14")));
}
