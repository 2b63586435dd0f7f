#include "reports/expression.h"

#include "reports/functions.h"
#include "reports/texts.h"

#include <QRegularExpression>

namespace medistock::reports {

namespace {

using NodePtr = std::unique_ptr<ExpressionNode>;

struct Token
{
    enum class Kind { End, Number, String, FieldName, Identifier, Reference, Operator };
    Kind kind = Kind::End;
    QString text;
    double number = 0;
    qsizetype position = 0;
};

bool isNameStart(QChar c)
{
    return c.isLetter() || c == QLatin1Char('_');
}

bool isNamePart(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('#');
}

class Lexer
{
public:
    explicit Lexer(const QString &text)
        : m_text(text)
    { }

    // Fills the token list; false with an error position on a character that starts nothing.
    bool run(QList<Token> &tokens, qsizetype &errorAt)
    {
        while (true) {
            skipSpace();
            Token t;
            t.position = m_i;
            if (m_i >= m_text.size()) {
                tokens.append(t);
                return true;
            }
            if (!next(t)) {
                errorAt = m_i;
                return false;
            }
            tokens.append(t);
        }
    }

private:
    void skipSpace()
    {
        while (m_i < m_text.size() && m_text.at(m_i).isSpace())
            ++m_i;
    }

    bool next(Token &t)
    {
        const QChar c = m_text.at(m_i);
        if (c.isDigit() || (c == QLatin1Char('.') && peekDigit(1)))
            return number(t);
        if (c == QLatin1Char('\''))
            return quoted(t, QLatin1Char('\''), Token::Kind::String);
        if (c == QLatin1Char('"'))
            return quoted(t, QLatin1Char('"'), Token::Kind::FieldName);
        if (c == QLatin1Char('<') && reference(t))
            return true;
        if (isNameStart(c)) {
            const qsizetype start = m_i;
            while (m_i < m_text.size() && isNamePart(m_text.at(m_i)))
                ++m_i;
            t.kind = Token::Kind::Identifier;
            t.text = m_text.mid(start, m_i - start);
            return true;
        }
        for (const char *op :
            { "<>", "<=", ">=", "+", "-", "*", "/", "=", "<", ">", "(", ")", ",", ".", "[", "]" }) {
            const QString symbol = QString::fromLatin1(op);
            if (m_text.mid(m_i, symbol.size()) == symbol) {
                t.kind = Token::Kind::Operator;
                t.text = symbol;
                m_i += symbol.size();
                return true;
            }
        }
        return false;
    }

    bool peekDigit(int offset) const
    {
        return m_i + offset < m_text.size() && m_text.at(m_i + offset).isDigit();
    }

    bool number(Token &t)
    {
        static const QRegularExpression pattern(
            QStringLiteral("\\d*\\.?\\d+(?:[eE][+-]?\\d+)?|\\d+\\.?"));
        const QRegularExpressionMatch match = pattern.match(m_text, m_i,
            QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch())
            return false;
        t.kind = Token::Kind::Number;
        t.text = match.captured();
        t.number = t.text.toDouble();
        m_i += t.text.size();
        return true;
    }

    // 'it''s' -> it's; "g_name" for a field name.
    bool quoted(Token &t, QChar quote, Token::Kind kind)
    {
        QString value;
        qsizetype i = m_i + 1;
        while (i < m_text.size()) {
            if (m_text.at(i) == quote) {
                if (i + 1 < m_text.size() && m_text.at(i + 1) == quote) {
                    value += quote;
                    i += 2;
                    continue;
                }
                t.kind = kind;
                t.text = value;
                m_i = i + 1;
                return true;
            }
            value += m_text.at(i++);
        }
        return false;
    }

    // <Lines."g_name">, <Lines.g_name>, <comName>: a field or variable in angle brackets. Anything
    // else that starts with "<" is an operator.
    bool reference(Token &t)
    {
        static const QRegularExpression pattern(
            QStringLiteral("<\\s*([^\\s.\"<>=()+\\-*/"
                           ",']+)(?:\\.(?:\"([^\"]*)\"|([^\\s.\"<>=()+\\-*/,']+)))?\\s*>"));
        const QRegularExpressionMatch match = pattern.match(m_text, m_i,
            QRegularExpression::NormalMatch, QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch() || !isNameStart(match.captured(1).at(0)))
            return false;
        t.kind = Token::Kind::Reference;
        const bool isField = match.capturedLength(2) > 0 || match.capturedLength(3) > 0
            || match.captured(0).contains(QLatin1String(".\""));
        t.text = match.captured(1);
        if (isField)
            t.text += QLatin1Char('\n') + match.captured(2) + match.captured(3);
        m_i += match.capturedLength(0);
        return true;
    }

