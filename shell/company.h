#pragma once

#include "core/outcome.h"
#include "shell/parameters.h"

namespace medistock::shell {

class Session;

// Writes the company row (the letterhead: name, short name, telephone, contact, address), its
// texts cleaned, and reloads the session's copy. Needs the right "系统设置"; logged.
Outcome saveCompany(Session &session, const Company &company);

} // namespace medistock::shell
