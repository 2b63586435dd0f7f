#pragma once

#include <QString>

namespace medistock::documents {

// The expiry of a batch (t_yxq, "有效期至") as the trade writes it: a day "yyyy-MM-dd", a month
// "yyyy-MM" (what most drug packages print; the goods are good through the month's last day), or
// none, written "0000-00" or left empty. Batches keep the text as typed, since batch identity
// compares it exactly; production dates stay full days. Every screen, import and stock rule asks
// these routines.

// Whether `text` is an expiry entry and import accept: a real day, a real month, "0000-00" or
// empty.
bool isExpiryText(const QString &text);

// The last day "yyyy-MM-dd" the batch is good through: the day itself, or the month's last day;
// empty for none. Text that is no expiry is given back as it stands.
QString expiryDay(const QString &expiry);

// What batches are ordered by, first expiry first: the expiry's last day, with batches without
// expiry after every dated one.
QString expirySortKey(const QString &expiry);

// Whether the batch has expired by `date` ("yyyy-MM-dd"): its last day lies before the date. A
// batch without expiry never expires.
bool expiredBy(const QString &expiry, const QString &date);

} // namespace medistock::documents
