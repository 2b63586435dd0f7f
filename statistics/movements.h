#pragma once

#include "core/outcome.h"
#include "statistics/filters.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::statistics {

// How the rows of the goods ledger count as goods coming in and going out. Every report that
// speaks of inward and outward movement reads the ledger through this one table, written once
// below as SQL over the ledger columns:
//
//   kind (gl_flag)                          side  price, quantity, amount
//   cj                                      in    gl_dj, gl_sl, gl_je          采购入库
//   qc by hh sc jg ws bh bf                 in    gl_dj, gl_sl, gl_je          其他入库
//   db cf kb pd, quantity >= 0              in    gl_dj, gl_sl, gl_je          其他入库
//   xs, quantity >= 0                       out   gl_cbj, gl_sl, gl_zcb        销售出库
//                                                 (at price: gl_dj, gl_sl, gl_je)
//   xt; xs with quantity < 0                in    gl_cbj, -gl_sl, abs(gl_zcb)  销售退货
//                                                 (at price: gl_dj, -gl_sl, -gl_je)
//   ct                                      out   gl_dj, -gl_sl, -gl_je        采购退货
//   lt                                      in    gl_dj, -gl_sl, -gl_zje       其他入库
//   db cf kb pd, quantity < 0               out   gl_dj, -gl_sl, -gl_zje       其他出库
//   bs pl st wp wt                          out   gl_dj, -gl_sl, -gl_zje       其他出库
//   dh                                      out   gl_dj, gl_sl, gl_je          其他出库
//   jh ly                                   out   gl_dj, gl_sl, gl_zje         其他出库
//
// The plain receipts are every kind that only ever brings goods in: purchase, opening stock,
// overflow, goods lent out coming back, and the further incoming kinds. Stock-taking differences
// count like transfers, splits and bundles: by their sign, so that a counted shortage shows as an
// outward quantity rather than a negative inward one. A kind the table does not name counts on
// neither side, as it moves no stock in the ledger either. The discount line "00000000" never
// counts.

// Sales kinds are valued at cost (the stock leaves at its cost price, as the stock value counts
// it) or at their selling price.
enum class Valuation { Cost, Price };

// The six groups the daily and monthly reports show.
enum class MovementGroup { Purchase, SalesReturn, OtherIn, Sale, PurchaseReturn, OtherOut };

enum class Figure { Price, Quantity, Amount };

// SQL over the ledger row `a` giving the figure of the rows on the side of `inward`, restricted to
// the groups given (all of that side when empty); NULL for other rows.
Sql movementFigure(
    bool inward, Figure figure, Valuation valuation, const QList<MovementGroup> &groups = {});

// The kinds of the whole table, bound, for narrowing a scan of the ledger to what it counts.
QStringList movementKinds();

// A ledger kind as the reports name it ("采购进货", "商品销售"...); the code itself for a kind the
// system has no name for.
QString kindName(const QString &kind);

// One ledger row as the movement views show it.
struct MovementRow
{
    qint64 id = 0;
    QString date; // gl_kdrq
    QString kind; // gl_flag
    QString number; // gl_djh
    QString goods;
    QString goodsName;
    QString warehouse;
    QString warehouseName;
    QString partyName; // ghs_name: supplier, or customer for the sales kinds
    QString batch; // t_ph
    QString expiry; // t_yxq
    std::optional<double> inPrice, inQuantity, inAmount; // rkdj, rksl, rkje
    std::optional<double> outPrice, outQuantity, outAmount; // ckdj, cksl, ckje
    double stock = 0; // gl_kc: the running quantity after the row
    double stockValue = 0; // gl_kczje
};

struct MovementQuery
{
    ReportFilter filter {};
    Valuation valuation = Valuation::Cost;
    bool byWarehouse = false; // warehouse name first, then goods, date and id
};

// The ledger rows of the filter (with its range, when it has one), in goods, date and id order
// (warehouse name first on request). Right `right` of tjgl: "库存变动查询" (7) by default; the
// summary's movement view asks "进销存统计" (13), the batch query "批次查询" (12).
Result<QList<MovementRow>> movementRows(
    const shell::Session &session, const MovementQuery &query, int right = 7);

} // namespace medistock::statistics
