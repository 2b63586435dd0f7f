#pragma once

#include "core/outcome.h"
#include "core/schema.h"

#include <QString>

namespace medistock::core {

// The folder of the account-set files: the --data option when given, else the environment
// variable MEDISTOCK_DATA, else the per-user data folder of the platform.
QString resolveDataFolder(const QString &option);

// "jxc.db": the master file, a complete account set that also holds the register.
QString masterFileName();
// "jxc_" + code + ".db": the file of a registered account set.
QString accountSetFileName(const QString &code);

struct InitReport
{
    QString folder;
    QString masterPath;
    bool createdFolder = false;
    bool createdMaster = false;
};

class Connection;

// Gives an empty database every table, its seed rows and the account-set register: what a new
// master file gets, and a PostgreSQL master database on its first use. A database that has its
// tables already is left alone.
Outcome initMasterDatabase(Connection &connection, const SeedContext &context);

// Creates the data folder and the master file when missing; an existing master file is left
// alone. The file is built under a temporary name and appears whole or not at all.
Result<InitReport> initDataFolder(const QString &folder, const SeedContext &context);

} // namespace medistock::core
