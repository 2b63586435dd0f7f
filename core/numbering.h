#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QString>

namespace medistock::core {

class Connection;

// Master codes are six-digit texts from "100001", the next being the largest plus one. Only a
// list's own code column is numbered (jxc_goods.g_sn, jxc_khxx.kh_sn ...); any other is refused.
Result<QString> nextMasterCode(Connection &connection, const QString &table, const QString &column);

// Document numbers: two-letter prefix + date "yymmdd" + daily sequence from "10001". Numbers
// already handed to sales being entered and to POS documents count too. Past sequence 99999 the
// day is full: the number is refused rather than grown to six digits, which no reader expects.
// Only a known prefix on the table that keeps that kind is numbered; anything else (a "%" or "'"
// typed into a prefix among them) is refused, never matched as a pattern.
Result<QString> nextDocumentNumber(Connection &connection, const QString &table,
    const QString &column, const QString &prefix, QDate date);

// Whether another operator already holds the number (the test before a save). A row of the
// operator's own does not count; for sales and sales returns the work and POS lines count too.
// Only the number column of a numbered document table is looked in.
Result<bool> isNumberTaken(Connection &connection, const QString &table, const QString &column,
    const QString &number, const QString &operatorName);

QString unknownCodeColumnText(const QString &table, const QString &column);
QString unknownPrefixText(const QString &prefix);
QString unknownNumberColumnText(const QString &table, const QString &column);
// The text shown when a day has used all its numbers of one kind.
QString numbersExhaustedText(const QString &stem);

} // namespace medistock::core
