#include "accounts/statementsupport.h"

#include "core/rounding.h"
#include "shell/session.h"

namespace medistock::accounts {

WarehouseRestriction::WarehouseRestriction(const shell::Session &session)
{
    if (session.params().integer("cs_cgyh") == 1 && session.user().code != QLatin1String("100001"))
        m_pattern = QLatin1Char('%') + session.user().code + QLatin1Char('%');
}

QString WarehouseRestriction::clause(const QString &alias) const
{
    return active() ? QStringLiteral(" and %1.ck_asn like ?").arg(alias) : QString();
}

QVariantList WarehouseRestriction::params() const
{
    return active() ? QVariantList { m_pattern } : QVariantList {};
}

namespace statements {

Query &Query::add(const QString &piece, const QVariantList &values)
{
    sql += piece;
    params += values;
    return *this;
}

Query &Query::whereEqual(const QString &column, const QString &value)
{
    if (!value.isEmpty())
        add(QStringLiteral(" and %1=?").arg(column), { value });
    return *this;
}

Query &Query::whereContains(const QStringList &columns, const QString &text)
{
    if (text.isEmpty())
        return *this;
    QStringList tests;
    for (const QString &column : columns) {
        tests.append(column + QStringLiteral(" like ?"));
        params.append(QLatin1Char('%') + text + QLatin1Char('%'));
    }
    sql += QStringLiteral(" and (") + tests.join(QStringLiteral(" or ")) + QLatin1Char(')');
    return *this;
}

Query &Query::whereInRange(const QString &column, const StatementFilter &filter)
{
    return add(
        QStringLiteral(" and %1>=? and %1<=?").arg(column), { filter.from, endOfDay(filter.to) });
}

Query &Query::whereWarehouse(const WarehouseRestriction &restriction, const QString &alias)
{
    return add(restriction.clause(alias), restriction.params());
}

QString endOfDay(const QString &date)
{
    return date + QStringLiteral(" 23:59:59");
}

double figure(const QSqlQuery &q, int index)
{
    return core::roundTo(q.value(index).toDouble(), 8) + 0.0;
}

QString text(const QSqlQuery &q, int index)
{
    return q.value(index).toString();
}

double profitRate(double profit, double beforeTax)
{
    return beforeTax != 0 ? core::roundTo(profit * 100.0 / beforeTax, 2) : 0;
}

QString journalColumns()
{
    return QStringLiteral("a.id,a.gl_kdrq,a.gl_djh,a.gl_flag,a.g_sn,a.g_name,a.dw_name,a.gg_name,"
                          "a.t_ph,a.t_yxq,a.t_scrq,a.ghs_sn,a.ghs_name,a.ck_name,a.gl_sl,a.gl_dj,"
                          "a.gl_zje,a.gl_je,a.gl_taxje,a.gl_lr");
}

JournalLine readJournalLine(const QSqlQuery &q)
{
    JournalLine l;
    l.id = q.value(0).toLongLong();
    l.date = text(q, 1);
    l.number = text(q, 2);
    l.kind = text(q, 3);
    l.goods = text(q, 4);
    l.goodsName = text(q, 5);
    l.unit = text(q, 6);
    l.packing = text(q, 7);
    l.batch = text(q, 8);
    l.expiry = text(q, 9);
    l.produced = text(q, 10);
    l.party = text(q, 11);
    l.partyName = text(q, 12);
    l.warehouse = text(q, 13);
    l.quantity = figure(q, 14);
    l.price = figure(q, 15);
    l.amount = figure(q, 16);
    l.beforeTax = figure(q, 17);
    l.tax = figure(q, 18);
    l.profit = figure(q, 19);
    l.profitRate = profitRate(l.profit, l.beforeTax);
    return l;
}

QString goodsColumns()
{
    return QStringLiteral(
        "g.g_sn,g.g_name,g.dw_name,g.g_kc,g.gg_name,g.color_name,g.g_sccs,g.g_bz,g.g_jm");
}

void readGoods(GoodsTotals &row, const QSqlQuery &q)
{
    row.goods = text(q, 0);
    row.goodsName = text(q, 1);
    row.unit = text(q, 2);
    row.stock = figure(q, 3);
    row.packing = text(q, 4);
    row.approval = text(q, 5);
    row.maker = text(q, 6);
    row.remark = text(q, 7);
    row.goodsShort = text(q, 8);
}

} // namespace statements

} // namespace medistock::accounts
