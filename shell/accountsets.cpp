#include "shell/accountsets.h"

#include "shell/session.h"
#include "shell/settings.h"

namespace medistock::shell {

Result<core::AccountSet> createAccountSet(
    const Session &session, core::Connection &master, const core::NewAccountSet &request)
{
    const Outcome allowed = requireRight(session, "qtcz", 20);
    if (!allowed)
        return allowed;
    return core::createAccountSet(master, session.clock(), session.ui(), request);
}

} // namespace medistock::shell
