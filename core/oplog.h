#pragma once

#include <QDate>
#include <QList>
#include <QString>

namespace medistock::core {

class Clock;
class Connection;

// Appends one row to the operation log: the time as text, the operator, the note cut to its
// first 200 characters. Runs inside the caller's transaction.
void writeLog(
    Connection &connection, const Clock &clock, const QString &operatorName, const QString &note);

struct LogEntry
{
    QString time;
    QString operatorName;
    QString note;
};

// The log rows of a date range in time order; an empty bound is open.
QList<LogEntry> readLog(Connection &connection, QDate from, QDate to);

// Empties the operation log.
void clearLog(Connection &connection);

} // namespace medistock::core
