#include "documents/entry.h"
#include "documents/expiry.h"
#include "tests/documents/entrytest.h"
#include "tests/support/documentrows.h"

#include <cmath>
#include <functional>

using namespace medistock;
using namespace medistock::documents;
using medistock::test::dumpDatabase;
using medistock::test::EntryTest;
using medistock::test::fullKind;

namespace {

struct BadInput
{
    const char *name;
    std::function<void(DocumentDraft &)> spoil;
    const char *message;
};

void PrintTo(const BadInput &c, std::ostream *os)
{
    *os << c.name;
}

std::string caseName(const ::testing::TestParamInfo<BadInput> &param)
{
    return param.param.name;
}

LineDraft &first(DocumentDraft &d)
{
    return d.lines.first();
}

} // namespace

class BadInputTest : public EntryTest, public ::testing::WithParamInterface<BadInput>
{
};

// Every refusal is told once, returned as the outcome, and leaves the database as it was (an
// earlier document of the operator is there to be disturbed).
TEST_P(BadInputTest, IsRefusedWithItsMessageAndNothingIsWritten)
{
    test::addGoodsUnit(db(), QStringLiteral("200002"), QStringLiteral("箱"), 0);
    const QString earlier = save(draft({ line(QStringLiteral("200002"), "1", "10") }));
    ui.clear();
    DocumentDraft d = draft(
        { line(QStringLiteral("200001"), "2", "12.5"), line(QStringLiteral("200002"), "1", "3") });
    GetParam().spoil(d);
    const QString before = dumpDatabase(db());

    const Result<QString> saved = saveDocument(session(), fullKind(), d);

    const QString message = QString::fromUtf8(GetParam().message);
    EXPECT_EQ(saved.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(saved.message(), message);
    EXPECT_EQ(ui.informed, QStringList { message });
    EXPECT_EQ(dumpDatabase(db()), before);
    EXPECT_EQ(earlier, QStringLiteral("CJ25031410001"));
}

INSTANTIATE_TEST_SUITE_P(Drafts, BadInputTest,
    ::testing::Values(
        BadInput { "DayThatDoesNotExist", [](DocumentDraft &d) { d.date = "2025-02-29"; },
            "单据日期“2025-02-29”不是有效的日期（yyyy-MM-dd）！" },
        BadInput { "DateNotInTheStoredForm", [](DocumentDraft &d) { d.date = "2025-3-14"; },
            "单据日期“2025-3-14”不是有效的日期（yyyy-MM-dd）！" },
        BadInput { "NoSupplier", [](DocumentDraft &d) { d.party.clear(); }, "请选择供货商！" },
        BadInput { "UnknownSupplier", [](DocumentDraft &d) { d.party = "999999"; },
            "供货商编号“999999”不存在！" },
        BadInput { "ForbiddenSupplier", [](DocumentDraft &d) { d.party = "100003"; },
            "供货商“停用供货商”已禁用，不能开单！" },
        BadInput { "NoWarehouse", [](DocumentDraft &d) { d.warehouse.clear(); }, "请选择仓库！" },
        BadInput { "UnknownWarehouse", [](DocumentDraft &d) { d.warehouse = "100009"; },
            "仓库编号“100009”不存在！" },
        BadInput { "UnknownEmployee", [](DocumentDraft &d) { d.employee = "100009"; },
            "业务员编号“100009”不存在！" },
        BadInput {
            "NoLines", [](DocumentDraft &d) { d.lines.clear(); }, "单据中没有商品，不能保存！" },
        BadInput {
            "NoGoods", [](DocumentDraft &d) { first(d).goods.clear(); }, "第1行：请选择商品！" },
        BadInput { "UnknownGoodsOnTheSecondLine",
            [](DocumentDraft &d) { d.lines[1].goods = "299999"; },
            "第2行：商品编号“299999”不存在！" },
        BadInput { "DisabledGoods", [](DocumentDraft &d) { first(d).goods = "200003"; },
            "第1行：商品“停用药品”已禁用，不能开单！" },
        BadInput { "DiscountGoodsAsALine", [](DocumentDraft &d) { first(d).goods = "00000000"; },
            "第1行：优惠商品不能作为明细录入，整单优惠请填写优惠金额！" },
        BadInput { "UnitTheGoodsDoesNotHave", [](DocumentDraft &d) { first(d).unit = "瓶"; },
            "第1行：商品“阿莫西林胶囊”没有单位“瓶”！" },
        BadInput { "UnitOfAnotherGoods", [](DocumentDraft &d) { d.lines[1].unit = "件"; },
            "第2行：商品“板蓝根颗粒”没有单位“件”！" },
        BadInput { "UnitWithoutFactor", [](DocumentDraft &d) { d.lines[1].unit = "箱"; },
            "第2行：商品“板蓝根颗粒”的单位“箱”没有转换系数！" },
        BadInput { "QuantityNotANumber", [](DocumentDraft &d) { first(d).quantity = "两盒"; },
            "第1行：数量“两盒”不是数字！" },
        BadInput { "QuantityEmpty", [](DocumentDraft &d) { first(d).quantity.clear(); },
            "第1行：数量“”不是数字！" },
        BadInput { "QuantityZero", [](DocumentDraft &d) { first(d).quantity = "0"; },
            "第1行：数量不能为零！" },
        BadInput { "QuantityThatRoundsToZero",
            [](DocumentDraft &d) { first(d).quantity = "0.004"; }, "第1行：数量不能为零！" },
        BadInput { "QuantityNegative", [](DocumentDraft &d) { first(d).quantity = "-2"; },
            "第1行：数量不能为负数！" },
        BadInput { "PriceNotANumber", [](DocumentDraft &d) { first(d).price = "12元"; },
            "第1行：单价“12元”不是数字！" },
        BadInput { "PriceNotFinite", [](DocumentDraft &d) { first(d).price = "inf"; },
            "第1行：单价“inf”不是数字！" },
        BadInput { "PriceNegative", [](DocumentDraft &d) { first(d).price = "-3"; },
            "第1行：单价不能为负数！" },
        BadInput { "TaxRateNotANumber", [](DocumentDraft &d) { first(d).taxRate = "13%"; },
            "第1行：税率“13%”不是数字！" },
        BadInput { "DiscountRateNegative", [](DocumentDraft &d) { first(d).discountRate = "-0.1"; },
            "第1行：折扣不能为负数！" },
        BadInput { "ProductionDateNotADate",
            [](DocumentDraft &d) { first(d).produced = "2024-13-01"; },
            "第1行：生产日期“2024-13-01”不是有效的日期（yyyy-MM-dd）！" },
        BadInput { "ProductionDateAsAMonth",
            [](DocumentDraft &d) { first(d).produced = "2024-12"; },
            "第1行：生产日期“2024-12”不是有效的日期（yyyy-MM-dd）！" },
        BadInput { "ExpiryNotADate", [](DocumentDraft &d) { first(d).expiry = "2027/11/30"; },
            "第1行：有效期“2027/11/30”不是有效的有效期（yyyy-MM-dd 或 yyyy-MM，无有效期为 "
            "0000-00）！" },
        BadInput { "ExpiryMonthThatDoesNotExist",
            [](DocumentDraft &d) { first(d).expiry = "2027-13"; },
            "第1行：有效期“2027-13”不是有效的有效期（yyyy-MM-dd 或 yyyy-MM，无有效期为 "
            "0000-00）！" },
        BadInput { "ExpiryMonthWithoutItsZero",
            [](DocumentDraft &d) { first(d).expiry = "2027-6"; },
            "第1行：有效期“2027-6”不是有效的有效期（yyyy-MM-dd 或 yyyy-MM，无有效期为 "
            "0000-00）！" },
        BadInput { "ExpiryBeforeProduction",
            [](DocumentDraft &d) { first(d).expiry = "2024-11-30"; },
            "第1行：有效期不能早于生产日期！" },
        BadInput { "ExpiryMonthBeforeProduction",
            [](DocumentDraft &d) { first(d).expiry = "2024-11"; },
            "第1行：有效期不能早于生产日期！" }),
    caseName);

// Numbers that are numbers but no pharmacy has: each refusal states the limits.
INSTANTIATE_TEST_SUITE_P(AbsurdNumbers, BadInputTest,
    ::testing::Values(
        BadInput { "QuantityOf1e20", [](DocumentDraft &d) { first(d).quantity = "1e+20"; },
            "第1行：数量“1e+20”超出范围，应在 0 到 100000000 之间！" },
        BadInput { "QuantityOf1e308", [](DocumentDraft &d) { first(d).quantity = "1e308"; },
            "第1行：数量“1e308”超出范围，应在 0 到 100000000 之间！" },
        BadInput { "QuantityPastDoubleRange", [](DocumentDraft &d) { first(d).quantity = "1e309"; },
            "第1行：数量“1e309”不是数字！" },
        BadInput { "QuantityNaN", [](DocumentDraft &d) { first(d).quantity = "NaN"; },
            "第1行：数量“NaN”不是数字！" },
        BadInput { "PriceOf1e20", [](DocumentDraft &d) { d.lines[1].price = "1e+20"; },
            "第2行：单价“1e+20”超出范围，应在 0 到 100000000 之间！" },
        BadInput { "PriceJustAboveTheLimit",
            [](DocumentDraft &d) { first(d).price = "100000000.01"; },
            "第1行：单价“100000000.01”超出范围，应在 0 到 100000000 之间！" },
        BadInput { "TaxRateOf1000", [](DocumentDraft &d) { first(d).taxRate = "1000"; },
            "第1行：税率“1000”超出范围，应在 0 到 100 之间！" },
        BadInput { "TaxRateNegative", [](DocumentDraft &d) { first(d).taxRate = "-13"; },
            "第1行：税率不能为负数！" },
        BadInput { "DiscountRateOf500", [](DocumentDraft &d) { first(d).discountRate = "500"; },
            "第1行：折扣“500”超出范围，应在 0 到 1 之间！" },
        BadInput { "BaseQuantityPastTheLimit",
            [](DocumentDraft &d) {
                first(d).unit = "件";
                first(d).quantity = "5000001";
            },
            "第1行：基本单位数量“100000020”超出范围，应在 0 到 100000000 之间！" },
        BadInput { "TotalPastTheLimit",
            [](DocumentDraft &d) {
                first(d).quantity = "100000";
                first(d).price = "10000001";
            },
            "第1行：价税合计“1000000100000”超出范围，应在 0 到 1000000000000 之间！" },
        BadInput { "DiscountOf1e308", [](DocumentDraft &d) { d.discount = 1e308; },
            "优惠金额“1e+308”超出范围，应在 0 到 1000000000000 之间！" },
        BadInput { "DiscountNaN", [](DocumentDraft &d) { d.discount = std::nan(""); },
            "优惠金额“nan”不是数字！" },
        BadInput { "DiscountInfinite", [](DocumentDraft &d) { d.discount = HUGE_VAL; },
            "优惠金额“inf”不是数字！" },
        BadInput { "DiscountNegative", [](DocumentDraft &d) { d.discount = -5; },
            "优惠金额不能为负数！" }),
    caseName);

// The limits themselves are numbers a document may hold.
TEST_F(EntryTest, NumbersAtTheirLimitsAreAccepted)
{
    LineDraft most = line(QStringLiteral("200001"), "100000000", "10000");
    most.taxRate = QStringLiteral("100");
    most.discountRate = QStringLiteral("0");
    LineDraft dearest = line(QStringLiteral("200002"), "0.01", "100000000");
    dearest.taxRate = QStringLiteral(" 0 ");
    dearest.discountRate = QStringLiteral("1");
    DocumentDraft d = draft({ most, dearest });
    d.discount = 1000000;
    const Result<ValidDocument> valid = validateDraft(session(), fullKind(), d);
    ASSERT_TRUE(valid) << valid.message().toStdString();
    EXPECT_EQ(valid->lines[0].figures.baseQuantity, 100000000);
    EXPECT_EQ(valid->lines[0].figures.total, 0);
    EXPECT_EQ(valid->lines[1].figures.total, 1000000);
    EXPECT_TRUE(ui.informed.isEmpty());
}

// A kind's rule copies typed header amounts into its columns; whatever they are, the save refuses
// a column value that is no number the books can hold, before anything is written.
TEST_F(EntryTest, ColumnsARuleSetsMustHoldNumbersTheBooksCanHold)
{
    for (const double paid : { std::nan(""), 1e308, -1e13 }) {
        ui.clear();
        const QString before = dumpDatabase(db());
        const EntryRule rule = [&](const shell::Session &, ValidDocument &doc) {
            doc.columns.set(QStringLiteral("j_sfje"), paid);
            return Outcome::done();
        };
        const Result<QString> saved = saveDocument(
            session(), fullKind(), draft({ line(QStringLiteral("200001"), "1", "1") }), rule);
        const QString shown = QString::number(paid, 'g', 15);
        const QString message = std::isnan(paid)
            ? QStringLiteral("实付金额“nan”不是数字！")
            : QStringLiteral("实付金额“%1”超出范围，应在 -1000000000000 到 1000000000000 之间！")
                  .arg(shown);
        EXPECT_EQ(saved.message(), message);
        EXPECT_EQ(ui.informed, QStringList { message });
        EXPECT_EQ(dumpDatabase(db()), before);
    }
}

TEST_F(EntryTest, ExpiryOnTheProductionDayAndEmptyBatchFieldsAreAccepted)
{
    LineDraft sameDay = line(QStringLiteral("200001"), "1", "1");
    sameDay.expiry = sameDay.produced;
    LineDraft noBatch = line(QStringLiteral("200002"), "1", "1");
    noBatch.batch = noBatch.produced = noBatch.expiry = QString();
    const Result<ValidDocument> valid
        = validateDraft(session(), fullKind(), draft({ sameDay, noBatch }));
    ASSERT_TRUE(valid) << valid.message().toStdString();
    EXPECT_EQ(valid->lines[0].expiry, QStringLiteral("2024-12-01"));
    EXPECT_EQ(valid->lines[1].batch, QString());
    EXPECT_EQ(valid->employee, QStringLiteral("100001"));
    EXPECT_EQ(valid->partyName, QStringLiteral("华东医药"));
    EXPECT_TRUE(ui.informed.isEmpty());
}

// The expiry as drug packages print it: a month stands for its last day, "0000-00" for none. Each
// is stored as typed.
TEST_F(EntryTest, ExpiryIsAcceptedAsADayAMonthOrNone)
{
    QList<LineDraft> lines;
    for (const char *expiry : { "2027-06", "2027-06-30", "0000-00", "2024-12" }) {
        LineDraft l = line(QStringLiteral("200001"), "1", "1");
        l.expiry = QString::fromLatin1(expiry);
        lines.append(l);
    }
    const Result<ValidDocument> valid = validateDraft(session(), fullKind(), draft(lines));
    ASSERT_TRUE(valid) << valid.message().toStdString();
    QStringList stored;
    for (const ValidLine &l : valid->lines)
        stored.append(l.expiry);
    EXPECT_EQ(stored, (QStringList { "2027-06", "2027-06-30", "0000-00", "2024-12" }));
}

struct ExpiryDay
{
    const char *expiry;
    const char *day; // the day it is good through; empty for none
};

class ExpiryDays : public ::testing::TestWithParam<ExpiryDay>
{
};

TEST_P(ExpiryDays, AMonthLastsToItsLastDay)
{
    EXPECT_EQ(documents::expiryDay(QString::fromLatin1(GetParam().expiry)),
        QString::fromLatin1(GetParam().day));
}

INSTANTIATE_TEST_SUITE_P(Expiries, ExpiryDays,
    ::testing::Values(ExpiryDay { "2025-02", "2025-02-28" }, ExpiryDay { "2024-02", "2024-02-29" },
        ExpiryDay { "2025-12", "2025-12-31" }, ExpiryDay { "2025-04-15", "2025-04-15" },
        ExpiryDay { "0000-00", "" }, ExpiryDay { "", "" }));
