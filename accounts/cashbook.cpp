#include "accounts/cashbook.h"

#include "accounts/documentsupport.h"
#include "accounts/runningbalance.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::accounts {

namespace {

// Receipts, payments and transfers: the movements that are documents of their own.
const QString movementKindsSql = QStringLiteral("xj_dlx in (?,?,?)");

QVariantList movementKinds()
{
    return { texts::cashReceiptKind(), texts::cashPaymentKind(), texts::cashTransferKind() };
}

// Earliest date per account of the rows a condition selects, so that each is recalculated once.
QList<QPair<QString, QString>> accountsOf(
    core::Connection &connection, const QString &condition, const QVariantList &params)
{
    QList<QPair<QString, QString>> accounts;
    connection.forEach(
        QStringLiteral("select xj_kmmc,min(xj_rq) from jxc_xjyh where %1 group by xj_kmmc")
            .arg(condition),
        params, [&](const QSqlQuery &q) {
            accounts.append({ q.value(0).toString(), q.value(1).toString() });
        });
    return accounts;
}

void deleteAndRecalculate(
    core::Connection &connection, const QString &condition, const QVariantList &params)
{
    const auto accounts = accountsOf(connection, condition, params);
    connection.exec(QStringLiteral("delete from jxc_xjyh where ") + condition, params);
    for (const auto &[account, date] : accounts)
        recalculateCash(connection, account, date);
}

struct MovementRows
{
    QList<qint64> ids; // in id order: a transfer's money out comes first
    QString kind;
    bool anyCounted = false;
    bool allCounted = true;
};

MovementRows readMovement(core::Connection &connection, const QString &number)
{
    MovementRows rows;
    connection.forEach(QStringLiteral("select id,xj_dlx,xj_chk from jxc_xjyh where gl_djh=? and ")
            + movementKindsSql + QStringLiteral(" order by id"),
        QVariantList { number } + movementKinds(), [&](const QSqlQuery &q) {
            rows.ids.append(q.value(0).toLongLong());
            rows.kind = q.value(1).toString();
            const bool counted = q.value(2).toString() == QLatin1String("1");
            rows.anyCounted = rows.anyCounted || counted;
            rows.allCounted = rows.allCounted && counted;
        });
    return rows;
}

QString kindText(MovementKind kind)
{
    switch (kind) {
    case MovementKind::Receipt:
        return texts::cashReceiptKind();
    case MovementKind::Payment:
        return texts::cashPaymentKind();
    case MovementKind::Transfer:
        break;
    }
    return texts::cashTransferKind();
}

Outcome validateMovement(shell::Session &session, const MovementDraft &draft)
{
    core::Connection &db = session.db();
    if (!isDateText(draft.date))
        return core::refuse(session.ui(), texts::dateInvalid());
    if (!(draft.amount > 0))
        return core::refuse(session.ui(), texts::amountNotPositive());
    const QString problem
        = core::numberProblem(texts::amountField(), draft.amount, core::NumberKind::Amount);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    if (!bankAccountExists(db, draft.account))
        return core::refuse(session.ui(), texts::accountMissing(draft.account));
    if (draft.kind == MovementKind::Transfer) {
        if (!bankAccountExists(db, draft.targetAccount))
            return core::refuse(session.ui(), texts::accountMissing(draft.targetAccount));
        if (draft.targetAccount == draft.account)
            return core::refuse(session.ui(), texts::transferSameAccount());
    }
    if (!draft.salesmanName.isEmpty() && !employeeNameExists(db, draft.salesmanName))
        return core::refuse(session.ui(), texts::employeeNameMissing(draft.salesmanName));
    if (!draft.number.isEmpty() && !draft.number.startsWith(movementPrefix(draft.kind)))
        return core::refuse(session.ui(), texts::documentMissing(draft.number));
    return Outcome::done();
}

// The rows a movement is stored as: one, or a transfer's out and in.
QList<CashRow> rowsOf(const shell::Session &session, const MovementDraft &draft, bool counted)
{
    CashRow row;
    row.date = draft.date;
    row.kind = kindText(draft.kind);
    row.account = draft.account;
    row.salesmanName = draft.salesmanName;
    row.note = cleanNote(draft.note);
    row.operatorName = session.user().name;
    row.counted = counted;
    row.amount = draft.kind == MovementKind::Receipt ? draft.amount : -draft.amount;
    if (draft.kind != MovementKind::Transfer)
        return { row };
    CashRow in = row;
    in.account = draft.targetAccount;
    in.amount = draft.amount;
    return { row, in };
}

void rewriteRow(core::Connection &connection, qint64 id, const CashRow &row)
{
    connection.exec(QStringLiteral("update jxc_xjyh set gl_djh=?,xj_rq=?,u_name=?,xj_je=?,"
                                   "xj_kmmc=?,xj_note=?,a_name=?,xj_chk=? where id=?"),
        { row.number, row.date, row.salesmanName, row.amount, row.account, row.note,
            row.operatorName, row.counted ? QStringLiteral("1") : QStringLiteral("0"), id });
}

Outcome setCounted(shell::Session &session, const QString &number, bool counted)
{
    core::Connection &db = session.db();
    core::Transaction transaction(db);
    const MovementRows rows = readMovement(db, number);
    if (rows.ids.isEmpty())
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (counted && rows.anyCounted)
        return core::refuse(session.ui(), texts::alreadyChecked(number));
    if (!counted && !rows.allCounted)
        return core::refuse(session.ui(), texts::notChecked(number));
    const auto accounts = accountsOf(db, QStringLiteral("gl_djh=?"), { number });
    // An uncounted row carries no balance, as before it was first counted.
    db.exec(QStringLiteral("update jxc_xjyh set xj_chk=?,xj_ljje=0 where gl_djh=?"),
        { counted ? QStringLiteral("1") : QStringLiteral("0"), number });
    for (const auto &[account, date] : accounts)
        recalculateCash(db, account, date);
    session.log(
        (counted ? texts::checkedLog(rows.kind, number) : texts::uncheckedLog(rows.kind, number)));
    transaction.commit();
    return Outcome::done();
}

} // namespace

