#include "gsp/derived.h"

#include "core/connection.h"
#include "gsp/reading.h"
#include "gsp/texts.h"

namespace medistock::gsp {

using detail::Cells;

namespace {

AcceptanceRow acceptanceRowOf(const QSqlQuery &q)
{
    Cells c(q);
    AcceptanceRow row;
    row.id = c.id();
    row.number = c.text();
    row.goods = c.text();
    row.unit = c.text();
    row.quantity = c.number();
    row.price = c.number();
    row.amount = c.number();
    row.batch = c.text();
    row.produced = c.text();
    row.expiry = c.text();
    row.goodsName = c.text();
    row.packing = c.text();
    row.approval = c.text();
    row.dosage = c.text();
    row.supplierName = c.text();
    row.date = c.text();
    row.warehouseName = c.text();
    row.checkDate = c.text();
    row.checker = c.text();
    row.imported = c.flag();
    row.result = texts::acceptedResult();
    row.packaging = texts::packagingResult();
    row.certificate = texts::certificatePresent();
    row.handling = texts::acceptedHandling();
    return row;
}

PrescriptionRow prescriptionRowOf(const QSqlQuery &q)
{
    Cells c(q);
    PrescriptionRow row;
    row.id = c.id();
    row.number = c.text();
    row.goods = c.text();
    row.unit = c.text();
    row.quantity = c.number();
    row.price = c.number();
    row.amount = c.number();
    row.batch = c.text();
    row.produced = c.text();
    row.expiry = c.text();
    row.instructions = c.text();
    row.patient = c.text();
    row.idCard = c.text();
    row.prescriptionNumber = c.text();
    row.address = c.text();
    row.mobile = c.text();
    row.pharmacist = c.text();
    row.goodsName = c.text();
    row.packing = c.text();
    row.dosage = c.text();
    row.imported = c.flag();
    row.registration = c.text();
    row.category = c.text();
    row.manufacturer = c.text();
    row.customerName = c.text();
    row.date = c.text();
    row.warehouseName = c.text();
    row.checker = c.text();
    row.checkDate = c.text();
    return row;
}

SplittingRow splittingRowOf(const QSqlQuery &q, const QString &checker)
{
    Cells c(q);
    SplittingRow row;
    row.id = c.id();
    row.kind = c.text();
    row.number = c.text();
    row.date = c.text();
    row.goods = c.text();
    row.goodsName = c.text();
    row.packing = c.text();
    row.unit = c.text();
    row.splitFactor = c.number();
    row.purchased = c.number();
    row.sold = c.number();
    row.price = c.number();
    row.batch = c.text();
    row.produced = c.text();
    row.expiry = c.text();
    row.partyName = c.text();
    c.next(); // ck_sn, for the join with batch stock
    row.warehouseName = c.text();
    row.batchStock = c.optionalNumber();
    row.checker = checker;
    return row;
}

// One side of the splitting record: the ledger rows of two kinds, the quantity in the side's
// column and 0 in the other.
QString splittingSide(bool purchases, const QString &conditions)
{
    return QStringLiteral(
        "select a.id,a.gl_flag,a.gl_djh,a.gl_kdrq,a.g_sn,a.g_name,a.gg_name,a.dw_name,b.g_clxs,%1,"
        "a.gl_dj,a.t_ph,a.t_scrq,a.t_yxq,a.ghs_name,a.ck_sn,e.ck_name "
        "from jxc_goodslist a,jxc_goods b,jxc_ckxx e where a.g_sn=b.g_sn and a.ck_sn=e.ck_sn "
        "and b.g_clxs>0 and (a.gl_flag=? or a.gl_flag=?) and a.gl_kdrq>=? and a.gl_kdrq<=?%2")
        .arg(purchases ? QStringLiteral("a.gl_sl as jh_sl,0 as xs_sl")
                       : QStringLiteral("0 as jh_sl,a.gl_sl as xs_sl"),
            conditions);
}

} // namespace

Result<QList<AcceptanceRow>> acceptanceRecord(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<AcceptanceRow>(session, filter, [&](QList<AcceptanceRow> &rows) {
        const Conditions where = conditionsOf(session, filter,
            { { QStringLiteral("a.j_sn"), QStringLiteral("d.ghs_sn"), QStringLiteral("d.ghs_name"),
                  QStringLiteral("d.ghs_jm") },
                QStringLiteral("c.ck_sn"), QStringLiteral("e") });
        const QVariantList params = rangeParams(filter, { 1 }, where);
        session.db().forEach(
            QStringLiteral(
                "select a.id,a.j_sn,a.g_sn,a.dw_name,a.jh_sl,a.jh_dj,a.jh_zje,a.t_ph,a.t_scrq,"
                "a.t_yxq,b.g_name,b.gg_name,b.color_name,b.g_yjlx,d.ghs_name,c.j_jhrq,e.ck_name,"
                "c.j_chkrq,c.j_checker,b.g_isjk from jxc_jhsp a,jxc_goods b,jxc_jhd c,jxc_ghsxx d,"
                "jxc_ckxx e where a.g_sn=b.g_sn and a.j_sn=c.j_sn and c.ghs_sn=d.ghs_sn and "
                "c.ck_sn=e.ck_sn and c.j_status=? and c.j_jhrq>=? and c.j_jhrq<=?")
                + where.sql() + QStringLiteral(" order by a.id desc"),
            params, [&](const QSqlQuery &q) { rows.append(acceptanceRowOf(q)); });
    });
}

Result<QList<PrescriptionRow>> prescriptionRecord(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<PrescriptionRow>(session, filter, [&](QList<PrescriptionRow> &rows) {
        const Conditions where = conditionsOf(session, filter,
            { { QStringLiteral("a.gl_djh"), QStringLiteral("d.kh_sn"), QStringLiteral("d.kh_name"),
                  QStringLiteral("d.kh_jm") },
                QStringLiteral("c.ck_sn"), QStringLiteral("e") });
        const QVariantList params = rangeParams(filter, { 1, 0 }, where);
        session.db().forEach(
            QStringLiteral(
                "select a.id,a.gl_djh,a.g_sn,a.dw_name,a.ls_sl,a.ls_dj,a.ls_zje,a.t_ph,a.t_scrq,"
                "a.t_yxq,a.t_cfsm,a.ls_xm,a.ls_cardno,a.t_cfhm,a.t_addr,a.t_mobile,a.t_yaoshi,"
                "b.g_name,b.gg_name,b.g_yjlx,b.g_isjk,b.g_zczh,b.gsp_name,b.g_sccs,d.kh_name,"
                "c.ls_xsrq,e.ck_name,c.ls_checker,c.ls_chkrq from jxc_lsxssp a,jxc_goods b,"
                "jxc_lsxsd c,jxc_khxx d,jxc_ckxx e where a.g_sn=b.g_sn and a.gl_djh=c.gl_djh and "
                "c.kh_sn=d.kh_sn and c.ck_sn=e.ck_sn and c.ls_status=? and b.g_iscf<>? and "
                "c.ls_xsrq>=? and c.ls_xsrq<=?")
                + where.sql() + QStringLiteral(" order by a.id desc"),
            params, [&](const QSqlQuery &q) { rows.append(prescriptionRowOf(q)); });
    });
}

Result<QList<SplittingRow>> splittingRecord(
    const shell::Session &session, const RecordFilter &filter)
{
    return detail::readRows<SplittingRow>(session, filter, [&](QList<SplittingRow> &rows) {
        const Conditions where = conditionsOf(session, filter,
            { { QStringLiteral("a.gl_djh"), QStringLiteral("a.ghs_sn"),
                  QStringLiteral("a.ghs_name") },
                QStringLiteral("a.ck_sn"), QStringLiteral("e") });
        QVariantList params
            = rangeParams(filter, { QStringLiteral("cj"), QStringLiteral("ct") }, where);
        params.append(rangeParams(filter, { QStringLiteral("xs"), QStringLiteral("xt") }, where));
        const QString checker = texts::splittingChecker();
        session.db().forEach(QStringLiteral("select m.*,k.t_sl from (")
                + splittingSide(true, where.sql()) + QStringLiteral(" union all ")
                + splittingSide(false, where.sql())
                + QStringLiteral(") m left join jxc_tkc k on m.g_sn=k.g_sn and m.ck_sn=k.ck_sn "
                                 "and m.t_ph=k.t_ph order by m.gl_kdrq desc,m.id desc"),
            params, [&](const QSqlQuery &q) { rows.append(splittingRowOf(q, checker)); });
    });
}

} // namespace medistock::gsp
