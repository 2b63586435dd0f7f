#include "reports/formats.h"

#include "core/rounding.h"

#include <QStringList>

#include <cmath>

namespace medistock::reports {

namespace {

// The sections of a FormatFloat pattern, split at ";" outside quotes.
QStringList sections(const QString &format)
{
    QStringList parts { QString() };
    QChar quote;
    for (const QChar c : format) {
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char(';')) {
            parts.append(QString());
            continue;
        }
        parts.last() += c;
    }
    return parts;
}

// What a section asks of the number: digit places before and after the point, how many of them
// are always written, thousands grouping, scientific notation.
struct Pattern
{
    int integerPlaces = 0;
    int integerRequired = 0;
    int decimals = 0;
    int decimalsRequired = 0;
    bool thousands = false;
    bool scientific = false;
    int exponentDigits = 0;
    bool exponentPlus = false;
};

Pattern readPattern(const QString &section)
{
    Pattern p;
    bool afterPoint = false;
    bool seenZero = false;
    QChar quote;
    for (qsizetype i = 0; i < section.size(); ++i) {
        const QChar c = section.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if ((c == QLatin1Char('E') || c == QLatin1Char('e')) && i + 1 < section.size()
            && (section.at(i + 1) == QLatin1Char('+') || section.at(i + 1) == QLatin1Char('-'))) {
            p.scientific = true;
            p.exponentPlus = section.at(i + 1) == QLatin1Char('+');
            i += 2;
            while (i < section.size() && section.at(i) == QLatin1Char('0')) {
                ++p.exponentDigits;
                ++i;
            }
            break;
        } else if (c == QLatin1Char('.')) {
            afterPoint = true;
        } else if (c == QLatin1Char(',')) {
            if (!afterPoint)
                p.thousands = true;
        } else if (c == QLatin1Char('0') || c == QLatin1Char('#')) {
            if (afterPoint) {
                ++p.decimals;
                if (c == QLatin1Char('0'))
                    p.decimalsRequired = p.decimals;
            } else {
                ++p.integerPlaces;
                if (c == QLatin1Char('0'))
                    seenZero = true;
                if (seenZero)
                    ++p.integerRequired;
            }
        }
    }
    return p;
}

QString grouped(const QString &digits)
{
    QString out;
    for (qsizetype i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0)
            out += QLatin1Char(',');
        out += digits.at(i);
    }
    return out;
}

// The integer digits, the decimal digits and the exponent text of a non-negative number.
struct Digits
{
    QString integer;
    QString fraction;
    QString exponent;
};

Digits digitsOf(double value, const Pattern &p)
{
    Digits d;
    int exponent = 0;
    if (p.scientific && value != 0) {
        const int places = std::max(p.integerPlaces, 1);
        exponent = int(std::floor(std::log10(value))) - (places - 1);
        value /= std::pow(10.0, exponent);
    }
    const double rounded = core::roundTo(value, p.decimals);
    QString fixed = QString::number(rounded, 'f', p.decimals);
    QString integer = fixed.section(QLatin1Char('.'), 0, 0);
    QString fraction = p.decimals > 0 ? fixed.section(QLatin1Char('.'), 1, 1) : QString();
    if (integer == QLatin1String("0"))
        integer.clear();
    while (integer.size() < p.integerRequired)
        integer.prepend(QLatin1Char('0'));
    while (fraction.size() > p.decimalsRequired && fraction.endsWith(QLatin1Char('0')))
        fraction.chop(1);
    d.integer = p.thousands ? grouped(integer) : integer;
    d.fraction = fraction;
    if (p.scientific) {
        QString digits = QString::number(std::abs(exponent));
        while (digits.size() < p.exponentDigits)
            digits.prepend(QLatin1Char('0'));
        d.exponent = QStringLiteral("E")
            + (exponent < 0 ? QStringLiteral("-")
                            : (p.exponentPlus ? QStringLiteral("+") : QString()))
            + digits;
    }
    return d;
}

