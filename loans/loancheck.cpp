#include "loans/loancheck.h"

#include "core/connection.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "loans/kinds.h"
#include "loans/posting.h"
#include "loans/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/checks.h"

namespace medistock::loans {

namespace {

// The loan as the operation reads it first; refusals are told.
Result<LoanHeader> readLoan(const shell::Session &session, const QString &number)
{
    const auto found = readLoanHeader(session, number);
    if (!found)
        return core::refuse(session.ui(), documents::texts::documentMissing(number));
    if (found->flag != loanFlag())
        return core::refuse(session.ui(), texts::notALoan(number));
    return *found;
}

bool hasLines(const shell::Session &session, const QString &number)
{
    return session.db().exists(
        QStringLiteral("select id from jxc_khjhsp where gl_djh=? limit 1"), { number });
}

bool hasReturns(const shell::Session &session, const QString &number)
{
    return session.db().exists(
        QStringLiteral("select id from jxc_khjhsp where gl_djh2=? limit 1"), { number });
}

// `status` is left -1 when the loan has no lines: there is nothing to check.
Outcome prepareCheck(shell::Session &session, const QString &number, LoanHeader &header)
{
    const Outcome allowed = shell::requireRight(session, rightArea, loanRight);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        const Result<LoanHeader> loan = readLoan(session, number);
        if (!loan)
            return loan.outcome();
        header = loan.value();
        if (header.status == 1)
            return Outcome::done();
        if (!hasLines(session, number)) {
            header.status = -1;
            return Outcome::done();
        }
        const Outcome open = documents::requireOpenPeriod(session, header.date);
        if (!open)
            return open;
        return stock::confirmBatchCheck(session, number, header.warehouse, QStringLiteral("JH"));
    });
}

Outcome post(shell::Session &session, const QString &number)
{
    core::Transaction transaction(session.db());
    const bool checked = documents::documentStatus(session.db(), loanKind(), number) == 1;
    if (!checked) {
        const Outcome unchecked = documents::requireStatus(session, loanKind(), number, 0);
        if (!unchecked)
            return unchecked;
        const LoanHeader header = *readLoanHeader(session, number);
        documents::markChecked(session, loanKind(), header.id);
        documents::removeUncheckedCopies(session, loanKind(), number);
        session.db().exec(
            QStringLiteral("update jxc_khjhsp set id2=id where gl_djh=?"), { number });
        const int rows = postLedgerRows(session, header);
        session.log(texts::loanCheckedLog(number, rows));
    } else {
        documents::removeUncheckedCopies(session, loanKind(), number);
    }
    transaction.commit();
    return Outcome::done();
}

Outcome prepareUncheck(shell::Session &session, const QString &number, LoanHeader &header)
{
    return core::guarded(session.ui(), [&] {
        const Result<LoanHeader> loan = readLoan(session, number);
        if (!loan)
            return loan.outcome();
        header = loan.value();
        if (header.status != 1)
            return core::refuse(session.ui(), documents::texts::notChecked(number));
        Outcome outcome = shell::requireRight(session, rightArea, loanRight);
        if (outcome)
            outcome = documents::requireUncheckByChecker(
                session, number, header.checker, rightArea, loanRight);
        if (outcome)
            outcome = documents::requireOpenPeriod(session, header.date);
        if (outcome && hasReturns(session, number))
            outcome = core::refuse(session.ui(), texts::loanHasReturns(number));
        return outcome;
    });
}

Outcome unpost(shell::Session &session, const QString &number)
{
    core::Transaction transaction(session.db());
    const Outcome checked = documents::requireStatus(session, loanKind(), number, 1);
    if (!checked)
        return checked;
    if (hasReturns(session, number))
        return core::refuse(session.ui(), texts::loanHasReturns(number));
    documents::removeUncheckedCopies(session, loanKind(), number);
    reverseLedgerRows(session, *readLoanHeader(session, number));
    documents::markUnchecked(session, loanKind(), number);
    session.db().exec(QStringLiteral("update jxc_khjhsp set id2=? where gl_djh=?"), { 0, number });
    session.log(texts::loanUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

} // namespace

Outcome checkLoan(shell::Session &session, const QString &number)
{
    LoanHeader header;
    const Outcome ready = prepareCheck(session, number, header);
    if (!ready)
        return ready;
    if (header.status == -1)
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] { return post(session, number); });
}

Outcome uncheckLoan(shell::Session &session, const QString &number)
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
