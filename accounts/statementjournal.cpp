// "客户消费情况表", "客户消费分析" and the supplier's goods tabs: sums over the goods journal.
#include "accounts/statements.h"
#include "accounts/statementsupport.h"

#include "core/connection.h"
#include "shell/session.h"

#include <QDate>

namespace medistock::accounts {

namespace {

using statements::figure;
using statements::Query;
using statements::text;

// Journal kinds: sales and customer returns, purchase receipts and purchase returns.
const QVariantList salesKinds { QStringLiteral("xs"), QStringLiteral("xt") };
const QVariantList purchaseKinds { QStringLiteral("cj"), QStringLiteral("ct") };

QStringList goodsSearch(const QString &alias)
{
    return { alias + QStringLiteral(".g_sn"), alias + QStringLiteral(".g_name"),
        alias + QStringLiteral(".g_jm") };
}

// The journal rows of the kinds in the range, of the filter's party, in the operator's
// warehouses; `a` is the journal, `c` its warehouse.
Query journalRows(const shell::Session &session, const StatementFilter &filter,
    const QVariantList &kinds, const QString &select, const QString &joins = {})
{
    Query q;
    q.add(select
            + QStringLiteral(" from jxc_goodslist a left join jxc_ckxx c on "
                             "c.ck_sn=a.ck_sn")
            + joins + QStringLiteral(" where a.gl_flag in (?,?)"),
        kinds);
    q.whereInRange(QStringLiteral("a.gl_kdrq"), filter);
    q.whereWarehouse(WarehouseRestriction(session), QStringLiteral("c"));
    return q;
}

QString journalOrder(bool descending)
{
    return descending ? QStringLiteral(" order by a.gl_kdrq desc,a.gl_djh desc,a.id desc")
                      : QStringLiteral(" order by a.gl_kdrq,a.gl_djh,a.id");
}

QList<JournalLine> journal(const shell::Session &session, const Query &q)
{
    QList<JournalLine> rows;
    session.db().forEach(
        q.sql, q.params, [&](const QSqlQuery &r) { rows.append(statements::readJournalLine(r)); });
    return rows;
}

// Per goods totals: `inner` selects g_sn and the sums, and the goods' catalogue joins it as `g`.
QList<GoodsTotals> goodsTotals(const shell::Session &session, Query inner, const QString &goodsTest,
    const QVariantList &goodsValues, const QString &search, const QString &order)
{
    Query q;
    q.add(QStringLiteral("select %1,t.sl,t.zje,t.je,t.taxje,t.lr,t.last from (")
              .arg(statements::goodsColumns()));
    q.add(inner.sql, inner.params);
    q.add(
        QStringLiteral(") t join jxc_goods g on g.g_sn=t.g_sn where 1=1") + goodsTest, goodsValues);
    q.whereContains(goodsSearch(QStringLiteral("g")), search);
    q.add(order);
    QList<GoodsTotals> rows;
    session.db().forEach(q.sql, q.params, [&](const QSqlQuery &r) {
        GoodsTotals row;
        statements::readGoods(row, r);
        row.quantity = figure(r, 9);
        row.amount = figure(r, 10);
        row.beforeTax = figure(r, 11);
        row.tax = figure(r, 12);
        row.profit = figure(r, 13);
        row.profitRate = statements::profitRate(row.profit, row.beforeTax);
        row.lastDate = text(r, 14);
        rows.append(row);
    });
    return rows;
}

QString sums()
{
    return QStringLiteral("select a.g_sn,sum(a.gl_sl) as sl,sum(a.gl_zje) as zje,sum(a.gl_je) as "
                          "je,sum(a.gl_taxje) as taxje,sum(a.gl_lr) as lr,max(a.gl_kdrq) as last");
}

QList<GroupTotals> groups(const shell::Session &session, const StatementFilter &filter,
    const QString &group, const QVariantList &groupValues, const QString &choiceColumn,
    const QString &choice, const QString &all)
{
    Query q = journalRows(session, filter, salesKinds,
        QStringLiteral("select %1,sum(a.gl_sl),sum(a.gl_zje),sum(a.gl_lr),sum(a.gl_je),"
                       "sum(a.gl_taxje)")
            .arg(group),
        QStringLiteral(" join jxc_khxx k on k.kh_sn=a.ghs_sn left join jxc_khtype t on "
                       "t.kt_sn=k.kt_sn"));
    q.params = groupValues + q.params;
    q.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    if (choice != all)
        q.whereContains({ choiceColumn }, choice);
    q.add(QStringLiteral(" group by 1 order by 1"));
    QList<GroupTotals> rows;
    session.db().forEach(q.sql, q.params, [&](const QSqlQuery &r) {
        rows.append(
            { text(r, 0), figure(r, 1), figure(r, 2), figure(r, 3), figure(r, 4), figure(r, 5) });
    });
    return rows;
}

} // namespace

QList<GoodsTotals> customerGoods(const shell::Session &session, const StatementFilter &filter)
{
    Query inner = journalRows(session, filter, salesKinds, sums());
    inner.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    inner.add(QStringLiteral(" group by a.g_sn"));
    return goodsTotals(session, inner, {}, {}, filter.text, QStringLiteral(" order by g.id"));
}

QList<JournalLine> customerJournal(const shell::Session &session, const StatementFilter &filter)
{
    Query q = journalRows(
        session, filter, salesKinds, QStringLiteral("select ") + statements::journalColumns());
    q.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    q.whereContains(goodsSearch(QStringLiteral("a")), filter.text);
    q.add(journalOrder(filter.descending));
    return journal(session, q);
}

QList<MonthTotals> customerMonths(const shell::Session &session, const StatementFilter &filter)
{
    Query q;
    q.add(QStringLiteral("select substr(a.gl_kdrq,1,7),sum(a.gl_sl),sum(a.gl_zje),sum(a.gl_lr) "
                         "from jxc_goodslist a left join jxc_ckxx c on c.ck_sn=a.ck_sn where "
                         "a.gl_flag=?"),
        { salesKinds.first() });
    q.whereInRange(QStringLiteral("a.gl_kdrq"), filter);
    q.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    q.whereWarehouse(WarehouseRestriction(session), QStringLiteral("c"));
    q.add(QStringLiteral(" group by 1 order by 1"));
    QList<MonthTotals> rows;
    session.db().forEach(q.sql, q.params, [&](const QSqlQuery &r) {
        rows.append({ text(r, 0), figure(r, 1), figure(r, 2), figure(r, 3) });
    });
    return rows;
}

QList<GroupTotals> byCustomerType(
    const shell::Session &session, const StatementFilter &filter, const QString &choice)
{
    return groups(session, filter, QStringLiteral("coalesce(t.kt_name,?)"), { QString() },
        QStringLiteral("t.kt_name"), choice.isEmpty() ? QStringLiteral("所有类型") : choice,
        QStringLiteral("所有类型"));
}

QList<GroupTotals> byRegion(
    const shell::Session &session, const StatementFilter &filter, const QString &choice)
{
    return groups(session, filter,
        QStringLiteral("case when coalesce(k.z_name,?)=? then ? else k.z_name end"),
        { QString(), QString(), QStringLiteral("无地区") }, QStringLiteral("k.z_name"),
        choice.isEmpty() ? QStringLiteral("所有地区") : choice, QStringLiteral("所有地区"));
}

QList<LostCustomer> lostCustomers(
    const shell::Session &session, const StatementFilter &filter, int days)
{
    // The last date runs over the whole journal; the totals over the range.
    Query q;
    q.add(QStringLiteral("select a.ghs_sn,k.kh_name,max(a.gl_kdrq),"
                         "sum(case when a.gl_kdrq>=? and a.gl_kdrq<=? then a.gl_sl else 0 end),"
                         "sum(case when a.gl_kdrq>=? and a.gl_kdrq<=? then a.gl_zje else 0 end),"
                         "sum(case when a.gl_kdrq>=? and a.gl_kdrq<=? then a.gl_lr else 0 end) "
                         "from jxc_goodslist a left join jxc_khxx k on k.kh_sn=a.ghs_sn left "
                         "join jxc_ckxx c on c.ck_sn=a.ck_sn where a.gl_flag in (?,?)"),
        QVariantList { filter.from, statements::endOfDay(filter.to), filter.from,
            statements::endOfDay(filter.to), filter.from, statements::endOfDay(filter.to) }
            + salesKinds);
    q.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    q.whereWarehouse(WarehouseRestriction(session), QStringLiteral("c"));
    q.add(QStringLiteral(" group by a.ghs_sn,k.kh_name order by a.ghs_sn"));
    const QDate today = session.clock().today();
    QList<LostCustomer> rows;
    session.db().forEach(q.sql, q.params, [&](const QSqlQuery &r) {
        const QString last = text(r, 2);
        const QDate lastDay = QDate::fromString(last.left(10), QStringLiteral("yyyy-MM-dd"));
        if (lastDay.isValid() && lastDay.daysTo(today) <= days)
            return;
        rows.append({ text(r, 0), text(r, 1), last, figure(r, 3), figure(r, 4), figure(r, 5) });
    });
    return rows;
}

QList<GoodsTotals> supplierDeliveries(const shell::Session &session, const StatementFilter &filter)
{
    Query inner = journalRows(session, filter, purchaseKinds, sums());
    inner.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    inner.add(QStringLiteral(" group by a.g_sn"));
    return goodsTotals(session, inner, QStringLiteral(" and g.g_sn<>? and coalesce(g.g_jy,0)=?"),
        { QStringLiteral("00000000"), 0 }, filter.text, QStringLiteral(" order by g.g_sn"));
}

QList<JournalLine> supplierDeliveryJournal(
    const shell::Session &session, const StatementFilter &filter)
{
    Query q = journalRows(
        session, filter, purchaseKinds, QStringLiteral("select ") + statements::journalColumns());
    q.whereEqual(QStringLiteral("a.ghs_sn"), filter.party);
    q.whereContains(goodsSearch(QStringLiteral("a")), filter.text);
    q.add(journalOrder(filter.descending));
    return journal(session, q);
}

QList<GoodsTotals> supplierGoodsSales(const shell::Session &session, const StatementFilter &filter)
{
    Query inner = journalRows(
        session, filter, salesKinds, sums(), QStringLiteral(" join jxc_goods s on s.g_sn=a.g_sn"));
    inner.whereEqual(QStringLiteral("s.ghs_sn"), filter.party);
    inner.add(QStringLiteral(" group by a.g_sn"));
    return goodsTotals(session, inner, {}, {}, filter.text, QStringLiteral(" order by g.g_sn"));
}

QList<JournalLine> supplierGoodsSalesJournal(
    const shell::Session &session, const StatementFilter &filter)
{
    Query q = journalRows(session, filter, salesKinds,
        QStringLiteral("select ") + statements::journalColumns(),
        QStringLiteral(" join jxc_goods s on s.g_sn=a.g_sn"));
    q.whereEqual(QStringLiteral("s.ghs_sn"), filter.party);
    q.whereContains(goodsSearch(QStringLiteral("a")), filter.text);
    q.add(journalOrder(true));
    return journal(session, q);
}

} // namespace medistock::accounts
