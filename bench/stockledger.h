#pragma once

#include "core/connection.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "stock/movement.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace medistock::bench {

// The size of a benchmark account set: goods over three warehouses with three years of ledger
// up to `today`, plus one busy goods whose rows all lie in the first warehouse.
struct LedgerShape
{
    int goods = 0;
    int rows = 0; // ledger rows in all, roughly
    int busyRows = 0;
};

// Codes of the benchmark's goods and documents.
QString busyGoods();
QString benchGoods(int index); // index from 0
QString mainWarehouse();
QDate benchToday();
// Receipts made for the measurements: 50 lines dated today, 50 lines dated a year back (other
// goods), and one line of the busy goods dated a year back.
QString receiptToday();
QString receiptYearBack();
QString receiptBusyYearBack();
// Sales of 50 lines (2 boxes each of the goods the receipt of the same date takes), dated today
// and a year back, checked but not yet posted into stock.
QString saleToday();
QString saleYearBack();
// The header of one of those receipts or sales as its check hands it to the stock posting.
stock::PostingHeader postingHeader(const QString &number);
// Writes a sale of `lines` goods from benchGoods(firstGoods) on, as saving leaves it (or as its
// check marks it before the stock is posted): each line 2 boxes at 30, paid in full in cash.
void addSale(core::Connection &db, const QString &number, QDate date, int firstGoods, int lines,
    bool checked);

// The PostgreSQL server the benchmarks also run on: MEDISTOCK_BENCH_PG, else MEDISTOCK_TEST_PG
// (a libpq text naming a maintenance database on which databases may be created); empty when
// neither is set, and the PostgreSQL measurements skip saying so.
std::optional<core::Connection::PostgresOptions> benchServer();

// A working copy of the account set of a shape: built once by the bulk loader into a cache file
// (MEDISTOCK_BENCH_CACHE, else the temporary folder) and copied fresh for each run, with admin
// logged in on the copy. On a server the cache is a database kept there (medistock_bench_…) and
// the copy a database made from it, dropped with the set.
class BenchSet
{
public:
    explicit BenchSet(const LedgerShape &shape);
    BenchSet(const LedgerShape &shape, const core::Connection::PostgresOptions &server);
    ~BenchSet();

    shell::Session &session() { return *m_session; }
    core::Connection &db() { return *m_connection; }
    // The working copy's file.
    QString path() const { return m_dir.filePath(QStringLiteral("jxc.db")); }
    int ledgerRows();

private:
    QTemporaryDir m_dir;
    std::optional<core::Connection::PostgresOptions> m_server;
    QString m_database;
    std::unique_ptr<core::Connection> m_connection;
    core::ScriptedInteraction m_interaction;
    std::unique_ptr<shell::Session> m_session;
};

} // namespace medistock::bench
