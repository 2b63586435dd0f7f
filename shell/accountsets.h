#pragma once

#include "core/accountsets.h"

namespace medistock::core {
class Connection;
}

namespace medistock::shell {

class Session;

// "帐套管理": creates a set in the master file's register (see core::createAccountSet) for an
// operator who holds the right; the session may be open on any set.
Result<core::AccountSet> createAccountSet(
    const Session &session, core::Connection &master, const core::NewAccountSet &request);

} // namespace medistock::shell
