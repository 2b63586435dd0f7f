#include "loans/posting.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "loans/kinds.h"
#include "loans/texts.h"
#include "shell/session.h"
#include "stock/documents/posting.h"
#include "stock/movement.h"
#include "stock/stores.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::loans {

namespace {

bool isLoan(const LoanHeader &header)
{
    return header.flag == loanFlag();
}

// Where the row's goods went: a loan lends, a return line brings back, a line sold is sold.
QString branchOf(const LoanHeader &header, const QString &lineFlag)
{
    if (isLoan(header))
        return loanFlag();
    return lineFlag == texts::saleLineFlag() ? QStringLiteral("xs") : returnFlag();
}

stock::LedgerRow ledgerRowOf(
    const shell::Session &session, const LoanHeader &header, const QSqlQuery &q)
{
    stock::PostingHeader posting;
    posting.number = header.number;
    posting.date = header.date;
    posting.warehouse = header.warehouse;
    posting.warehouseName = header.warehouseName;
    posting.party = header.customer;
    posting.partyName = header.customerName;
    posting.employee = header.employee;
    posting.employeeName = header.employeeName;
    posting.note = header.note;
    stock::LedgerRow row = stock::headerRow(session, posting, header.flag);
    row.goods = q.value(0).toString();
    row.price = row.taxedPrice = q.value(1).toDouble();
    row.quantity = row.unitQuantity = q.value(2).toDouble();
    row.total = row.amount = q.value(3).toDouble();
    row.operatorName = q.value(4).toString();
    row.batch = q.value(5).toString();
    row.expiry = q.value(6).toString();
    row.produced = q.value(7).toString();
    row.lineId = q.value(8).toLongLong();
    row.branch = branchOf(header, q.value(9).toString());
    row.discountRate = 1;
    stock::copyGoods(row, q, 10);
    return row;
}

int insertLedgerRows(const shell::Session &session, const LoanHeader &header)
{
    QList<stock::LedgerRow> rows;
    session.db().forEach(
        QStringLiteral("select b.g_sn,b.jh_dj,b.%1,b.jh_zje,b.a_name,b.t_ph,b.t_yxq,b.t_scrq,"
                       "b.id2,b.jh_flag,%2 from jxc_khjhsp b left join jxc_goods c on "
                       "c.g_sn=b.g_sn where b.gl_djh=? order by b.id")
            .arg(isLoan(header) ? QStringLiteral("jh_sl") : QStringLiteral("jh_hhsl"),
                stock::goodsColumns()),
        { header.number },
        [&](const QSqlQuery &q) { rows.append(ledgerRowOf(session, header, q)); });
    for (const stock::LedgerRow &row : rows)
        stock::insertLedgerRow(session, row);
    return int(rows.size());
}

// The stores move against a loan's rows ("jh" subtracts its quantity) and with a return's.
QList<stock::PostedRow> movedRows(const shell::Session &session, const LoanHeader &header)
{
    QList<stock::PostedRow> rows = stock::postedRows(session, header.number);
    if (isLoan(header))
        for (stock::PostedRow &row : rows) {
            row.quantity = -row.quantity;
            row.amount = -row.amount;
            row.total = -row.total;
        }
    return rows;
}

} // namespace

std::optional<LoanHeader> readLoanHeader(const shell::Session &session, const QString &number)
{
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select a.id,a.gl_djh,a.jh_rq,a.kh_sn,(select kh_name from jxc_khxx where "
                       "kh_sn=a.kh_sn order by id limit 1),a.ck_sn,(select ck_name from jxc_ckxx "
                       "where ck_sn=a.ck_sn order by id limit 1),a.u_sn,(select u_name from "
                       "jxc_user where u_sn=a.u_sn order by id limit 1),a.jh_note,a.jh_flag,"
                       "a.jh_checker,a.jh_status from jxc_khjh a where a.gl_djh=? order by "
                       "a.jh_status desc,a.id limit 1"),
        { number });
    if (row.isEmpty())
        return std::nullopt;
    LoanHeader h;
    h.id = row.value(0).toLongLong();
    h.number = row.value(1).toString();
    h.date = row.value(2).toString();
    h.customer = row.value(3).toString();
    h.customerName = row.value(4).toString();
    h.warehouse = row.value(5).toString();
    h.warehouseName = row.value(6).toString();
    h.employee = row.value(7).toString();
    h.employeeName = row.value(8).toString();
    h.note = row.value(9).toString();
    h.flag = row.value(10).toString();
    h.checker = row.value(11).toString();
    h.status = row.value(12).toInt();
    return h;
}

Outcome confirmFutureDate(const shell::Session &session, const QString &date)
{
    if (date <= session.today())
        return Outcome::done();
    const QString question = texts::futureDateQuestion(date, session.today());
    return session.ui().ask(question) ? Outcome::done() : Outcome::refused(question);
}

int postLedgerRows(const shell::Session &session, const LoanHeader &header)
{
    const int count = insertLedgerRows(session, header);
    stock::ensureSettlementRows(session, session.today());
    for (const stock::PostedRow &row : movedRows(session, header))
        stock::postRow(session, row, true, session.today());
    return count;
}

void reverseLedgerRows(const shell::Session &session, const LoanHeader &header)
{
    for (const stock::PostedRow &row : movedRows(session, header))
        stock::reverseRow(session, row, true);
}

} // namespace medistock::loans
