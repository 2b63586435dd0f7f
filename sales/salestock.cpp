#include "sales/salestock.h"

#include "core/connection.h"
#include "core/transaction.h"
#include "documents/descriptor.h"
#include "sales/options.h"
#include "shell/session.h"
#include "stock/movement.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::sales {

namespace {

// Where a sale and a return keep the lines their ledger rows copy.
struct LineSource
{
    const char *lines;
    const char *flag; // gl_flag
    const char *prefix; // column prefix of the line figures, "ls_" / "th_"
    double sign; // +1 for a sale, -1 for a return
};

const LineSource saleSource { "jxc_lsxssp", "xs", "ls_", 1 };
const LineSource returnSource { "jxc_xsthsp", "xt", "th_", -1 };

double perBase(double value, double factor)
{
    return factor > 0 ? value / factor : value;
}

stock::LedgerRow ledgerRowOf(const shell::Session &session, const LineSource &s,
    const stock::PostingHeader &header, const QSqlQuery &q)
{
    const auto number = [&](int index) { return q.value(index).toDouble(); };
    const double factor = number(3);
    const double baseQuantity = number(4);
    stock::LedgerRow row = stock::headerRow(session, header, QString::fromLatin1(s.flag));
    row.goods = q.value(0).toString();
    row.price = perBase(number(1), factor);
    row.unitQuantity = number(2);
    row.quantity = s.sign * baseQuantity;
    row.total = s.sign * number(5);
    row.amount = s.sign * number(6);
    row.tax = s.sign * number(7);
    row.taxRate = number(8);
    row.discountRate = number(9);
    row.retailPrice = perBase(number(10), factor);
    row.cost = perBase(number(11), factor);
    row.totalCost = s.sign * number(12);
    // The discount line has no cost: its profit is its (negative) amount.
    row.profit = *row.totalCost == 0 ? row.amount : row.amount - *row.totalCost;
    row.taxedPrice = baseQuantity > 0 ? number(5) / baseQuantity : 0;
    row.operatorName = q.value(13).toString();
    row.batch = q.value(14).toString();
    row.expiry = q.value(15).toString();
    row.produced = q.value(16).toString();
    row.lineNote = q.value(17).toString();
    row.lineId = q.value(18).toLongLong();
    row.goodsName = q.value(19).toString();
    row.mnemonic = q.value(20).toString();
    row.unit = q.value(21).toString();
    row.packing = q.value(22).toString();
    row.approvalNumber = q.value(23).toString();
    row.average = number(24);
    row.doneFlag = 0;
    return row;
}

// One ledger row per line, the discount line included, in line order. A sale's rows carry the
// line's fixed identity id2, a return's the line's own id.
void insertLedgerRows(
    const shell::Session &session, const LineSource &s, const stock::PostingHeader &h)
{
    const QString p = QString::fromLatin1(s.prefix);
    const QString sql = QStringLiteral(
        "select b.g_sn,b.%1dj,b.%1sl,b.g_zhxs,b.%1zsl,b.%1zje,b.%1je,b.%1taxje,b.%1tax,"
        "b.%1dzl,b.%1lsj,b.%1cbj,b.%1zcb,b.a_name,b.t_ph,b.t_yxq,b.t_scrq,b.%1bz,%2,c.g_name,"
        "c.g_jm,c.dw_name,c.gg_name,c.color_name,c.g_pjjj from %3 b left join jxc_goods c on "
        "c.g_sn=b.g_sn where b.gl_djh=? order by b.id")
                            .arg(p, s.sign > 0 ? QStringLiteral("b.id2") : QStringLiteral("b.id"),
                                QLatin1String(s.lines));
    QList<stock::LedgerRow> rows;
    session.db().forEach(
        sql, { h.number }, [&](const QSqlQuery &q) { rows.append(ledgerRowOf(session, s, h, q)); });
    for (const stock::LedgerRow &row : rows)
        stock::insertLedgerRow(session, row);
}

// A goods row of the ledger with the quantity that left (sale) or came back (return) in base
// units.
struct PostedRow
{
    qint64 id = 0;
    double moved = 0;
    double cost = 0; // per base unit
    stock::BatchKey batch;
};

QList<PostedRow> postedRows(const shell::Session &session, const QString &number, bool sale)
{
    // A sale moves what it issued: nothing for a line whose goods wait for an issue note.
    const QString moved = sale ? QStringLiteral("(select case when coalesce(b.ls_cksl,0)=0 then 0 "
                                                "else b.ls_zsl end from jxc_lsxssp b where "
                                                "b.gl_djh=a.gl_djh and b.id2=a.id2 and "
                                                "b.g_sn=a.g_sn order by b.id limit 1)")
                               : QStringLiteral("-a.gl_sl");
    QList<PostedRow> rows;
    session.db().forEach(
        QStringLiteral("select a.id,%1,a.gl_cbj,a.g_sn,a.ck_sn,a.t_ph,a.t_yxq,a.t_scrq from "
                       "jxc_goodslist a where a.g_sn<>? and a.gl_djh=? order by a.id")
            .arg(moved),
        { documents::discountGoods(), number }, [&](const QSqlQuery &q) {
            rows.append({ q.value(0).toLongLong(), q.value(1).toDouble(), q.value(2).toDouble(),
                { q.value(3).toString(), q.value(4).toString(), q.value(5).toString(),
                    q.value(6).toString(), q.value(7).toString() } });
        });
    return rows;
}

// A sale takes what it issued out of the warehouse and counts it sold; a return brings it back.
// Either counts one more sale of the goods.
stock::StoreMovement movementOf(const PostedRow &row, bool sale)
{
    const double in = sale ? -row.moved : row.moved;
    stock::StoreMovement movement { row.id, row.batch, in, in, -in };
    movement.sales = 1;
    movement.price = row.cost;
    return movement;
}

struct OrderLink
{
    qint64 orderLine = 0; // the order line's id2
    double quantity = 0; // ls_sl of the sale line
};

QList<OrderLink> orderLinks(const shell::Session &session, const QString &number)
{
    QList<OrderLink> links;
    session.db().forEach(QStringLiteral("select id3,ls_sl from jxc_lsxssp where gl_djh=? and "
                                        "id3>0 order by id"),
        { number }, [&](const QSqlQuery &q) {
            links.append({ q.value(0).toLongLong(), q.value(1).toDouble() });
        });
    return links;
}

// An order line is delivered once sales have issued all of it.
void deliverOrderLines(const shell::Session &session, const QString &number)
{
    for (const OrderLink &link : orderLinks(session, number)) {
        session.db().exec(
            QStringLiteral("update jxc_xssp set ls_cksl=round(ls_cksl+?,8) where id2=?"),
            { link.quantity, link.orderLine });
        session.db().exec(QStringLiteral("update jxc_xssp set ls_dhbz=? where id2=? and "
                                         "ls_cksl>=ls_sl"),
            { 1, link.orderLine });
    }
}

void undeliverOrderLines(const shell::Session &session, const QString &number)
{
    for (const OrderLink &link : orderLinks(session, number)) {
        session.db().exec(
            QStringLiteral(
                "update jxc_xssp set ls_cksl=round(ls_cksl-(?),8),ls_dhbz=? where id2=?"),
            { link.quantity, 0, link.orderLine });
        session.db().exec(
            QStringLiteral("update jxc_xssp set ls_cksl=? where ls_cksl<=? and id2=?"),
            { 0, 0, link.orderLine });
    }
}

} // namespace

