#pragma once

#include "core/outcome.h"
#include "pos/reportfilter.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// Reports over what the POS documents posted: the sales ranking ("POS 销售排行") and the member
// consumption ("会员消费统计") read the goods-ledger rows of POS documents (gl_fdmc "99", kinds
// "xs" and "xt") by their date gl_kdrq; the cashier takings ("收银员收银统计") read the POS
// headers. A return's rows are negative and net out in every sum. Each needs its right of
// "统计报表".
namespace medistock::pos {

enum class RankingView { Goods, GoodsClass, Cashier };
// The orders the user picks: "销售利润率" (the default), "销售数量", "总销售额", "销售利润"; each
// largest first, ties by the group's key.
enum class RankingOrder { ProfitRate, Quantity, Amount, Profit };

struct RankingFilter
{
    DateRange range;
    QString warehouse; // ck_sn; empty for all
    RankingView view = RankingView::Goods;
    RankingOrder order = RankingOrder::ProfitRate;
};

struct RankingRow
{
    int rank = 0; // mc, from 1
    QString key; // g_sn, gc_sn or a_name
    QString name; // gname or gcname; the cashier's name again for cashiers
    double quantity = 0; // sl = sum(gl_sl), base units
    double amount = 0; // zje = sum(gl_zje)
    double profit = 0; // lr = sum(gl_lr)
    double rate = 0; // lrl: profit x 100 / amount rounded to 2 places; 0 where the amount is 0
};

// The profit rate of a group: round(profit x 100 / amount, 2), 0 when the amount is 0.
double profitRate(double profit, double amount);

// One row per goods, goods class (goods without a class under an empty key) or cashier
// (operators of jxc_admin only).
Result<QList<RankingRow>> salesRanking(const shell::Session &session, const RankingFilter &filter);

struct MemberSalesFilter
{
    DateRange range;
    QString warehouse;
    QString level; // hl_sn; empty for "所有级别"
    QString member; // hy_sn; empty for all
    QString text; // part of the member's name, mnemonic or mobile; empty for all
};

struct MemberSalesRow
{
    QString number; // gl_djh
    QString date; // gl_kdrq
    QString kind; // "商品销售单" / "销售退货单"
    QString member; // hy_sn
    QString card; // hy_bh
    QString name; // hy_name
    QString levelName; // hl_name
    QString mobile; // hy_mobile
    double balance = 0; // hy_zhje
    QString goods;
    QString goodsName;
    QString unit;
    double quantity = 0; // gl_sl
    double amount = 0; // gl_zje
    double profit = 0; // gl_lr
    double rate = 0; // lrl of the row
};

// One row per ledger row of a member's POS document, by card number, then date and row.
Result<QList<MemberSalesRow>> memberSales(
    const shell::Session &session, const MemberSalesFilter &filter);

struct CashierFilter
{
    DateRange range;
    QString warehouse;
    QString cashier; // a_name; empty for "所有收银员"
};

struct CashierTakingsRow
{
    QString cashier; // a_name
    QString code; // sn: a_sn
    int documents = 0;
    double receivable = 0; // yfje
    double received = 0; // sfje
    double cash = 0; // pos_xj less pos_zlje
    double card = 0;
    double bankCard = 0;
    double insurance = 0;
    double wechat = 0;
    double alipay = 0;
    double roundingOff = 0;
};

// One row per cashier (operators of jxc_admin, in warehouses that exist), by operator code.
Result<QList<CashierTakingsRow>> cashierTakings(
    const shell::Session &session, const CashierFilter &filter);

} // namespace medistock::pos
