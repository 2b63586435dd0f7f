// The customer statements over one year for all customers on the 1,000,000-row goods ledger. The
// stock benchmark's bulk-loaded account set (bench/stockledger.cpp) is copied fresh and given what
// the statements read besides the ledger: 200 customers of six types in five regions, each sale
// document of the ledger a checked sale of one of them (header in jxc_lsxsd, its rows' party the
// customer), and every 40th sale returned in part the next day (header in jxc_xsthd, "xt" rows).
//   ./build/bench/bench_statements
#include "accounts/statements.h"
#include "bench/keep.h"
#include "bench/stockledger.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"
#include "shell/session.h"

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const bench::LedgerShape millionRows { 5000, 1000000, 20000 };
constexpr int customers = 200;

void addCustomers(core::Connection &db)
{
    const QStringList regions { "城东", "城西", "城南", "城北", "" };
    for (int i = 0; i < customers; ++i)
        db.exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_jm,kh_lwje,kh_forbid,kt_sn,"
                               "z_name) values (?,?,?,0,0,?,?)"),
            { QString::number(100002 + i), QStringLiteral("客户%1").arg(i),
                QStringLiteral("KH%1").arg(i), QString::number(1000 + i % 6), regions[i % 5] });
}

// Each sale document goes to one customer, by its number.
void assignSales(core::Connection &db)
{
    db.exec(QStringLiteral("update jxc_goodslist set ghs_sn=cast(100002+(cast(substr(gl_djh,3,6) "
                           "as integer)+cast(substr(gl_djh,9) as integer))%? as text) where "
                           "gl_flag=?"),
        { customers, QStringLiteral("xs") });
    db.exec(QStringLiteral(
                "insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,ls_yhje,"
                "ls_hkje,u_sn,a_name,ls_note,ls_status,ls_checker,ls_chkrq,ls_yf,ls_bzf,ls_yffs,"
                "ls_jsfs,ls_kmmc) select gl_djh,min(ghs_sn),min(ck_sn),min(gl_kdrq),sum(gl_zje),"
                "sum(gl_zje)-?,0,0,?,?,?,?,?,min(gl_kdrq),?,0,?,?,? from jxc_goodslist where "
                "gl_flag=? group by gl_djh"),
        { 10, QStringLiteral("100001"), QStringLiteral("admin"), QString(), 1,
            QStringLiteral("admin"), 5, QStringLiteral("我方付运费"), 2, QStringLiteral("现金"),
            QStringLiteral("xs") });
}

// Every 40th sale has its first row returned the next day.
void addReturns(core::Connection &db)
{
    db.exec(QStringLiteral(
                "insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,g_name,dw_name,gl_dj,"
                "gl_sl,gl_zje,gl_je,gl_lr,gl_dzl,a_name,ck_sn,ghs_sn,t_ph,t_yxq,t_scrq,gl_checker,"
                "gl_chkrq,gl_sqsl,gl_sqje,gl_kc,gl_pjjj,gl_kczje) select ?,'XT'||substr(gl_djh,3),"
                "date(gl_kdrq,'+1 day'),g_sn,g_name,dw_name,gl_dj,-gl_sl,-gl_zje,-gl_je,-gl_lr,1,"
                "a_name,ck_sn,ghs_sn,t_ph,t_yxq,t_scrq,gl_checker,gl_chkrq,0,0,0,gl_pjjj,0 from "
                "jxc_goodslist where id in (select min(id) from jxc_goodslist where gl_flag=? "
                "group by gl_djh having (cast(substr(gl_djh,3,6) as integer)+cast(substr(gl_djh,9) "
                "as integer))%40=0)"),
        { QStringLiteral("xt"), QStringLiteral("xs") });
    db.exec(QStringLiteral("insert into jxc_xsthd (gl_djh,kh_sn,ck_sn,th_xsrq,th_yfje,th_sfje,"
                           "th_hkje,u_sn,a_name,th_note,th_status,th_checker,th_chkrq) select "
                           "gl_djh,min(ghs_sn),min(ck_sn),min(gl_kdrq),sum(gl_zje),sum(gl_zje),0,"
                           "?,?,?,?,?,min(gl_kdrq) from jxc_goodslist where gl_flag=? group by "
                           "gl_djh"),
        { QStringLiteral("100001"), QStringLiteral("admin"), QString(), 1, QStringLiteral("admin"),
            QStringLiteral("xt") });
}

// A copy made from an older catalogue gets the indexes the catalogue has added since, named as
// a new account set names them.
void addMissingIndexes(core::Connection &db)
{
    QHash<QString, int> numbers;
    for (const core::IndexDef &index : core::schemaIndexes()) {
        const QString table = QString::fromLatin1(index.table);
        const int number = ++numbers[table];
        db.execDirect(QStringLiteral("create index if not exists ix_%1_%2 on %1 (%3)")
                          .arg(table)
                          .arg(number)
                          .arg(QString::fromLatin1(index.columns)));
    }
}

struct StatementSet
{
    bench::BenchSet set { millionRows };

    StatementSet()
    {
        core::Connection &db = set.db();
        core::Transaction transaction(db);
        addCustomers(db);
        assignSales(db);
        addReturns(db);
        addMissingIndexes(db);
        transaction.commit();
    }
};

StatementSet &statementSet()
{
    static StatementSet *set = nullptr;
    if (!set)
        set = &bench::keepForRun(std::make_unique<StatementSet>());
    return *set;
}

accounts::StatementFilter lastYear()
{
    return { bench::benchToday().addYears(-1).addDays(1).toString(Qt::ISODate),
        bench::benchToday().toString(Qt::ISODate), QString(), QString(), false };
}

template<class Query> void measure(benchmark::State &state, Query query)
{
    try {
        StatementSet &s = statementSet();
        qsizetype rows = 0;
        for (auto _ : state)
            rows = query(s.set.session(), lastYear()).size();
        state.counters["rows"] = double(rows);
        state.counters["ledger_rows"] = s.set.ledgerRows();
    } catch (const core::DbError &error) {
        state.SkipWithError(error.what());
    }
}

// "客户所有单据": every checked sale and return of the year, all customers.
void customerDocumentsYear(benchmark::State &state)
{
    measure(state, accounts::customerDocuments);
}

// "客户消费情况表": the year's sales and returns summed per goods, all customers.
void customerGoodsYear(benchmark::State &state)
{
    measure(state, accounts::customerGoods);
}

// Its detail rows: every sale and return row of the year.
void customerJournalYear(benchmark::State &state)
{
    measure(state, accounts::customerJournal);
}

void customerMonthsYear(benchmark::State &state)
{
    measure(state, accounts::customerMonths);
}

} // namespace

BENCHMARK(customerDocumentsYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK(customerGoodsYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
BENCHMARK(customerJournalYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);
BENCHMARK(customerMonthsYear)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
