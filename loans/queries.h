#pragma once

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::loans {

// The three lists of the loans: "待审核借货单" (unchecked loans), "借货查询" (checked loans) and
// "还货查询" (checked returns, the sales of loaned goods among them).
enum class LoanList { Unchecked, Loans, Returns };

// Dates "yyyy-MM-dd" (the end date's whole day counts), a customer (empty: all), and a text that
// the number, the note or the customer's name or short code contains.
struct LoanQuery
{
    LoanList list = LoanList::Loans;
    QString from;
    QString to;
    QString customer;
    QString text;
};

struct LoanRow
{
    QString number;
    QString date;
    QString customer;
    QString customerName;
    QString warehouse;
    QString warehouseName;
    QString employeeName;
    QString note;
    QString operatorName;
    QString checker;
    QString checkDate;
    int lines = 0;
    double lent = 0; // sum of jh_sl
    double returned = 0; // sum of jh_hhsl: what came back (a return) or has come back (a loan)
    double sold = 0; // sum of jh_xssl
    double amount = 0; // sum of jh_zje
    double deposit = 0; // sum of jh_yj
    double rent = 0; // sum of jh_zzj
    double refund = 0; // sum of jh_thyj
};

// The documents of the list, newest number first. With operators bound to warehouses, an
// operator other than "100001" sees only his warehouses' documents.
QList<LoanRow> listLoans(const shell::Session &session, const LoanQuery &query);

// The lines of a loan or a return, in line order, as stored.
struct LoanLineRow
{
    qint64 id = 0;
    qint64 loanLine = 0; // id2: the line itself on a checked loan, the loan's line on a return
    QString goods;
    QString goodsName;
    QString unit;
    QString packing;
    QString batch;
    QString expiry;
    QString produced;
    double lent = 0;
    double returned = 0;
    double sold = 0;
    double open = 0; // lent - returned - sold (a loan's)
    double price = 0;
    double amount = 0;
    double deposit = 0;
    double depositUsed = 0;
    double rentPerDay = 0;
    double days = 0;
    double rent = 0;
    double refund = 0;
    QString account;
    QString flag; // "借货", "还货", "销售"
    QString loan; // gl_djh2: the loan a return line settles
};
QList<LoanLineRow> loanLines(const shell::Session &session, const QString &number);

} // namespace medistock::loans
