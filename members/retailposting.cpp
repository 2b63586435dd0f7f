#include "members/retailposting.h"

#include "accounts/cashbook.h"
#include "core/connection.h"
#include "core/dberror.h"
#include "documents/texts.h"
#include "members/effects.h"
#include "members/texts.h"
#include "shell/session.h"
#include "stock/ledger.h"
#include "stock/movement.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::members {

namespace {

// The names a posting copies next to the codes.
struct Names
{
    QString warehouse;
    QString employee;
    QString customer;
};

Names namesOf(core::Connection &db, const RetailDocument &d)
{
    const auto name = [&](const char *sql, const QString &code) {
        return code.isEmpty() ? QString() : db.firstText(QString::fromLatin1(sql), { code });
    };
    return { name("select ck_name from jxc_ckxx where ck_sn=? order by id limit 1", d.warehouse),
        name("select u_name from jxc_user where u_sn=? order by id limit 1", d.employee),
        name("select kh_name from jxc_khxx where kh_sn=? order by id limit 1", d.customer) };
}

bool isReturn(const RetailDocument &d)
{
    return d.kind == RetailKind::Return;
}

void insertHeader(core::Connection &db, const ValidRetail &r)
{
    const RetailDocument &d = r.document;
    const CounterPayment &c = d.payment.counter;
    db.exec(
        QStringLiteral("insert into jxc_posxsd (gl_djh,hy_sn,pos_xsrq,kh_sn,ck_sn,pos_yfje,"
                       "pos_sfje,pos_mlje,a_name,u_sn,pos_note,pos_zffs,pos_xj,pos_czk,pos_yhk,"
                       "pos_djq,pos_yhje,pos_yhzkje,pos_wxje,pos_zfbje,pos_zftype,pos_bcjf,"
                       "pos_jfye,pos_zlje,pos_zjf) values (?,?,?,?,?,?,?,?,?,?,?,0,?,?,?,?,0,?,?,"
                       "?,'',0,0,?,0)"),
        { d.number, d.member, d.time, d.customer, d.warehouse, r.receivable, r.received,
            d.payment.roundingOff, d.cashier, d.employee, d.note, c.cash, d.payment.card,
            c.bankCard, c.insurance, d.payment.discount, c.wechat, c.alipay, c.change });
}

qint64 insertLine(core::Connection &db, const RetailDocument &d, const PricedLine &p)
{
    const RetailLine &l = p.line;
    return db.insert(
        QStringLiteral("insert into jxc_posxssp (gl_djh,g_sn,pos_dj,pos_sl,pos_zje,t_zp,a_name,"
                       "pos_dzl,pos_cbj,pos_zcb,pos_lsj,pos_zsl,dw_name,g_sptm,g_zhxs,t_ph,t_yxq,"
                       "t_scrq) values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { d.number, l.goods, l.price, l.quantity, p.amount, l.giftMarker, d.cashier, l.discountRate,
            p.cost * l.unitFactor, p.totalCost, p.retailPrice * l.unitFactor, p.baseQuantity,
            l.unit.isEmpty() ? p.baseUnit : l.unit, p.barcode, l.unitFactor, l.batch, l.expiry,
            l.produced });
}

stock::LedgerRow ledgerRowOf(const shell::Session &session, const ValidRetail &r,
    const Names &names, const PricedLine &p, qint64 lineId)
{
    const RetailDocument &d = r.document;
    stock::LedgerRow row;
    row.kind = isReturn(d) ? QStringLiteral("xt") : QStringLiteral("xs");
    row.number = d.number;
    row.date = r.date;
    row.goods = p.line.goods;
    row.goodsName = p.name;
    row.mnemonic = p.mnemonic;
    row.unit = p.baseUnit;
    row.price = p.line.price / p.line.unitFactor;
    row.quantity = p.baseQuantity;
    row.total = row.amount = p.amount;
    row.profit = p.amount - p.totalCost;
    row.discountRate = p.line.discountRate;
    row.employeeName = names.employee;
    row.operatorName = d.cashier;
    row.warehouse = d.warehouse;
    row.warehouseName = names.warehouse;
    row.party = d.customer;
    row.partyName = names.customer;
    row.packing = p.packing;
    row.approvalNumber = p.approval;
    row.unitQuantity = p.line.quantity;
    row.branch = texts::retailBranchMark();
    row.batch = p.line.batch;
    row.expiry = p.line.expiry;
    row.produced = p.line.produced;
    row.average = p.average;
    row.checker = session.user().name;
    row.checkDate = session.today();
    row.lineNote = p.line.giftMarker;
    row.note = d.note;
    row.taxedPrice = p.baseQuantity != 0 ? p.amount / p.baseQuantity : 0;
    row.retailPrice = p.retailPrice;
    row.lineId = lineId;
    row.cost = p.cost;
    row.totalCost = p.totalCost;
    return row;
}

// A sale takes what it issued out of the warehouse and counts it sold; a return brings it back.
// Either counts one more sale of each goods, as the back office's sale and return do.
stock::StoreMovement retailMovement(
    qint64 ledgerRow, const stock::BatchKey &batch, double leaving, double cost)
{
    stock::StoreMovement movement { ledgerRow, batch, -leaving, -leaving, leaving };
    movement.sales = 1;
    movement.price = cost;
    return movement;
}

struct PostedHeader
{
    QString member;
    QString warehouse;
    QString date;
    bool isReturn = false;
};

PostedHeader postedHeader(core::Connection &db, const QString &number)
{
    const QSqlRecord r = db.firstRow(
        QStringLiteral("select hy_sn,ck_sn,pos_xsrq from jxc_posxsd where gl_djh=? order by id "
                       "limit 1"),
        { number });
    if (r.isEmpty())
        throw core::DbError(documents::texts::documentMissing(number));
    return { r.value(0).toString(), r.value(1).toString(), r.value(2).toString().left(10),
        number.startsWith(QLatin1String("XT")) };
}

QList<stock::StoreMovement> postedRows(core::Connection &db, const QString &number)
{
    QList<stock::StoreMovement> rows;
    db.forEach(QStringLiteral("select id,g_sn,ck_sn,t_ph,t_yxq,t_scrq,gl_sl,gl_cbj from "
                              "jxc_goodslist where gl_djh=? and gl_fdmc=? order by id"),
        { number, texts::retailBranchMark() }, [&](const QSqlQuery &q) {
            rows.append(retailMovement(q.value(0).toLongLong(),
                { q.value(1).toString(), q.value(2).toString(), q.value(3).toString(),
                    q.value(4).toString(), q.value(5).toString() },
                q.value(6).toDouble(), q.value(7).toDouble()));
        });
    return rows;
}

} // namespace

