// The purchase-sales-stock summary ("进销存统计") of one year on the 1,000,000-row ledger of the
// stock benchmarks: building the operator's rows of jxc_jxchz and reading them back as the screen
// does, and the difference check (the same build, then the goods whose difference is not zero).
// The account set is built once by the bulk loader (bench/stockledger.cpp) into the temporary
// folder:
//   ./build/bench/bench_statistics
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/dberror.h"
#include "statistics/jxc.h"

#include <benchmark/benchmark.h>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };

bench::BenchSet &benchSet()
{
    static bench::BenchSet *set = nullptr;
    if (!set)
        set = &bench::keepForRun(std::make_unique<bench::BenchSet>(millionRows));
    return *set;
}

statistics::JxcRequest oneYear()
{
    const QDate today = bench::benchToday();
    statistics::JxcRequest request;
    request.range = { today.addYears(-1).addDays(1).toString(QStringLiteral("yyyy-MM-dd")),
        today.toString(QStringLiteral("yyyy-MM-dd")) };
    return request;
}

void build(bench::BenchSet &set)
{
    const Outcome built = statistics::buildJxcSummary(set.session(), oneYear());
    if (!built)
        throw core::DbError(built.message());
}

void BM_JxcSummaryOneYear(benchmark::State &state)
{
    try {
        bench::BenchSet &set = benchSet();
        qsizetype rows = 0;
        for (auto _ : state) {
            build(set);
            rows = statistics::jxcRows(set.session()).size();
        }
        state.counters["goods"] = double(rows);
        state.counters["ledger_rows"] = set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void BM_DifferenceCheckOneYear(benchmark::State &state)
{
    try {
        bench::BenchSet &set = benchSet();
        qsizetype listed = 0;
        for (auto _ : state) {
            build(set);
            listed = statistics::jxcDifferences(set.session()).size();
        }
        state.counters["goods_listed"] = double(listed);
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

} // namespace

BENCHMARK(BM_JxcSummaryOneYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_DifferenceCheckOneYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
