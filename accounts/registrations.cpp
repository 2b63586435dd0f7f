#include "accounts/registrations.h"

#include "accounts/cashbook.h"
#include "accounts/documentsupport.h"
#include "accounts/postings.h"
#include "accounts/texts.h"
#include "core/connection.h"
#include "core/lookups.h"
#include "core/numbering.h"
#include "core/numbers.h"
#include "core/operation.h"
#include "core/rounding.h"
#include "core/transaction.h"
#include "shell/session.h"
#include "shell/settings.h"

#include <QSqlRecord>

namespace medistock::accounts {

namespace {

const QString ledgerTable = QStringLiteral("jxc_ysyfk");

// Rights of "往来帐款": saving and checking each kind.
int saveRight(RegistrationKind kind)
{
    static const int rights[] = { 1, 2, 4, 5 };
    return rights[int(kind)];
}

int checkRight(RegistrationKind kind)
{
    static const int rights[] = { 7, 8, 9, 10 };
    return rights[int(kind)];
}

bool isCollection(RegistrationKind kind)
{
    return kind == RegistrationKind::Collection || kind == RegistrationKind::Payment;
}

// A registration as check and uncheck read it.
struct Registration
{
    QString number;
    RegistrationKind kind = RegistrationKind::Collection;
    PartyKind party = PartyKind::Customer;
    QSqlRecord row; // every column of jxc_ysyfk_dj
    QString partyName;
    QString salesmanName;
    bool checked = false;

