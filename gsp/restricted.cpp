#include "gsp/restricted.h"

#include "core/connection.h"
#include "core/transaction.h"
#include "gsp/reading.h"
#include "gsp/texts.h"

#include <QHash>

#include <cmath>

namespace medistock::gsp {

using detail::Cells;

namespace {

// Every kind that has a side for some quantity; the rest of the ledger is never read.
const char *const listedKinds[]
    = { "qc", "cj", "xt", "pd", "hh", "db", "cf", "kb", "xs", "ct", "bs", "dh", "jh" };

RestrictedRow restrictedRowOf(const QSqlQuery &q)
{
    Cells c(q);
    RestrictedRow row;
    row.id = c.id();
    row.kind = c.text();
    row.number = c.text();
    row.date = c.text();
    row.goods = c.text();
    row.goodsName = c.text();
    row.packing = c.text();
    row.unit = c.text();
    row.warehouseName = c.text();
    row.partyName = c.text();
    const double price = c.number();
    const double quantity = c.number();
    const double amount = c.number();
    row.instructions = c.text();
    row.patient = c.text();
    row.idCard = c.text();
    row.prescriptionNumber = c.text();
    row.batch = c.text();
    row.produced = c.text();
    row.expiry = c.text();
    row.address = c.text();
    row.mobile = c.text();
    row.kindText = texts::ledgerKindText(row.kind, quantity);
    row.side = sideOf(row.kind, quantity).value_or(Side::In);
    if (row.side == Side::In) {
        row.inPrice = price;
        row.inQuantity = std::abs(quantity);
        row.inAmount = std::abs(amount);
    } else {
        row.outPrice = price;
        row.outQuantity = std::abs(quantity);
        row.outAmount = std::abs(amount);
    }
    return row;
}

// The restricted goods' movements in the range; throws DbError.
QList<RestrictedRow> readMovements(const shell::Session &session, const RecordFilter &filter)
{
    Conditions where = conditionsOf(session, filter,
        { { QStringLiteral("a.gl_djh"), QStringLiteral("a.ghs_sn"), QStringLiteral("a.ghs_name") },
            QStringLiteral("a.ck_sn"), QStringLiteral("e") });
    QStringList marks;
    QVariantList kinds;
    for (const char *kind : listedKinds) {
        marks.append(QStringLiteral("?"));
        kinds.append(QString::fromLatin1(kind));
    }
    where.add(
        QStringLiteral("and a.gl_flag in (") + marks.join(QLatin1Char(',')) + QLatin1Char(')'),
        kinds);
    const QVariantList params = rangeParams(filter, { 0 }, where);
    QList<RestrictedRow> rows;
    session.db().forEach(
        QStringLiteral(
            "select a.id,a.gl_flag,a.gl_djh,a.gl_kdrq,a.g_sn,a.g_name,a.gg_name,a.dw_name,"
            "e.ck_name,a.ghs_name,a.gl_dj,a.gl_sl,a.gl_je,a.t_cfsm,a.gl_xm,a.gl_cardno,a.t_cfhm,"
            "a.t_ph,a.t_scrq,a.t_yxq,a.t_addr,a.t_mobile from jxc_goodslist a,jxc_goods b,"
            "jxc_ckxx e where a.g_sn=b.g_sn and a.ck_sn=e.ck_sn and b.g_xzsl>? and "
            "a.gl_kdrq>=? and a.gl_kdrq<=?")
            + where.sql() + QStringLiteral(" order by a.id desc"),
        params, [&](const QSqlQuery &q) {
            const double quantity = q.value(11).toDouble();
            if (sideOf(q.value(1).toString(), quantity))
                rows.append(restrictedRowOf(q));
        });
    return rows;
}

struct Totals
{
    double inQuantity = 0;
    double inAmount = 0;
    double outQuantity = 0;
    double outAmount = 0;
};

void insertSummaryRow(
    const shell::Session &session, const QString &goods, const QVariantList &figures)
{
    QVariantList params { goods };
    params.append(figures);
    params.append(session.user().name);
    session.db().exec(QStringLiteral("insert into jxc_jxchz (g_sn,hz_kc,hz_kczje,hz_rksl,hz_rkzje,"
                                     "hz_cksl,hz_ckzje,hz_glkc,hz_glkczje,a_name) values "
                                     "(?,?,?,?,?,?,?,?,?,?)"),
        params);
}

// One row per goods and warehouse with the ledger's stock before the range and at its end.
void insertStockRows(const shell::Session &session, const RecordFilter &filter)
{
    core::Connection &db = session.db();
    const Conditions where
        = conditionsOf(session, filter, { {}, QStringLiteral("a.ck_sn"), QStringLiteral("e") });
    QVariantList params { 0 };
    params.append(where.params());
    const QList<QSqlRecord> pairs = db.rows(
        QStringLiteral("select distinct a.g_sn,a.ck_sn from jxc_goodslist a,jxc_goods b,jxc_ckxx e "
                       "where a.g_sn=b.g_sn and a.ck_sn=e.ck_sn and b.g_xzsl>?")
            + where.sql() + QStringLiteral(" order by a.g_sn,a.ck_sn"),
        params);
    const QString before = QStringLiteral("select gl_kc,gl_kczje from jxc_goodslist where g_sn=? "
                                          "and ck_sn=? and gl_kdrq<? order by gl_kdrq desc,id "
                                          "desc limit 1");
    const QString atEnd = QStringLiteral("select gl_kc,gl_kczje from jxc_goodslist where g_sn=? "
                                         "and ck_sn=? and gl_kdrq<=? order by gl_kdrq desc,id "
                                         "desc limit 1");
    for (const QSqlRecord &pair : pairs) {
        const QString goods = pair.value(0).toString();
        const QString warehouse = pair.value(1).toString();
        const QSqlRecord opening = db.firstRow(before, { goods, warehouse, rangeStart(filter) });
        const QSqlRecord closing = db.firstRow(atEnd, { goods, warehouse, rangeEnd(filter) });
        insertSummaryRow(session, goods,
            { opening.value(0).toDouble(), opening.value(1).toDouble(), 0, 0, 0, 0,
                closing.value(0).toDouble(), closing.value(1).toDouble() });
    }
}

RestrictedSummaryRow summaryRowOf(const QSqlQuery &q)
{
    Cells c(q);
    RestrictedSummaryRow row;
    row.goods = c.text();
    row.opening = c.number();
    row.openingAmount = c.number();
    row.inQuantity = c.number();
    row.inAmount = c.number();
    row.outQuantity = c.number();
    row.outAmount = c.number();
    row.ledgerStock = c.number();
    row.ledgerAmount = c.number();
    row.goodsName = c.text();
    row.unit = c.text();
    row.packing = c.text();
    return row;
}

} // namespace

std::optional<Side> sideOf(const QString &kind, double quantity)
{
    static const QStringList alwaysIn { QStringLiteral("qc"), QStringLiteral("cj"),
        QStringLiteral("xt"), QStringLiteral("pd"), QStringLiteral("hh") };
    static const QStringList alwaysOut { QStringLiteral("ct"), QStringLiteral("bs"),
        QStringLiteral("dh"), QStringLiteral("jh") };
    static const QStringList bySign { QStringLiteral("db"), QStringLiteral("cf"),
        QStringLiteral("kb") };
    if (alwaysIn.contains(kind))
        return Side::In;
    if (alwaysOut.contains(kind))
        return Side::Out;
    if (kind == QLatin1String("xs"))
        return quantity < 0 ? Side::In : Side::Out;
    if (bySign.contains(kind) && quantity != 0)
        return quantity > 0 ? Side::In : Side::Out;
    return std::nullopt;
}

QList<PostedLine> postedLines(const shell::Session &session, const QString &number)
{
    QList<PostedLine> lines;
    session.db().forEach(
        QStringLiteral(
            "select id,gl_flag,g_sn,g_name,gg_name,dw_name,gl_sl,gl_dj,gl_je,t_ph,t_scrq,"
            "t_yxq,ck_name from jxc_goodslist where gl_djh=? order by id"),
        { number }, [&](const QSqlQuery &q) {
            Cells c(q);
            PostedLine line;
            line.id = c.id();
            const QString kind = c.text();
            line.goods = c.text();
            line.goodsName = c.text();
            line.packing = c.text();
            line.unit = c.text();
            line.quantity = c.number();
            line.price = c.number();
            line.amount = c.number();
            line.batch = c.text();
            line.produced = c.text();
            line.expiry = c.text();
            line.warehouseName = c.text();
            line.kindText = texts::ledgerKindText(kind, line.quantity);
            lines.append(line);
        });
    return lines;
}

Result<QList<RestrictedRow>> restrictedLedger(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<RestrictedRow>(session, filter,
        [&](QList<RestrictedRow> &rows) { rows = readMovements(session, filter); });
}

Result<QList<RestrictedSummaryRow>> restrictedSummary(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<RestrictedSummaryRow>(
        session, filter, [&](QList<RestrictedSummaryRow> &rows) {
            core::Connection &db = session.db();
            core::Transaction transaction(db);
            const QList<RestrictedRow> movements = readMovements(session, filter);
            db.exec(
                QStringLiteral("delete from jxc_jxchz where a_name=?"), { session.user().name });
            insertStockRows(session, filter);
            QHash<QString, Totals> totals;
            for (const RestrictedRow &row : movements) {
                Totals &sum = totals[row.goods];
                sum.inQuantity += row.inQuantity;
                sum.inAmount += row.inAmount;
                sum.outQuantity += row.outQuantity;
                sum.outAmount += row.outAmount;
            }
            for (auto it = totals.cbegin(); it != totals.cend(); ++it)
                insertSummaryRow(session, it.key(),
                    { 0, 0, it->inQuantity, it->inAmount, it->outQuantity, it->outAmount, 0, 0 });
            db.forEach(
                QStringLiteral(
                    "select k.g_sn,k.kc,k.kczje,k.rksl,k.rkzje,k.cksl,k.ckzje,k.glkc,k.glkczje,"
                    "b.g_name,b.dw_name,b.gg_name from (select g_sn,sum(hz_kc) as kc,sum(hz_kczje) "
                    "as kczje,sum(hz_rksl) as rksl,sum(hz_rkzje) as rkzje,sum(hz_cksl) as cksl,"
                    "sum(hz_ckzje) as ckzje,sum(hz_glkc) as glkc,sum(hz_glkczje) as glkczje from "
                    "jxc_jxchz where a_name=? group by g_sn) k,jxc_goods b where k.g_sn=b.g_sn "
                    "order by b.g_sn"),
                { session.user().name }, [&](const QSqlQuery &q) { rows.append(summaryRowOf(q)); });
            transaction.commit();
        });
}

} // namespace medistock::gsp
