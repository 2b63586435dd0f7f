#include "core/numbers.h"

#include "core/rounding.h"

#include <cmath>
#include <optional>

namespace medistock::core {

namespace {

struct Limits
{
    double low;
    double high;
    bool whole = false;
    bool aboveLow = false; // the low limit itself is out (a factor of 0 converts nothing)
};

constexpr double largestQuantity = 1e8;
constexpr double largestPrice = 1e8;
constexpr double largestAmount = 1e12;

Limits limitsOf(NumberKind kind)
{
    switch (kind) {
    case NumberKind::Quantity:
        return { 0, largestQuantity };
    case NumberKind::Price:
        return { 0, largestPrice };
    case NumberKind::Amount:
        return { 0, largestAmount };
    case NumberKind::SignedAmount:
        return { -largestAmount, largestAmount };
    case NumberKind::Percent:
        return { 0, 100 };
    case NumberKind::DiscountRate:
        return { 0, 1 };
    case NumberKind::Factor:
        return { 0, 1e6, false, true };
    case NumberKind::Decimals:
        return { 0, 8, true };
    case NumberKind::Flag:
        return { 0, 1, true };
    case NumberKind::Count:
        return { 0, 999999999, true };
    }
    return { 0, 0 };
}

QString notANumber(const QString &field, const QString &shown, NumberKind kind)
{
    if (kind == NumberKind::Flag)
        return QStringLiteral("%1“%2”只能是 0 或 1！").arg(field, shown);
    return QStringLiteral("%1“%2”不是数字！").arg(field, shown);
}

// The refusal for a number that is a number: empty when it keeps the limits.
QString limitProblem(const QString &field, const QString &shown, double value, NumberKind kind)
{
    const Limits limits = limitsOf(kind);
    const QString low = plainNumber(limits.low);
    const QString high = plainNumber(limits.high);
    if (kind == NumberKind::Flag && value != 0 && value != 1)
        return notANumber(field, shown, kind);
    if (limits.whole && (value < limits.low || value > limits.high || value != std::floor(value)))
        return QStringLiteral("%1“%2”应为 %3 到 %4 之间的整数！").arg(field, shown, low, high);
    if (limits.aboveLow && value <= limits.low)
        return QStringLiteral("%1“%2”必须大于 %3！").arg(field, shown, low);
    if (limits.low == 0 && value < 0)
        return QStringLiteral("%1不能为负数！").arg(field);
    if (value < limits.low || value > limits.high)
        return QStringLiteral("%1“%2”超出范围，应在 %3 到 %4 之间！").arg(field, shown, low, high);
    return QString();
}

// A flag may be typed as a word too.
std::optional<double> flagWord(const QString &text)
{
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0
        || text == QStringLiteral("是"))
        return 1;
    if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0
        || text == QStringLiteral("否"))
        return 0;
    return std::nullopt;
}

} // namespace

Result<double> readNumber(const QString &field, const QString &typed, NumberKind kind)
{
    const QString text = typed.trimmed();
    if (kind == NumberKind::Flag)
        if (const auto word = flagWord(text))
            return *word;
    bool ok = false;
    const double value = text.toDouble(&ok);
    // toDouble takes "nan" and "inf" as numbers; nobody types them meaning a quantity.
    if (!ok || !std::isfinite(value))
        return Outcome::refused(notANumber(field, text, kind));
    const QString problem = limitProblem(field, text, value, kind);
    if (!problem.isEmpty())
        return Outcome::refused(problem);
    return value;
}

Result<double> readNumber(const QString &field, const QString &typed, NumberKind kind, double empty)
{
    if (typed.trimmed().isEmpty())
        return empty;
    return readNumber(field, typed, kind);
}

QString numberProblem(const QString &field, double value, NumberKind kind)
{
    const QString shown = QString::number(value, 'g', 15);
    if (!std::isfinite(value))
        return notANumber(field, shown, kind);
    return limitProblem(field, shown, value, kind);
}

} // namespace medistock::core
