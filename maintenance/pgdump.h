#pragma once

#include "maintenance/backup.h"

#include <QString>

namespace medistock::core {
class Connection;
}

namespace medistock::maintenance {

// The copies of an account set on a PostgreSQL server, made with the server's client tools
// (pg_dump and pg_restore of the server's major version when installed, else those on PATH).
// The tools run as child processes without a shell; the password goes to them in their
// environment (PGPASSWORD), never on a command line. A backup is pg_dump's custom format of the
// set's schema `public`, where its tables live. Each function returns the refusal text, empty
// when it went through; a progress answer of false stops the tool (the partial work is undone).
// `set` is the open connection to the set; it is never inside a transaction here.

// Dumps the set into `file`.
QString dumpServerSet(core::Connection &set, const QString &file, const CopyProgress &progress);

// Whether `file` is a whole backup of an account set: restored into a scratch database of its
// own on the same server (dropped afterwards, also on failure), it holds every table this system
// declares with its columns. The refusal says why not; the set is not touched.
QString checkServerDump(core::Connection &set, const QString &file, const CopyProgress &progress);

// Replaces the set's tables and rows by the dump's in one transaction of the server, under the
// set's write lock: other workstations' writes wait for it, and a failure or a cancel leaves the
// set exactly as it was.
QString restoreServerDump(core::Connection &set, const QString &file, const CopyProgress &progress);

} // namespace medistock::maintenance
