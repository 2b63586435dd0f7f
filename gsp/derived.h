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

// The quality records that are read off checked documents and the goods ledger: nothing is
// entered for them. Each list takes the record filter (dates, keyword on the document number and
// the partner's code, name and mnemonic, a warehouse) and comes newest first; only the
// warehouses the operator is bound to count when operators are bound to warehouses. A date that
// is not a real date is refused, and told.

// "药品验收记录": the lines of checked purchase receipts dated in the range, with the constant
// conclusions "合格", "合格", "有", "接收". An unchecked receipt never appears.
struct AcceptanceRow
{
    qint64 id = 0; // jxc_jhsp.id
    QString number; // j_sn
    QString goods; // g_sn
    QString goodsName; // g_name
    QString packing; // gg_name
    QString approval; // color_name "批准文号"
    QString dosage; // g_yjlx
    bool imported = false; // g_isjk
    QString unit; // dw_name of the line
    double quantity = 0; // jh_sl
    double price = 0; // jh_dj
    double amount = 0; // jh_zje
    QString batch; // t_ph
    QString produced; // t_scrq
    QString expiry; // t_yxq
    QString supplierName; // ghs_name
    QString date; // j_jhrq
    QString warehouseName; // ck_name
    QString checkDate; // j_chkrq
    QString checker; // j_checker
    QString result; // ysjg "合格"
    QString packaging; // bzjc "合格"
    QString certificate; // hgz "有"
    QString handling; // clyj "接收"
};
Result<QList<AcceptanceRow>> acceptanceRecord(
    const shell::Session &session, const RecordFilter &filter);

// "药方管理记录" and "处方药销售记录": the lines of checked sales of prescription goods
// (g_iscf<>0) dated in the range, with the prescription details the sale recorded.
struct PrescriptionRow
{
    qint64 id = 0; // jxc_lsxssp.id
    QString number; // gl_djh
    QString goods;
    QString goodsName;
    QString packing; // gg_name
    QString dosage; // g_yjlx
    bool imported = false; // g_isjk
    QString registration; // g_zczh "注册证号"
    QString category; // gsp_name
    QString manufacturer; // g_sccs
    QString unit; // dw_name of the line
    double quantity = 0; // ls_sl
    double price = 0; // ls_dj
    double amount = 0; // ls_zje
    QString batch;
    QString produced;
    QString expiry;
    QString instructions; // t_cfsm "处方说明"
    QString patient; // ls_xm "姓名"
    QString idCard; // ls_cardno "身份证号"
    QString prescriptionNumber; // t_cfhm "处方号码"
    QString address; // t_addr
    QString mobile; // t_mobile
    QString pharmacist; // t_yaoshi
    QString customerName; // kh_name
    QString date; // ls_xsrq
    QString warehouseName;
    QString checker; // ls_checker
    QString checkDate; // ls_chkrq
};
Result<QList<PrescriptionRow>> prescriptionRecord(
    const shell::Session &session, const RecordFilter &filter);

// "药品拆零记录": ledger rows of goods with a splitting factor (g_clxs>0), purchases ("cj",
// "ct") with their quantity as bought and sales ("xs", "xt") as sold, each beside what its
// batch (goods, warehouse, batch number) still holds; ordered by date, then row, newest first.
struct SplittingRow
{
    qint64 id = 0; // jxc_goodslist.id
    QString kind; // gl_flag
    QString number; // gl_djh
    QString date; // gl_kdrq
    QString goods;
    QString goodsName;
    QString packing;
    QString unit;
    double splitFactor = 0; // g_clxs
    double purchased = 0; // jh_sl: gl_sl of a purchase row, else 0
    double sold = 0; // xs_sl: gl_sl of a sales row, else 0
    double price = 0; // gl_dj
    QString batch;
    QString produced;
    QString expiry;
    QString partyName; // ghs_name of the ledger (the customer on sales rows)
    QString warehouseName;
    QString checker; // "质量管理员"
    std::optional<double> batchStock; // t_sl; none when the batch has no row
};
Result<QList<SplittingRow>> splittingRecord(
    const shell::Session &session, const RecordFilter &filter);

} // namespace medistock::gsp
