#pragma once

#include "accounts/postings.h"
#include "core/outcome.h"
#include "documents/descriptor.h"
#include "stock/movement.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// What the check and uncheck of a sale and of a return share.

// A document's columns for checking besides its entry and money descriptors.
struct CheckKind
{
    const documents::DocumentKind &entry;
    const accounts::MoneyColumns &money;
    const char *mode; // settlement mode
    const char *paidBack; // reset to 0 by uncheck ("ls_hkje")
    const char *closedMark; // reset to 0 by uncheck ("ls_dhbz", "th_qk")
    int checkRight; // positions in "xsgl"
    int uncheckRight;
};
const CheckKind &saleChecking();
const CheckKind &returnChecking();

// The header as a check reads it; a checked row wins over a stray unchecked copy.
struct CheckRow
{
    qint64 id = 0;
    QString number;
    QString date;
    QString customer;
    QString warehouse;
    QString checker;
    QString mode;
    double due = 0; // as stored
    double paid = 0;
    int status = 0;
};
std::optional<CheckRow> readCheckRow(
    const shell::Session &session, const CheckKind &kind, const QString &number);

// Whether the document has lines at all.
bool hasLines(const shell::Session &session, const CheckKind &kind, const QString &number);

// Before an uncheck asks anything: the document checked, the uncheck right, the checker rule
// and the closed-period test. Tells its refusals.
Outcome prepareUncheck(
    const shell::Session &session, const CheckKind &kind, const QString &number, CheckRow &row);

// Status 0, no checker or check date, nothing paid back, the closing mark cleared.
void markUnchecked(const shell::Session &session, const CheckKind &kind, const QString &number);
// Inside the check's transaction, after the header is marked: the header read once, as the money
// and stock postings take it.
accounts::MoneyHeader readPostedHeader(
    const shell::Session &session, const CheckKind &kind, const QString &number);
// The header as the stock postings copy it.
stock::PostingHeader postingHeader(const accounts::MoneyHeader &header);
// What an uncheck's stock reversal needs of the header read before it: number, date, warehouse.
stock::PostingHeader reversalHeader(const CheckRow &row);
// The money postings of the checked header; `writtenOff` is what settlement mode "0" gave as
// discount: it is counted as settled, not owed.
void postMoney(shell::Session &session, const CheckKind &kind, accounts::MoneyHeader header,
    double writtenOff = 0);
// The POS rows a member's document left under its number.
void deletePosRows(const shell::Session &session, const QString &number);

} // namespace medistock::sales