QString cashAccountName()
{
    return texts::cashAccount();
}

QString noAccountName()
{
    return texts::noAccount();
}

bool knownCashAccount(core::Connection &connection, const QString &account)
{
    return bankAccountExists(connection, account)
        || connection.exists(
            QStringLiteral("select id from jxc_xjyh where xj_kmmc=?"), { account });
}

double cashBalance(core::Connection &connection, const QString &account)
{
    return lastBalance(connection, cashBook(), { account });
}

double recalculateCash(core::Connection &connection, const QString &account, const QString &date)
{
    return rerunFrom(connection, cashBook(), { account }, date);
}

Outcome recalculateCashBook(shell::Session &session, const QString &account, QDate from)
{
    core::Connection &db = session.db();
    if (!from.isValid())
        return core::refuse(session.ui(), texts::dateInvalid());
    if (!knownCashAccount(db, account))
        return core::refuse(session.ui(), texts::accountMissing(account));
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        recalculateCash(db, account, from.toString(QStringLiteral("yyyy-MM-dd")));
        transaction.commit();
        return Outcome::done();
    });
}

void appendCashRow(core::Connection &connection, const CashRow &row)
{
    connection.insert(
        QStringLiteral("insert into jxc_xjyh (gl_djh,xj_rq,xj_dlx,u_name,ghs_sn,ghs_name,ck_name,"
                       "xj_je,xj_kmmc,xj_note,a_name,xj_ljje,xj_chk) values "
                       "(?,?,?,?,?,?,?,?,?,?,?,0,?)"),
        { row.number, row.date, row.kind, row.salesmanName, row.partyCode, row.partyName,
            row.warehouseName, row.amount, row.account, row.note, row.operatorName,
            row.counted ? QStringLiteral("1") : QStringLiteral("0") });
}

void deleteCashRowsOf(core::Connection &connection, const QString &number)
{
    deleteAndRecalculate(connection, QStringLiteral("gl_djh=?"), { number });
}

void deleteCashRowsMentioning(core::Connection &connection, const QString &number)
{
    deleteAndRecalculate(connection, QStringLiteral("gl_djh=? or xj_note like ?"),
        { number, QLatin1Char('%') + number + QLatin1Char('%') });
}

QString movementPrefix(MovementKind kind)
{
    switch (kind) {
    case MovementKind::Receipt:
        return QStringLiteral("XJ");
    case MovementKind::Payment:
        return QStringLiteral("XC");
    case MovementKind::Transfer:
        break;
    }
    return QStringLiteral("XZ");
}

Result<QString> saveMovement(shell::Session &session, const MovementDraft &draft)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    allowed = validateMovement(session, draft);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    // "单据保存后直接审核": the movement counts at once.
    const bool counted = session.params().flag("cs_shdj");
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const MovementRows old = readMovement(db, draft.number);
        if (!draft.number.isEmpty() && old.ids.isEmpty())
            return core::refuse(session.ui(), texts::documentMissing(draft.number));
        if (old.anyCounted)
            return core::refuse(session.ui(), texts::checkedCannotChange(draft.number));
        const Result<QString> given = numberForDate(
            db, QStringLiteral("jxc_xjyh"), movementPrefix(draft.kind), draft.date, draft.number);
        if (!given)
            return core::refuse(session.ui(), given.message());
        number = given.value();
        QList<CashRow> rows = rowsOf(session, draft, counted);
        for (qsizetype i = 0; i < rows.size(); ++i) {
            rows[i].number = number;
            if (i < old.ids.size())
                rewriteRow(db, old.ids[i], rows[i]);
            else
                appendCashRow(db, rows[i]);
        }
        for (const CashRow &row : rows)
            recalculateCash(db, row.account, row.date);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome checkMovement(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 13);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] { return setCounted(session, number, true); });
}

Outcome uncheckMovement(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 13);
    if (!allowed)
        return allowed;
    const MovementRows rows = readMovement(session.db(), number);
    if (rows.ids.isEmpty())
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (!rows.allCounted)
        return core::refuse(session.ui(), texts::notChecked(number));
    if (!confirmUncheck(session, number))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] { return setCounted(session, number, false); });
}

Outcome checkAllMovements(shell::Session &session)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 13);
    if (!allowed)
        return allowed;
    if (!session.ui().ask(texts::checkAllQuestion()))
        return Outcome::refused(QString());
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const QString pending = QStringLiteral("xj_chk<>'1' and ") + movementKindsSql;
        const auto accounts = accountsOf(db, pending, movementKinds());
        db.exec(QStringLiteral("update jxc_xjyh set xj_chk='1' where ") + pending, movementKinds());
        for (const auto &[account, date] : accounts)
            recalculateCash(db, account, date);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteMovement(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 7);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const MovementRows rows = readMovement(db, number);
        if (rows.ids.isEmpty())
            return core::refuse(session.ui(), texts::documentMissing(number));
        if (rows.anyCounted)
            return core::refuse(session.ui(), texts::checkedCannotDelete(number));
        db.exec(QStringLiteral("delete from jxc_xjyh where gl_djh=?"), { number });
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::accounts
