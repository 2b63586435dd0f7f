// The till: prices, the stock questions before the money is taken, batches first expiry first,
// and sales held and recalled.
#include "pos/held.h"
#include "pos/till.h"
#include "tests/pos/postest.h"
#include "tests/support/documentrows.h"

using namespace medistock;

namespace {

using Till = test::PosTest;

QStringList priced(const pos::TillPrice &p)
{
    return { core::plainNumber(p.price), core::plainNumber(p.discountRate) };
}

} // namespace

TEST_F(Till, PricesAreRetailMemberOrSpecialPricesPerLineUnit)
{
    const QString member = addMember(QStringLiteral("张敏"));
    db().exec(QStringLiteral("update jxc_hyfl set hl_zk=0.9"));
    db().exec(QStringLiteral("update jxc_goods set g_lsj=12,g_sj=10 where g_sn='200001'"));
    db().exec(QStringLiteral("update jxc_goods set g_sj=8 where g_sn='200002'"));
    db().exec(
        QStringLiteral("update jxc_goods set g_lsj=3.5,g_tj=2.5,g_hyj=3 where g_sn='200003'"));
    const auto price = [&](const char *goods, double factor, const QString &buyer) {
        return priced(pos::tillPrice(session(), QString::fromLatin1(goods), factor, buyer));
    };
    EXPECT_EQ(price("200001", 1, {}), (QStringList { "12", "1" }));
    EXPECT_EQ(price("200001", 10, {}), (QStringList { "120", "1" }));
    EXPECT_EQ(price("200002", 1, {}), (QStringList { "8", "1" }));
    // The level's discount for a member, where the goods has no member price.
    EXPECT_EQ(price("200001", 1, member), (QStringList { "12", "0.9" }));
    // The special price beats the member price, for everyone, while it runs.
    EXPECT_EQ(price("200003", 1, {}), (QStringList { "2.5", "1" }));
    EXPECT_EQ(price("200003", 1, member), (QStringList { "2.5", "1" }));
    db().exec(QStringLiteral("update jxc_goods set g_tjqx=1,g_ks='2025-03-15',g_js='2025-03-31' "
                             "where g_sn='200003'"));
    EXPECT_EQ(price("200003", 1, {}), (QStringList { "3.5", "1" }));
    EXPECT_EQ(price("200003", 1, member), (QStringList { "3", "1" }));
    db().exec(
        QStringLiteral("update jxc_goods set g_ks='2025-03-01 00:00:00' where g_sn='200003'"));
    EXPECT_EQ(price("200003", 1, member), (QStringList { "2.5", "1" }));
}

// Two lines of one goods are held together against the warehouse stock.
TEST_F(Till, AShortageIsRefusedWithoutNegativeStockAndLeavesEverythingAsItWas)
{
    setParameter(QStringLiteral("cs_kc"), 0);
    const QString before = snapshot();
    ui.clear();
    const Result<QString> sold = pos::sellAtTill(session(),
        sale({ line(QStringLiteral("200001"), 60, 12), line(QStringLiteral("200001"), 41, 12) }));
    EXPECT_FALSE(sold);
    EXPECT_EQ(ui.informed,
        QStringList { "商品“阿莫西林胶囊”库存不足：库存100盒，本次销售101盒，不能销售！" });
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

TEST_F(Till, AShortageIsAskedAboutWithNegativeStockAndTheRestGoesWithoutBatch)
{
    setParameter(QStringLiteral("cs_kc"), 1);
    const members::RetailDocument tooMuch
        = sale({ line(QStringLiteral("200001"), 60, 12), line(QStringLiteral("200001"), 41, 12) });
    const QString before = snapshot();
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(pos::sellAtTill(session(), tooMuch));
    const QString question = QStringLiteral("商品“阿莫西林胶囊”库存不足：库存100盒，本次销售101盒，"
                                            "销售将会出现负库存，是否继续？");
    EXPECT_EQ(ui.asked, QStringList { question });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});

    ui.answerNext(true);
    const Result<QString> sold = pos::sellAtTill(session(), tooMuch);
    ASSERT_TRUE(sold) << sold.message().toStdString();
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"), QStringLiteral("g_sn,pos_sl,t_ph,pos_zje")),
        (QStringList { "200001|60|B1|720", "200001|40|B1|480", "200001|1||12" }));
    EXPECT_EQ(
        rows(QStringLiteral("jxc_kcsp"), QStringLiteral("kc_sl"), QStringLiteral("g_sn='200001'")),
        QStringList { "-1" });
}

