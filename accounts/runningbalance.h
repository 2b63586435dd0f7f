#pragma once

#include <QList>
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
    const char *keys; // the columns whose values name a chain, in the order of chain's "?"
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

// A row whose stored balance differs from the chain's recomputation.
struct BalanceDrift
{
    qint64 id = 0;
    QString date;
    double stored = 0;
    double computed = 0;
};

// The values of the key columns of every chain of the book, one list per chain.
QList<QVariantList> chainsOf(core::Connection &connection, const RunningBook &book);
// Recomputes the chain from its first row, as rerunFrom would, without writing; the rows whose
// stored balance differs, in date-then-id order.
QList<BalanceDrift> balanceDrifts(
    core::Connection &connection, const RunningBook &book, const QVariantList &chain);

} // namespace medistock::accounts
