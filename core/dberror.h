#pragma once

#include <QString>

#include <stdexcept>

namespace medistock::core {

// The data layer's one error channel. Connection methods throw it; every operation catches it at
// its boundary (see guarded() in core/operation.h) and reports an Outcome::failed instead.
class DbError : public std::runtime_error
{
public:
    explicit DbError(const QString &message, bool busy = false)
        : std::runtime_error(message.toStdString())
        , m_message(message)
        , m_busy(busy)
    { }

    // The Chinese text shown to the operator.
    const QString &message() const { return m_message; }
    // Another connection held the database past the busy timeout: trying again may succeed.
    bool busy() const { return m_busy; }

private:
    QString m_message;
    bool m_busy;
};

} // namespace medistock::core
