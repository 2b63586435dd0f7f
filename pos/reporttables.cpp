#include "pos/reporttables.h"

namespace medistock::pos {

namespace {

using Kind = ReportColumn::Kind;

ReportColumn text(const char *caption, const char *field)
{
    return { QString::fromUtf8(caption), QString::fromLatin1(field), Kind::Text, false };
}

ReportColumn figure(const char *caption, const char *field, Kind kind, bool summed = true)
{
    return { QString::fromUtf8(caption), QString::fromLatin1(field), kind, summed };
}

ReportColumn amount(const char *caption, const char *field)
{
    return figure(caption, field, Kind::Amount);
}

} // namespace

ReportTable journalTable(const QList<JournalRow> &rows)
{
    ReportTable t {
        { text("单据号", "gl_djh"), text("销售时间", "pos_xsrq"), text("单据类型", "djlx"),
            text("会员卡号", "hy_bh"), text("会员姓名", "hy_name"), text("仓库", "ck_name"),
            text("收银员", "a_name"), text("经办人", "u_name"), amount("应收金额", "pos_yfje"),
            amount("实收金额", "pos_sfje"), amount("现金", "pos_xj"), amount("储值卡", "pos_czk"),
            amount("银行卡", "pos_yhk"), amount("医保卡", "pos_djq"), amount("微信", "pos_wxje"),
            amount("支付宝", "pos_zfbje"), amount("找零金额", "pos_zlje"),
            amount("抹零金额", "pos_mlje"), amount("优惠金额", "pos_yhzkje"),
            figure("本次积分", "pos_bcjf", Kind::Quantity), text("备注", "pos_note") },
        {}
    };
    for (const JournalRow &r : rows)
        t.rows.append(
            { r.number, r.time, r.kind, r.memberCard, r.memberName, r.warehouseName, r.cashier,
                r.employeeName, r.receivable, r.received, r.cash, r.card, r.bankCard, r.insurance,
                r.wechat, r.alipay, r.change, r.roundingOff, r.discount, r.points, r.note });
    return t;
}

ReportTable linesTable(const QList<JournalLine> &rows)
{
    ReportTable t { { text("单据号", "gl_djh"), text("销售时间", "pos_xsrq"),
                        text("商品编号", "g_sn"), text("商品名称", "gname"),
                        text("规格", "gg_name"), text("单位", "dw_name"),
                        figure("单价", "pos_dj", Kind::Price, false),
                        figure("打折率", "pos_dzl", Kind::Rate, false),
                        figure("数量", "pos_sl", Kind::Quantity), amount("总金额", "pos_zje"),
                        amount("总成本", "pos_zcb"), amount("利润", "lr"), text("赠品", "t_zp"),
                        text("批号", "t_ph"), text("有效期至", "t_yxq"), text("收银员", "a_name") },
        {} };
    for (const JournalLine &l : rows)
        t.rows.append({ l.number, l.time, l.goods, l.name, l.packing, l.unit, l.price, l.discountRate,
            l.quantity, l.amount, l.cost, l.profit, l.giftMarker, l.batch, l.expiry, l.cashier });
    return t;
}

ReportTable goodsSalesTable(const QList<GoodsSalesRow> &rows)
{
    ReportTable t { { text("商品编号", "g_sn"), text("商品名称", "gname"), text("规格", "gg_name"),
                        text("单位", "dw_name"), figure("数量", "sl", Kind::Quantity),
                        amount("总金额", "zje"), amount("总成本", "cb"), amount("利润", "lr") },
        {} };
    for (const GoodsSalesRow &r : rows)
        t.rows.append({ r.goods, r.name, r.packing, r.unit, r.quantity, r.amount, r.cost, r.profit });
    return t;
}

ReportTable rankingTable(const QList<RankingRow> &rows, RankingView view)
{
    ReportTable t;
    t.columns.append(figure("名次", "mc", Kind::Count, false));
    if (view == RankingView::Goods)
        t.columns << text("商品编号", "g_sn") << text("商品名称", "gname");
    else if (view == RankingView::GoodsClass)
        t.columns << text("类别编号", "gc_sn") << text("类别名称", "gcname");
    else
        t.columns << text("收银员", "a_name");
    t.columns << figure("销售数量", "sl", Kind::Quantity) << amount("总销售额", "zje")
              << amount("销售利润", "lr") << figure("销售利润率(%)", "lrl", Kind::Rate, false);
    for (const RankingRow &r : rows) {
        QVariantList row { r.rank, r.key };
        if (view != RankingView::Cashier)
            row << r.name;
        row << r.quantity << r.amount << r.profit << r.rate;
        t.rows.append(row);
    }
    return t;
}

ReportTable memberSalesTable(const QList<MemberSalesRow> &rows)
{
    ReportTable t {
        { text("单据号", "gl_djh"), text("日期", "gl_kdrq"), text("单据类型", "djlx"),
            text("会员卡号", "hy_bh"), text("会员姓名", "hy_name"), text("会员等级", "hl_name"),
            text("手机", "hy_mobile"), figure("卡内余额", "hy_zhje", Kind::Amount, false),
            text("商品编号", "g_sn"), text("商品名称", "g_name"), text("单位", "dw_name"),
            figure("数量", "gl_sl", Kind::Quantity), amount("金额", "gl_zje"),
            amount("利润", "gl_lr"), figure("利润率(%)", "lrl", Kind::Rate, false) },
        {}
    };
    for (const MemberSalesRow &r : rows)
        t.rows.append({ r.number, r.date, r.kind, r.card, r.name, r.levelName, r.mobile, r.balance,
            r.goods, r.goodsName, r.unit, r.quantity, r.amount, r.profit, r.rate });
    return t;
}

ReportTable cashierTable(const QList<CashierTakingsRow> &rows)
{
    ReportTable t { { text("收银员编号", "sn"), text("收银员", "a_name"),
                        figure("单据数", "ds", Kind::Count), amount("应收金额", "yfje"),
                        amount("实收金额", "sfje"), amount("现金", "xj"), amount("储值卡", "czk"),
                        amount("银行卡", "yhk"), amount("医保卡", "djq"), amount("微信", "wxje"),
                        amount("支付宝", "zfbje"), amount("抹零金额", "mlje") },
        {} };
    for (const CashierTakingsRow &r : rows)
        t.rows.append({ r.code, r.cashier, r.documents, r.receivable, r.received, r.cash, r.card,
            r.bankCard, r.insurance, r.wechat, r.alipay, r.roundingOff });
    return t;
}

ReportTable tillCashTable(const QList<TillCashRow> &rows)
{
    ReportTable t { { text("单据号", "gl_djh"), text("开单日期", "crk_rq"),
                        amount("入款金额", "rkje"), amount("出款金额", "ckje"), text("类型", "lx"),
                        text("备注", "crk_note"), text("操作员", "a_name") },
        {} };
    for (const TillCashRow &r : rows)
        t.rows.append({ r.number, r.time, r.in, r.out, r.kind, r.note, r.cashier });
    return t;
}

ReportTable commissionTable(const QList<CommissionRow> &rows)
{
    // Kinds overlap (101 and 1001 count the same employee's sales twice over), so only the
    // commission itself adds up.
    const auto single = [](const char *caption, const char *field, Kind kind = Kind::Amount) {
        return figure(caption, field, kind, false);
    };
    ReportTable t {
        { text("业务员编号", "g_sn"), text("业务员姓名", "hz_txt1"), text("统计类别", "hz_txt2"),
            single("销售金额", "hz_kc"), single("可提成金额", "hz_kczje"),
            single("销售毛利", "hz_rksl"), single("可提成毛利", "hz_rkzje"),
            single("提成数量", "hz_cksl", Kind::Quantity), amount("提成金额", "hz_ckzje"),
            single("最低提成毛利", "hz_glkc", Kind::Price),
            single("提成比例", "hz_glkczje", Kind::Rate) },
        {}
    };
    for (const CommissionRow &r : rows)
        t.rows.append({ r.employee, r.name, r.kind, r.sales, r.base, r.profit, r.profitBase,
            r.quantity, r.commission, r.minimumProfit, r.rate });
    return t;
}

} // namespace medistock::pos
