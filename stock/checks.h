#pragma once

#include "core/outcome.h"

#include <QString>
#include <QStringList>

namespace medistock::shell {
class Session;
}

namespace medistock::stock {

// The stock checks run before a document takes goods out of a batch. They only read.

// The document kinds the batch check knows: "CJ" (unchecking a purchase receipt), "CT", "XS",
// "XT" (unchecking a sales return), "DB", "JH".
QStringList batchCheckKinds();
bool isBatchCheckKind(const QString &kind);

// Sums the document's lines per goods and batch and compares them with the positive batch stock
// of the warehouse. Returns the message naming the first short goods in code order, worded for
// the negative-stock setting; empty when nothing is short. A batch without a row, or with none
// or negative stock, is never reported. The discount line takes no part.
QString batchCheck(const shell::Session &session, const QString &number, const QString &warehouse,
    const QString &kind);

// How a document's check or uncheck acts on the batch check, before its transaction begins: a
// shortage is told and refused when negative stock is not allowed, else asked, and "No" refuses.
Outcome confirmBatchCheck(const shell::Session &session, const QString &number,
    const QString &warehouse, const QString &kind);

// The per-sale maximum g_xzsl of each goods against the sale's quantity in the lines' own units
// (ls_sl, summed per goods). Returns the message for the first goods over its limit; empty when
// every goods keeps it. A limit of 0 or less is no limit.
QString saleLimitCheck(const shell::Session &session, const QString &number);
// The goods' per-sale maximum as saleLimitCheck compares it; 0 for none (or no such goods).
double saleLimit(const shell::Session &session, const QString &goods);

} // namespace medistock::stock
