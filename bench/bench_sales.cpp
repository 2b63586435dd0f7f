// Checking sales on the 1,000,000-row goods ledger: one 50-line sale dated today (its uncheck puts
// the ledger back with the timer paused), and check-all over 1,000 unchecked sales of 5 lines
// each (all unchecked again between repetitions). The sales are written as saving leaves them;
// the account set is the stock benchmark's bulk-loaded one (bench/stockledger.cpp), copied fresh:
//   ./build/bench/bench_sales
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/dberror.h"
#include "core/transaction.h"
#include "sales/salecheck.h"
#include "shell/session.h"

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };

// The benchmark answers every question yes, as the clerk who checks them would.
struct SalesSet
{
    bench::BenchSet set { millionRows };
    core::ScriptedInteraction yes { true };
    std::unique_ptr<shell::Session> session;

    SalesSet()
    {
        session = std::make_unique<shell::Session>(
            set.db(), yes, set.session().clock(), set.session().user());
    }
};

QString saleNumber(int index)
{
    return QStringLiteral("XS%1%2")
        .arg(bench::benchToday().toString(QStringLiteral("yyMMdd")))
        .arg(10001 + index);
}

SalesSet &salesSet()
{
    static SalesSet *set = nullptr;
    if (!set) {
        set = &bench::keepForRun(std::make_unique<SalesSet>());
        core::Transaction transaction(set->set.db());
        const QDate today = bench::benchToday();
        bench::addSale(set->set.db(), saleNumber(0), today, 100, 50, false);
        for (int i = 1; i <= 1000; ++i)
            bench::addSale(set->set.db(), saleNumber(i), today, 200 + (i * 7) % 4000, 5, false);
        transaction.commit();
    }
    return *set;
}

void require(const Outcome &outcome)
{
    if (!outcome)
        throw core::DbError(outcome.message());
}

void checkFiftyLineSale(benchmark::State &state)
{
    try {
        SalesSet &s = salesSet();
        for (auto _ : state) {
            require(sales::checkSale(*s.session, saleNumber(0)));
            state.PauseTiming();
            require(sales::uncheckSale(*s.session, saleNumber(0)));
            state.ResumeTiming();
        }
        state.counters["ledger_rows"] = s.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void checkAllThousandSales(benchmark::State &state)
{
    try {
        SalesSet &s = salesSet();
        for (auto _ : state) {
            const Result<sales::CheckAllSummary> all = sales::checkAllSales(*s.session, {}, {});
            require(all.outcome());
            state.PauseTiming();
            if (all->checked != 1001)
                throw core::DbError(QStringLiteral("checked %1 of 1001").arg(all->checked));
            for (int i = 0; i <= 1000; ++i)
                require(sales::uncheckSale(*s.session, saleNumber(i)));
            state.ResumeTiming();
        }
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

} // namespace

BENCHMARK(checkFiftyLineSale)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK(checkAllThousandSales)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);
