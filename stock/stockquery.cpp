#include "stock/stockquery.h"

#include "core/connection.h"
#include "documents/expiry.h"
#include "shell/session.h"

#include <QDate>
#include <QSqlQuery>

namespace medistock::stock {

namespace {

// The goods' and warehouse's columns every stock row starts with; `s` is the stock table.
const char *goodsColumns = "s.g_sn,g.g_name,g.gg_name,g.dw_name,g.g_sccs,s.ck_sn,"
                           "(select ck_name from jxc_ckxx where ck_sn=s.ck_sn limit 1)";

StockGoods goodsOf(const QSqlQuery &q)
{
    return { q.value(0).toString(), q.value(1).toString(), q.value(2).toString(),
        q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
        q.value(6).toString() };
}

// The filter's conditions on the stock table `s` and goods `g`; `quantity` is the stock column.
QString conditions(const StockFilter &filter, const QString &quantity, QVariantList &params)
{
    QStringList where { QStringLiteral("s.g_sn<>?") };
    params.append(QStringLiteral("00000000"));
    if (!filter.warehouse.isEmpty()) {
        where.append(QStringLiteral("s.ck_sn=?"));
        params.append(filter.warehouse);
    }
    if (!filter.classCode.isEmpty()) {
        where.append(QStringLiteral("g.gc_sn like ?"));
        params.append(filter.classCode + QLatin1Char('%'));
    }
    const QString text = filter.text.trimmed();
    if (!text.isEmpty()) {
        const QString like = QLatin1Char('%') + text + QLatin1Char('%');
        where.append(QStringLiteral(
            "(g.g_sn like ? or g.g_name like ? or upper(g.g_jm) like upper(?) or g.g_sptm like ? "
            "or g.g_sn in (select g_sn from jxc_goodstm where g_sptm like ? union select g_sn "
            "from jxc_goodsdw where g_sptm like ?))"));
        for (int i = 0; i < 6; ++i)
            params.append(like);
    }
    if (filter.inStockOnly)
        where.append(QStringLiteral("%1>0").arg(quantity));
    return where.join(QStringLiteral(" and "));
}

bool expiresWithin(const QString &expiry, const QString &limit)
{
    const QString day = documents::expiryDay(expiry);
    return documents::isExpiryText(expiry) && !day.isEmpty() && day <= limit;
}

// A row's quantity split into what came in and what went out, by its kind's direction.
void splitQuantity(LedgerEntry &entry, double quantity)
{
    const bool subtracts
        = kindRole(entry.kind, quantity).direction == KindRole::Direction::Subtracts;
    const double signedIn = subtracts ? -quantity : quantity;
    entry.in = signedIn > 0 ? signedIn : 0;
    entry.out = signedIn < 0 ? -signedIn : 0;
}

} // namespace

QList<WarehouseStock> stockByWarehouse(const shell::Session &session, const StockFilter &filter)
{
    QVariantList params;
    const QString where = conditions(filter, QStringLiteral("s.kc_sl"), params);
    QList<WarehouseStock> rows;
    session.db().forEach(
        QStringLiteral("select %1,s.kc_sl,s.kc_zsl,s.kc_cbj from jxc_kcsp s,jxc_goods g where "
                       "g.g_sn=s.g_sn and %2 order by s.g_sn,s.ck_sn,s.id")
            .arg(QLatin1String(goodsColumns), where),
        params, [&](const QSqlQuery &q) {
            WarehouseStock row { goodsOf(q), q.value(7).toDouble(), q.value(8).toDouble(),
                q.value(9).toDouble(), 0 };
            row.value = session.params().roundAmount(row.quantity * row.cost);
            rows.append(row);
        });
    return rows;
}

QList<BatchStock> stockByBatch(const shell::Session &session, const StockFilter &filter)
{
    QVariantList params;
    const QString where = conditions(filter, QStringLiteral("s.t_sl"), params);
    const QString limit = QDate::fromString(session.today(), QStringLiteral("yyyy-MM-dd"))
                              .addDays(filter.expiringWithinDays)
                              .toString(QStringLiteral("yyyy-MM-dd"));
    QList<BatchStock> rows;
    session.db().forEach(
        QStringLiteral("select %1,s.t_ph,s.t_scrq,s.t_yxq,s.t_sl,(select kc_cbj from jxc_kcsp "
                       "where g_sn=s.g_sn and ck_sn=s.ck_sn limit 1) from jxc_tkc s,jxc_goods g "
                       "where g.g_sn=s.g_sn and %2 order by s.g_sn,s.ck_sn,s.t_yxq,s.t_ph,"
                       "s.t_scrq,s.id")
            .arg(QLatin1String(goodsColumns), where),
        params, [&](const QSqlQuery &q) {
            BatchStock row { goodsOf(q), q.value(7).toString(), q.value(8).toString(),
                q.value(9).toString(), q.value(10).toDouble(), q.value(11).toDouble(), 0 };
            if (filter.expiringWithinDays >= 0 && !expiresWithin(row.expiry, limit))
                return;
            row.value = session.params().roundAmount(row.quantity * row.cost);
            rows.append(row);
        });
    return rows;
}

QList<StockAlarm> stockAlarms(const shell::Session &session, const StockFilter &filter)
{
    const bool oneWarehouse = !filter.warehouse.isEmpty();
    StockFilter goodsFilter = filter;
    goodsFilter.warehouse.clear();
    goodsFilter.inStockOnly = false;
    // The goods row stands in for the stock table `s`, so that the filter's conditions apply.
    QVariantList params;
    if (oneWarehouse)
        params << filter.warehouse << filter.warehouse << filter.warehouse;
    const QString where = conditions(goodsFilter, QString(), params);
    const QString quantity = oneWarehouse
        ? QStringLiteral("coalesce((select sum(kc_sl) from jxc_kcsp where g_sn=s.g_sn and "
                         "ck_sn=?),0)")
        : QStringLiteral("s.g_kc");
    const QString warehouse = oneWarehouse
        ? QStringLiteral("?,(select ck_name from jxc_ckxx where ck_sn=? limit 1)")
        : QStringLiteral("'',''");
    QList<StockAlarm> rows;
    session.db().forEach(
        QStringLiteral("select s.g_sn,s.g_name,s.gg_name,s.dw_name,s.g_sccs,%1,%2,s.g_zdkc,s.g_jy "
                       "from jxc_goods s,jxc_goods g where g.g_sn=s.g_sn and s.g_zdkc>0 and %3 "
                       "order by s.g_sn")
            .arg(warehouse, quantity, where),
        params, [&](const QSqlQuery &q) {
            StockAlarm row { goodsOf(q), q.value(7).toDouble(), q.value(8).toDouble(), 0 };
            row.shortage = session.params().roundQuantity(row.minimum - row.quantity);
            if (!shell::readFlag(q.value(9))
                && session.params().roundQuantity(row.quantity) < row.minimum)
                rows.append(row);
        });
    return rows;
}

QList<LedgerEntry> goodsLedger(const shell::Session &session, const QString &goods,
    const QString &warehouse, const QString &from, const QString &to, const QString &kind)
{
    QStringList where { QStringLiteral("g_sn=?") };
    QVariantList params { goods };
    const auto add = [&](const char *condition, const QString &value) {
        if (!value.isEmpty()) {
            where.append(QString::fromLatin1(condition));
            params.append(value);
        }
    };
    add("ck_sn=?", warehouse);
    add("gl_flag=?", kind);
    add("gl_kdrq>=?", from);
    add("gl_kdrq<=?", to.isEmpty() ? to : to + QStringLiteral(" 23:59:59"));
    QList<LedgerEntry> entries;
    session.db().forEach(
        QStringLiteral("select id,ck_sn,ck_name,gl_kdrq,gl_flag,gl_djh,ghs_name,t_ph,t_yxq,gl_sl,"
                       "gl_dj,gl_je,gl_kc,gl_pjjj,gl_kczje from jxc_goodslist where %1 order by "
                       "ck_sn,gl_kdrq,id")
            .arg(where.join(QStringLiteral(" and "))),
        params, [&](const QSqlQuery &q) {
            LedgerEntry e;
            e.id = q.value(0).toLongLong();
            e.warehouse = q.value(1).toString();
            e.warehouseName = q.value(2).toString();
            e.date = q.value(3).toString();
            e.kind = q.value(4).toString();
            e.number = q.value(5).toString();
            e.partyName = q.value(6).toString();
            e.batch = q.value(7).toString();
            e.expiry = q.value(8).toString();
            splitQuantity(e, q.value(9).toDouble());
            e.price = q.value(10).toDouble();
            e.amount = q.value(11).toDouble();
            e.running = { q.value(12).toDouble(), q.value(13).toDouble(), q.value(14).toDouble() };
            entries.append(e);
        });
    return entries;
}

} // namespace medistock::stock
