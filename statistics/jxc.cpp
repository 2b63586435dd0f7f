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

constexpr int steps = 2;

// The id of the last ledger row of the pair (g, w) dated before `bound`, or on or before it.
Sql lastRowId(const QString &bound, bool inclusive)
{
    return { QStringLiteral("(select y.id from jxc_goodslist y where y.g_sn=g.g_sn and "
                            "y.ck_sn=w.ck_sn and y.gl_kdrq%1? order by y.gl_kdrq desc,y.id desc "
                            "limit 1)")
                 .arg(inclusive ? QStringLiteral("<=") : QStringLiteral("<")),
        { bound } };
}

// Every goods with every warehouse (or the one asked for), as g and w. Goods and warehouses come
// from their own tables, so that each pair is one seek into the ledger's (g_sn,ck_sn,gl_kdrq,id)
// index.
Sql pairs(const QString &warehouse)
{
    Sql sql { QStringLiteral(" from (select distinct g_sn from jxc_goods where g_sn<>?) g,"
                             "jxc_ckxx w"),
        { documents::discountGoods() } };
    if (!warehouse.isEmpty())
        sql += { QStringLiteral(" where w.ck_sn=?"), { warehouse } };
    return sql;
}

// Per goods, the opening and the closing stock summed over its warehouses, and how many of its
// warehouses have a row by the end.
Sql stockPerGoods(const JxcRequest &request)
{
    Sql sql { QStringLiteral("select p.g_sn,sum(o.gl_kc) as kc,sum(o.gl_kczje) as kczje,"
                             "sum(c.gl_kc) as glkc,sum(c.gl_kczje) as glkczje,count(p.cid) as kept "
                             "from (select g.g_sn,"),
        {} };
    sql += lastRowId(request.range.from, false);
    sql.text += QStringLiteral(" as oid,");
    sql += lastRowId(request.range.toEnd(), true);
    sql.text += QStringLiteral(" as cid");
    sql += pairs(request.warehouse);
    sql.text += QStringLiteral(") p left join jxc_goodslist o on o.id=p.oid left join "
                               "jxc_goodslist c on c.id=p.cid group by p.g_sn");
    return sql;
}

// Per goods, the inward and outward quantity and amount of the range by the kind table.
Sql movementsPerGoods(const JxcRequest &request)
{
    Sql sql { QStringLiteral("select a.g_sn"), {} };
    const std::pair<bool, Figure> figures[] = { { true, Figure::Quantity },
        { true, Figure::Amount }, { false, Figure::Quantity }, { false, Figure::Amount } };
    const char *names[] = { "rksl", "rkzje", "cksl", "ckzje" };
    for (int i = 0; i < 4; ++i) {
        sql.text += QStringLiteral(",sum");
        sql += movementFigure(figures[i].first, figures[i].second, request.valuation);
        sql.text += QStringLiteral(" as ") + QLatin1String(names[i]);
    }
    sql += { QStringLiteral(" from jxc_goodslist a where a.g_sn<>? and a.gl_kdrq>=? and "
                            "a.gl_kdrq<=?"),
        { documents::discountGoods(), request.range.from, request.range.toEnd() } };
    if (!request.warehouse.isEmpty())
        sql += { QStringLiteral(" and a.ck_sn=?"), { request.warehouse } };
    sql.text += QStringLiteral(" group by a.g_sn");
    return sql;
}

// One row per goods that has stock or movement by the end of the range.
void insertSummary(
    const shell::Session &session, const QString &operatorName, const JxcRequest &request)
{
    Sql sql { QStringLiteral(
                  "insert into jxc_jxchz (g_sn,hz_kc,hz_kczje,hz_rksl,hz_rkzje,hz_cksl,hz_ckzje,"
                  "hz_glkc,hz_glkczje,a_name) select s.g_sn,coalesce(s.kc,0),coalesce(s.kczje,0),"
                  "coalesce(m.rksl,0),coalesce(m.rkzje,0),coalesce(m.cksl,0),coalesce(m.ckzje,0),"
                  "coalesce(s.glkc,0),coalesce(s.glkczje,0),? from ("),
        { operatorName } };
    sql += stockPerGoods(request);
    sql.text += QStringLiteral(") s left join (");
    sql += movementsPerGoods(request);
    sql.text += QStringLiteral(") m on m.g_sn=s.g_sn where s.kept>0");
    session.db().exec(sql.text, sql.params);
}

Outcome build(const shell::Session &session, const JxcRequest &request, const Progress &progress)
{
    const QString operatorName = session.user().name;
    core::Transaction transaction(session.db());
    session.db().exec(QStringLiteral("delete from jxc_jxchz where a_name=?"), { operatorName });
    if (!goOn(progress, 1, steps))
        return Outcome::refused(texts::cancelled());
    insertSummary(session, operatorName, request);
    if (!goOn(progress, steps, steps))
        return Outcome::refused(texts::cancelled());
    transaction.commit();
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
        sql += { QStringLiteral(
                     " and (k.g_sn like ? or b.g_name like ? or upper(b.g_jm) like upper(?))"),
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

Sql lastLedgerRowIds(const QString &bound, bool inclusive, const QString &warehouse)
{
    Sql sql { QStringLiteral("select "), {} };
    sql += lastRowId(bound, inclusive);
    sql += pairs(warehouse);
    return sql;
}

} // namespace medistock::statistics
