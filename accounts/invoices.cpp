#include "accounts/invoices.h"

#include "accounts/documentsupport.h"
#include "accounts/runningbalance.h"
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

#include <QSqlQuery>
#include <QSqlRecord>

namespace medistock::accounts {

namespace {

QVariantList chainOf(PartyKind kind, const QString &party)
{
    return { partyKindCode(kind), party };
}

// "进货发票管理" / "销售发票管理", and their checking rights.
Outcome requireManaging(shell::Session &session, PartyKind kind)
{
    return shell::requireRight(session, "wlzk", kind == PartyKind::Customer ? 13 : 12);
}

Outcome requireChecking(shell::Session &session, PartyKind kind)
{
    return shell::requireRight(session, "wlzk", kind == PartyKind::Customer ? 15 : 14);
}

struct InvoiceRow
{
    qint64 id = 0;
    PartyKind kind = PartyKind::Customer;
    QString party;
    QString date;
    bool counted = false;
    bool invoicing = false; // an "增加发票" row rather than a document's
};

std::optional<InvoiceRow> readRow(
    core::Connection &connection, const QString &where, const QVariant &key)
{
    const QSqlRecord row = connection.firstRow(
        QStringLiteral("select id,fp_type,fp_ghskh,fp_rq,fp_check,fp_djtxt from jxc_fpdjb where ")
            + where + QStringLiteral(" order by id limit 1"),
        { key });
    if (row.isEmpty())
        return std::nullopt;
    const auto kind = partyKindFromCode(row.value(1).toString());
    return InvoiceRow { row.value(0).toLongLong(), kind.value_or(PartyKind::Customer),
        row.value(2).toString(), row.value(3).toString(), row.value(4).toInt() != 0,
        row.value(5).toString() == texts::invoicingText() };
}

Outcome validateDraft(shell::Session &session, const InvoicingDraft &draft)
{
    core::Connection &db = session.db();
    if (!partyExists(db, draft.kind, draft.party))
        return core::refuse(session.ui(), texts::partyMissing(draft.kind, draft.party));
    if (!isDateText(draft.date) || !(draft.invoiceDate.isEmpty() || isDateText(draft.invoiceDate)))
        return core::refuse(session.ui(), texts::dateInvalid());
    if (draft.amount == 0)
        return core::refuse(session.ui(), texts::amountZero());
    // A red invoice takes an amount back: money either way.
    const QString problem = core::numberProblem(
        texts::invoiceAmountField(), draft.amount, core::NumberKind::SignedAmount);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    if (!draft.salesman.isEmpty() && !employeeExists(db, draft.salesman))
        return core::refuse(session.ui(), texts::employeeMissing(draft.salesman));
    return Outcome::done();
}

QString salesmanOf(core::Connection &connection, const InvoicingDraft &draft)
{
    return draft.salesman.isEmpty() ? core::defaultEmployeeCode(connection) : draft.salesman;
}

QString invoiceDateOf(const InvoicingDraft &draft)
{
    return draft.invoiceDate.isEmpty() ? draft.date : draft.invoiceDate;
}

} // namespace

double invoiceBalanceAsOf(core::Connection &connection, PartyKind kind, const QString &party,
    const QString &date, qint64 beforeId)
{
    return balanceAsOf(connection, invoiceBook(), chainOf(kind, party), date, beforeId);
}

double currentInvoiceBalance(core::Connection &connection, PartyKind kind, const QString &party)
{
    return lastBalance(connection, invoiceBook(), chainOf(kind, party));
}

double recalculateInvoices(
    core::Connection &connection, PartyKind kind, const QString &party, const QString &date)
{
    return rerunFrom(connection, invoiceBook(), chainOf(kind, party), date);
}

Outcome recalculateAllInvoices(
    shell::Session &session, PartyKind kind, const QString &party, QDate from)
{
    core::Connection &db = session.db();
    if (!from.isValid())
        return core::refuse(session.ui(), texts::dateInvalid());
    if (!party.isEmpty() && !partyExists(db, kind, party))
        return core::refuse(session.ui(), texts::partyMissing(kind, party));
    const QString name = party.isEmpty() ? QString() : partyName(db, kind, party);
    if (!session.ui().ask(texts::invoiceRecalcQuestion(kind, name)))
        return Outcome::refused(QString());
    const QString date = from.toString(QStringLiteral("yyyy-MM-dd"));
    const QString table
        = kind == PartyKind::Customer ? QStringLiteral("jxc_khxx") : QStringLiteral("jxc_ghsxx");
    const QString code
        = kind == PartyKind::Customer ? QStringLiteral("kh_sn") : QStringLiteral("ghs_sn");
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        QStringList parties;
        db.forEach(
            QStringLiteral("select %1 from %2 where (?='' or %1=?) order by id").arg(code, table),
            { party, party }, [&](const QSqlQuery &q) { parties.append(q.value(0).toString()); });
        for (const QString &each : parties)
            recalculateInvoices(db, kind, each, date);
        transaction.commit();
        return Outcome::done();
    });
    if (outcome)
        session.ui().inform(texts::invoiceRecalcDone());
    return outcome;
}

