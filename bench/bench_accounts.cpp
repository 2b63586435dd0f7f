// Posting a collection for a customer whose ledger already holds 100,000 rows spread over the
// last two years: dated today only the day's rows are walked again; dated a year back, about half
// of the customer's rows get a new running balance. Other customers' rows are never read.
#include "accounts/ledger.h"
#include "accounts/registrations.h"
#include "bench/keep.h"
#include "core/connection.h"
#include "core/datafolder.h"
#include "core/interaction.h"
#include "core/transaction.h"
#include "shell/session.h"

#include <QDir>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const QDate today(2025, 3, 14);
const QString customer = QStringLiteral("100002");
constexpr int customerRows = 100000;
constexpr int otherRows = 20000;
constexpr int days = 730;

// One account set for every run: building it takes a few seconds.
class LargeLedger
{
public:
    LargeLedger()
    {
        const core::SeedContext seeds { today, { QStringLiteral("康宁大药房"), {}, {} } };
        if (!core::initDataFolder(m_dir.path(), seeds).ok())
            return;
        m_db = core::Connection::openSqlite(QDir(m_dir.path()).filePath(core::masterFileName()));
        fill();
        auto opened = shell::openSession(
            *m_db, m_ui, core::Clock(today), QStringLiteral("admin"), {}, core::LoginMode::Script);
        if (opened.ok())
            m_session = std::move(opened.value());
    }

    shell::Session *session() { return m_session.get(); }

private:
    void addRow(const QString &party, int i, int count)
    {
        const QDate date = today.addDays(-days + 1 + qint64(i) * days / count);
        const bool sale = i % 3 != 2;
        m_db->insert(QStringLiteral("insert into jxc_ysyfk (gl_djh,k_rq,k_fkfs,k_yfje,k_sfje,"
                                    "k_qcje,k_yhje,k_ljje,k_flag,k_type,k_djlx,k_djtxt,k_ghskh) "
                                    "values (?,?,'现金',?,?,0,0,0,1,'kh',?,?,?)"),
            { QStringLiteral("XS%1").arg(i), date.toString(QStringLiteral("yyyy-MM-dd")),
                sale ? 120.5 : 0.0, sale ? 0.0 : 230.0,
                sale ? QStringLiteral("XS") : QStringLiteral("SK"),
                sale ? QStringLiteral("商品销售单") : QStringLiteral("收款单"), party });
    }

    void fill()
    {
        core::Transaction transaction(*m_db);
        m_db->exec(QStringLiteral("insert into jxc_khxx (kh_sn,kh_name,kh_lwje,kh_forbid) values "
                                  "(?,'仁和医院',0,0)"),
            { customer });
        for (int i = 0; i < customerRows; ++i)
            addRow(customer, i, customerRows);
        for (int i = 0; i < otherRows; ++i)
            addRow(QStringLiteral("100001"), i, otherRows);
        accounts::recalculateLedger(*m_db, accounts::PartyKind::Customer, customer, {});
        accounts::recalculateLedger(*m_db, accounts::PartyKind::Customer, "100001", {});
        transaction.commit();
    }

    QTemporaryDir m_dir;
    std::unique_ptr<core::Connection> m_db;
    core::ScriptedInteraction m_ui { true };
    std::unique_ptr<shell::Session> m_session;
};

LargeLedger &ledger()
{
    static LargeLedger &instance = bench::keepForRun(std::make_unique<LargeLedger>());
    return instance;
}

// Saving is left out of the time; what is timed is the check that posts the collection.
void postCollection(benchmark::State &state, QDate date)
{
    shell::Session *session = ledger().session();
    if (!session) {
        state.SkipWithError("the account set could not be built");
        return;
    }
    accounts::RegistrationDraft draft;
    draft.kind = accounts::RegistrationKind::Collection;
    draft.party = customer;
    draft.date = date.toString(QStringLiteral("yyyy-MM-dd"));
    draft.paid = 50;
    draft.account = QStringLiteral("现金");
    for (auto _ : state) {
        state.PauseTiming();
        const auto number = accounts::saveRegistration(*session, draft);
        state.ResumeTiming();
        if (!number.ok() || !accounts::checkRegistration(*session, number.value()))
            state.SkipWithError("posting failed");
    }
}

void BM_CollectionDatedToday(benchmark::State &state)
{
    postCollection(state, today);
}

void BM_CollectionDatedAYearBack(benchmark::State &state)
{
    postCollection(state, today.addYears(-1));
}

} // namespace

BENCHMARK(BM_CollectionDatedToday)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(20)
    ->Repetitions(9)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_CollectionDatedAYearBack)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->Repetitions(9)
    ->ReportAggregatesOnly(true);
