#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace medistock::reports {

// A value of a template expression: nothing, a text, a number, a truth value or a date and time.
// Conversions follow what template authors expect of the format: a text that reads as a number
// counts as that number in arithmetic, an empty text or nothing as 0, and a number shows with up
// to 15 significant digits ("0.3", "12", "1E20").
class Value
{
public:
    enum class Type { Null, Text, Number, Bool, DateTime };

    Value() = default;
    static Value text(QString text);
    static Value number(double number);
    static Value boolean(bool value);
    static Value dateTime(QDateTime value);
    // From a database value: numbers stay numbers, everything else is text; NULL is Null.
    static Value fromVariant(const QVariant &variant);

    Type type() const { return m_type; }
    bool isNull() const { return m_type == Type::Null; }
    bool isNumber() const { return m_type == Type::Number; }
    bool isText() const { return m_type == Type::Text; }

    QString toText() const;
    double toNumber() const;
    bool toBool() const;
    // A date and time; a text is read as "yyyy-MM-dd" with an optional " HH:mm:ss" (or "T").
    QDateTime toDateTime() const;
    // Whether the value can take part in arithmetic as a number (numbers, and texts that read as
    // one).
    bool readsAsNumber() const;

private:
    Type m_type = Type::Null;
    QString m_text;
    double m_number = 0;
    bool m_bool = false;
    QDateTime m_dateTime;
};

// A number as Delphi's FloatToStr writes it: 15 significant digits, no trailing zeros.
QString numberText(double value);
// A text read as a number: "12.5", " 3 ", "1,234.5" (thousand commas), "" is not a number.
bool parseNumber(const QString &text, double *value);

} // namespace medistock::reports
