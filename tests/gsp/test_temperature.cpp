#include "gsp/documentsfolder.h"
#include "gsp/temperature.h"
#include "tests/gsp/gsptest.h"
#include "tests/support/documentrows.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace medistock::test {

namespace {

gsp::TemperatureEntry entry(const QString &warehouse = QStringLiteral("100001"),
    const QString &time = QStringLiteral("8:05"),
    const QString &temperature = QStringLiteral("22.5"))
{
    gsp::TemperatureEntry e;
    e.warehouse = warehouse;
    e.date = QStringLiteral("2025-03-14");
    e.time = time;
    e.temperature = temperature;
    e.humidity = QStringLiteral("60");
    return e;
}

} // namespace

using TemperatureLog = GspTest;

TEST_F(TemperatureLog, AnEntryIsKeptWithItsTimeAndRecorder)
{
    gsp::TemperatureEntry hot
        = entry(QStringLiteral("100002"), QStringLiteral("14:30"), QStringLiteral("31"));
    hot.measures = QStringLiteral("开启空调");
    hot.temperatureAfter = QStringLiteral("24.50");
    hot.humidityAfter = QStringLiteral("58");
    hot.recorder = QStringLiteral("小李");
    ASSERT_TRUE(gsp::addTemperature(session(), entry()).ok());
    ASSERT_TRUE(gsp::addTemperature(session(), hot).ok());
    EXPECT_EQ(
        rows(QStringLiteral("select ck_sn,cw_rq,cw_time,cw_wd,cw_sd,cw_wd2,cw_sd2,cw_cs,cw_jly,"
                            "a_name from jxc_ckwsd order by id")),
        (QStringList { QStringLiteral("100001|2025-03-14|08:05|22.5|60||||admin|admin"),
            QStringLiteral("100002|2025-03-14|14:30|31|60|24.5|58|开启空调|小李|admin") }));
    const auto listed = gsp::temperatureLog(session(), filter());
    ASSERT_EQ(listed->size(), 2);
    EXPECT_EQ(listed->first().warehouseName, QStringLiteral("分店仓库"));
    EXPECT_EQ(
        gsp::temperatureLog(session(), filter({}, QStringLiteral("100001"))).value().size(), 1);
    EXPECT_TRUE(gsp::temperatureLog(session(), filter({}, {}, {}, QStringLiteral("2025-03-13")))
                    .value()
                    .isEmpty());
}

struct BadEntry
{
    const char *field;
    const char *value;
    const char *message;
};

class TemperatureRefusals : public GspTest, public ::testing::WithParamInterface<BadEntry>
{
};

TEST_P(TemperatureRefusals, WriteNothing)
{
    const BadEntry &bad = GetParam();
    gsp::TemperatureEntry e = entry();
    const QString value = QString::fromUtf8(bad.value);
    const QString field = QString::fromLatin1(bad.field);
    if (field == QLatin1String("warehouse"))
        e.warehouse = value;
    else if (field == QLatin1String("date"))
        e.date = value;
    else if (field == QLatin1String("time"))
        e.time = value;
    else if (field == QLatin1String("temperature"))
        e.temperature = value;
    else if (field == QLatin1String("humidity"))
        e.humidity = value;
    else if (field == QLatin1String("after"))
        e.humidityAfter = value;
    EXPECT_FALSE(gsp::addTemperature(session(), e).ok());
    EXPECT_EQ(ui.informed, QStringList { QString::fromUtf8(bad.message) });
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ckwsd")), 0);
}

INSTANTIATE_TEST_SUITE_P(Gsp, TemperatureRefusals,
    ::testing::Values(BadEntry { "warehouse", "100009", "仓库“100009”不存在！" },
        BadEntry { "date", "2025-3-14", "日期“2025-3-14”不是正确的日期，请按 yyyy-MM-dd 输入！" },
        BadEntry { "time", "25:00", "时间“25:00”不正确，请按 hh:mm 输入（如 08:30）！" },
        BadEntry { "temperature", "热", "温度“热”不是正确的数字！" },
        BadEntry { "temperature", "61", "温度“61”超出范围，应在 -50 到 60 之间！" },
        BadEntry { "humidity", "-1", "湿度“-1”超出范围，应在 0 到 100 之间！" },
        BadEntry { "after", "101", "措施后湿度“101”超出范围，应在 0 到 100 之间！" },
        BadEntry { "after", "55.123456", "措施后湿度太长，最多 8 个字！" }));

