#include "sales/salecheck.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "sales/checksupport.h"
#include "sales/entrysupport.h"
#include "sales/members.h"
#include "sales/salestock.h"
#include "sales/texts.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/checks.h"

#include <QSqlQuery>

namespace medistock::sales {

namespace {

// The refusals before anything is asked. `row` is left unread (status -1) when there is nothing
// to check.
Outcome prepareCheck(
    shell::Session &session, const QString &number, CheckStart start, CheckRow &row)
{
    const CheckKind &kind = saleChecking();
    if (start == CheckStart::Listed) {
        const Outcome allowed = shell::requireRight(session, "xsgl", kind.checkRight);
        if (!allowed)
            return allowed;
    }
    return core::guarded(session.ui(), [&] {
        if (const QString limit = stock::saleLimitCheck(session, number); !limit.isEmpty())
            return core::refuse(session.ui(), limit);
        const auto found = readCheckRow(session, kind, number);
        if (!found)
            return core::refuse(session.ui(), documents::texts::documentMissing(number));
        row = *found;
        if (!hasLines(session, kind, number)) {
            row.status = -1;
            return Outcome::done();
        }
        if (row.status == 1)
            return Outcome::done();
        Outcome outcome = documents::requireOpenPeriod(session, row.date);
        if (outcome)
            outcome
                = stock::confirmBatchCheck(session, number, row.warehouse, QStringLiteral("XS"));
        if (outcome)
            outcome = confirmPrepayment(session, row.customer, row.mode, row.due, row.paid);
        return outcome;
    });
}

// A sale checked already (here or on another workstation) is not posted again.
Outcome removeStrayCopies(shell::Session &session, const QString &number)
{
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        documents::removeUncheckedCopies(session, saleChecking().entry, number);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome post(shell::Session &session, const QString &number, const CheckRow &row)
{
    const CheckKind &kind = saleChecking();
    core::Transaction transaction(session.db());
    if (documents::documentStatus(session.db(), kind.entry, number) == 1) {
        documents::removeUncheckedCopies(session, kind.entry, number);
        transaction.commit();
        return Outcome::done();
    }
    const Outcome unchecked = documents::requireStatus(session, kind.entry, number, 0);
    if (!unchecked)
        return unchecked;
    const double writtenOff = row.mode == QLatin1String("0") ? row.due - row.paid : 0;
    if (row.mode == QLatin1String("0"))
        session.db().exec(
            QStringLiteral("update jxc_lsxsd set ls_yhje=? where id=?"), { writtenOff, row.id });
    documents::markChecked(session, kind.entry, row.id);
    documents::removeUncheckedCopies(session, kind.entry, number);
    const accounts::MoneyHeader header = readPostedHeader(session, kind, number);
    postMoney(session, kind, header, writtenOff);
    const int goods = postSaleStock(session, postingHeader(header));
    postMemberEffects(session, number, MemberEvent::SaleChecked);
    session.log(texts::saleCheckedLog(number, goods));
    transaction.commit();
    return Outcome::done();
}

// A later document that depends on the check stands in the way of unchecking it.
QString dependantRefusal(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    if (db.exists(
            QStringLiteral("select gl_djh from jxc_cksp where gl_djh2=? limit 1"), { number }))
        return texts::issueNoteRefusal(number);
    if (db.exists(QStringLiteral("select a.id from jxc_xsthsp a,jxc_lsxssp b where a.id2>0 and "
                                 "a.id2=b.id2 and b.gl_djh=? limit 1"),
            { number }))
        return texts::returnedSaleRefusal(number);
    return {};
}

Outcome unpost(shell::Session &session, const CheckRow &row)
{
    const CheckKind &kind = saleChecking();
    const QString &number = row.number;
    core::Transaction transaction(session.db());
    const Outcome checked = documents::requireStatus(session, kind.entry, number, 1);
    if (!checked)
        return checked;
    documents::removeUncheckedCopies(session, kind.entry, number);
    reverseSaleStock(session, reversalHeader(row));
    postMemberEffects(session, number, MemberEvent::SaleUnchecked);
    deletePosRows(session, number);
    markUnchecked(session, kind, number);
    accounts::removeDocumentPostings(session, number);
    session.log(texts::saleUncheckedLog(number));
    transaction.commit();
    return Outcome::done();
}

struct Listed
{
    QString number;
    QString date;
};

QList<Listed> uncheckedSales(shell::Session &session, const QString &from, const QString &to)
{
    QList<Listed> listed;
    session.db().forEach(QStringLiteral("select gl_djh,ls_xsrq from jxc_lsxsd where ls_status=? "
                                        "and ls_xsrq>=? and ls_xsrq<=? order by ls_xsrq,gl_djh"),
        { 0, from,
            (to.isEmpty() ? QStringLiteral("9999-12-31") : to) + QStringLiteral(" 23:59:59") },
        [&](const QSqlQuery &q) {
            listed.append({ q.value(0).toString(), q.value(1).toString() });
        });
    return listed;
}

} // namespace

Outcome checkSale(shell::Session &session, const QString &number, CheckStart start)
{
    CheckRow row;
    const Outcome ready = prepareCheck(session, number, start, row);
    if (!ready)
        return ready;
    if (row.status == -1)
        return Outcome::refused(QString());
    if (row.status == 1)
        return removeStrayCopies(session, number);
    return core::guarded(session.ui(), [&] { return post(session, number, row); });
}

Outcome checkSaleWithin(shell::Session &session, const QString &number)
{
    if (const QString limit = stock::saleLimitCheck(session, number); !limit.isEmpty())
        return core::refuse(session.ui(), limit);
    const auto row = readCheckRow(session, saleChecking(), number);
    if (!row)
        return core::refuse(session.ui(), documents::texts::documentMissing(number));
    return post(session, number, *row);
}

QString saleCheckHook(const shell::Session &, const QString &, const QString &)
{
    return texts::checkHookOk();
}

namespace {

// Asks once, then checks each listed sale that its hook lets through; the refusals of one sale
// are told and the others go on.
Result<CheckAllSummary> checkEach(shell::Session &session, const QList<Listed> &listed)
{
    CheckAllSummary summary;
    summary.listed = int(listed.size());
    if (listed.isEmpty())
        return summary;
    if (!session.ui().ask(texts::checkAllQuestion()))
        return Outcome::refused(texts::checkAllQuestion());
    for (const Listed &sale : listed) {
        const QString answer = saleCheckHook(session, sale.number, sale.date);
        if (answer != texts::checkHookOk()) {
            session.ui().inform(answer);
            continue;
        }
        if (checkSale(session, sale.number))
            ++summary.checked;
    }
    return summary;
}

} // namespace

Result<CheckAllSummary> checkAllSales(
    shell::Session &session, const QString &from, const QString &to)
{
    QList<Listed> listed;
    const Outcome read = core::guarded(session.ui(), [&] {
        listed = uncheckedSales(session, from, to);
        return Outcome::done();
    });
    if (!read)
        return read;
    return checkEach(session, listed);
}

Result<CheckAllSummary> checkListedSales(shell::Session &session, const QStringList &numbers)
{
    QList<Listed> listed;
    const Outcome read = core::guarded(session.ui(), [&] {
        for (const QString &number : numbers)
            session.db().forEach(QStringLiteral("select gl_djh,ls_xsrq from jxc_lsxsd "
                                                "where ls_status=? and gl_djh=?"),
                { 0, number }, [&](const QSqlQuery &q) {
                    listed.append({ q.value(0).toString(), q.value(1).toString() });
                });
        return Outcome::done();
    });
    if (!read)
        return read;
    return checkEach(session, listed);
}

Outcome uncheckSale(shell::Session &session, const QString &number)
{
    CheckRow row;
    Outcome outcome = core::guarded(session.ui(), [&] {
        const auto found = readCheckRow(session, saleChecking(), number);
        if (found && found->status == 1)
            if (const QString refusal = dependantRefusal(session, number); !refusal.isEmpty())
                return core::refuse(session.ui(), refusal);
        return Outcome::done();
    });
    if (outcome)
        outcome = prepareUncheck(session, saleChecking(), number, row);
    if (outcome)
        outcome = documents::confirmUncheck(session, number);
    if (!outcome)
        return outcome;
    return core::guarded(session.ui(), [&] { return unpost(session, row); });
}

} // namespace medistock::sales
