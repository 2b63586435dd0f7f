#include "core/operation.h"
#include "core/transaction.h"
#include "stock/purchasereceipt.h"
#include "tests/stock/stockfixture.h"

using namespace medistock;
using namespace medistock::test;

namespace {

const QString amoxil = QStringLiteral("200001");
const QString granules = QStringLiteral("200002");
const QString mainStore = QStringLiteral("100001");

} // namespace

class ReceiptTest : public StockTest
{
protected:
    // Two boxes of ten capsules at 120 a box, five bags of granules at 8, and a discount line.
    void addFirstReceipt()
    {
        addReceipt("CJ1", "2025-03-10",
            { { amoxil, 2, 120, 10 }, { granules, 5, 8, 1, "G1" }, { "00000000", 1, -6, 1, "" } });
    }
    QStringList columns(const QString &sql, const QVariantList &params = {})
    {
        QStringList rows;
        for (const QSqlRecord &r : db().rows(sql, params)) {
            QStringList values;
            for (int i = 0; i < r.count(); ++i)
                values.append(r.value(i).toString());
            rows.append(values.join('|'));
        }
        return rows;
    }
    QStringList goodsRow(const QString &goods)
    {
        return columns(
            "select g_kc,g_cgpl,g_scjj,ghs_sn,g_pjjj from jxc_goods where g_sn=?", { goods });
    }
};

TEST_F(ReceiptTest, PostsEveryStoreOfEachGoodsLine)
{
    addFirstReceipt();
    EXPECT_EQ(postReceipt("CJ1"), 2);
    EXPECT_EQ(columns("select gl_flag,gl_kdrq,g_name,dw_name,gl_dj,gl_sl,gl_zje,gl_sysl,u_name,"
                      "ck_name,ghs_name,gl_checker,gl_chkrq,gl_note,gl_djh2,gl_taxdj,gl_sqsl,"
                      "gl_sqje,gl_kc,gl_pjjj,gl_kczje,id2 from jxc_goodslist order by id"),
        (QStringList {
            "cj|2025-03-10|阿莫西林胶囊|粒|12|20|240|2|默认员工|主仓库|普通供货商|admin|2025-03-14|"
            "月初进货|GYS-01|12|20|240|20|12|240|1",
            "cj|2025-03-10|板蓝根颗粒|粒|8|5|40|5|默认员工|主仓库|普通供货商|admin|2025-03-14|"
            "月初进货|GYS-01|8|5|40|5|8|40|2",
            "cj|2025-03-10|优惠商品||-6|1|-6|1|默认员工|主仓库|普通供货商|admin|2025-03-14|"
            "月初进货|GYS-01|-6|0|0|0|0|0|3" }));
    EXPECT_EQ(columns("select g_sn,kc_sl,kc_cbj,kc_zsl,kc_xssl from jxc_kcsp order by id"),
        (QStringList {
            "200001|20|12|20|0", "200002|5|8|5|0", "00000000|0|0|0|0", "00000000|0|0|0|0" }));
    EXPECT_EQ(goodsRow(amoxil), QStringList { "20|1|12|100001|12" });
    EXPECT_EQ(columns("select g_sn,t_ph,t_sl from jxc_tkc order by id"),
        (QStringList { "200001|B1|20", "200002|G1|5" }));
    EXPECT_EQ(columns("select jh_rksl,id2,jh_qxsl from jxc_jhsp order by id"),
        (QStringList { "2|1|0", "5|2|0", "1|3|0" }));
    EXPECT_EQ(columns("select a_name,log_note from jxc_log"),
        QStringList { "admin|审核采购进货单CJ1，共2种商品" });
    EXPECT_EQ(columns("select js_rq,ck_sn,js_sl,js_zje from jxc_kcjs order by id"),
        (QStringList { "2025-03-14|100001|25|280", "2025-03-14|100002|0|0" }));
    EXPECT_EQ(number("select u_cgpl from jxc_user where u_sn='100001'"), 1);
}

TEST_F(ReceiptTest, DeferredReceivingRaisesOnlyTheBookQuantity)
{
    setParameter("cs_sprk", 1);
    addFirstReceipt();
    postReceipt("CJ1");
    EXPECT_EQ(columns("select kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=?", { amoxil }),
        QStringList { "0|20|12" });
    EXPECT_EQ(goodsRow(amoxil), QStringList { "0|1|12|100001|12" });
    EXPECT_EQ(rowCount(db(), "jxc_tkc"), 0);
    EXPECT_EQ(runningColumns(amoxil), QStringList { "cj 20 240 20 12 240" });
    EXPECT_EQ(
        columns("select jh_rksl from jxc_jhsp where g_sn=?", { amoxil }), QStringList { "0" });
}

TEST_F(ReceiptTest, GoodsAverageSpansWarehousesAndFallsBackToTheLinePrice)
{
    stock::applyWarehouseStock(session(), { amoxil, "100002", 10, 10, 0, 9 });
    stock::applyWarehouseStock(session(), { granules, "100002", -5, -5, 0, 3 });
    addFirstReceipt();
    postReceipt("CJ1");
    EXPECT_EQ(goodsRow(amoxil), QStringList { "20|1|12|100001|11" });
    EXPECT_EQ(goodsRow(granules), QStringList { "5|1|8|100001|8" });
}

TEST_F(ReceiptTest, APostedReceiptIsRefusedAndNothingChanges)
{
    addFirstReceipt();
    postReceipt("CJ1");
    const QString posted = dumpDatabase(db());
    const Outcome again = core::guarded(ui, [&] {
        postReceipt("CJ1");
        return Outcome::done();
    });
    EXPECT_EQ(again.message(), "采购进货单CJ1已记入库存，不能重复记帐！");
    EXPECT_EQ(dumpDatabase(db()), posted);
}

