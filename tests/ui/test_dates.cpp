// Dates as a clerk types them become the stored form; anything else is left for the operation
// to refuse.
#include "ui/common/datefield.h"

#include <gtest/gtest.h>

#include <ostream>

using medistock::ui::normalizedDate;

struct TypedDate
{
    const char *typed;
    const char *stored;
};

void PrintTo(const TypedDate &date, std::ostream *os)
{
    *os << '"' << date.typed << '"';
}

class NormalizedDate : public ::testing::TestWithParam<TypedDate>
{
};

TEST_P(NormalizedDate, BecomesTheStoredForm)
{
    EXPECT_EQ(normalizedDate(QString::fromUtf8(GetParam().typed)).toStdString(),
        std::string(GetParam().stored));
}

INSTANTIATE_TEST_SUITE_P(Typed, NormalizedDate,
    ::testing::Values(TypedDate { "20250314", "2025-03-14" },
        TypedDate { "2025-3-4", "2025-03-04" }, TypedDate { " 2025/3/14 ", "2025-03-14" },
        TypedDate { "2025.12.1", "2025-12-01" }, TypedDate { "202601", "2026-01" },
        TypedDate { "2026-1", "2026-01" }, TypedDate { "2024-02-29", "2024-02-29" },
        // not dates: kept for the operation to name
        TypedDate { "20250230", "20250230" }, TypedDate { "2025-13", "2025-13" },
        TypedDate { "202613", "202613" }, TypedDate { "0000-00", "0000-00" },
        TypedDate { "明年", "明年" }, TypedDate { "", "" }));
