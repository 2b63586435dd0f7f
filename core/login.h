#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>

namespace medistock::core {

class Clock;
class Connection;
class Interaction;

// The operator a session acts for.
struct OperatorIdentity
{
    QString name; // a_name
    QString code; // a_sn
    QString role; // r_sn
};

enum class LoginMode {
    Desktop, // the login screen: writes "登录系统" to the operation log
    Pos, // the POS front end's login: no log row
    Script, // a command-line call that only identifies its operator: no log row
};

QString initialPasswordHint(); // "初始密码为空"
QString wrongPasswordText(); // "用户密码不正确，请重新输入！"

// The operators offered at login: not locked, in id order.
QStringList loginOperators(Connection &connection);
// Whether the hint "初始密码为空" is to be shown for the operator.
bool hasEmptyPassword(Connection &connection, const QString &name);

// Checks name and password (taken whole; see core/password.h for the legacy plain password). A
// wrong password is told through the interaction and refused, writing nothing; a plain legacy
// password is replaced by the hash of what was typed on success.
Result<OperatorIdentity> login(Connection &connection, const Clock &clock, Interaction &interaction,
    const QString &name, const QString &password, LoginMode mode);

} // namespace medistock::core