    const QString &m_text;
    qsizetype m_i = 0;
};

bool systemValueNamed(const QString &name, SystemValue &which)
{
    const QString upper = name.toUpper();
    if (upper == QLatin1String("PAGE#") || upper == QLatin1String("PAGE"))
        which = SystemValue::Page;
    else if (upper == QLatin1String("TOTALPAGES#") || upper == QLatin1String("TOTALPAGES"))
        which = SystemValue::TotalPages;
    else if (upper == QLatin1String("LINE#") || upper == QLatin1String("LINE"))
        which = SystemValue::Line;
    else if (upper == QLatin1String("DATE"))
        which = SystemValue::Date;
    else if (upper == QLatin1String("TIME"))
        which = SystemValue::Time;
    else
        return false;
    return true;
}

bool isAggregateName(const QString &upper)
{
    return upper == QLatin1String("SUM") || upper == QLatin1String("COUNT")
        || upper == QLatin1String("MIN") || upper == QLatin1String("MAX")
        || upper == QLatin1String("AVG");
}

class Parser
{
public:
    explicit Parser(QList<Token> tokens)
        : m_tokens(std::move(tokens))
    { }

    NodePtr parseAll()
    {
        NodePtr node = disjunction();
        if (node && peek().kind != Token::Kind::End)
            fail();
        return m_failed ? nullptr : std::move(node);
    }

    qsizetype errorPosition() const { return m_errorAt; }

private:
    const Token &peek() const { return m_tokens.at(m_pos); }
    Token take() { return m_tokens.at(m_pos < m_tokens.size() - 1 ? m_pos++ : m_pos); }

    bool isOperator(const char *op) const
    {
        return peek().kind == Token::Kind::Operator && peek().text == QLatin1String(op);
    }
    bool isWord(const char *word) const
    {
        return peek().kind == Token::Kind::Identifier
            && peek().text.compare(QLatin1String(word), Qt::CaseInsensitive) == 0;
    }

    NodePtr fail()
    {
        if (!m_failed)
            m_errorAt = peek().position;
        m_failed = true;
        return nullptr;
    }

    bool expect(const char *op)
    {
        if (!isOperator(op)) {
            fail();
            return false;
        }
        take();
        return true;
    }

    static NodePtr binary(const QString &op, NodePtr left, NodePtr right)
    {
        auto node = std::make_unique<ExpressionNode>();
        node->kind = ExpressionNode::Kind::Binary;
        node->name = op;
        node->args.push_back(std::move(left));
        node->args.push_back(std::move(right));
        return node;
    }

    NodePtr disjunction()
    {
        NodePtr left = conjunction();
        while (left && (isWord("or") || isWord("xor"))) {
            const QString op = take().text.toLower();
            NodePtr right = conjunction();
            if (!right)
                return fail();
            left = binary(op, std::move(left), std::move(right));
        }
        return left;
    }

    NodePtr conjunction()
    {
        NodePtr left = negation();
        while (left && isWord("and")) {
            take();
            NodePtr right = negation();
            if (!right)
                return fail();
            left = binary(QStringLiteral("and"), std::move(left), std::move(right));
        }
        return left;
    }

    NodePtr negation()
    {
        if (isWord("not")) {
            take();
            NodePtr operand = negation();
            if (!operand)
                return fail();
            auto node = std::make_unique<ExpressionNode>();
            node->kind = ExpressionNode::Kind::Unary;
            node->name = QStringLiteral("not");
            node->args.push_back(std::move(operand));
            return node;
        }
        return comparison();
    }

    NodePtr comparison()
    {
        NodePtr left = additive();
        for (const char *op : { "=", "<>", "<=", ">=", "<", ">" }) {
            if (left && isOperator(op)) {
                take();
                NodePtr right = additive();
                if (!right)
                    return fail();
                return binary(QString::fromLatin1(op), std::move(left), std::move(right));
            }
        }
        return left;
    }

    NodePtr additive()
    {
        NodePtr left = multiplicative();
        while (left && (isOperator("+") || isOperator("-"))) {
            const QString op = take().text;
            NodePtr right = multiplicative();
            if (!right)
                return fail();
            left = binary(op, std::move(left), std::move(right));
        }
        return left;
    }

