#include "reports/value.h"

#include <QRegularExpression>

#include <cmath>

namespace medistock::reports {

Value Value::text(QString text)
{
    Value v;
    v.m_type = Type::Text;
    v.m_text = std::move(text);
    return v;
}

Value Value::number(double number)
{
    Value v;
    v.m_type = Type::Number;
    v.m_number = number;
    return v;
}

Value Value::boolean(bool value)
{
    Value v;
    v.m_type = Type::Bool;
    v.m_bool = value;
    return v;
}

Value Value::dateTime(QDateTime value)
{
    Value v;
    v.m_type = Type::DateTime;
    v.m_dateTime = std::move(value);
    return v;
}

Value Value::fromVariant(const QVariant &variant)
{
    if (!variant.isValid() || variant.isNull())
        return Value();
    switch (variant.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return number(variant.toDouble());
    case QMetaType::Bool:
        return boolean(variant.toBool());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return dateTime(variant.toDateTime());
    default:
        return text(variant.toString());
    }
}

QString Value::toText() const
{
    switch (m_type) {
    case Type::Null:
        return QString();
    case Type::Text:
        return m_text;
    case Type::Number:
        return numberText(m_number);
    case Type::Bool:
        return m_bool ? QStringLiteral("True") : QStringLiteral("False");
    case Type::DateTime:
        if (m_dateTime.time() == QTime(0, 0))
            return m_dateTime.toString(QStringLiteral("yyyy-MM-dd"));
        return m_dateTime.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    }
    return QString();
}

double Value::toNumber() const
{
    switch (m_type) {
    case Type::Number:
        return m_number;
    case Type::Text: {
        double value = 0;
        return parseNumber(m_text, &value) ? value : 0;
    }
    case Type::Bool:
        return m_bool ? 1 : 0;
    default:
        return 0;
    }
}

bool Value::toBool() const
{
    switch (m_type) {
    case Type::Bool:
        return m_bool;
    case Type::Number:
        return m_number != 0;
    case Type::Text:
        return m_text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0
            || (readsAsNumber() && toNumber() != 0);
    default:
        return false;
    }
}

QDateTime Value::toDateTime() const
{
    if (m_type == Type::DateTime)
        return m_dateTime;
    if (m_type != Type::Text)
        return QDateTime();
    const QString t = m_text.trimmed();
    for (const char *format : { "yyyy-MM-dd HH:mm:ss", "yyyy-MM-ddTHH:mm:ss", "yyyy-MM-dd HH:mm",
             "yyyy-MM-dd", "yyyy-MM" }) {
        const QDateTime value = QDateTime::fromString(t, QString::fromLatin1(format));
        if (value.isValid())
            return value;
    }
    return QDateTime();
}

bool Value::readsAsNumber() const
{
    if (m_type == Type::Number)
        return true;
    double ignored = 0;
    return m_type == Type::Text && parseNumber(m_text, &ignored);
}

QString numberText(double value)
{
    if (std::isnan(value) || std::isinf(value))
        return QStringLiteral("NAN");
    if (value == 0)
        return QStringLiteral("0");
    QString text = QString::number(value, 'g', 15);
    if (text.contains(QLatin1Char('e'))) {
        // 1e+20 -> 1E20, 1.5e-07 -> 1.5E-7
        static const QRegularExpression exponent(QStringLiteral("e\\+?(-?)0*(\\d+)"));
        text.replace(exponent, QStringLiteral("E\\1\\2"));
    }
    return text;
}

bool parseNumber(const QString &text, double *value)
{
    QString t = text.trimmed();
    if (t.isEmpty())
        return false;
    if (t.contains(QLatin1Char(',')) && t.contains(QLatin1Char('.')))
        t.remove(QLatin1Char(','));
    bool ok = false;
    const double number = t.toDouble(&ok);
    ok = ok && std::isfinite(number);
    if (ok)
        *value = number;
    return ok;
}

} // namespace medistock::reports
