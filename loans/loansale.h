#pragma once

#include "core/outcome.h"
#include "sales/entry.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::loans {

// "新增借货转销售": goods a customer keeps are sold to him.

// A loan line sold: its quantity (empty: what is open) and sale price per base unit (empty: the
// proposed price).
struct SaleChoice
{
    qint64 line = 0;
    QString quantity;
    QString price;
};

// The loan, the date of the sale (empty: today), the lines sold (none: every open line), and the
// sale's own header (settlement mode, account of the payment, amount paid, invoice); the sale's
// salesman is the loan's unless given, its note the loan's number unless given.
struct LoanSaleDraft
{
    QString loan;
    QString date;
    QString employee;
    QString note;
    QList<SaleChoice> lines;
    sales::SaleHeader header;
};

// The price proposed for a goods sold from a loan, per base unit: its sale price g_sj, else its
// retail price g_lsj.
double proposedSalePrice(const shell::Session &session, const QString &goods);

struct LoanSale
{
    QString returnNumber; // "HH...": the goods back from the loan
    QString saleNumber; // "XS...": the checked sale
};

// Sells loaned goods, in this order: the right "客户借货管理"; the return part planned as a
// return is (the loan checked, the quantities open, the date not before the loan's); a date after
// today (asked); the sale's own rights, checks and questions (expired batches, prepayment); the
// sale's confirmation. Then in one transaction, with the loan's status and open quantities read
// again: the return part (writeReturn, lines "销售": goods back, jh_xssl and jh_yj2 raised, rent
// as income), then the sale saved and checked by the sales module, linked to the return by its
// gl_djh2 (goods out again, the customer owes it), the log.
Result<LoanSale> sellLoanedGoods(shell::Session &session, const LoanSaleDraft &draft);

} // namespace medistock::loans
