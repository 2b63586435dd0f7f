#pragma once

#include "core/interaction.h"
#include "shell/session.h"
#include "stock/movement.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

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
// The header of one of those receipts as its check hands it to the stock posting.
stock::PostingHeader receiptHeader(const QString &number);

// A working copy of the account set of a shape: built once by the bulk loader into a cache file
// (MEDISTOCK_BENCH_CACHE, else the temporary folder) and copied fresh for each run, with admin
// logged in on the copy.
class BenchSet
{
public:
    explicit BenchSet(const LedgerShape &shape);
    ~BenchSet();

    shell::Session &session() { return *m_session; }
    core::Connection &db() { return *m_connection; }
    // The working copy's file.
    QString path() const { return m_dir.filePath(QStringLiteral("jxc.db")); }
    int ledgerRows();

private:
    QTemporaryDir m_dir;
    std::unique_ptr<core::Connection> m_connection;
    core::ScriptedInteraction m_interaction;
    std::unique_ptr<shell::Session> m_session;
};

} // namespace medistock::bench
