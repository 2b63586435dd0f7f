#pragma once

// The tests' two runs. Every test executable that reaches a database is registered with CTest
// twice: once as it is, on SQLite files, and once with the suffix ".pg" and the environment
// variable MEDISTOCK_TEST_DIALECT=postgres. In that second run the fixtures (AccountSetTest,
// SessionTest and everything built on them, accountset.h) give each test a fresh database on
// the PostgreSQL server that MEDISTOCK_TEST_PG names, a libpq connection text "host=… port=…
// user=… dbname=postgres" of a throwaway server on which tests may create and drop databases
// (scripts/test.sh starts one, see scripts/pgcluster.sh). Without MEDISTOCK_TEST_PG every test of
// the PostgreSQL run is skipped, with the reason printed.
//
// A test of its own for PostgreSQL reads testServer() and skips when it is empty. Tests that are
// about SQLite files themselves skip in the PostgreSQL run (skipOnPostgres). Tests that do not
// run on PostgreSQL yet are listed, each with its reason, in tests/postgres-left-out.txt.

#include "core/connection.h"
#include "core/schema.h"

#include <optional>

namespace medistock::test {

// Postgres in the PostgreSQL run, Sqlite otherwise.
core::Dialect testDialect();
// The throwaway server of MEDISTOCK_TEST_PG (its maintenance database); empty when not set.
std::optional<core::Connection::PostgresOptions> testServer();
// A database on the test server for this process alone, holding a master database made with
// `seeds`: a copy of a template made once per server and seeds, kept in a pool and put back to
// the template's rows before it is handed out again (its schema medistock_pristine keeps
// those rows; pg_dump of a test database should leave it out with -N medistock_pristine).
// The options to reach it.
core::Connection::PostgresOptions createTestDatabase(const core::SeedContext &seeds);
// A copy of the test database `name` as it stands, beside it on the server (made with pg_dump
// and pg_restore, the pristine rows left out), dropped with it by dropTestDatabase. The options
// to reach it.
core::Connection::PostgresOptions copyTestDatabase(const QString &name);
// Gives the database back to the pool, dropping the account-set databases made beside it
// (named name + "_" + code) and its copy.
void dropTestDatabase(const QString &name);

// The main of every test executable: in the PostgreSQL run without a server, or for a test left
// out of that run, says so as a skip instead of running.
int runTests(int argc, char **argv);

} // namespace medistock::test
