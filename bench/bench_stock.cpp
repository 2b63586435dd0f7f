// Posting into a large goods ledger, on an SQLite file and (the cases named pg_…) on a PostgreSQL
// server, with the same rows on both:
//   a/b  the stock posting of a 50-line purchase receipt dated today / a year back (every later
//        row of its goods reruns), on the ledger of 1,000,000 rows and on one of 10,000;
//   f/g  the same for a 50-line sale (2 boxes of each goods), through the sale's own stock posting;
//   c    the year-back receipt's reversal; d  one line of a busy goods (20,000 ledger rows) dated
//        a year back; both on the 1,000,000 rows;
//   e    opening such an SQLite set: the checks every open runs before it may write (quick_check
//        reads the whole file) and the open itself.
// What is timed for a posting: a write transaction as every operation opens it (core::Transaction:
// on the server the set's write lock, then a serializable transaction), the engine's posting of a
// document whose header its check has already marked (stock::postPurchaseReceiptStock,
// sales::postSaleStock: lines, ledger rows, reruns, stores, settlement), and the commit. Not timed:
// the check's questions, its status re-read and money postings, which are the same on every
// ledger. The opposite operation that puts the ledger back runs with the timer paused.
// The account sets are built once by the bulk loader (bench/stockledger.cpp; it tells how long a
// set took) into the temporary folder, or MEDISTOCK_BENCH_CACHE, and copied fresh for every run;
// on a server (MEDISTOCK_BENCH_PG, else MEDISTOCK_TEST_PG) into a database kept there by name:
//   ./build/bench/bench_stock
//   PG=$(scripts/pgcluster.sh start /tmp/bench-pg)
//   MEDISTOCK_BENCH_PG="$PG" ./build/bench/bench_stock --benchmark_repetitions=5
//   scripts/pgcluster.sh stop /tmp/bench-pg
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "core/transaction.h"
#include "sales/salestock.h"
#include "stock/purchasereceipt.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <map>
#include <string>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };
const bench::LedgerShape tenThousandRows { 101, 10000, 0 };

enum class Engine { Sqlite, Postgres };

// A document's stock posting and the reversal that takes it back out.
struct Posting
{
    int (*post)(const shell::Session &, const stock::PostingHeader &);
    void (*reverse)(const shell::Session &, const stock::PostingHeader &);
};

const Posting purchase { stock::postPurchaseReceiptStock, stock::reversePurchaseReceiptStock };
const Posting sale { sales::postSaleStock, sales::reverseSaleStock };

bench::BenchSet &benchSet(const bench::LedgerShape &shape, Engine engine = Engine::Sqlite)
{
    static std::map<std::pair<int, Engine>, bench::BenchSet *> sets;
    bench::BenchSet *&set = sets[{ shape.rows, engine }];
    if (!set)
        set = engine == Engine::Sqlite
            ? &bench::keepForRun(std::make_unique<bench::BenchSet>(shape))
            : &bench::keepForRun(std::make_unique<bench::BenchSet>(shape, *bench::benchServer()));
    return *set;
}

void post(bench::BenchSet &set, const Posting &posting, const QString &number)
{
    core::Transaction transaction(set.db());
    posting.post(set.session(), bench::postingHeader(number));
    transaction.commit();
}

void reverse(bench::BenchSet &set, const Posting &posting, const QString &number)
{
    core::Transaction transaction(set.db());
    posting.reverse(set.session(), bench::postingHeader(number));
    transaction.commit();
}

// One measured case: the set it runs on and the document it posts.
struct Case
{
    bench::LedgerShape shape;
    Engine engine;
    Posting posting;
    QString (*number)();
};

bool serverMissing(benchmark::State &state, Engine engine)
{
    if (engine == Engine::Postgres && !bench::benchServer()) {
        state.SkipWithError("no PostgreSQL server: set MEDISTOCK_BENCH_PG or MEDISTOCK_TEST_PG");
        return true;
    }
    return false;
}

