#include "core/connection.h"
#include "core/datafolder.h"
#include "core/dberror.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "tests/support/accountset.h"
#include "tests/support/books.h"

#include <QDir>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

using namespace medistock;

namespace {

// A worker process started with fork and exec, its standard output on a pipe.
struct Worker
{
    pid_t pid = -1;
    int output = -1;
    QByteArray received;
};

Worker startWorker(const QStringList &arguments)
{
    std::vector<QByteArray> texts { QByteArrayLiteral(MEDISTOCK_BOOKWORKER_PATH) };
    for (const QString &argument : arguments)
        texts.push_back(argument.toUtf8());
    std::vector<char *> argv;
    for (QByteArray &text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0)
        return {};
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(pipeEnds[1], STDOUT_FILENO);
        close(pipeEnds[0]);
        close(pipeEnds[1]);
        execv(argv[0], argv.data());
        _exit(127);
    }
    close(pipeEnds[1]);
    return { pid, pipeEnds[0], {} };
}

// Reads what the worker wrote; false at the end of its output.
bool readSome(Worker &worker)
{
    char buffer[4096];
    const ssize_t got = read(worker.output, buffer, sizeof buffer);
    if (got <= 0)
        return false;
    worker.received.append(buffer, got);
    return true;
}

bool waitForLine(Worker &worker, const QByteArray &line)
{
    while (!worker.received.contains(line + '\n'))
        if (!readSome(worker))
            return false;
    return true;
}

// Reads to the end of the output and reaps the process; its exit status (-1 when killed).
int finish(Worker &worker)
{
    while (readSome(worker)) { }
    close(worker.output);
    int status = 0;
    waitpid(worker.pid, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// The messages of the lines that start so, each once.
QStringList messagesOf(const QByteArray &output, const QByteArray &start)
{
    QStringList messages;
    for (const QByteArray &line : output.split('\n'))
        if (line.startsWith(start))
            messages.append(QString::fromUtf8(line).section(QLatin1Char(' '), 2));
    messages.removeDuplicates();
    return messages;
}

int countLines(const QByteArray &output, const QByteArray &start)
{
    int lines = 0;
    for (const QByteArray &line : output.split('\n'))
        if (line.startsWith(start))
            ++lines;
    return lines;
}

// The master file of a fresh data folder, or in the PostgreSQL run a fresh database, with the
// receipts the workers toggle; no connection is left open on it. `path` is what a worker opens:
// the file, or the database's connection text.
class BooksUnderStress : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.isValid());
        if (test::testDialect() == core::Dialect::Postgres) {
            server = test::createTestDatabase({ test::fixtureToday(), {} });
            path = server->text();
        } else {
            ASSERT_TRUE(core::initDataFolder(dir.path(), { test::fixtureToday(), {} }).ok());
            path = QDir(dir.path()).filePath(core::masterFileName());
        }
        auto connection = open();
        core::ScriptedInteraction ui(true);
        auto session = shell::openSession(*connection, ui, core::Clock(test::fixtureToday()),
            QStringLiteral("admin"), QString(), core::LoginMode::Script);
        ASSERT_TRUE(session.ok());
        receipts = test::setUpReceipts(*session.value(), 8);
        ASSERT_EQ(receipts.size(), 8);
    }

    void TearDown() override
    {
        if (server)
            test::dropTestDatabase(server->database);
    }

    std::unique_ptr<core::Connection> open()
    {
        return server ? core::Connection::openPostgres(*server)
                      : core::Connection::openSqlite(path);
    }

    // Opens the file as the next start would (recovering what a crash left) and tells what is
    // wrong with it; empty when it is whole and the books balance.
    QStringList problems()
    {
        try {
            auto connection = open();
            const QString integrity = server
                ? QStringLiteral("ok")
                : connection->firstText(QStringLiteral("pragma integrity_check"));
            if (integrity != QLatin1String("ok"))
                return { QStringLiteral("integrity_check: ") + integrity };
            return test::booksProblems(*connection, receipts);
        } catch (const core::DbError &error) {
            return { error.message() };
        }
    }

    QTemporaryDir dir;
    std::optional<core::Connection::PostgresOptions> server;
    QString path;
    QStringList receipts;
};

} // namespace

