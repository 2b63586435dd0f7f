#include "gsp/displaycheck.h"
#include "gsp/filled.h"
#include "gsp/picking.h"
#include "gsp/tracking.h"
#include "tests/gsp/gsptest.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

namespace {

using gsp::FilledKind;

QStringList batchNames(const QList<gsp::PickableBatch> &batches)
{
    QStringList names;
    for (const gsp::PickableBatch &b : batches)
        names.append(b.goods + QLatin1Char('/') + b.batch);
    return names;
}

} // namespace

// Batches of warehouse 100001: two of 200001, one of 200003, one of 200002 used up, one of a
// disabled goods, one of the discount line; and one of 200001 in warehouse 100002.
class FilledRecords : public GspTest
{
protected:
    void SetUp() override
    {
        GspTest::SetUp();
        addGoods(db(),
            { .code = QStringLiteral("200009"),
                .name = QStringLiteral("停用药"),
                .disabled = true });
        batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("A1"),
            QStringLiteral("2025-05-31"), 12, QStringLiteral("2023-06-01"));
        batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("A2"),
            QStringLiteral("2026-09"), 30);
        batch(QStringLiteral("200003"), QStringLiteral("100001"), QStringLiteral("C1"),
            QStringLiteral("2025-04-15"), 8);
        batch(QStringLiteral("200002"), QStringLiteral("100001"), QStringLiteral("G1"),
            QStringLiteral("2025-04-15"), 0);
        batch(QStringLiteral("200009"), QStringLiteral("100001"), QStringLiteral("X1"),
            QStringLiteral("2025-04-15"), 5);
        batch(QStringLiteral("00000000"), QStringLiteral("100001"), QStringLiteral("D1"),
            QStringLiteral("2025-04-15"), 5);
        batch(QStringLiteral("200001"), QStringLiteral("100002"), QStringLiteral("B9"),
            QStringLiteral("2025-04-15"), 3);
    }

    QList<gsp::PickableBatch> offered(gsp::BatchChoice choice = {})
    {
        if (choice.warehouse.isEmpty())
            choice.warehouse = QStringLiteral("100001");
        const auto batches = gsp::pickableBatches(session(), choice);
        EXPECT_TRUE(batches.ok());
        return batches.value();
    }

    void pickAll(FilledKind kind, gsp::BatchChoice choice = {})
    {
        for (const gsp::PickableBatch &b : offered(choice))
            ASSERT_TRUE(gsp::pickBatch(session(), kind, QStringLiteral("100001"), b).value());
    }
};

TEST_F(FilledRecords, ThePickerOffersInStockBatchesOfEnabledGoods)
{
    EXPECT_EQ(batchNames(offered()),
        (QStringList { QStringLiteral("200001/A1"), QStringLiteral("200001/A2"),
            QStringLiteral("200003/C1") }));
    EXPECT_EQ(batchNames(offered({ .category = QStringLiteral("中药饮片") })),
        QStringList { QStringLiteral("200003/C1") });
    EXPECT_EQ(batchNames(offered({ .key = QStringLiteral("阿莫") })),
        (QStringList { QStringLiteral("200001/A1"), QStringLiteral("200001/A2") }));
    // A mnemonic matches in whichever case it is typed.
    db().exec(QStringLiteral("update jxc_goods set g_jm=? where g_sn=?"),
        { QStringLiteral("AMXL"), QStringLiteral("200001") });
    EXPECT_EQ(batchNames(offered({ .key = QStringLiteral("amx") })),
        (QStringList { QStringLiteral("200001/A1"), QStringLiteral("200001/A2") }));
    EXPECT_EQ(batchNames(offered({ .warehouse = QStringLiteral("100002") })),
        QStringList { QStringLiteral("200001/B9") });
    // Within 60 days the expiry query's limit is "2025-05": A1 is a full date in that month.
    EXPECT_EQ(
        batchNames(offered({ .withinDays = 60 })), QStringList { QStringLiteral("200003/C1") });
}

TEST_F(FilledRecords, ThePickerNarrowsToAClassAndItsSubClasses)
{
    db().exec(QStringLiteral("update jxc_goods set gc_sn='100101' where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_goods set gc_sn='1002' where g_sn='200003'"));
    EXPECT_EQ(batchNames(offered({ .goodsClass = QStringLiteral("1001") })),
        (QStringList { QStringLiteral("200001/A1"), QStringLiteral("200001/A2") }));
    EXPECT_EQ(batchNames(offered({ .goodsClass = QStringLiteral("1002") })),
        QStringList { QStringLiteral("200003/C1") });
}

