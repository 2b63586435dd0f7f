#include "members/payments.h"

#include "accounts/cashbook.h"
#include "members/texts.h"
#include "shell/session.h"

namespace medistock::members {

void bookCounterPayment(
    const shell::Session &session, const CounterBooking &booking, const CounterPayment &payment)
{
    const QList<std::pair<QString, double>> ways {
        { accounts::cashAccountName(), payment.cash - payment.change },
        { texts::bankCardAccount(), payment.bankCard },
        { texts::insuranceAccount(), payment.insurance },
        { texts::wechatAccount(), payment.wechat },
        { texts::alipayAccount(), payment.alipay },
    };
    for (const auto &[account, amount] : ways) {
        if (session.params().roundAmount(amount) == 0)
            continue;
        accounts::CashRow row;
        row.number = booking.number;
        row.date = booking.date;
        row.kind = booking.kind;
        row.amount = session.params().roundAmount(amount);
        row.account = account;
        row.salesmanName = booking.salesmanName;
        row.partyCode = booking.partyCode;
        row.partyName = booking.partyName;
        row.warehouseName = booking.warehouseName;
        row.note = booking.note;
        row.operatorName = session.user().name;
        accounts::appendCashRow(session.db(), row);
        accounts::recalculateCash(session.db(), account, booking.date);
    }
}

} // namespace medistock::members
