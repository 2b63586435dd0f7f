// The till's cash in and out, and the shift handover with the figures of the shift.
#include "pos/handover.h"
#include "pos/tillcash.h"
#include "tests/pos/postest.h"
#include "tests/support/documentrows.h"

using namespace medistock;

namespace {

using TillCash = test::PosTest;

class Shift : public test::PosTest
{
protected:
    void SetUp() override
    {
        PosTest::SetUp();
        test::addOperatorWithRights(session(), QStringLiteral("小李"), {});
        // Yesterday admin handed over to 小李 at five, who handed 50 back to admin at six; the
        // morning's sale belongs to the shift that ended at five.
        db().exec(QStringLiteral("insert into jxc_jbgl (jb_time,jb_curruser,jb_nextuser,jb_jjzje,"
                                 "jb_bbskzje,jb_sjyyk,jb_xfyyk,jb_note) values "
                                 "('2025-03-13 17:00:00','admin','小李',0,0,0,0,''),"
                                 "('2025-03-13 18:00:00','小李','admin',50,0,0,50,'')"));
        members::RetailDocument morning = sale({ line(QStringLiteral("200001"), 1, 12) });
        morning.time = QStringLiteral("2025-03-13 12:00:00");
        post(morning);
    }

    // Today (at the time of day of the run): 2 boxes for 30 in cash with 6 change, 4 masks paid
    // by WeChat, a box given back in cash; 100 put into the till and 30 taken out.
    void workTheShift()
    {
        members::RetailDocument cash = retail({}, { line(QStringLiteral("200001"), 2, 12) });
        cash.time.clear();
        cash.payment.counter.cash = 30;
        cash.payment.counter.change = 6;
        post(cash);
        members::RetailDocument wechat = retail({}, { line(QStringLiteral("200003"), 4, 5) });
        wechat.time.clear();
        wechat.payment.counter = {};
        wechat.payment.counter.wechat = 20;
        post(wechat);
        members::RetailDocument back
            = retail({}, { line(QStringLiteral("200001"), -1, 12) }, members::RetailKind::Return);
        back.time.clear();
        post(back);
        ASSERT_TRUE(pos::recordTillCash(session(), pos::TillCash::In, 100, {}));
        ASSERT_TRUE(pos::recordTillCash(session(), pos::TillCash::Out, 30, {}));
    }
};

} // namespace

TEST_F(TillCash, EachMovementIsAskedForAndListedNewestFirst)
{
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(pos::recordTillCash(session(), pos::TillCash::In, 100, QStringLiteral("备用金")));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_crk")), 0);
    EXPECT_EQ(
        pos::recordTillCash(session(), pos::TillCash::In, 100, QStringLiteral("备用金")).value(),
        "RK25031410001");
    EXPECT_EQ(
        pos::recordTillCash(session(), pos::TillCash::Out, 30.456, QStringLiteral("买水")).value(),
        "CK25031410001");
    EXPECT_EQ(ui.asked,
        (QStringList {
            "您确认生成入款单吗 吗？", "您确认生成入款单吗 吗？", "您确认生成出款单 吗？" }));
    ui.clear();
    EXPECT_FALSE(pos::recordTillCash(session(), pos::TillCash::Out, 0, {}));
    EXPECT_EQ(ui.informed, QStringList { "金额必须大于0！" });
    EXPECT_TRUE(ui.asked.isEmpty());

    const Result<QList<pos::TillCashRow>> listed = pos::tillCashRows(
        session(), { QStringLiteral("2025-03-14"), QStringLiteral("2025-03-14") });
    ASSERT_TRUE(listed);
    QStringList shown;
    for (const pos::TillCashRow &r : listed.value())
        shown << QStringLiteral("%1|%2|%3|%4|%5|%6")
                     .arg(r.number, core::plainNumber(r.in), core::plainNumber(r.out), r.kind,
                         r.note, r.cashier);
    EXPECT_EQ(shown,
        (QStringList { "CK25031410001|0|30.46|POS 出款|买水|admin",
            "RK25031410001|100|0|POS 入款|备用金|admin" }));
    EXPECT_TRUE(
        pos::tillCashRows(session(), { QStringLiteral("2025-03-15"), QStringLiteral("2025-03-31") })
            ->isEmpty());
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx")),
        (QStringList(3, QStringLiteral("期初金额"))));
}

TEST_F(TillCash, NeedsTheRightToManageTheTillsCash)
{
    test::addOperatorWithRights(session(), QStringLiteral("小李"),
        { { QStringLiteral("xsgl"), QStringLiteral("00000000000000000001") } });
    loginAs(QStringLiteral("小李"));
    ui.clear();
    EXPECT_FALSE(pos::recordTillCash(session(), pos::TillCash::In, 100, {}));
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_crk")), 0);
}

TEST_F(Shift, TheFiguresRunFromTheCashiersLastHandover)
{
    workTheShift();
    const pos::ShiftFigures f
        = pos::shiftFigures(session(), QStringLiteral("admin"), session().clock().nowText());
    EXPECT_EQ(f.from, "2025-03-13 17:00:00");
    EXPECT_EQ(f.sales, 2);
    EXPECT_EQ(f.returns, 1);
    EXPECT_EQ(f.salesAmount, 44);
    EXPECT_EQ(f.returnsAmount, -12);
    EXPECT_EQ(f.takings, 32);
    EXPECT_EQ(f.cash, 12);
    EXPECT_EQ(f.wechat, 20);
    EXPECT_EQ(f.cashIn, 100);
    EXPECT_EQ(f.cashOut, 30);
    EXPECT_EQ(f.openingFloat, 50);
    EXPECT_EQ(f.drawer(), 132);
}

TEST_F(Shift, ACountThatAgreesIsHandedOverWithoutAQuestion)
{
    workTheShift();
    ui.clear();
    const auto done
        = pos::handOver(session(), { QStringLiteral("小李"), 100, 32, QStringLiteral("正常") });
    ASSERT_TRUE(done) << done.message().toStdString();
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(rows(QStringLiteral("jxc_jbgl"),
                  QStringLiteral("jb_curruser,jb_nextuser,jb_jjzje,jb_bbskzje,jb_sjyyk,jb_xfyyk,"
                                 "jb_note"),
                  QStringLiteral("jb_time>'2025-03-14'")),
        QStringList { "admin|小李|132|32|100|32|正常" });
    // The next shift starts empty.
    const pos::ShiftFigures next = pos::shiftFigures(
        session(), QStringLiteral("admin"), QStringLiteral("2025-03-14 23:59:59"));
    EXPECT_EQ(next.from, done->first.time);
    EXPECT_EQ(next.takings, 0);
    EXPECT_EQ(next.drawer(), 0);
}

TEST_F(Shift, ACountThatDiffersIsAskedAboutAndAnUnknownCashierRefused)
{
    workTheShift();
    const QString before = snapshot();
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(pos::handOver(session(), { QStringLiteral("小李"), 100, 0, {} }));
    EXPECT_EQ(ui.asked,
        QStringList { "上交营业款与下放营业款合计100元，与应有现金132元不符，确认交班吗？" });
    ui.clear();
    EXPECT_FALSE(pos::handOver(session(), { QStringLiteral("王五"), 132, 0, {} }));
    EXPECT_FALSE(pos::handOver(session(), { QStringLiteral("小李"), -1, 133, {} }));
    EXPECT_EQ(ui.informed,
        (QStringList { "接班操作员“王五”不存在！", "上交营业款和下放营业款不能小于0！" }));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}
