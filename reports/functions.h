#pragma once

#include "reports/expression.h"

namespace medistock::reports {

// Evaluates one parsed node: operators with the conversions of Value, the built-in functions,
// and the scope for names, fields, system values and aggregates.
Value evaluateNode(const ExpressionNode &node, const Scope &scope);

// Whether a function of that upper-case name takes that many arguments.
bool isKnownFunction(const QString &upperName, int argumentCount);

} // namespace medistock::reports
