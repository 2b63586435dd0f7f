#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// The shift handover at the till ("交班", jxc_jbgl). A cashier's shift runs from his last handover
// (jb_time of his latest row as jb_curruser; the first shift from the start of the books) up to
// now, and holds the POS documents he took (a_name) and the cash he put into or took out of the
// till in that time. At the handover he counts the drawer and splits it into what he hands up
// ("上交营业款") and what stays in the till for the next cashier ("下放营业款").
//
// The figures, where the books leave them open:
// - jb_bbskzje "本班收款总额": the amounts received pos_sfje of the shift's documents, every way
//   of paying together (returns count negative);
// - the cash the drawer should hold: the float the cashier took over (下放营业款 of the latest
//   handover naming him as jb_nextuser, made after his own last handover), plus cash received less
//   change, plus cash put in, less cash taken out;
// - jb_sjyyk and jb_xfyyk as counted, jb_jjzje "交接金额" their sum. A count that differs from the
//   drawer's figure is asked about before anything is written.
namespace medistock::pos {

struct ShiftFigures
{
    QString cashier;
    QString from; // the previous handover's time, exclusive; empty for the first shift
    QString to; // inclusive
    int sales = 0;
    int returns = 0;
    double salesAmount = 0; // pos_yfje of the sales
    double returnsAmount = 0; // pos_yfje of the returns, negative
    double takings = 0; // pos_sfje: 本班收款总额
    double cash = 0; // pos_xj less pos_zlje
    double card = 0; // pos_czk
    double bankCard = 0; // pos_yhk
    double insurance = 0; // pos_djq
    double wechat = 0; // pos_wxje
    double alipay = 0; // pos_zfbje
    double roundingOff = 0; // pos_mlje
    double discount = 0; // pos_yhzkje
    double cashIn = 0; // jxc_crk "r"
    double cashOut = 0; // jxc_crk "c"
    double openingFloat = 0;

    double drawer() const { return openingFloat + cash + cashIn - cashOut; }
};

// The figures of the cashier's shift up to `until` ("yyyy-MM-dd HH:mm:ss"). Reads only.
ShiftFigures shiftFigures(
    const shell::Session &session, const QString &cashier, const QString &until);

struct HandoverDraft
{
    QString next; // jb_nextuser, an operator's name
    double handedUp = 0; // jb_sjyyk
    double leftForNext = 0; // jb_xfyyk
    QString note;
};

struct Handover
{
    qint64 id = 0;
    QString time; // jb_time
    QString current; // jb_curruser
    QString next; // jb_nextuser
    double takings = 0; // jb_bbskzje
    double handedUp = 0; // jb_sjyyk
    double leftForNext = 0; // jb_xfyyk
    double handed = 0; // jb_jjzje
    QString note;
};

// Hands the operator's shift over (right "允许POS销售"), dated now. Returns the row written with
// the shift's figures.
Result<std::pair<Handover, ShiftFigures>> handOver(
    shell::Session &session, const HandoverDraft &draft);

// Handovers in a date range, newest first, for one cashier (current or next) or all.
QList<Handover> handovers(const shell::Session &session, const QString &from, const QString &to,
    const QString &cashier = {});

} // namespace medistock::pos
