#include "core/dialect.h"

namespace medistock::core {

QString columnTypeSql(Dialect dialect, const QString &declaredType)
{
    const QString type = declaredType.trimmed().toLower();
    if (type == QLatin1String("counter"))
        return dialect == Dialect::Sqlite ? QStringLiteral("integer primary key autoincrement")
                                          : QStringLiteral("serial primary key");
    if (dialect == Dialect::Sqlite)
        return declaredType + QStringLiteral(" null");
    // PostgreSQL has no nvarchar and its bit is a bit string; flags are written as 0 and 1.
    // Text widths are left open as SQLite leaves them, so both engines accept the same rows
    // (a password hash is longer than the declared width of its column).
    if (type.startsWith(QLatin1String("varchar")) || type.startsWith(QLatin1String("nvarchar")))
        return QStringLiteral("varchar null");
    if (type == QLatin1String("bit"))
        return QStringLiteral("smallint null");
    return type + QStringLiteral(" null");
}

QString beginWriteSql(Dialect dialect)
{
    // On the server two workstations write at once; serializable makes each transaction act as
    // if it ran alone, and one that cannot is refused with a conflict that the operation retries.
    return dialect == Dialect::Sqlite ? QStringLiteral("begin immediate")
                                      : QStringLiteral("begin isolation level serializable");
}

QString quotedName(const QString &name)
{
    QString inner = name;
    return QLatin1Char('"') + inner.replace(QLatin1Char('"'), QLatin1String("\"\""))
        + QLatin1Char('"');
}

} // namespace medistock::core
