#pragma once

#include "core/outcome.h"
#include "documents/entry.h"
#include "sales/entry.h"

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// What saving the three sales documents shares.

// The sales header as typed: settlement mode 0, 1 or 2 (empty: 1), an existing account (empty:
// "现金"), the freight terms, each amount within the money limits (the paid amount goes back to
// the customer on a return). Tells its refusal.
Outcome checkSaleHeader(const shell::Session &session, SaleHeader &header, bool isReturn);

// Every line typed without a price takes the customer's price for its unit (linePrice), the price
// every goods line added to a sales document starts from. Reads only.
void fillCustomerPrices(const shell::Session &session, documents::DocumentDraft &draft);

// The amount due of a document: its line totals less the whole-document discount, rounded.
double documentDue(const shell::Session &session, const documents::ValidDocument &doc);

// Where a kind's lines keep their cost and retail price.
struct CostColumns
{
    const char *basePrice; // per base unit ("ls_cbj2"); empty when the table has none
    const char *unitPrice; // per line unit ("ls_cbj", "th_cbj")
    const char *total; // base quantity x cost ("ls_zcb", "th_zcb")
    const char *retail; // retail price per line unit ("ls_lsj", "th_lsj")
};
// Writes the line's cost from its cost per base unit, and its retail price.
void setLineCost(const shell::Session &session, const CostColumns &columns,
    documents::ValidLine &line, double baseCost);

// Asks the confirmation of a save; "No" refuses with the question.
Outcome confirmSave(const shell::Session &session, const QString &question);

// The prepayment question of a sale settled by the amount paid ("1"), when the warning is on:
// the customer's prepayment (minus his balance after his last row) against what the sale leaves
// unpaid. Asked only when the unpaid amount is strictly greater; "No" refuses.
Outcome confirmPrepayment(const shell::Session &session, const QString &customer,
    const QString &mode, double due, double paid);

} // namespace medistock::sales
