#pragma once

#include "core/outcome.h"
#include "masterdata/masterrows.h"

#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

#include <optional>

namespace medistock::core {
class Connection;
}
namespace medistock::masterdata {
struct MasterKind;
}
namespace medistock::shell {
class Session;
}

namespace medistock::members {

// A member (jxc_hyxx) as the rules read it.
struct Member
{
    QString code; // hy_sn
    QString card; // hy_bh "会员卡号"
    QString name; // hy_name
    QString level; // hl_sn
    QString levelName; // hl_name of the level
    QString scheme; // hh_sn, the discount scheme
    double points = 0; // hy_jf: what can be spent
    double lifetimePoints = 0; // hy_zjf: decides the level
    double balance = 0; // hy_zhje: stored value on the card
    double remainder = 0; // hy_ye: consumption not yet turned into a point
    double consumption = 0; // hy_zje
    int visits = 0; // hy_cs
    bool upgrades = true; // hy_sj "按积分升级"
    bool active = false; // hy_status: a card that can be used
    QString birthday; // hy_sr "yyyy-MM-dd"
    QString mobile; // hy_mobile
    QString tele; // hy_tele
};

// The member list of the master-data screens and commands ("member").
const masterdata::MasterKind &memberKind();

// "按积分升级" is off only when the flag holds "0" or "False".
bool upgradesByPoints(const QVariant &flag);

std::optional<Member> readMember(core::Connection &connection, const QString &code);
// A usable card found by card number, mobile or telephone: members whose card is not active are
// not found.
std::optional<Member> findMemberByCard(core::Connection &connection, const QString &text);

// The members whose code, card number, name, mnemonic, mobile or telephone contains the text
// (every member when it is empty), in id order, each with its level's name as "hl_name".
QList<QSqlRecord> searchMembers(core::Connection &connection, const QString &text);

// The next card number: the largest six-digit numeric card number plus one, "100001" when there
// is none.
QString nextCardNumber(core::Connection &connection);

// Adds a member with the columns given (jxc_hyxx names, typed text or numbers). A member without
// a card number gets the next one; without a joining date, today; the card starts active and
// upgrading by points unless told otherwise; the lifetime points start at the points given; and
// the level follows the lifetime points while upgrading is on. Returns the member's code.
Result<QString> addMember(const shell::Session &session, masterdata::Values values);
// Changes the columns given. The card number stays unique; points and card balance are not
// changed here (see setMemberPoints, setMemberBalance); with upgrading on, the level follows the
// lifetime points.
Outcome changeMember(const shell::Session &session, const QString &code, masterdata::Values values);

// Points changed by hand: the new current and lifetime points, neither below 0; the level becomes
// the level for the new lifetime points. The change is kept in jxc_jfdh with the note and logged.
Outcome setMemberPoints(const shell::Session &session, const QString &code, double points,
    double lifetimePoints, const QString &note);
// The card balance changed by hand, not below 0; kept in jxc_czxf with the note and logged.
Outcome setMemberBalance(
    const shell::Session &session, const QString &code, double balance, const QString &note);

} // namespace medistock::members
