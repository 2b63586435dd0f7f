#pragma once

#include "core/outcome.h"

#include <QDateTime>
#include <QString>

#include <functional>

namespace medistock::shell {
class Session;
}

namespace medistock::maintenance {

// Backup and restore of an account set ("备份/恢复数据库", right qtcz 13).
// - A backup is taken while the program and other workstations go on working, and holds the
//   books as they stood at one moment, whatever is posted meanwhile: of an SQLite file by
//   SQLite's online backup, page by page under one read snapshot; of a set on a PostgreSQL
//   server by pg_dump's custom format (one snapshot of the set's schema public), see pgdump.h.
//   It is written under a temporary name, checked, and only then given its name, so a backup
//   file that is there is whole. Its name carries the set and the date and time:
//   "jxc_100001_20250314_153012.db" for the file jxc_100001.db, "….dump" for the database
//   jxc_100001 on a server.
// - A restore is offered only from a file that passes the checks: for a file set those an
//   account-set file passes before it is opened (core/dbfile.h: an SQLite file of this system,
//   not truncated, its integrity and its tables); for a server set a dump that restores whole
//   into a scratch database and holds this system's tables. A refused file is told with why and
//   nothing is asked or replaced. Then it asks, keeps a copy of the set it replaces in the backup
//   folder ("…_before_restore_…"), and replaces the set's data in one transaction: a refusal, a
//   cancel or an error leaves the set as it was.
// - What other workstations see of a restore: on a file they wait while the pages are copied in
//   one write transaction, on a server their writes wait for the set's write lock and their
//   reads for the replaced tables; afterwards each sees the restored books at its next
//   statement. The parameters and rights they loaded at login stay those of before until they
//   log in again, as the program that restored does.
// - On leaving the program, when the parameter cs_cs032 ("退出时自动备份，保留份数") is above
//   0, the set is backed up once a day, and of the daily backups only that many newest are kept.
// Decisions of our own: backups go to the folder "backup" inside the data folder unless another
// file is named; on a server that folder is the workstation's, the client tools (pg_dump and
// pg_restore, postgresql-client) must be installed there, and the login user needs the right to
// create databases (the check's scratch database). The progress of a server copy counts tables,
// once for each step (dump, check, restore).

// The folder the backups of a data folder go to: DATA/backup.
QString backupFolder(const QString &dataFolder);
// The dated name of a backup of the session's set, as above.
QString backupFileName(const shell::Session &session, const QDateTime &when);
// "*.db" for a file set, "*.dump" for a set on a server: the backups it can be restored from.
QString backupFilePattern(const shell::Session &session);

// Tables or pages copied of all; answering false cancels (the partial file is removed).
using CopyProgress = std::function<bool(int done, int total)>;

// Backs the session's set up to `target`, or to a new file of backupFileName in the backup
// folder of `dataFolder` when it is empty. Returns the file written.
Result<QString> backupAccountSet(const shell::Session &session, const QString &dataFolder,
    const QString &target, const CopyProgress &progress = {});

// Checks the file, asks, keeps a copy of the set ("…_before_restore_…" in the backup folder of
// `dataFolder`), and replaces the set's data by the backup's. Returns the path of the copy kept.
// The session's parameters are those of the replaced set: the program logs in again afterwards.
Result<QString> restoreAccountSet(const shell::Session &session, const QString &dataFolder,
    const QString &source, const CopyProgress &progress = {});

// The daily backup on leaving: when cs_cs032 is above 0 and no daily backup of today's date is
// there, writes "…_auto_yyyyMMdd.db" (or ".dump") and removes the oldest daily backups beyond
// cs_cs032. Returns the file written, empty when none was due.
Result<QString> dailyBackup(const shell::Session &session, const QString &dataFolder);

} // namespace medistock::maintenance
