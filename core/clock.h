#pragma once

#include <QDate>
#include <QDateTime>

namespace medistock::core {

// Today's date and the time of day for an operation. The system clock unless a date is fixed
// (tests, and --today on the command line); a fixed date keeps the running time of day.
class Clock
{
public:
    Clock() = default;
    explicit Clock(QDate fixedDate)
        : m_fixed(fixedDate)
    { }

    QDate today() const { return m_fixed.isValid() ? m_fixed : QDate::currentDate(); }
    QDateTime now() const
    {
        const QDateTime current = QDateTime::currentDateTime();
        return m_fixed.isValid() ? QDateTime(m_fixed, current.time()) : current;
    }
    QString todayText() const { return today().toString(QStringLiteral("yyyy-MM-dd")); }
    QString nowText() const { return now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")); }

    void fix(QDate date) { m_fixed = date; }

private:
    QDate m_fixed;
};

} // namespace medistock::core