// Writes the digits into the section: the integer part at the first integer place, the point
// and decimals at the point, the exponent at the E; other characters are copied.
QString fill(const QString &section, const Digits &d)
{
    QString out;
    bool integerDone = false;
    bool fractionDone = false;
    bool afterPoint = false;
    QChar quote;
    auto writeInteger = [&] {
        if (!integerDone)
            out += d.integer;
        integerDone = true;
    };
    for (qsizetype i = 0; i < section.size(); ++i) {
        const QChar c = section.at(i);
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
            else
                out += c;
            continue;
        }
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if ((c == QLatin1Char('0') || c == QLatin1Char('#')) && !afterPoint) {
            writeInteger();
        } else if (c == QLatin1Char('0') || c == QLatin1Char('#') || c == QLatin1Char(',')) {
            continue;
        } else if (c == QLatin1Char('.')) {
            writeInteger();
            afterPoint = true;
            if (!fractionDone && !d.fraction.isEmpty())
                out += QLatin1Char('.') + d.fraction;
            fractionDone = true;
        } else if ((c == QLatin1Char('E') || c == QLatin1Char('e')) && i + 1 < section.size()
            && (section.at(i + 1) == QLatin1Char('+') || section.at(i + 1) == QLatin1Char('-'))) {
            writeInteger();
            out += d.exponent;
            i += 1;
            while (i + 1 < section.size() && section.at(i + 1) == QLatin1Char('0'))
                ++i;
        } else {
            out += c;
        }
    }
    writeInteger();
    return out;
}

bool allZero(const Digits &d)
{
    for (const QChar c : d.integer + d.fraction)
        if (c.isDigit() && c != QLatin1Char('0'))
            return false;
    return true;
}

} // namespace

QString formatFloat(const QString &format, double value)
{
    if (format.isEmpty())
        return numberText(value);
    const QStringList parts = sections(format);
    QString section = parts.at(0);
    bool minus = value < 0;
    const Digits firstDigits = digitsOf(std::abs(value), readPattern(section));
    if (allZero(firstDigits) && parts.size() >= 3 && !parts.at(2).isEmpty()) {
        section = parts.at(2);
        minus = false;
    } else if (value < 0 && parts.size() >= 2 && !parts.at(1).isEmpty()) {
        section = parts.at(1);
        minus = false;
    }
    const Digits d = digitsOf(std::abs(value), readPattern(section));
    const QString text = fill(section, d);
    return minus && !allZero(d) ? QLatin1Char('-') + text : text;
}

namespace {

QString padded(int number, int width)
{
    return QStringLiteral("%1").arg(number, width, 10, QLatin1Char('0'));
}

// Counts how often `c` repeats at `i` (case-insensitive).
int runLength(const QString &format, qsizetype i, char c)
{
    int n = 0;
    while (i + n < format.size() && format.at(i + n).toLower() == QLatin1Char(c))
        ++n;
    return n;
}

const char *const monthNames[] = { "一月", "二月", "三月", "四月", "五月", "六月", "七月", "八月",
    "九月", "十月", "十一月", "十二月" };
const char *const dayNames[]
    = { "星期一", "星期二", "星期三", "星期四", "星期五", "星期六", "星期日" };
const char *const shortDayNames[] = { "周一", "周二", "周三", "周四", "周五", "周六", "周日" };

} // namespace

