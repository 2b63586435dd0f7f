#pragma once

#include <QString>

namespace medistock::core {

// The checks an account-set file passes before anything may write to it, in this order:
// 1. inspectDatabaseFile reads bytes only: not a folder, readable and writable in a writable
//    folder, not empty, an SQLite file (its header), of this system (application id 0 or ours),
//    not truncated, and no stray WAL beside it (below).
// 2. verifyDatabaseFile opens it read-only: "pragma quick_check" passes and the account-set
//    tables are there.
// Only then is it opened for writing. Each refusal names the file and says what to do; the file
// is left exactly as it was.
//
// SQLite pairs a WAL with its database by name alone ("X-wal" beside "X"), so the WAL of another
// file copied or left beside an account set would be replayed into it. Every file of this system
// therefore carries an identity of its own in its header (the user_version field, given when the
// file is made and to an older file when it is first opened), and every write transaction rewrites
// the header page, so that each commit's frames carry that identity. A WAL whose frames carry
// another identity (or another page size) belongs to another file: the account set is not
// opened. A WAL without a header frame (nothing of ours committed since it began) cannot be told
// and is left to SQLite.

// The fixed application id of this system's files ("MDST").
constexpr int applicationId = 0x4D445354;

// The refusal text, empty when the file may be opened. A missing file is not inspected.
QString inspectDatabaseFile(const QString &path);
// Opens the file read-only for "pragma quick_check" and the tables; the refusal text, empty when
// it passed.
QString verifyDatabaseFile(const QString &path);

// The refusal shown when SQLite reports the file damaged while it is in use.
QString damagedFileText(const QString &path);

} // namespace medistock::core
