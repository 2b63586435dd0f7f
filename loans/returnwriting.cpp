// The writing half of a return: the plan's figures, and the rows a checked return leaves.
#include "loans/loanreturn.h"

#include "accounts/cashbook.h"
#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "loans/kinds.h"
#include "loans/texts.h"
#include "shell/parameters.h"
#include "shell/session.h"

#include <QDate>
#include <QSqlQuery>

#include <map>

namespace medistock::loans {

namespace {

QDate dateOf(const QString &text)
{
    return QDate::fromString(text.left(10), QStringLiteral("yyyy-MM-dd"));
}

void insertHeader(
    shell::Session &session, const ReturnPlan &plan, const QString &number, const QString &note)
{
    const LoanHeader &loan = plan.loan;
    session.db().insert(
        QStringLiteral("insert into jxc_khjh (gl_djh,kh_sn,ck_sn,jh_rq,u_sn,jh_flag,jh_note,"
                       "a_name,jh_status,jh_checker,jh_chkrq) values (?,?,?,?,?,?,?,?,?,?,?)"),
        { number, loan.customer, loan.warehouse, plan.date, loan.employee, returnFlag(), note,
            session.user().name, 1, session.user().name, session.today() });
}

void insertLine(shell::Session &session, const ReturnPlan &plan, const ReturnLine &r,
    const QString &number, const QString &flag)
{
    const OpenLine &l = r.loan;
    session.db().insert(
        QStringLiteral("insert into jxc_khjhsp (gl_djh,g_sn,jh_dj,jh_zje,jh_sl,jh_hhsl,jh_xssl,"
                       "jh_sl2,jh_yj,jh_yj2,jh_zj,jh_ts,jh_zzj,jh_thyj,gl_djh2,jh_flag,jh_kmmc,"
                       "t_ph,t_mjph,t_scrq,t_yxq,id2,a_name) values "
                       "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { number, l.goods, l.price, r.amount, l.lent, r.quantity, 0, 0, r.deposit, 0, l.rent,
            r.days, r.rent, r.refund, plan.loan.number, flag, l.account, l.batch, QString(),
            l.produced, l.expiry, l.line, session.user().name });
}

// The loan line counts what came back (or was sold) and the deposit it used.
void raiseLoanLine(shell::Session &session, const ReturnLine &r, bool sold)
{
    session.db().exec(QStringLiteral("update jxc_khjhsp set %1=round(coalesce(%1,0)+?,8),"
                                     "jh_yj2=round(coalesce(jh_yj2,0)+?,8) where id=?")
                          .arg(sold ? QStringLiteral("jh_xssl") : QStringLiteral("jh_hhsl")),
        { r.quantity, r.deposit, r.loan.line });
}

// The rent, summed per account, is income of that account on the return's date.
void bookRent(shell::Session &session, const ReturnPlan &plan, const QString &number)
{
    std::map<QString, double> perAccount;
    for (const ReturnLine &r : plan.lines)
        perAccount[r.loan.account] += r.rent;
    const LoanHeader &loan = plan.loan;
    for (const auto &[account, sum] : perAccount) {
        const double rent = session.params().roundAmount(sum);
        if (rent <= 0)
            continue;
        accounts::appendDocumentExpense(session,
            { accounts::ExpenseKind::Income, number, plan.date, texts::incomeType(), rent,
                loan.employee, texts::incomeNote(number), account });
        if (account == accounts::noAccountName())
            continue;
        accounts::CashRow row;
        row.number = number;
        row.date = plan.date;
        row.kind = accounts::texts::expenseCashKind(accounts::ExpenseKind::Income);
        row.amount = rent;
        row.account = account;
        row.salesmanName = loan.employeeName;
        row.partyCode = loan.customer;
        row.partyName = loan.customerName;
        row.warehouseName = loan.warehouseName;
        row.note = texts::incomeNote(number);
        row.operatorName = session.user().name;
        accounts::appendCashRow(session.db(), row);
        accounts::recalculateCash(session.db(), account, plan.date);
    }
}

} // namespace

int loanDays(const QString &loanDate, const QString &returnDate)
{
    return int(std::max<qint64>(1, dateOf(loanDate).daysTo(dateOf(returnDate))));
}

ReturnLine returnLine(
    const shell::Parameters &params, const OpenLine &line, double quantity, int days)
{
    ReturnLine r;
    r.loan = line;
    r.quantity = quantity;
    r.days = days;
    r.amount = params.roundAmount(quantity * line.price);
    const bool whole = quantity >= line.open - core::comparisonMargin;
    r.deposit = whole || line.open <= 0 ? line.deposit
                                        : params.roundAmount(line.deposit * quantity / line.open);
    r.rent = params.roundAmount(line.rent * days * quantity);
    r.refund = std::max(0.0, params.roundAmount(r.deposit - r.rent));
    return r;
}

Result<QString> writeReturn(
    shell::Session &session, const ReturnPlan &plan, const QString &note, bool sold)
{
    const Result<QString> number = core::nextDocumentNumber(session.db(),
        QStringLiteral("jxc_khjhsp"), QStringLiteral("gl_djh"), returnPrefix(), dateOf(plan.date));
    if (!number)
        return core::refuse(session.ui(), number.message());
    insertHeader(session, plan, number.value(), sold ? texts::saleReturnNote() : note);
    const QString flag = sold ? texts::saleLineFlag() : texts::returnLineFlag();
    for (const ReturnLine &r : plan.lines)
        insertLine(session, plan, r, number.value(), flag);
    postLedgerRows(session, *readLoanHeader(session, number.value()));
    for (const ReturnLine &r : plan.lines)
        raiseLoanLine(session, r, sold);
    bookRent(session, plan, number.value());
    return number;
}

} // namespace medistock::loans
