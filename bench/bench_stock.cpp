// Posting into a large goods ledger: a 50-line purchase receipt dated today, the same dated a
// year back (every later row of its goods reruns), its reversal, and one line of a busy goods
// (20,000 ledger rows) dated a year back; the receipt of today also on a ledger of 10,000 rows.
// Also opening such a set: the checks every open runs before it may write (quick_check reads the
// whole file) and the open itself.
// Each measurement is one posting or reversal with its commit; the opposite operation that puts
// the ledger back runs with the timer paused. The account sets are built once by the bulk loader
// (bench/stockledger.cpp) into the temporary folder and copied fresh for every run:
//   ./build/bench/bench_stock
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "core/transaction.h"
#include "stock/purchasereceipt.h"

#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <map>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };
const bench::LedgerShape tenThousandRows { 101, 10000, 0 };

enum class Engine { Sqlite, Postgres };

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

void post(bench::BenchSet &set, const QString &number)
{
    core::Transaction transaction(set.db());
    stock::postPurchaseReceiptStock(set.session(), bench::receiptHeader(number));
    transaction.commit();
}

void reverse(bench::BenchSet &set, const QString &number)
{
    core::Transaction transaction(set.db());
    stock::reversePurchaseReceiptStock(set.session(), bench::receiptHeader(number));
    transaction.commit();
}

void measurePosting(benchmark::State &state, bench::LedgerShape shape, QString (*number)(),
    Engine engine = Engine::Sqlite)
{
    if (engine == Engine::Postgres && !bench::benchServer()) {
        state.SkipWithError("no PostgreSQL server: set MEDISTOCK_BENCH_PG or MEDISTOCK_TEST_PG");
        return;
    }
    try {
        bench::BenchSet &set = benchSet(shape, engine);
        for (auto _ : state) {
            post(set, number());
            state.PauseTiming();
            reverse(set, number());
            state.ResumeTiming();
        }
        state.counters["ledger_rows"] = set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void measureReversal(benchmark::State &state, bench::LedgerShape shape, QString (*number)(),
    Engine engine = Engine::Sqlite)
{
    if (engine == Engine::Postgres && !bench::benchServer()) {
        state.SkipWithError("no PostgreSQL server: set MEDISTOCK_BENCH_PG or MEDISTOCK_TEST_PG");
        return;
    }
    try {
        bench::BenchSet &set = benchSet(shape, engine);
        post(set, number());
        for (auto _ : state) {
            reverse(set, number());
            state.PauseTiming();
            post(set, number());
            state.ResumeTiming();
        }
        reverse(set, number());
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

} // namespace

BENCHMARK_CAPTURE(measureOpening, e_open_10k, tenThousandRows)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measureOpening, e_open_1M, millionRows)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, a_receipt_today_10k, tenThousandRows, bench::receiptToday)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, a_receipt_today_1M, millionRows, bench::receiptToday)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, b_receipt_year_back_1M, millionRows, bench::receiptYearBack)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measureReversal, c_reversal_year_back_1M, millionRows, bench::receiptYearBack)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, d_busy_line_year_back_1M, millionRows, bench::receiptBusyYearBack)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(
    measurePosting, pg_a_receipt_today_10k, tenThousandRows, bench::receiptToday, Engine::Postgres)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(
    measurePosting, pg_a_receipt_today_1M, millionRows, bench::receiptToday, Engine::Postgres)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, pg_b_receipt_year_back_1M, millionRows, bench::receiptYearBack,
    Engine::Postgres)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measureReversal, pg_c_reversal_year_back_1M, millionRows, bench::receiptYearBack,
    Engine::Postgres)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK_CAPTURE(measurePosting, pg_d_busy_line_year_back_1M, millionRows,
    bench::receiptBusyYearBack, Engine::Postgres)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