TEST_F(Till, TheLimitPerSaleCountsTheLinesInTheirOwnUnits)
{
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=2 where g_sn='200002'"));
    ui.clear();
    EXPECT_FALSE(pos::sellAtTill(session(),
        sale({ line(QStringLiteral("200002"), 2, 10), gift(QStringLiteral("200002"), 1, 10) })));
    EXPECT_EQ(ui.informed,
        QStringList { "其中的药品“维生素C片 每次最多销售数量为2”，\r\n\r\n不能超过这个数量！" });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_posxsd")), 0);
    EXPECT_TRUE(pos::sellAtTill(session(), sale({ line(QStringLiteral("200002"), 2, 10) })));
}

// Batch A1 runs out first (it expires), then B1 (no expiry) gives the rest; a part that is no
// whole number of the line's unit goes over to the base unit at the base unit's price.
TEST_F(Till, LinesWithoutBatchAreSplitFirstExpiryFirst)
{
    receiveBatch(
        QStringLiteral("200001"), 20, 4, QStringLiteral("A1"), QStringLiteral("2025-12-31"));
    test::addGoodsUnit(db(), QStringLiteral("200001"), QStringLiteral("中盒"), 10);
    members::RetailLine tens = line(QStringLiteral("200001"), 3, 120);
    tens.unit = QStringLiteral("中盒");
    tens.unitFactor = 10;
    const Result<QString> first = pos::sellAtTill(session(), sale({ tens }));
    ASSERT_TRUE(first) << first.message().toStdString();
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"),
                  QStringLiteral("pos_sl,dw_name,g_zhxs,t_ph,t_yxq,pos_dj,pos_zje"),
                  QStringLiteral("gl_djh=?"), { first.value() }),
        (QStringList { "2|中盒|10|A1|2025-12-31|120|240", "1|中盒|10|B1||120|120" }));

    receiveBatch(
        QStringLiteral("200001"), 15, 4, QStringLiteral("A2"), QStringLiteral("2025-11-30"));
    const Result<QString> second = pos::sellAtTill(session(), sale({ tens }));
    ASSERT_TRUE(second) << second.message().toStdString();
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"),
                  QStringLiteral("pos_sl,dw_name,g_zhxs,t_ph,pos_dj,pos_zje"),
                  QStringLiteral("gl_djh=?"), { second.value() }),
        (QStringList { "15|盒|1|A2|12|180", "15|盒|1|B1|12|180" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_tkc"), QStringLiteral("t_ph,t_sl"),
                  QStringLiteral("g_sn='200001'")),
        (QStringList { "B1|75", "A1|0", "A2|0" }));
}

class HeldSales : public test::PosTest
{
protected:
    members::RetailDocument rungUp(const QString &member)
    {
        return sale(
            { line(QStringLiteral("200001"), 2, 12), gift(QStringLiteral("200002"), 1, 10) },
            member);
    }
};

