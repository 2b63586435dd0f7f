// Printing a 500-line sale with the shipped A5 form: its variables and lines read, the bands laid
// out into 42 pages, the pages written to a PDF file; and the layout alone, without the file:
//   ./build/bench/bench_reports
#include "core/connection.h"
#include "core/datafolder.h"
#include "core/interaction.h"
#include "reports/catalogue.h"
#include "reports/printing.h"
#include "reports/render.h"
#include "shell/session.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <memory>

using namespace medistock;

namespace {

const QString saleNumber = QStringLiteral("XS25031410001");

// A fresh account set with 500 goods and one checked sale of each of them to the default
// customer, written directly as a save and check would leave the sale's own rows.
struct PrintSet
{
    QTemporaryDir folder;
    std::unique_ptr<core::Connection> db;
    core::ScriptedInteraction yes { true };
    std::unique_ptr<shell::Session> session;

    PrintSet()
    {
        const core::SeedContext seed { QDate(2025, 3, 14),
            { QStringLiteral("康宁大药房"), QStringLiteral("康宁"),
                QStringLiteral("0571-88886666") } };
        const auto made = core::initDataFolder(folder.path(), seed);
        if (!made)
            qFatal("%s", qPrintable(made.message()));
        db = core::Connection::openSqlite(made->masterPath);
        db->exec(QStringLiteral("insert into jxc_lsxsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,"
                                "ls_yhje,a_name,ls_status,ls_jsfs,ls_kmmc,ls_checker,ls_chkrq) "
                                "values (?,'100001','100001','2025-03-14',15000,15000,0,'admin',1,"
                                "'1','现金','admin','2025-03-14')"),
            { saleNumber });
        for (int i = 0; i < 500; ++i) {
            const QString goods = QString::number(300001 + i);
            db->exec(
                QStringLiteral("insert into jxc_goods (g_sn,g_name,gg_name,dw_name,g_sccs,g_sj,"
                               "gc_sn) values (?,?,'0.25g*24粒','盒','华北制药股份有限公司',"
                               "30,'1000')"),
                { goods, QStringLiteral("阿莫西林胶囊%1").arg(i + 1) });
            db->exec(
                QStringLiteral("insert into jxc_lsxssp (gl_djh,g_sn,dw_name,g_zhxs,ls_sl,ls_zsl,"
                               "ls_dj,ls_tax,ls_taxdj,ls_taxje,ls_je,ls_zje,ls_dzl,ls_lsj,"
                               "a_name,t_ph,t_yxq) values (?,?,'盒',1,1,1,30,0,30,0,30,30,1,35,"
                               "'admin','B2401','2026-06-30')"),
                { saleNumber, goods });
        }
        auto opened = shell::openSession(*db, yes, core::Clock(QDate(2025, 3, 14)),
            QStringLiteral("admin"), QString(), core::LoginMode::Script);
        if (!opened)
            qFatal("%s", qPrintable(opened.message()));
        session = std::move(opened.value());
    }

    reports::TemplateFolders folders() const
    {
        return { QString(), QStringLiteral(MEDISTOCK_SOURCE_DIR "/report") };
    }
};

// Built once for every run and closed in main(), before the application object goes: the SQL
// driver is a plugin unloaded with it.
std::unique_ptr<PrintSet> &keptSet()
{
    static std::unique_ptr<PrintSet> set;
    return set;
}

PrintSet &printSet()
{
    if (!keptSet())
        keptSet() = std::make_unique<PrintSet>();
    return *keptSet();
}

reports::PrintedDocument prepared(PrintSet &set)
{
    const Result<reports::PrintedDocument> document
        = reports::prepareDocument(*set.session, set.folders(), QStringLiteral("spxs"), saleNumber);
    if (!document)
        qFatal("%s", qPrintable(document.message()));
    return document.value();
}

void BM_SaleOf500LinesToPdf(benchmark::State &state)
{
    PrintSet &set = printSet();
    const QString pdf = QDir(set.folder.path()).filePath(QStringLiteral("sale.pdf"));
    int pages = 0;
    for (auto _ : state) {
        const reports::PrintedDocument document = prepared(set);
        if (!reports::writePdf(document.report, pdf, document.title))
            qFatal("cannot write %s", qPrintable(pdf));
        pages = int(document.report.pages.size());
    }
    state.counters["pages"] = pages;
}
BENCHMARK(BM_SaleOf500LinesToPdf)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->ReportAggregatesOnly(true);

void BM_SaleOf500LinesLayoutOnly(benchmark::State &state)
{
    PrintSet &set = printSet();
    for (auto _ : state)
        benchmark::DoNotOptimize(prepared(set).report.pages.size());
}
BENCHMARK(BM_SaleOf500LinesLayoutOnly)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(9)
    ->ReportAggregatesOnly(true);

} // namespace

// Laying out text needs fonts, which need a GUI application: offscreen, without a display.
int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    keptSet().reset();
    return 0;
}
