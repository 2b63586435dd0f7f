#pragma once

#include <QString>

#include <optional>
#include <utility>

namespace medistock {

// What an operation reports back: done, refused by a business rule (the message that was shown),
// or failed on a database error. Exceptions never leave an operation; this is its answer.
class Outcome
{
public:
    enum class Kind { Done, Refused, Failed };

    static Outcome done() { return Outcome(Kind::Done, {}); }
    static Outcome refused(QString message) { return Outcome(Kind::Refused, std::move(message)); }
    static Outcome failed(QString message) { return Outcome(Kind::Failed, std::move(message)); }

    bool ok() const { return m_kind == Kind::Done; }
    explicit operator bool() const { return ok(); }
    Kind kind() const { return m_kind; }
    const QString &message() const { return m_message; }

private:
    Outcome(Kind kind, QString message)
        : m_kind(kind)
        , m_message(std::move(message))
    { }

    Kind m_kind;
    QString m_message;
};

// An outcome that carries a value when it went through.
template<class T> class Result
{
public:
    Result(T value)
        : m_outcome(Outcome::done())
        , m_value(std::move(value))
    { }
    Result(Outcome outcome)
        : m_outcome(std::move(outcome))
    { }

    bool ok() const { return m_outcome.ok(); }
    explicit operator bool() const { return ok(); }
    const Outcome &outcome() const { return m_outcome; }
    const QString &message() const { return m_outcome.message(); }
    const T &value() const { return *m_value; }
    T &value() { return *m_value; }
    const T *operator->() const { return &*m_value; }
    T *operator->() { return &*m_value; }

private:
    Outcome m_outcome;
    std::optional<T> m_value;
};

} // namespace medistock
