#pragma once

#include "app/cli/args.h"
#include "core/clock.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/outcome.h"

#include <QHash>
#include <QTextStream>
#include <QVariant>

#include <memory>

namespace medistock::shell {
class Session;
}

namespace medistock::cli {

enum ExitCode { ExitDone = 0, ExitRefused = 1, ExitError = 2 };

// Thrown by a command to stop with an exit status once its message has been shown.
struct Stop
{
    int status;
};

struct GlobalOptions
{
    QString data;
    // The master database on a PostgreSQL server (--pg, else MEDISTOCK_PG); empty for SQLite files.
    QString pg;
    QString set;
    QString user;
    QString password;
    QString today;
    bool yes = false;
};

// Information texts go to standard error as the system words them; a question is printed there
// too, followed by the answer that --yes or --no gave (no by default).
class CliInteraction : public core::Interaction
{
public:
    CliInteraction(QTextStream &err, bool yes)
        : m_err(err)
        , m_yes(yes)
    { }
    void inform(const QString &text) override;
    bool ask(const QString &text) override;

private:
    QTextStream &m_err;
    bool m_yes;
};

// What a command works with: the chosen file, the clock and the streams.
class Context
{
public:
    Context(GlobalOptions options, QTextStream &out, QTextStream &err);
    ~Context();

    const GlobalOptions &options() const { return m_options; }
    QString dataFolder() const;
    // jxc.db without --set, else jxc_CODE.db in the same folder.
    QString databasePath() const;
    // The master database of --pg; empty when the sets are SQLite files.
    std::optional<core::Connection::PostgresOptions> postgresMaster() const;
    // Opens the chosen file (or with --pg the master database or with --set its set's database)
    // on first use; throws DbError. A missing file is an error, not created.
    core::Connection &connection();
    // The master file jxc.db (or database), whatever --set says.
    core::Connection &masterConnection();
    // The operator of --user (default "admin") with --password (default empty), logged in on the
    // chosen file without a log row; a refused login stops the command with status 1.
    shell::Session &session();

    core::Clock &clock() { return m_clock; }
    core::Interaction &interaction() { return m_interaction; }
    QTextStream &out() { return m_out; }
    QTextStream &err() { return m_err; }

    // Prints a usage error and returns its exit status.
    int usageError(const QString &text);
    // The exit status of an operation's outcome (its message has already been shown).
    static int exitCode(const Outcome &outcome);

private:
    GlobalOptions m_options;
    QTextStream &m_out;
    QTextStream &m_err;
    core::Clock m_clock;
    CliInteraction m_interaction;
    std::unique_ptr<core::Connection> m_connection;
    std::unique_ptr<core::Connection> m_master;
    std::unique_ptr<shell::Session> m_session;
};

// Stops with a usage error unless every option was taken and no positional argument is left.
void requireNoMore(Context &context, const Args &args);
// The positional arguments, stopping with a usage error unless there are between min and max.
QStringList takePositional(Context &context, const Args &args, int min, int max);
// A date argument "yyyy-MM-dd", stopping with a usage error when it is not a real date.
QDate parseDate(Context &context, const QString &text);
// "--column value" pairs naming a table's columns, as the commands that add rows take them;
// anything else stops with a usage error.
QHash<QString, QVariant> columnOptions(Context &context, const Args &args);
// Stops with the outcome's exit status unless it went through (its message was shown already).
void require(const Outcome &outcome);

// The value of an operation that tells its own refusals; stops when refused.
template<class T> const T &valueOf(const Result<T> &result)
{
    require(result.outcome());
    return result.value();
}

// The value of a helper that only returns its refusal: the message is printed here first.
template<class T> const T &valueOrReport(Context &context, const Result<T> &result)
{
    if (!result)
        context.interaction().inform(result.message());
    return valueOf(result);
}

} // namespace medistock::cli