Result<QString> addInvoicing(shell::Session &session, const InvoicingDraft &draft)
{
    Outcome allowed = requireManaging(session, draft.kind);
    if (!allowed)
        return allowed;
    allowed = validateDraft(session, draft);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    const bool counted = session.params().flag("cs_shdj");
    const QString prefix
        = draft.kind == PartyKind::Customer ? QStringLiteral("XP") : QStringLiteral("CP");
    QString number;
    const Outcome outcome = core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const Result<QString> next
            = numberForDate(db, QStringLiteral("jxc_fpdjb"), prefix, draft.date, QString());
        if (!next)
            return core::refuse(session.ui(), next.message());
        number = next.value();
        db.insert(QStringLiteral(
                      "insert into jxc_fpdjb (gl_djh,fp_rq,fp_no,fp_yfje,fp_sfje,fp_kpje,fp_qcje,"
                      "fp_ljje,fp_flag,fp_type,fp_djlx,fp_djtxt,fp_note,fp_ghskh,fp_check,"
                      "fp_checker,fp_chkrq,fp_kprq,u_sn,a_name) values "
                      "(?,?,?,0,0,?,0,0,1,?,?,?,?,?,?,?,?,?,?,?)"),
            { number, draft.date, draft.invoiceNumber, draft.amount, partyKindCode(draft.kind),
                prefix, texts::invoicingText(), cleanNote(draft.note), draft.party, counted ? 1 : 0,
                counted ? session.user().name : QString(), counted ? draft.date : QString(),
                invoiceDateOf(draft), salesmanOf(db, draft), session.user().name });
        recalculateInvoices(db, draft.kind, draft.party, draft.date);
        session.log(texts::invoicingAddedLog(
            draft.kind, partyName(db, draft.kind, draft.party), core::plainNumber(draft.amount)));
        transaction.commit();
        return Outcome::done();
    });
    if (!outcome)
        return outcome;
    return number;
}

