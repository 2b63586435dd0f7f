#pragma once

#include "core/outcome.h"
#include "statistics/filters.h"
#include "statistics/movements.h"

#include <QList>
#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::statistics {

// The business reports of the statistics area ("统计报表", right column tjgl). Each is a plain
// read returning typed rows; each needs its operation's right, listed with it.
//
// Where the figures come from. The reports of business done read the goods ledger
// jxc_goodslist: it holds one row per line of every checked document, written at check and
// deleted at uncheck, with the goods, warehouse, party (ghs_sn: the supplier, or the customer on
// sales kinds), employee name (u_name), quantity in base units, amounts, cost and profit. So a
// report over the ledger is a report over the checked document lines, and all reports agree with
// each other and with the purchase-sales-stock summary.
// - Purchases are the rows "cj" less the returns "ct" (stored with negative quantity and amount);
//   sales are the rows "xs" less the returns "xt" (likewise negative). Amounts are the line totals
//   gl_zje (tax included), cost gl_zcb, profit gl_lr as the check wrote them (or the cost
//   resynchronisation rewrote them).
// - The whole-document discount line ("00000000", "优惠商品") is part of the money: it shows as
//   its own row when grouping by goods and lowers the amount of its class, customer, supplier,
//   employee or period. Only the sales ranking, which ranks goods, leaves it out.
// - A profit rate is profit x 100 / amount rounded to 2 places, 0 when there is no amount.
// - Counts of documents are distinct document numbers among the rows.
// Groupings:
// - 进货月报 / 出库月报 (tjgl 1 and 4): per day ("yyyy-MM-dd") or month ("yyyy-MM"), the inward
//   (or outward) quantity and amount in the three groups of the kind table (movements.h) and in
//   all: 采购入库, 销售退货, 其他入库 / 销售出库, 采购退货, 其他出库; sales valued at cost.
// - 商品采购统计 (2): by goods, by goods class (the goods' gc_sn), or by supplier (the row's
//   supplier); 业务员采购统计 (3): by employee name.
// - 商品销售统计 (5): by goods, goods class, customer (the row's customer), or supplier (the
//   goods' last supplier, jxc_goods.ghs_sn); 单品分析: one goods per day or month.
// - 业务员销售统计 (6): by employee name, with the employee's commission (jxc_user): method u_tcfs
//   0 pays u_tc percent of the sales amount, method 1 u_tc percent of the commission profit, which
//   is the profit above u_zdlr per base unit, sum((gl_dj - gl_cbj - u_zdlr) x gl_sl) over the rows
//   where gl_dj - gl_cbj > u_zdlr, or the whole profit when u_zdlr is 0. Commissions are rounded to
//   the amount places.
// - 商品销售排行 (10): goods ranked by sales quantity, amount, profit or profit rate, highest
// first,
//   ties by goods code; the first N (all when N is 0).
// - 营业分析 (9): per day or month, sales documents, amount, cost, profit and rate.
// - 库存成本统计 (8): stock as the ledger holds it at the end of a date, per goods, class or
//   warehouse: the running quantity and value of each goods and warehouse's last row on or before
//   the date, and the average cost value / quantity. 库存数量金额统计 (8): today's warehouse stock
//   (jxc_kcsp.kc_sl) per goods valued four ways: at the warehouse cost kc_cbj, at the purchase
//   price g_jj, at the sale price g_sj and at the retail price g_lsj.
// - 单据查询 (11): the headers of every goods document kind, newest first.
// - 批次查询 (12): one batch number's whole ledger history per goods and warehouse, with the
//   running balance of the batch, and its batch stock rows.
// The day and month keys are the first 10 and 7 characters of gl_kdrq.

enum class PeriodUnit { Day, Month };

// 进货月报 / 出库月报: one row per period.
struct PeriodMovementRow
{
    QString period;
    double quantity[3] = { 0, 0, 0 }; // the three groups, in the order named above
    double amount[3] = { 0, 0, 0 };
    double totalQuantity = 0;
    double totalAmount = 0;
};
Result<QList<PeriodMovementRow>> inwardByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit);
Result<QList<PeriodMovementRow>> outwardByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit);

// A group of purchases: by goods (key the goods code, with name, packing and unit), by class,
// supplier or employee (key and name).
struct PurchaseRow
{
    QString key;
    QString name;
    QString packing;
    QString unit;
    int documents = 0;
    double quantity = 0; // received
    double amount = 0;
    double returnQuantity = 0; // sent back, positive
    double returnAmount = 0;
    double netQuantity = 0;
    double netAmount = 0;
};
enum class PurchaseGrouping { Goods, Class, Supplier, Employee };
Result<QList<PurchaseRow>> purchasesBy(
    const shell::Session &session, const ReportFilter &filter, PurchaseGrouping grouping);

