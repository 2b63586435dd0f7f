#pragma once

#include "core/numbers.h"
#include "core/outcome.h"

#include <QString>

namespace medistock::masterdata {

// What a number column of a list stands for, and so its limits (core/numbers.h): prices 0 to
// 100 000 000, quantities (stock, limits) 0 to 100 000 000, unit factors above 0, the sales
// discount 0 to 1, commission rates in percent, points and balances 0 or more; whole-number
// columns (minimum stock, codes of a choice) 0 to 999 999 999, flags 0 or 1. A money column of
// no stated meaning (an opening amount, which may be owed either way) keeps the money limits
// either way. Decided here for the lists; documents and parameters have their own.
core::NumberKind masterNumberKind(const QString &column, const QString &declaredType);

// A number typed for a column of a list, read and checked as saving it checks it; an empty text
// reads 0. The refusal (not told) names the column by its label.
Result<double> readMasterNumber(const QString &table, const QString &column, const QString &typed);
// The same for a number that arrives as a double; empty when it fits.
QString masterNumberProblem(const QString &table, const QString &column, double value);

} // namespace medistock::masterdata
