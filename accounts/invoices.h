#pragma once

#include "accounts/ledger.h"
#include "core/outcome.h"

#include <QDate>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// The invoice register jxc_fpdjb: per party, what checked business still has to be invoiced.
// Only counted rows (fp_check<>0) enter the balance: fp_qcje + fp_yfje - fp_kpje.

// Balance after the party's last counted row dated on or before `date` (and with a smaller id when
// beforeId is not 0); 0 when none.
double invoiceBalanceAsOf(core::Connection &connection, PartyKind kind, const QString &party,
    const QString &date, qint64 beforeId = 0);
// Balance after the party's latest counted row; 0 when none.
double currentInvoiceBalance(core::Connection &connection, PartyKind kind, const QString &party);
// Rewrites fp_ljje of the party's counted rows from `date` on; no party figure changes. Inside the
// caller's transaction.
double recalculateInvoices(
    core::Connection &connection, PartyKind kind, const QString &party, const QString &date);
// "重新计算发票数据": asks, then recalculates every party of the kind (or `party`) from `from`.
Outcome recalculateAllInvoices(
    shell::Session &session, PartyKind kind, const QString &party, QDate from);

// An invoicing row ("增加发票"): what was invoiced to or by a party.
struct InvoicingDraft
{
    PartyKind kind = PartyKind::Customer;
    QString party;
    QString salesman; // u_sn; the default employee when empty
    QString date; // fp_rq "yyyy-MM-dd"
    double amount = 0; // fp_kpje
    QString invoiceNumber; // fp_no
    QString invoiceDate; // fp_kprq; the row's date when empty
    QString note;
};
// Appends the row under a new "XP" (customers) or "CP" (suppliers) number, counted at once when
// "单据保存后直接审核" (cs_shdj) is on, recalculates and logs "增加开票"; returns the number.
Result<QString> addInvoicing(shell::Session &session, const InvoicingDraft &draft);
// Rewrites an invoicing row (party, operator, salesman, amount, invoice number, date, note),
// recalculates the parties concerned and logs "修改开票".
Outcome changeInvoicing(shell::Session &session, qint64 id, const InvoicingDraft &draft);

// "发票登记": the invoice written onto a document's row.
struct InvoiceEntry
{
    QString invoiceNumber; // fp_no
    double amount = 0; // fp_kpje
    QString invoiceDate; // fp_kprq
    QString note; // fp_note
};
Outcome registerInvoice(
    shell::Session &session, const QString &documentNumber, const InvoiceEntry &entry);
// Asks, then takes the row out of the balance (fp_check 0) and recalculates its party.
Outcome setAsideInvoiceRow(shell::Session &session, qint64 id);
// Counts the set-aside rows of the number again (fp_check 1, checker, today) and recalculates.
Outcome takeBackInvoiceRows(shell::Session &session, const QString &number);
// Asks, then counts every set-aside row of the kind.
Outcome checkAllInvoiceRows(shell::Session &session, PartyKind kind);
// Deletes one row and recalculates its party.
Outcome deleteInvoiceRow(shell::Session &session, qint64 id);

} // namespace medistock::accounts
