// The till on the 1,000,000-row goods ledger: a 3-line sale rung up and sold (stock questions,
// batches, posting), 1,000 times, each a repetition; and each POS report over one year of
// 100,000 POS lines (33,334 documents of 3 lines, one in twenty a return, with members, employees
// on commission and five cashiers), written straight into a copy of the same account set:
//   ./build/bench/bench_pos
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/dberror.h"
#include "core/transaction.h"
#include "pos/commission.h"
#include "pos/rankings.h"
#include "pos/salesreports.h"
#include "pos/till.h"
#include "shell/session.h"

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };
constexpr int posDocuments = 33334;
constexpr int linesPerDocument = 3;

// Every question is answered yes, as the cashier who sells anyway would.
struct PosSet
{
    bench::BenchSet set { millionRows };
    core::ScriptedInteraction yes { true };
    std::unique_ptr<shell::Session> session;

    PosSet()
    {
        session = std::make_unique<shell::Session>(
            set.db(), yes, set.session().clock(), set.session().user());
    }
};

void require(const Outcome &outcome)
{
    if (!outcome)
        throw core::DbError(outcome.message());
}

QString dateOf(int document)
{
    return bench::benchToday().addDays(-(document % 365)).toString(QStringLiteral("yyyy-MM-dd"));
}

QString numberOf(int document, bool isReturn)
{
    return (isReturn ? QStringLiteral("XT") : QStringLiteral("XS"))
        + bench::benchToday().addDays(-(document % 365)).toString(QStringLiteral("yyMMdd"))
        + QString::number(10001 + document / 365);
}

void addPeople(core::Connection &db)
{
    for (int e = 0; e < 20; ++e)
        db.exec(QStringLiteral("insert into jxc_user (u_sn,u_name,u_tcfs,u_tc,u_zdlr) values "
                               "(?,?,?,?,?)"),
            { QString::number(200001 + e), QStringLiteral("员工%1").arg(e), e % 2, e % 5, e % 3 });
    for (int c = 0; c < 5; ++c)
        db.exec(QStringLiteral("insert into jxc_admin (a_sn,a_name,r_sn) values (?,?,?)"),
            { QString::number(200001 + c), QStringLiteral("收银员%1").arg(c),
                QStringLiteral("100001") });
    for (int m = 0; m < 500; ++m)
        db.exec(QStringLiteral("insert into jxc_hyxx (hy_sn,hy_bh,hy_name,hl_sn,hy_status,hy_zhje,"
                               "hy_mobile) values (?,?,?,?,1,0,?)"),
            { QString::number(300001 + m), QString::number(800001 + m),
                QStringLiteral("会员%1").arg(m), QStringLiteral("100001"),
                QStringLiteral("1390000%1").arg(m, 4, 10, QLatin1Char('0')) });
    db.exec(QStringLiteral("update jxc_goods set g_tclb=1+(cast(g_sn as integer) % 3),g_tc=2 "
                           "where cast(g_sn as integer) % 10=0"));
}

void addLine(core::Connection &db, int document, int line, const QString &number, bool isReturn)
{
    const int goods = (document * 7 + line * 131) % 5000;
    const double sign = isReturn ? -1 : 1;
    const double quantity = sign * (1 + (document + line) % 3);
    const double price = 6.5 + goods % 40;
    const double cost = 5 + goods % 40;
    const bool gift = (document + line) % 50 == 0;
    const double amount = gift ? 0 : price * quantity;
    db.exec(QStringLiteral("insert into jxc_posxssp (gl_djh,g_sn,pos_dj,pos_sl,pos_zje,t_zp,"
                           "a_name,pos_dzl,pos_cbj,pos_zcb,pos_zsl,dw_name,g_zhxs) values "
                           "(?,?,?,?,?,?,?,1,?,?,?,'盒',1)"),
        { number, bench::benchGoods(goods), price, quantity, amount,
            gift ? QStringLiteral("(赠品)") : QString(),
            QStringLiteral("收银员%1").arg(document % 5), cost, cost * quantity, quantity });
    db.exec(QStringLiteral("insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,g_name,"
                           "dw_name,gl_dj,gl_sl,gl_zje,gl_je,gl_cbj,gl_zcb,gl_lr,gl_dzl,a_name,"
                           "u_name,ck_sn,gl_fdmc,gl_bz) values (?,?,?,?,?,'盒',?,?,?,?,?,?,?,1,?,?,"
                           "?,'99',?)"),
        { isReturn ? QStringLiteral("xt") : QStringLiteral("xs"), number, dateOf(document),
            bench::benchGoods(goods), QStringLiteral("测试药品%1").arg(goods), price, quantity,
            amount, amount, cost, cost * quantity, amount - cost * quantity,
            QStringLiteral("收银员%1").arg(document % 5),
            QStringLiteral("员工%1").arg(document % 20), bench::mainWarehouse(),
            gift ? QStringLiteral("(赠品)") : QString() });
}

