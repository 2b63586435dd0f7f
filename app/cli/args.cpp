#include "app/cli/args.h"

namespace medistock::cli {

std::optional<QString> Args::option(const QString &name)
{
    const qsizetype at = m_arguments.indexOf(name);
    if (at < 0)
        return std::nullopt;
    if (at + 1 >= m_arguments.size()) {
        m_missingValue = true;
        m_arguments.removeAt(at);
        return std::nullopt;
    }
    const QString value = m_arguments.at(at + 1);
    m_arguments.remove(at, 2);
    return value;
}

bool Args::flag(const QString &name)
{
    return m_arguments.removeAll(name) > 0;
}

QStringList Args::positional() const
{
    return m_arguments;
}

QString Args::unknownOption() const
{
    for (const QString &argument : m_arguments)
        if (argument.startsWith(QLatin1String("--")))
            return argument;
    return QString();
}

} // namespace medistock::cli
