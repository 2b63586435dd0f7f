#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>
#include <QVariantMap>

namespace medistock::shell {
class Session;
}

// What a POS document's reprint fills its template with: the title "POS销售单" for a sale
// ("XS…"), "POS退货单" for a return ("XT…"), what was receivable and received, the member's card
// number, name, card balance, lifetime points and mobile as they stand now, and the lines in the
// order they were rung up, each with its price after discount.
namespace medistock::pos {

struct ReprintLine
{
    QString goods; // g_sn
    QString name; // g_name with the gift marker t_zp appended
    QString unit; // dw_name
    double price = 0; // pos_dj
    double discountRate = 1; // pos_dzl
    double quantity = 0; // pos_sl
    double amount = 0; // pos_zje
    double discounted = 0; // zhdj: pos_dj x pos_dzl
};

struct Reprint
{
    QString number;
    QString time; // pos_xsrq
    QString cashier; // a_name
    QString title; // sTitle
    double receivable = 0; // yf
    double received = 0; // sf
    QString memberCard; // hybh
    QString memberName; // hyname
    double cardBalance = 0; // hyye
    double lifetimePoints = 0; // hyjf
    QString mobile; // hymobile
    QList<ReprintLine> lines;

    // The template's variables by name: sTitle, yf, sf, hybh, hyname, hyye, hyjf, hymobile.
    QVariantMap variables() const;
};

// The reprint of a posted POS document; a number that is none is told and refused.
Result<Reprint> posReprint(const shell::Session &session, const QString &number);

} // namespace medistock::pos
