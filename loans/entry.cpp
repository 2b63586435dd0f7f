#include "loans/entry.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "loans/kinds.h"
#include "loans/loancheck.h"
#include "loans/posting.h"
#include "loans/texts.h"
#include "sales/options.h"
#include "shell/session.h"
#include "stock/documents/entry.h"

#include <cmath>

namespace medistock::loans {

namespace {

// An amount typed for a line: empty is 0, anything else a number not below 0.
std::optional<double> typedAmount(const QString &text)
{
    if (text.trimmed().isEmpty())
        return 0.0;
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value) || value < 0)
        return std::nullopt;
    return value;
}

Outcome setTerms(const shell::Session &session, const LoanTerms &terms, documents::ValidLine &line)
{
    const auto deposit = typedAmount(terms.deposit);
    if (!deposit)
        return core::refuse(session.ui(), texts::depositNotNumber(line.row, terms.deposit));
    const auto rent = typedAmount(terms.rent);
    if (!rent)
        return core::refuse(session.ui(), texts::rentNotNumber(line.row, terms.rent));
    QString account = terms.account.trimmed();
    if (account.isEmpty())
        account = accounts::cashAccountName();
    if (account != accounts::noAccountName() && !accounts::bankAccountExists(session.db(), account))
        return core::refuse(session.ui(), accounts::texts::accountMissing(account));
    const shell::Parameters &params = session.params();
    const auto set = [&](const char *column, const QVariant &value) {
        line.columns.set(QString::fromLatin1(column), value);
    };
    set("jh_yj", params.roundAmount(*deposit));
    set("jh_zj", params.roundPrice(*rent));
    set("jh_kmmc", account);
    set("jh_flag", texts::loanLineFlag());
    // What returns and sales fill in later starts at 0; the line's identity is fixed at check.
    for (const char *later :
        { "jh_hhsl", "jh_xssl", "jh_sl2", "jh_yj2", "jh_ts", "jh_zzj", "jh_thyj", "id2" })
        set(later, 0);
    set("gl_djh2", QString());
    return Outcome::done();
}

Outcome loanRule(
    const shell::Session &session, const QList<LoanTerms> &terms, documents::ValidDocument &doc)
{
    doc.columns.set(QStringLiteral("jh_flag"), loanFlag());
    for (documents::ValidLine &line : doc.lines) {
        const Outcome outcome = setTerms(session, terms.value(line.row - 1), line);
        if (!outcome)
            return outcome;
    }
    const Outcome dated = confirmFutureDate(session, doc.date);
    if (!dated)
        return dated;
    const QString question = sales::checksOnSave(session.params()) ? texts::saveAndCheckQuestion()
                                                                   : texts::saveQuestion();
    if (!session.ui().ask(question))
        return Outcome::refused(question);
    return Outcome::done();
}

} // namespace

Result<QString> saveLoan(shell::Session &session, const LoanDraft &draft)
{
    const Result<QString> saved = stock::saveAtCostOfDate(session, loanKind(), draft.entry,
        [&](const shell::Session &s, documents::ValidDocument &doc) {
            return loanRule(s, draft.terms, doc);
        });
    if (saved && sales::checksOnSave(session.params()))
        checkLoan(session, saved.value());
    return saved;
}

Outcome deleteLoan(const shell::Session &session, const QString &number)
{
    return documents::deleteDocument(session, loanKind(), number);
}

} // namespace medistock::loans
