// Purchasing on the 1,000,000-row ledger of the stock benchmarks: saving a 50-line receipt
// through the shared entry (validation, numbering, header, lines, log), checking it (money and
// stock posting), and unchecking it. Each measurement is one operation with its transaction; the
// operation that puts the set back runs with the timer paused:
//   ./build/bench/bench_purchasing
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/dberror.h"
#include "purchasing/entry.h"
#include "purchasing/receipt.h"

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };

// The bench set with a session of its own that answers every question "Yes".
struct Purchasing
{
    bench::BenchSet set { millionRows };
    core::ScriptedInteraction yes { true };
    std::unique_ptr<shell::Session> session;

    Purchasing()
    {
        auto opened = shell::openSession(set.db(), yes, core::Clock(bench::benchToday()),
            QStringLiteral("admin"), QString(), core::LoginMode::Script);
        if (!opened)
            throw core::DbError(opened.message());
        session = std::move(opened.value());
    }
};

Purchasing &purchasing()
{
    static Purchasing &instance = bench::keepForRun(std::make_unique<Purchasing>());
    return instance;
}

// 50 lines of goods that have years of ledger in the main warehouse, a box of 10 each.
purchasing::PurchaseDraft fiftyLines()
{
    purchasing::PurchaseDraft draft;
    draft.entry.date = bench::benchToday().toString(QStringLiteral("yyyy-MM-dd"));
    draft.entry.party = QStringLiteral("100001");
    draft.entry.warehouse = bench::mainWarehouse();
    draft.entry.note = QStringLiteral("基准测试");
    for (int g = 101; g < 151; ++g) {
        documents::LineDraft line;
        line.goods = bench::benchGoods(g);
        line.quantity = QStringLiteral("10");
        line.price = QStringLiteral("18.5");
        line.taxRate = QStringLiteral("13");
        line.batch = QStringLiteral("BENCH-P");
        line.produced = QStringLiteral("2025-01-01");
        line.expiry = QStringLiteral("2028-12-31");
        draft.entry.lines.append(line);
    }
    draft.header.paid = 500;
    return draft;
}

QString save(Purchasing &p, const purchasing::PurchaseDraft &draft)
{
    const Result<QString> saved = purchasing::savePurchaseReceipt(*p.session, draft);
    if (!saved)
        throw core::DbError(saved.message());
    return saved.value();
}

void require(const Outcome &outcome)
{
    if (!outcome)
        throw core::DbError(outcome.message());
}

void saveReceipt(benchmark::State &state)
{
    try {
        Purchasing &p = purchasing();
        const purchasing::PurchaseDraft draft = fiftyLines();
        for (auto _ : state) {
            const QString number = save(p, draft);
            state.PauseTiming();
            require(purchasing::deletePurchaseReceipt(*p.session, number));
            state.ResumeTiming();
        }
        state.counters["ledger_rows"] = p.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void checkReceipt(benchmark::State &state)
{
    try {
        Purchasing &p = purchasing();
        const QString number = save(p, fiftyLines());
        for (auto _ : state) {
            require(purchasing::checkPurchaseReceipt(*p.session, number));
            state.PauseTiming();
            require(purchasing::uncheckPurchaseReceipt(*p.session, number));
            state.ResumeTiming();
        }
        require(purchasing::deletePurchaseReceipt(*p.session, number));
        state.counters["ledger_rows"] = p.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void uncheckReceipt(benchmark::State &state)
{
    try {
        Purchasing &p = purchasing();
        const QString number = save(p, fiftyLines());
        require(purchasing::checkPurchaseReceipt(*p.session, number));
        for (auto _ : state) {
            require(purchasing::uncheckPurchaseReceipt(*p.session, number));
            state.PauseTiming();
            require(purchasing::checkPurchaseReceipt(*p.session, number));
            state.ResumeTiming();
        }
        require(purchasing::uncheckPurchaseReceipt(*p.session, number));
        require(purchasing::deletePurchaseReceipt(*p.session, number));
        state.counters["ledger_rows"] = p.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

} // namespace

BENCHMARK(saveReceipt)
    ->Name("a_save_50_lines_1M")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK(checkReceipt)
    ->Name("b_check_50_lines_1M")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
BENCHMARK(uncheckReceipt)
    ->Name("c_uncheck_50_lines_1M")
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(25)
    ->ReportAggregatesOnly(true);