void writeRetailDocument(const shell::Session &session, const ValidRetail &r)
{
    core::Connection &db = session.db();
    const RetailDocument &d = r.document;
    const Names names = namesOf(db, d);
    insertHeader(db, r);
    QList<qint64> lineIds;
    for (const PricedLine &p : r.lines)
        lineIds.append(insertLine(db, d, p));
    for (int i = 0; i < r.lines.size(); ++i) {
        const PricedLine &p = r.lines.at(i);
        const qint64 id
            = stock::insertLedgerRow(session, ledgerRowOf(session, r, names, p, lineIds.at(i)));
        stock::postMovement(session,
            retailMovement(id,
                { p.line.goods, d.warehouse, p.line.batch, p.line.expiry, p.line.produced },
                p.baseQuantity, p.cost));
    }
    stock::settleDay(session, d.warehouse, session.today());
    bookCounterPayment(session,
        { d.number, r.date, texts::retailCashKind(isReturn(d)), d.customer, names.customer,
            names.warehouse, names.employee, texts::retailTitle(isReturn(d)) },
        d.payment.counter);
    if (!d.member.isEmpty())
        postMemberEffects(session, d.number, d.member,
            isReturn(d) ? MemberOperation::Return : MemberOperation::Sale);
    session.log(texts::retailPostedLog(isReturn(d), d.number, int(r.lines.size())));
}

void removeRetailDocument(const shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const PostedHeader header = postedHeader(db, number);
    if (!header.member.isEmpty())
        postMemberEffects(session, number, header.member,
            header.isReturn ? MemberOperation::ReturnReversed : MemberOperation::SaleReversed);
    for (const stock::StoreMovement &row : postedRows(db, number))
        stock::withdrawMovement(session, row);
    stock::settleDay(session, header.warehouse, header.date);
    accounts::deleteCashRowsOf(db, number);
    db.exec(QStringLiteral("delete from jxc_posxssp where gl_djh=?"), { number });
    db.exec(QStringLiteral("delete from jxc_posxsd where gl_djh=?"), { number });
    session.log(texts::retailRemovedLog(header.isReturn, number));
}

} // namespace medistock::members
