#include "accounts/bankaccounts.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/textclean.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::accounts {

namespace {

bool nameTaken(core::Connection &connection, const QString &name, qint64 exceptId)
{
    return connection.exists(
        QStringLiteral("select yh_name from jxc_yhzh where (yh_name=? or yh_type=?) and id<>?"),
        { name, name, exceptId });
}

qint64 accountId(core::Connection &connection, const QString &name)
{
    return connection
        .firstValue(
            QStringLiteral("select id from jxc_yhzh where yh_name=? order by id limit 1"), { name })
        .toLongLong();
}

bool hasBusiness(core::Connection &connection, const QString &name)
{
    return connection.exists(
        QStringLiteral("select id from jxc_xjyh where xj_kmmc=? and xj_dlx<>?"),
        { name, texts::openingKind() });
}

// The opening movement carries the opening amount; it is written when an account has none.
void writeOpeningMovement(shell::Session &session, const QString &name, double amount)
{
    core::Connection &db = session.db();
    const int changed
        = db.exec(QStringLiteral("update jxc_xjyh set xj_je=? where xj_kmmc=? and xj_dlx=?"),
            { amount, name, texts::openingKind() });
    if (changed > 0)
        return;
    CashRow row;
    row.date = session.today();
    row.kind = texts::openingKind();
    row.amount = amount;
    row.account = name;
    row.note = texts::openingNote(name);
    row.operatorName = session.user().name;
    appendCashRow(db, row);
}

Outcome checkNewName(shell::Session &session, const QString &name, qint64 exceptId)
{
    if (name.isEmpty())
        return core::refuse(session.ui(), texts::accountNameRequired());
    if (name == noAccountName() || nameTaken(session.db(), name, exceptId))
        return core::refuse(session.ui(), texts::accountNameTaken(name));
    return Outcome::done();
}

} // namespace

QList<BankAccount> listBankAccounts(core::Connection &connection)
{
    QList<BankAccount> accounts;
    for (const QSqlRecord &row : connection.rows(QStringLiteral(
             "select id,yh_sn,yh_type,yh_name,yh_zje,yh_note from jxc_yhzh order by id")))
        accounts.append(
            { row.value(0).toLongLong(), row.value(1).toString(), row.value(2).toString(),
                row.value(3).toString(), row.value(4).toDouble(), row.value(5).toString() });
    return accounts;
}

Result<QString> addBankAccount(
    shell::Session &session, const QString &name, const QString &type, const QString &note)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    const QString clean = core::cleanText(name.trimmed());
    allowed = checkNewName(session, clean, 0);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    QString code;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (nameTaken(db, clean, 0))
            return core::refuse(session.ui(), texts::accountNameTaken(clean));
        const Result<QString> next
            = core::nextMasterCode(db, QStringLiteral("jxc_yhzh"), QStringLiteral("yh_sn"));
        if (!next)
            return core::refuse(session.ui(), next.message());
        code = next.value();
        db.insert(QStringLiteral("insert into jxc_yhzh (yh_sn,yh_type,yh_name,yh_zje,yh_note) "
                                 "values (?,?,?,0,?)"),
            { code, core::cleanText(type.trimmed()), clean, cleanNote(note) });
        writeOpeningMovement(session, clean, 0);
        session.log(texts::accountAddedLog(clean));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

Outcome renameBankAccount(shell::Session &session, const QString &name, const QString &newName)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const qint64 id = accountId(db, name);
    if (id == 0)
        return core::refuse(session.ui(), texts::accountMissing(name));
    if (name == cashAccountName())
        return core::refuse(session.ui(), texts::cashAccountCannotBeRenamed());
    const QString clean = core::cleanText(newName.trimmed());
    allowed = checkNewName(session, clean, id);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (nameTaken(db, clean, id))
            return core::refuse(session.ui(), texts::accountNameTaken(clean));
        db.exec(QStringLiteral("update jxc_yhzh set yh_name=? where id=?"), { clean, id });
        db.exec(QStringLiteral("update jxc_xjyh set xj_kmmc=? where xj_kmmc=?"), { clean, name });
        db.exec(QStringLiteral("update jxc_xjyh set xj_note=? where xj_kmmc=? and xj_dlx=?"),
            { texts::openingNote(clean), clean, texts::openingKind() });
        // Expenses and registrations not yet checked would otherwise post to the old name.
        db.exec(QStringLiteral("update jxc_yyfy set fy_kmmc=? where fy_kmmc=?"), { clean, name });
        db.exec(QStringLiteral("update jxc_ysyfk_dj set k_fkfs=? where k_fkfs=?"), { clean, name });
        session.log(texts::accountRenamedLog(name, clean));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome setOpeningAmount(shell::Session &session, const QString &name, double amount)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const qint64 id = accountId(db, name);
    if (id == 0)
        return core::refuse(session.ui(), texts::accountMissing(name));
    // An account may start overdrawn: money either way.
    const QString problem
        = core::numberProblem(texts::openingField(), amount, core::NumberKind::SignedAmount);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    if (hasBusiness(db, name) && !session.ui().ask(texts::openingWithBusinessQuestion()))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        db.exec(QStringLiteral("update jxc_yhzh set yh_zje=? where id=?"), { amount, id });
        writeOpeningMovement(session, name, amount);
        // From the first movement on: the opening may be dated after earlier business.
        recalculateCash(db, name, QString());
        session.log(texts::openingSetLog(name, core::plainNumber(amount)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteBankAccount(shell::Session &session, const QString &name)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    if (name == cashAccountName())
        return core::refuse(session.ui(), texts::cashAccountCannotBeDeleted());
    const qint64 id = accountId(db, name);
    if (id == 0)
        return core::refuse(session.ui(), texts::accountMissing(name));
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (hasBusiness(db, name))
            return core::refuse(session.ui(), texts::accountInUse(name));
        db.exec(QStringLiteral("delete from jxc_xjyh where xj_kmmc=?"), { name });
        db.exec(QStringLiteral("delete from jxc_yhzh where id=?"), { id });
        session.log(texts::accountDeletedLog(name));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::accounts
