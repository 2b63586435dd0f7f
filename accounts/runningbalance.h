#pragma once

#include <QString>
#include <QVariantList>

namespace medistock::core {
class Connection;
}

namespace medistock::accounts {

// A book that keeps a running balance on every row, in date-then-id order, per chain of rows
// (one party of one kind, or one cash account). All names are schema names.
struct RunningBook
{
    const char *table;
    const char *balance; // the running balance column
    const char *date; // the order column, text "yyyy-MM-dd"
    const char *delta; // what one row adds to the balance
    const char *chain; // the rows of one chain, with "?" for the chain's values
};

// jxc_ysyfk per k_type and k_ghskh: k_qcje + k_yfje - k_sfje.
const RunningBook &ledgerBook();
// jxc_fpdjb per fp_type and fp_ghskh, counted rows only: fp_qcje + fp_yfje - fp_kpje.
const RunningBook &invoiceBook();
// jxc_xjyh per xj_kmmc, counted rows only: xj_je.
const RunningBook &cashBook();

// The balance of the chain's last row dated on or before `date` and, when beforeId is not 0,
// with a smaller id; 0 when there is none.
double balanceAsOf(core::Connection &connection, const RunningBook &book, const QVariantList &chain,
    const QString &date, qint64 beforeId = 0);
// The balance of the chain's last row; 0 when there is none.
double lastBalance(
    core::Connection &connection, const RunningBook &book, const QVariantList &chain);
// Rewrites the balance of every row of the chain dated on or after `date`, walking date then id
// from the balance of the last row before the date. Returns the balance after the last row, or
// that opening balance when no row lies on or after the date. Writes only rows whose balance
// changes; runs inside the caller's transaction.
double rerunFrom(core::Connection &connection, const RunningBook &book, const QVariantList &chain,
    const QString &date);

} // namespace medistock::accounts
