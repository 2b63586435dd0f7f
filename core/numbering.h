#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QString>

namespace medistock::core {

class Connection;

// Master codes are six-digit texts from "100001", the next being the largest plus one. Table and
// column must be in the schema catalogue, else the answer is refused.
Result<QString> nextMasterCode(Connection &connection, const QString &table, const QString &column);

// Document numbers: two-letter prefix + date "yymmdd" + daily sequence from "10001". Numbers
// already handed to sales being entered and to POS documents count too. Past sequence 99999 the
// day is full: the number is refused rather than grown to six digits, which no reader expects.
Result<QString> nextDocumentNumber(Connection &connection, const QString &table,
    const QString &column, const QString &prefix, QDate date);

// Whether another operator already holds the number (the test before a save). A row of the
// operator's own does not count; for sales and sales returns the work and POS lines count too.
Result<bool> isNumberTaken(Connection &connection, const QString &table, const QString &column,
    const QString &number, const QString &operatorName);

// The text shown when a day has used all its numbers of one kind.
QString numbersExhaustedText(const QString &stem);

} // namespace medistock::core
