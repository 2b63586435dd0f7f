#include "core/oplog.h"
#include "core/transaction.h"
#include "statistics/costsync.h"
#include "statistics/jxc.h"
#include "statistics/texts.h"
#include "stock/ledger.h"
#include "tests/statistics/statisticstest.h"

using namespace medistock;
using namespace medistock::statistics;
using medistock::test::StatisticsTest;

namespace {

// 100 boxes at 10 bought on 2025-01-05; 30 sold at 15 on the 20th and 5 of them back on the
// 25th, both costed at 10; 2 lost at 10 on the 28th. Then a receipt of 100 at 12 dated the 10th
// is checked: the average under the sale, the return and the loss becomes 11.
class CostSync : public StatisticsTest
{
protected:
    void SetUp() override
    {
        StatisticsTest::SetUp();
        receipt("2025-01-05", { { "200001", "100", "10" } });
        m_sale = sale("2025-01-20", { { "200001", "30", "15" } });
        m_return = salesReturn("2025-01-25", { { "200001", "5", "15" } });
        m_loss = loss("2025-01-28", { { "200001", "2", "10" } });
        receipt("2025-01-10", { { "200001", "100", "12" } });
    }

    QStringList ledger(const QString &number)
    {
        return rows(QStringLiteral("select gl_flag,gl_sl,gl_zje,gl_je,gl_cbj,gl_zcb,gl_lr from "
                                   "jxc_goodslist where gl_djh=? order by id"),
            { number });
    }

    QString differences()
    {
        EXPECT_TRUE(buildJxcSummary(session(), { .range = { "2025-01-01", "2025-01-31" } }).ok());
        return differenceMessage(jxcDifferences(session()));
    }

    QString m_sale;
    QString m_return;
    QString m_loss;
};

} // namespace

TEST_F(CostSync, RewritesOutwardCostsToTheRunningAverageAndTheirProfitAccordingly)
{
    EXPECT_EQ(differences(), QStringLiteral("200001 阿莫西林胶囊，差额：27"));
    EXPECT_EQ(ledger(m_sale), QStringList { "xs|30|450|450|10|300|150" });
    ui.clear();

    const Result<CostSyncSummary> synced
        = syncOutwardCosts(session(), { "2025-01-01", "2025-01-31" });
    ASSERT_TRUE(synced.ok()) << synced.message().toStdString();
    EXPECT_EQ(ui.asked, QStringList { texts::costSyncQuestion("2025-01-01", "2025-01-31") });
    EXPECT_EQ(synced->pairs, 1);
    EXPECT_EQ(synced->rows, 3);
    EXPECT_EQ(synced->rowsChanged, 3);
    EXPECT_EQ(synced->linesChanged, 3);

    // The sale: cost 11, total cost 330, profit 450 - 330; its line follows.
    EXPECT_EQ(ledger(m_sale), QStringList { "xs|30|450|450|11|330|120" });
    EXPECT_EQ(
        rows("select ls_sl,ls_zcb from jxc_lsxssp where gl_djh=? and g_sn='200001'", { m_sale }),
        QStringList { "30|330" });
    // The return comes back at 11 too.
    EXPECT_EQ(ledger(m_return), QStringList { "xt|-5|-75|-75|11|-55|-20" });
    EXPECT_EQ(
        rows("select th_sl,th_zcb from jxc_xsthsp where gl_djh=? and g_sn='200001'", { m_return }),
        QStringList { "5|55" });
    // A loss is valued at its cost alone: amount and total follow, profit 0.
    EXPECT_EQ(ledger(m_loss), QStringList { "bs|-2|-22|-22|11|-22|0" });
    EXPECT_EQ(rows("select bs_sl,bs_zje from jxc_bssp where gl_djh=?", { m_loss }),
        QStringList { "2|22" });

    EXPECT_EQ(differences(), texts::noDifference());
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db(), {}, {}))
        notes.append(entry.note);
    EXPECT_TRUE(notes.contains(texts::costSyncLog("2025-01-01", "2025-01-31", 3)));
}

TEST_F(CostSync, LeavesTheLedgerAsARerunWouldWriteItAndASecondRunChangesNothing)
{
    ASSERT_TRUE(syncOutwardCosts(session(), { "2025-01-01", "2025-01-31" }).ok());
    const qint64 first = db().firstValue(QStringLiteral("select min(id) from jxc_goodslist where "
                                                        "g_sn='200001'"))
                             .toLongLong();
    core::Transaction transaction(db());
    EXPECT_EQ(stock::rerunLedger(session(), first, false).rowsRewritten, 0);
    transaction.commit();

    const QString before = snapshot();
    const Result<CostSyncSummary> again
        = syncOutwardCosts(session(), { "2025-01-01", "2025-01-31" });
    ASSERT_TRUE(again.ok());
    EXPECT_EQ(again->rows, 3);
    EXPECT_EQ(again->rowsChanged, 0);
    EXPECT_EQ(again->linesChanged, 0);
    EXPECT_EQ(snapshot(), before);
}

TEST_F(CostSync, OnlyTheRangeIsWalked)
{
    const Result<CostSyncSummary> synced
        = syncOutwardCosts(session(), { "2025-01-21", "2025-01-31" });
    ASSERT_TRUE(synced.ok());
    EXPECT_EQ(synced->rows, 2);
    EXPECT_EQ(ledger(m_sale), QStringList { "xs|30|450|450|10|300|150" });
    EXPECT_EQ(ledger(m_return), QStringList { "xt|-5|-75|-75|11|-55|-20" });
}

TEST_F(CostSync, ANoARefusalOrACancelLeavesEverythingAsItWas)
{
    const QString before = snapshot();
    ui.clear();
    ui.answerNext(false);
    const Result<CostSyncSummary> declined
        = syncOutwardCosts(session(), { "2025-01-01", "2025-01-31" });
    EXPECT_FALSE(declined.ok());
    EXPECT_TRUE(declined.message().isEmpty());
    EXPECT_EQ(snapshot(), before);

    EXPECT_EQ(syncOutwardCosts(session(), { "2025-02-01", "2025-01-31" }).message(),
        texts::rangeReversed());

    const Result<CostSyncSummary> cancelled = syncOutwardCosts(
        session(), { "2025-01-01", "2025-01-31" }, [](int, int) { return false; });
    EXPECT_EQ(cancelled.message(), texts::cancelled());
    EXPECT_EQ(snapshot(), before);
}

TEST_F(CostSync, AGoodsWithAFixedCostIsValuedAtItsPurchasePrice)
{
    db().exec("update jxc_goods set g_gdcbj=1,g_jj=9.5 where g_sn='200001'");
    ASSERT_TRUE(syncOutwardCosts(session(), { "2025-01-01", "2025-01-31" }).ok());
    EXPECT_EQ(ledger(m_sale), QStringList { "xs|30|450|450|9.5|285|165" });
    EXPECT_EQ(rows("select ls_zcb from jxc_lsxssp where gl_djh=? and g_sn='200001'", { m_sale }),
        QStringList { "285" });
    EXPECT_EQ(ledger(m_loss), QStringList { "bs|-2|-19|-19|9.5|-19|0" });
}