    NodePtr multiplicative()
    {
        NodePtr left = unary();
        while (left && (isOperator("*") || isOperator("/") || isWord("div") || isWord("mod"))) {
            const QString op = take().text.toLower();
            NodePtr right = unary();
            if (!right)
                return fail();
            left = binary(op, std::move(left), std::move(right));
        }
        return left;
    }

    NodePtr unary()
    {
        if (isOperator("-") || isOperator("+")) {
            const QString op = take().text;
            NodePtr operand = unary();
            if (!operand)
                return fail();
            auto node = std::make_unique<ExpressionNode>();
            node->kind = ExpressionNode::Kind::Unary;
            node->name = op;
            node->args.push_back(std::move(operand));
            return node;
        }
        return primary();
    }

    NodePtr literal(Value value)
    {
        auto node = std::make_unique<ExpressionNode>();
        node->literal = std::move(value);
        return node;
    }

    NodePtr primary()
    {
        const Token t = peek();
        switch (t.kind) {
        case Token::Kind::Number:
            take();
            return literal(Value::number(t.number));
        case Token::Kind::String:
            take();
            return literal(Value::text(t.text));
        case Token::Kind::Reference:
            take();
            return reference(t.text);
        case Token::Kind::Identifier:
            take();
            return named(t.text);
        case Token::Kind::Operator:
            if (t.text == QLatin1String("(")) {
                take();
                NodePtr inner = disjunction();
                if (!inner || !expect(")"))
                    return fail();
                return inner;
            }
            if (t.text == QLatin1String("["))
                return list();
            return fail();
        default:
            return fail();
        }
    }

    NodePtr list()
    {
        take();
        auto node = std::make_unique<ExpressionNode>();
        node->kind = ExpressionNode::Kind::List;
        if (!isOperator("]")) {
            do {
                NodePtr item = disjunction();
                if (!item)
                    return fail();
                node->args.push_back(std::move(item));
            } while (isOperator(",") && (take(), true));
        }
        if (!expect("]"))
            return fail();
        return node;
    }

    static NodePtr field(const QString &dataset, const QString &name)
    {
        auto node = std::make_unique<ExpressionNode>();
        node->kind = ExpressionNode::Kind::Field;
        node->dataset = dataset;
        node->name = name;
        return node;
    }

    NodePtr reference(const QString &text)
    {
        const qsizetype split = text.indexOf(QLatin1Char('\n'));
        if (split >= 0)
            return field(text.left(split), text.mid(split + 1));
        return nameNode(text);
    }

