// Making a new account-set file: open an empty SQLite file and create all 167 tables with their
// indexes and seed rows, the way a new set or the first start does.
#include "core/connection.h"
#include "core/schema.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace medistock::core;

static void BM_CreateAccountSetFile(benchmark::State &state)
{
    QTemporaryDir dir;
    const SeedContext seeds { QDate(2025, 3, 14),
        { QStringLiteral("康宁大药房"), QStringLiteral("康宁"), QString() } };
    int n = 0;
    for (auto _ : state) {
        const QString path = QDir(dir.path()).filePath(QStringLiteral("jxc_%1.db").arg(++n));
        auto connection = Connection::openSqlite(path);
        const auto outcome = createAllTables(*connection, seeds);
        connection.reset();
        if (!outcome.ok())
            state.SkipWithError("create all tables failed");
        state.PauseTiming();
        QFile::remove(path);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_CreateAccountSetFile)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly(true);
