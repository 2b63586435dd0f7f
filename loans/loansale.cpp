#include "loans/loansale.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "loans/kinds.h"
#include "loans/loanreturn.h"
#include "loans/texts.h"
#include "sales/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::loans {

namespace {

ReturnDraft returnPart(const LoanSaleDraft &draft)
{
    ReturnDraft part { draft.loan, draft.date, QString(), {} };
    for (const SaleChoice &choice : draft.lines)
        part.lines.append({ choice.line, choice.quantity });
    return part;
}

QString priceOf(const shell::Session &session, const LoanSaleDraft &draft, const ReturnLine &r)
{
    for (const SaleChoice &choice : draft.lines)
        if (choice.line == r.loan.line && !choice.price.trimmed().isEmpty())
            return choice.price.trimmed();
    return core::plainNumber(proposedSalePrice(session, r.loan.goods));
}

sales::SaleDraft saleOf(
    const shell::Session &session, const LoanSaleDraft &draft, const ReturnPlan &plan)
{
    sales::SaleDraft sale;
    documents::DocumentDraft &entry = sale.entry;
    entry.date = plan.date;
    entry.party = plan.loan.customer;
    entry.warehouse = plan.loan.warehouse;
    entry.employee = draft.employee.trimmed().isEmpty() ? plan.loan.employee : draft.employee;
    entry.note = draft.note.trimmed().isEmpty() ? texts::saleNote(plan.loan.number) : draft.note;
    for (const ReturnLine &r : plan.lines) {
        documents::LineDraft line;
        line.goods = r.loan.goods;
        line.quantity = core::plainNumber(r.quantity);
        line.price = priceOf(session, draft, r);
        line.batch = r.loan.batch;
        line.expiry = r.loan.expiry;
        line.produced = r.loan.produced;
        entry.lines.append(line);
    }
    sale.header = draft.header;
    return sale;
}

} // namespace

double proposedSalePrice(const shell::Session &session, const QString &goods)
{
    const QSqlRecord row = session.db().firstRow(
        QStringLiteral("select g_sj,g_lsj from jxc_goods where g_sn=? order by id limit 1"),
        { goods });
    const double price = row.value(0).toDouble();
    return price != 0 ? price : row.value(1).toDouble();
}

Result<LoanSale> sellLoanedGoods(shell::Session &session, const LoanSaleDraft &draft)
{
    Outcome outcome = shell::requireRight(session, rightArea, loanRight);
    if (!outcome)
        return outcome;
    const Result<ReturnPlan> plan = planReturn(session, returnPart(draft));
    if (!plan)
        return plan.outcome();
    sales::SaleDraft sale;
    outcome = core::guarded(session.ui(), [&] {
        sale = saleOf(session, draft, plan.value());
        return Outcome::done();
    });
    if (outcome)
        outcome = confirmFutureDate(session, plan->date);
    if (outcome)
        outcome = sales::prepareSaleOfLoanedGoods(session, sale);
    if (outcome && !session.ui().ask(sales::texts::saveAndCheckQuestion()))
        outcome = Outcome::refused(sales::texts::saveAndCheckQuestion());
    if (!outcome)
        return outcome;
    LoanSale done;
    outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        Outcome step = requireStillOpen(session, plan.value());
        if (!step)
            return step;
        const Result<QString> part = writeReturn(session, plan.value(), QString(), true);
        if (!part)
            return part.outcome();
        done.returnNumber = part.value();
        sale.header.linkNumber = done.returnNumber;
        const Result<QString> sold = sales::saveAndCheckSaleWithin(session, sale);
        if (!sold)
            return sold.outcome();
        done.saleNumber = sold.value();
        session.log(texts::returnCheckedLog(done.returnNumber, int(plan->lines.size())));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return done;
}

} // namespace medistock::loans
