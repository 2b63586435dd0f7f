#include "stock/checks.h"
#include "tests/stock/stockfixture.h"

using namespace medistock;
using namespace medistock::test;

namespace {

const QString amoxil = QStringLiteral("200001");
const QString granules = QStringLiteral("200002");
const QString mainStore = QStringLiteral("100001");

struct KindCase
{
    const char *kind;
    const char *insert; // one line: number, goods, base quantity, batch, expiry, production date
    bool negativeAllowed;
    const char *message;
};

void PrintTo(const KindCase &c, std::ostream *os)
{
    *os << c.kind << (c.negativeAllowed ? " allowed" : " refused");
}

#define BATCH "该单据对应的批号、有效期中至少一种商品库存不足，\r\n\r\n“200001"
#define PRODUCED "该单据对应的生产日期中至少一种商品库存不足，\r\n\r\n“200001"
#define LINE(table, key, qty)                                                                      \
    "insert into " table " (" key ",g_sn," qty ",t_ph,t_yxq,t_scrq) values (?,?,?,?,?,?)"

const KindCase kindCases[] = {
    { "CJ", LINE("jxc_jhsp", "j_sn", "jh_zsl"), true, BATCH "”：出库将会出现负库存，是否继续？" },
    { "CJ", LINE("jxc_jhsp", "j_sn", "jh_zsl"), false, BATCH "”：不能出库！" },
    { "CT", LINE("jxc_thsp", "gl_djh", "th_zsl"), true, BATCH "”：退货将会出现负库存，是否继续？" },
    { "CT", LINE("jxc_thsp", "gl_djh", "th_zsl"), false, BATCH "”：不能退货！" },
    { "XS", LINE("jxc_lsxssp", "gl_djh", "ls_zsl"), true,
        BATCH "”：销售将会出现负库存，是否继续？" },
    { "XS", LINE("jxc_lsxssp", "gl_djh", "ls_zsl"), false, BATCH "”：不能销售！" },
    { "XT", LINE("jxc_xsthsp", "gl_djh", "th_zsl"), true,
        BATCH "”：出库将会出现负库存，是否继续？" },
    { "XT", LINE("jxc_xsthsp", "gl_djh", "th_zsl"), false, BATCH "”：不能出库！" },
    { "DB", LINE("jxc_dbsp", "gl_djh", "db_zsl"), true, BATCH "”：出库将会出现负库存，是否继续？" },
    { "DB", LINE("jxc_dbsp", "gl_djh", "db_zsl"), false, BATCH "”：不能出库！" },
    { "JH", LINE("jxc_khjhsp", "gl_djh", "jh_sl"), true,
        PRODUCED "”：出库将会出现负库存，是否继续？" },
    { "JH", LINE("jxc_khjhsp", "gl_djh", "jh_sl"), false, PRODUCED "”：不能出库！" },
};

} // namespace

class BatchCheckTest : public StockTest
{
protected:
    StockTest::Line line(const QString &goods, double quantity, const QString &batch = "B1")
    {
        StockTest::Line l { goods, quantity, 10 };
        l.batch = batch;
        return l;
    }
    void stockOf(const QString &goods, double quantity, const QString &warehouse = mainStore)
    {
        stock::addBatchStock(session(), batchOf(goods, line(goods, 0), warehouse), quantity);
    }
    QString check(const QString &kind = "XS")
    {
        return stock::batchCheck(session(), "XS1", mainStore, kind);
    }
};

class BatchCheckKinds : public BatchCheckTest, public ::testing::WithParamInterface<KindCase>
{
};

TEST_P(BatchCheckKinds, NamesTheShortGoodsInTheKindsWords)
{
    const KindCase &c = GetParam();
    setParameter("cs_kc", c.negativeAllowed ? 1 : 0);
    stockOf(amoxil, 5);
    db().exec(QString::fromUtf8(c.insert), { "XS1", amoxil, 6, "B1", "2027-12-31", "2024-12-01" });
    EXPECT_EQ(check(c.kind), QString::fromUtf8(c.message));
}

INSTANTIATE_TEST_SUITE_P(Kinds, BatchCheckKinds, ::testing::ValuesIn(kindCases));

