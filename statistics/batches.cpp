// 批次查询: one batch's whole history.
#include "statistics/reading.h"
#include "statistics/reports.h"
#include "statistics/texts.h"

#include <QHash>

namespace medistock::statistics {

namespace {

QList<BatchStockRow> batchStock(
    const shell::Session &session, const QString &batch, const QString &goods)
{
    Sql sql { QStringLiteral("select a.g_sn,b.g_name,a.ck_sn,(select ck_name from jxc_ckxx where "
                             "ck_sn=a.ck_sn order by id limit 1),a.t_ph,a.t_yxq,a.t_scrq,a.t_sl "
                             "from jxc_tkc a left join jxc_goods b on b.g_sn=a.g_sn where "
                             "a.t_ph=?"),
        { batch } };
    if (!goods.isEmpty())
        sql += { QStringLiteral(" and a.g_sn=?"), { goods } };
    sql.text += QStringLiteral(" order by a.g_sn,a.ck_sn,a.t_yxq,a.t_scrq,a.id");
    return selectRows<BatchStockRow>(session, sql, [&](const QSqlQuery &q) {
        return BatchStockRow { q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
            q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
            q.value(6).toString(), session.params().roundQuantity(q.value(7).toDouble()) };
    });
}

// The running quantity of the batch in each goods, warehouse and expiry, row by row.
QList<double> balancesOf(const shell::Session &session, const QList<MovementRow> &rows)
{
    QHash<QString, double> held;
    QList<double> balances;
    for (const MovementRow &row : rows) {
        const QString key
            = row.goods + QLatin1Char('\n') + row.warehouse + QLatin1Char('\n') + row.expiry;
        double &balance = held[key];
        balance = session.params().roundQuantity(
            balance + row.inQuantity.value_or(0) - row.outQuantity.value_or(0));
        balances.append(balance);
    }
    return balances;
}

} // namespace

Result<BatchHistory> batchHistory(
    const shell::Session &session, const QString &batch, const QString &goods)
{
    if (batch.trimmed().isEmpty())
        return core::refuse(session.ui(), texts::batchRequired());
    MovementQuery query;
    query.filter.batch = batch.trimmed();
    query.filter.goods = goods;
    const Result<QList<MovementRow>> rows = movementRows(session, query, 12);
    if (!rows)
        return rows.outcome();
    return readReport<BatchHistory>(session, 12, nullptr, [&] {
        return BatchHistory { rows.value(), balancesOf(session, rows.value()),
            batchStock(session, batch.trimmed(), goods) };
    });
}

} // namespace medistock::statistics
