#include "stock/stockview.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/stores.h"
#include "stock/texts.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::stock {

namespace {

// Repairs are the stock module's "库存核对".
Outcome requireRepairRight(const shell::Session &session)
{
    return shell::requireRight(session, "kcgl", 17);
}

QStringList allWarehouses(const shell::Session &session)
{
    QStringList warehouses;
    session.db().forEach(QStringLiteral("select ck_sn from jxc_ckxx order by ck_sn"), {},
        [&](const QSqlQuery &q) { warehouses.append(q.value(0).toString()); });
    return warehouses;
}

// The goods alone, or the goods and one warehouse.
QVariantList keysOf(const QString &goods, const QString &warehouse)
{
    return warehouse.isEmpty() ? QVariantList { goods } : QVariantList { goods, warehouse };
}

} // namespace

std::optional<GoodsTotals> goodsTotals(const shell::Session &session, const QString &goods)
{
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select g_sn,g_name,dw_name,g_kc,g_pjjj,g_scjj,g_cgpl,g_xspl,ghs_sn from "
                       "jxc_goods where g_sn=? order by id limit 1"),
        { goods });
    if (row.isEmpty())
        return std::nullopt;
    return GoodsTotals { row.value(0).toString(), row.value(1).toString(), row.value(2).toString(),
        row.value(3).toDouble(), row.value(4).toDouble(), row.value(5).toDouble(),
        row.value(6).toInt(), row.value(7).toInt(), row.value(8).toString() };
}

QList<WarehouseStockRow> warehouseStockRows(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    QList<WarehouseStockRow> rows;
    const QString all = QStringLiteral(
        "select ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl from jxc_kcsp where g_sn=? order by ck_sn,id");
    const QString one = QStringLiteral("select ck_sn,kc_sl,kc_zsl,kc_cbj,kc_xssl from jxc_kcsp "
                                       "where g_sn=? and ck_sn=? order by ck_sn,id");
    session.db().forEach(
        warehouse.isEmpty() ? all : one, keysOf(goods, warehouse), [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toString(), q.value(1).toDouble(), q.value(2).toDouble(),
                q.value(3).toDouble(), q.value(4).toDouble() });
        });
    return rows;
}

QList<BatchStockRow> batchStockRows(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    QList<BatchStockRow> rows;
    const QString all = QStringLiteral("select ck_sn,t_ph,t_yxq,t_scrq,t_sl from jxc_tkc where "
                                       "g_sn=? order by ck_sn,t_ph,t_yxq,t_scrq,id");
    const QString one = QStringLiteral("select ck_sn,t_ph,t_yxq,t_scrq,t_sl from jxc_tkc where "
                                       "g_sn=? and ck_sn=? order by ck_sn,t_ph,t_yxq,t_scrq,id");
    session.db().forEach(
        warehouse.isEmpty() ? all : one, keysOf(goods, warehouse), [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toString(), q.value(4).toDouble() });
        });
    return rows;
}

QList<LedgerLine> ledgerLines(
    const shell::Session &session, const QString &goods, const QString &warehouse)
{
    QList<LedgerLine> lines;
    session.db().forEach(
        QStringLiteral("select id,gl_kdrq,gl_flag,gl_djh,gl_sl,gl_je,gl_dj,gl_sqsl,gl_sqje,gl_kc,"
                       "gl_pjjj,gl_kczje from jxc_goodslist where g_sn=? and ck_sn=? "
                       "order by gl_kdrq,id"),
        { goods, warehouse }, [&](const QSqlQuery &q) {
            LedgerLine line;
            line.id = q.value(0).toLongLong();
            line.date = q.value(1).toString();
            line.kind = q.value(2).toString();
            line.number = q.value(3).toString();
            line.movement = { line.kind, q.value(4).toDouble(), q.value(5).toDouble(),
                q.value(6).toDouble() };
            line.carriedQuantity = q.value(7).toDouble();
            line.carriedAmount = q.value(8).toDouble();
            line.running
                = { q.value(9).toDouble(), q.value(10).toDouble(), q.value(11).toDouble() };
            lines.append(line);
        });
    return lines;
}

QList<SettlementRow> settlementRows(const shell::Session &session, const QString &date)
{
    QList<SettlementRow> rows;
    session.db().forEach(
        QStringLiteral("select ck_sn,js_sl,js_zje from jxc_kcjs where js_rq=? order by ck_sn,id"),
        { date }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toString(), q.value(1).toDouble(), q.value(2).toDouble() });
        });
    return rows;
}

Result<RerunSummary> repairLedger(const shell::Session &session, qint64 rowId, bool exclude)
{
    const Outcome allowed = requireRepairRight(session);
    if (!allowed)
        return allowed;
    RerunSummary summary;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        summary = rerunLedger(session, rowId, exclude);
        if (!summary.found)
            return core::refuse(session.ui(), noLedgerRowText(rowId));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return summary;
}

Outcome repairSettlement(
    const shell::Session &session, const QString &date, const QString &warehouse)
{
    const Outcome allowed = requireRepairRight(session);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        const QStringList warehouses = allWarehouses(session);
        if (!warehouse.isEmpty() && !warehouses.contains(warehouse))
            return core::refuse(session.ui(), unknownWarehouseText(warehouse));
        core::Transaction transaction(session.db());
        ensureSettlementRows(session, date);
        for (const QString &code : warehouse.isEmpty() ? warehouses : QStringList { warehouse })
            settleWarehouse(session, code, date);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::stock
