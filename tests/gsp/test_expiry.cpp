#include "gsp/expiry.h"
#include "gsp/temperature.h"
#include "tests/gsp/gsptest.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

namespace {

QStringList batches(const QList<gsp::ExpiryRow> &rows)
{
    QStringList list;
    for (const gsp::ExpiryRow &row : rows)
        list.append(row.batch);
    return list;
}

} // namespace

TEST(ExpiryLimit, IsTheMonthOfTodayPlusTheDaysAsText)
{
    EXPECT_EQ(gsp::expiryLimit(QDate(2025, 3, 14), 90), QStringLiteral("2025-06"));
    EXPECT_EQ(gsp::expiryLimit(QDate(2025, 3, 14), 17), QStringLiteral("2025-03"));
    EXPECT_EQ(gsp::expiryLimit(QDate(2025, 3, 14), 18), QStringLiteral("2025-04"));
    EXPECT_EQ(gsp::expiryLimit(QDate(2025, 12, 20), 12), QStringLiteral("2026-01"));
}

// With today 2025-03-14 and 90 days the limit is "2025-06".
struct ExpiryCase
{
    const char *batch;
    const char *expiry;
    double quantity;
    bool listed;
};

class ExpiryQuery : public GspTest, public ::testing::WithParamInterface<ExpiryCase>
{
};

TEST_P(ExpiryQuery, ComparesTheExpiryWithTheLimitMonthAsText)
{
    const ExpiryCase &c = GetParam();
    batch(QStringLiteral("200001"), QStringLiteral("100001"), QString::fromUtf8(c.batch),
        QString::fromUtf8(c.expiry), c.quantity);
    const auto rows = gsp::expiryQuery(session(), 90, QString(), QString());
    ASSERT_TRUE(rows.ok());
    EXPECT_EQ(rows->size(), c.listed ? 1 : 0) << c.batch << " " << c.expiry;
}

INSTANTIATE_TEST_SUITE_P(Gsp, ExpiryQuery,
    ::testing::Values(ExpiryCase { "A1", "2025-06", 5, true }, // the limit month itself
        ExpiryCase { "A2", "2025-05-31", 5, true }, // a full date before the month
        ExpiryCase { "A3", "2024-12-01", 5, true }, // expired long ago
        ExpiryCase {
            "A4", "2025-06-01", 5, false }, // a full date in the limit month sorts after it
        ExpiryCase { "A5", "2025-06-30", 5, false }, ExpiryCase { "A6", "2025-07", 5, false },
        ExpiryCase { "A7", "0000-00", 5, false }, // no expiry
        ExpiryCase { "A8", "", 5, false }, // no expiry either
        ExpiryCase { "", "2025-01-01", 5, false }, // no batch number
        ExpiryCase { "A9", "2025-01-01", 0, false }, // not in stock
        ExpiryCase { "A10", "2025-01-01", -3, false }));

TEST_F(GspTest, TheExpiryQueryNarrowsByWarehouseAndGoodsAndKeepsBatchOrder)
{
    batch(QStringLiteral("200003"), QStringLiteral("100001"), QStringLiteral("K1"),
        QStringLiteral("2025-04-30"), 4);
    batch(QStringLiteral("200001"), QStringLiteral("100002"), QStringLiteral("K2"),
        QStringLiteral("2025-04"), 6);
    batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("K3"),
        QStringLiteral("2025-03"), 2);
    EXPECT_EQ(batches(gsp::expiryQuery(session(), 60, QString(), QString()).value()),
        (QStringList { QStringLiteral("K1"), QStringLiteral("K2"), QStringLiteral("K3") }));
    EXPECT_EQ(
        batches(gsp::expiryQuery(session(), 60, QStringLiteral("所有仓库"), QString()).value()),
        (QStringList { QStringLiteral("K1"), QStringLiteral("K2"), QStringLiteral("K3") }));
    EXPECT_EQ(batches(gsp::expiryQuery(session(), 60, QStringLiteral("100002"), QString()).value()),
        QStringList { QStringLiteral("K2") });
    EXPECT_EQ(
        batches(gsp::expiryQuery(session(), 60, QString(), QStringLiteral("阿莫西林")).value()),
        (QStringList { QStringLiteral("K2"), QStringLiteral("K3") }));
    // 10 days end the limit in March: only the March batch.
    EXPECT_EQ(batches(gsp::expiryQuery(session(), 10, QString(), QString()).value()),
        QStringList { QStringLiteral("K3") });
    const gsp::ExpiryRow row
        = gsp::expiryQuery(session(), 10, QString(), QString()).value().first();
    EXPECT_EQ(row.goodsName + row.warehouseName, QStringLiteral("阿莫西林胶囊主仓库"));
    EXPECT_DOUBLE_EQ(row.quantity, 2);
}

