#pragma once

#include <QString>

#include <optional>

namespace medistock::shell {
class Parameters;
class Session;
} // namespace medistock::shell

namespace medistock::stock {

// The goods ledger jxc_goodslist: one row per document line per posting, ordered per goods and
// warehouse by date, then id. Each row keeps the running quantity gl_kc, the moving average
// gl_pjjj and the stock value gl_kczje after it, and what it carried into the average
// (gl_sqsl, gl_sqje).
//
// A rerun starts from the opening state of the start row's date: the last row of an earlier
// date gives Q = its gl_kc, A = its gl_pjjj, V = its gl_kczje; before the first row Q = V = 0 and
// A is the goods average g_pjjj. The cumulative quantity S and amount M of the average start as
// S = Q and M = V. Then every row of that date and later, in date-then-id order:
// - Adding kinds carry their own gl_sl and gl_je: Q += gl_sl, S += gl_sl, M += gl_je. When Q was
//   not positive before a positive addition, S, M and the carried values are first taken
//   absolute (the sums go on; they are not restarted).
// - Subtracting kinds lower Q by gl_sl and carry nothing: gl_sqsl = gl_sqje = 0, since they take
//   no part in the average.
// - An average-setting row (see kindRole) then takes A = |M / S| while Q != 0, or |gl_dj| when Q
//   is 0; while S is 0 the average stays. Other rows leave A as it is.
// - A, Q and V = A x Q (0 when Q is 0) are rounded after adding 0.000000001, to price, quantity
//   and stock-value decimals.
// S and M run through the whole rerun, so the figures of a row depend on where the rerun
// started: a rerun from an earlier date carries the receipts since that date into the average,
// one from the row's own date starts from the stored state before it. Every posting reruns from
// its own row and every reversal from the row it withdraws.

// What a ledger kind (gl_flag) does to the running quantity and whether it sets the average.
struct KindRole
{
    enum class Direction { Adds, Subtracts, None };
    Direction direction = Direction::None;
    bool setsAverage = false;
};
// "db", "cf" and "bh" set the average only when they add (quantity > 0). Kinds the system does
// not know leave the running state alone.
KindRole kindRole(const QString &kind, double quantity);

struct RunningState
{
    double quantity = 0; // gl_kc
    double average = 0; // gl_pjjj, per base unit
    double value = 0; // gl_kczje
    double sumQuantity = 0; // S: the quantity the average is taken over
    double sumAmount = 0; // M: what that quantity cost
};

// The state a rerun opens with after a stored row (its gl_kc, gl_pjjj, gl_kczje): the average's
// sums start as the stock and its value.
RunningState openingAfter(double quantity, double average, double value);

// The columns of a row that the running computation reads.
struct LedgerMovement
{
    QString kind; // gl_flag
    double quantity = 0; // gl_sl, base units
    double amount = 0; // gl_je
    double price = 0; // gl_dj, per base unit
};

struct LedgerStep
{
    double carriedQuantity = 0; // gl_sqsl
    double carriedAmount = 0; // gl_sqje
    RunningState after;
};

// Decimal places of the running columns: price, quantity, and the stock value (the amount places
// when "合计金额保留" is on, else the price places).
struct RunningRounding
{
    int price = 2;
    int quantity = 2;
    int value = 2;
    static RunningRounding of(const shell::Parameters &params);
};

// The state after one row, given the state after the row before it in the same rerun.
LedgerStep stepLedger(
    const RunningState &before, const LedgerMovement &row, const RunningRounding &rounding);

struct RerunSummary
{
    bool found = false; // the start row exists
    int rowsRun = 0;
    int rowsRewritten = 0; // rows whose running columns changed
    RunningState last; // the state after the last row run (the opening state when none ran)
};

// Recomputes the running columns of the start row's goods and warehouse from the start row's
// date on, in date-then-id order; with `exclude` the start row itself is left out (it is about
// to be deleted). Rows of earlier dates are not touched. Afterwards the warehouse cost kc_cbj
// takes the last average, when the start row sets the average and the warehouse cost is not
// kept fixed.
RerunSummary rerunLedger(const shell::Session &session, qint64 rowId, bool exclude);

// Takes one posted row out of the ledger: reruns its goods and warehouse without it, then deletes
// it. Every reversal withdraws its rows one by one this way, so that when a document holds two
// rows of one goods in one warehouse the second rerun no longer counts the first.
RerunSummary withdrawLedgerRow(const shell::Session &session, qint64 rowId);

// Optional prescription columns of a sales row.
struct Prescription
{
    QString note; // t_cfsm
    QString name; // gl_xm
    QString idCard; // gl_cardno
    QString number; // t_cfhm
    QString address; // t_addr
    QString mobile; // t_mobile
    QString pharmacist; // t_yaoshi
};

// A ledger row as a posting writes it. The running columns gl_kc, gl_kczje, gl_sqsl and gl_sqje
// start at 0 and are set by the rerun; gl_pjjj starts at `average`. Unset optionals stay NULL.
struct LedgerRow
{
    QString kind; // gl_flag
    QString number; // gl_djh
    QString date; // gl_kdrq
    QString goods; // g_sn
    QString goodsName; // g_name
    QString mnemonic; // g_jm
    QString unit; // dw_name, the base unit
    double price = 0; // gl_dj, per base unit
    double quantity = 0; // gl_sl, base units, signed by the kind
    double total = 0; // gl_zje
    double profit = 0; // gl_lr
    double discountRate = 0; // gl_dzl
    QString employeeName; // u_name
    QString operatorName; // a_name
    QString warehouse; // ck_sn
    QString warehouseName; // ck_name
    QString party; // ghs_sn: supplier, or customer for sales kinds
    QString partyName; // ghs_name
    QString packing; // gg_name
    QString approvalNumber; // color_name
    double unitQuantity = 0; // gl_sysl, in the document's unit
    QString branch; // gl_fdmc
    double currentStock = 0; // gl_dqkc
    QString expiry; // t_yxq
    QString batch; // t_ph
    QString produced; // t_scrq
    double average = 0; // gl_pjjj until the rerun sets it
    QString checker; // gl_checker
    QString checkDate; // gl_chkrq
    QString lineNote; // gl_bz
    QString note; // gl_note
    double taxRate = 0; // gl_tax
    double taxedPrice = 0; // gl_taxdj
    double tax = 0; // gl_taxje
    double amount = 0; // gl_je, before tax
    double retailPrice = 0; // gl_lsj
    std::optional<qint64> lineId; // id2
    std::optional<QString> sourceNumber; // gl_djh2
    std::optional<double> doneFlag; // gl_qxsl
    std::optional<double> cost; // gl_cbj
    std::optional<double> totalCost; // gl_zcb
    std::optional<Prescription> prescription;
};

// Inserts the row and returns its id.
qint64 insertLedgerRow(const shell::Session &session, const LedgerRow &row);

// A line's price per base unit (gl_dj): a line in a larger unit divides its price by the unit's
// factor, baseQuantity / quantity.
double basePrice(double price, double quantity, double baseQuantity);

} // namespace medistock::stock