void measurePosting(benchmark::State &state, const Case &c)
{
    if (serverMissing(state, c.engine))
        return;
    try {
        bench::BenchSet &set = benchSet(c.shape, c.engine);
        for (auto _ : state) {
            post(set, c.posting, c.number());
            state.PauseTiming();
            reverse(set, c.posting, c.number());
            state.ResumeTiming();
        }
        state.counters["ledger_rows"] = set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void measureReversal(benchmark::State &state, const Case &c)
{
    if (serverMissing(state, c.engine))
        return;
    try {
        bench::BenchSet &set = benchSet(c.shape, c.engine);
        post(set, c.posting, c.number());
        for (auto _ : state) {
            reverse(set, c.posting, c.number());
            state.PauseTiming();
            post(set, c.posting, c.number());
            state.ResumeTiming();
        }
        reverse(set, c.posting, c.number());
        state.counters["ledger_rows"] = set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void measureOpening(benchmark::State &state, bench::LedgerShape shape)
{
    try {
        bench::BenchSet &set = benchSet(shape);
        for (auto _ : state) {
            auto opened = core::Connection::openSqlite(set.path());
            benchmark::DoNotOptimize(opened.get());
        }
        state.counters["file_mb"] = double(QFileInfo(set.path()).size()) / 1e6;
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

// A case is one posting: its figure is the median over the runs --benchmark_repetitions asks for
// (a single run without it); an open repeats 15 times on its own.
void add(const std::string &name, void (*measure)(benchmark::State &, const Case &), const Case &c,
    int repetitions = 0)
{
    const std::string prefix = c.engine == Engine::Postgres ? "pg_" : "";
    benchmark::internal::Benchmark *run = benchmark::RegisterBenchmark(
        (prefix + name).c_str(), [measure, c](benchmark::State &state) { measure(state, c); });
    run->Unit(benchmark::kMillisecond)->Iterations(1)->ReportAggregatesOnly(true);
    if (repetitions > 0)
        run->Repetitions(repetitions);
}

// Every posting case on SQLite, then the same on the server.
[[maybe_unused]] const bool registered = [] {
    for (const bench::LedgerShape &shape : { tenThousandRows, millionRows })
        add(
            shape.rows == millionRows.rows ? "e_open_1M" : "e_open_10k",
            [](benchmark::State &state, const Case &c) { measureOpening(state, c.shape); },
            { shape, Engine::Sqlite, purchase, nullptr }, 15);
    for (Engine engine : { Engine::Sqlite, Engine::Postgres }) {
        const auto on = [engine](bench::LedgerShape shape, Posting posting, QString (*number)()) {
            return Case { shape, engine, posting, number };
        };
        add("a_receipt_today_10k", measurePosting,
            on(tenThousandRows, purchase, bench::receiptToday));
        add("a_receipt_today_1M", measurePosting, on(millionRows, purchase, bench::receiptToday));
        add("b_receipt_year_back_10k", measurePosting,
            on(tenThousandRows, purchase, bench::receiptYearBack));
        add("b_receipt_year_back_1M", measurePosting,
            on(millionRows, purchase, bench::receiptYearBack));
        add("f_sale_today_10k", measurePosting, on(tenThousandRows, sale, bench::saleToday));
        add("f_sale_today_1M", measurePosting, on(millionRows, sale, bench::saleToday));
        add("g_sale_year_back_10k", measurePosting, on(tenThousandRows, sale, bench::saleYearBack));
        add("g_sale_year_back_1M", measurePosting, on(millionRows, sale, bench::saleYearBack));
        add("c_reversal_year_back_1M", measureReversal,
            on(millionRows, purchase, bench::receiptYearBack));
        add("d_busy_line_year_back_1M", measurePosting,
            on(millionRows, purchase, bench::receiptBusyYearBack));
    }
    return true;
}();

} // namespace
