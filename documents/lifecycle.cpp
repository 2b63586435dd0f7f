#include "documents/lifecycle.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/operation.h"
#include "documents/entry.h"
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

Outcome requireStatus(
    const shell::Session &session, const DocumentKind &kind, const QString &number, int status)
{
    const std::optional<int> now = documentStatus(session.db(), kind, number);
    if (!now)
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (*now == status)
        return Outcome::done();
    return core::refuse(
        session.ui(), status == 0 ? texts::alreadyChecked(number) : texts::notChecked(number));
}

void markChecked(const shell::Session &session, const DocumentKind &kind, qint64 headerId,
    const ColumnValues &values)
{
    const HeaderColumns &h = kind.header;
    QStringList assignments { QLatin1String(h.status), QLatin1String(h.checker),
        QLatin1String(h.checkDate) };
    QVariantList params { 1, session.user().name, session.today() };
    for (const auto &[column, value] : values.items()) {
        assignments.append(column);
        params.append(value);
    }
    params.append(headerId);
    session.db().exec(QStringLiteral("update %1 set %2=? where id=?")
                          .arg(QLatin1String(h.table), assignments.join(QStringLiteral("=?,"))),
        params);
}

void markUnchecked(const shell::Session &session, const DocumentKind &kind, const QString &number,
    const QStringList &cleared)
{
    const HeaderColumns &h = kind.header;
    QString assignments
        = QStringLiteral("%1=?,%2=?,%3=?")
              .arg(QLatin1String(h.status), QLatin1String(h.checker), QLatin1String(h.checkDate));
    QVariantList params { 0, QString(), QString() };
    for (const QString &column : cleared) {
        assignments += QStringLiteral(",%1=?").arg(column);
        params.append(0);
    }
    params.append(number);
    session.db().exec(QStringLiteral("update %1 set %2 where %3=?")
                          .arg(QLatin1String(h.table), assignments, QLatin1String(h.number)),
        params);
}

void removeUncheckedCopies(
    const shell::Session &session, const DocumentKind &kind, const QString &number)
{
    const HeaderColumns &h = kind.header;
    // Only beside a checked header: on another workstation the checked copy may have been
    // unchecked since it was read, and then the unchecked row is the document itself.
    session.db().exec(
        QStringLiteral("delete from %1 where %2=? and %3=? and exists "
                       "(select 1 from %1 where %2=? and %3=?)")
            .arg(QLatin1String(h.table), QLatin1String(h.status), QLatin1String(h.number)),
        { 0, number, 1, number });
}

} // namespace medistock::documents
