#include "tests/support/accountset.h"
#include "tests/support/cli.h"
#include "tests/support/documentrows.h"

#include <QDir>
#include <QFile>

using namespace medistock;

namespace {

struct BadNumber
{
    const char *name;
    const char *arguments; // split at blanks; FILE stands for the document's JSON file
    const char *json; // the document saved from FILE, "%1" standing for a replaced field
    const char *message; // standard error, whole
    int status;
};

void PrintTo(const BadNumber &c, std::ostream *os)
{
    *os << c.arguments;
}

std::string caseName(const ::testing::TestParamInfo<BadNumber> &param)
{
    return param.param.name;
}

// A receipt of one goods, with one field to spoil.
const char *receiptWith = R"({"kind":"CJ","ghs_sn":"100001","ck_sn":"100001",%1
    "lines":[{"g_sn":"200001","jh_sl":"2","jh_dj":"12.5","t_ph":"B1"%2}]})";

// A master file with the goods 200001 and the saved receipt CJ25031410001.
class CliNumbers : public test::AccountSetTest, public ::testing::WithParamInterface<BadNumber>
{
protected:
    void SetUp() override
    {
        AccountSetTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addGoods(
            db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
        const test::CliRun saved
            = run({ QStringLiteral("save"), file(QString::fromUtf8(receiptWith).arg("", "")) });
        ASSERT_EQ(saved.out, QStringLiteral("CJ25031410001\n")) << saved.err.toStdString();
    }
    test::CliRun run(const QStringList &arguments)
    {
        return test::runCli(
            QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
                QStringLiteral("2025-03-14"), QStringLiteral("--yes") }
            + arguments);
    }
    QString file(const QString &json)
    {
        const QString path = QDir(folder()).filePath(QStringLiteral("cj.json"));
        QFile out(path);
        EXPECT_TRUE(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        out.write(json.toUtf8());
        return path;
    }
};

} // namespace

// Each number the command line takes, typed absurd: the same message the screens show, the exit
// status of a refusal (or of a usage error, for JSON text that is no number at all), and the books
// exactly as they were.
TEST_P(CliNumbers, AreRefusedAndTheBooksStayAsTheyWere)
{
    const BadNumber &c = GetParam();
    QStringList arguments = QString::fromUtf8(c.arguments).split(QLatin1Char(' '));
    if (c.json) {
        const QStringList fields = QString::fromUtf8(c.json).split(QLatin1Char('|'));
        arguments.replaceInStrings(QStringLiteral("FILE"),
            file(QString::fromUtf8(receiptWith).arg(fields.value(0), fields.value(1))));
    }
    const QString before = test::dumpDatabase(db());
    const test::CliRun refused = run(arguments);
    EXPECT_EQ(refused.err, QString::fromUtf8(c.message) + QLatin1Char('\n'));
    EXPECT_EQ(refused.status, c.status);
    EXPECT_EQ(refused.out, QString());
    reopen();
    EXPECT_EQ(test::dumpDatabase(db()), before);
}

INSTANTIATE_TEST_SUITE_P(CliNumbers, CliNumbers,
    ::testing::Values(BadNumber { "GoodsWithNegativeStock", "goods-add --g_name 板蓝根 --g_kc -5",
                          nullptr, "库存数不能为负数！", 1 },
        BadNumber { "GoodsWithNaNAverage", "goods-add --g_name 板蓝根 --g_pjjj NaN", nullptr,
            "成本均价“NaN”不是数字！", 1 },
        BadNumber { "GoodsPriceOf1e20", "goods-add --g_name 板蓝根 --g_sj 1e+20", nullptr,
            "预设售价“1e+20”超出范围，应在 0 到 100000000 之间！", 1 },
        BadNumber { "NegativeDecimals", "param-set cs_cbjs -1", nullptr,
            "单价小数位数“-1”应为 0 到 8 之间的整数！", 1 },
        BadNumber { "TextInAFlag", "param-set cs_kc abc", nullptr,
            "库存为零时允许采购退货、销售“abc”只能是 0 或 1！", 1 },
        BadNumber { "TaxRateParameterOf1000", "param-set cs_tax 1000", nullptr,
            "税率“1000”超出范围，应在 0 到 100 之间！", 1 },
        BadNumber { "QuantityOf1e20", "save FILE", R"(|,"jh_sl":"1e+20")",
            "第1行：数量“1e+20”超出范围，应在 0 到 100000000 之间！", 1 },
        BadNumber { "PriceOf1e308", "save FILE", R"(|,"jh_dj":1e308)",
            "第1行：单价“1e+308”超出范围，应在 0 到 100000000 之间！", 1 },
        BadNumber { "TaxRateOf1000", "save FILE", R"(|,"jh_tax":1000)",
            "第1行：税率“1000”超出范围，应在 0 到 100 之间！", 1 },
        BadNumber { "DiscountRateOf500", "save FILE", R"(|,"jh_dzl":"500")",
            "第1行：折扣“500”超出范围，应在 0 到 1 之间！", 1 },
        BadNumber { "HeaderDiscountOf1e308", "save FILE", R"("j_yhje":1e308,|)",
            "优惠金额“1e+308”超出范围，应在 0 到 1000000000000 之间！", 1 },
        BadNumber {
            "HeaderDiscountNegative", "save FILE", R"("j_yhje":-5,|)", "优惠金额不能为负数！", 1 },
        BadNumber { "HeaderDiscountNaN", "save FILE", R"("j_yhje":"NaN",|)",
            "字段 j_yhje“NaN”不是数字！", 2 },
        BadNumber {
            "PaidInfinite", "save FILE", R"("j_sfje":"inf",|)", "字段 j_sfje“inf”不是数字！", 2 },
        BadNumber { "PaidOf1e308", "save FILE", R"("j_sfje":1e308,|)",
            "实付金额“1e+308”超出范围，应在 0 到 1000000000000 之间！", 1 },
        BadNumber { "FreightOf1e308", "save FILE", R"("j_yf":1e308,|)",
            "运费“1e+308”超出范围，应在 0 到 1000000000000 之间！", 1 },
        BadNumber { "PackingNegative", "save FILE", R"("j_bzf":-0.01,|)", "包装费不能为负数！", 1 },
        BadNumber { "PaidAtCheckOf1e308", "check CJ25031410001 --paid 1e308", nullptr,
            "金额（--paid）“1e308”超出范围，应在 0 到 1000000000000 之间！", 1 },
        BadNumber { "PaidAtCheckNaN", "check CJ25031410001 --paid nan", nullptr,
            "金额（--paid）“nan”不是数字！", 1 },
        BadNumber { "OpeningOf1e308", "account-opening 现金 1e308", nullptr,
            "期初金额“1e308”超出范围，应在 -1000000000000 到 1000000000000 之间！", 1 },
        BadNumber { "FefoQuantityOf1e20", "fefo 200001 100001 1e20", nullptr,
            "数量“1e20”超出范围，应在 0 到 100000000 之间！", 1 },
        BadNumber { "CapitalsOfInfinity", "capitals inf", nullptr, "金额“inf”不是数字！", 1 }),
    caseName);
