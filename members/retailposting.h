#pragma once

#include "members/retail.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

namespace medistock::members {

// The writing steps of postRetailDocument and its reversal, each inside the caller's transaction
// (they throw DbError).

// A line with what the posting computes and copies from its goods.
struct PricedLine
{
    RetailLine line;
    QString name; // g_name
    QString mnemonic; // g_jm
    QString baseUnit; // dw_name of the goods
    QString packing; // gg_name
    QString approval; // color_name
    QString barcode; // g_sptm
    double retailPrice = 0; // g_lsj, per base unit
    double average = 0; // g_pjjj
    double baseQuantity = 0; // pos_zsl
    double amount = 0; // pos_zje
    double cost = 0; // per base unit
    double totalCost = 0; // pos_zcb
};

// The document once checked: its number and time settled, the lines priced.
struct ValidRetail
{
    RetailDocument document;
    QString date; // "yyyy-MM-dd" of the time
    double receivable = 0; // pos_yfje
    double received = 0; // pos_sfje
    QList<PricedLine> lines;
};

// Steps 1 to 5 of the posting (see retail.h).
void writeRetailDocument(const shell::Session &session, const ValidRetail &retail);
// The reversal of a posted document of that number and member.
void removeRetailDocument(const shell::Session &session, const QString &number);

} // namespace medistock::members
