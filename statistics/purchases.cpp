// 进货月报, 出库月报, 商品采购统计 and 业务员采购统计.
#include "documents/descriptor.h"
#include "statistics/reading.h"
#include "statistics/reports.h"

namespace medistock::statistics {

namespace {

QList<MovementGroup> groupsOf(bool inward)
{
    using G = MovementGroup;
    return inward ? QList<G> { G::Purchase, G::SalesReturn, G::OtherIn }
                  : QList<G> { G::Sale, G::PurchaseReturn, G::OtherOut };
}

Sql periodMovementSelect(const ReportFilter &filter, PeriodUnit unit, bool inward)
{
    const QString period = periodKey(unit == PeriodUnit::Month);
    Sql sql { QStringLiteral("select ") + period, {} };
    for (const MovementGroup group : groupsOf(inward))
        for (const Figure figure : { Figure::Quantity, Figure::Amount }) {
            sql.text += QStringLiteral(",coalesce(sum");
            sql += movementFigure(inward, figure, Valuation::Cost, { group });
            sql.text += QStringLiteral(",0)");
        }
    sql += { ledgerWithGoods() + QStringLiteral(" where a.g_sn<>? and "),
        { documents::discountGoods() } };
    sql += kindIn(QStringLiteral("a.gl_flag"), movementKinds());
    sql += ledgerConditions(filter);
    sql.text += QStringLiteral(" group by %1 order by %1").arg(period);
    return sql;
}

Result<QList<PeriodMovementRow>> movementByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit, bool inward)
{
    const shell::Parameters &p = session.params();
    return readReport<QList<PeriodMovementRow>>(session, inward ? 1 : 4, &filter.range, [&] {
        QList<PeriodMovementRow> rows = selectRows<PeriodMovementRow>(
            session, periodMovementSelect(filter, unit, inward), [&](const QSqlQuery &q) {
                PeriodMovementRow row;
                row.period = q.value(0).toString();
                for (int g = 0; g < 3; ++g) {
                    row.quantity[g] = p.roundQuantity(q.value(1 + 2 * g).toDouble());
                    row.amount[g] = p.roundAmount(q.value(2 + 2 * g).toDouble());
                    row.totalQuantity += row.quantity[g];
                    row.totalAmount += row.amount[g];
                }
                row.totalQuantity = p.roundQuantity(row.totalQuantity);
                row.totalAmount = p.roundAmount(row.totalAmount);
                return row;
            });
        // A day of other kinds only (a transfer on the other side) shows nothing here.
        rows.removeIf([](const PeriodMovementRow &row) {
            return row.totalQuantity == 0 && row.totalAmount == 0;
        });
        return rows;
    });
}

GroupColumns purchaseGroup(PurchaseGrouping grouping)
{
    switch (grouping) {
    case PurchaseGrouping::Goods:
        return byGoods();
    case PurchaseGrouping::Class:
        return byClass();
    case PurchaseGrouping::Supplier:
        return byParty();
    case PurchaseGrouping::Employee:
        return byEmployee();
    }
    return byGoods();
}

Sql purchaseSelect(const ReportFilter &filter, PurchaseGrouping grouping)
{
    const GroupColumns group = purchaseGroup(grouping);
    const QString receipt = QStringLiteral("cj");
    const QString back = QStringLiteral("ct");
    Sql sql { QStringLiteral("select %1,count(distinct a.gl_djh),"
                             "sum(case when a.gl_flag=? then a.gl_sl else 0 end),"
                             "sum(case when a.gl_flag=? then a.gl_zje else 0 end),"
                             "sum(case when a.gl_flag=? then -a.gl_sl else 0 end),"
                             "sum(case when a.gl_flag=? then -a.gl_zje else 0 end)")
                  .arg(group.select())
            + ledgerWithGoods() + QStringLiteral(" where "),
        { receipt, receipt, back, back } };
    sql += kindIn(QStringLiteral("a.gl_flag"), { receipt, back });
    sql += ledgerConditions(filter);
    sql.text += QStringLiteral(" group by %1 order by %1").arg(group.key);
    return sql;
}

} // namespace

Result<QList<PeriodMovementRow>> inwardByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit)
{
    return movementByPeriod(session, filter, unit, true);
}

Result<QList<PeriodMovementRow>> outwardByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit)
{
    return movementByPeriod(session, filter, unit, false);
}

Result<QList<PurchaseRow>> purchasesBy(
    const shell::Session &session, const ReportFilter &filter, PurchaseGrouping grouping)
{
    const shell::Parameters &p = session.params();
    const int right = grouping == PurchaseGrouping::Employee ? 3 : 2;
    return readReport<QList<PurchaseRow>>(session, right, &filter.range, [&] {
        return selectRows<PurchaseRow>(
            session, purchaseSelect(filter, grouping), [&](const QSqlQuery &q) {
                PurchaseRow row;
                row.key = q.value(0).toString();
                row.name = q.value(1).toString();
                row.packing = q.value(2).toString();
                row.unit = q.value(3).toString();
                row.documents = q.value(4).toInt();
                row.quantity = p.roundQuantity(q.value(5).toDouble());
                row.amount = p.roundAmount(q.value(6).toDouble());
                row.returnQuantity = p.roundQuantity(q.value(7).toDouble());
                row.returnAmount = p.roundAmount(q.value(8).toDouble());
                row.netQuantity = p.roundQuantity(row.quantity - row.returnQuantity);
                row.netAmount = p.roundAmount(row.amount - row.returnAmount);
                return row;
            });
    });
}

} // namespace medistock::statistics
