// The POS reports over one day's till: the journal and its lines, goods statistics, the ranking
// in its three views and four orders, member consumption and cashier takings.
#include "pos/rankings.h"
#include "pos/salesreports.h"
#include "tests/pos/postest.h"
#include "tests/support/documentrows.h"

using namespace medistock;

namespace {

const pos::DateRange day { QStringLiteral("2025-03-14"), QStringLiteral("2025-03-14") };

class PosReports : public test::PosTest
{
protected:
    // 10:00 张敏 buys 3 boxes of amoxicillin at 12 (cost 5) and 2 bottles of vitamin C at 10
    // (cost 2) from 王芳; 11:00 小李 sells 4 masks at 5 (cost 3) by WeChat and gives a cup away
    // (cost 18); 12:00 张敏 brings a box back; 13:00 a bottle in the branch; the next day a box.
    void SetUp() override
    {
        PosTest::SetUp();
        test::addOperatorWithRights(session(), QStringLiteral("小李"), {});
        member = addMember(QStringLiteral("张敏"),
            { { QStringLiteral("hy_mobile"), QStringLiteral("13900001111") } });
        members::RetailDocument first
            = sale({ line(QStringLiteral("200001"), 3, 12), line(QStringLiteral("200002"), 2, 10) },
                member);
        first.employee = QStringLiteral("100002");
        numbers << post(first);
        members::RetailDocument second
            = sale({ line(QStringLiteral("200003"), 4, 5), gift(QStringLiteral("300001"), 1, 30) },
                {}, QStringLiteral("11:00:00"));
        second.cashier = QStringLiteral("小李");
        second.payment.counter = {};
        second.payment.counter.wechat = 20;
        numbers << post(second);
        members::RetailDocument back = retail(
            member, { line(QStringLiteral("200001"), -1, 12) }, members::RetailKind::Return);
        back.time = QStringLiteral("2025-03-14 12:00:00");
        numbers << post(back);
        members::RetailDocument branch
            = sale({ line(QStringLiteral("200002"), 1, 10) }, {}, QStringLiteral("13:00:00"));
        branch.warehouse = QStringLiteral("100002");
        numbers << post(branch);
        members::RetailDocument tomorrow = sale({ line(QStringLiteral("200001"), 1, 12) });
        tomorrow.time = QStringLiteral("2025-03-15 09:00:00");
        post(tomorrow);
    }

    QStringList ranking(pos::RankingView view, pos::RankingOrder order)
    {
        const Result<QList<pos::RankingRow>> ranked
            = pos::salesRanking(session(), { day, QStringLiteral("100001"), view, order });
        EXPECT_TRUE(ranked);
        QStringList shown;
        for (const pos::RankingRow &r : ranked.value())
            shown << QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                         .arg(r.rank)
                         .arg(r.key, r.name, core::plainNumber(r.quantity),
                             core::plainNumber(r.amount), core::plainNumber(r.profit),
                             core::plainNumber(r.rate));
        return shown;
    }

    QStringList journal(const pos::SalesFilter &filter)
    {
        QStringList shown;
        const Result<QList<pos::JournalRow>> rows = pos::salesJournal(session(), filter);
        for (const pos::JournalRow &r : rows.value())
            shown << QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8|%9")
                         .arg(r.number, r.kind, r.memberName, r.cashier, r.employeeName,
                             core::plainNumber(r.receivable), core::plainNumber(r.cash),
                             core::plainNumber(r.wechat), core::plainNumber(r.points));
        return shown;
    }

    QString member;
    QStringList numbers;
};

} // namespace

TEST_F(PosReports, TheJournalListsTheDaysDocumentsNewestFirst)
{
    EXPECT_EQ(journal({ day, {}, {}, {}, {} }),
        (QStringList { numbers[3] + "|商品销售单||admin||10|10|0|0",
            numbers[2] + "|销售退货单|张敏|admin||-12|-12|0|-1",
            numbers[1] + "|商品销售单||小李||20|0|20|0",
            numbers[0] + "|商品销售单|张敏|admin|王芳|56|56|0|13" }));
    EXPECT_EQ(journal({ day, QStringLiteral("100002"), {}, {}, {} }),
        QStringList { numbers[3] + "|商品销售单||admin||10|10|0|0" });
    EXPECT_EQ(journal({ day, {}, QStringLiteral("小李"), {}, {} }).size(), 1);
    EXPECT_EQ(journal({ day, {}, {}, member, {} }).size(), 2);
    const Result<QList<pos::JournalRow>> rows
        = pos::salesJournal(session(), { day, {}, {}, {}, {} });
    EXPECT_EQ(rows->last().memberCard, text(member, QStringLiteral("hy_bh")));
    EXPECT_EQ(rows->last().warehouseName, "主仓库");
}

TEST_F(PosReports, LinesCarryTheirProfitAndStatisticsNetOutReturns)
{
    const Result<QList<pos::JournalLine>> lines
        = pos::salesLines(session(), { day, {}, {}, {}, {} }, numbers[0]);
    ASSERT_TRUE(lines);
    QStringList shown;
    for (const pos::JournalLine &l : lines.value())
        shown << QStringLiteral("%1|%2|%3|%4|%5")
                     .arg(l.goods, l.name, core::plainNumber(l.amount), core::plainNumber(l.cost),
                         core::plainNumber(l.profit));
    EXPECT_EQ(shown, (QStringList { "200001|阿莫西林胶囊|36|15|21", "200002|维生素C片|20|4|16" }));
    EXPECT_EQ(pos::salesLines(session(), { day, {}, {}, {}, QStringLiteral("200001") })->size(), 2);

    const Result<QList<pos::GoodsSalesRow>> goods
        = pos::goodsSales(session(), { day, QStringLiteral("100001"), {}, {}, {} });
    ASSERT_TRUE(goods);
    shown.clear();
    for (const pos::GoodsSalesRow &g : goods.value())
        shown << QStringLiteral("%1|%2|%3|%4|%5")
                     .arg(g.goods, core::plainNumber(g.quantity), core::plainNumber(g.amount),
                         core::plainNumber(g.cost), core::plainNumber(g.profit));
    EXPECT_EQ(shown,
        (QStringList {
            "200001|2|24|10|14", "200002|2|20|4|16", "200003|4|20|12|8", "300001|1|0|18|-18" }));
}

