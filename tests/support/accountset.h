#pragma once

#include "core/clock.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/schema.h"
#include "shell/session.h"
#include "tests/support/postgres.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

// Readable QString values in assertion messages.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace medistock::test {

// The date every fixture's clock stands on unless a test moves it.
inline QDate fixtureToday()
{
    return QDate(2025, 3, 14);
}

// A fresh account set with every table and its seed rows, in a folder of its own that is removed
// after the test: the master file jxc.db of that folder, or in the PostgreSQL run (postgres.h) a
// database of its own on the test server, dropped after the test, with the folder beside it.
class AccountSetTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    core::Connection &db() { return *m_connection; }
    QString folder() const { return m_dir.path(); }
    // The master file; only on SQLite.
    QString path() const;
    core::SeedContext seedContext() const;
    // Closes and reopens the set (what another workstation would see).
    void reopen();
    // A second connection to the same set.
    std::unique_ptr<core::Connection> openAgain() const;
    // A copy of the set as it stands, for the command line to work on beside the test's own set:
    // on SQLite the master file copied into `folder`, on the server a database beside the
    // test's, dropped with it. The command line's arguments that reach the copy.
    QStringList copySet(const QString &folder);
    // The copy copySet(folder) made.
    std::unique_ptr<core::Connection> openCopy(const QString &folder) const;
    bool onPostgres() const
    {
        return m_connection && m_connection->dialect() == core::Dialect::Postgres;
    }

    core::Clock clock { fixtureToday() };

private:
    QTemporaryDir m_dir;
    std::unique_ptr<core::Connection> m_connection;
    QString m_database;
    std::optional<core::Connection::PostgresOptions> m_copy;
};

// For a test about SQLite files themselves (their checks, their copies, their locks).
#define SKIP_ON_POSTGRES()                                                                         \
    do {                                                                                           \
        if (medistock::test::testDialect() == medistock::core::Dialect::Postgres)                  \
            GTEST_SKIP() << "about SQLite files only";                                             \
    } while (false)

// An account set with "admin" logged in: session() carries the fixture's connection, clock and a
// scripted interaction that records what was said (ui.informed, ui.asked).
class SessionTest : public AccountSetTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    shell::Session &session() { return *m_session; }
    // Logs another operator in (replacing the session).
    void loginAs(const QString &name, const QString &password = {});
    // Reloads parameters after a test wrote them directly.
    void setParameter(const QString &column, const QVariant &value);

    core::ScriptedInteraction ui;

private:
    std::unique_ptr<shell::Session> m_session;
};

// Everything a database holds, as text: each table's declared columns and all its rows in id
// order. Two databases with equal dumps hold the same tables, columns and rows.
QString dumpDatabase(core::Connection &connection, const QStringList &skipTables = {});
// The rows of one table as text lines.
QStringList dumpTable(core::Connection &connection, const QString &table);
int rowCount(core::Connection &connection, const QString &table);
// The rows a query reads, each as its values joined by "|", read the same on both engines: a
// NULL as empty, a number in plain decimals ("100000000", "0.5"; never "1e+08" nor "1.00000000").
QStringList queryRows(
    core::Connection &connection, const QString &sql, const QVariantList &params = {});
// The rows of a table as "a|b|c" over the given columns, in id order, narrowed by `where`.
QStringList tableRows(core::Connection &connection, const QString &table, const QString &columns,
    const QString &where = {}, const QVariantList &params = {});
// The lines of two snapshots that differ, each marked "-" (only before) or "+" (only after);
// empty when they are equal.
QStringList differences(const QString &before, const QString &after);

} // namespace medistock::test