TEST_F(ReceiptTest, PostingJoinsTheCallersTransaction)
{
    addFirstReceipt();
    const QString before = dumpDatabase(db());
    {
        core::Transaction check(db());
        db().exec("update jxc_jhd set j_hkje=5");
        postReceipt("CJ1");
    }
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(ReceiptTest, PlanLinesAreReceivedAndGivenBack)
{
    setParameter("cs_cs007", 1);
    db().exec("insert into jxc_cgsp (gl_djh,g_sn,jh_sl,jh_rksl,jh_qxsl,id2) values "
              "('CG1','200001',2,0,0,501),('CG1','200002',8,1,0,502)");
    StockTest::Line boxes { amoxil, 2, 120, 10 };
    boxes.planLine = 501;
    StockTest::Line bags { granules, 5, 8 };
    bags.planLine = 502;
    addReceipt("CJ1", "2025-03-10", { boxes, bags });
    postReceipt("CJ1");
    EXPECT_EQ(columns("select jh_rksl,jh_qxsl from jxc_cgsp order by id"),
        (QStringList { "2|1", "6|0" }));
    reverseReceipt("CJ1");
    EXPECT_EQ(columns("select jh_rksl,jh_qxsl from jxc_cgsp order by id"),
        (QStringList { "0|0", "1|0" }));
}

TEST_F(ReceiptTest, ReversalRestoresEverythingButWhatIsKeptOnPurpose)
{
    addReceipt("CJ1", "2025-03-01", { { amoxil, 10, 10 } });
    postReceipt("CJ1");
    postSale("XS1", "2025-03-05", { amoxil, 4, 15 });
    addReceipt("CJ2", "2025-03-03", { { amoxil, 10, 13 }, { granules, 5, 8, 1, "G1" } });
    // Compared on their own below; the id counters of sqlite_sequence only ever grow.
    const QStringList kept { "jxc_log", "jxc_kcjs", "jxc_kcsp", "jxc_tkc", "jxc_goods", "jxc_jhsp",
        "jxc_user", "sqlite_sequence" };
    const QString before = dumpDatabase(db(), kept);
    const QStringList stockBefore = dumpTable(db(), "jxc_kcsp");
    const QStringList batchesBefore = dumpTable(db(), "jxc_tkc");
    const QStringList amoxilBefore
        = columns("select g_kc,g_cgpl,g_xspl,g_pjjj from jxc_goods where g_sn=?", { amoxil });

    postReceipt("CJ2");
    EXPECT_EQ(runningColumns(amoxil).last(), "xs 0 0 16 11.5 184");
    reverseReceipt("CJ2");

    EXPECT_EQ(dumpDatabase(db(), kept), before);
    EXPECT_EQ(runningColumns(amoxil).last(), "xs 0 0 6 10 60");
    EXPECT_EQ(
        dumpTable(db(), "jxc_kcsp"), stockBefore + QStringList({ "4|0|8|0|0|200002|100001" }));
    EXPECT_EQ(dumpTable(db(), "jxc_tkc"),
        batchesBefore + QStringList({ "2|200002||G1|2024-12-01|2027-12-31|0|<null>|100001" }));
    EXPECT_EQ(columns("select g_kc,g_cgpl,g_xspl,g_pjjj from jxc_goods where g_sn=?", { amoxil }),
        amoxilBefore);
    EXPECT_EQ(goodsRow(amoxil), QStringList { "6|1|13|100001|10" });
    EXPECT_EQ(goodsRow(granules), QStringList { "0|0|8|100001|8" });
    // The employee's purchase count stays as the check set it.
    EXPECT_EQ(number("select u_cgpl from jxc_user where u_sn='100001'"), 2);
}

TEST_F(ReceiptTest, ReversalAfterTheGoodsWereSoldLeavesThemNegative)
{
    addReceipt("CJ1", "2025-03-01", { { amoxil, 10, 10 } });
    postReceipt("CJ1");
    postSale("XS1", "2025-03-05", { amoxil, 8, 15 });
    reverseReceipt("CJ1");
    EXPECT_EQ(runningColumns(amoxil), QStringList { "xs 0 0 -8 10 -80" });
    EXPECT_EQ(columns("select kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=?", { amoxil }),
        QStringList { "-8|-8|10" });
    EXPECT_EQ(columns("select t_sl from jxc_tkc"), QStringList { "-8" });
    EXPECT_EQ(goodsRow(amoxil), QStringList { "-8|0|10|100001|10" });
}

TEST_F(ReceiptTest, ReversalOfTwoLinesOfOneGoodsLeavesLaterRowsAsWithoutTheReceipt)
{
    addReceipt("CJ1", "2025-03-01", { { amoxil, 10, 10 } });
    postReceipt("CJ1");
    postSale("XS1", "2025-03-05", { amoxil, 4, 15 });
    const QStringList before = runningColumns(amoxil);
    addReceipt("CJ2", "2025-03-03", { { amoxil, 10, 13 }, { amoxil, 5, 16, 1, "B2" } });
    postReceipt("CJ2");
    EXPECT_EQ(runningColumns(amoxil).last(), "xs 0 0 21 12.4 260.4");
    reverseReceipt("CJ2");
    EXPECT_EQ(runningColumns(amoxil), before);
    EXPECT_EQ(columns("select kc_sl,kc_zsl,kc_cbj from jxc_kcsp where g_sn=?", { amoxil }),
        QStringList { "6|6|10" });
}
