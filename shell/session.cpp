#include "shell/session.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/oplog.h"

namespace medistock::shell {

Session::Session(core::Connection &connection, core::Interaction &interaction, core::Clock clock,
    core::OperatorIdentity user)
    : m_connection(connection)
    , m_interaction(interaction)
    , m_clock(clock)
    , m_user(std::move(user))
{
    reload();
}

void Session::reload()
{
    m_parameters = Parameters::load(m_connection);
    m_company = loadCompany(m_connection);
}

void Session::log(const QString &note) const
{
    core::writeLog(m_connection, m_clock, m_user.name, note);
}

bool Session::isAdministrator() const
{
    return m_user.role == QLatin1String("100001");
}

Result<std::unique_ptr<Session>> openSession(core::Connection &connection,
    core::Interaction &interaction, core::Clock clock, const QString &name, const QString &password,
    core::LoginMode mode)
{
    const auto user = core::login(connection, clock, interaction, name, password, mode);
    if (!user)
        return user.outcome();
    std::unique_ptr<Session> session;
    const Outcome loaded = core::guarded(interaction, [&] {
        session = std::make_unique<Session>(connection, interaction, clock, user.value());
        return Outcome::done();
    });
    if (!loaded)
        return loaded;
    return session;
}

} // namespace medistock::shell
