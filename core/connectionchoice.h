#pragma once

#include "core/connection.h"
#include "core/outcome.h"
#include "core/schema.h"

#include <QString>

#include <memory>
#include <optional>

namespace medistock::core {

// Where the account sets of a data folder live, remembered in the folder's "connection.ini":
// SQLite files in the folder itself (the default, also when the file is missing), or databases
// on a PostgreSQL server, the master being the database named there and each set the database
// master + "_" + code (core/accountsets.h). The password is never written: it is typed at login
// or found by the server's client library (~/.pgpass). The folder keeps its other files (report
// templates, layouts) either way.
struct ConnectionChoice
{
    std::optional<Connection::PostgresOptions> server;
};

ConnectionChoice readConnectionChoice(const QString &folder);
// Writes the choice; refused with the reason when the file cannot be written.
Outcome writeConnectionChoice(const QString &folder, const ConnectionChoice &choice);

// Opens the master of the choice: the file jxc.db in the folder, or the server's master database
// (its tables made on first use with `seeds`, see initMasterDatabase). Throws DbError.
std::unique_ptr<Connection> openMaster(
    const QString &folder, const ConnectionChoice &choice, const SeedContext &seeds);

} // namespace medistock::core
