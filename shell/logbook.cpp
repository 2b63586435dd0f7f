#include "shell/logbook.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

namespace medistock::shell {

QString clearLogQuestion()
{
    return QStringLiteral("清除日志后将无法恢复，确认清除全部操作日志吗？");
}

Result<QList<core::LogEntry>> viewLog(const Session &session, QDate from, QDate to)
{
    const Outcome allowed = requireRight(session, "qtcz", 14);
    if (!allowed)
        return allowed;
    QList<core::LogEntry> entries;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        entries = core::readLog(session.db(), from, to);
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return entries;
}

Outcome clearLog(const Session &session)
{
    const Outcome allowed = requireRight(session, "qtcz", 15);
    if (!allowed)
        return allowed;
    if (!session.ui().ask(clearLogQuestion()))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        core::clearLog(session.db());
        session.log(QStringLiteral("清除日志"));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::shell
