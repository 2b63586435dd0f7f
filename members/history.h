#pragma once

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}

namespace medistock::members {

// One event in a member's history: a retail sale or return, a top-up, a gift released to the
// card, a redemption, or a change by hand of points or card balance.
struct HistoryRow
{
    QString time; // as stored: a date, or a date and time
    QString kind; // "POS销售", "POS退货", "会员充值", the release's 续费类别, "积分兑换", ...
    QString number; // the document's number, empty for changes by hand
    double amount = 0; // money: what was paid, topped up, released or changed on the card
    double points = 0; // points earned, spent or changed
    QString note;
};

// The member's history, newest first.
QList<HistoryRow> memberHistory(core::Connection &connection, const QString &member);

} // namespace medistock::members
