#pragma once

#include "core/outcome.h"

#include <QHash>
#include <QString>
#include <QVariant>

namespace medistock::shell {

class Session;

// The text shown when an operator lacks the right for an operation, e.g.
// "您没有“系统设置”的权限！".
QString noRightText(const QString &operation);
// Refuses (and tells) unless the operator holds the right; `position` counts from 1.
Outcome requireRight(const Session &session, const char *area, int position);

// Writes the changed parameter columns (names of jxc_xtcs) and reloads the session's values. Each
// value is checked first (shell/parametervalues.h); an unknown name or a value that does not fit
// is told and refused, and nothing is written.
Outcome saveParameters(Session &session, const QHash<QString, QVariant> &changes);

// The settings screen's defaults button: refused while a purchase line is not wholly received or
// a sales line not wholly issued; otherwise the parameter row is written anew with its defaults,
// cs_employdate "1900-01-01", and the session's values are reloaded.
Outcome restoreDefaultParameters(Session &session);

} // namespace medistock::shell
