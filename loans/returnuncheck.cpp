// Unchecking a return: it goes away entirely, and its loan lines are open again.
#include "loans/loanreturn.h"

#include "accounts/postings.h"
#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "loans/kinds.h"
#include "loans/texts.h"
#include "sales/entry.h"
#include "sales/kinds.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::loans {

namespace {

// The sale a loan was turned into under this return, with its status; empty when there is none.
struct LinkedSale
{
    QString number;
    int status = 0;
};
LinkedSale linkedSale(const shell::Session &session, const QString &returnNumber)
{
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select gl_djh,ls_status from jxc_lsxsd where gl_djh2=? and gl_djh like "
                       "? order by ls_status desc,id limit 1"),
        { returnNumber, QStringLiteral("XS%") });
    if (row.isEmpty())
        return {};
    return { row.value(0).toString(), row.value(1).toInt() };
}

Outcome refuseCheckedSale(const shell::Session &session, const QString &number)
{
    const LinkedSale sale = linkedSale(session, number);
    if (!sale.number.isEmpty() && sale.status == 1)
        return core::refuse(session.ui(), texts::saleStillChecked(number, sale.number));
    return Outcome::done();
}

Outcome prepareUncheck(shell::Session &session, const QString &number, LoanHeader &header)
{
    return core::guarded(session.ui(), [&] {
        const auto found = readLoanHeader(session, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        if (found->flag != returnFlag())
            return core::refuse(session.ui(), texts::notAReturn(number));
        header = *found;
        if (header.status != 1)
            return core::refuse(session.ui(), documents::texts::notChecked(number));
        Outcome outcome = shell::requireRight(session, rightArea, loanRight);
        if (outcome)
            outcome = documents::requireUncheckByChecker(
                session, number, header.checker, rightArea, loanRight);
        if (outcome)
            outcome = documents::requireOpenPeriod(session, header.date);
        if (outcome)
            outcome = refuseCheckedSale(session, number);
        return outcome;
    });
}

// The loan lines give back what the return counted, each figure kept at 0 or above: the loan
// line may have been changed since.
void lowerLoanLines(const shell::Session &session, const QString &number)
{
    struct Counted
    {
        qint64 loanLine;
        bool sold;
        double quantity;
        double deposit;
    };
    QList<Counted> lines;
    session.db().forEach(QStringLiteral("select id2,jh_flag,jh_hhsl,jh_yj from jxc_khjhsp where "
                                        "gl_djh=? order by id"),
        { number }, [&](const QSqlQuery &q) {
            lines.append({ q.value(0).toLongLong(), q.value(1).toString() == texts::saleLineFlag(),
                q.value(2).toDouble(), q.value(3).toDouble() });
        });
    core::Connection &db = session.db();
    for (const Counted &line : lines) {
        const QString column = line.sold ? QStringLiteral("jh_xssl") : QStringLiteral("jh_hhsl");
        db.exec(QStringLiteral("update jxc_khjhsp set %1=round(coalesce(%1,0)-(?),8),"
                               "jh_yj2=round(coalesce(jh_yj2,0)-(?),8) where id=?")
                    .arg(column),
            { line.quantity, line.deposit, line.loanLine });
        for (const QString &figure : { column, QStringLiteral("jh_yj2") })
            db.exec(QStringLiteral("update jxc_khjhsp set %1=? where %1<? and id=?").arg(figure),
                { 0, 0, line.loanLine });
    }
}

Outcome unpost(shell::Session &session, const QString &number)
{
    core::Transaction transaction(session.db());
    const Outcome checked = documents::requireStatus(session, loanKind(), number, 1);
    if (!checked)
        return checked;
    const Outcome noSale = refuseCheckedSale(session, number);
    if (!noSale)
        return noSale;
    reverseLedgerRows(session, *readLoanHeader(session, number));
    lowerLoanLines(session, number);
    core::Connection &db = session.db();
    db.exec(QStringLiteral("delete from jxc_khjhsp where gl_djh=?"), { number });
    db.exec(QStringLiteral("delete from jxc_khjh where gl_djh=?"), { number });
    accounts::removeExpenseRows(session, number);
    accounts::removeCashRows(session, number);
    if (const LinkedSale sale = linkedSale(session, number); !sale.number.isEmpty()) {
        const Outcome deleted = sales::deleteSale(session, sale.number);
        if (!deleted)
            return deleted;
    }
    session.log(texts::returnUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Outcome uncheckReturn(shell::Session &session, const QString &number)
{
    LoanHeader header;
    Outcome outcome = prepareUncheck(session, number, header);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return unpost(session, number); });
}

} // namespace medistock::loans
