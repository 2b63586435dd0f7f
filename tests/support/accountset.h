#pragma once

#include "core/clock.h"
#include "core/connection.h"
#include "core/schema.h"

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
inline QDate fixtureToday() { return QDate(2025, 3, 14); }

// A fresh account set with every table and its seed rows, in a folder of its own that is removed
// after the test.
class AccountSetTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    core::Connection &db() { return *m_connection; }
    QString folder() const { return m_dir.path(); }
    QString path() const;
    core::SeedContext seedContext() const;
    // Closes and reopens the file (what another workstation would see).
    void reopen();

    core::Clock clock { fixtureToday() };

private:
    QTemporaryDir m_dir;
    std::unique_ptr<core::Connection> m_connection;
};

// Everything a database holds, as text: each table's declared columns and all its rows in id
// order. Two databases with equal dumps hold the same tables, columns and rows.
QString dumpDatabase(core::Connection &connection, const QStringList &skipTables = {});
// The rows of one table as text lines.
QStringList dumpTable(core::Connection &connection, const QString &table);
int rowCount(core::Connection &connection, const QString &table);

} // namespace medistock::test
