#pragma once

#include "core/clock.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/outcome.h"

#include <QTextStream>

#include <memory>

namespace medistock::cli {

enum ExitCode { ExitDone = 0, ExitRefused = 1, ExitError = 2 };

struct GlobalOptions
{
    QString data;
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
    {
    }
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
    // Opens the chosen file on first use; throws DbError. A missing file is an error, not created.
    core::Connection &connection();

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
};

} // namespace medistock::cli
