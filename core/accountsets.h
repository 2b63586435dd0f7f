#pragma once

#include "core/outcome.h"
#include "core/schema.h"

#include <QList>
#include <QString>

#include <memory>

namespace medistock::core {

class Clock;
class Connection;
class Interaction;

// A row of the register jxc_xtzt in the master file.
struct AccountSet
{
    QString code;
    QString name;
    QString note;
    QString fileName;
    bool isDefault = false;
    bool forbidden = false;
};

struct NewAccountSet
{
    QString name;
    QString note;
    bool isDefault = false;
    bool forbidden = false;
    CompanyInfo company;
};

QString accountSetNameRequiredText(); // "帐套名称必须填写！"
QString masterSetName(); // "主帐套": how the master file is offered among the sets
QString setFileMissingText(const QString &path); // "帐套文件不存在：" + path

// Every registered set in id order.
QList<AccountSet> listAccountSets(Connection &master);

// The sets offered at login: the master file (code empty, file jxc.db) and every registered set
// that is not disabled, in id order, the default set moved to the front.
QList<AccountSet> loginAccountSets(Connection &master);

// On a PostgreSQL server the master is a database of its own and each set another database on
// the same server, named master + "_" + code (register column zt_dbname holds that name).
QString accountSetDatabaseName(const QString &masterDatabase, const QString &code);

// Opens the file of a set in the given folder; refused (not told) when the file is missing, so
// that a stale register row never creates an empty file.
Result<std::unique_ptr<Connection>> openAccountSet(const QString &folder, const AccountSet &set);
// The same for a set registered in `master`: a file beside it, or on PostgreSQL a database on
// its server.
Result<std::unique_ptr<Connection>> openAccountSet(Connection &master, const AccountSet &set);

// Registers a new set under the next code and makes its file jxc_<code>.db beside the master
// file: a copy of the master file with every table re-created, whose company row takes the given
// letterhead. Name and note are cleaned. The file is built first under a temporary name; the
// register row and the file then appear together, or neither does.
Result<AccountSet> createAccountSet(
    Connection &master, const Clock &clock, Interaction &interaction, const NewAccountSet &request);

} // namespace medistock::core
