#pragma once

#include "core/outcome.h"
#include "pos/reportfilter.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// The POS documents as they were rung up: the sales journal ("POS销售流水账") and its lines, the
// goods sales statistics ("POS 商品销售统计") and the goods sales details ("商品销售明细"). Each
// reads the POS headers jxc_posxsd whose time pos_xsrq lies in the range and their lines
// jxc_posxssp; a return's figures are negative, so sums net out. Each needs its right of
// "统计报表".
namespace medistock::pos {

struct SalesFilter
{
    DateRange range;
    QString warehouse; // ck_sn; empty for all
    QString cashier; // a_name; empty for all
    QString member; // hy_sn; empty for all
    QString goods; // g_sn; empty for all (statistics and details)
};

struct JournalRow
{
    QString number; // gl_djh
    QString time; // pos_xsrq
    QString kind; // "商品销售单" / "销售退货单"
    QString memberCard; // hy_bh
    QString memberName; // hy_name
    QString warehouseName;
    QString cashier; // a_name
    QString employeeName;
    double receivable = 0; // pos_yfje
    double received = 0; // pos_sfje
    double cash = 0; // pos_xj
    double card = 0; // pos_czk
    double bankCard = 0; // pos_yhk
    double insurance = 0; // pos_djq
    double wechat = 0; // pos_wxje
    double alipay = 0; // pos_zfbje
    double change = 0; // pos_zlje
    double roundingOff = 0; // pos_mlje
    double discount = 0; // pos_yhzkje
    double points = 0; // pos_bcjf
    QString note;
};

// The documents, newest first.
Result<QList<JournalRow>> salesJournal(const shell::Session &session, const SalesFilter &filter);

struct JournalLine
{
    QString number;
    QString time; // pos_xsrq of the header
    QString goods;
    QString name;
    QString packing; // gg_name
    QString unit; // dw_name
    double price = 0; // pos_dj
    double discountRate = 1; // pos_dzl
    double quantity = 0; // pos_sl
    double amount = 0; // pos_zje
    double cost = 0; // pos_zcb
    double profit = 0; // lr = pos_zje - pos_zcb
    QString giftMarker; // t_zp
    QString batch;
    QString expiry;
    QString cashier; // a_name of the header
};

// The lines of the documents (or of one document, `number`), newest document first, lines in
// the order rung up: the journal's line view and the goods sales details.
Result<QList<JournalLine>> salesLines(
    const shell::Session &session, const SalesFilter &filter, const QString &number = {});

struct GoodsSalesRow
{
    QString goods; // g_sn
    QString name; // gname
    QString packing; // gg_name
    QString unit; // dw_name of the goods
    double quantity = 0; // sl: sum of pos_sl, in the lines' units
    double amount = 0; // zje
    double cost = 0; // sum of pos_zcb
    double profit = 0;
};

// One row per goods, by goods code.
Result<QList<GoodsSalesRow>> goodsSales(const shell::Session &session, const SalesFilter &filter);

} // namespace medistock::pos
