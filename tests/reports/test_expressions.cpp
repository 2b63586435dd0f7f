#include "reports/expression.h"
#include "reports/formats.h"
#include "tests/support/accountset.h"

#include <QHash>

#include <gtest/gtest.h>

using namespace medistock::reports;
using medistock::Result;

namespace {

// Variables and one row of the dataset "Lines", as a document hands them over.
class TableScope : public Scope
{
public:
    QHash<QString, Value> variables;
    QHash<QString, Value> fields; // "Lines.g_name"
    int page = 2;
    int pages = 3;

    Value variable(const QString &name) const override { return variables.value(name); }
    Value field(const QString &dataset, const QString &name) const override
    {
        return fields.value(dataset + QLatin1Char('.') + name);
    }
    Value system(SystemValue which) const override
    {
        switch (which) {
        case SystemValue::Page:
            return Value::number(page);
        case SystemValue::TotalPages:
            return Value::number(pages);
        case SystemValue::Line:
            return Value::number(7);
        default:
            return Value::text(QStringLiteral("2025-03-14"));
        }
    }
    Value aggregate(const ExpressionNode &call) const override
    {
        return Value::text(call.name + QLatin1Char('/') + call.band + QLatin1Char('/')
            + QString::number(call.flags));
    }
};

TableScope documentScope()
{
    TableScope scope;
    scope.variables.insert(QStringLiteral("comName"), Value::text(QStringLiteral("仁和大药房")));
    scope.variables.insert(QStringLiteral("客户名称"), Value::text(QStringLiteral("华康药店")));
    scope.variables.insert(QStringLiteral("yf"), Value::text(QStringLiteral("125.5")));
    scope.fields.insert(
        QStringLiteral("Lines.g_name"), Value::text(QStringLiteral("阿莫西林胶囊")));
    scope.fields.insert(QStringLiteral("Lines.ls_sl"), Value::number(3));
    scope.fields.insert(QStringLiteral("Lines.ls_je"), Value::number(-12.5));
    scope.fields.insert(QStringLiteral("Lines.商品名称"), Value::text(QStringLiteral("板蓝根")));
    return scope;
}

QString evaluated(const QString &text)
{
    const Result<TemplateText> compiled = TemplateText::compile(text);
    EXPECT_TRUE(compiled.ok()) << compiled.message().toStdString();
    if (!compiled)
        return QStringLiteral("<error>");
    const TableScope scope = documentScope();
    QString out;
    for (const TemplateText::Segment &segment : compiled->segments())
        out += segment.expression ? segment.expression->evaluate(scope).toText() : segment.literal;
    return out;
}

struct Case
{
    const char *text;
    const char *expected;
};

class Expressions : public ::testing::TestWithParam<Case>
{
};

TEST_P(Expressions, GiveTheirText)
{
    EXPECT_EQ(
        evaluated(QString::fromUtf8(GetParam().text)), QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Table, Expressions,
    ::testing::Values(
        // Literal runs and variables, Chinese names included.
        Case { "单位：[comName]", "单位：仁和大药房" }, Case { "[客户名称]", "华康药店" },
        Case { "[unknownVariable]|", "|" },
        // Quotes: a doubled quote is one quote; brackets inside quotes do not end the segment.
        Case { "['it''s']", "it's" }, Case { "['[x]']", "[x]" }, Case { "[ 'a' + 'b' ]", "ab" },
        // Fields, at the top of a segment and in angle brackets, Chinese field names too.
        Case { "[Lines.\"g_name\"]", "阿莫西林胶囊" }, Case { "[<Lines.\"ls_sl\"> * 2]", "6" },
        Case { "[<Lines.\"商品名称\">]", "板蓝根" }, Case { "[<Lines.g_name>]", "阿莫西林胶囊" },
        // Texts join, numbers add; a text that reads as a number adds to a number.
        Case { "[yf + 'x']", "125.5x" }, Case { "[yf + 0.5]", "126" },
        Case { "[1 + 2 * 3 - 4 / 2]", "5" }, Case { "[(1 + 2) * 3]", "9" },
        Case { "[7 div 2] [7 mod 2]", "3 1" }, Case { "[10 / 0]", "0" },
        Case { "[-<Lines.\"ls_je\">]", "12.5" }, Case { "[0.1 + 0.2]", "0.3" },
        // Comparisons and logic; IIF takes one branch only.
        Case { "[IIF(<Lines.\"ls_je\"> < 0, '退', '销')]", "退" },
        Case { "[IIF(<Lines.\"ls_sl\"> >= 3 and not (1 = 2), 'a', 'b')]", "a" },
        Case { "[IIF('abc' <> 'abd', 1, 2)]", "1" },
        Case { "[iif(yf > 100, 'big', 'small')]", "big" },
        // Formats with their Delphi meanings.
        Case { "[FormatFloat('#.00', 0)]", ".00" }, Case { "[FormatFloat('#.00', 0.5)]", ".50" },
        Case { "[FormatFloat('#,##0.00', 1234567.891)]", "1,234,567.89" },
        Case { "[FormatFloat('0.00', -0.005)]", "-0.01" },
        Case { "[FormatFloat('0.##', 2.5)]", "2.5" },
        Case { "[FormatFloat('0.00;(0.00);零', -3)]", "(3.00)" },
        Case { "[FormatFloat('0.00;(0.00);零', 0)]", "零" },
        Case { "[FormatDateTime('yyyy\"年\"m\"月\"d\"日\"', '2025-03-04')]", "2025年3月4日" },
        Case { "[FormatDateTime('yyyy-mm-dd hh:mm', '2025-03-04 09:07:00')]", "2025-03-04 09:07" },
        Case { "[FormatDateTime('hh:nn', '2025-03-04 09:07:00')]", "09:07" },
        Case { "[Format('%2.2n', [1234.5])]", "1,234.50" },
        Case { "[Format('%5d', [42])]", "   42" },
        // System values and aggregates reach the scope as they are written.
        Case { "第[Page#]页 共[TotalPages#]页", "第2页 共3页" }, Case { "[Line#].", "7." },
        Case { "[SUM(<Lines.\"ls_je\">,MasterData1)]", "SUM/MasterData1/0" },
        Case { "[SUM(<Lines.\"ls_je\">,MasterData1,2)]", "SUM/MasterData1/2" },
        Case { "[COUNT(MasterData1)]", "COUNT/MasterData1/0" },
        // Text helpers.
        Case { "[Copy('阿莫西林胶囊', 3, 2)]", "西林" }, Case { "[Length('阿莫西林')]", "4" },
        Case { "[Round(2.345, 2)] [Round(-2.5)]", "2.35 -3" },
        // A bracket that is never closed is text.
        Case { "单价[元", "单价[元" }));

TEST(ExpressionErrors, AreRefusedWithWhereTheyStand)
{
    const Result<Expression> missing = Expression::parse(QStringLiteral("1 +"));
    ASSERT_FALSE(missing.ok());
    EXPECT_EQ(missing.message(), QStringLiteral("表达式“1 +”第4个字符处有误"));
    EXPECT_FALSE(Expression::parse(QStringLiteral("IIF(1, 2)")).ok());
    EXPECT_FALSE(Expression::parse(QStringLiteral("NoSuchFunction(1)")).ok());
    EXPECT_FALSE(Expression::parse(QStringLiteral("'open")).ok());
    EXPECT_FALSE(TemplateText::compile(QStringLiteral("合计：[SUM(]")).ok());
}

TEST(ExpressionAggregates, AreFoundWithTheirBandAndFlags)
{
    const Result<TemplateText> text = TemplateText::compile(
        QStringLiteral("[SUM(<Lines.\"ls_je\">,MasterData1)] / [COUNT(MasterData1,2)]"));
    ASSERT_TRUE(text.ok());
    const QList<const ExpressionNode *> calls = text->aggregates();
    ASSERT_EQ(calls.size(), 2);
    EXPECT_EQ(calls.at(0)->name, QStringLiteral("SUM"));
    EXPECT_EQ(calls.at(0)->band, QStringLiteral("MasterData1"));
    EXPECT_EQ(calls.at(1)->flags, 2);
    EXPECT_TRUE(
        TemplateText::compile(QStringLiteral("[TotalPages#]"))->mentions(SystemValue::TotalPages));
}

struct FormatCase
{
    const char *kind;
    const char *format;
    Value value;
    const char *expected;
};

class DisplayFormats : public ::testing::TestWithParam<FormatCase>
{
};

TEST_P(DisplayFormats, ShowValuesAsTheMemoAsks)
{
    const FormatCase &c = GetParam();
    const DisplayFormat format
        = DisplayFormat::fromProperties(QString::fromLatin1(c.kind), QString::fromUtf8(c.format));
    EXPECT_EQ(format.apply(c.value), QString::fromUtf8(c.expected));
}

INSTANTIATE_TEST_SUITE_P(Table, DisplayFormats,
    ::testing::Values(FormatCase { "fkNumeric", "%2.2n", Value::number(1234.5), "1,234.50" },
        FormatCase { "fkNumeric", "%2.2n", Value::text(QStringLiteral("12")), "12.00" },
        FormatCase { "fkNumeric", "#,##0.00", Value::number(-1234.567), "-1,234.57" },
        FormatCase { "fkNumeric", "#.00", Value::number(0.5), ".50" },
        FormatCase { "fkNumeric", "%2.2n", Value::text(QStringLiteral("盒")), "盒" },
        FormatCase { "fkNumeric", "%2.2n", Value(), "" },
        FormatCase { "fkDateTime", "yyyy-mm-dd", Value::text(QStringLiteral("2025-03-14 10:20:30")),
            "2025-03-14" },
        FormatCase { "fkDateTime", "yyyy年mm月dd日", Value::text(QStringLiteral("2025-03-14")),
            "2025年03月14日" },
        FormatCase { "fkBoolean", "否,是", Value::number(1), "是" },
        FormatCase { "fkText", "", Value::number(3.5), "3.5" }));

} // namespace
