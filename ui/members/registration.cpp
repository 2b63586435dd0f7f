#include "ui/members/registration.h"

#include "ui/common/screenregistry.h"
#include "ui/members/giftsscreen.h"
#include "ui/members/membersscreen.h"

namespace medistock::ui {

void registerMemberScreens(ScreenRegistry &registry)
{
    registry.addTab(QStringLiteral("qtcz"), QStringLiteral("会员管理"),
        [](Workspace &workspace) { return new MembersScreen(workspace); });
    registry.addTab(QStringLiteral("rcgl"), QStringLiteral("赠品管理"),
        [](Workspace &workspace) { return new GiftsScreen(workspace); });
}

} // namespace medistock::ui