// A group of sales (net of returns); for 单品分析 and 营业分析 the key is the period.
struct SalesRow
{
    QString key;
    QString name;
    QString packing;
    QString unit;
    int documents = 0;
    double quantity = 0;
    double amount = 0;
    double cost = 0;
    double profit = 0;
    double rate = 0; // profit rate, percent
};
enum class SalesGrouping { Goods, Class, Customer, Supplier };
Result<QList<SalesRow>> salesBy(
    const shell::Session &session, const ReportFilter &filter, SalesGrouping grouping);
// 单品分析 (filter.goods required, right tjgl 5) and 营业分析 (right tjgl 9).
Result<QList<SalesRow>> goodsSalesByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit);
Result<QList<SalesRow>> businessByPeriod(
    const shell::Session &session, const ReportFilter &filter, PeriodUnit unit);

enum class RankMeasure { Quantity, Amount, Profit, Rate };
Result<QList<SalesRow>> salesRanking(
    const shell::Session &session, const ReportFilter &filter, RankMeasure measure, int top);

struct SalesmanRow
{
    QString employee; // u_sn, empty when the name is no employee's
    QString name; // u_name
    int documents = 0;
    double amount = 0;
    double cost = 0;
    double profit = 0;
    double rate = 0;
    QString method; // "按销售额提成" or "按利润提成"
    double commissionRate = 0; // u_tc, percent
    double commissionProfit = 0; // the profit method's base
    double commission = 0; // by the sales amount
    double profitCommission = 0; // by the profit
};
Result<QList<SalesmanRow>> salesBySalesman(
    const shell::Session &session, const ReportFilter &filter);

enum class StockGrouping { Goods, Class, Warehouse };
struct StockCostRow
{
    QString key;
    QString name;
    QString packing;
    QString unit;
    double quantity = 0;
    double amount = 0;
    double averageCost = 0; // amount / quantity at price places; 0 without stock
};
// 库存成本统计 at the end of `date` (filter: warehouse, class, keyword).
Result<QList<StockCostRow>> stockCostAsOf(const shell::Session &session, const QString &date,
    const ReportFilter &filter, StockGrouping grouping);

struct StockValueRow
{
    QString goods;
    QString name;
    QString packing;
    QString unit;
    QString className;
    double quantity = 0;
    double costAmount = 0;
    double purchasePrice = 0;
    double purchaseAmount = 0;
    double salePrice = 0;
    double saleAmount = 0;
    double retailPrice = 0;
    double retailAmount = 0;
};
// 库存数量金额统计 (filter: warehouse, class, keyword); goods without stock are left out.
Result<QList<StockValueRow>> stockValues(const shell::Session &session, const ReportFilter &filter);

struct DocumentSearch
{
    DateRange range {}; // an empty range does not narrow
    QString prefix {}; // "CJ", "XS"...; empty for every kind
    QString number {}; // part of the number
    QString party {}; // part of the party's code or name
    std::optional<int> status; // 0 unchecked, 1 checked; every status when empty
};
struct DocumentRow
{
    QString prefix;
    QString kindTitle;
    QString number;
    QString date;
    QString partyName;
    QString warehouseName;
    QString employeeName;
    QString operatorName;
    double amount = 0; // the lines' totals
    int status = 0;
};
// 单据查询 (tjgl 11): newest first, then by number.
Result<QList<DocumentRow>> searchDocuments(
    const shell::Session &session, const DocumentSearch &search);
// The kinds 单据查询 covers, as (prefix, title).
QList<QPair<QString, QString>> documentKinds();

struct DocumentLine
{
    QString goods;
    QString name;
    QString unit;
    double quantity = 0;
    double price = 0;
    double total = 0;
    QString batch;
    QString expiry;
};
struct DocumentView
{
    DocumentRow header;
    QList<DocumentLine> lines;
};
// A document's header and lines, read only, found by its number's two letters; the discount line
// is left out.
Result<DocumentView> documentView(const shell::Session &session, const QString &number);

struct BatchStockRow
{
    QString goods;
    QString name;
    QString warehouse;
    QString warehouseName;
    QString batch;
    QString expiry;
    QString produced;
    double quantity = 0;
};
struct BatchHistory
{
    QList<MovementRow> rows; // goods, warehouse, date and id order
    QList<double> balances; // the batch's running quantity after each row
    QList<BatchStockRow> stock;
};
// 批次查询 (tjgl 12): the batch number exactly; `goods` narrows to one goods when given.
Result<BatchHistory> batchHistory(
    const shell::Session &session, const QString &batch, const QString &goods = {});

} // namespace medistock::statistics
