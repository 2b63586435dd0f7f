#include "loans/queries.h"

#include "accounts/statements.h"
#include "core/connection.h"
#include "core/rounding.h"
#include "loans/kinds.h"
#include "shell/session.h"

#include <QSqlQuery>

namespace medistock::loans {

namespace {

double figure(const QSqlQuery &q, int index)
{
    return core::roundTo(q.value(index).toDouble(), 8) + 0.0;
}

QString listCondition(LoanList list, QVariantList &params)
{
    switch (list) {
    case LoanList::Unchecked:
        params << 0 << loanFlag();
        break;
    case LoanList::Loans:
        params << 1 << loanFlag();
        break;
    case LoanList::Returns:
        params << 1 << returnFlag();
        break;
    }
    return QStringLiteral(" where a.jh_status=? and a.jh_flag=?");
}

LoanRow readRow(const QSqlQuery &q)
{
    LoanRow r;
    r.number = q.value(0).toString();
    r.date = q.value(1).toString();
    r.customer = q.value(2).toString();
    r.customerName = q.value(3).toString();
    r.warehouse = q.value(4).toString();
    r.warehouseName = q.value(5).toString();
    r.employeeName = q.value(6).toString();
    r.note = q.value(7).toString();
    r.operatorName = q.value(8).toString();
    r.checker = q.value(9).toString();
    r.checkDate = q.value(10).toString();
    r.lines = q.value(11).toInt();
    r.lent = figure(q, 12);
    r.returned = figure(q, 13);
    r.sold = figure(q, 14);
    r.amount = figure(q, 15);
    r.deposit = figure(q, 16);
    r.rent = figure(q, 17);
    r.refund = figure(q, 18);
    return r;
}

} // namespace

QList<LoanRow> listLoans(const shell::Session &session, const LoanQuery &query)
{
    QVariantList params;
    QString sql = QStringLiteral(
        "select a.gl_djh,a.jh_rq,a.kh_sn,k.kh_name,a.ck_sn,c.ck_name,u.u_name,a.jh_note,a.a_name,"
        "a.jh_checker,a.jh_chkrq,count(b.id),sum(b.jh_sl),sum(b.jh_hhsl),sum(b.jh_xssl),"
        "sum(b.jh_zje),sum(b.jh_yj),sum(b.jh_zzj),sum(b.jh_thyj) from jxc_khjh a left join "
        "jxc_khjhsp b on b.gl_djh=a.gl_djh left join jxc_khxx k on k.kh_sn=a.kh_sn left join "
        "jxc_ckxx c on c.ck_sn=a.ck_sn left join jxc_user u on u.u_sn=a.u_sn");
    sql += listCondition(query.list, params);
    if (!query.from.isEmpty()) {
        sql += QStringLiteral(" and a.jh_rq>=?");
        params << query.from;
    }
    if (!query.to.isEmpty()) {
        sql += QStringLiteral(" and a.jh_rq<=?");
        params << query.to + QStringLiteral(" 23:59:59");
    }
    if (!query.customer.isEmpty()) {
        sql += QStringLiteral(" and a.kh_sn=?");
        params << query.customer;
    }
    if (!query.text.isEmpty()) {
        sql += QStringLiteral(" and (a.gl_djh like ? or a.jh_note like ? or k.kh_name like ? or "
                              "upper(k.kh_jm) like upper(?))");
        const QString pattern = QLatin1Char('%') + query.text + QLatin1Char('%');
        params << pattern << pattern << pattern << pattern;
    }
    const accounts::WarehouseRestriction restriction(session);
    sql += restriction.clause(QStringLiteral("c"));
    params += restriction.params();
    sql += QStringLiteral(" group by a.id,a.gl_djh,a.jh_rq,a.kh_sn,k.kh_name,a.ck_sn,c.ck_name,"
                          "u.u_name,a.jh_note,a.a_name,a.jh_checker,a.jh_chkrq order by "
                          "a.gl_djh desc");
    QList<LoanRow> rows;
    session.db().forEach(sql, params, [&](const QSqlQuery &q) { rows.append(readRow(q)); });
    return rows;
}

QList<LoanLineRow> loanLines(const shell::Session &session, const QString &number)
{
    QList<LoanLineRow> rows;
    session.db().forEach(
        QStringLiteral("select b.id,b.id2,b.g_sn,c.g_name,c.dw_name,c.gg_name,b.t_ph,b.t_yxq,"
                       "b.t_scrq,b.jh_sl,b.jh_hhsl,b.jh_xssl,b.jh_dj,b.jh_zje,b.jh_yj,b.jh_yj2,"
                       "b.jh_zj,b.jh_ts,b.jh_zzj,b.jh_thyj,b.jh_kmmc,b.jh_flag,b.gl_djh2 from "
                       "jxc_khjhsp b left join jxc_goods c on c.g_sn=b.g_sn where b.gl_djh=? "
                       "order by b.id"),
        { number }, [&](const QSqlQuery &q) {
            LoanLineRow r;
            r.id = q.value(0).toLongLong();
            r.loanLine = q.value(1).toLongLong();
            r.goods = q.value(2).toString();
            r.goodsName = q.value(3).toString();
            r.unit = q.value(4).toString();
            r.packing = q.value(5).toString();
            r.batch = q.value(6).toString();
            r.expiry = q.value(7).toString();
            r.produced = q.value(8).toString();
            r.lent = figure(q, 9);
            r.returned = figure(q, 10);
            r.sold = figure(q, 11);
            r.open = core::roundTo(r.lent - r.returned - r.sold, 8) + 0.0;
            r.price = figure(q, 12);
            r.amount = figure(q, 13);
            r.deposit = figure(q, 14);
            r.depositUsed = figure(q, 15);
            r.rentPerDay = figure(q, 16);
            r.days = figure(q, 17);
            r.rent = figure(q, 18);
            r.refund = figure(q, 19);
            r.account = q.value(20).toString();
            r.flag = q.value(21).toString();
            r.loan = q.value(22).toString();
            rows.append(r);
        });
    return rows;
}

} // namespace medistock::loans
