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

// A sale of `lines` goods from the main warehouse, each 2 boxes at 30, paid in full.
void addSale(core::Connection &db, const QString &number, int firstGoods, int lines)
{
    const QString today = bench::benchToday().toString(QStringLiteral("yyyy-MM-dd"));
    db.exec(
        QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,"
                       "ls_yhje,u_sn,a_name,ls_status,ls_jsfs,ls_kmmc,ls_th,ls_crk,ls_qk,"
                       "ls_hkje,ls_dhbz,ls_checker,ls_chkrq) values (?,?,?,?,?,?,0,?,?,0,1,?,0,0,"
                       "0,0,0,'','')"),
        { number, QStringLiteral("100001"), bench::mainWarehouse(), today, 60.0 * lines,
            60.0 * lines, QStringLiteral("100001"), QStringLiteral("admin"),
            QStringLiteral("现金") });
    for (int g = firstGoods; g < firstGoods + lines; ++g)
        db.exec(QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,dw_name,g_zhxs,ls_sl,ls_zsl,"
                               "ls_dj,ls_tax,ls_taxdj,ls_taxje,ls_je,ls_zje,ls_dzl,ls_cbj2,ls_cbj,"
                               "ls_zcb,ls_lsj,ls_cksl,ls_qxsl,id2,id3,gl_djh2,a_name,t_ph,t_yxq,"
                               "t_scrq) values (?,?,'盒',1,2,2,30,0,30,0,60,60,1,20,20,40,35,2,0,0,"
                               "0,'',?,?,?,?)"),
            { number, bench::benchGoods(g), QStringLiteral("admin"), QStringLiteral("BENCH-S"),
                QStringLiteral("2028-12-31"), QString() });
}

SalesSet &salesSet()
{
    static SalesSet *set = nullptr;
    if (!set) {
        set = &bench::keepForRun(std::make_unique<SalesSet>());
        core::Transaction transaction(set->set.db());
        addSale(set->set.db(), saleNumber(0), 100, 50);
        for (int i = 1; i <= 1000; ++i)
            addSale(set->set.db(), saleNumber(i), 200 + (i * 7) % 4000, 5);
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
