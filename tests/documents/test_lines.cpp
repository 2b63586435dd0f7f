#include "documents/lines.h"
#include "shell/parameters.h"

#include <gtest/gtest.h>

using namespace medistock::documents;

namespace {

struct LineCase
{
    const char *name;
    LineInput input;
    LineRounding rounding;
    LineFigures expected;
};

void PrintTo(const LineCase &c, std::ostream *os)
{
    *os << c.name;
}

std::string caseName(const ::testing::TestParamInfo<LineCase> &param)
{
    return param.param.name;
}

} // namespace

class LineArithmetic : public ::testing::TestWithParam<LineCase>
{
};

TEST_P(LineArithmetic, ComputesEveryFigureWithItsOwnRounding)
{
    const LineCase &c = GetParam();
    const LineFigures f = computeLine(c.input, c.rounding);
    const LineFigures &e = c.expected;
    EXPECT_DOUBLE_EQ(f.quantity, e.quantity);
    EXPECT_DOUBLE_EQ(f.factor, e.factor);
    EXPECT_DOUBLE_EQ(f.baseQuantity, e.baseQuantity);
    EXPECT_DOUBLE_EQ(f.price, e.price);
    EXPECT_DOUBLE_EQ(f.taxRate, e.taxRate);
    EXPECT_DOUBLE_EQ(f.taxedPrice, e.taxedPrice);
    EXPECT_DOUBLE_EQ(f.discountRate, e.discountRate);
    EXPECT_DOUBLE_EQ(f.amount, e.amount);
    EXPECT_DOUBLE_EQ(f.total, e.total);
    EXPECT_DOUBLE_EQ(f.tax, e.tax);
}

// Expected figures: quantity, factor, base quantity, price, rate, price incl. tax, discount,
// amount, total, tax.
INSTANTIATE_TEST_SUITE_P(Lines, LineArithmetic,
    ::testing::Values(LineCase { "BaseUnitWithTax", { 3, 1, 10, 13, 1 }, { 2, 2, 2 },
                          { 3, 1, 3, 10, 13, 11.3, 1, 30, 33.9, 3.9 } },
        LineCase { "BoxesOfTenWithADiscount", { 2, 10, 12.5, 0, 0.9 }, { 2, 2, 2 },
            { 2, 10, 20, 12.5, 0, 12.5, 0.9, 22.5, 22.5, 0 } },
        // 9.99 x 1.17 = 11.6883: the total is taken from the shown 11.69, not from 11.6883.
        LineCase { "TotalFromTheRoundedTaxedPrice", { 3, 1, 9.99, 17, 1 }, { 2, 2, 2 },
            { 3, 1, 3, 9.99, 17, 11.69, 1, 29.97, 35.07, 5.1 } },
        // Exact halves round up: 0.125 -> 0.13, 1.005 -> 1.01, 0.13 x 1.01 = 0.1313 -> 0.13.
        LineCase { "HalvesRoundUp", { 1.005, 1, 0.125, 0, 1 }, { 2, 2, 2 },
            { 1.01, 1, 1.01, 0.13, 0, 0.13, 1, 0.13, 0.13, 0 } },
        LineCase { "FourPriceAndThreeQuantityPlaces", { 1.5, 12, 3.14159, 13, 0.95 }, { 4, 3, 2 },
            { 1.5, 12, 18, 3.1416, 13, 3.55, 0.95, 4.48, 5.06, 0.58 } },
        LineCase { "NoDecimalPlaces", { 2.5, 1, 7.5, 10, 1 }, { 0, 0, 0 },
            { 3, 1, 3, 8, 10, 9, 1, 24, 27, 3 } }),
    caseName);
