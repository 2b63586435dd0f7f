// The moving average set by hand: where it is written, how later postings go on from it, and
// that a refusal or a "No" leaves the books as they were.
#include "stock/average.h"
#include "tests/stock/stockfixture.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::StockTest;

// 200001: 10 at 12 into the main warehouse on 03-10, 4 at 15 into the branch on 03-11; the goods
// average is (120 + 60) / 14 = 12.86.
class AverageChangeTest : public StockTest
{
protected:
    void SetUp() override
    {
        StockTest::SetUp();
        addReceipt(QStringLiteral("CJ1"), QStringLiteral("2025-03-10"),
            { { QStringLiteral("200001"), 10, 12 } });
        postReceipt(QStringLiteral("CJ1"));
        addReceipt(QStringLiteral("CJ2"), QStringLiteral("2025-03-11"),
            { { QStringLiteral("200001"), 4, 15 } }, QStringLiteral("100002"));
        postReceipt(QStringLiteral("CJ2"));
        ui.clear();
    }

    QString costs()
    {
        return test::queryRows(db(),
                   QStringLiteral("select kc_cbj from jxc_kcsp where g_sn='200001' order by ck_sn"))
                   .join(QLatin1Char('|'))
            + QLatin1Char('/')
            + db().firstText(QStringLiteral("select g_pjjj from jxc_goods where g_sn='200001'"));
    }
};

// The main warehouse goes to 11: its last row holds 11 and 110, the goods average becomes
// (110 + 60) / 14 = 12.14; a sale of 2 then leaves 8 at 11 (88), and 10 bought at 13 the same day
// average (110 + 130) / (10 + 10) = 12 over the day's sums, which start from the changed row.
TEST_F(AverageChangeTest, LaterPostingsGoOnFromTheNewAverage)
{
    ui.answerNext(true);
    ASSERT_TRUE(stock::changeAverage(session(), "200001", "100001", "11").ok());
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("确认将商品“阿莫西林胶囊”的成本均价由 12 改为 11 吗？\r\n"
                           "此后的业务按新均价计算成本；日期在最后一笔业务之前的单据审核后"
                           "将按原业务重算。") });
    EXPECT_EQ(costs(), QStringLiteral("11|15/12.14"));
    EXPECT_EQ(runningColumns("200001"), QStringList { "cj 10 120 10 11 110" });
    EXPECT_EQ(runningColumns("200001", "100002"), QStringList { "cj 4 60 4 15 60" });

    postSale("XS1", "2025-03-14", { "200001", 2, 20 });
    addReceipt("CJ3", "2025-03-14", { { "200001", 10, 13 } });
    postReceipt("CJ3");
    EXPECT_EQ(runningColumns("200001"),
        (QStringList { "cj 10 120 10 11 110", "xs 0 0 8 11 88", "cj 10 130 18 12 216" }));
}

// Every warehouse at once: both costs and the goods average are 14.
TEST_F(AverageChangeTest, EveryWarehouseTakesTheAverageWhenNoneIsNamed)
{
    ui.answerNext(true);
    ASSERT_TRUE(stock::changeAverage(session(), "200001", QString(), "14").ok());
    EXPECT_EQ(costs(), QStringLiteral("14|14/14"));
    EXPECT_EQ(runningColumns("200001", "100002"), QStringList { "cj 4 60 4 14 56" });
}

// A "No", a price that is no number, an unknown goods and an operator without the right change
// nothing; the refusals say why.
TEST_F(AverageChangeTest, RefusalsAndANoLeaveTheBooksAsTheyWere)
{
    test::addOperatorWithRights(session(), "小李", { { "kcgl", "11111111111111111" } });
    const QString before = test::dumpDatabase(db());
    ui.answerNext(false);
    EXPECT_FALSE(stock::changeAverage(session(), "200001", "100001", "11").ok());
    EXPECT_FALSE(stock::changeAverage(session(), "200001", "100001", "-1").ok());
    EXPECT_FALSE(stock::changeAverage(session(), "209999", "100001", "11").ok());
    EXPECT_EQ(ui.informed.size(), 2);
    EXPECT_TRUE(ui.informed.value(0).startsWith(QStringLiteral("成本均价")))
        << ui.informed.value(0).toStdString();

    loginAs("小李");
    ui.clear();
    EXPECT_FALSE(stock::changeAverage(session(), "200001", "100001", "11").ok());
    EXPECT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.asked.isEmpty());
    loginAs("admin");
    EXPECT_EQ(test::differences(before, test::dumpDatabase(db())), QStringList {});
}
