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
// - A backup is taken while the program and other workstations go on working: SQLite's online
//   backup copies the file page by page under one read snapshot, so it holds the books as they
//   stood at one moment, whatever is posted meanwhile. It is written under a temporary name,
//   checked ("pragma quick_check" and the tables) and only then given its name, so a backup file
//   that is there is whole. Its name carries the set and the date and time.
// - A restore is offered only from a file that passes the checks an account-set file passes
//   before it is opened (core/dbfile.h: an SQLite file of this system, not truncated, its
//   integrity and its tables). It asks first, keeps a copy of the set it replaces in the backup
//   folder, then copies the backup into the open set in one write transaction (other
//   workstations wait and then see the restored books) and gives the file an identity of its
//   own again. A refusal or an error leaves the set as it was.
// - On leaving the program, when the parameter cs_cs032 ("退出时自动备份，保留份数") is above
//   0, the set is backed up once a day, and of the daily backups only that many newest are kept.
// Decisions of our own: backups go to the folder "backup" inside the data folder unless another
// file is named; an account set on PostgreSQL is backed up with the server's own tools, so these
// operations refuse it with a message saying so.

// The folder the backups of a data folder go to: DATA/backup.
QString backupFolder(const QString &dataFolder);
// "jxc_100001_20250314_153012.db" for the set file jxc_100001.db at that moment.
QString backupFileName(const QString &setFile, const QDateTime &when);

// Pages copied of all; answering false cancels (the partial file is removed).
using CopyProgress = std::function<bool(int done, int total)>;

// Backs the session's set up to `target`, or to a new file of backupFileName in backupFolder
// when it is empty. Returns the file written.
Result<QString> backupAccountSet(
    const shell::Session &session, const QString &target, const CopyProgress &progress = {});

// Checks the file, asks, keeps a copy of the set ("…_before_restore_…"), and replaces the set's
// data by the backup's. Returns the path of the copy kept. The session's parameters are those of
// the replaced set: the program logs in again afterwards.
Result<QString> restoreAccountSet(
    const shell::Session &session, const QString &source, const CopyProgress &progress = {});

// The daily backup on leaving: when cs_cs032 is above 0 and no daily backup of today's date is
// there, writes "…_auto_yyyyMMdd.db" and removes the oldest daily backups beyond cs_cs032.
// Returns the file written, empty when none was due.
Result<QString> dailyBackup(const shell::Session &session);

} // namespace medistock::maintenance
