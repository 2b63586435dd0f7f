#pragma once

#include "core/outcome.h"
#include "reports/value.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

namespace medistock::reports {

// The values the engine supplies itself: [Page#], [TotalPages#], [Line#], [Date], [Time].
enum class SystemValue { Page, TotalPages, Line, Date, Time };

// One node of a parsed expression.
struct ExpressionNode
{
    enum class Kind { Literal, Variable, Field, System, Unary, Binary, Call, List, Aggregate };
    Kind kind = Kind::Literal;
    Value literal;
    QString name; // variable, function (upper case), operator or aggregate (SUM, COUNT ...)
    QString dataset; // of a field
    SystemValue system = SystemValue::Page;
    QString band; // an aggregate's data band; empty: the band the engine infers
    int flags = 0; // an aggregate's flags: 1 counts hidden bands, 2 keeps a running total
    std::vector<std::unique_ptr<ExpressionNode>> args;
};

// Where an expression finds what it names. Unknown names read as Null, so that a template that
// mentions a variable its document does not set prints an empty place.
class Scope
{
public:
    virtual ~Scope() = default;
    virtual Value variable(const QString &name) const = 0;
    virtual Value field(const QString &dataset, const QString &field) const = 0;
    virtual Value system(SystemValue which) const = 0;
    virtual Value aggregate(const ExpressionNode &call) const = 0;
};

// An expression of our template format: literals ('text' with '' for a quote, numbers, True,
// False), variables (comName, 客户名称), fields (<Lines."g_name">, Lines."g_name" at the top of a
// [ ] segment), system values, + - * / div mod, = <> < > <= >=, and or not, parentheses and the
// functions IIF, FormatFloat, FormatDateTime, Format, the aggregates SUM, COUNT, MIN, MAX, AVG
// (expression, band, flags) and a few text and number helpers (Copy, Length, Trim, Pos,
// UpperCase, LowerCase, IntToStr, FloatToStr, StrToFloat, Round, Trunc, Abs).
class Expression
{
public:
    // Parses; a syntax error is refused with where it was found.
    static Result<Expression> parse(const QString &text);

    Value evaluate(const Scope &scope) const;
    // The aggregate calls inside, outermost first.
    QList<const ExpressionNode *> aggregates() const;
    bool mentions(SystemValue which) const;
    const ExpressionNode &root() const { return *m_root; }

private:
    std::shared_ptr<const ExpressionNode> m_root;
};

// A memo's text split into literal runs and [ ] expressions. "[" without its "]" stays text;
// brackets inside quotes do not count.
class TemplateText
{
public:
    struct Segment
    {
        QString literal;
        std::shared_ptr<Expression> expression; // null for a literal run
    };

    static Result<TemplateText> compile(const QString &text);
    // The text as it stands, without expressions.
    static TemplateText literal(const QString &text);

    const QList<Segment> &segments() const { return m_segments; }
    bool isPlain() const;
    QList<const ExpressionNode *> aggregates() const;
    bool mentions(SystemValue which) const;

private:
    QList<Segment> m_segments;
};

} // namespace medistock::reports
