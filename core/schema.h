#pragma once

#include "core/outcome.h"
#include "core/schemacatalogue.h"

#include <QDate>
#include <QString>

namespace medistock::core {

class Connection;

// The letterhead a new account set starts with (the company row).
struct CompanyInfo
{
    QString name;
    QString shortName;
    QString tele;
};

// What seed rows take from the moment and place they are written in.
struct SeedContext
{
    QDate today;
    CompanyInfo company;
};

// Drops the table if it exists, creates it with its indexes and writes its seed rows. A suffix
// makes a same-shaped copy under name + suffix (seeds aimed at other tables are then left out).
// Throws DbError; runs inside the caller's transaction when there is one.
void createTable(Connection &connection, const TableDef &table, const SeedContext &context,
    const QString &suffix = {});

// Runs every table routine in order, in one transaction.
Outcome createAllTables(Connection &connection, const SeedContext &context);

// Empties all but the kept tables back to their seed rows, zeroes goods stock and gives every
// goods the default supplier, then re-creates warehouse stock; one transaction.
Outcome clearBusinessData(Connection &connection, const SeedContext &context);

// Creates the account-set register of the master file if it is missing.
Outcome ensureRegisterTable(Connection &connection);

// The company row of the connected set (empty texts when there is none).
CompanyInfo readCompany(Connection &connection);

} // namespace medistock::core