TEST_F(PosReports, TheRankingOrdersByTheMeasureChosenAndAZeroAmountHasRateZero)
{
    using View = pos::RankingView;
    using Order = pos::RankingOrder;
    EXPECT_EQ(ranking(View::Goods, Order::ProfitRate),
        (QStringList { "1|200002|维生素C片|2|20|16|80", "2|200001|阿莫西林胶囊|2|24|14|58.33",
            "3|200003|医用口罩|4|20|8|40", "4|300001|保温杯|1|0|-18|0" }));
    const auto keys = [&](Order order) {
        QStringList k;
        for (const QString &row : ranking(View::Goods, order))
            k << row.section(QLatin1Char('|'), 1, 1);
        return k;
    };
    EXPECT_EQ(keys(Order::Quantity), (QStringList { "200003", "200001", "200002", "300001" }));
    EXPECT_EQ(keys(Order::Amount), (QStringList { "200001", "200002", "200003", "300001" }));
    EXPECT_EQ(keys(Order::Profit), (QStringList { "200002", "200001", "200003", "300001" }));
    EXPECT_EQ(ranking(View::GoodsClass, Order::ProfitRate),
        (QStringList { "1|01|西药|4|44|30|68.18", "2|02|器械|4|20|8|40", "3|||1|0|-18|0" }));
    EXPECT_EQ(ranking(View::Cashier, Order::ProfitRate),
        (QStringList { "1|admin|admin|4|44|30|68.18", "2|小李|小李|5|20|-10|-50" }));
    EXPECT_EQ(pos::profitRate(5, 0), 0);
    EXPECT_EQ(pos::profitRate(1, 3), 33.33);
}

TEST_F(PosReports, MemberConsumptionFiltersByLevelAndByNameOrMobile)
{
    const auto consumption = [&](const QString &level, const QString &text) {
        QStringList shown;
        const Result<QList<pos::MemberSalesRow>> rows
            = pos::memberSales(session(), { day, {}, level, {}, text });
        for (const pos::MemberSalesRow &r : rows.value())
            shown << QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                         .arg(r.kind, r.name, r.levelName, r.mobile, r.goods,
                             core::plainNumber(r.amount), core::plainNumber(r.rate));
        return shown;
    };
    const QStringList all { "商品销售单|张敏|初级会员|13900001111|200001|36|58.33",
        "商品销售单|张敏|初级会员|13900001111|200002|20|80",
        "销售退货单|张敏|初级会员|13900001111|200001|-12|58.33" };
    EXPECT_EQ(consumption({}, {}), all);
    EXPECT_EQ(consumption(QStringLiteral("100002"), QStringLiteral("张")), all);
    EXPECT_EQ(consumption({}, QStringLiteral("0001111")), all);
    EXPECT_EQ(consumption(QStringLiteral("100001"), {}), QStringList {});
    EXPECT_EQ(consumption({}, QStringLiteral("李")), QStringList {});
}

TEST_F(PosReports, CashierTakingsSumEachCashiersDocuments)
{
    QStringList shown;
    const Result<QList<pos::CashierTakingsRow>> rows
        = pos::cashierTakings(session(), { day, {}, {} });
    for (const pos::CashierTakingsRow &r : rows.value())
        shown << QStringLiteral("%1|%2|%3|%4|%5|%6")
                     .arg(r.cashier)
                     .arg(r.documents)
                     .arg(core::plainNumber(r.receivable), core::plainNumber(r.received),
                         core::plainNumber(r.cash), core::plainNumber(r.wechat));
    EXPECT_EQ(shown, (QStringList { "admin|3|54|54|54|0", "小李|1|20|20|0|20" }));
    EXPECT_EQ(pos::cashierTakings(session(), { day, {}, QStringLiteral("小李") })->size(), 1);
}

TEST_F(PosReports, BoundOperatorsSeeTheirWarehousesAndRangesAreChecked)
{
    test::addOperatorWithRights(session(), QStringLiteral("小王"),
        { { QStringLiteral("tjgl"), QStringLiteral("00000000000001111111") } });
    const QString code = db().firstText(
        QStringLiteral("select a_sn from jxc_admin where a_name=?"), { QStringLiteral("小王") });
    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=? where ck_sn='100002'"), { code + "," });
    setParameter(QStringLiteral("cs_cgyh"), 1);
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(journal({ day, {}, {}, {}, {} }),
        QStringList { numbers[3] + "|商品销售单||admin||10|10|0|0" });
    EXPECT_EQ(journal({ day, QStringLiteral("100001"), {}, {}, {} }), QStringList {});
    ui.clear();
    EXPECT_FALSE(pos::salesRanking(
        session(), { { QStringLiteral("2025-03-15"), QStringLiteral("2025-03-14") }, {}, {}, {} }));
    EXPECT_EQ(ui.informed, QStringList { "日期范围不正确：2025-03-15 至 2025-03-14" });
}