QString formatDateTime(const QString &format, const QDateTime &value)
{
    if (!value.isValid())
        return QString();
    const QDate date = value.date();
    const QTime time = value.time();
    const bool twelveHour = format.contains(QLatin1String("am/pm"), Qt::CaseInsensitive)
        || format.contains(QLatin1String("a/p"), Qt::CaseInsensitive);
    const int hour = twelveHour ? (time.hour() % 12 == 0 ? 12 : time.hour() % 12) : time.hour();
    QString out;
    bool afterHour = false;
    for (qsizetype i = 0; i < format.size();) {
        const QChar c = format.at(i);
        const QChar lower = c.toLower();
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            const qsizetype end = format.indexOf(c, i + 1);
            out += format.mid(i + 1, end < 0 ? -1 : end - i - 1);
            i = end < 0 ? format.size() : end + 1;
            continue;
        }
        if (format.mid(i, 5).compare(QLatin1String("am/pm"), Qt::CaseInsensitive) == 0) {
            out += time.hour() < 12 ? QStringLiteral("上午") : QStringLiteral("下午");
            i += 5;
            continue;
        }
        if (format.mid(i, 3).compare(QLatin1String("a/p"), Qt::CaseInsensitive) == 0) {
            out += time.hour() < 12 ? QStringLiteral("上午") : QStringLiteral("下午");
            i += 3;
            continue;
        }
        const int n = runLength(format, i, char(lower.toLatin1()));
        if (lower == QLatin1Char('y')) {
            out += n <= 2 ? padded(date.year() % 100, 2) : padded(date.year(), 4);
            afterHour = false;
        } else if (lower == QLatin1Char('m') && afterHour && n <= 2) {
            out += n == 1 ? QString::number(time.minute()) : padded(time.minute(), 2);
            afterHour = false;
        } else if (lower == QLatin1Char('m')) {
            if (n <= 2)
                out += n == 1 ? QString::number(date.month()) : padded(date.month(), 2);
            else if (n == 3)
                out += QString::number(date.month()) + QStringLiteral("月");
            else
                out += QString::fromUtf8(monthNames[date.month() - 1]);
        } else if (lower == QLatin1Char('d')) {
            if (n <= 2)
                out += n == 1 ? QString::number(date.day()) : padded(date.day(), 2);
            else if (n == 3)
                out += QString::fromUtf8(shortDayNames[date.dayOfWeek() - 1]);
            else if (n == 4)
                out += QString::fromUtf8(dayNames[date.dayOfWeek() - 1]);
            else
                out += date.toString(QStringLiteral("yyyy-MM-dd"));
            afterHour = false;
        } else if (lower == QLatin1Char('h')) {
            out += n == 1 ? QString::number(hour) : padded(hour, 2);
            afterHour = true;
        } else if (lower == QLatin1Char('n')) {
            out += n == 1 ? QString::number(time.minute()) : padded(time.minute(), 2);
            afterHour = false;
        } else if (lower == QLatin1Char('s')) {
            out += n == 1 ? QString::number(time.second()) : padded(time.second(), 2);
            afterHour = false;
        } else if (lower == QLatin1Char('z')) {
            out += n >= 3 ? padded(time.msec(), 3) : QString::number(time.msec());
        } else if (lower == QLatin1Char('c') && n == 1) {
            out += value.toString(time == QTime(0, 0) ? QStringLiteral("yyyy-MM-dd")
                                                      : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
        } else if (lower == QLatin1Char('t') && n <= 2) {
            out += time.toString(n == 1 ? QStringLiteral("HH:mm") : QStringLiteral("HH:mm:ss"));
        } else if (c == QLatin1Char('/')) {
            out += QLatin1Char('-');
        } else {
            out += QString(n > 0 ? n : 1, c);
        }
        i += n > 0 ? n : 1;
    }
    return out;
}

