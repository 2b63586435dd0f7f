#include "pos/salesreports.h"

#include "core/connection.h"
#include "core/operation.h"
#include "pos/rights.h"
#include "pos/texts.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>

namespace medistock::pos {

namespace {

// The headers (alias `h`) of the filter, after "where".
QString headerConditions(const shell::Session &session, const SalesFilter &filter, const QString &h,
    QVariantList &params)
{
    QString sql = QStringLiteral("%1.pos_xsrq>=? and %1.pos_xsrq<=?").arg(h);
    params << filter.range.start() << filter.range.end();
    sql += warehouseCondition(session, h + QStringLiteral(".ck_sn"), filter.warehouse, params);
    if (!filter.cashier.isEmpty()) {
        sql += QStringLiteral(" and %1.a_name=?").arg(h);
        params << filter.cashier;
    }
    if (!filter.member.isEmpty()) {
        sql += QStringLiteral(" and %1.hy_sn=?").arg(h);
        params << filter.member;
    }
    return sql;
}

// The right of the report, and its range.
Outcome allowed(const shell::Session &session, const DateRange &range, int right)
{
    const Outcome held = shell::requireRight(session, "tjgl", right);
    return held ? checkRange(session, range) : held;
}

JournalRow journalRowOf(const QSqlQuery &q)
{
    const auto n = [&](int i) { return q.value(i).toDouble(); };
    JournalRow r;
    r.number = q.value(0).toString();
    r.time = q.value(1).toString();
    r.kind = texts::documentKind(r.number.startsWith(QLatin1String("XT")));
    r.memberCard = q.value(2).toString();
    r.memberName = q.value(3).toString();
    r.warehouseName = q.value(4).toString();
    r.cashier = q.value(5).toString();
    r.employeeName = q.value(6).toString();
    r.receivable = n(7);
    r.received = n(8);
    r.cash = n(9);
    r.card = n(10);
    r.bankCard = n(11);
    r.insurance = n(12);
    r.wechat = n(13);
    r.alipay = n(14);
    r.change = n(15);
    r.roundingOff = n(16);
    r.discount = n(17);
    r.points = n(18);
    r.note = q.value(19).toString();
    return r;
}

JournalLine journalLineOf(const QSqlQuery &q)
{
    const auto n = [&](int i) { return q.value(i).toDouble(); };
    JournalLine l;
    l.number = q.value(0).toString();
    l.time = q.value(1).toString();
    l.goods = q.value(2).toString();
    l.name = q.value(3).toString();
    l.packing = q.value(4).toString();
    l.unit = q.value(5).toString();
    l.price = n(6);
    l.discountRate = n(7);
    l.quantity = n(8);
    l.amount = n(9);
    l.cost = n(10);
    l.profit = l.amount - l.cost;
    l.giftMarker = q.value(11).toString();
    l.batch = q.value(12).toString();
    l.expiry = q.value(13).toString();
    l.cashier = q.value(14).toString();
    return l;
}

} // namespace

Result<QList<JournalRow>> salesJournal(const shell::Session &session, const SalesFilter &filter)
{
    const Outcome ok = allowed(session, filter.range, rights::journal);
    if (!ok)
        return ok;
    QVariantList params;
    const QString where = headerConditions(session, filter, QStringLiteral("a"), params);
    QList<JournalRow> rows;
    session.db().forEach(
        QStringLiteral("select a.gl_djh,a.pos_xsrq,h.hy_bh,h.hy_name,c.ck_name,a.a_name,u.u_name,"
                       "a.pos_yfje,a.pos_sfje,a.pos_xj,a.pos_czk,a.pos_yhk,a.pos_djq,a.pos_wxje,"
                       "a.pos_zfbje,a.pos_zlje,a.pos_mlje,a.pos_yhzkje,a.pos_bcjf,a.pos_note from "
                       "jxc_posxsd a left join jxc_hyxx h on h.hy_sn=a.hy_sn left join jxc_ckxx c "
                       "on c.ck_sn=a.ck_sn left join jxc_user u on u.u_sn=a.u_sn where %1 order "
                       "by a.pos_xsrq desc,a.id desc")
            .arg(where),
        params, [&](const QSqlQuery &q) { rows.append(journalRowOf(q)); });
    return rows;
}

Result<QList<JournalLine>> salesLines(
    const shell::Session &session, const SalesFilter &filter, const QString &number)
{
    const bool details = shell::hasRight(session, "tjgl", rights::goodsSales);
    const Outcome ok
        = allowed(session, filter.range, details ? rights::goodsSales : rights::journal);
    if (!ok)
        return ok;
    QVariantList params;
    QString where = headerConditions(session, filter, QStringLiteral("b"), params);
    for (const auto &[column, value] :
        { std::pair { "a.g_sn", filter.goods }, { "a.gl_djh", number } })
        if (!value.isEmpty()) {
            where += QStringLiteral(" and %1=?").arg(QLatin1String(column));
            params << value;
        }
    QList<JournalLine> rows;
    session.db().forEach(
        QStringLiteral("select a.gl_djh,b.pos_xsrq,a.g_sn,g.g_name,g.gg_name,a.dw_name,a.pos_dj,"
                       "a.pos_dzl,a.pos_sl,a.pos_zje,a.pos_zcb,a.t_zp,a.t_ph,a.t_yxq,b.a_name from "
                       "jxc_posxssp a join jxc_posxsd b on b.gl_djh=a.gl_djh left join jxc_goods "
                       "g on g.g_sn=a.g_sn where %1 order by b.pos_xsrq desc,b.id desc,a.id")
            .arg(where),
        params, [&](const QSqlQuery &q) { rows.append(journalLineOf(q)); });
    return rows;
}

Result<QList<GoodsSalesRow>> goodsSales(const shell::Session &session, const SalesFilter &filter)
{
    const Outcome ok = allowed(session, filter.range, rights::goodsSales);
    if (!ok)
        return ok;
    QVariantList params;
    QString where = headerConditions(session, filter, QStringLiteral("b"), params);
    if (!filter.goods.isEmpty()) {
        where += QStringLiteral(" and a.g_sn=?");
        params << filter.goods;
    }
    QList<GoodsSalesRow> rows;
    session.db().forEach(
        QStringLiteral("select a.g_sn,max(g.g_name),max(g.gg_name),max(g.dw_name),sum(a.pos_sl),"
                       "sum(a.pos_zje),sum(a.pos_zcb) from jxc_posxssp a join jxc_posxsd b on "
                       "b.gl_djh=a.gl_djh left join jxc_goods g on g.g_sn=a.g_sn where %1 group "
                       "by a.g_sn order by a.g_sn")
            .arg(where),
        params, [&](const QSqlQuery &q) {
            const double amount = q.value(5).toDouble();
            const double cost = q.value(6).toDouble();
            rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
                q.value(3).toString(), q.value(4).toDouble(), amount, cost, amount - cost });
        });
    return rows;
}

} // namespace medistock::pos