TEST_F(GspTest, TheNearExpiryCountUsesTheDaysOfTheParameters)
{
    batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("N1"),
        QStringLiteral("2025-05-20"), 4);
    batch(QStringLiteral("200001"), QStringLiteral("100002"), QStringLiteral("N2"),
        QStringLiteral("2025-08"), 4);
    batch(QStringLiteral("200003"), QStringLiteral("100001"), QStringLiteral("N3"),
        QStringLiteral("2026-01-15"), 4);
    // Not set: 180 days, up to "2025-09".
    EXPECT_EQ(gsp::nearExpiryDays(session().params()), 180);
    EXPECT_EQ(gsp::nearExpiryCount(session()).value(), 2);
    setParameter(QStringLiteral("cs_cs031"), 90);
    EXPECT_EQ(gsp::nearExpiryCount(session()).value(), 1);
    setParameter(QStringLiteral("cs_cs031"), 365);
    EXPECT_EQ(gsp::nearExpiryCount(session()).value(), 3);
}

TEST(ExpiryDays, AcceptsWholeDaysFromZeroTo36500)
{
    EXPECT_EQ(gsp::expiryDays(QStringLiteral(" 30 ")).value(), 30);
    EXPECT_EQ(gsp::expiryDays(QStringLiteral("0")).value(), 0);
    for (const char *bad : { "-1", "36501", "1.5", "三十", "" }) {
        const auto days = gsp::expiryDays(QString::fromUtf8(bad));
        EXPECT_FALSE(days.ok()) << bad;
        EXPECT_EQ(days.message(),
            QStringLiteral("天数“%1”不正确，应为 0 到 36500 之间的整数！")
                .arg(QString::fromUtf8(bad)));
    }
}

TEST_F(GspTest, AnOperatorBoundToAWarehouseQueriesAndIsRemindedOfItAlone)
{
    batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("M1"),
        QStringLiteral("2025-04"), 5);
    batch(QStringLiteral("200001"), QStringLiteral("100002"), QStringLiteral("B1"),
        QStringLiteral("2025-04"), 5);
    addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("gspgl"), QStringLiteral("11111111111") },
            { QStringLiteral("kcgl"), QStringLiteral("0000000000000001") } });
    const QString code = db().firstText(
        QStringLiteral("select a_sn from jxc_admin where a_name=?"), { QStringLiteral("小王") });
    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=? where ck_sn='100002'"),
        { code + QLatin1Char(',') });
    setParameter(QStringLiteral("cs_cgyh"), 1);
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(batches(gsp::expiryQuery(session(), 90, QString(), QString()).value()),
        QStringList { QStringLiteral("B1") });
    EXPECT_EQ(gsp::nearExpiryCount(session()).value(), 1);
    EXPECT_EQ(gsp::temperatureReminder(session()),
        QStringLiteral("今天（2025-03-14）以下仓库还没有登记温湿度：\r\n分店仓库\r\n"
                       "请在“仓库温湿度管理”中登记！"));
}

} // namespace medistock::test
