#include "pos/rankings.h"

#include "core/connection.h"
#include "core/rounding.h"
#include "members/texts.h"
#include "pos/rights.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>

#include <algorithm>
#include <tuple>

namespace medistock::pos {

namespace {

Outcome allowed(const shell::Session &session, const DateRange &range, int right)
{
    const Outcome held = shell::requireRight(session, "tjgl", right);
    return held ? checkRange(session, range) : held;
}

// The select of a ranking view: key, name, then the three sums.
QString rankingSelect(RankingView view)
{
    const QString sums = QStringLiteral("sum(x.gl_sl),sum(x.gl_zje),sum(x.gl_lr)");
    switch (view) {
    case RankingView::GoodsClass:
        return QStringLiteral("select coalesce(b.gc_sn,''),max(c.gc_name),%1 from jxc_goodslist x "
                              "left join jxc_goods b on b.g_sn=x.g_sn left join jxc_goodsclass c "
                              "on c.gc_sn=b.gc_sn where %2 group by coalesce(b.gc_sn,'')")
            .arg(sums);
    case RankingView::Cashier:
        return QStringLiteral("select x.a_name,max(d.a_name),%1 from jxc_goodslist x join "
                              "jxc_admin d on d.a_name=x.a_name where %2 group by x.a_name")
            .arg(sums);
    case RankingView::Goods:
        break;
    }
    return QStringLiteral("select x.g_sn,max(x.g_name),%1 from jxc_goodslist x where %2 group by "
                          "x.g_sn")
        .arg(sums);
}

double measureOf(const RankingRow &row, RankingOrder order)
{
    switch (order) {
    case RankingOrder::Quantity:
        return row.quantity;
    case RankingOrder::Amount:
        return row.amount;
    case RankingOrder::Profit:
        return row.profit;
    case RankingOrder::ProfitRate:
        break;
    }
    return row.rate;
}

void rank(QList<RankingRow> &rows, RankingOrder order)
{
    std::sort(rows.begin(), rows.end(), [order](const RankingRow &a, const RankingRow &b) {
        const double ma = measureOf(a, order);
        const double mb = measureOf(b, order);
        return std::tie(mb, a.key) < std::tie(ma, b.key);
    });
    for (int i = 0; i < rows.size(); ++i)
        rows[i].rank = i + 1;
}

MemberSalesRow memberSalesRowOf(const QSqlQuery &q)
{
    const auto n = [&](int i) { return q.value(i).toDouble(); };
    MemberSalesRow r;
    r.number = q.value(0).toString();
    r.date = q.value(1).toString();
    r.kind = texts::documentKind(r.number.startsWith(QLatin1String("XT")));
    r.member = q.value(2).toString();
    r.card = q.value(3).toString();
    r.name = q.value(4).toString();
    r.levelName = q.value(5).toString();
    r.mobile = q.value(6).toString();
    r.balance = n(7);
    r.goods = q.value(8).toString();
    r.goodsName = q.value(9).toString();
    r.unit = q.value(10).toString();
    r.quantity = n(11);
    r.amount = n(12);
    r.profit = n(13);
    r.rate = profitRate(r.profit, r.amount);
    return r;
}

QString memberConditions(const MemberSalesFilter &filter, QVariantList &params)
{
    QString sql;
    if (!filter.level.isEmpty()) {
        sql += QStringLiteral(" and h.hl_sn=?");
        params << filter.level;
    }
    if (!filter.member.isEmpty()) {
        sql += QStringLiteral(" and h.hy_sn=?");
        params << filter.member;
    }
    const QString text = filter.text.trimmed();
    if (!text.isEmpty()) {
        sql += QStringLiteral(
            " and (h.hy_name like ? or upper(h.hy_jm) like upper(?) or h.hy_mobile like ?)");
        const QString pattern = QLatin1Char('%') + text + QLatin1Char('%');
        params << pattern << pattern << pattern;
    }
    return sql;
}

} // namespace

double profitRate(double profit, double amount)
{
    return amount != 0 ? core::roundTo(profit * 100 / amount, 2) : 0;
}

Result<QList<RankingRow>> salesRanking(const shell::Session &session, const RankingFilter &filter)
{
    const Outcome ok = allowed(session, filter.range, rights::ranking);
    if (!ok)
        return ok;
    QVariantList params;
    const QString where = posLedgerConditions(session, filter.range, filter.warehouse, params);
    QList<RankingRow> rows;
    session.db().forEach(rankingSelect(filter.view).arg(where), params, [&](const QSqlQuery &q) {
        RankingRow row { 0, q.value(0).toString(), q.value(1).toString(), q.value(2).toDouble(),
            q.value(3).toDouble(), q.value(4).toDouble(), 0 };
        row.rate = profitRate(row.profit, row.amount);
        rows.append(row);
    });
    rank(rows, filter.order);
    return rows;
}

Result<QList<MemberSalesRow>> memberSales(
    const shell::Session &session, const MemberSalesFilter &filter)
{
    const Outcome ok = allowed(session, filter.range, rights::memberSales);
    if (!ok)
        return ok;
    QVariantList params;
    QString where = posLedgerConditions(session, filter.range, filter.warehouse, params);
    where += memberConditions(filter, params);
    QList<MemberSalesRow> rows;
    session.db().forEach(
        QStringLiteral("select x.gl_djh,x.gl_kdrq,h.hy_sn,h.hy_bh,h.hy_name,l.hl_name,h.hy_mobile,"
                       "h.hy_zhje,x.g_sn,x.g_name,x.dw_name,x.gl_sl,x.gl_zje,x.gl_lr from "
                       "jxc_goodslist x join jxc_posxsd p on p.gl_djh=x.gl_djh join jxc_hyxx h on "
                       "h.hy_sn=p.hy_sn left join jxc_hyfl l on l.hl_sn=h.hl_sn where %1 order by "
                       "h.hy_bh,x.gl_kdrq,x.id")
            .arg(where),
        params, [&](const QSqlQuery &q) { rows.append(memberSalesRowOf(q)); });
    return rows;
}

Result<QList<CashierTakingsRow>> cashierTakings(
    const shell::Session &session, const CashierFilter &filter)
{
    const Outcome ok = allowed(session, filter.range, rights::cashierTakings);
    if (!ok)
        return ok;
    QVariantList params { filter.range.start(), filter.range.end() };
    QString where = QStringLiteral("a.pos_xsrq>=? and a.pos_xsrq<=?")
        + warehouseCondition(session, QStringLiteral("a.ck_sn"), filter.warehouse, params);
    if (!filter.cashier.isEmpty()) {
        where += QStringLiteral(" and a.a_name=?");
        params << filter.cashier;
    }
    QList<CashierTakingsRow> rows;
    session.db().forEach(
        QStringLiteral("select a.a_name,max(b.a_sn),count(*),sum(a.pos_yfje),sum(a.pos_sfje),"
                       "sum(a.pos_xj-a.pos_zlje),sum(a.pos_czk),sum(a.pos_yhk),sum(a.pos_djq),"
                       "sum(a.pos_wxje),sum(a.pos_zfbje),sum(a.pos_mlje) from jxc_posxsd a join "
                       "jxc_admin b on a.a_name=b.a_name join jxc_ckxx c on a.ck_sn=c.ck_sn where "
                       "%1 group by a.a_name order by max(b.a_sn),a.a_name")
            .arg(where),
        params, [&](const QSqlQuery &q) {
            const auto n = [&](int i) { return q.value(i).toDouble(); };
            rows.append({ q.value(0).toString(), q.value(1).toString(), q.value(2).toInt(), n(3),
                n(4), n(5), n(6), n(7), n(8), n(9), n(10), n(11) });
        });
    return rows;
}

} // namespace medistock::pos
