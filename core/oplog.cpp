#include "core/oplog.h"

#include "core/clock.h"
#include "core/connection.h"

#include <QSqlQuery>

namespace medistock::core {

void writeLog(
    Connection &connection, const Clock &clock, const QString &operatorName, const QString &note)
{
    connection.exec(QStringLiteral("insert into jxc_log (log_time,a_name,log_note) values (?,?,?)"),
        { clock.nowText(), operatorName, note.left(200) });
}

QList<LogEntry> readLog(Connection &connection, QDate from, QDate to)
{
    const QString first = from.isValid() ? from.toString(QStringLiteral("yyyy-MM-dd")) : QString();
    const QString last = to.isValid()
        ? to.toString(QStringLiteral("yyyy-MM-dd")) + QStringLiteral(" 23:59:59")
        : QStringLiteral("9999-12-31 23:59:59");
    QList<LogEntry> entries;
    connection.forEach(QStringLiteral("select log_time,a_name,log_note from jxc_log "
                                      "where log_time>=? and log_time<=? order by log_time,id"),
        { first, last }, [&](const QSqlQuery &q) {
            entries.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString() });
        });
    return entries;
}

void clearLog(Connection &connection)
{
    connection.exec(QStringLiteral("delete from jxc_log"));
}

} // namespace medistock::core