TEST_F(BatchCheckTest, LinesOfOneBatchAreSummedFirst)
{
    stockOf(amoxil, 5);
    addSaleLines("XS1", { line(amoxil, 3), line(amoxil, 2) });
    EXPECT_EQ(check(), "");
    addSaleLines("XS1", { line(amoxil, 1) });
    EXPECT_EQ(check(), BATCH "”：销售将会出现负库存，是否继续？");
}

TEST_F(BatchCheckTest, FirstShortGoodsInCodeOrderIsNamed)
{
    stockOf(granules, 1);
    stockOf(amoxil, 1);
    addSaleLines("XS1", { line(granules, 2), line(amoxil, 2) });
    setParameter("cs_kc", 0);
    EXPECT_EQ(check(), BATCH "”：不能销售！");
}

TEST_F(BatchCheckTest, OnlyPositiveBatchesOfTheDocumentsWarehouseAreCompared)
{
    stockOf(amoxil, 100, "100002");
    stockOf(granules, 0);
    stockOf(amoxil, -2, mainStore);
    addSaleLines("XS1", { line(amoxil, 3), line(granules, 3), line(amoxil, 4, "B2") });
    EXPECT_EQ(check(), "");
}

TEST_F(BatchCheckTest, IssuingFromABatchWithoutARowPassesAndLeavesItNegative)
{
    addReceipt("CJ1", "2025-03-01", { line(amoxil, 10) });
    postReceipt("CJ1");
    addSaleLines("XS1", { line(amoxil, 4, "B7") });
    EXPECT_EQ(check(), "");
    postSale("XS1", "2025-03-02", line(amoxil, 4, "B7"));
    EXPECT_EQ(stock::batchQuantity(session(), batchOf(amoxil, line(amoxil, 0, "B7"))), -4);
    EXPECT_EQ(stock::batchQuantity(session(), batchOf(amoxil, line(amoxil, 0))), 10);
}

TEST_F(BatchCheckTest, ShortageIsRefusedOrAskedBeforeAnythingChanges)
{
    stockOf(amoxil, 1);
    addSaleLines("XS1", { line(amoxil, 2) });
    const QString asked = BATCH "”：销售将会出现负库存，是否继续？";
    ui.answerNext(true);
    EXPECT_TRUE(stock::confirmBatchCheck(session(), "XS1", mainStore, "XS").ok());
    const Outcome no = stock::confirmBatchCheck(session(), "XS1", mainStore, "XS");
    EXPECT_EQ(no.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(ui.asked, (QStringList { asked, asked }));
    setParameter("cs_kc", 0);
    const Outcome refused = stock::confirmBatchCheck(session(), "XS1", mainStore, "XS");
    EXPECT_EQ(refused.message(), BATCH "”：不能销售！");
    EXPECT_EQ(ui.informed, QStringList { refused.message() });
    EXPECT_EQ(ui.asked.size(), 2);
}

class SaleLimitTest : public StockTest
{
protected:
    void limit(double perSale) { db().exec("update jxc_goods set g_xzsl=?", { perSale }); }
    QString check() { return stock::saleLimitCheck(session(), "XS1"); }
};

TEST_F(SaleLimitTest, CountsTheLinesOwnUnitsNotBaseUnits)
{
    limit(2);
    addSaleLines("XS1", { { amoxil, 2, 5, 10 } });
    EXPECT_EQ(check(), "");
    addSaleLines("XS1", { { amoxil, 1, 5, 1 } });
    EXPECT_EQ(check(), "其中的药品“阿莫西林胶囊 每次最多销售数量为2”，\r\n\r\n不能超过这个数量！");
}

TEST_F(SaleLimitTest, ZeroIsNoLimitAndFractionsAreShown)
{
    addSaleLines("XS1", { { granules, 3, 5 } });
    limit(0);
    EXPECT_EQ(check(), "");
    limit(2.5);
    EXPECT_EQ(check(), "其中的药品“板蓝根颗粒 每次最多销售数量为2.5”，\r\n\r\n不能超过这个数量！");
}
