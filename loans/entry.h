#pragma once

#include "core/outcome.h"
#include "documents/entry.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::loans {

// What a loan line asks of the customer besides goods, quantity and price, as typed.
struct LoanTerms
{
    QString deposit; // jh_yj, the line's deposit; empty: 0
    QString rent; // jh_zj, per unit and day; empty: 0
    QString account; // jh_kmmc, where the rent is booked; empty: "现金"
};

// A loan as entered: customer, warehouse, date and lines through the shared entry (base units;
// a price left empty takes the cost as of the loan date), and the terms of each line in the
// lines' order (missing terms: none).
struct LoanDraft
{
    documents::DocumentDraft entry;
    QList<LoanTerms> terms;
};

// Saves a loan through the shared entry, in this order: the right "客户借货管理", the shared
// checks, each line's deposit, rent and account (refused), a date after today (asked), the
// confirmation (worded for check-on-save); then the rows and the log "增加未审核借货单...". With
// check-on-save on the check follows. Returns the number.
Result<QString> saveLoan(shell::Session &session, const LoanDraft &draft);

// Deletes an unchecked loan with its lines (the shared entry's delete).
Outcome deleteLoan(const shell::Session &session, const QString &number);

} // namespace medistock::loans