    double amount(const char *column) const { return row.value(QLatin1String(column)).toDouble(); }
    QString text(const char *column) const { return row.value(QLatin1String(column)).toString(); }
};

std::optional<Registration> readRegistration(core::Connection &connection, const QString &number)
{
    const auto kind = registrationKindFromPrefix(number.left(2));
    if (!kind)
        return std::nullopt;
    const QSqlRecord row = connection.firstRow(
        QStringLiteral("select * from jxc_ysyfk_dj where gl_djh=? order by id limit 1"),
        { number });
    if (row.isEmpty())
        return std::nullopt;
    Registration r { number, *kind, registrationParty(*kind), row, {}, {},
        row.value(QStringLiteral("k_check")).toInt() != 0 };
    r.partyName = partyName(connection, r.party, r.text("k_ghskh"));
    r.salesmanName = employeeName(connection, r.text("u_sn"));
    return r;
}

Outcome validate(shell::Session &session, const RegistrationDraft &draft)
{
    core::Connection &db = session.db();
    const PartyKind party = registrationParty(draft.kind);
    if (!isDateText(draft.date))
        return core::refuse(session.ui(), texts::dateInvalid());
    if (!partyExists(db, party, draft.party))
        return core::refuse(session.ui(), texts::partyMissing(party, draft.party));
    if (!draft.salesman.isEmpty() && !employeeExists(db, draft.salesman))
        return core::refuse(session.ui(), texts::employeeMissing(draft.salesman));
    // Entries may lower a debt as well as raise it: money either way, within the limits.
    const std::pair<QString, double> amounts[] = { { texts::dueField(party), draft.due },
        { texts::paidField(party), draft.paid }, { texts::discountField(), draft.discount },
        { texts::writtenOffField(), draft.changeWrittenOff } };
    for (const auto &[field, value] : amounts) {
        const QString problem = core::numberProblem(field, value, core::NumberKind::SignedAmount);
        if (!problem.isEmpty())
            return core::refuse(session.ui(), problem);
    }
    const bool empty = isCollection(draft.kind) ? draft.paid == 0 && draft.changeWrittenOff == 0
                                                : draft.due == 0 && draft.paid == 0;
    if (empty)
        return core::refuse(session.ui(), texts::amountZero());
    if (draft.paid != 0 && !bankAccountExists(db, draft.account))
        return core::refuse(session.ui(), texts::accountMissing(draft.account));
    if (!draft.number.isEmpty() && !draft.number.startsWith(registrationPrefix(draft.kind)))
        return core::refuse(session.ui(), texts::documentMissing(draft.number));
    return Outcome::done();
}

void writeDraft(
    shell::Session &session, const RegistrationDraft &draft, const QString &number, bool replace)
{
    core::Connection &db = session.db();
    const QString salesman
        = draft.salesman.isEmpty() ? core::defaultEmployeeCode(db) : draft.salesman;
    const QString prefix = registrationPrefix(draft.kind);
    QVariantList values { number, draft.date, draft.account, draft.due, draft.paid, draft.discount,
        draft.changeWrittenOff, partyKindCode(registrationParty(draft.kind)), prefix,
        texts::registrationText(draft.kind), draft.link, cleanNote(draft.note), salesman,
        session.user().name, draft.party };
    if (replace) {
        values.append(draft.number);
        db.exec(QStringLiteral("update jxc_ysyfk_dj set gl_djh=?,k_rq=?,k_fkfs=?,k_yfje=?,"
                               "k_sfje=?,k_yhje=?,k_mlje=?,k_type=?,k_djlx=?,k_djtxt=?,gl_djh2=?,"
                               "k_note=?,u_sn=?,a_name=?,k_ghskh=? where gl_djh=?"),
            values);
        return;
    }
    db.insert(QStringLiteral("insert into jxc_ysyfk_dj (gl_djh,k_rq,k_fkfs,k_yfje,k_sfje,k_yhje,"
                             "k_mlje,k_type,k_djlx,k_djtxt,gl_djh2,k_note,u_sn,a_name,k_ghskh,"
                             "k_qcje,k_ljje,k_flag,k_check,k_checker,k_chkrq) values "
                             "(?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,0,0,1,0,'','')"),
        values);
}

// Step 3: the registration's own ledger row, carrying the balance as of its date.
double appendLedgerRow(core::Connection &connection, const Registration &r)
{
    const QString date = r.text("k_rq");
    const double balance = ledgerBalanceAsOf(connection, r.party, r.text("k_ghskh"), date)
        + r.amount("k_qcje") + r.amount("k_yfje") - r.amount("k_sfje");
    connection.insert(
        QStringLiteral("insert into jxc_ysyfk (k_ghskh,a_name,u_sn,k_fkfs,k_sfje,k_yhje,k_qcje,"
                       "k_yfje,k_type,k_djlx,k_djtxt,k_note,k_flag,gl_djh2,k_rq,gl_djh,k_ljje) "
                       "values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"),
        { r.text("k_ghskh"), r.text("a_name"), r.text("u_sn"), r.text("k_fkfs"), r.amount("k_sfje"),
            r.amount("k_yhje"), r.amount("k_qcje"), r.amount("k_yfje"), r.text("k_type"),
            r.text("k_djlx"), r.text("k_djtxt"), r.text("k_note"),
            r.row.value(QStringLiteral("k_flag")), r.text("gl_djh2"), date, r.number, balance });
    return balance;
}

// Step 4: the written-off change lowers the debt under a number of its own, and the goods
// journal gets a discount line so that statistics see it.
Outcome appendWrittenOffChange(shell::Session &session, const Registration &r, double balance)
{
    core::Connection &db = session.db();
    const double change = r.amount("k_mlje");
    const QString date = r.text("k_rq");
    const bool customer = r.party == PartyKind::Customer;
    const Result<QString> number = core::nextDocumentNumber(db, ledgerTable,
        QStringLiteral("gl_djh"), customer ? QStringLiteral("YS") : QStringLiteral("YF"),
        QDate::fromString(date.left(10), QStringLiteral("yyyy-MM-dd")));
    if (!number)
        return core::refuse(session.ui(), number.message());
    const QString note = texts::writtenOffNote(r.party) + r.text("k_note");
    db.insert(QStringLiteral("insert into jxc_ysyfk (k_ghskh,a_name,u_sn,k_fkfs,k_sfje,k_yhje,"
                             "k_qcje,k_yfje,k_type,k_djlx,k_djtxt,k_note,k_flag,gl_djh2,k_rq,"
                             "gl_djh,k_ljje) values (?,?,?,?,0,0,0,?,?,?,?,?,1,?,?,?,?)"),
        { r.text("k_ghskh"), session.user().name, r.text("u_sn"), texts::writtenOffAccount(r.party),
            -change, partyKindCode(r.party), customer ? QStringLiteral("YS") : QStringLiteral("YF"),
            texts::writtenOffText(r.party), note, r.number, date, number.value(),
            balance - change });
    db.insert(QStringLiteral("insert into jxc_goodslist (gl_flag,gl_djh,gl_djh2,gl_kdrq,g_sn,"
                             "g_name,g_jm,gl_dj,gl_sl,gl_zje,gl_je,gl_lr,gl_checker,gl_chkrq,"
                             "gl_note,u_name,a_name,ghs_sn,ghs_name) values "
                             "(?,?,?,?,'00000000',?,'YHSP',0,0,?,?,?,?,?,?,?,?,?,?)"),
        { customer ? QStringLiteral("xs") : QStringLiteral("cj"), r.number, number.value(), date,
            texts::discountGoodsName(), -change, -change, customer ? -change : 0.0,
            session.user().name, session.today(), note, r.salesmanName, session.user().name,
            r.text("k_ghskh"), r.partyName });
    return Outcome::done();
}

// Step 7: the money itself, into (collections) or out of (payments) the account.
void appendCashRow(shell::Session &session, const Registration &r)
{
    const double paid = r.amount("k_sfje");
    if (paid == 0)
        return;
    CashRow row;
    row.number = r.number;
    row.date = r.text("k_rq");
    row.kind = texts::registrationCashKind(r.party);
    row.amount = r.party == PartyKind::Customer ? paid : -paid;
    row.account = r.text("k_fkfs");
    row.salesmanName = r.salesmanName;
    row.partyCode = r.text("k_ghskh");
    row.partyName = r.partyName;
    row.note = r.text("k_note");
    row.operatorName = session.user().name;
    accounts::appendCashRow(session.db(), row);
    recalculateCash(session.db(), row.account, row.date);
}

QString loggedAmount(const Registration &r)
{
    return core::plainNumber(isCollection(r.kind) ? r.amount("k_sfje") : r.amount("k_yfje"));
}

Outcome post(shell::Session &session, const Registration &r)
{
    core::Connection &db = session.db();
    const double balance = appendLedgerRow(db, r);
    if (r.amount("k_mlje") != 0) {
        const Outcome written = appendWrittenOffChange(session, r, balance);
        if (!written)
            return written;
    }
    recalculateLedger(db, r.party, r.text("k_ghskh"), r.text("k_rq"));
    db.exec(QStringLiteral("update jxc_ysyfk_dj set k_check=1,k_checker=?,k_chkrq=? where "
                           "gl_djh=?"),
        { session.user().name, session.today(), r.number });
    appendCashRow(session, r);
    session.log(texts::registrationCheckedLog(r.kind, r.partyName, loggedAmount(r)));
    return Outcome::done();
}

// A checked registration's postings follow its new date: the ledger rows (its written-off row
// too), its journal line and its cash row, each book recalculated from the earlier date.
void moveCheckedRows(
    core::Connection &db, const Registration &r, const QString &date, const QString &from)
{
    db.exec(QStringLiteral("update jxc_ysyfk set k_rq=? where gl_djh=? or gl_djh2=?"),
        { date, r.number, r.number });
    db.exec(
        QStringLiteral("update jxc_goodslist set gl_kdrq=? where gl_djh=?"), { date, r.number });
    QStringList cashAccounts;
    for (const QSqlRecord &row : db.rows(
             QStringLiteral("select distinct xj_kmmc from jxc_xjyh where gl_djh=?"), { r.number }))
        cashAccounts.append(row.value(0).toString());
    db.exec(QStringLiteral("update jxc_xjyh set xj_rq=? where gl_djh=?"), { date, r.number });
    recalculateLedger(db, r.party, r.text("k_ghskh"), from);
    for (const QString &account : cashAccounts)
        recalculateCash(db, account, from);
}

// The status read again inside the transaction: another workstation may have got there first.
bool checkedNow(core::Connection &connection, const QString &number)
{
    return connection.exists(
        QStringLiteral("select id from jxc_ysyfk_dj where gl_djh=? and k_check<>0"), { number });
}

} // namespace

QString registrationPrefix(RegistrationKind kind)
{
    static const char *const prefixes[] = { "YS", "SK", "YF", "FK" };
    return QLatin1String(prefixes[int(kind)]);
}

std::optional<RegistrationKind> registrationKindFromPrefix(const QString &prefix)
{
    for (RegistrationKind kind : { RegistrationKind::Receivable, RegistrationKind::Collection,
             RegistrationKind::Payable, RegistrationKind::Payment })
        if (registrationPrefix(kind) == prefix)
            return kind;
    return std::nullopt;
}

PartyKind registrationParty(RegistrationKind kind)
{
    return kind == RegistrationKind::Receivable || kind == RegistrationKind::Collection
        ? PartyKind::Customer
        : PartyKind::Supplier;
}

Result<QString> saveRegistration(shell::Session &session, const RegistrationDraft &draft)
{
    Outcome allowed = shell::requireRight(session, "wlzk", saveRight(draft.kind));
    if (!allowed)
        return allowed;
    allowed = validate(session, draft);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const bool replace = !draft.number.isEmpty();
        if (replace && !readRegistration(db, draft.number))
            return core::refuse(session.ui(), texts::documentMissing(draft.number));
        if (replace && checkedNow(db, draft.number))
            return core::refuse(session.ui(), texts::checkedCannotChange(draft.number));
        const Result<QString> given = numberForDate(
            db, ledgerTable, registrationPrefix(draft.kind), draft.date, draft.number);
        if (!given)
            return core::refuse(session.ui(), given.message());
        number = given.value();
        writeDraft(session, draft, number, replace);
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome checkRegistration(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const auto found = readRegistration(db, number);
    if (!found)
        return core::refuse(session.ui(), texts::documentMissing(number));
    const Outcome allowed = shell::requireRight(session, "wlzk", checkRight(found->kind));
    if (!allowed)
        return allowed;
    if (found->checked)
        return core::refuse(session.ui(), texts::alreadyChecked(number));
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const auto r = readRegistration(db, number);
        if (!r || r->checked)
            return core::refuse(session.ui(), texts::alreadyChecked(number));
        const Outcome posted = post(session, *r);
        if (!posted)
            return posted;
        transaction.commit();
        return Outcome::done();
    });
}

