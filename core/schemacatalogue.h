#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace medistock::core {

struct ColumnDef
{
    const char *name;
    const char *type; // as declared: "Counter", "varchar(32)", "numeric(28,8)", "bit" ...
    const char *label; // the caption screens show; empty when no screen labels the column
};

// A value of a seed row: a literal, or one that is only known when the database is made.
struct SeedValue
{
    enum class Kind { Text, Number, Today, CompanyName, CompanyShort, CompanyTele, BranchName };

    Kind kind;
    const char *literal;

    static constexpr SeedValue text(const char *t) { return { Kind::Text, t }; }
    static constexpr SeedValue number(const char *n) { return { Kind::Number, n }; }
    static constexpr SeedValue today() { return { Kind::Today, nullptr }; }
    static constexpr SeedValue companyName() { return { Kind::CompanyName, nullptr }; }
    static constexpr SeedValue companyShort() { return { Kind::CompanyShort, nullptr }; }
    static constexpr SeedValue companyTele() { return { Kind::CompanyTele, nullptr }; }
    static constexpr SeedValue branchName() { return { Kind::BranchName, nullptr }; }
};

struct SeedRow
{
    const char *table; // the table the row goes into (one routine seeds another table)
    const char *columns; // comma-separated, in the order of values
    std::span<const SeedValue> values;
};

struct IndexDef
{
    const char *table;
    const char *columns;
};

struct TableDef
{
    const char *name;
    std::span<const ColumnDef> columns;
    std::span<const SeedRow> seeds;
};

// The 167 tables of an account set, in the order "create all tables" runs their routines.
std::span<const TableDef> schemaTables();
// The account-set register, kept only in the master file.
const TableDef &registerTable();
// The 27 tables that clearing business data leaves untouched.
std::span<const char *const> keptTables();
// Indexes for posting and reporting; they add no column.
std::span<const IndexDef> schemaIndexes();

const TableDef *findTable(const QString &name);
bool hasColumn(const TableDef &table, const QString &column);
QStringList columnNames(const TableDef &table);

} // namespace medistock::core
