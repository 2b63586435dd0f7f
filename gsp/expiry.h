#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QList>
#include <QString>

namespace medistock::shell {
class Parameters;
class Session;
} // namespace medistock::shell

namespace medistock::gsp {

// "药品过期查询": batches in stock whose expiry falls on or before the month N days from today.
// The limit is that month as text, "yyyy-MM", and expiries are compared with it as text, so that
// an expiry kept as a month ("2025-06") is listed in its month while one kept as a full date in
// the limit month ("2025-06-15" > "2025-06") is not: it is counted with the month after. A batch
// without a number, without an expiry or with the expiry "0000-00" (none) is never listed.
struct ExpiryRow
{
    qint64 id = 0; // jxc_tkc.id
    QString goods;
    QString goodsName;
    QString unit; // dw_name
    QString packing; // gg_name
    QString manufacturer; // g_sccs
    QString warehouse; // ck_sn
    QString warehouseName;
    QString batch; // t_ph
    QString produced; // t_scrq
    QString expiry; // t_yxq
    double quantity = 0; // t_sl
};

// The month text the query compares expiries with: today + days as "yyyy-MM".
QString expiryLimit(QDate today, int days);

// The days a typed text asks for: a whole number from 0 to 36500; refused (not told) otherwise.
Result<int> expiryDays(const QString &text);

// The batches of the warehouse (a code, matched as a substring; empty or "所有仓库" for all)
// whose goods' code, name or mnemonic contains the key, in batch-row order.
Result<QList<ExpiryRow>> expiryQuery(
    const shell::Session &session, int days, const QString &warehouse, const QString &key);

// The days within which a batch counts as near expiry: the parameter cs_cs031
// ("近效期提醒天数"), 180 when it is not set.
int nearExpiryDays(const shell::Parameters &params);

// How many batches the expiry query lists for every warehouse with the near-expiry days: what
// the main window's status bar shows.
Result<int> nearExpiryCount(const shell::Session &session);

} // namespace medistock::gsp