Outcome changeInvoicing(shell::Session &session, qint64 id, const InvoicingDraft &draft)
{
    Outcome allowed = requireManaging(session, draft.kind);
    if (!allowed)
        return allowed;
    allowed = validateDraft(session, draft);
    if (!allowed)
        return allowed;
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const auto old = readRow(db, QStringLiteral("id=?"), id);
        if (!old || !old->invoicing || old->kind != draft.kind)
            return core::refuse(session.ui(), texts::invoicingRowMissing());
        db.exec(QStringLiteral("update jxc_fpdjb set fp_ghskh=?,a_name=?,u_sn=?,fp_kpje=?,fp_no=?,"
                               "fp_note=?,fp_kprq=? where id=?"),
            { draft.party, session.user().name, salesmanOf(db, draft), draft.amount,
                draft.invoiceNumber, cleanNote(draft.note), invoiceDateOf(draft), id });
        recalculateInvoices(db, old->kind, old->party, old->date);
        if (draft.party != old->party)
            recalculateInvoices(db, draft.kind, draft.party, old->date);
        session.log(texts::invoicingChangedLog(
            draft.kind, partyName(db, draft.kind, draft.party), core::plainNumber(draft.amount)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome registerInvoice(
    shell::Session &session, const QString &documentNumber, const InvoiceEntry &entry)
{
    core::Connection &db = session.db();
    const auto row = readRow(db, QStringLiteral("gl_djh=?"), documentNumber);
    if (!row)
        return core::refuse(session.ui(), texts::documentMissing(documentNumber));
    Outcome allowed = requireManaging(session, row->kind);
    if (!allowed)
        return allowed;
    if (!(entry.invoiceDate.isEmpty() || isDateText(entry.invoiceDate)))
        return core::refuse(session.ui(), texts::dateInvalid());
    const QString problem = core::numberProblem(
        texts::invoiceAmountField(), entry.amount, core::NumberKind::SignedAmount);
    if (!problem.isEmpty())
        return core::refuse(session.ui(), problem);
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        db.exec(
            QStringLiteral("update jxc_fpdjb set fp_no=?,fp_kpje=?,fp_kprq=?,fp_note=? where id=?"),
            { entry.invoiceNumber, entry.amount, entry.invoiceDate, cleanNote(entry.note),
                row->id });
        recalculateInvoices(db, row->kind, row->party, row->date);
        session.log(texts::invoiceRegisteredLog(
            row->kind, partyName(db, row->kind, row->party), core::plainNumber(entry.amount)));
        transaction.commit();
        return Outcome::done();
    });
}

Outcome setAsideInvoiceRow(shell::Session &session, qint64 id)
{
    core::Connection &db = session.db();
    const auto row = readRow(db, QStringLiteral("id=?"), id);
    if (!row)
        return core::refuse(session.ui(), texts::invoicingRowMissing());
    const Outcome allowed = requireManaging(session, row->kind);
    if (!allowed)
        return allowed;
    if (!session.ui().ask(texts::setAsideQuestion()))
        return Outcome::refused(QString());
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        db.exec(
            QStringLiteral("update jxc_fpdjb set fp_check=0,fp_checker='',fp_chkrq='' where id=?"),
            { id });
        recalculateInvoices(db, row->kind, row->party, row->date);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome takeBackInvoiceRows(shell::Session &session, const QString &number)
{
    core::Connection &db = session.db();
    const auto row = readRow(db, QStringLiteral("gl_djh=?"), number);
    if (!row)
        return core::refuse(session.ui(), texts::documentMissing(number));
    const Outcome allowed = requireChecking(session, row->kind);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        const int changed = db.exec(QStringLiteral("update jxc_fpdjb set fp_check=1,fp_checker=?,"
                                                   "fp_chkrq=? where fp_check=0 and gl_djh=?"),
            { session.user().name, session.today(), number });
        if (changed == 0)
            return core::refuse(session.ui(), texts::alreadyChecked(number));
        recalculateInvoices(db, row->kind, row->party, row->date);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome checkAllInvoiceRows(shell::Session &session, PartyKind kind)
{
    const Outcome allowed = requireChecking(session, kind);
    if (!allowed)
        return allowed;
    if (!session.ui().ask(texts::checkAllQuestion()))
        return Outcome::refused(QString());
    core::Connection &db = session.db();
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        QList<QPair<QString, QString>> parties;
        db.forEach(QStringLiteral("select fp_ghskh,min(fp_rq) from jxc_fpdjb where fp_check=0 and "
                                  "fp_type=? group by fp_ghskh"),
            { partyKindCode(kind) }, [&](const QSqlQuery &q) {
                parties.append({ q.value(0).toString(), q.value(1).toString() });
            });
        db.exec(QStringLiteral("update jxc_fpdjb set fp_check=1,fp_checker=?,fp_chkrq=? where "
                               "fp_check=0 and fp_type=?"),
            { session.user().name, session.today(), partyKindCode(kind) });
        for (const auto &[party, date] : parties)
            recalculateInvoices(db, kind, party, date);
        transaction.commit();
        return Outcome::done();
    });
}

Outcome deleteInvoiceRow(shell::Session &session, qint64 id)
{
    core::Connection &db = session.db();
    const auto row = readRow(db, QStringLiteral("id=?"), id);
    if (!row)
        return core::refuse(session.ui(), texts::invoicingRowMissing());
    const Outcome allowed = requireManaging(session, row->kind);
    if (!allowed)
        return allowed;
    return core::guarded(session.ui(), [&] {
        core::Transaction transaction(db);
        db.exec(QStringLiteral("delete from jxc_fpdjb where id=?"), { id });
        recalculateInvoices(db, row->kind, row->party, row->date);
        transaction.commit();
        return Outcome::done();
    });
}

} // namespace medistock::accounts
