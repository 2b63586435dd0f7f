#include "loans/loanreturn.h"

#include "accounts/documentsupport.h"
#include "accounts/postings.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "documents/lifecycle.h"
#include "documents/texts.h"
#include "loans/kinds.h"
#include "loans/texts.h"
#include "sales/entry.h"
#include "sales/kinds.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSet>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace medistock::loans {

namespace {

OpenLine openLineOf(const QSqlQuery &q)
{
    OpenLine l;
    l.line = q.value(0).toLongLong();
    l.goods = q.value(1).toString();
    l.goodsName = q.value(2).toString();
    l.unit = q.value(3).toString();
    l.batch = q.value(4).toString();
    l.expiry = q.value(5).toString();
    l.produced = q.value(6).toString();
    l.lent = q.value(7).toDouble();
    l.returned = q.value(8).toDouble();
    l.sold = q.value(9).toDouble();
    l.open = core::roundTo(l.lent - l.returned - l.sold, 8);
    l.price = q.value(10).toDouble();
    l.deposit = core::roundTo(q.value(11).toDouble() - q.value(12).toDouble(), 8);
    l.rent = q.value(13).toDouble();
    l.account = q.value(14).toString();
    return l;
}

Result<LoanHeader> checkedLoan(const shell::Session &session, const QString &number)
{
    const auto found = readLoanHeader(session, number);
    if (!found)
        return core::refuse(session.ui(), documents::texts::documentMissing(number));
    if (found->flag != loanFlag())
        return core::refuse(session.ui(), texts::notALoan(number));
    if (found->status != 1)
        return core::refuse(session.ui(), documents::texts::notChecked(number));
    return *found;
}

// A quantity typed for a line: empty takes what is open.
std::optional<double> chosenQuantity(const QString &text, double open)
{
    if (text.trimmed().isEmpty())
        return open;
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value) || value <= 0)
        return std::nullopt;
    return value;
}

Outcome addChosenLine(const shell::Session &session, const ReturnDraft &draft,
    const QList<OpenLine> &open, const ReturnChoice &choice, ReturnPlan &plan)
{
    const auto line = std::find_if(
        open.begin(), open.end(), [&](const OpenLine &l) { return l.line == choice.line; });
    if (line == open.end()) {
        const bool ofLoan = session.db().exists(
            QStringLiteral("select id from jxc_khjhsp where id=? and gl_djh=?"),
            { choice.line, draft.loan });
        return core::refuse(session.ui(),
            ofLoan ? texts::nothingOpen(draft.loan)
                   : texts::lineNotOfLoan(choice.line, draft.loan));
    }
    const auto quantity = chosenQuantity(choice.quantity, line->open);
    if (!quantity)
        return core::refuse(session.ui(), texts::quantityNotNumber(choice.line, choice.quantity));
    const double rounded = session.params().roundQuantity(*quantity);
    if (rounded <= 0)
        return core::refuse(session.ui(), texts::quantityNotNumber(choice.line, choice.quantity));
    if (rounded > line->open + core::comparisonMargin)
        return core::refuse(
            session.ui(), texts::quantityOverOpen(line->goodsName, core::plainNumber(line->open)));
    plan.lines.append(returnLine(session.params(), *line, rounded, plan.days));
    return Outcome::done();
}

Outcome planLines(const shell::Session &session, const ReturnDraft &draft, ReturnPlan &plan)
{
    const QList<OpenLine> open = openLines(session, draft.loan);
    if (draft.lines.isEmpty()) {
        if (open.isEmpty())
            return core::refuse(session.ui(), texts::nothingOpen(draft.loan));
        for (const OpenLine &line : open)
            plan.lines.append(returnLine(session.params(), line, line.open, plan.days));
        return Outcome::done();
    }
    QSet<qint64> chosen;
    for (const ReturnChoice &choice : draft.lines) {
        if (chosen.contains(choice.line))
            return core::refuse(session.ui(), texts::lineChosenTwice(choice.line));
        chosen.insert(choice.line);
        const Outcome added = addChosenLine(session, draft, open, choice, plan);
        if (!added)
            return added;
    }
    return Outcome::done();
}

} // namespace

