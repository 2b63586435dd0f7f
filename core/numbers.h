#pragma once

#include "core/outcome.h"

#include <QString>

namespace medistock::core {

// What a number an operator types stands for, and so the limits it must keep. Numbers are stored
// as numeric(28,8), twenty digits before the point; the limits keep a number and what is computed
// from it (quantity x price, a document's sums, years of running balances) well inside that and
// exact to the cent in a double, and they are what a pharmacy can really have. Every module, every
// screen and the command line check typed numbers here, so a refusal reads the same everywhere.
enum class NumberKind {
    Quantity, // goods in any unit: 0 to 100 000 000
    Price, // per unit: 0 to 100 000 000
    Amount, // money: 0 to 1 000 000 000 000
    SignedAmount, // money either way (an opening balance, a stored figure): the same both ways
    Percent, // a rate in percent (tax, commission): 0 to 100
    DiscountRate, // a price factor: 0 to 1 (1 the full price, 0.9 a tenth off)
    Factor, // base units in one unit: above 0, up to 1 000 000
    Decimals, // decimal places: a whole number from 0 to 8
    Flag, // 0 or 1; typed also as true/false or 是/否
    Count, // a whole number (a count, a limit, the code of a choice): 0 to 999 999 999
};

// Reads a typed number: decimal text, blanks around it allowed. The refusal text (not told) names
// the field as given ("第1行：数量", "税率") and states the limits.
Result<double> readNumber(const QString &field, const QString &typed, NumberKind kind);
// The same, with an empty text read as `empty`.
Result<double> readNumber(
    const QString &field, const QString &typed, NumberKind kind, double empty);

// Checks a number that arrives as a double (a spin box, a JSON number, a field of a draft): the
// refusal text, empty when it fits. NaN and the infinities never fit.
QString numberProblem(const QString &field, double value, NumberKind kind);

} // namespace medistock::core
