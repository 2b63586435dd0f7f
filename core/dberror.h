#pragma once

#include <QString>

#include <stdexcept>

namespace medistock::core {

// The data layer's one error channel. Connection methods throw it; every operation catches it at
// its boundary (see guarded() in core/operation.h) and reports an Outcome::failed instead.
class DbError : public std::runtime_error
{
public:
    // Busy: another connection held the database past the busy timeout (SQLite). Conflict: the
    // server gave up the transaction because another one touched the same rows at once
    // (PostgreSQL's serialization failure or deadlock). Either way the whole operation may be
    // tried again.
    enum class Kind { Other, Busy, Conflict };

    explicit DbError(const QString &message, Kind kind = Kind::Other)
        : std::runtime_error(message.toStdString())
        , m_message(message)
        , m_kind(kind)
    { }

    // The Chinese text shown to the operator.
    const QString &message() const { return m_message; }
    // Trying the whole operation again may succeed.
    bool busy() const { return m_kind != Kind::Other; }
    bool conflict() const { return m_kind == Kind::Conflict; }

private:
    QString m_message;
    Kind m_kind;
};

} // namespace medistock::core
