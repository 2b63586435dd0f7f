#pragma once

#include "core/outcome.h"
#include "sales/entry.h"
#include "sales/salecheck.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::sales {

// Checks a sales order: nothing is posted. With settlement mode "0" the unpaid remainder becomes
// its discount; status, checker and today's date are written, every line starts undelivered and
// linked to itself (id2 = id), and a stray unchecked copy of the number is removed. An order
// already checked is left as it is. Right "销售订单审核" unless started by check-on-save; logged.
Outcome checkSalesOrder(
    shell::Session &session, const QString &number, CheckStart start = CheckStart::Listed);

// An order line still open for delivery, found by its identity id2 in a checked order.
struct OpenOrderLine
{
    qint64 id = 0; // the line's id2
    QString order; // gl_djh
    QString date; // ls_xsrq
    QString customer;
    QString customerName;
    QString goods;
    QString goodsName;
    QString unit;
    double ordered = 0; // ls_sl
    double delivered = 0; // ls_cksl
    double open = 0; // ls_sl - ls_cksl, in the line's unit
};
std::optional<OpenOrderLine> openOrderLine(const shell::Session &session, qint64 id);

// The open lines of checked orders dated from..to (to through its end of day), whose number,
// customer code, customer mnemonic or name contains `text`; newest first.
struct OrderFilter
{
    QString from = QStringLiteral("2010-01-01");
    QString to = QStringLiteral("9999-12-31");
    QString text;
};
QList<OpenOrderLine> openOrderLines(const shell::Session &session, const OrderFilter &filter);

// Takes a checked order over into the sale being entered: the sale's lines are replaced by the
// order's open lines in order (quantity ls_sl - ls_cksl, the order's price, tax and discount
// rates, unit and batch), each linked to its order line and carrying the warehouse's current cost;
// the header takes the order's customer, warehouse, salesman, settlement mode, account and
// remark. Reads only; refused for a missing or unchecked order.
Outcome takeOverOrder(const shell::Session &session, const QString &order, SaleDraft &sale);

// Adds single open order lines (by id2) to the sale being entered, the same way; the header is
// taken from the first line's order.
Outcome takeOverOrderLines(
    const shell::Session &session, const QList<qint64> &lineIds, SaleDraft &sale);

} // namespace medistock::sales