TEST_F(HeldSales, AHeldSaleKeepsItsNumberAndIsSoldUnderIt)
{
    const QString member = addMember(QStringLiteral("张敏"));
    const Result<QString> held = pos::holdSale(session(), rungUp(member));
    ASSERT_TRUE(held);
    EXPECT_EQ(held.value(), "XS25031410001");
    const QList<pos::HeldSale> list = pos::heldSales(session());
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].member, member);
    EXPECT_EQ(list[0].memberName, "张敏");
    EXPECT_EQ(list[0].lines, 2);
    EXPECT_EQ(list[0].amount, 24);

    // Another customer is served meanwhile; the held number is not handed out again.
    EXPECT_EQ(pos::sellAtTill(session(), sale({ line(QStringLiteral("200003"), 1, 5) })).value(),
        "XS25031410002");

    const Result<members::RetailDocument> recalled = pos::recallSale(session(), held.value());
    ASSERT_TRUE(recalled);
    EXPECT_EQ(recalled->member, member);
    ASSERT_EQ(recalled->lines.size(), 2);
    EXPECT_EQ(recalled->lines[1].giftMarker, "(赠品)");
    members::RetailDocument paying = recalled.value();
    paying.warehouse = QStringLiteral("100001");
    paying.payment.counter.cash = 24;
    EXPECT_EQ(pos::sellAtTill(session(), paying, held.value()).value(), "XS25031410001");
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_lsxssptemp")), 0);
    EXPECT_EQ(rows(QStringLiteral("jxc_posxssp"), QStringLiteral("g_sn,pos_sl,pos_zje,t_zp"),
                  QStringLiteral("gl_djh='XS25031410001'")),
        (QStringList { "200001|2|24|", "200002|1|0|(赠品)" }));
}

TEST_F(HeldSales, ARefusedSaleLeavesTheHeldLinesAndADayOldOneTakesANewNumber)
{
    const QString member = addMember(QStringLiteral("张敏"));
    session().clock().fix(QDate(2025, 3, 13));
    const QString held = pos::holdSale(session(), rungUp(member)).value();
    EXPECT_EQ(held, "XS25031310001");
    session().clock().fix(QDate(2025, 3, 14));
    const QStringList heldRows = rows(QStringLiteral("jxc_lsxssptemp"),
        QStringLiteral("gl_djh,g_sn,ls_sl,ls_zje,ls_bz,ghs_sn,a_name,ls_flag"));
    EXPECT_EQ(heldRows,
        (QStringList { "XS25031310001|200001|2|24||" + member + "|admin|POS",
            "XS25031310001|200002|1|0|(赠品)|" + member + "|admin|POS" }));

    members::RetailDocument byCard = rungUp(member);
    byCard.payment.counter.cash = 0;
    byCard.payment.card = 24;
    ui.clear();
    EXPECT_FALSE(pos::sellAtTill(session(), byCard, held));
    EXPECT_EQ(ui.informed, QStringList { "会员卡内余额不足：卡内余额0元，本次储值卡付款24元！" });
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssptemp"),
                  QStringLiteral("gl_djh,g_sn,ls_sl,ls_zje,ls_bz,ghs_sn,a_name,ls_flag")),
        heldRows);

    EXPECT_EQ(pos::sellAtTill(session(), rungUp(member), held).value(), "XS25031410001");
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_lsxssptemp")), 0);
    ui.clear();
    EXPECT_FALSE(pos::dropHeldSale(session(), held));
    EXPECT_EQ(ui.informed, QStringList { "挂单“XS25031310001”不存在，可能已经结账或删除！" });
}

TEST_F(HeldSales, EachCashierSeesOnlyHisOwn)
{
    const QString held = pos::holdSale(session(), rungUp({})).value();
    test::addOperatorWithRights(session(), QStringLiteral("小李"),
        { { QStringLiteral("xsgl"), QStringLiteral("00000000000000000001") } });
    loginAs(QStringLiteral("小李"));
    EXPECT_TRUE(pos::heldSales(session()).isEmpty());
    EXPECT_FALSE(pos::recallSale(session(), held));
    EXPECT_EQ(pos::holdSale(session(), rungUp({})).value(), "XS25031410002");
    loginAs(QStringLiteral("admin"));
    ASSERT_TRUE(pos::dropHeldSale(session(), held));
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxssptemp"), QStringLiteral("gl_djh,a_name")),
        (QStringList { "XS25031410002|小李", "XS25031410002|小李" }));
}
