#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}
namespace medistock::stock {
struct PostingHeader;
}

namespace medistock::sales {

// The stock side of the sales documents. Each runs inside the caller's transaction (a joining
// guard of its own keeps a call on its own whole or nothing), with the header the check read,
// and throws DbError. The reversals use the header's number, date and warehouse.

// Posts a sale whose header the check has marked: issued quantities (none while goods leave
// through issue notes), the lines' stable identities, one goods-ledger row "xs" per line (the
// discount line's profit its amount), then per goods row the warehouse stock and quantity sold,
// the ledger rerun, the goods' stock and sale count and the batch stock; the delivered quantity
// of the order lines taken over, and the day's settlement of the warehouse. Returns the number of
// goods rows posted (the discount line not counted).
int postSaleStock(const shell::Session &session, const stock::PostingHeader &header);

// Takes a posted sale back out, row by row in the same order (the ledger rerun without the row);
// the order lines' delivered quantities, the lines as saved, and the settlement of the sale's
// date. The ledger rows themselves go with the money postings' removal.
void reverseSaleStock(const shell::Session &session, const stock::PostingHeader &header);

// Posts a checked return: ledger rows "xt" with quantities and amounts negated, then per row the
// warehouse stock up and its quantity sold down, the rerun, the goods' stock up and its sale count
// up, the batch stock up, and the settlement. Returns the number of goods rows.
int postReturnStock(const shell::Session &session, const stock::PostingHeader &header);

// Takes a posted return's goods back out of stock, row by row; the settlement of its date.
void reverseReturnStock(const shell::Session &session, const stock::PostingHeader &header);

// The sales lines a return gives back count what came back in their own unit (ls_qxsl):
// `direction` +1 when the return is checked, -1 when it is unchecked, so that another return of
// the same line keeps its count.
void countReturnedOnSales(const shell::Session &session, const QString &number, int direction);

} // namespace medistock::sales
