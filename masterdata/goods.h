#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::masterdata {

// The code a new goods gets when none is typed. With "增加商品基本信息时商品自动编号" (cs_spbh)
// on and a class that has a prefix, the code is the class prefix followed by a four-digit
// sequence within that class ("1000" -> "10000001", "10000002" ...); otherwise the next six-digit
// code after the largest six-digit goods code (from "100001").
QString goodsCodeFor(const shell::Session &session, const QString &classCode);

// The goods-only checks of a row being written: its class exists (gc_sn fills gc_cid) and its
// barcode is not another goods'. Returns the refusal text, empty when all is well.
QString prepareGoodsRow(
    core::Connection &db, QHash<QString, QVariant> &values, const QString &existingCode);
// The refusal text when a barcode is in use: as the main barcode of a goods other than ownCode,
// or as any goods' further barcode or unit barcode (empty ownCode: any use at all).
QString checkGoodsBarcode(core::Connection &db, const QString &barcode, const QString &ownCode);
// Removes a deleted goods' units, barcodes and named prices (inside the caller's transaction).
void deleteGoodsSatellites(core::Connection &db, const QString &code);

struct GoodsUnit
{
    qint64 id = 0;
    QString unit; // dw_name
    double factor = 1; // g_zhxs: base units in one of this unit
    QString barcode; // g_sptm
    double purchasePrice = 0; // g_jj
    double salePrice = 0; // g_sj
};

// Auxiliary units: a unit name once per goods, different from its base unit, a factor above 0.
QList<GoodsUnit> goodsUnits(core::Connection &db, const QString &code);
Result<qint64> addGoodsUnit(
    const shell::Session &session, const QString &code, const GoodsUnit &unit);
Outcome removeGoodsUnit(const shell::Session &session, qint64 id);

struct GoodsBarcode
{
    qint64 id = 0;
    QString barcode; // g_sptm
    QString remark; // g_tmbz
};

// Further barcodes of a goods ("一品多码").
QList<GoodsBarcode> goodsBarcodes(core::Connection &db, const QString &code);
Result<qint64> addGoodsBarcode(
    const shell::Session &session, const QString &code, const GoodsBarcode &barcode);
Outcome removeGoodsBarcode(const shell::Session &session, qint64 id);

// Named prices (gp_name, gp_price): setting a name again changes its price.
QList<QPair<QString, double>> goodsPrices(core::Connection &db, const QString &code);
Outcome setGoodsPrice(
    const shell::Session &session, const QString &code, const QString &name, double price);
Outcome removeGoodsPrice(const shell::Session &session, const QString &code, const QString &name);

} // namespace medistock::masterdata
