#include "gsp/derived.h"
#include "gsp/texts.h"
#include "tests/gsp/gsptest.h"
#include "tests/support/documentrows.h"

namespace medistock::test {

namespace {

using gsp::AcceptanceRow;

QStringList numbers(const QList<AcceptanceRow> &rows)
{
    QStringList list;
    for (const AcceptanceRow &row : rows)
        list.append(row.number);
    return list;
}

} // namespace

using AcceptanceRecord = GspTest;

TEST_F(AcceptanceRecord, ListsCheckedReceiptLinesWithTheConstantConclusions)
{
    const QString number
        = receipt(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("6.5"));
    const auto rows = gsp::acceptanceRecord(session(), filter());
    ASSERT_TRUE(rows.ok());
    ASSERT_EQ(rows->size(), 1);
    const AcceptanceRow &row = rows->first();
    EXPECT_EQ(row.number, number);
    EXPECT_EQ(row.goods, QStringLiteral("200001"));
    EXPECT_EQ(row.goodsName, QStringLiteral("阿莫西林胶囊"));
    EXPECT_EQ(row.packing, QStringLiteral("0.25g*24粒"));
    EXPECT_EQ(row.approval, QStringLiteral("国药准字H13023964"));
    EXPECT_EQ(row.dosage, QStringLiteral("胶囊"));
    EXPECT_DOUBLE_EQ(row.quantity, 30);
    EXPECT_DOUBLE_EQ(row.price, 6.5);
    EXPECT_DOUBLE_EQ(row.amount, 195);
    EXPECT_EQ(row.batch + row.produced + row.expiry, QStringLiteral("B12024-12-012027-11-30"));
    EXPECT_EQ(row.supplierName, QStringLiteral("华东医药"));
    EXPECT_EQ(row.warehouseName, QStringLiteral("主仓库"));
    EXPECT_EQ(row.date, QStringLiteral("2025-03-10"));
    EXPECT_EQ(row.checker, QStringLiteral("admin"));
    EXPECT_EQ(row.checkDate, QStringLiteral("2025-03-14"));
    EXPECT_EQ(QStringList({ row.result, row.packaging, row.certificate, row.handling }),
        QStringList({ QStringLiteral("合格"), QStringLiteral("合格"), QStringLiteral("有"),
            QStringLiteral("接收") }));
}

TEST_F(AcceptanceRecord, NeverListsAnUncheckedReceipt)
{
    const QString checked
        = receipt(QStringLiteral("200001"), QStringLiteral("5"), QStringLiteral("6"));
    receipt(QStringLiteral("200003"), QStringLiteral("8"), QStringLiteral("9"),
        QStringLiteral("2025-03-11"), false);
    EXPECT_EQ(numbers(gsp::acceptanceRecord(session(), filter()).value()), QStringList { checked });
}

TEST_F(AcceptanceRecord, AnEmptyKeywordListsTheWholeRangeNewestFirst)
{
    const QString first = receipt(QStringLiteral("200001"), QStringLiteral("1"),
        QStringLiteral("1"), QStringLiteral("2025-01-05"));
    const QString second = receipt(QStringLiteral("200003"), QStringLiteral("2"),
        QStringLiteral("1"), QStringLiteral("2025-02-05"));
    const QString third = receipt(QStringLiteral("200002"), QStringLiteral("3"),
        QStringLiteral("1"), QStringLiteral("2025-03-05"), true, QStringLiteral("100002"));
    EXPECT_EQ(numbers(gsp::acceptanceRecord(session(), filter()).value()),
        (QStringList { third, second, first }));
    // The end date counts through its whole day; both ends are inclusive.
    EXPECT_EQ(numbers(gsp::acceptanceRecord(session(),
                  filter({}, {}, QStringLiteral("2025-01-05"), QStringLiteral("2025-02-05")))
                          .value()),
        (QStringList { second, first }));
    EXPECT_EQ(
        numbers(gsp::acceptanceRecord(session(), filter({}, QStringLiteral("100002"))).value()),
        QStringList { third });
    EXPECT_EQ(
        numbers(gsp::acceptanceRecord(session(), filter({}, QStringLiteral("所有仓库"))).value())
            .size(),
        3);
}

TEST_F(AcceptanceRecord, TheKeywordMatchesTheNumberAndTheSupplierNotTheGoods)
{
    const QString number
        = receipt(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("1"));
    for (const QString &key : { number.mid(4, 6), QStringLiteral("100002"), QStringLiteral("东医"),
             QStringLiteral("HDY") })
        EXPECT_EQ(gsp::acceptanceRecord(session(), filter(key)).value().size(), 1)
            << key.toStdString();
    EXPECT_TRUE(
        gsp::acceptanceRecord(session(), filter(QStringLiteral("阿莫西林"))).value().isEmpty());
}

TEST_F(AcceptanceRecord, ABadDateIsToldAndRefused)
{
    const auto rows
        = gsp::acceptanceRecord(session(), filter({}, {}, QStringLiteral("2025-02-30")));
    EXPECT_FALSE(rows.ok());
    EXPECT_EQ(ui.informed,
        QStringList {
            QStringLiteral("开始日期“2025-02-30”不是正确的日期，请按 yyyy-MM-dd 输入！") });
}

TEST_F(AcceptanceRecord, AnOperatorBoundToWarehousesSeesOnlyHisWarehouses)
{
    receipt(QStringLiteral("200001"), QStringLiteral("1"), QStringLiteral("1"));
    const QString branch = receipt(QStringLiteral("200003"), QStringLiteral("1"),
        QStringLiteral("1"), QStringLiteral("2025-03-10"), true, QStringLiteral("100002"));
    addOperatorWithRights(
        session(), QStringLiteral("小王"), { { QStringLiteral("gspgl"), QStringLiteral("1") } });
    const QString code = db().firstText(
        QStringLiteral("select a_sn from jxc_admin where a_name=?"), { QStringLiteral("小王") });
    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=? where ck_sn='100002'"),
        { code + QLatin1Char(',') });
    setParameter(QStringLiteral("cs_cgyh"), 1);
    loginAs(QStringLiteral("小王"));
    EXPECT_EQ(numbers(gsp::acceptanceRecord(session(), filter()).value()), QStringList { branch });
}

