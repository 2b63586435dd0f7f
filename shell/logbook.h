#pragma once

#include "core/oplog.h"
#include "core/outcome.h"

#include <QDate>
#include <QList>

namespace medistock::shell {

class Session;

QString clearLogQuestion(); // "清除日志后将无法恢复，确认清除全部操作日志吗？"

// The log rows from `from` to the end of `to` in time order ("查看日志"); an invalid date leaves
// that end open.
Result<QList<core::LogEntry>> viewLog(const Session &session, QDate from, QDate to);

// "清除日志": asks first; on yes empties the operation log and writes one row "清除日志", so the
// clearing itself stays on record. Answering no is a refusal without a message.
Outcome clearLog(const Session &session);

} // namespace medistock::shell
