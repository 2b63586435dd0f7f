#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// What a member's points go through when a sales document with a member is checked or unchecked.
enum class MemberEvent { SaleChecked, SaleUnchecked, ReturnChecked, ReturnUnchecked };

// Hands a checked or unchecked sale or return whose header names a member (hy_sn) to the member
// rules ("XS", "unXS", "XT", "unXT"), inside the caller's transaction. A document without a member
// changes nothing.
void postMemberEffects(const shell::Session &session, const QString &number, MemberEvent event);

} // namespace medistock::sales
