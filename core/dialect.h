#pragma once

#include <QString>

namespace medistock::core {

// The SQL engines the account sets can live on. Statements are written in the SQL both accept;
// the few places where they differ ask these helpers.
enum class Dialect { Sqlite, Postgres };

// The column declaration for a type as the schema writes it ("Counter", "nvarchar(64)", "bit" ...).
// SQLite keeps the declared type as written; PostgreSQL gets its nearest equivalent.
QString columnTypeSql(Dialect dialect, const QString &declaredType);

// The statement that opens a write transaction: taking the write lock at once on SQLite,
// serializable on PostgreSQL (conflicts come back as DbError::Kind::Conflict, see operation.h).
QString beginWriteSql(Dialect dialect);

// A database's name as an identifier in SQL text ("jxc_100001" in double quotes). Only names the
// program makes itself (the master's as configured, a set's code, a scratch database) go here.
QString quotedName(const QString &name);

} // namespace medistock::core
