#pragma once

#include "core/outcome.h"
#include "members/retail.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// Sales held at the till ("挂单") and recalled ("解挂"). A held sale is a sale being entered: its
// lines wait in jxc_lsxssptemp under the sale number it reserves, marked ls_flag "POS" and kept
// per cashier (a_name), so that it survives a closed till and no other document takes its number.
// A line keeps price ls_dj, quantity ls_sl, discount rate ls_dzl, amount ls_zje, gift marker
// ls_bz, unit dw_name and factor g_zhxs, base quantity ls_zsl and batch t_ph, t_yxq, t_scrq; the
// member's code stands in ghs_sn, the line's party column, and the time held in ls_xsrq.
namespace medistock::pos {

struct HeldSale
{
    QString number; // gl_djh reserved
    QString time; // when it was held
    QString member; // hy_sn, may be empty
    QString memberName;
    int lines = 0;
    double amount = 0;
};

// Holds the sale for the operator (right "允许POS销售") under a new number, or in place of the held
// sale `replacing` (one recalled and held again). Returns the number.
Result<QString> holdSale(
    shell::Session &session, const members::RetailDocument &sale, const QString &replacing = {});
// The operator's held sales, oldest first.
QList<HeldSale> heldSales(const shell::Session &session);
// A held sale of the operator as it was rung up (member and lines); it stays held until it is
// sold or dropped.
Result<members::RetailDocument> recallSale(const shell::Session &session, const QString &number);
// Drops a held sale of the operator.
Outcome dropHeldSale(shell::Session &session, const QString &number);

// For the till's sale: the held number when it carries today's date, else empty (a new number).
QString heldNumberForToday(const shell::Session &session, const QString &heldNumber);
// Removes the operator's held lines of the number inside the caller's transaction; false when
// there were none.
bool removeHeldLines(const shell::Session &session, const QString &number);

} // namespace medistock::pos
