#pragma once

#include "core/outcome.h"
#include "masterdata/transfer.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// Members from a spreadsheet: the columns map as for every master list (masterdata/transfer.h),
// and each accepted row is completed as addMember completes a member: a row without a card
// number gets the next card number (counting on from the rows above it and skipping numbers the
// file gives itself); a card number already held, in the file or by a member, rejects the row.
Result<masterdata::ImportPlan> planMemberImport(const shell::Session &session, const QString &path);
// Writes the accepted rows, all or none. Returns the number written.
Result<int> runMemberImport(const shell::Session &session, const masterdata::ImportPlan &plan);

} // namespace medistock::members