namespace {

struct Specifier
{
    bool leftAlign = false;
    int width = 0;
    int precision = -1;
    QChar type;
    qsizetype end = 0; // index after the type letter
};

bool readSpecifier(const QString &format, qsizetype start, Specifier &s)
{
    qsizetype i = start + 1;
    auto number = [&] {
        int n = 0;
        while (i < format.size() && format.at(i).isDigit())
            n = n * 10 + format.at(i++).digitValue();
        return n;
    };
    const qsizetype indexStart = i;
    number();
    if (i < format.size() && format.at(i) == QLatin1Char(':'))
        ++i;
    else
        i = indexStart;
    if (i < format.size() && format.at(i) == QLatin1Char('-')) {
        s.leftAlign = true;
        ++i;
    }
    s.width = number();
    if (i < format.size() && format.at(i) == QLatin1Char('.')) {
        ++i;
        s.precision = number();
    }
    if (i >= format.size())
        return false;
    s.type = format.at(i).toLower();
    s.end = i + 1;
    return QStringLiteral("defgmnsx").contains(s.type);
}

QString formatOne(const Specifier &s, const Value &value)
{
    const double number = value.toNumber();
    switch (s.type.toLatin1()) {
    case 'd':
        return s.precision > 0 ? QStringLiteral("%1").arg(
                   qint64(std::llround(number)), s.precision, 10, QLatin1Char('0'))
                               : QString::number(qint64(std::llround(number)));
    case 'e':
        return QString::number(number, 'E', s.precision < 0 ? 15 : s.precision);
    case 'f':
        return QString::number(core::roundTo(std::abs(number), s.precision < 0 ? 2 : s.precision)
                * (number < 0 ? -1 : 1),
            'f', s.precision < 0 ? 2 : s.precision);
    case 'g':
        return numberText(number);
    case 'm':
        return (number < 0 ? QStringLiteral("-￥") : QStringLiteral("￥"))
            + formatFloat(QStringLiteral("#,##0.")
                    + QString(s.precision < 0 ? 2 : s.precision, QLatin1Char('0')),
                std::abs(number));
    case 'n': {
        const int places = s.precision < 0 ? 2 : s.precision;
        return formatFloat(QStringLiteral("#,##0")
                + (places > 0 ? QStringLiteral(".") + QString(places, QLatin1Char('0'))
                              : QString()),
            number);
    }
    case 'x':
        return QString::number(qint64(std::llround(number)), 16).toUpper();
    default: {
        const QString text = value.toText();
        return s.precision >= 0 ? text.left(s.precision) : text;
    }
    }
}

} // namespace

QString formatDelphi(const QString &format, const Value &value)
{
    QString out;
    bool used = false;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const QChar c = format.at(i);
        if (c != QLatin1Char('%')) {
            out += c;
            continue;
        }
        if (i + 1 < format.size() && format.at(i + 1) == QLatin1Char('%')) {
            out += c;
            ++i;
            continue;
        }
        Specifier s;
        if (used || !readSpecifier(format, i, s)) {
            out += c;
            continue;
        }
        used = true;
        QString text = formatOne(s, value);
        if (text.size() < s.width)
            text = s.leftAlign ? text.leftJustified(s.width) : text.rightJustified(s.width);
        out += text;
        i = s.end - 1;
    }
    return out;
}

DisplayFormat DisplayFormat::fromProperties(const QString &kind, const QString &format)
{
    DisplayFormat f;
    f.format = format;
    if (kind == QLatin1String("fkNumeric"))
        f.kind = Kind::Numeric;
    else if (kind == QLatin1String("fkDateTime"))
        f.kind = Kind::DateTime;
    else if (kind == QLatin1String("fkBoolean"))
        f.kind = Kind::Boolean;
    return f;
}

QString DisplayFormat::apply(const Value &value) const
{
    if (value.isNull())
        return QString();
    switch (kind) {
    case Kind::Numeric:
        if (format.isEmpty() || !value.readsAsNumber())
            return value.toText();
        return format.contains(QLatin1Char('%')) ? formatDelphi(format, value)
                                                 : formatFloat(format, value.toNumber());
    case Kind::DateTime: {
        const QDateTime date = value.toDateTime();
        if (format.isEmpty() || !date.isValid())
            return value.toText();
        return formatDateTime(format, date);
    }
    case Kind::Boolean: {
        const QStringList words = format.split(QLatin1Char(','));
        if (words.size() != 2)
            return value.toText();
        return value.toBool() ? words.at(1) : words.at(0);
    }
    case Kind::Text:
        break;
    }
    return value.toText();
}

} // namespace medistock::reports
