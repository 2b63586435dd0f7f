// 库存成本统计 and 库存数量金额统计.
#include "documents/descriptor.h"
#include "statistics/reading.h"
#include "statistics/reports.h"

namespace medistock::statistics {

namespace {

GroupColumns stockGroup(StockGrouping grouping)
{
    switch (grouping) {
    case StockGrouping::Goods:
        return byGoods();
    case StockGrouping::Class:
        return byClass();
    case StockGrouping::Warehouse:
        return { QStringLiteral("a.ck_sn"),
            QStringLiteral("(select ck_name from jxc_ckxx where ck_sn=a.ck_sn order by id "
                           "limit 1)") };
    }
    return byGoods();
}

// The class, keyword and goods of a filter; its range and warehouse are applied elsewhere.
Sql goodsConditions(ReportFilter filter)
{
    filter.range = {};
    filter.warehouse.clear();
    return ledgerConditions(filter);
}

Sql stockCostSelect(const QString &date, const ReportFilter &filter, StockGrouping grouping)
{
    const GroupColumns group = stockGroup(grouping);
    Sql sql { QStringLiteral("select %1,sum(a.gl_kc),sum(a.gl_kczje)").arg(group.select())
            + ledgerWithGoods() + QStringLiteral(" where a.id in ("),
        {} };
    sql += lastLedgerRowIds(date + QStringLiteral(" 23:59:59"), true, filter.warehouse);
    sql.text += QLatin1Char(')');
    sql += goodsConditions(filter);
    sql.text += QStringLiteral(" group by %1 order by %1").arg(group.key);
    return sql;
}

StockCostRow stockCostRow(const shell::Parameters &p, const QSqlQuery &q)
{
    StockCostRow row;
    row.key = q.value(0).toString();
    row.name = q.value(1).toString();
    row.packing = q.value(2).toString();
    row.unit = q.value(3).toString();
    row.quantity = p.roundQuantity(q.value(4).toDouble());
    row.amount = p.roundAmount(q.value(5).toDouble());
    row.averageCost = row.quantity == 0 ? 0 : p.roundPrice(row.amount / row.quantity);
    return row;
}

Sql stockValueSelect(const ReportFilter &filter)
{
    Sql sql { QStringLiteral(
                  "select a.g_sn,max(b.g_name),max(b.gg_name),max(b.dw_name),(select gc_name "
                  "from jxc_goodsclass where gc_sn=b.gc_sn order by id limit 1),"
                  "sum(a.kc_sl),sum(a.kc_sl*a.kc_cbj),max(b.g_jj),max(b.g_sj),max(b.g_lsj) from "
                  "jxc_kcsp a left join jxc_goods b on b.g_sn=a.g_sn where a.g_sn<>?"),
        { documents::discountGoods() } };
    if (!filter.warehouse.isEmpty())
        sql += { QStringLiteral(" and a.ck_sn=?"), { filter.warehouse } };
    sql += goodsConditions(filter);
    sql.text += QStringLiteral(" group by a.g_sn,b.gc_sn having sum(a.kc_sl)<>0 order by a.g_sn");
    return sql;
}

StockValueRow stockValueRow(const shell::Parameters &p, const QSqlQuery &q)
{
    StockValueRow row;
    row.goods = q.value(0).toString();
    row.name = q.value(1).toString();
    row.packing = q.value(2).toString();
    row.unit = q.value(3).toString();
    row.className = q.value(4).toString();
    row.quantity = p.roundQuantity(q.value(5).toDouble());
    row.costAmount = p.roundAmount(q.value(6).toDouble());
    row.purchasePrice = q.value(7).toDouble();
    row.salePrice = q.value(8).toDouble();
    row.retailPrice = q.value(9).toDouble();
    row.purchaseAmount = p.roundAmount(row.quantity * row.purchasePrice);
    row.saleAmount = p.roundAmount(row.quantity * row.salePrice);
    row.retailAmount = p.roundAmount(row.quantity * row.retailPrice);
    return row;
}

} // namespace

Result<QList<StockCostRow>> stockCostAsOf(const shell::Session &session, const QString &date,
    const ReportFilter &filter, StockGrouping grouping)
{
    const DateRange day { date, date };
    return readReport<QList<StockCostRow>>(session, 8, &day, [&] {
        QList<StockCostRow> rows
            = selectRows<StockCostRow>(session, stockCostSelect(date, filter, grouping),
                [&](const QSqlQuery &q) { return stockCostRow(session.params(), q); });
        rows.removeIf([](const StockCostRow &row) { return row.quantity == 0 && row.amount == 0; });
        return rows;
    });
}

Result<QList<StockValueRow>> stockValues(const shell::Session &session, const ReportFilter &filter)
{
    return readReport<QList<StockValueRow>>(session, 8, nullptr, [&] {
        return selectRows<StockValueRow>(session, stockValueSelect(filter),
            [&](const QSqlQuery &q) { return stockValueRow(session.params(), q); });
    });
}

} // namespace medistock::statistics