Outcome requireStillOpen(const shell::Session &session, const ReturnPlan &plan)
{
    const Outcome checked = documents::requireStatus(session, loanKind(), plan.loan.number, 1);
    if (!checked)
        return checked;
    const QList<OpenLine> open = openLines(session, plan.loan.number);
    for (const ReturnLine &r : plan.lines) {
        const auto line = std::find_if(
            open.begin(), open.end(), [&](const OpenLine &l) { return l.line == r.loan.line; });
        const double left = line == open.end() ? 0 : line->open;
        if (r.quantity > left + core::comparisonMargin)
            return core::refuse(
                session.ui(), texts::quantityOverOpen(r.loan.goodsName, core::plainNumber(left)));
    }
    return Outcome::done();
}

QList<OpenLine> openLines(const shell::Session &session, const QString &loan)
{
    QList<OpenLine> lines;
    session.db().forEach(
        QStringLiteral("select b.id,b.g_sn,c.g_name,c.dw_name,b.t_ph,b.t_yxq,b.t_scrq,b.jh_sl,"
                       "b.jh_hhsl,b.jh_xssl,b.jh_dj,b.jh_yj,b.jh_yj2,b.jh_zj,b.jh_kmmc from "
                       "jxc_khjhsp b left join jxc_goods c on c.g_sn=b.g_sn where b.gl_djh=? "
                       "order by b.id"),
        { loan }, [&](const QSqlQuery &q) {
            const OpenLine line = openLineOf(q);
            if (line.open > core::comparisonMargin)
                lines.append(line);
        });
    return lines;
}

Result<ReturnPlan> planReturn(const shell::Session &session, const ReturnDraft &draft)
{
    ReturnPlan plan;
    const Outcome planned = core::guarded(session.ui(), [&] {
        const Result<LoanHeader> loan = checkedLoan(session, draft.loan);
        if (!loan)
            return loan.outcome();
        plan.loan = loan.value();
        plan.date = draft.date.trimmed().isEmpty() ? session.today() : draft.date.trimmed();
        if (!accounts::isDateText(plan.date))
            return core::refuse(session.ui(), documents::texts::dateInvalid(plan.date));
        if (plan.date < plan.loan.date.left(10))
            return core::refuse(
                session.ui(), texts::returnBeforeLoan(plan.date, plan.loan.date.left(10)));
        plan.days = loanDays(plan.loan.date, plan.date);
        return planLines(session, draft, plan);
    });
    if (!planned)
        return planned;
    return plan;
}

Result<ReturnPlan> prepareReturn(const shell::Session &session, const QString &loan,
    std::optional<qint64> line, const QString &date)
{
    ReturnDraft draft { loan, date, QString(), {} };
    if (line)
        draft.lines.append({ *line, QString() });
    return planReturn(session, draft);
}

Result<QString> saveReturn(shell::Session &session, const ReturnDraft &draft)
{
    const Outcome allowed = shell::requireRight(session, rightArea, loanRight);
    if (!allowed)
        return allowed;
    const Result<ReturnPlan> plan = planReturn(session, draft);
    if (!plan)
        return plan.outcome();
    const Outcome asked = confirmFutureDate(session, plan->date);
    if (!asked)
        return asked;
    const QString note = core::cleanText(draft.note, core::CleanStrength::Medium);
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        const Outcome open = requireStillOpen(session, plan.value());
        if (!open)
            return open;
        const Result<QString> written = writeReturn(session, plan.value(), note, false);
        if (!written)
            return written.outcome();
        number = written.value();
        session.log(texts::returnCheckedLog(number, int(plan->lines.size())));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

} // namespace medistock::loans
