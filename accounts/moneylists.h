#pragma once

#include "accounts/expenses.h"
#include "accounts/ledger.h"
#include "accounts/registrations.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace medistock::core {
class Connection;
}

// The read-only lists of the money screens: registrations, each party's balance and ledger, the
// written-off change, the invoice register, the cash and bank book and the expenses and income.
// Rows come typed and in the books' own order (date, then id), so a running balance reads down.
namespace medistock::accounts {

// What every list filters by; an empty text is no restriction.
struct MoneyFilter
{
    QString from {}; // "yyyy-MM-dd"
    QString to {}; // "yyyy-MM-dd", the whole day included
    QString party {}; // a customer's or supplier's code
    QString account {}; // a cash or bank account's name
    std::optional<bool> checked {}; // checked (counted) only, unchecked only, or both
};

struct RegistrationRow
{
    QString number;
    QString date;
    QString party;
    QString partyName;
    double due = 0; // k_yfje
    double paid = 0; // k_sfje
    double discount = 0; // k_yhje
    double writtenOff = 0; // k_mlje
    QString account; // k_fkfs
    QString salesman; // u_sn
    QString salesmanName;
    QString link; // gl_djh2
    QString note;
    bool checked = false;
    QString checker;
    QString checkDate;
};
// The registrations of one kind dated in the range, by date and id.
QList<RegistrationRow> listRegistrations(
    core::Connection &connection, RegistrationKind kind, const MoneyFilter &filter);

// A party with the balance its master record keeps (kh_lwje / ghs_lwje).
struct PartyBalance
{
    QString party;
    QString name;
    double balance = 0;
};
// The parties of the kind whose code, name or mnemonic holds `text`, by code; with `owingOnly`
// only those whose balance is not 0.
QList<PartyBalance> partyBalances(
    core::Connection &connection, PartyKind kind, const QString &text, bool owingOnly);

struct LedgerRow
{
    qint64 id = 0;
    QString date;
    QString number; // gl_djh
    QString text; // k_djtxt
    QString party;
    QString partyName;
    double opening = 0; // k_qcje
    double due = 0; // k_yfje
    double paid = 0; // k_sfje
    double discount = 0; // k_yhje
    double balance = 0; // k_ljje
    QString account; // k_fkfs
    QString link; // gl_djh2
    QString note;
    QString operatorName;
    QString salesmanName; // u_name of the row's u_sn
};
// The party's ledger rows in the range (every party when the filter names none), in ledger order.
QList<LedgerRow> ledgerRows(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter);
// The rows that wrote off small change ("增加应收款(抹零)" / "增加应付款(抹零)") in the range;
// `due` holds the amount written off, as a negative figure.
QList<LedgerRow> writtenOffRows(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter);

struct InvoiceRow
{
    qint64 id = 0;
    QString number; // gl_djh
    QString date; // fp_rq
    QString party;
    QString partyName;
    QString text; // fp_djtxt
    double opening = 0; // fp_qcje
    double due = 0; // fp_yfje: to be invoiced
    double invoiced = 0; // fp_kpje
    double balance = 0; // fp_ljje
    QString invoiceNumber; // fp_no
    QString invoiceDate; // fp_kprq
    QString salesman; // u_sn
    QString note;
    bool counted = false; // fp_check<>0
};
// The register's rows of the kind in the range: counted ones in ledger order, or (checked false)
// the set-aside ones newest first.
QList<InvoiceRow> invoiceRows(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter);

// "发票汇总": per party not forbidden, the balance still to be invoiced before the range
// ("期初应开", from the last counted row before it), what the range added and invoiced, and what
// remains: opening + due - invoiced. Parties with neither an opening nor a row in the range are
// left out; by party code.
struct InvoiceSummary
{
    QString party;
    QString partyName;
    double opening = 0;
    double due = 0;
    double invoiced = 0;
    double outstanding = 0;
};
QList<InvoiceSummary> invoiceSummary(
    core::Connection &connection, PartyKind kind, const MoneyFilter &filter);

struct CashMovement
{
    qint64 id = 0;
    QString number;
    QString date;
    QString kind; // xj_dlx
    QString account; // xj_kmmc
    double amount = 0; // signed: money out below 0
    double balance = 0; // xj_ljje, of counted rows
    QString partyName;
    QString salesmanName;
    QString note;
    bool counted = false;
};
// The movements of the account (of every account when none is named) in the range, by date, id.
QList<CashMovement> cashMovements(core::Connection &connection, const MoneyFilter &filter);

struct ExpenseRow
{
    QString number;
    QString date;
    ExpenseKind kind = ExpenseKind::Expense;
    QString flag; // fy_flag as stored ("费用", "收入", or the automatic rows' "1"/"2")
    QString type; // fy_lx
    double amount = 0;
    QString account;
    QString department; // de_sn
    QString departmentName;
    QString salesman; // u_sn
    QString salesmanName;
    QString note;
    bool checked = false;
};
// Expenses and income in the range (one kind, or both when none is given), by date and number;
// the automatic fee rows of document checks are expenses.
QList<ExpenseRow> listExpenses(
    core::Connection &connection, std::optional<ExpenseKind> kind, const MoneyFilter &filter);
// The names of the expense and income types, in their order.
QStringList expenseTypeNames(core::Connection &connection);

} // namespace medistock::accounts