    NodePtr nameNode(const QString &name)
    {
        auto node = std::make_unique<ExpressionNode>();
        if (name.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
            return literal(Value::boolean(true));
        if (name.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
            return literal(Value::boolean(false));
        if (name.compare(QLatin1String("Null"), Qt::CaseInsensitive) == 0
            || name.compare(QLatin1String("nil"), Qt::CaseInsensitive) == 0)
            return literal(Value());
        if (systemValueNamed(name, node->system)) {
            node->kind = ExpressionNode::Kind::System;
            return node;
        }
        node->kind = ExpressionNode::Kind::Variable;
        node->name = name;
        return node;
    }

    NodePtr named(const QString &name)
    {
        if (isOperator(".")) {
            take();
            const Token part = take();
            if (part.kind != Token::Kind::FieldName && part.kind != Token::Kind::Identifier)
                return fail();
            return field(name, part.text);
        }
        if (!isOperator("("))
            return nameNode(name);
        take();
        const QString upper = name.toUpper();
        if (isAggregateName(upper))
            return aggregate(upper);
        auto node = std::make_unique<ExpressionNode>();
        node->kind = ExpressionNode::Kind::Call;
        node->name = upper;
        if (!isOperator(")")) {
            do {
                NodePtr arg = disjunction();
                if (!arg)
                    return fail();
                node->args.push_back(std::move(arg));
            } while (isOperator(",") && (take(), true));
        }
        if (!expect(")"))
            return fail();
        if (!isKnownFunction(upper, int(node->args.size())))
            return fail();
        return node;
    }

    // SUM(expr[, Band[, flags]]), COUNT(Band[, flags]).
    NodePtr aggregate(const QString &upper)
    {
        auto node = std::make_unique<ExpressionNode>();
        node->kind = ExpressionNode::Kind::Aggregate;
        node->name = upper;
        if (upper != QLatin1String("COUNT")) {
            NodePtr argument = disjunction();
            if (!argument)
                return fail();
            node->args.push_back(std::move(argument));
            if (isOperator(","))
                take();
        }
        if (peek().kind == Token::Kind::Identifier)
            node->band = take().text;
        if (isOperator(",")) {
            take();
            if (peek().kind != Token::Kind::Number)
                return fail();
            node->flags = int(take().number);
        }
        if (!expect(")"))
            return fail();
        return node;
    }

    QList<Token> m_tokens;
    qsizetype m_pos = 0;
    bool m_failed = false;
    qsizetype m_errorAt = 0;
};

void collect(const ExpressionNode &node, QList<const ExpressionNode *> &found)
{
    if (node.kind == ExpressionNode::Kind::Aggregate)
        found.append(&node);
    for (const auto &arg : node.args)
        collect(*arg, found);
}

bool mentionsIn(const ExpressionNode &node, SystemValue which)
{
    if (node.kind == ExpressionNode::Kind::System && node.system == which)
        return true;
    for (const auto &arg : node.args)
        if (mentionsIn(*arg, which))
            return true;
    return false;
}

} // namespace

Result<Expression> Expression::parse(const QString &text)
{
    QList<Token> tokens;
    qsizetype errorAt = 0;
    if (!Lexer(text).run(tokens, errorAt))
        return Outcome::refused(texts::expressionError(text, int(errorAt) + 1));
    Parser parser(std::move(tokens));
    NodePtr root = parser.parseAll();
    if (!root)
        return Outcome::refused(texts::expressionError(text, int(parser.errorPosition()) + 1));
    Expression expression;
    expression.m_root = std::shared_ptr<const ExpressionNode>(std::move(root));
    return expression;
}

Value Expression::evaluate(const Scope &scope) const
{
    return evaluateNode(*m_root, scope);
}

QList<const ExpressionNode *> Expression::aggregates() const
{
    QList<const ExpressionNode *> found;
    collect(*m_root, found);
    return found;
}

bool Expression::mentions(SystemValue which) const
{
    return mentionsIn(*m_root, which);
}

namespace {

// The index after the "]" that closes the "[" at `open`, or -1.
qsizetype closingBracket(const QString &text, qsizetype open)
{
    int depth = 0;
    QChar quote;
    for (qsizetype i = open; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c == QLatin1Char('\'') || c == QLatin1Char('"'))
            quote = c;
        else if (c == QLatin1Char('['))
            ++depth;
        else if (c == QLatin1Char(']') && --depth == 0)
            return i + 1;
    }
    return -1;
}

} // namespace

Result<TemplateText> TemplateText::compile(const QString &text)
{
    TemplateText compiled;
    QString literal;
    qsizetype i = 0;
    while (i < text.size()) {
        const qsizetype open = text.indexOf(QLatin1Char('['), i);
        const qsizetype close = open < 0 ? -1 : closingBracket(text, open);
        if (close < 0) {
            literal += text.mid(i);
            break;
        }
        literal += text.mid(i, open - i);
        Result<Expression> expression = Expression::parse(text.mid(open + 1, close - open - 2));
        if (!expression)
            return expression.outcome();
        if (!literal.isEmpty())
            compiled.m_segments.append({ literal, nullptr });
        literal.clear();
        compiled.m_segments.append(
            { QString(), std::make_shared<Expression>(std::move(expression.value())) });
        i = close;
    }
    if (!literal.isEmpty())
        compiled.m_segments.append({ literal, nullptr });
    return compiled;
}

TemplateText TemplateText::literal(const QString &text)
{
    TemplateText plain;
    if (!text.isEmpty())
        plain.m_segments.append({ text, nullptr });
    return plain;
}

bool TemplateText::isPlain() const
{
    for (const Segment &segment : m_segments)
        if (segment.expression)
            return false;
    return true;
}

QList<const ExpressionNode *> TemplateText::aggregates() const
{
    QList<const ExpressionNode *> found;
    for (const Segment &segment : m_segments)
        if (segment.expression)
            found += segment.expression->aggregates();
    return found;
}

bool TemplateText::mentions(SystemValue which) const
{
    for (const Segment &segment : m_segments)
        if (segment.expression && segment.expression->mentions(which))
            return true;
    return false;
}

} // namespace medistock::reports
