#include "sales/members.h"

#include "core/connection.h"
#include "members/effects.h"
#include "shell/session.h"

namespace medistock::sales {

void postMemberEffects(const shell::Session &session, const QString &number, MemberEvent event)
{
    const bool sale = event == MemberEvent::SaleChecked || event == MemberEvent::SaleUnchecked;
    const QString member = session.db().firstText(
        QStringLiteral("select hy_sn from %1 where hy_sn<>? and gl_djh=? order by id limit 1")
            .arg(sale ? QStringLiteral("jxc_lsxsd") : QStringLiteral("jxc_xsthd")),
        { QString(), number });
    if (member.isEmpty())
        return;
    using Operation = members::MemberOperation;
    const Operation operation = event == MemberEvent::SaleChecked ? Operation::Sale
        : event == MemberEvent::SaleUnchecked                     ? Operation::SaleReversed
        : event == MemberEvent::ReturnChecked                     ? Operation::Return
                                                                  : Operation::ReturnReversed;
    members::postMemberEffects(session, number, member, operation);
}

} // namespace medistock::sales
