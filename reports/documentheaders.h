#pragma once

#include "reports/data.h"

#include <QSqlRecord>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::reports {

// The header of a document as its key prints it: the row read with its warehouse, employee and
// party names, and the variables set from it. Used by documentData.

struct HeaderRow
{
    QSqlRecord row; // empty when the document does not exist
    QString status; // the status column's value
};

// Reads the header of the key's table by number; a checked row wins over a stray unchecked copy.
HeaderRow readHeader(const shell::Session &session, const QString &key, const QString &number);

// Sets the key's header variables (and the customer balances, the totals and their capitals)
// from the row.
void setHeaderVariables(const shell::Session &session, const QString &key, const QString &number,
    const HeaderRow &header, ReportData &data);

} // namespace medistock::reports
