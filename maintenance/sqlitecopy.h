#pragma once

#include "maintenance/backup.h"

#include <QString>

namespace medistock::maintenance {

enum class CopyMode {
    ToNewFile, // a backup: the copy is made self-contained (no WAL) and given its own identity
    IntoOpenSet, // a restore: the pages replace the open set's in one write transaction
};

// Copies every page of the SQLite file `from` into `to` through SQLite's online backup, holding
// one read snapshot of `from` for the whole copy, so that writers elsewhere neither disturb nor
// restart it. Waits while another connection holds the write lock of `to`. Returns the refusal
// text, empty when the copy is complete; a cancelled or failed copy leaves `to` as it was (a new
// file is then left for the caller to remove).
QString copyDatabase(
    const QString &from, const QString &to, CopyMode mode, const CopyProgress &progress);

} // namespace medistock::maintenance
