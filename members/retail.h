#pragma once

#include "core/outcome.h"
#include "members/payments.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// Retail (POS) documents reach the books through these two operations. A document is a sale
// "XS…" or a return "XT…"; the till (or any front end) hands over what it rang up, and posting
// writes, in one transaction:
//   1. the header jxc_posxsd and the lines jxc_posxssp;
//   2. one goods-ledger row per line, kind "xs" (a return "xt"), gl_fdmc "99", at the cost of the
//      document's date (stock::costAsOf), and the warehouse, batch and goods stock moved by it;
//      the day's settlement of the warehouse;
//   3. the payment in the cash book (see payments.h), kind "商品销售" (a return "顾客退货");
//   4. the member effects (effects.h) when the document names a member;
//   5. the log.
// The reversal takes all of it back in the opposite order, exactly.
//
// Signs are those of the tables: a return holds negative quantities, amounts and payments. The
// till is expected to have checked stock before it took the money: posting records what was
// sold and lets the stock go negative.

enum class RetailKind { Sale, Return };

// A line as rung up. Amount, cost and base quantity are computed: pos_zje = price x discount
// rate x quantity (0 for a gift line), rounded to the amount places; the cost per base unit as of
// the document's date, and pos_zcb = that cost x the base quantity.
struct RetailLine
{
    QString goods; // g_sn
    double quantity = 0; // pos_sl, in the line's unit; negative on a return
    double price = 0; // pos_dj, per line unit
    double discountRate = 1; // pos_dzl, 1 for none
    QString giftMarker; // t_zp, e.g. "(赠品)"; a marked line is given away: its amount is 0
    double unitFactor = 1; // g_zhxs: base units per line unit
    QString unit; // dw_name; the goods' base unit when empty
    QString batch; // t_ph
    QString expiry; // t_yxq
    QString produced; // t_scrq
};

// How the document was paid. The stored-value card payment `card` is taken off the member's
// card balance by the member effects.
struct RetailPayment
{
    CounterPayment counter; // pos_xj, pos_yhk, pos_djq, pos_wxje, pos_zfbje; pos_zlje the change
    double card = 0; // pos_czk
    double discount = 0; // pos_yhzkje "优惠金额", off the lines' total
    double roundingOff = 0; // pos_mlje "抹零金额", off the lines' total
};

struct RetailDocument
{
    RetailKind kind = RetailKind::Sale;
    QString number; // gl_djh; empty: the next "XS"/"XT" number of the document's date
    QString time; // pos_xsrq "yyyy-MM-dd HH:mm:ss" (a bare date takes the time of now); empty: now
    QString member; // hy_sn; empty when the buyer is no member
    QString warehouse; // ck_sn
    QString employee; // u_sn "经办人", may be empty
    QString cashier; // a_name "收银员"; the operator when empty
    QString customer; // kh_sn, may be empty
    RetailPayment payment;
    QString note; // pos_note
    QList<RetailLine> lines;
};

// The amount receivable pos_yfje: the lines' amounts less discount and rounding off, rounded to
// the amount places. What was received, pos_sfje (every way of paying with the card, less the
// change), must equal it.
double retailReceivable(const shell::Session &session, const RetailDocument &document);

// Posts the document (right "允许POS销售"). Refused, with nothing written: a number already used
// by a retail document or by a sale (return) of the back office, or of the wrong prefix; an
// unknown warehouse, employee, member or goods, the discount line, a disabled member on a sale,
// a card payment without a member or beyond the card balance on a sale, quantities or payments
// of the wrong sign, a received amount that differs from the receivable, no lines, a closed
// period. Returns the number.
Result<QString> postRetailDocument(shell::Session &session, const RetailDocument &document);

// Asks "您的操作将取消当前选中的已审核单据：<number>，确认吗？", then removes the document and
// everything its posting wrote (right "商品销售取消审核", for a return "顾客退货取消审核").
Outcome reverseRetailDocument(shell::Session &session, const QString &number);

} // namespace medistock::members
