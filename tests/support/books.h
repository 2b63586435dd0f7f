#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::test {

// Books that the crash and concurrency tests post and take back over and over, and the test of
// whether they still balance. Everything goes through the operations the program runs and plain
// SQL that every database of the system understands, so that the same harness serves any of them.

// Saves `count` purchase receipts, unchecked, from one supplier into the default warehouse, all
// of one day, so that every check and uncheck reruns the moving average and the supplier's
// running balance over the others: three goods over two batches, every second receipt paid in
// cash at its check. Adds the goods and the supplier; returns the numbers.
QStringList setUpReceipts(shell::Session &session, int count);

// Checks the receipt when it is unchecked, unchecks it when it is checked (answering the
// question "Yes").
Outcome toggleReceipt(shell::Session &session, const QString &number);

// What is wrong with the books, one line for each fault; empty when they balance:
// - every receipt is wholly posted or wholly not: one header row; checked, it has one ledger
//   row per line, its payables row, a cash row exactly when it was paid; unchecked, none of
//   them;
// - stock of each goods in each warehouse, of each batch and of each goods in all warehouses
//   equals the ledger's sums, and each warehouse's ledger ends at that stock;
// - the supplier's running balance ends at what the payables rows add up to.
QStringList booksProblems(core::Connection &connection, const QStringList &receipts);

} // namespace medistock::test