int postSaleStock(const shell::Session &session, const stock::PostingHeader &header)
{
    core::Connection &db = session.db();
    const QString &number = header.number;
    core::Transaction transaction(db);
    if (issuesThroughNotes(session.params()))
        db.exec(QStringLiteral("update jxc_lsxssp set ls_cksl=? where gl_djh=?"), { 0, number });
    else
        db.exec(QStringLiteral("update jxc_lsxssp set ls_cksl=ls_sl where gl_djh=?"), { number });
    db.exec(QStringLiteral("update jxc_lsxssp set id2=id,ls_qxsl=? where gl_djh=?"), { 0, number });
    insertLedgerRows(session, saleSource, header);
    db.exec(QStringLiteral("update jxc_goodslist set gl_lr=gl_je where g_sn=? and gl_djh=?"),
        { documents::discountGoods(), number });
    const QList<PostedRow> rows = postedRows(session, number, true);
    for (const PostedRow &row : rows)
        stock::postMovement(session, movementOf(row, true));
    deliverOrderLines(session, number);
    stock::settleDay(session, header.warehouse, session.today());
    transaction.commit();
    return int(rows.size());
}

void reverseSaleStock(const shell::Session &session, const stock::PostingHeader &header)
{
    core::Connection &db = session.db();
    const QString &number = header.number;
    core::Transaction transaction(db);
    for (const PostedRow &row : postedRows(session, number, true))
        stock::withdrawMovement(session, movementOf(row, true));
    undeliverOrderLines(session, number);
    db.exec(QStringLiteral("update jxc_lsxssp set ls_cksl=ls_sl,ls_qxsl=?,id2=? where gl_djh=?"),
        { 0, 0, number });
    stock::settleDay(session, header.warehouse, header.date);
    transaction.commit();
}

int postReturnStock(const shell::Session &session, const stock::PostingHeader &header)
{
    core::Transaction transaction(session.db());
    insertLedgerRows(session, returnSource, header);
    const QList<PostedRow> rows = postedRows(session, header.number, false);
    for (const PostedRow &row : rows)
        stock::postMovement(session, movementOf(row, false));
    stock::settleDay(session, header.warehouse, session.today());
    transaction.commit();
    return int(rows.size());
}

void countReturnedOnSales(const shell::Session &session, const QString &number, int direction)
{
    session.db().exec(
        QStringLiteral("update jxc_lsxssp set ls_qxsl=round(coalesce(ls_qxsl,0)+?*(select "
                       "sum(b.th_zsl) from jxc_xsthsp b where b.gl_djh=? and "
                       "b.id2=jxc_lsxssp.id2)/(case when g_zhxs>0 then g_zhxs else 1 end),8) "
                       "where id2 in (select id2 from jxc_xsthsp where gl_djh=? and id2>0)"),
        { direction, number, number });
}

void reverseReturnStock(const shell::Session &session, const stock::PostingHeader &header)
{
    core::Transaction transaction(session.db());
    for (const PostedRow &row : postedRows(session, header.number, false))
        stock::withdrawMovement(session, movementOf(row, false));
    stock::settleDay(session, header.warehouse, header.date);
    transaction.commit();
}

} // namespace medistock::sales
