// A workstation that does nothing but check and uncheck purchase receipts of one file, for the
// crash and concurrency tests: they kill it at random moments or run several side by side.
//
//   medistock_bookworker FILE SEED SECONDS RECEIPT...
//
// FILE may also be a PostgreSQL connection text ("host=… port=… dbname=… user=…").
// Prints "ready" once it has opened the file and logged in, then one line per operation that
// ended ("done", "refused" or "failed", the number and the message), and at the end "busy N", the
// statements that gave up busy and were tried again. SECONDS 0 runs until killed. Exits 0 when it
// ran its time, 2 when the file could not be opened. "busy N" then counts the server's
// serialization conflicts, each followed by a retry. MEDISTOCK_BUSY_TIMEOUT (milliseconds)
// shortens the busy timeout, to watch the retries at work.
#include "core/clock.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "tests/support/books.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTextStream>

#include <cstdio>

using namespace medistock;

namespace {

QString outcomeWord(const Outcome &outcome)
{
    switch (outcome.kind()) {
    case Outcome::Kind::Done:
        return QStringLiteral("done");
    case Outcome::Kind::Refused:
        return QStringLiteral("refused");
    case Outcome::Kind::Failed:
        return QStringLiteral("failed");
    }
    return QString();
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments().mid(1);
    QTextStream out(stdout);
    if (arguments.size() < 4) {
        out << "usage: medistock_bookworker FILE SEED SECONDS RECEIPT..." << Qt::endl;
        return 2;
    }
    QRandomGenerator random(arguments[1].toUInt());
    const qint64 milliseconds = arguments[2].toLongLong() * 1000;
    const QStringList receipts = arguments.mid(3);

    std::unique_ptr<core::Connection> connection;
    try {
        const auto server = core::Connection::PostgresOptions::parse(arguments[0]);
        connection = server ? core::Connection::openPostgres(*server)
                            : core::Connection::openSqlite(arguments[0]);
    } catch (const core::DbError &error) {
        out << "failed open " << error.message() << Qt::endl;
        return 2;
    }
    if (qEnvironmentVariableIsSet("MEDISTOCK_BUSY_TIMEOUT")
        && connection->dialect() == core::Dialect::Sqlite)
        connection->setBusyTimeout(qEnvironmentVariableIntValue("MEDISTOCK_BUSY_TIMEOUT"));
    core::ScriptedInteraction ui(true);
    auto session = shell::openSession(*connection, ui, core::Clock(QDate(2025, 3, 14)),
        QStringLiteral("admin"), QString(), core::LoginMode::Script);
    if (!session) {
        out << "failed login " << session.message() << Qt::endl;
        return 2;
    }
    out << "ready" << Qt::endl;

    QElapsedTimer running;
    running.start();
    while (milliseconds == 0 || running.elapsed() < milliseconds) {
        const QString &number = receipts[random.bounded(int(receipts.size()))];
        const Outcome outcome = test::toggleReceipt(*session.value(), number);
        out << outcomeWord(outcome) << ' ' << number << ' ' << outcome.message() << Qt::endl;
    }
    out << "busy " << connection->busyErrors() << Qt::endl;
    return 0;
}
