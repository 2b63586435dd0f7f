#pragma once

#include "core/outcome.h"
#include "gsp/filters.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::gsp {

// "含麻药品查询": the goods ledger of the goods whose sale is limited per sale (g_xzsl>0, the
// drugs that contain ephedrine), every movement on its side:
// - in: "qc", "cj", "xt", "pd", "hh"; "db", "cf", "kb" with a quantity above 0; "xs" below 0;
// - out: "ct", "bs", "dh", "jh"; "db", "cf", "kb" below 0; "xs" from 0 up.
// A sale row counts on one side only: a negative sale quantity is goods coming back. "by" has a
// kind text but no side, so overflow reports are not listed, as the ledger's rules have it.
enum class Side { In, Out };

// The side of a ledger row of the kind with this (signed) quantity; none when it has no side.
std::optional<Side> sideOf(const QString &kind, double quantity);

struct RestrictedRow
{
    qint64 id = 0; // jxc_goodslist.id
    QString kind; // gl_flag
    QString kindText; // "采购入库单", "库存调拨出库" ...
    Side side = Side::In;
    QString number; // gl_djh
    QString date; // gl_kdrq
    QString goods;
    QString goodsName;
    QString packing;
    QString unit;
    QString warehouseName;
    QString partyName; // ghs_name
    double inPrice = 0; // rkdj: gl_dj on the in side
    double inQuantity = 0; // rksl: abs(gl_sl)
    double inAmount = 0; // rkje: abs(gl_je)
    double outPrice = 0; // ckdj
    double outQuantity = 0; // cksl
    double outAmount = 0; // ckje
    QString instructions; // t_cfsm
    QString patient; // gl_xm
    QString idCard; // gl_cardno
    QString prescriptionNumber; // t_cfhm
    QString batch;
    QString produced;
    QString expiry;
    QString address; // t_addr
    QString mobile; // t_mobile
};

// The movements dated in the range (keyword on the document number and the partner's code and
// name), newest first.
Result<QList<RestrictedRow>> restrictedLedger(
    const shell::Session &session, const RecordFilter &filter);

// The summary per goods: the stock before the range, what came in and went out in it (as the
// ledger view counts them), and the ledger's own stock at its end, each quantity with its
// amount. Built in the operator's rows of the work table jxc_jxchz, which it empties first, in
// one transaction; by goods code.
struct RestrictedSummaryRow
{
    QString goods;
    QString goodsName;
    QString unit;
    QString packing;
    double opening = 0; // hz_kc
    double openingAmount = 0; // hz_kczje
    double inQuantity = 0; // hz_rksl
    double inAmount = 0; // hz_rkzje
    double outQuantity = 0; // hz_cksl
    double outAmount = 0; // hz_ckzje
    double ledgerStock = 0; // hz_glkc
    double ledgerAmount = 0; // hz_glkczje
};
Result<QList<RestrictedSummaryRow>> restrictedSummary(
    const shell::Session &session, const RecordFilter &filter);

// What a row of the ledger view opens: every goods-ledger row the document posted, in posting
// order, as the quantity it moved (signed as the ledger keeps it).
struct PostedLine
{
    qint64 id = 0;
    QString kindText;
    QString goods;
    QString goodsName;
    QString packing;
    QString unit;
    double quantity = 0; // gl_sl
    double price = 0; // gl_dj
    double amount = 0; // gl_je
    QString batch;
    QString produced;
    QString expiry;
    QString warehouseName;
};
QList<PostedLine> postedLines(const shell::Session &session, const QString &number);

} // namespace medistock::gsp
