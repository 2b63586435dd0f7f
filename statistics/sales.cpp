// 商品销售统计 with 单品分析, 营业分析, 商品销售排行 and 业务员销售统计.
#include "documents/descriptor.h"
#include "statistics/reading.h"
#include "statistics/reports.h"
#include "statistics/texts.h"

#include <algorithm>

namespace medistock::statistics {

namespace {

const QStringList salesKinds { "xs", "xt" };

Sql salesSelect(const ReportFilter &filter, const GroupColumns &group, bool withoutDiscount)
{
    Sql sql { QStringLiteral("select %1,count(distinct a.gl_djh),sum(a.gl_sl),sum(a.gl_zje),"
                             "sum(a.gl_zcb),sum(a.gl_lr)")
                  .arg(group.select())
            + ledgerWithGoods() + QStringLiteral(" where "),
        {} };
    sql += kindIn(QStringLiteral("a.gl_flag"), salesKinds);
    if (withoutDiscount)
        sql += { QStringLiteral(" and a.g_sn<>?"), { documents::discountGoods() } };
    sql += ledgerConditions(filter);
    sql.text += QStringLiteral(" group by %1 order by %1").arg(group.key);
    return sql;
}

QList<SalesRow> salesRows(const shell::Session &session, const ReportFilter &filter,
    const GroupColumns &group, bool withoutDiscount = false)
{
    const shell::Parameters &p = session.params();
    return selectRows<SalesRow>(
        session, salesSelect(filter, group, withoutDiscount), [&](const QSqlQuery &q) {
            SalesRow row;
            row.key = q.value(0).toString();
            row.name = q.value(1).toString();
            row.packing = q.value(2).toString();
            row.unit = q.value(3).toString();
            row.documents = q.value(4).toInt();
            row.quantity = p.roundQuantity(q.value(5).toDouble());
            row.amount = p.roundAmount(q.value(6).toDouble());
            row.cost = p.roundAmount(q.value(7).toDouble());
            row.profit = p.roundAmount(q.value(8).toDouble());
            row.rate = profitRate(row.profit, row.amount);
            return row;
        });
}

GroupColumns salesGroup(SalesGrouping grouping)
{
    switch (grouping) {
    case SalesGrouping::Goods:
        return byGoods();
    case SalesGrouping::Class:
        return byClass();
    case SalesGrouping::Customer:
        return byParty();
    case SalesGrouping::Supplier:
        return byGoodsSupplier();
    }
    return byGoods();
}

double measureOf(const SalesRow &row, RankMeasure measure)
{
    switch (measure) {
    case RankMeasure::Quantity:
        return row.quantity;
    case RankMeasure::Amount:
        return row.amount;
    case RankMeasure::Profit:
        return row.profit;
    case RankMeasure::Rate:
        return row.rate;
    }
    return 0;
}

// The employees by name, with their commission settings; a name kept twice counts once.
const QString employeesByName = QStringLiteral(
    " left join (select u_name,max(u_sn) as u_sn,max(u_tcfs) as u_tcfs,max(u_tc) as u_tc,"
    "max(u_zdlr) as u_zdlr from jxc_user group by u_name) u on u.u_name=a.u_name");

Sql salesmanSelect(const ReportFilter &filter)
{
    Sql sql { QStringLiteral(
                  "select a.u_name,max(u.u_sn),count(distinct a.gl_djh),sum(a.gl_zje),"
                  "sum(a.gl_zcb),sum(a.gl_lr),max(u.u_tcfs),max(u.u_tc),sum(case when "
                  "coalesce(u.u_zdlr,0)=0 then a.gl_lr when a.gl_dj-a.gl_cbj>u.u_zdlr then "
                  "(a.gl_dj-a.gl_cbj-u.u_zdlr)*a.gl_sl else 0 end)")
            + ledgerWithGoods() + employeesByName + QStringLiteral(" where "),
        {} };
    sql += kindIn(QStringLiteral("a.gl_flag"), salesKinds);
    sql += ledgerConditions(filter);
    sql.text += QStringLiteral(" group by a.u_name order by a.u_name");
    return sql;
}

SalesmanRow salesmanRow(const shell::Parameters &p, const QSqlQuery &q)
{
    SalesmanRow row;
    row.name = q.value(0).toString();
    row.employee = q.value(1).toString();
    row.documents = q.value(2).toInt();
    row.amount = p.roundAmount(q.value(3).toDouble());
    row.cost = p.roundAmount(q.value(4).toDouble());
    row.profit = p.roundAmount(q.value(5).toDouble());
    row.rate = profitRate(row.profit, row.amount);
    const bool byProfit = q.value(6).toInt() == 1;
    row.method = byProfit ? texts::commissionByProfit() : texts::commissionByAmount();
    row.commissionRate = q.value(7).toDouble();
    row.commissionProfit = p.roundAmount(q.value(8).toDouble());
    if (row.commissionRate > 0) {
        if (byProfit)
            row.profitCommission = p.roundAmount(row.commissionProfit * row.commissionRate * 0.01);
        else
            row.commission = p.roundAmount(row.amount * row.commissionRate * 0.01);
    }
    return row;
}

} // namespace

Result<QList<SalesRow>> salesBy(
    const shell::Session &session, const ReportFilter &filter, SalesGrouping grouping)
{
    return readReport<QList<SalesRow>>(session, 5, &filter.range,
        [&] { return salesRows(session, filter, salesGroup(grouping)); });
}

Result<QList<SalesRow>> goodsSalesByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit)
{
    if (filter.goods.isEmpty())
        return core::refuse(session.ui(), texts::goodsRequired());
    return readReport<QList<SalesRow>>(session, 5, &filter.range,
        [&] { return salesRows(session, filter, byPeriod(unit == PeriodUnit::Month)); });
}

Result<QList<SalesRow>> businessByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit)
{
    return readReport<QList<SalesRow>>(session, 9, &filter.range,
        [&] { return salesRows(session, filter, byPeriod(unit == PeriodUnit::Month)); });
}

Result<QList<SalesRow>> salesRanking(
    const shell::Session &session, const ReportFilter &filter, RankMeasure measure, int top)
{
    return readReport<QList<SalesRow>>(session, 10, &filter.range, [&] {
        QList<SalesRow> rows = salesRows(session, filter, byGoods(), true);
        std::stable_sort(rows.begin(), rows.end(), [&](const SalesRow &a, const SalesRow &b) {
            return measureOf(a, measure) > measureOf(b, measure);
        });
        if (top > 0 && rows.size() > top)
            rows.resize(top);
        return rows;
    });
}

Result<QList<SalesmanRow>> salesBySalesman(
    const shell::Session &session, const ReportFilter &filter)
{
    return readReport<QList<SalesmanRow>>(session, 6, &filter.range, [&] {
        return selectRows<SalesmanRow>(session, salesmanSelect(filter),
            [&](const QSqlQuery &q) { return salesmanRow(session.params(), q); });
    });
}

} // namespace medistock::statistics
