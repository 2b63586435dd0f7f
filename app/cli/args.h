#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace medistock::cli {

// The arguments after the command name: options are taken out by name, what remains is
// positional. A missing value or an unknown option is a usage error.
class Args
{
public:
    explicit Args(QStringList arguments)
        : m_arguments(std::move(arguments))
    { }

    // "--name VALUE"; empty optional when absent.
    std::optional<QString> option(const QString &name);
    // "--name" without a value.
    bool flag(const QString &name);
    // The positional arguments once every option has been taken.
    QStringList positional() const;
    // An option-looking argument nobody took, or empty.
    QString unknownOption() const;
    // True when an option was given without its value.
    bool missingValue() const { return m_missingValue; }

private:
    QStringList m_arguments;
    bool m_missingValue = false;
};

} // namespace medistock::cli
