#pragma once

#include "core/outcome.h"

#include <QList>
#include <QSqlRecord>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// A date typed as "yyyy-MM-dd" that is a real date.
bool isDateText(const QString &text);
// A remark as it is stored: the medium text cleaning.
QString cleanNote(const QString &note);

// The number a saved document keeps: `current` while it carries the date's stem, otherwise the
// next number of `prefix` for `date`. Refused when the day has no number left.
Result<QString> numberForDate(core::Connection &connection, const QString &table,
    const QString &prefix, const QString &date, const QString &current);

// Only the operator who checked a document may uncheck it, unless the operator is "100001".
Outcome requireChecker(shell::Session &session, const QString &number, const QString &checker);
// "您的操作将取消当前选中的已审核单据：<number>，确认吗？"; false stops the uncheck.
bool confirmUncheck(shell::Session &session, const QString &number);

// The employee's name from jxc_user; empty when there is none.
QString employeeName(core::Connection &connection, const QString &code);
bool employeeExists(core::Connection &connection, const QString &code);
bool employeeNameExists(core::Connection &connection, const QString &name);
// The stored rows of a registration, cash movement or expense document, by its number's prefix, in
// id order; empty for another prefix or an unknown number.
QList<QSqlRecord> documentRows(core::Connection &connection, const QString &number);

// A cash or bank account of jxc_yhzh by its name.
bool bankAccountExists(core::Connection &connection, const QString &name);

} // namespace medistock::accounts
