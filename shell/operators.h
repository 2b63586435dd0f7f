#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}

namespace medistock::shell {

class Session;

struct OperatorRow
{
    qint64 id = 0;
    QString code; // a_sn
    QString name; // a_name
    QString role; // r_sn
    QString roleName;
    bool locked = false; // a_jy / a_jyt
};

QList<OperatorRow> listOperators(core::Connection &connection);

// The operator screens need the right "操作员设置"; an operator may always change his own password.
// Adds an operator under the next code with a role (default the administrator role) and an
// optional password (stored as the hash of what was typed; none by default). Returns the code.
Result<QString> addOperator(
    const Session &session, const QString &name, const QString &role, const QString &password = {});
// Renames an operator and/or gives him another role; the warehouse lists keep his code.
Outcome updateOperator(const Session &session, qint64 id, const QString &name, const QString &role);
// Sets a new password, hashed whole as typed. An empty one means no password and is set only when
// the operator confirms clearPasswordQuestion (a "No" refuses and writes nothing).
QString clearPasswordQuestion(const QString &name);
Outcome changePassword(const Session &session, const QString &name, const QString &newPassword);
// A locked operator is not offered at login and cannot log in.
Outcome setOperatorLocked(const Session &session, const QString &name, bool locked);

} // namespace medistock::shell
