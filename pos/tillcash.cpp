#include "pos/tillcash.h"

#include "core/connection.h"
#include "core/numbering.h"
#include "core/operation.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "pos/rights.h"
#include "pos/texts.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>

namespace medistock::pos {

Result<QString> recordTillCash(
    shell::Session &session, TillCash direction, double amount, const QString &note)
{
    const bool in = direction == TillCash::In;
    const Outcome allowed = shell::requireRight(session, "tjgl", rights::tillCash);
    if (!allowed)
        return allowed;
    const double rounded = session.params().roundAmount(amount);
    if (!(rounded > 0))
        return core::refuse(session.ui(), texts::cashAmountInvalid());
    if (!session.ui().ask(texts::cashQuestion(in)))
        return Outcome::refused(texts::cashQuestion(in));
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Connection &db = session.db();
        core::Transaction transaction(db);
        const Result<QString> next = core::nextDocumentNumber(db, QStringLiteral("jxc_crk"),
            QStringLiteral("gl_djh"), texts::cashPrefix(in), session.clock().today());
        if (!next)
            return core::refuse(session.ui(), next.message());
        number = next.value();
        db.exec(QStringLiteral("insert into jxc_crk (gl_djh,crk_rq,crk_je,crk_flag,crk_note,"
                               "a_name,a_name2) values (?,?,?,?,?,?,?)"),
            { number, session.clock().nowText(), rounded,
                in ? QStringLiteral("r") : QStringLiteral("c"), core::cleanText(note).left(200),
                session.user().name, QString() });
        session.log(texts::cashLog(in, number, rounded));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Result<QList<TillCashRow>> tillCashRows(
    const shell::Session &session, const DateRange &range, const QString &cashier)
{
    const Outcome valid = checkRange(session, range);
    if (!valid)
        return valid;
    // The in-rows and the out-rows in one list, each amount in its own column.
    QVariantList params { QStringLiteral("r"), QStringLiteral("c"), range.start(), range.end() };
    if (!cashier.isEmpty())
        params << cashier;
    QList<TillCashRow> rows;
    session.db().forEach(
        QStringLiteral("select gl_djh,crk_rq,crk_je,crk_flag,crk_note,a_name from jxc_crk where "
                       "crk_flag in (?,?) and crk_rq>=? and crk_rq<=?%1 order by crk_rq desc,id "
                       "desc")
            .arg(cashier.isEmpty() ? QString() : QStringLiteral(" and a_name=?")),
        params, [&](const QSqlQuery &q) {
            const bool in = q.value(3).toString() == QLatin1String("r");
            const double amount = q.value(2).toDouble();
            rows.append(
                { q.value(0).toString(), q.value(1).toString(), in ? amount : 0, in ? 0 : amount,
                    texts::cashKind(in), q.value(4).toString(), q.value(5).toString() });
        });
    return rows;
}

} // namespace medistock::pos
