#include "reports/functions.h"

#include "core/rounding.h"
#include "reports/formats.h"

#include <QHash>

#include <cmath>
#include <functional>

namespace medistock::reports {

namespace {

using Args = std::vector<Value>;
using Function = std::function<Value(const Args &)>;

struct FunctionDef
{
    int minArgs;
    int maxArgs;
    Function body;
};

// A numeric operand: numbers, and texts that read as numbers.
bool numeric(const Value &v)
{
    return v.isNumber() || v.type() == Value::Type::Bool || v.isNull() || v.readsAsNumber();
}

Value plus(const Value &a, const Value &b)
{
    if (a.isNull())
        return b;
    if (b.isNull())
        return a;
    // Two texts join, as they do in the format's script; a number on either side adds.
    if ((a.isText() && b.isText()) || !numeric(a) || !numeric(b))
        return Value::text(a.toText() + b.toText());
    return Value::number(a.toNumber() + b.toNumber());
}

int compare(const Value &a, const Value &b)
{
    if ((a.isNumber() || b.isNumber()) && numeric(a) && numeric(b)) {
        const double x = a.toNumber();
        const double y = b.toNumber();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    if (a.type() == Value::Type::DateTime || b.type() == Value::Type::DateTime) {
        const QDateTime x = a.toDateTime();
        const QDateTime y = b.toDateTime();
        return x < y ? -1 : (x > y ? 1 : 0);
    }
    return a.toText().compare(b.toText());
}

Value binary(const QString &op, const Value &a, const Value &b)
{
    if (op == QLatin1String("+"))
        return plus(a, b);
    const double x = a.toNumber();
    const double y = b.toNumber();
    if (op == QLatin1String("-"))
        return Value::number(x - y);
    if (op == QLatin1String("*"))
        return Value::number(x * y);
    // A division by zero gives 0: a rate over an empty amount prints as 0, not as an error.
    if (op == QLatin1String("/"))
        return Value::number(y == 0 ? 0 : x / y);
    if (op == QLatin1String("div"))
        return Value::number(qint64(y) == 0 ? 0 : double(qint64(x) / qint64(y)));
    if (op == QLatin1String("mod"))
        return Value::number(qint64(y) == 0 ? 0 : double(qint64(x) % qint64(y)));
    if (op == QLatin1String("and"))
        return Value::boolean(a.toBool() && b.toBool());
    if (op == QLatin1String("or"))
        return Value::boolean(a.toBool() || b.toBool());
    if (op == QLatin1String("xor"))
        return Value::boolean(a.toBool() != b.toBool());
    const int c = compare(a, b);
    if (op == QLatin1String("="))
        return Value::boolean(c == 0);
    if (op == QLatin1String("<>"))
        return Value::boolean(c != 0);
    if (op == QLatin1String("<"))
        return Value::boolean(c < 0);
    if (op == QLatin1String(">"))
        return Value::boolean(c > 0);
    if (op == QLatin1String("<="))
        return Value::boolean(c <= 0);
    return Value::boolean(c >= 0);
}

// Delphi's Round: halves away from zero after the system's nudge.
double roundHalfAway(double value, int places)
{
    return value < 0 ? -core::roundTo(-value, places) : core::roundTo(value, places);
}

const QHash<QString, FunctionDef> &functions()
{
    static const QHash<QString, FunctionDef> table {
        { QStringLiteral("FORMATFLOAT"),
            { 2, 2,
                [](const Args &a) {
                    return Value::text(formatFloat(a[0].toText(), a[1].toNumber()));
                } } },
        { QStringLiteral("FORMATDATETIME"),
            { 2, 2,
                [](const Args &a) {
                    return Value::text(formatDateTime(a[0].toText(), a[1].toDateTime()));
                } } },
        { QStringLiteral("FORMAT"),
            { 2, 2,
                [](const Args &a) { return Value::text(formatDelphi(a[0].toText(), a[1])); } } },
        { QStringLiteral("INTTOSTR"),
            { 1, 1,
                [](const Args &a) {
                    return Value::text(QString::number(qint64(std::trunc(a[0].toNumber()))));
                } } },
        { QStringLiteral("FLOATTOSTR"),
            { 1, 1, [](const Args &a) { return Value::text(numberText(a[0].toNumber())); } } },
        { QStringLiteral("STRTOFLOAT"),
            { 1, 1, [](const Args &a) { return Value::number(a[0].toNumber()); } } },
        { QStringLiteral("STRTOINT"),
            { 1, 1, [](const Args &a) { return Value::number(std::trunc(a[0].toNumber())); } } },
        { QStringLiteral("ROUND"),
            { 1, 2,
                [](const Args &a) {
                    return Value::number(
                        roundHalfAway(a[0].toNumber(), a.size() > 1 ? int(a[1].toNumber()) : 0));
                } } },
        { QStringLiteral("TRUNC"),
            { 1, 1, [](const Args &a) { return Value::number(std::trunc(a[0].toNumber())); } } },
        { QStringLiteral("ABS"),
            { 1, 1, [](const Args &a) { return Value::number(std::abs(a[0].toNumber())); } } },
        { QStringLiteral("LENGTH"),
            { 1, 1, [](const Args &a) { return Value::number(double(a[0].toText().size())); } } },
        { QStringLiteral("TRIM"),
            { 1, 1, [](const Args &a) { return Value::text(a[0].toText().trimmed()); } } },
        { QStringLiteral("UPPERCASE"),
            { 1, 1, [](const Args &a) { return Value::text(a[0].toText().toUpper()); } } },
        { QStringLiteral("LOWERCASE"),
            { 1, 1, [](const Args &a) { return Value::text(a[0].toText().toLower()); } } },
        { QStringLiteral("COPY"),
            { 3, 3,
                [](const Args &a) {
                    const int from = std::max(int(a[1].toNumber()), 1);
                    return Value::text(a[0].toText().mid(from - 1, int(a[2].toNumber())));
                } } },
        { QStringLiteral("POS"),
            { 2, 2,
                [](const Args &a) {
                    return Value::number(double(a[1].toText().indexOf(a[0].toText()) + 1));
                } } },
        { QStringLiteral("DATETOSTR"),
            { 1, 1,
                [](const Args &a) {
                    return Value::text(
                        formatDateTime(QStringLiteral("yyyy-mm-dd"), a[0].toDateTime()));
                } } },
    };
    return table;
}

} // namespace

bool isKnownFunction(const QString &upperName, int argumentCount)
{
    if (upperName == QLatin1String("IIF"))
        return argumentCount == 3;
    const auto it = functions().constFind(upperName);
    return it != functions().constEnd() && argumentCount >= it->minArgs
        && argumentCount <= it->maxArgs;
}

Value evaluateNode(const ExpressionNode &node, const Scope &scope)
{
    switch (node.kind) {
    case ExpressionNode::Kind::Literal:
        return node.literal;
    case ExpressionNode::Kind::Variable:
        return scope.variable(node.name);
    case ExpressionNode::Kind::Field:
        return scope.field(node.dataset, node.name);
    case ExpressionNode::Kind::System:
        return scope.system(node.system);
    case ExpressionNode::Kind::Aggregate:
        return scope.aggregate(node);
    case ExpressionNode::Kind::List:
        // Format's argument list: its first item is the value formatted.
        return node.args.empty() ? Value() : evaluateNode(*node.args.front(), scope);
    case ExpressionNode::Kind::Unary: {
        const Value operand = evaluateNode(*node.args.front(), scope);
        if (node.name == QLatin1String("not"))
            return Value::boolean(!operand.toBool());
        return Value::number(
            node.name == QLatin1String("-") ? -operand.toNumber() : operand.toNumber());
    }
    case ExpressionNode::Kind::Binary:
        return binary(
            node.name, evaluateNode(*node.args[0], scope), evaluateNode(*node.args[1], scope));
    case ExpressionNode::Kind::Call: {
        if (node.name == QLatin1String("IIF"))
            return evaluateNode(
                *node.args[evaluateNode(*node.args[0], scope).toBool() ? 1 : 2], scope);
        Args args;
        for (const auto &arg : node.args)
            args.push_back(evaluateNode(*arg, scope));
        return functions().value(node.name).body(args);
    }
    }
    return Value();
}

} // namespace medistock::reports
