#pragma once

#include "core/outcome.h"
#include "statistics/filters.h"
#include "ui/statistics/reporttable.h"

#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

class QThread;

namespace medistock::shell {
class Session;
}

namespace medistock::ui::stats {

// What a report run hands back: its table, or nothing when the report refused or failed (its
// messages then say why).
struct RunResult
{
    bool ok = false;
    ReportTable table;
    ReportTable detail; // a second grid's rows, for reports that show two
};

// The rows of a report's result as a table: `cells` gives a row's cells, `key` what a
// double-click on it opens (nullptr when nothing does).
template<class Row, class Cells>
RunResult tableFrom(
    const Result<QList<Row>> &rows, Cells cells, QString (*key)(const Row &) = nullptr)
{
    if (!rows)
        return {};
    RunResult result { true, {}, {} };
    for (const Row &row : rows.value()) {
        result.table.rows.append(cells(row));
        result.table.keys.append(key ? key(row) : QString());
    }
    return result;
}

// Runs reports on a worker thread with a connection and a session of its own, so that the window
// stays responsive while a year of the ledger is read. The worker's session logs the same
// operator in on the same account set; what the report tells (a refusal, a database error) is
// collected there and handed back with the result, to be shown on the window's thread. A cancel
// makes the report's progress answer "stop" (an operation that writes rolls back) and the run's
// result is dropped; a new run cancels the one before it.
class ReportRunner : public QObject
{
    Q_OBJECT
public:
    // Runs on the worker thread; reads its figures through `session` only.
    using Job = std::function<RunResult(const shell::Session &, const statistics::Progress &)>;

    ReportRunner(const shell::Session &session, QObject *parent = nullptr);
    ~ReportRunner() override;

    void start(Job job);
    void cancel();
    bool running() const { return m_running; }

signals:
    void progressed(int done, int total);
    // The run ended with its result and what the report told on the way.
    void finished(const medistock::ui::stats::RunResult &result, const QStringList &told);

private:
    struct Worker
    {
        QThread *thread = nullptr;
        std::shared_ptr<std::atomic_bool> cancelled;
        int generation = 0;
    };

    void finish(int generation, const RunResult &result, const QStringList &told);
    void reap(int generation);

    const shell::Session &m_session;
    QList<Worker> m_workers;
    int m_generation = 0;
    bool m_running = false;
};

} // namespace medistock::ui::stats

Q_DECLARE_METATYPE(medistock::ui::stats::RunResult)
