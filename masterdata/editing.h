#pragma once

#include "core/outcome.h"
#include "masterdata/goods.h"
#include "masterdata/masterrows.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

// A goods as its edit dialog hands it over: its columns and the units, further barcodes and named
// prices it is to have once saved.
struct GoodsDraft
{
    QString code; // the goods being changed; empty for a new goods
    Values values;
    QList<GoodsUnit> units; // kept units carry their id, new ones id 0; a unit left out goes
    QList<GoodsBarcode> barcodes; // the same
    QList<QPair<QString, double>> prices; // every named price, by name
};

// Adds or changes a goods together with its units, barcodes and named prices in one
// transaction: when any part is refused nothing is written. Returns the goods code.
Result<QString> saveGoods(const shell::Session &session, const GoodsDraft &draft);

// Adds (empty key) or changes a customer with the employees responsible for it (kh_usn,
// kh_uname), in one transaction. Returns the customer's code.
Result<QString> saveCustomer(const shell::Session &session, const QString &key, Values values,
    const QStringList &employeeCodes);
// The same for a warehouse and the operators allowed in it (ck_asn, ck_aname).
Result<QString> saveWarehouse(const shell::Session &session, const QString &key, Values values,
    const QStringList &operatorCodes);

} // namespace medistock::masterdata
