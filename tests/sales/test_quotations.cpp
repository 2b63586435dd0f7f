#include "core/oplog.h"
#include "sales/quotations.h"
#include "tests/sales/salestest.h"

using namespace medistock;
using medistock::sales::QuotationSide;
using medistock::test::SalesTest;

TEST_F(SalesTest, QuotationsAreAddedFromTheOperatorsWorkRowsChangedQueriedAndDeleted)
{
    EXPECT_FALSE(
        sales::addQuotationWorkRow(session(), QStringLiteral("00000000"), QStringLiteral("1"), {}));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("商品“00000000”不存在或已禁用，不能报价！"));
    EXPECT_FALSE(
        sales::addQuotationWorkRow(session(), QStringLiteral("200001"), QStringLiteral("x"), {}));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("报价“x”不是数字！"));
    EXPECT_FALSE(sales::addQuotationWorkRow(
        session(), QStringLiteral("200001"), QStringLiteral("1e20"), {}));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("报价“1e20”超出范围，应在 0 到 100000000 之间！"));
    EXPECT_FALSE(
        sales::addQuotationWorkRow(session(), QStringLiteral("200001"), QStringLiteral("-1"), {}));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("报价不能为负数！"));
    ASSERT_TRUE(sales::addQuotationWorkRow(
        session(), QStringLiteral("200001"), QStringLiteral("9.5"), QStringLiteral("含税(整件)")));
    ASSERT_TRUE(
        sales::addQuotationWorkRow(session(), QStringLiteral("200002"), QStringLiteral("7"), {}));

    // Without a party nothing is added and the work rows wait for one.
    EXPECT_FALSE(sales::addQuotations(
        session(), QuotationSide::Customer, QStringLiteral(" "), QStringLiteral("2025-03-14"), {}));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("请选择客户！"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_khbj")), 0);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_tempspxf")), 2);
    const Result<int> added = sales::addQuotations(session(), QuotationSide::Customer,
        QStringLiteral("100002"), QStringLiteral("2025-03-14"), QStringLiteral("100001"));
    ASSERT_TRUE(added.ok());
    EXPECT_EQ(added.value(), 2);
    EXPECT_EQ(
        rows(QStringLiteral("jxc_khbj"), QStringLiteral("g_sn,kb_bj,kh_sn,kb_bjrq,kb_note,a_name")),
        (QStringList { "200001|9.5|100002|2025-03-14|含税(整件)|admin",
            "200002|7|100002|2025-03-14||admin" }));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_tempspxf")), 0);
    EXPECT_FALSE(sales::addQuotations(session(), QuotationSide::Supplier, QStringLiteral("100001"),
        QStringLiteral("2025-03-14"), QStringLiteral("100001")));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("没有选择报价的商品！"));

    const qint64 first
        = db().firstValue(QStringLiteral("select min(id) from jxc_khbj")).toLongLong();
    ASSERT_TRUE(sales::changeQuotation(session(), QuotationSide::Customer, first,
        QStringLiteral("9.2"), QStringLiteral("2025-03-01"), QStringLiteral("旧价")));
    const auto found = sales::findQuotations(session(), QuotationSide::Customer,
        { QStringLiteral("2025-03-01"), QStringLiteral("2025-03-01"), QStringLiteral("华康"),
            QStringLiteral("阿莫") });
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].goodsName, QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(found[0].partyName, QStringLiteral("华康药店"));
    EXPECT_DOUBLE_EQ(found[0].price, 9.2);
    EXPECT_EQ(sales::findQuotations(
                  session(), QuotationSide::Customer, { QStringLiteral("2025-03-02"), {}, {}, {} })
                  .size(),
        1);

    ASSERT_TRUE(sales::deleteQuotation(session(), QuotationSide::Customer, first));
    EXPECT_FALSE(sales::deleteQuotation(session(), QuotationSide::Customer, first));
    EXPECT_EQ(ui.informed.last(), QStringLiteral("报价记录 %1 不存在！").arg(first));
    QStringList notes;
    for (const core::LogEntry &entry : core::readLog(db(), {}, {}))
        notes.append(entry.note);
    EXPECT_EQ(notes,
        (QStringList { "增加我方报价，共2种商品", QStringLiteral("修改我方报价%1").arg(first),
            QStringLiteral("删除我方报价%1").arg(first) }));
}
