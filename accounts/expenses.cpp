#include "accounts/expenses.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/lookups.h"
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

const QString expenseTable = QStringLiteral("jxc_yyfy");

struct Expense
{
    QString number;
    ExpenseKind kind = ExpenseKind::Expense;
    QString date;
    double amount = 0;
    QString account;
    QString salesmanName;
    QString note;
    bool checked = false;
};

// The document with its salesman and department, as the check reads it: one without both is
// not found.
std::optional<Expense> readExpense(core::Connection &connection, const QString &number)
{
    const auto kind = expenseKindFromPrefix(number.left(2));
    if (!kind)
        return std::nullopt;
    const QSqlRecord row = connection.firstRow(
        QStringLiteral("select a.fy_rq,a.fy_je,a.fy_kmmc,b.u_name,a.fy_note,a.fy_chk from "
                       "jxc_yyfy a,jxc_user b,jxc_dept c where a.u_sn=b.u_sn and a.de_sn=c.de_sn "
                       "and a.gl_djh=? order by a.id limit 1"),
        { number });
    if (row.isEmpty())
        return std::nullopt;
    return Expense { number, *kind, row.value(0).toString(), row.value(1).toDouble(),
        row.value(2).toString(), row.value(3).toString(), row.value(4).toString(),
        row.value(5).toString() == QLatin1String("1") };
}

bool checkedNow(core::Connection &connection, const QString &number)
{
    return connection.exists(
        QStringLiteral("select id from jxc_yyfy where gl_djh=? and fy_chk='1'"), { number });
}

bool typeExists(core::Connection &connection, const QString &name, qint64 exceptId)
{
    return connection.exists(
        QStringLiteral("select fy_lx from jxc_fylx where fy_lx=? and id<>?"), { name, exceptId });
}

bool departmentExists(core::Connection &connection, const QString &code)
{
    return connection.exists(QStringLiteral("select id from jxc_dept where de_sn=?"), { code });
}

QString departmentOf(const ExpenseDraft &draft)
{
    return draft.department.isEmpty() ? texts::defaultDepartment() : draft.department;
}

Outcome validate(shell::Session &session, const ExpenseDraft &draft)
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
    if (!typeExists(db, draft.type, 0))
        return core::refuse(session.ui(), texts::expenseTypeMissing(draft.type));
    if (!draft.salesman.isEmpty() && !employeeExists(db, draft.salesman))
        return core::refuse(session.ui(), texts::employeeMissing(draft.salesman));
    if (!departmentExists(db, departmentOf(draft)))
        return core::refuse(session.ui(), texts::departmentMissing(departmentOf(draft)));
    if (draft.account != noAccountName() && !bankAccountExists(db, draft.account))
        return core::refuse(session.ui(), texts::accountMissing(draft.account));
    if (!draft.number.isEmpty() && !draft.number.startsWith(expensePrefix(draft.kind)))
        return core::refuse(session.ui(), texts::documentMissing(draft.number));
    return Outcome::done();
}

void writeDraft(shell::Session &session, const ExpenseDraft &draft, const QString &number)
{
    core::Connection &db = session.db();
    const QString salesman
        = draft.salesman.isEmpty() ? core::defaultEmployeeCode(db) : draft.salesman;
    QVariantList values { draft.date, number, draft.type, draft.amount,
        texts::expenseFlag(draft.kind), salesman, departmentOf(draft), draft.account,
        cleanNote(draft.note), session.user().name };
    if (!draft.number.isEmpty()) {
        values.append(draft.number);
        db.exec(QStringLiteral("update jxc_yyfy set fy_rq=?,gl_djh=?,fy_lx=?,fy_je=?,fy_flag=?,"
                               "u_sn=?,de_sn=?,fy_kmmc=?,fy_note=?,a_name=? where gl_djh=?"),
            values);
        return;
    }
    db.insert(QStringLiteral("insert into jxc_yyfy (fy_rq,gl_djh,fy_lx,fy_je,fy_flag,u_sn,de_sn,"
                             "fy_kmmc,fy_note,a_name,fy_chk,fy_sc) values "
                             "(?,?,?,?,?,?,?,?,?,?,'0','')"),
        values);
}

// The movement of a checked document: an expense lowers its account, income raises it.
void appendMovement(shell::Session &session, const Expense &e)
{
    CashRow row;
    row.number = e.number;
    row.date = e.date;
    row.kind = texts::expenseCashKind(e.kind);
    row.amount = e.kind == ExpenseKind::Expense ? -e.amount : e.amount;
    row.account = e.account;
    row.salesmanName = e.salesmanName;
    row.note = e.note;
    row.operatorName = session.user().name;
    appendCashRow(session.db(), row);
    recalculateCash(session.db(), row.account, row.date);
}

Outcome checkTypeName(shell::Session &session, const QString &name, qint64 exceptId)
{
    if (name.isEmpty())
        return core::refuse(session.ui(), texts::expenseTypeRequired());
    if (typeExists(session.db(), name, exceptId))
        return core::refuse(session.ui(), texts::expenseTypeTaken(name));
    return Outcome::done();
}

} // namespace

QString expensePrefix(ExpenseKind kind)
{
    return kind == ExpenseKind::Expense ? QStringLiteral("FY") : QStringLiteral("SR");
}

