#pragma once

#include "core/outcome.h"
#include "pos/reportfilter.h"

#include <QList>
#include <QString>

namespace medistock::shell {
class Session;
}

// The sales commissions ("POS销售提成"), worked out into the operator's rows of the work table
// jxc_jxchz (cleared first) and read back by employee code and kind. An employee (jxc_user) earns
// on the documents that name him as "经办人" (u_sn); the commission is rounded to the amount
// places. Gift lines (a gift marker, kept in gl_bz of the POS ledger rows) earn nothing.
//
// Columns: g_sn the employee's code, hz_txt1 his name, hz_txt2 the kind's text, hz_flag its
// code; hz_kc "销售金额", hz_kczje "可提成金额", hz_rksl "销售毛利", hz_rkzje "可提成毛利",
// hz_cksl "提成数量", hz_ckzje "提成金额", hz_glkc "最低提成毛利" (u_zdlr), hz_glkczje "提成比例"
// (u_tc, 0 on the goods kinds whose rates are the goods' own).
//
// Employees with a rate (u_tc > 0), over the POS ledger rows (gl_fdmc "99") of goods without a
// commission of their own (g_tclb 0):
//   101  by sales amount (u_tcfs 0): base = the amount sum(gl_zje); commission = base x u_tc%.
//   201  by profit (u_tcfs 1): the profit sum(gl_lr); the commissionable profit sums
//        (gl_dj - gl_cbj - u_zdlr) x gl_sl over the rows where gl_dj - gl_cbj > u_zdlr, or is
//        the whole profit when u_zdlr is 0; commission = that profit x u_tc%.
// The same employees over the back office's sales, which the till does not see. How much of them
// earns is left open by the books; read here as:
//   1001 by sales amount: hz_kc what the employee's customers were charged and hz_kczje what they
//        paid, summed over his rows of the receivables ledger jxc_ysyfk (k_type "kh", u_sn, k_rq
//        in the range: k_yfje and k_sfje); commission = paid x u_tc%, money actually received
//        earning it.
//   1002 the outstanding part: hz_kczje = charged - paid, the commission that waits for it =
//        outstanding x u_tc%; rows whose commission is 0 are removed.
//   2001 by profit: charged and paid as for 1001, the profit of his back-office sales and returns
//        (goods-ledger rows "xs"/"xt" outside the till, of sales and returns whose header names
//        him) with the commissionable profit by the u_zdlr rule above; commission = that profit
//        x u_tc%.
// Goods with a commission of their own, over the POS ledger rows, whoever sold them:
//   3001 per piece (g_tclb 1): hz_cksl = sum(gl_sl); commission = sum(gl_sl x g_tc).
//   4001 by amount (g_tclb 2): base = sum(gl_zje); commission = sum(gl_zje x g_tc) x 0.01.
//   5001 by profit (g_tclb 3): base profit = sum(gl_lr); commission = sum(gl_lr x g_tc) x 0.01.
// Employees without a rate and without goods commissions get no row.
namespace medistock::pos {

struct CommissionRow
{
    QString employee; // g_sn
    QString name; // hz_txt1
    QString kind; // hz_txt2
    int flag = 0; // hz_flag
    double sales = 0; // hz_kc
    double base = 0; // hz_kczje
    double profit = 0; // hz_rksl
    double profitBase = 0; // hz_rkzje
    double quantity = 0; // hz_cksl
    double commission = 0; // hz_ckzje
    double minimumProfit = 0; // hz_glkc
    double rate = 0; // hz_glkczje
};

struct CommissionFilter
{
    DateRange range;
    QString warehouse; // ck_sn of the ledger rows; empty for all (the back office's 1001 to 2001
                       // rows are not narrowed, the receivables ledger knowing no warehouse)
};

// Works the commissions out (right "POS销售提成") in one transaction and returns the rows.
Result<QList<CommissionRow>> posCommission(shell::Session &session, const CommissionFilter &filter);

} // namespace medistock::pos
