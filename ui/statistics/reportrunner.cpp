#include "ui/statistics/reportrunner.h"

#include "core/connection.h"
#include "core/dberror.h"
#include "core/interaction.h"
#include "shell/session.h"

#include <QPointer>
#include <QThread>

namespace medistock::ui::stats {

namespace {

struct Told
{
    RunResult result;
    QStringList told;
};

// The whole run on the worker thread: its own connection and session, the job, and everything
// closed again before the thread ends.
Told runOnWorker(const core::Connection &origin, const core::OperatorIdentity &user,
    const core::Clock &clock, const ReportRunner::Job &job, const statistics::Progress &progress)
{
    core::ScriptedInteraction interaction;
    Told told;
    try {
        const std::unique_ptr<core::Connection> connection = origin.openAnother();
        const shell::Session session(*connection, interaction, clock, user);
        told.result = job(session, progress);
    } catch (const core::DbError &error) {
        interaction.inform(error.message());
        told.result = {};
    }
    told.told = interaction.informed;
    return told;
}

} // namespace

ReportRunner::ReportRunner(const shell::Session &session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{ }

ReportRunner::~ReportRunner()
{
    for (const Worker &worker : m_workers) {
        *worker.cancelled = true;
        worker.thread->wait();
        delete worker.thread;
    }
}

void ReportRunner::start(Job job)
{
    cancel();
    const int generation = ++m_generation;
    auto cancelled = std::make_shared<std::atomic_bool>(false);
    const QPointer<ReportRunner> self(this);
    const core::Connection &origin = m_session.db();
    const core::OperatorIdentity user = m_session.user();
    const core::Clock clock = m_session.clock();
    const statistics::Progress progress = [self, cancelled, generation](int done, int total) {
        if (*cancelled)
            return false;
        QMetaObject::invokeMethod(
            self.data(),
            [self, generation, done, total] {
                if (self && generation == self->m_generation)
                    emit self->progressed(done, total);
            },
            Qt::QueuedConnection);
        return true;
    };
    QThread *thread = QThread::create([=, &origin] {
        const Told told = runOnWorker(origin, user, clock, job, progress);
        QMetaObject::invokeMethod(
            self.data(),
            [self, generation, told] {
                if (self)
                    self->finish(generation, told.result, told.told);
            },
            Qt::QueuedConnection);
    });
    m_workers.append({ thread, cancelled, generation });
    m_running = true;
    thread->start();
}

void ReportRunner::cancel()
{
    for (const Worker &worker : m_workers)
        *worker.cancelled = true;
    if (m_running) {
        m_running = false;
        ++m_generation;
    }
}

void ReportRunner::finish(int generation, const RunResult &result, const QStringList &told)
{
    reap(generation);
    if (generation != m_generation)
        return;
    m_running = false;
    emit finished(result, told);
}

// The thread of the run that just handed its result back is ending: it is joined and freed, with
// any earlier one that has ended meanwhile.
void ReportRunner::reap(int generation)
{
    for (qsizetype i = m_workers.size() - 1; i >= 0; --i) {
        QThread *thread = m_workers[i].thread;
        if (m_workers[i].generation == generation)
            thread->wait();
        else if (!thread->isFinished())
            continue;
        delete thread;
        m_workers.removeAt(i);
    }
}

} // namespace medistock::ui::stats
