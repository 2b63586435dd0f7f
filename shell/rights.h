#pragma once

#include "core/outcome.h"

#include <QHash>
#include <QList>
#include <QString>

#include <span>

namespace medistock::core {
class Connection;
}

namespace medistock::shell {

class Session;

// One area of the system: its column in jxc_role, its label, and its operations in the order of
// the characters of its right string.
struct RightArea
{
    const char *column;
    const char *label;
    std::span<const char *const> operations;
};

// The eight areas in menu order ("采购管理" ... "其它操作").
std::span<const RightArea> rightAreas();
const RightArea *findRightArea(const QString &column);

// Whether the session's operator may perform operation `position` (from 1) of the area. With
// operators bound to warehouses (cs_cgyh), an operator named in no warehouse has no right at all.
// The administrator role "100001" passes every test, at any position, whatever its strings say.
bool hasRight(const Session &session, const QString &column, int position);
// The same for a named operator, without the warehouse test.
bool operatorHasRight(
    core::Connection &connection, const QString &column, int position, const QString &operatorName);

struct Role
{
    qint64 id = 0;
    QString code;
    QString name;
    QHash<QString, QString> rights; // area column -> right string
};

// A role as the editor hands it over: the ticked operations per area, in the area's order.
struct RoleDraft
{
    qint64 id = 0; // the row being changed; 0 for a new role
    QString name;
    QHash<QString, QList<bool>> ticked;
};

QString roleNameRequiredText();
QString roleNameTakenText(const QString &name);

QList<Role> listRoles(core::Connection &connection);
// The right string of an area: one character per operation, "1" where ticked.
QString rightString(const RightArea &area, const QList<bool> &ticked);
// Saves a new role under the next code, or changes the role of draft.id; the name must be given
// and unique. Returns the role's code.
Result<QString> saveRole(const Session &session, const RoleDraft &draft);

} // namespace medistock::shell
