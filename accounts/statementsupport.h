#pragma once

#include "accounts/statements.h"

#include <QSqlQuery>
#include <QString>
#include <QVariantList>

namespace medistock::accounts::statements {

// The statements' SQL is built from fixed pieces and catalogue names; every value is bound.
struct Query
{
    QString sql;
    QVariantList params;

    // Appends a piece with the values its placeholders take.
    Query &add(const QString &piece, const QVariantList &values = {});
    // " and <column>=?" when the value is not empty.
    Query &whereEqual(const QString &column, const QString &value);
    // " and (<c1> like ? or <c2> like ? ...)" with "%text%" when the text is not empty.
    Query &whereContains(const QStringList &columns, const QString &text);
    // " and <column>>=? and <column><=?" over the filter's range, the upper day included.
    Query &whereInRange(const QString &column, const StatementFilter &filter);
    // The warehouse restriction on the warehouse joined as `alias`.
    Query &whereWarehouse(const WarehouseRestriction &restriction, const QString &alias);
};

// The upper bound of a range: the end date followed by " 23:59:59", so that the day counts.
QString endOfDay(const QString &date);

// A figure summed or subtracted from stored decimals, without the binary remainder.
double figure(const QSqlQuery &q, int index);
QString text(const QSqlQuery &q, int index);

// Profit as a percent of the amount before tax, 2 places; 0 when the amount is 0.
double profitRate(double profit, double beforeTax);

// The journal columns that readJournalLine reads, from jxc_goodslist joined as `a`: id, date,
// number, kind, goods, name, unit, packing, batch, expiry, produced, party, party name, warehouse
// name, quantity, price, amount, amount before tax, tax, profit.
QString journalColumns();
JournalLine readJournalLine(const QSqlQuery &q);

// The goods' catalogue columns that readGoods reads from jxc_goods joined as `g`, nine of them.
QString goodsColumns();
void readGoods(GoodsTotals &row, const QSqlQuery &q);

} // namespace medistock::accounts::statements
