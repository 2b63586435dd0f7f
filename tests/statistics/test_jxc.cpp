#include "core/transaction.h"
#include "statistics/jxc.h"
#include "statistics/texts.h"
#include "stock/ledger.h"
#include "tests/statistics/statisticstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using namespace medistock::statistics;
using medistock::test::rowCount;
using medistock::test::StatisticsTest;

namespace {

QString figures(const JxcRow &r)
{
    return QStringLiteral("%1 %2/%3 in %4/%5 out %6/%7 = %8/%9 diff %10")
        .arg(r.goods)
        .arg(r.openingQuantity)
        .arg(r.openingAmount)
        .arg(r.inQuantity)
        .arg(r.inAmount)
        .arg(r.outQuantity)
        .arg(r.outAmount)
        .arg(r.closingQuantity)
        .arg(r.closingAmount)
        .arg(r.difference);
}

QStringList figures(const QList<JxcRow> &rows)
{
    QStringList lines;
    for (const JxcRow &row : rows)
        lines.append(figures(row));
    return lines;
}

// January: 100 boxes at 10 and 50 bags at 4 bought, 30 boxes and 10 bags sold. February and
// March: 30 boxes at 12 bought (average 10.6), 5 boxes back from a customer, 5 boxes sent back
// at 12 (average 10.53), 3 boxes lost, 10 boxes moved to the branch, 2 bags found.
class JxcSummary : public StatisticsTest
{
protected:
    void SetUp() override
    {
        StatisticsTest::SetUp();
        januaryBooks();
        receipt("2025-02-03", { { "200001", "30", "12" } });
        salesReturn("2025-02-10", { { "200001", "5", "15" } });
        purchaseReturn("2025-02-15", { { "200001", "5", "12" } });
        loss("2025-03-01", { { "200001", "3", "10.53" } });
        transfer("2025-03-10", { { "200001", "10", "10.53" } }, QStringLiteral("100002"));
        overflow("2025-03-05", { { "200002", "2", "4" } });
    }

    QList<JxcRow> build(const QString &from, const QString &to, const QString &warehouse = {})
    {
        const Outcome built
            = buildJxcSummary(session(), { .range = { from, to }, .warehouse = warehouse });
        EXPECT_TRUE(built.ok()) << built.message().toStdString();
        return jxcRows(session());
    }
};

} // namespace

TEST_F(JxcSummary, OpeningPlusInwardLessOutwardIsTheLedgersClosingForEveryGoods)
{
    EXPECT_EQ(figures(build("2025-02-01", "2025-03-14")),
        (QStringList { "200001 70/700 in 45/518.3 out 18/196.89 = 97/1021.41 diff 0",
            "200002 40/160 in 2/8 out 0/0 = 42/168 diff 0" }));
    EXPECT_TRUE(jxcDifferences(session()).isEmpty());
    EXPECT_EQ(differenceMessage(jxcDifferences(session())), texts::noDifference());

    // One warehouse: the branch only received the transfer.
    EXPECT_EQ(figures(build("2025-02-01", "2025-03-14", "100002")),
        (QStringList { "200001 0/0 in 10/105.3 out 0/0 = 10/105.3 diff 0" }));
    // The whole year: everything is movement, nothing is opening stock.
    EXPECT_EQ(figures(build("2025-01-01", "2025-12-31")),
        (QStringList { "200001 0/0 in 145/1518.3 out 48/496.89 = 97/1021.41 diff 0",
            "200002 0/0 in 52/208 out 10/40 = 42/168 diff 0" }));
}

TEST_F(JxcSummary, RowsAreTheOperatorsOwnAndAreNarrowedByClassAndKeyword)
{
    build("2025-02-01", "2025-03-14");
    // One row per goods with a ledger row by the end.
    EXPECT_EQ(rowCount(db(), "jxc_jxchz"), 2);
    const QList<JxcRow> rows = jxcRows(session(), { QStringLiteral("1001"), {} });
    ASSERT_EQ(rows.size(), 2); // 中成药 is a sub-class of 西药
    EXPECT_EQ(rows[0].className, QStringLiteral("西药"));
    EXPECT_EQ(rows[1].className, QStringLiteral("中成药"));
    EXPECT_EQ(figures(jxcRows(session(), { QStringLiteral("100101"), {} })).size(), 1);
    EXPECT_EQ(jxcRows(session(), { {}, QStringLiteral("板蓝根") }).value(0).goods, "200002");
    EXPECT_EQ(jxcRows(session(), { {}, QStringLiteral("YP") }).size(), 2);

    // Another operator's summary leaves admin's rows alone.
    db().exec(
        QStringLiteral("insert into jxc_jxchz (g_sn,hz_kc,a_name) values ('200001',5,'小王')"));
    build("2025-01-01", "2025-01-31");
    EXPECT_EQ(rowCount(db(), "jxc_jxchz"), 3);
    EXPECT_EQ(jxcRows(session()).value(0).closingQuantity, 70);
}

TEST_F(JxcSummary, AValueChangedByHandIsListedWithItsDifference)
{
    db().exec(QStringLiteral("update jxc_goodslist set gl_kczje=gl_kczje+5 where id=(select "
                             "max(id) from jxc_goodslist where g_sn='200002')"));
    build("2025-02-01", "2025-03-14");
    const QList<JxcRow> rows = jxcDifferences(session());
    EXPECT_EQ(figures(rows), QStringList { "200002 40/160 in 2/8 out 0/0 = 42/173 diff -5" });
    EXPECT_EQ(differenceMessage(rows), QStringLiteral("200002 板蓝根颗粒，差额：-5"));

    db().exec(QStringLiteral("update jxc_goodslist set gl_kczje=gl_kczje-0.5 where id=(select "
                             "max(id) from jxc_goodslist where g_sn='200001' and ck_sn='100001' "
                             "and gl_kdrq<'2025-02-01')"));
    build("2025-02-01", "2025-03-14");
    EXPECT_EQ(differenceMessage(jxcDifferences(session())),
        QStringLiteral("200001 阿莫西林胶囊，差额：-0.5\r\n200002 板蓝根颗粒，差额：-5"));
}

TEST_F(JxcSummary, RefusalsAndACancelLeaveTheOperatorsRowsAsTheyWere)
{
    build("2025-02-01", "2025-03-14");
    const QString before = snapshot();
    ui.clear();
    EXPECT_FALSE(buildJxcSummary(session(), { .range = { "2025-03-14", "2025-02-01" } }).ok());
    EXPECT_EQ(ui.informed, QStringList { texts::rangeReversed() });
    EXPECT_FALSE(buildJxcSummary(session(), { .range = { "2025-02-30", "2025-03-01" } }).ok());
    EXPECT_EQ(ui.informed.last(), texts::badDate());

    int calls = 0;
    const Outcome cancelled = buildJxcSummary(
        session(), { .range = { "2025-01-01", "2025-01-31" } }, [&](int done, int total) {
            EXPECT_EQ(total, 2);
            return ++calls < 2 && done == 1;
        });
    EXPECT_EQ(cancelled.message(), texts::cancelled());
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(snapshot(), before);
}
