#pragma once

#include "pos/commission.h"
#include "pos/rankings.h"
#include "pos/salesreports.h"
#include "pos/tillcash.h"

#include <QList>
#include <QString>
#include <QVariantList>

// The POS reports as tables, one way for the screens' grids, the command line and the report
// templates alike: each column's caption, the field name its template reads it by, and what kind
// of figure it holds.
namespace medistock::pos {

struct ReportColumn
{
    enum class Kind { Text, Amount, Quantity, Price, Rate, Count };
    QString caption;
    QString field;
    Kind kind = Kind::Text;
    bool summed = false; // added up in a totals row
};

struct ReportTable
{
    QList<ReportColumn> columns;
    QList<QVariantList> rows; // texts as QString, figures as double (counts as int)
};

ReportTable journalTable(const QList<JournalRow> &rows);
ReportTable linesTable(const QList<JournalLine> &rows);
ReportTable goodsSalesTable(const QList<GoodsSalesRow> &rows);
ReportTable rankingTable(const QList<RankingRow> &rows, RankingView view);
ReportTable memberSalesTable(const QList<MemberSalesRow> &rows);
ReportTable cashierTable(const QList<CashierTakingsRow> &rows);
ReportTable tillCashTable(const QList<TillCashRow> &rows);
ReportTable commissionTable(const QList<CommissionRow> &rows);

} // namespace medistock::pos
