#pragma once

#include <QString>

#include <stdexcept>

namespace medistock::core {

// The data layer's one error channel. Connection methods throw it; every operation catches it at
// its boundary (see guarded() in core/operation.h) and reports an Outcome::failed instead.
class DbError : public std::runtime_error
{
public:
    explicit DbError(const QString &message)
        : std::runtime_error(message.toStdString())
        , m_message(message)
    { }

    // The Chinese text shown to the operator.
    const QString &message() const { return m_message; }

private:
    QString m_message;
};

} // namespace medistock::core
