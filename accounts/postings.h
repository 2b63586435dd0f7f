#pragma once

#include "accounts/expenses.h"
#include "accounts/ledger.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// Where a document's header keeps its money side. Names are schema columns of `table`; an empty
// name means the document has no such figure.
struct MoneyColumns
{
    const char *table;
    const char *number; // "gl_djh", "j_sn" on purchase receipts
    const char *date;
    const char *party; // "kh_sn" / "ghs_sn"
    const char *salesman; // "u_sn"
    const char *warehouse; // "ck_sn"
    const char *due; // amount due: the ledger's k_yfje
    const char *paid; // amount paid: k_sfje and the cash row
    const char *discount; // k_yhje; empty when the ledger row carries 0
    const char *account; // the cash or bank account of the payment
    const char *note;
    const char *invoiceAmount;
    const char *invoiceNumber;
    const char *freight; // empty when the document carries no fees
    const char *packing;
    const char *freightMode;
    PartyKind partyKind;
    const char *code; // k_djlx / fp_djlx, e.g. "XS"
    const char *text; // k_djtxt / fp_djtxt, e.g. "商品销售单"
    const char *cashKind; // xj_dlx, e.g. "商品销售"
    const char *feeNote; // "销售单" in "销售单<number>产生的运费"; empty without fees
    double cashSign; // +1 when the paid amount as stored comes in, -1 when it goes out
    double ledgerSign; // applied to due and paid as stored, so that what is owed grows by due
    bool cashWhenUnpaid; // the cash row is written even when nothing was paid
    const char *sourceNumber; // the number the document came from, its ledger rows' gl_djh2
};

// Sales ("XS", jxc_lsxsd), customer returns ("XT", jxc_xsthd, amounts stored negative), purchase
// receipts ("CJ", jxc_jhd) and purchase returns ("CT", jxc_thd, amounts stored positive).
const MoneyColumns &saleMoney();
const MoneyColumns &salesReturnMoney();
const MoneyColumns &purchaseReceiptMoney();
const MoneyColumns &purchaseReturnMoney();

// One header's money side as the steps post it; amounts as stored.
struct MoneyHeader
{
    QString number;
    QString date;
    QString party;
    QString partyName;
    QString salesman; // u_sn
    QString salesmanName;
    QString warehouse; // ck_sn
    QString warehouseName;
    QString account;
    QString note;
    double due = 0;
    double paid = 0;
    double discount = 0;
    double invoiceAmount = 0;
    QString invoiceNumber;
    double freight = 0;
    double packing = 0;
    QString freightMode;
    QString sourceNumber; // empty when the document keeps none
};

// Reads the header with its party's, salesman's and warehouse's names; nullopt when missing. A
// check reads it once, after marking the header, and hands it to the money and stock postings.
std::optional<MoneyHeader> readMoneyHeader(
    core::Connection &connection, const MoneyColumns &columns, const QString &number);

// The header as a check posts it; a missing header is a database error (the check has read its
// status just before, so it cannot be missing unless the file changed underneath).
MoneyHeader requireMoneyHeader(
    core::Connection &connection, const MoneyColumns &columns, const QString &number);

// The steps a check posts, in this order, inside the caller's transaction:
// 1. Cash row of the paid amount into the document's account, then that account's balances.
void postCashRow(shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header);
// 2. Ledger row with the balance as of its date plus due minus paid, then the party's balances
//    and kh_lwje / ghs_lwje from the date.
void postLedgerRow(shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header);
// 3. Counted invoice row (fp_yfje due, fp_kpje and fp_no the document's invoice) when the invoice
//    register is on (cs_kp), then the party's invoice balances.
void postInvoiceRow(
    shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header);
// The freight terms a document may keep: "我方付运费", "对方付运费", or none (empty).
bool isFreightTerms(const QString &terms);
// 4. Under "我方付运费": for freight and packing fee above 0 an expense row ("运费"/"包装费",
//    -1 x the fee, "现金", checked) and a "费用付款" cash row of -1 x the fee whose note names the
//    document; then the cash balances.
void postFreightAndPacking(
    shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header);
// An expense or income row that a document's check books in jxc_yyfy by itself, with no cash
// movement: department "100001", account "现金", checked. fy_flag is "1" for an expense and "2"
// for income. The note names the document, so that removeExpenseRows takes it away again.
struct DocumentExpense
{
    ExpenseKind kind = ExpenseKind::Expense;
    QString number; // gl_djh
    QString date; // fy_rq
    QString type; // fy_lx
    double amount = 0; // fy_je, as the document states it
    QString salesman; // u_sn
    QString note; // fy_note
};
void appendDocumentExpense(const shell::Session &session, const DocumentExpense &expense);

// Steps 1 to 4.
void postDocumentMoney(
    shell::Session &session, const MoneyColumns &columns, const MoneyHeader &header);
// Steps 1 to 4 for the document's header as stored.
void postDocumentMoney(shell::Session &session, const MoneyColumns &columns, const QString &number);

// The removal on uncheck, in this order, each followed by its recalculation, inside the caller's
// transaction:
// 1. Expense rows of the document (jxc_yyfy by number or by a note naming it).
void removeExpenseRows(shell::Session &session, const QString &number);
// 2. Goods journal rows of the number.
void removeJournalRows(shell::Session &session, const QString &number);
// 3. Cash rows by number or by a note naming it; each account recalculated.
void removeCashRows(shell::Session &session, const QString &number);
// 4. Ledger rows by gl_djh or gl_djh2; each party recalculated from its earliest deleted date.
void removeLedgerRows(shell::Session &session, const QString &number);
// 5. Registrations by gl_djh or gl_djh2; a linked registration that was checked loses its own
//    cash, journal and ledger rows first.
void removeRegistrations(shell::Session &session, const QString &number);
// 6. Invoice rows of the number; each party's invoice balances recalculated.
void removeInvoiceRows(shell::Session &session, const QString &number);
// Steps 1 to 6.
void removeDocumentPostings(shell::Session &session, const QString &number);

} // namespace medistock::accounts
