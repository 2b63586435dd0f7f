#pragma once

#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// How money taken at the counter reaches the cash and bank book. Each way of paying is kept under
// an account of its own name: cash, net of the change handed back, under "现金", and "银行卡",
// "医保卡", "微信", "支付宝" under those names (an account of that name in "现金银行期初建账"
// gives them an opening and a place in the account list). The stored-value card writes no row:
// its money came in when the card was topped up, and a card payment only moves the member's
// balance.
struct CounterPayment
{
    double cash = 0;
    double bankCard = 0;
    double insurance = 0; // medical-insurance card
    double wechat = 0;
    double alipay = 0;
    double change = 0; // handed back out of the cash

    // What came in through the book: every way but the stored-value card, less the change.
    double total() const { return cash + bankCard + insurance + wechat + alipay - change; }
};

// What a counter document writes into the cash book: one counted row per way of paying with an
// amount, in the order above, signed as the money moves (a refund is negative).
struct CounterBooking
{
    QString number; // gl_djh
    QString date; // xj_rq "yyyy-MM-dd"
    QString kind; // xj_dlx
    QString partyCode; // ghs_sn
    QString partyName; // ghs_name
    QString warehouseName;
    QString salesmanName;
    QString note;
};

// Appends the rows and recalculates each account from the date. Inside the caller's transaction.
void bookCounterPayment(
    const shell::Session &session, const CounterBooking &booking, const CounterPayment &payment);

} // namespace medistock::members
