#include "statistics/jxc.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "documents/descriptor.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "statistics/reading.h"
#include "statistics/texts.h"

#include <QSqlQuery>

namespace medistock::statistics {

namespace {

constexpr int steps = 4;

const QString insertColumns = QStringLiteral(
    "insert into jxc_jxchz (g_sn,hz_kc,hz_kczje,hz_rksl,hz_rkzje,hz_cksl,hz_ckzje,hz_glkc,"
    "hz_glkczje,a_name) ");

// Step 2 and 4: the running columns of those rows into the opening or the closing columns.
void insertStock(
    const shell::Session &session, const QString &operatorName, const Sql &ids, bool closing)
{
    const QString columns = closing
        ? QStringLiteral("0,0,0,0,0,0,coalesce(x.gl_kc,0),coalesce(x.gl_kczje,0)")
        : QStringLiteral("coalesce(x.gl_kc,0),coalesce(x.gl_kczje,0),0,0,0,0,0,0");
    Sql sql { insertColumns
            + QStringLiteral("select x.g_sn,%1,? from jxc_goodslist x where x.id in (")
                  .arg(columns),
        { operatorName } };
    sql += ids;
    sql.text += QLatin1Char(')');
    session.db().exec(sql.text, sql.params);
}

Sql summed(bool inward, Figure figure, Valuation valuation)
{
    Sql sql { QStringLiteral("coalesce(sum"), {} };
    sql += movementFigure(inward, figure, valuation);
    sql.text += QStringLiteral(",0)");
    return sql;
}

// Step 3: the inward and outward sums per goods.
void insertMovements(
    const shell::Session &session, const QString &operatorName, const JxcRequest &request)
{
    Sql sql { insertColumns + QStringLiteral("select a.g_sn,0,0,"), {} };
    sql += summed(true, Figure::Quantity, request.valuation);
    sql.text += QLatin1Char(',');
    sql += summed(true, Figure::Amount, request.valuation);
    sql.text += QLatin1Char(',');
    sql += summed(false, Figure::Quantity, request.valuation);
    sql.text += QLatin1Char(',');
    sql += summed(false, Figure::Amount, request.valuation);
    sql += { QStringLiteral(",0,0,? from jxc_goodslist a where a.g_sn<>? and a.gl_kdrq>=? and "
                            "a.gl_kdrq<=?"),
        { operatorName, documents::discountGoods(), request.range.from, request.range.toEnd() } };
    if (!request.warehouse.isEmpty())
        sql += { QStringLiteral(" and a.ck_sn=?"), { request.warehouse } };
    sql.text += QStringLiteral(" group by a.g_sn");
    session.db().exec(sql.text, sql.params);
}

Outcome build(const shell::Session &session, const JxcRequest &request, const Progress &progress)
{
    const QString operatorName = session.user().name;
    core::Transaction transaction(session.db());
    session.db().exec(QStringLiteral("delete from jxc_jxchz where a_name=?"), { operatorName });
    insertStock(session, operatorName,
        lastLedgerRowIds(request.range.from, false, request.warehouse), false);
    if (!goOn(progress, 1, steps))
        return Outcome::refused(texts::cancelled());
    insertMovements(session, operatorName, request);
    if (!goOn(progress, 2, steps))
        return Outcome::refused(texts::cancelled());
    insertStock(session, operatorName,
        lastLedgerRowIds(request.range.toEnd(), true, request.warehouse), true);
    if (!goOn(progress, 3, steps))
        return Outcome::refused(texts::cancelled());
    transaction.commit();
    goOn(progress, steps, steps);
    return Outcome::done();
}

JxcRow jxcRow(const shell::Session &session, const QSqlQuery &q)
{
    const shell::Parameters &p = session.params();
    JxcRow row;
    row.goods = q.value(0).toString();
    row.openingQuantity = p.roundQuantity(q.value(1).toDouble());
    row.openingAmount = p.roundAmount(q.value(2).toDouble());
    row.inQuantity = p.roundQuantity(q.value(3).toDouble());
    row.inAmount = p.roundAmount(q.value(4).toDouble());
    row.outQuantity = p.roundQuantity(q.value(5).toDouble());
    row.outAmount = p.roundAmount(q.value(6).toDouble());
    row.closingQuantity = p.roundQuantity(q.value(7).toDouble());
    row.closingAmount = p.roundAmount(q.value(8).toDouble());
    row.name = q.value(9).toString();
    row.unit = q.value(10).toString();
    row.packing = q.value(11).toString();
    row.className = q.value(12).toString();
    row.difference
        = p.roundAmount(row.openingAmount + row.inAmount - row.outAmount - row.closingAmount);
    return row;
}

} // namespace

Outcome buildJxcSummary(
    const shell::Session &session, const JxcRequest &request, const Progress &progress)
{
    const Outcome allowed = shell::requireRight(session, "tjgl", 13);
    if (!allowed)
        return allowed;
    const Outcome valid = requireValidRange(session, request.range);
    if (!valid)
        return valid;
    return core::guarded(session.ui(), [&] { return build(session, request, progress); });
}

QList<JxcRow> jxcRows(const shell::Session &session, const JxcFilter &filter)
{
    Sql sql { QStringLiteral(
                  "select k.g_sn,k.kc,k.kczje,k.rksl,k.rkzje,k.cksl,k.ckzje,k.glkc,k.glkczje,"
                  "b.g_name,b.dw_name,b.gg_name,c.gc_name from (select g_sn,sum(hz_kc) as kc,"
                  "sum(hz_kczje) as kczje,sum(hz_rksl) as rksl,sum(hz_rkzje) as rkzje,"
                  "sum(hz_cksl) as cksl,sum(hz_ckzje) as ckzje,sum(hz_glkc) as glkc,"
                  "sum(hz_glkczje) as glkczje from jxc_jxchz where a_name=? group by g_sn) k "
                  "left join jxc_goods b on b.g_sn=k.g_sn left join jxc_goodsclass c on "
                  "c.gc_sn=b.gc_sn where 1=1"),
        { session.user().name } };
    if (!filter.classCode.isEmpty())
        sql += { QStringLiteral(" and b.gc_sn like ?"), { filter.classCode + QLatin1Char('%') } };
    if (!filter.keyword.trimmed().isEmpty()) {
        const QString pattern = QLatin1Char('%') + filter.keyword.trimmed() + QLatin1Char('%');
        sql += { QStringLiteral(" and (k.g_sn like ? or b.g_name like ? or b.g_jm like ?)"),
            { pattern, pattern, pattern } };
    }
    sql.text += QStringLiteral(" order by k.g_sn");
    QList<JxcRow> rows;
    session.db().forEach(
        sql.text, sql.params, [&](const QSqlQuery &q) { rows.append(jxcRow(session, q)); });
    return rows;
}

QList<JxcRow> jxcDifferences(const shell::Session &session, const JxcFilter &filter)
{
    QList<JxcRow> rows = jxcRows(session, filter);
    rows.removeIf([](const JxcRow &row) { return row.difference == 0; });
    return rows;
}

QString differenceMessage(const QList<JxcRow> &rows)
{
    if (rows.isEmpty())
        return texts::noDifference();
    QStringList lines;
    for (const JxcRow &row : rows)
        lines.append(texts::differenceLine(row.goods, row.name, row.difference));
    return lines.join(QStringLiteral("\r\n"));
}

// Goods and warehouses come from their own tables, so that each pair is one seek into the
// ledger's (g_sn,ck_sn,gl_kdrq,id) index.
Sql lastLedgerRowIds(const QString &bound, bool inclusive, const QString &warehouse)
{
    Sql sql { QStringLiteral("select (select y.id from jxc_goodslist y where y.g_sn=g.g_sn and "
                             "y.ck_sn=c.ck_sn and y.gl_kdrq%1? order by y.gl_kdrq desc,y.id desc "
                             "limit 1) from (select distinct g_sn from jxc_goods where g_sn<>?) g,"
                             "jxc_ckxx c")
                  .arg(inclusive ? QStringLiteral("<=") : QStringLiteral("<")),
        { bound, documents::discountGoods() } };
    if (!warehouse.isEmpty())
        sql += { QStringLiteral(" where c.ck_sn=?"), { warehouse } };
    return sql;
}

} // namespace medistock::statistics
