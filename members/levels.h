#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::members {

// Member levels "会员等级" (jxc_hyfl): a member's lifetime points hy_zjf decide the level whose
// bounds, both inclusive, contain them. "100001" is the default level and cannot be deleted.
struct Level
{
    QString code; // hl_sn; empty for a new level
    QString name; // hl_name
    double discount = 1; // hl_zk "级别折扣"
    double lower = 0; // hl_jfxx "积分下限"
    double upper = 0; // hl_jfsx "积分上限"
};

QString defaultLevel(); // "100001"

QList<Level> listLevels(core::Connection &connection);

// The level whose bounds contain the points; "100001" when none does.
QString levelForPoints(core::Connection &connection, double points);
// The level a member reaches when points are added outside a sale (a member saved, a top-up):
// with "按积分升级" on, the level containing hy_zjf + added, else (or when no level contains it)
// the member's current level.
QString levelAfterPointsAdded(core::Connection &connection, const QString &member, double added);

// Adds or changes a level: a name, a discount between 0 and 1, bounds not below 0 with the lower
// not above the upper, and no overlap with another level's bounds. Returns the code.
Result<QString> saveLevel(const shell::Session &session, const Level &level);
// Deletes a level no member holds; the default level stays.
Outcome deleteLevel(const shell::Session &session, const QString &code);

} // namespace medistock::members