// A workstation killed at any moment of a check or an uncheck leaves a file that opens, passes
// the integrity check, and holds every receipt wholly posted or wholly not, with stock equal to
// the ledger's sums and the payables adding up.
TEST_F(BooksUnderStress, KilledAtRandomMomentsTheBooksAlwaysBalance)
{
    // On the server a killed client's transaction is the server's to roll back; what is at
    // stake here is the file's own recovery.
    SKIP_ON_POSTGRES();
    const int wantedKills = 200;
    const qint64 timeLimit = 100000;
    QRandomGenerator random(20250314);
    QElapsedTimer clock;
    clock.start();
    int kills = 0;
    int operations = 0;
    while (kills < wantedKills && clock.elapsed() < timeLimit) {
        Worker worker = startWorker(
            QStringList { path, QString::number(kills), QStringLiteral("0") } + receipts);
        ASSERT_TRUE(waitForLine(worker, "ready")) << worker.received.toStdString();
        QThread::usleep(random.bounded(40000));
        kill(worker.pid, SIGKILL);
        EXPECT_EQ(finish(worker), -1);
        ++kills;
        operations += countLines(worker.received, "done ");
        ASSERT_EQ(countLines(worker.received, "failed "), 0) << worker.received.toStdString();
        const QStringList found = problems();
        ASSERT_TRUE(found.isEmpty()) << "after kill " << kills << ":\n"
                                     << found.join(QLatin1Char('\n')).toStdString();
    }
    std::printf("crash test: %d kills, %d checks and unchecks done, %.1f s\n", kills, operations,
        clock.elapsed() / 1000.0);
    EXPECT_GE(kills, wantedKills);
    EXPECT_GT(operations, 0);
}

// Four workstations check and uncheck receipts of one file (or one PostgreSQL database) at once,
// two of them the same four receipts, the others two each: none is ever posted twice, no busy
// database or serialization conflict escapes as an error (the busy timeout, the serializable
// transaction and a retry of the whole operation absorb them), and the books balance afterwards.
TEST_F(BooksUnderStress, FourWorkstationsAtOnceNeverPostTwiceAndTheBooksBalance)
{
    const QString seconds = QStringLiteral("6");
    const QList<QStringList> shares { receipts.mid(0, 4), receipts.mid(0, 4), receipts.mid(4, 2),
        receipts.mid(6, 2) };
    QElapsedTimer clock;
    clock.start();
    std::vector<Worker> workers;
    for (qsizetype i = 0; i < shares.size(); ++i)
        workers.push_back(
            startWorker(QStringList { path, QString::number(i + 1), seconds } + shares[i]));
    std::vector<pollfd> pipes;
    for (const Worker &worker : workers)
        pipes.push_back({ worker.output, POLLIN, 0 });
    int ended = 0;
    while (ended < int(pipes.size())) {
        poll(pipes.data(), pipes.size(), -1);
        for (size_t i = 0; i < pipes.size(); ++i)
            if (pipes[i].fd >= 0 && pipes[i].revents != 0 && !readSome(workers[i])) {
                pipes[i].fd = -1;
                ++ended;
            }
    }
    int done = 0;
    int refused = 0;
    int busy = 0;
    QStringList refusals;
    for (Worker &worker : workers) {
        refusals += messagesOf(worker.received, "refused ");
        EXPECT_EQ(finish(worker), 0) << worker.received.toStdString();
        EXPECT_EQ(countLines(worker.received, "failed "), 0) << worker.received.toStdString();
        EXPECT_FALSE(worker.received.contains("database is locked"));
        done += countLines(worker.received, "done ");
        refused += countLines(worker.received, "refused ");
        const int at = worker.received.lastIndexOf("busy ");
        busy += at < 0 ? 0 : worker.received.mid(at + 5).trimmed().toInt();
    }
    const QStringList found = problems();
    EXPECT_TRUE(found.isEmpty()) << found.join(QLatin1Char('\n')).toStdString();
    std::printf("concurrency test on %s: 4 workstations, %d checks and unchecks done, %d refused "
                "(the other workstation got there first), %d busy or conflict retries, %.1f s\n",
        server ? "PostgreSQL" : "SQLite", done, refused, busy, clock.elapsed() / 1000.0);
    refusals.removeDuplicates();
    for (const QString &refusal : refusals)
        std::printf("  refused: %s\n", refusal.toUtf8().constData());
    EXPECT_GT(done, 0);
}