TEST_F(FilledRecords, APickIsKeptOncePerOperatorAndRecord)
{
    const gsp::PickableBatch a1 = offered().first();
    EXPECT_TRUE(
        gsp::pickBatch(session(), FilledKind::Inspection, QStringLiteral("100001"), a1).value());
    EXPECT_FALSE(
        gsp::pickBatch(session(), FilledKind::Inspection, QStringLiteral("100001"), a1).value());
    EXPECT_TRUE(
        gsp::pickBatch(session(), FilledKind::Tracking, QStringLiteral("100001"), a1).value());
    const QList<gsp::PickedLine> picked = gsp::pickedLines(session(), FilledKind::Inspection);
    ASSERT_EQ(picked.size(), 1);
    EXPECT_DOUBLE_EQ(picked.first().quantity, 12);
    EXPECT_EQ(picked.first().quality, QStringLiteral("良好"));
    EXPECT_EQ(picked.first().goodsName, QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(gsp::pickedLines(session(), FilledKind::Tracking).size(), 1);
    // A batch of another warehouse, or one used up, is not a pick.
    gsp::PickableBatch elsewhere = a1;
    elsewhere.batch = QStringLiteral("B9");
    EXPECT_FALSE(
        gsp::pickBatch(session(), FilledKind::Inspection, QStringLiteral("100001"), elsewhere)
            .ok());
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("商品“200001”批号“B9”不是当前仓库中有库存、未禁用的批次，不能选择！"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_tempspxf2")), 2);
}

TEST_F(FilledRecords, SavingAnInspectionWritesHeaderAndLinesAndEmptiesThePicks)
{
    pickAll(FilledKind::Inspection);
    const QList<gsp::PickedLine> picked = gsp::pickedLines(session(), FilledKind::Inspection);
    ASSERT_TRUE(gsp::changePickedLine(session(), picked[1].id, QStringLiteral("28"),
        QStringLiteral("包装破损"), QStringLiteral("退回供货商"))
                    .ok());
    gsp::InspectionHeader header = gsp::proposedInspection(session(), QStringLiteral("100001"));
    header.employee = QStringLiteral("100001");
    header.storeTemperature = 21.5;
    header.storeHumidity = 55;
    const auto number = gsp::saveInspection(session(), header);
    ASSERT_TRUE(number.ok()) << number.message().toStdString();
    EXPECT_EQ(number.value(), QStringLiteral("JC25031410001"));
    EXPECT_EQ(
        rows(QStringLiteral("select gl_djh,t_rq,ck_sn,u_sn,t_dnwd,t_dnsd,t_zysl,t_zyzl,t_zyhgsl,"
                            "t_yhsl,t_jxqsl,a_name from jxc_cljcd")),
        QStringList { QStringLiteral("JC25031410001|2025-03-14|100001|100001|21.5|55|8|良好|8|42|"
                                     "25|admin") });
    EXPECT_EQ(rows(QStringLiteral("select gl_djh,g_sn,t_sl,t_zlzk,t_clqk,t_ph,t_scrq,t_yxq,a_name "
                                  "from jxc_cljcsp order by id")),
        (QStringList {
            QStringLiteral("JC25031410001|200001|12|良好||A1|2023-06-01|2025-05-31|admin"),
            QStringLiteral("JC25031410001|200001|28|包装破损|退回供货商|A2||2026-09|admin"),
            QStringLiteral("JC25031410001|200003|8|良好||C1||2025-04-15|admin") }));
    EXPECT_TRUE(gsp::pickedLines(session(), FilledKind::Inspection).isEmpty());
    const auto listed = gsp::inspectionRecords(session(), filter());
    ASSERT_EQ(listed->size(), 1);
    EXPECT_EQ(listed->first().info.lineCount, 3);
    EXPECT_EQ(listed->first().info.employeeName, QStringLiteral("默认员工"));
    EXPECT_DOUBLE_EQ(listed->first().header.storeTemperature, 21.5);
    EXPECT_DOUBLE_EQ(listed->first().header.herbal.qualified, 8);
}

TEST_F(FilledRecords, ASaveThatIsRefusedWritesNothing)
{
    const QString before = snapshot();
    gsp::InspectionHeader header = gsp::proposedInspection(session(), QStringLiteral("100001"));
    EXPECT_FALSE(gsp::saveInspection(session(), header).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("请先选择要记录的药品批次！"));
    pickAll(FilledKind::Inspection);
    const QString picked = snapshot();
    for (const auto &[change, message] :
        std::initializer_list<std::pair<std::function<void(gsp::InspectionHeader &)>, QString>> {
            { [](auto &h) { h.storeHumidity = 120; },
                QStringLiteral("店内湿度“120”超出范围，应在 0 到 100 之间！") },
            { [](auto &h) { h.herbal.damaged = -1; },
                QStringLiteral("检查数量“-1”不是正确的数字！") },
            { [](auto &h) { h.herbal.qualified = 1e9; },
                QStringLiteral("检查数量“1000000000”超出范围，应在 0 到 100000000 之间！") },
            { [](auto &h) { h.date = QStringLiteral("2025-02-29"); },
                QStringLiteral("日期“2025-02-29”不是正确的日期，请按 yyyy-MM-dd 输入！") },
            { [](auto &h) { h.employee = QStringLiteral("999999"); },
                QStringLiteral("没有找到员工：999999") },
            { [](auto &h) { h.warehouse = QStringLiteral("100002"); },
                QStringLiteral(
                    "商品“200001”批号“A1”不是当前仓库中有库存、未禁用的批次，不能选择！") } }) {
        gsp::InspectionHeader bad = header;
        change(bad);
        EXPECT_FALSE(gsp::saveInspection(session(), bad).ok());
        EXPECT_EQ(ui.informed.last(), message);
        EXPECT_EQ(snapshot(), picked);
    }
    EXPECT_NE(picked, before);
}

TEST_F(FilledRecords, ARecordIsDeletedWholeOrByLine)
{
    pickAll(FilledKind::Tracking);
    const QString first
        = gsp::saveTracking(session(), gsp::proposedTracking(session(), QStringLiteral("100001")))
              .value();
    pickAll(FilledKind::Tracking, { .category = QStringLiteral("中药饮片") });
    const QString second
        = gsp::saveTracking(session(), gsp::proposedTracking(session(), QStringLiteral("100001")))
              .value();
    EXPECT_EQ(first, QStringLiteral("JX25031410001"));
    EXPECT_EQ(second, QStringLiteral("JX25031410002"));
    const QList<gsp::FilledLine> lines = gsp::filledLines(session(), FilledKind::Tracking, first);
    ASSERT_EQ(lines.size(), 3);
    ASSERT_TRUE(gsp::deleteFilledLine(session(), FilledKind::Tracking, lines[1].id).ok());
    EXPECT_EQ(gsp::filledLines(session(), FilledKind::Tracking, first).size(), 2);
    ui.answerNext(false);
    EXPECT_FALSE(gsp::deleteFilledRecord(session(), FilledKind::Tracking, first).ok());
    EXPECT_EQ(
        ui.asked.last(), QStringLiteral("您的操作将删除近效期跟踪记录：JX25031410001，确认吗？"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_jxqd")), 2);
    ASSERT_TRUE(gsp::deleteFilledRecord(session(), FilledKind::Tracking, first).ok());
    EXPECT_EQ(rows(QStringLiteral("select gl_djh from jxc_jxqd")), QStringList { second });
    EXPECT_EQ(
        rows(QStringLiteral("select distinct gl_djh from jxc_jxqsp")), QStringList { second });
}

TEST_F(FilledRecords, ATrackingHeaderKeepsItsMonthWindowAndLineCount)
{
    pickAll(FilledKind::Tracking, { .withinDays = 90 });
    gsp::TrackingHeader header = gsp::proposedTracking(session(), QStringLiteral("100001"));
    EXPECT_EQ(header.accountingUnit, QStringLiteral("主仓库"));
    EXPECT_EQ(header.keeper, QStringLiteral("小李"));
    EXPECT_EQ(header.toDays, 180);
    header.toDays = 90;
    ASSERT_TRUE(gsp::saveTracking(session(), header).ok());
    pickAll(FilledKind::Tracking, { .withinDays = 90 });
    ASSERT_TRUE(gsp::saveTracking(session(), header).ok());
    EXPECT_EQ(rows(QStringLiteral("select t_nian,t_yue,t_yx,t_qsxq,t_jsxq,t_jdbs,t_hsdy,t_bgz,t_zt "
                                  "from jxc_jxqd order by id")),
        (QStringList { QStringLiteral("2025|03|1|0|90|2|主仓库|小李|跟踪中"),
            QStringLiteral("2025|03|2|0|90|2|主仓库|小李|跟踪中") }));
}

TEST_F(FilledRecords, TheInspectionCountsComeFromTheWarehousesBatchStock)
{
    const gsp::InspectionHeader header
        = gsp::proposedInspection(session(), QStringLiteral("100001"));
    EXPECT_EQ(header.date, QStringLiteral("2025-03-14"));
    // 中药饮片: C1. Under maintenance (a type other than "不养护"): A1 and A2; the disabled goods
    // has no type at all.
    EXPECT_DOUBLE_EQ(header.herbal.quantity, 8);
    EXPECT_DOUBLE_EQ(header.biological.quantity, 0);
    EXPECT_DOUBLE_EQ(header.maintained.quantity, 42);
    // From today to "2025-09": A1, C1 and the disabled goods' X1; never the discount line's D1.
    EXPECT_DOUBLE_EQ(header.nearExpiry.quantity, 25);
    EXPECT_EQ(header.herbal.quality, QStringLiteral("良好"));
    EXPECT_DOUBLE_EQ(header.herbal.qualified, 8);
}

TEST_F(FilledRecords, APickKeepsItsFiguresWhenAChangeIsRefused)
{
    const gsp::PickableBatch a1 = offered().first();
    ASSERT_TRUE(
        gsp::pickBatch(session(), FilledKind::Inspection, QStringLiteral("100001"), a1).value());
    const qint64 id = gsp::pickedLines(session(), FilledKind::Inspection).first().id;
    const QString before = snapshot();
    const QString longText(33, QChar(0x574f)); // 33 times "坏"
    for (const auto &[quantity, quality, message] :
        std::initializer_list<std::tuple<QString, QString, QString>> {
            { QStringLiteral("-1"), QString(), QStringLiteral("数量“-1”不是正确的数字！") },
            { QStringLiteral("十二"), QString(), QStringLiteral("数量“十二”不是正确的数字！") },
            { QStringLiteral("1e20"), QString(),
                QStringLiteral("数量“1e+20”超出范围，应在 0 到 100000000 之间！") },
            { QStringLiteral("12"), longText, QStringLiteral("质量状况太长，最多 32 个字！") } }) {
        EXPECT_FALSE(gsp::changePickedLine(session(), id, quantity, quality, QString()).ok());
        EXPECT_EQ(ui.informed.last(), message);
        EXPECT_EQ(snapshot(), before);
    }
    // Another operator's picks are not his to change or drop.
    addOperatorWithRights(
        session(), QStringLiteral("小王"), { { QStringLiteral("gspgl"), QStringLiteral("111") } });
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(gsp::removePickedLine(session(), id).ok());
    EXPECT_TRUE(gsp::pickedLines(session(), FilledKind::Inspection).isEmpty());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_tempspxf2")), 1);
}

TEST_F(FilledRecords, TheInspectorMustBeAnEmployeeAndTheWarehouseOneOfTheList)
{
    pickAll(FilledKind::Tracking);
    gsp::TrackingHeader header = gsp::proposedTracking(session(), QStringLiteral("100001"));
    header.warehouse = QStringLiteral("100009");
    EXPECT_FALSE(gsp::saveTracking(session(), header).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("仓库“100009”不存在！"));
    header = gsp::proposedTracking(session(), QStringLiteral("100001"));
    header.fromDays = 30;
    header.toDays = 10;
    EXPECT_FALSE(gsp::saveTracking(session(), header).ok());
    EXPECT_EQ(
        ui.informed.last(), QStringLiteral("效期天数“30-10”超出范围，应在 0 到 36500 之间！"));
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_jxqd")), 0);
    EXPECT_EQ(gsp::pickedLines(session(), FilledKind::Tracking).size(), 3);
}

TEST_F(FilledRecords, AnOperatorWithoutTheRightSavesAndDeletesNothing)
{
    pickAll(FilledKind::Inspection);
    const QString number = gsp::saveInspection(
        session(), gsp::proposedInspection(session(), QStringLiteral("100001")))
                               .value();
    addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("gspgl"), QStringLiteral("11011") } });
    loginAs(QStringLiteral("小王"));
    EXPECT_FALSE(gsp::deleteFilledRecord(session(), FilledKind::Inspection, number).ok());
    EXPECT_EQ(ui.informed.last(), QStringLiteral("您没有“陈列检查记录”的权限！"));
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_cljcsp")), 3);
}

} // namespace medistock::test
