#include "documents/lifecycle.h"

#include "core/interaction.h"
#include "core/operation.h"
#include "documents/texts.h"
#include "shell/rights.h"
#include "shell/session.h"

namespace medistock::documents {

QString closedPeriodTest(const shell::Session &, const QString &)
{
    return texts::periodOpen();
}

Outcome requireOpenPeriod(const shell::Session &session, const QString &documentDate)
{
    const QString answer = closedPeriodTest(session, documentDate);
    if (answer == texts::periodOpen())
        return Outcome::done();
    return core::refuse(session.ui(), answer);
}

Outcome requireUncheckByChecker(const shell::Session &session, const QString &number,
    const QString &checker, const char *area, int position)
{
    if (session.user().code == QLatin1String("100001") || session.user().name == checker)
        return Outcome::done();
    if (!checker.isEmpty()
        && shell::operatorHasRight(session.db(), QString::fromLatin1(area), position, checker))
        return Outcome::done();
    return core::refuse(session.ui(), texts::otherCheckerRefused(number, checker));
}

Outcome confirmUncheck(const shell::Session &session, const QString &number)
{
    if (session.ui().ask(texts::uncheckQuestion(number)))
        return Outcome::done();
    return Outcome::refused(QString());
}

} // namespace medistock::documents