using PrescriptionRecord = GspTest;

TEST_F(PrescriptionRecord, ListsCheckedSalesOfPrescriptionGoodsWithTheirPrescription)
{
    receipt(QStringLiteral("200001"), QStringLiteral("20"), QStringLiteral("6"));
    receipt(QStringLiteral("200003"), QStringLiteral("20"), QStringLiteral("6"));
    const QString sold
        = sale(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("2025-03-12"));
    sale(QStringLiteral("200003"), QStringLiteral("3"), QStringLiteral("2025-03-12"));
    sale(QStringLiteral("200001"), QStringLiteral("4"), QStringLiteral("2025-03-13"), false);
    const auto rows = gsp::prescriptionRecord(session(), filter());
    ASSERT_TRUE(rows.ok());
    ASSERT_EQ(rows->size(), 1);
    const gsp::PrescriptionRow &row = rows->first();
    EXPECT_EQ(row.number, sold);
    EXPECT_EQ(row.goodsName, QStringLiteral("阿莫西林胶囊"));
    EXPECT_DOUBLE_EQ(row.quantity, 2);
    EXPECT_DOUBLE_EQ(row.amount, 24);
    EXPECT_EQ(row.customerName, QStringLiteral("华康药店"));
    EXPECT_EQ(row.prescriptionNumber, QStringLiteral("CF0318"));
    EXPECT_EQ(row.patient, QStringLiteral("王芳"));
    EXPECT_EQ(row.pharmacist, QStringLiteral("陈药师"));
    EXPECT_EQ(row.registration, QStringLiteral("H13023964"));
    EXPECT_EQ(row.category, QStringLiteral("抗生素制剂"));
    EXPECT_EQ(row.date, QStringLiteral("2025-03-12"));
    EXPECT_EQ(row.checker, QStringLiteral("admin"));
    EXPECT_EQ(gsp::prescriptionRecord(session(), filter(QStringLiteral("HKYD"))).value().size(), 1);
    EXPECT_TRUE(
        gsp::prescriptionRecord(session(), filter(QStringLiteral("华东"))).value().isEmpty());
}

using SplittingRecord = GspTest;

TEST_F(SplittingRecord, PurchasesAndSalesOfSplitGoodsBesideTheirBatchStock)
{
    const QString bought
        = receipt(QStringLiteral("200001"), QStringLiteral("20"), QStringLiteral("6"));
    receipt(QStringLiteral("200003"), QStringLiteral("20"), QStringLiteral("6"));
    const QString sold
        = sale(QStringLiteral("200001"), QStringLiteral("3"), QStringLiteral("2025-03-12"));
    const auto rows = gsp::splittingRecord(session(), filter());
    ASSERT_TRUE(rows.ok());
    ASSERT_EQ(rows->size(), 2);
    const gsp::SplittingRow &newest = rows->at(0);
    const gsp::SplittingRow &oldest = rows->at(1);
    EXPECT_EQ(newest.number, sold);
    EXPECT_EQ(newest.kind, QStringLiteral("xs"));
    EXPECT_DOUBLE_EQ(newest.purchased, 0);
    EXPECT_DOUBLE_EQ(newest.sold, 3);
    EXPECT_EQ(oldest.number, bought);
    EXPECT_DOUBLE_EQ(oldest.purchased, 20);
    EXPECT_DOUBLE_EQ(oldest.sold, 0);
    EXPECT_DOUBLE_EQ(oldest.splitFactor, 10);
    for (const gsp::SplittingRow &row : rows.value()) {
        ASSERT_TRUE(row.batchStock.has_value());
        EXPECT_DOUBLE_EQ(*row.batchStock, 17);
        EXPECT_EQ(row.checker, QStringLiteral("质量管理员"));
    }
}

TEST_F(SplittingRecord, ARowWhoseBatchHasNoStockRowShowsNoStock)
{
    ledgerRow(QStringLiteral("ct"), QStringLiteral("200001"), -2, -12);
    const auto rows = gsp::splittingRecord(session(), filter());
    ASSERT_EQ(rows->size(), 1);
    EXPECT_DOUBLE_EQ(rows->first().purchased, -2);
    EXPECT_FALSE(rows->first().batchStock.has_value());
}

} // namespace medistock::test
