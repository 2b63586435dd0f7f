#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// What a member's points go through when a sales document with a member is checked or unchecked.
enum class MemberEvent { SaleChecked, SaleUnchecked, ReturnChecked, ReturnUnchecked };

// Members, their points and levels are not kept by this system yet: this does nothing and grants
// or takes back no points. It is the one place where the check and uncheck of sales and returns
// hand a member's document over, so that keeping members has a single call site to fill.
void memberPointsNotKeptYet(
    const shell::Session &session, const QString &number, MemberEvent event);

} // namespace medistock::sales
