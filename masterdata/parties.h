#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>

namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

// A list held in one column: each item followed by a comma ("admin,小王,").
QString commaList(const QStringList &items);
QStringList splitCommaList(const QString &text);

// The operators allowed in a warehouse, by operator code: writes ck_asn with the codes and
// ck_aname with their names. Unknown codes are refused.
Outcome setWarehouseOperators(
    const shell::Session &session, const QString &warehouse, const QStringList &operatorCodes);

// The employees responsible for a customer, by employee code: kh_usn and kh_uname.
Outcome setCustomerEmployees(
    const shell::Session &session, const QString &customer, const QStringList &employeeCodes);

} // namespace medistock::masterdata