std::optional<ExpenseKind> expenseKindFromPrefix(const QString &prefix)
{
    if (prefix == QLatin1String("FY"))
        return ExpenseKind::Expense;
    if (prefix == QLatin1String("SR"))
        return ExpenseKind::Income;
    return std::nullopt;
}

Result<QString> saveExpense(shell::Session &session, const ExpenseDraft &draft)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 6);
    if (!allowed)
        return allowed;
    allowed = validate(session, draft);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (!draft.number.isEmpty()
            && !db.exists(
                QStringLiteral("select id from jxc_yyfy where gl_djh=?"), { draft.number }))
            return core::refuse(session.ui(), texts::documentMissing(draft.number));
        if (!draft.number.isEmpty() && checkedNow(db, draft.number))
            return core::refuse(session.ui(), texts::checkedCannotChange(draft.number));
        const Result<QString> given
            = numberForDate(db, expenseTable, expensePrefix(draft.kind), draft.date, draft.number);
        if (!given)
            return core::refuse(session.ui(), given.message());
        number = given.value();
        writeDraft(session, draft, number);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome checkExpense(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 12);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const auto found = readExpense(db, number);
    if (!found)
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (found->checked)
        return core::refuse(session.ui(), texts::alreadyChecked(number));
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const auto e = readExpense(db, number);
        if (!e || e->checked)
            return core::refuse(session.ui(), texts::alreadyChecked(number));
        db.exec(QStringLiteral("update jxc_yyfy set fy_chk='1' where gl_djh=?"), { number });
        if (e->account != noAccountName())
            appendMovement(session, *e);
        session.log(texts::expenseCheckedLog(e->kind, number, core::plainNumber(e->amount)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome uncheckExpense(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 12);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const auto found = readExpense(db, number);
    if (!found)
        return core::refuse(session.ui(), texts::documentMissing(number));
    if (!found->checked)
        return core::refuse(session.ui(), texts::notChecked(number));
    if (!confirmUncheck(session, number))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (!checkedNow(db, number))
            return core::refuse(session.ui(), texts::notChecked(number));
        db.exec(QStringLiteral("update jxc_yyfy set fy_chk='0' where gl_djh=?"), { number });
        if (found->account != noAccountName())
            deleteCashRowsOf(db, number);
        session.log(
            texts::expenseUncheckedLog(found->kind, number, core::plainNumber(found->amount)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteExpense(shell::Session &session, const QString &number)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 6);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    if (!expenseKindFromPrefix(number.left(2))
        || !db.exists(QStringLiteral("select id from jxc_yyfy where gl_djh=?"), { number }))
        return core::refuse(session.ui(), texts::documentMissing(number));
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (checkedNow(db, number))
            return core::refuse(session.ui(), texts::checkedCannotDelete(number));
        db.exec(QStringLiteral("delete from jxc_yyfy where gl_djh=?"), { number });
        transaction.commit();
        return Outcome::done();
    });
}

Result<qint64> addExpenseType(
    shell::Session &session, const QString &name, const QString &note, int direction)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 6);
    if (!allowed)
        return allowed;
    const QString clean = core::cleanText(name.trimmed());
    allowed = checkTypeName(session, clean, 0);
    if (!allowed)
        return allowed;
    qint64 id = 0;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        id = session.db().insert(
            QStringLiteral("insert into jxc_fylx (fy_lx,fy_note,fy_fx) values (?,?,?)"),
            { clean, cleanNote(note), direction });
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return id;
}

Outcome changeExpenseType(
    shell::Session &session, qint64 id, const QString &name, const QString &note, int direction)
{
    Outcome allowed = shell::requireRight(session, "rcgl", 6);
    if (!allowed)
        return allowed;
    const QString clean = core::cleanText(name.trimmed());
    allowed = checkTypeName(session, clean, id);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(session.db());
        if (session.db().exec(
                QStringLiteral("update jxc_fylx set fy_lx=?,fy_note=?,fy_fx=? where id=?"),
                { clean, cleanNote(note), direction, id })
            == 0)
            return core::refuse(session.ui(), texts::expenseTypeMissing(clean));
        transaction.commit();
        return Outcome::done();
    });
}

Result<QString> addDepartment(shell::Session &session, const QString &name)
{
    const Outcome allowed = shell::requireRight(session, "rcgl", 6);
    if (!allowed)
        return allowed;
    const QString clean = core::cleanText(name.trimmed());
    core::Connection &db = session.db();
    if (clean.isEmpty())
        return core::refuse(session.ui(), texts::departmentRequired());
    if (db.exists(QStringLiteral("select id from jxc_dept where de_name=?"), { clean }))
        return core::refuse(session.ui(), texts::departmentTaken(clean));
    QString code;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const Result<QString> next
            = core::nextMasterCode(db, QStringLiteral("jxc_dept"), QStringLiteral("de_sn"));
        if (!next)
            return core::refuse(session.ui(), next.message());
        code = next.value();
        db.insert(
            QStringLiteral("insert into jxc_dept (de_sn,de_name) values (?,?)"), { code, clean });
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return code;
}

} // namespace medistock::accounts
