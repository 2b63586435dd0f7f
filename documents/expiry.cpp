#include "documents/expiry.h"

#include <QDate>

namespace medistock::documents {

namespace {

const QString noExpiry = QStringLiteral("0000-00");

bool isDay(const QString &text)
{
    return text.size() == 10 && QDate::fromString(text, QStringLiteral("yyyy-MM-dd")).isValid();
}

// The month's first day, invalid unless the text is a real month "yyyy-MM".
QDate monthOf(const QString &text)
{
    if (text.size() != 7)
        return {};
    return QDate::fromString(text + QStringLiteral("-01"), QStringLiteral("yyyy-MM-dd"));
}

} // namespace

bool isExpiryText(const QString &text)
{
    return text.isEmpty() || text == noExpiry || isDay(text) || monthOf(text).isValid();
}

QString expiryDay(const QString &expiry)
{
    if (expiry.isEmpty() || expiry == noExpiry)
        return {};
    const QDate month = monthOf(expiry);
    if (month.isValid())
        return month.addMonths(1).addDays(-1).toString(QStringLiteral("yyyy-MM-dd"));
    return expiry;
}

QString expirySortKey(const QString &expiry)
{
    const QString day = expiryDay(expiry);
    return day.isEmpty() ? QStringLiteral("9999-99-99") : day;
}

bool expiredBy(const QString &expiry, const QString &date)
{
    const QString day = expiryDay(expiry);
    return !day.isEmpty() && day < date;
}

} // namespace medistock::documents
