#pragma once

#include <QString>

#include <cmath>

namespace medistock::core {

// round(x + 0.000000001, n): a computed price, quantity or amount is rounded this way in code and
// in SQL alike, so that an exact half rounds up however the double happens to be stored.
inline double roundTo(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round((value + 0.000000001) * scale) / scale;
}

// Figures summed from stored decimals may miss an equal figure by a hair: a shortage, an excess or
// a difference counts only beyond this margin.
inline constexpr double comparisonMargin = 0.000000001;

// A decimal-places parameter counts only when it is a whole number from 0 to 8; else 2.
inline int validDecimals(double places)
{
    if (places >= 0 && places <= 8 && places == std::floor(places))
        return int(places);
    return 2;
}

// A number as messages and logs show it: up to eight places, no trailing zeros ("500", "12.5",
// "-0.3"); a negative zero shows as "0".
inline QString plainNumber(double value)
{
    QString text = QString::number(value, 'f', 8);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

} // namespace medistock::core