void addDocuments(core::Connection &db)
{
    for (int d = 0; d < posDocuments; ++d) {
        const bool isReturn = d % 20 == 19;
        const QString number = numberOf(d, isReturn);
        double total = 0;
        for (int l = 0; l < linesPerDocument; ++l) {
            addLine(db, d, l, number, isReturn);
            const int goods = (d * 7 + l * 131) % 5000;
            if ((d + l) % 50 != 0)
                total += (isReturn ? -1 : 1) * (1 + (d + l) % 3) * (6.5 + goods % 40);
        }
        db.exec(QStringLiteral("insert into jxc_posxsd (gl_djh,hy_sn,pos_xsrq,ck_sn,pos_yfje,"
                               "pos_sfje,pos_mlje,a_name,u_sn,pos_xj,pos_czk,pos_yhk,pos_djq,"
                               "pos_wxje,pos_zfbje,pos_zlje,pos_yhzkje,pos_bcjf) values "
                               "(?,?,?,?,?,?,0,?,?,?,0,0,0,0,0,0,0,0)"),
            { number, d % 3 == 0 ? QString::number(300001 + d % 500) : QString(),
                dateOf(d) + QStringLiteral(" 10:%1:00").arg(d % 60, 2, 10, QLatin1Char('0')),
                bench::mainWarehouse(), total, total, QStringLiteral("收银员%1").arg(d % 5),
                QString::number(200001 + d % 20), total });
    }
}

PosSet &reportSet()
{
    static PosSet *set = nullptr;
    if (!set) {
        set = &bench::keepForRun(std::make_unique<PosSet>());
        core::Connection &db = set->set.db();
        core::Transaction transaction(db);
        addPeople(db);
        addDocuments(db);
        transaction.commit();
    }
    return *set;
}

members::RetailDocument threeLines(int index)
{
    members::RetailDocument sale;
    sale.warehouse = bench::mainWarehouse();
    for (int l = 0; l < 3; ++l) {
        members::RetailLine line;
        line.goods = bench::benchGoods(1 + (index * 3 + l * 1667) % 4999);
        line.quantity = 1;
        line.price = 20;
        sale.lines.append(line);
    }
    sale.payment.counter.cash = 60;
    return sale;
}

void sellThreeLineSale(benchmark::State &state)
{
    try {
        static PosSet &s = bench::keepForRun(std::make_unique<PosSet>());
        static int index = 0;
        for (auto _ : state) {
            const Result<QString> sold = pos::sellAtTill(*s.session, threeLines(index++));
            require(sold.outcome());
        }
        state.counters["ledger_rows"] = s.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

const pos::DateRange year { QStringLiteral("2024-03-15"), QStringLiteral("2025-03-14") };

template<class Report> void runReport(benchmark::State &state, Report report)
{
    try {
        PosSet &s = reportSet();
        qsizetype rows = 0;
        for (auto _ : state) {
            const auto result = report(*s.session);
            require(result.outcome());
            rows = result->size();
        }
        state.counters["rows"] = double(rows);
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

void journal(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) {
        return pos::salesJournal(s, { year, {}, {}, {}, {} });
    });
}

void details(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) {
        return pos::salesLines(s, { year, {}, {}, {}, {} });
    });
}

void goodsStatistics(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) {
        return pos::goodsSales(s, { year, {}, {}, {}, {} });
    });
}

void ranking(benchmark::State &state)
{
    const auto view = pos::RankingView(state.range(0));
    runReport(state, [view](shell::Session &s) {
        return pos::salesRanking(s, { year, {}, view, pos::RankingOrder::ProfitRate });
    });
}

void memberConsumption(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) {
        return pos::memberSales(s, { year, {}, {}, {}, {} });
    });
}

void cashierTakings(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) { return pos::cashierTakings(s, { year, {}, {} }); });
}

void commission(benchmark::State &state)
{
    runReport(state, [](shell::Session &s) { return pos::posCommission(s, { year, {} }); });
}

} // namespace

BENCHMARK(sellThreeLineSale)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(1000)
    ->ReportAggregatesOnly(true);
BENCHMARK(journal)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(details)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(goodsStatistics)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(ranking)
    ->Arg(0)
    ->Arg(1)
    ->Arg(2)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(memberConsumption)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(cashierTakings)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
BENCHMARK(commission)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(10)
    ->ReportAggregatesOnly(true);