Outcome uncheckRegistration(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const auto found = readRegistration(db, number);
    if (!found)
        return core::refuse(session.ui(), texts::documentMissing(number));
    Outcome allowed = shell::requireRight(session, "wlzk", checkRight(found->kind));
    if (!allowed)
        return allowed;
    if (!found->checked)
        return core::refuse(session.ui(), texts::notChecked(number));
    allowed = requireChecker(session, number, found->text("k_checker"));
    if (!allowed)
        return allowed;
    if (!confirmUncheck(session, number))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (!checkedNow(db, number))
            return core::refuse(session.ui(), texts::notChecked(number));
        removeJournalRows(session, number);
        deleteCashRowsOf(db, number);
        removeLedgerRows(session, number);
        db.exec(QStringLiteral("update jxc_ysyfk_dj set k_check=0,k_checker='',k_chkrq='' where "
                               "gl_djh=?"),
            { number });
        session.log(
            texts::registrationUncheckedLog(found->kind, found->partyName, loggedAmount(*found)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteRegistration(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const auto found = readRegistration(db, number);
    if (!found)
        return core::refuse(session.ui(), texts::documentMissing(number));
    const Outcome allowed = shell::requireRight(session, "wlzk", saveRight(found->kind));
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        if (checkedNow(db, number))
            return core::refuse(session.ui(), texts::checkedCannotDelete(number));
        db.exec(QStringLiteral("delete from jxc_ysyfk_dj where gl_djh=?"), { number });
        transaction.commit();
        return Outcome::done();
    });
}

Outcome changeRegistrationDate(shell::Session &session, const QString &number, const QString &date)
{
    if (!isDateText(date))
        return core::refuse(session.ui(), texts::dateInvalid());
    core::Connection &db = session.db();
    if (!readRegistration(db, number))
        return core::refuse(session.ui(), texts::documentMissing(number));
    const Outcome allowed = shell::requireRight(session, "wlzk", 11);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const auto r = readRegistration(db, number);
        if (!r)
            return core::refuse(session.ui(), texts::documentMissing(number));
        const QString old = r->text("k_rq");
        db.exec(QStringLiteral("update jxc_ysyfk_dj set k_rq=? where gl_djh=?"), { date, number });
        if (r->checked)
            moveCheckedRows(db, *r, date, std::min(old, date));
        session.log(texts::registrationDateChangedLog(number, old, date));
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::accounts
