#pragma once

#include "core/clock.h"
#include "core/login.h"
#include "shell/parameters.h"

#include <memory>

namespace medistock::core {
class Connection;
class Interaction;
} // namespace medistock::core

namespace medistock::shell {

// What every operation needs: the open account set, the operator, the loaded parameters and
// company row, the clock and the way to talk to a person. Owned by the program (or a test) and
// passed by reference; it owns none of the objects it refers to.
class Session
{
public:
    // Loads the parameters and the company row; throws DbError.
    Session(core::Connection &connection, core::Interaction &interaction, core::Clock clock,
        core::OperatorIdentity user);

    core::Connection &db() const { return m_connection; }
    core::Interaction &ui() const { return m_interaction; }
    const core::Clock &clock() const { return m_clock; }
    core::Clock &clock() { return m_clock; }
    const core::OperatorIdentity &user() const { return m_user; }
    const Parameters &params() const { return m_parameters; }
    const Company &company() const { return m_company; }

    // Reads the parameters and the company row again (after they were saved).
    void reload();
    // Appends a row to the operation log under the session's operator.
    void log(const QString &note) const;
    // Today as "yyyy-MM-dd".
    QString today() const { return m_clock.todayText(); }
    // The built-in administrator role "100001" passes every right test.
    bool isAdministrator() const;

private:
    core::Connection &m_connection;
    core::Interaction &m_interaction;
    core::Clock m_clock;
    core::OperatorIdentity m_user;
    Parameters m_parameters;
    Company m_company;
};

// Logs the operator in and loads the session; a wrong password is told and refused.
Result<std::unique_ptr<Session>> openSession(core::Connection &connection,
    core::Interaction &interaction, core::Clock clock, const QString &name, const QString &password,
    core::LoginMode mode);

} // namespace medistock::shell