TEST_F(TemperatureLog, DeletingAsksFirst)
{
    const qint64 id = gsp::addTemperature(session(), entry()).value();
    ui.answerNext(false);
    EXPECT_FALSE(gsp::deleteTemperature(session(), id).ok());
    EXPECT_EQ(ui.asked.last(),
        QStringLiteral("您的操作将删除主仓库 2025-03-14 08:05的温湿度记录，确认吗？"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ckwsd")), 1);
    EXPECT_TRUE(gsp::deleteTemperature(session(), id).ok());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ckwsd")), 0);
}

TEST_F(TemperatureLog, TheLoginReminderNamesTheWarehousesWithoutAnEntryToday)
{
    EXPECT_EQ(gsp::temperatureReminder(session()),
        QStringLiteral("今天（2025-03-14）以下仓库还没有登记温湿度：\r\n主仓库、分店仓库\r\n"
                       "请在“仓库温湿度管理”中登记！"));
    gsp::TemperatureEntry yesterday = entry(QStringLiteral("100002"));
    yesterday.date = QStringLiteral("2025-03-13");
    ASSERT_TRUE(gsp::addTemperature(session(), yesterday).ok());
    ASSERT_TRUE(gsp::addTemperature(session(), entry()).ok());
    EXPECT_EQ(gsp::temperatureReminder(session()),
        QStringLiteral("今天（2025-03-14）以下仓库还没有登记温湿度：\r\n分店仓库\r\n"
                       "请在“仓库温湿度管理”中登记！"));
    ASSERT_TRUE(gsp::addTemperature(session(), entry(QStringLiteral("100002"))).ok());
    EXPECT_EQ(gsp::temperatureReminder(session()), QString());
}

TEST_F(TemperatureLog, NoReminderForAnOperatorWithoutTheRight)
{
    addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("gspgl"), QStringLiteral("1111111111") } });
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(gsp::temperatureReminder(session()), QString());
}

TEST_F(TemperatureLog, TheChartReadsOneWarehouseInTimeOrder)
{
    for (const QString &time : { QStringLiteral("16:00"), QStringLiteral("08:00") })
        ASSERT_TRUE(gsp::addTemperature(session(), entry(QStringLiteral("100001"), time)).ok());
    gsp::TemperatureEntry earlier
        = entry(QStringLiteral("100001"), QStringLiteral("20:00"), QStringLiteral("18"));
    earlier.date = QStringLiteral("2025-03-13");
    ASSERT_TRUE(gsp::addTemperature(session(), earlier).ok());
    ASSERT_TRUE(gsp::addTemperature(session(), entry(QStringLiteral("100002"))).ok());
    const QList<gsp::Reading> readings = gsp::readingsOf(
        gsp::temperatureLog(session(), filter()).value(), QStringLiteral("100001"));
    QStringList moments;
    for (const gsp::Reading &r : readings)
        moments.append(r.at.toString(QStringLiteral("MM-dd HH:mm")) + QLatin1Char(' ')
            + QString::number(r.temperature));
    EXPECT_EQ(moments,
        (QStringList { QStringLiteral("03-13 20:00 18"), QStringLiteral("03-14 08:00 22.5"),
            QStringLiteral("03-14 16:00 22.5") }));
}

TEST(StorageClasses, FollowTheWarehouseNameAndKeepTheirBounds)
{
    EXPECT_EQ(gsp::storageClassOf(QStringLiteral("主仓库")), gsp::StorageClass::Normal);
    EXPECT_EQ(gsp::storageClassOf(QStringLiteral("阴凉库")), gsp::StorageClass::Cool);
    EXPECT_EQ(gsp::storageClassOf(QStringLiteral("冷藏库")), gsp::StorageClass::Cold);
    const gsp::StorageLimits cold = gsp::limitsOf(gsp::StorageClass::Cold);
    EXPECT_EQ(cold.lowTemperature, 2.0);
    EXPECT_EQ(cold.highTemperature, 10);
    const gsp::StorageLimits cool = gsp::limitsOf(gsp::StorageClass::Cool);
    EXPECT_FALSE(cool.lowTemperature.has_value());
    EXPECT_EQ(cool.highTemperature, 20);
    const gsp::StorageLimits normal = gsp::limitsOf(gsp::StorageClass::Normal);
    EXPECT_EQ(normal.lowTemperature, 10.0);
    EXPECT_EQ(normal.highTemperature, 30);
    EXPECT_EQ(normal.lowHumidity, 35);
    EXPECT_EQ(normal.highHumidity, 75);
}

TEST(GspDocumentsFolder, IsMadeBesideTheDataWhenMissingAndKeptWhenThere)
{
    QTemporaryDir data;
    const QString expected = QDir(data.path()).filePath(QStringLiteral("gsp"));
    EXPECT_FALSE(QDir(expected).exists());
    EXPECT_EQ(gsp::gspDocumentsFolder(data.path()).value(), expected);
    ASSERT_TRUE(QDir(expected).exists());
    QFile kept(QDir(expected).filePath(QStringLiteral("质量管理制度.txt")));
    ASSERT_TRUE(kept.open(QIODevice::WriteOnly));
    kept.close();
    EXPECT_EQ(gsp::gspDocumentsFolder(data.path()).value(), expected);
    EXPECT_TRUE(kept.exists());
    // A file where the folder should be cannot become one.
    QTemporaryDir other;
    QFile blocker(QDir(other.path()).filePath(QStringLiteral("gsp")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    const auto refused = gsp::gspDocumentsFolder(other.path());
    EXPECT_FALSE(refused.ok());
    EXPECT_EQ(refused.message(),
        QStringLiteral("不能创建文件夹：") + QDir(other.path()).filePath(QStringLiteral("gsp")));
}

} // namespace medistock::test
