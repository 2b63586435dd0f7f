#include "sales/members.h"

namespace medistock::sales {

void memberPointsNotKeptYet(const shell::Session &, const QString &, MemberEvent)
{ }

} // namespace medistock::sales
