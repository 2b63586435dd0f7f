#include "masterdata/kinds.h"

namespace medistock::masterdata {

namespace {

constexpr Reference goodsReferences[] = {
    { "jxc_goodslist", "g_sn", "商品流水账" },
    { "jxc_kcsp", "g_sn", "库存" },
    { "jxc_tkc", "g_sn", "批次库存" },
    { "jxc_jhsp", "g_sn", "采购进货单" },
    { "jxc_thsp", "g_sn", "采购退货单" },
    { "jxc_cgsp", "g_sn", "采购订单" },
    { "jxc_cgplansp", "g_sn", "采购计划单" },
    { "jxc_lsxssp", "g_sn", "销售单" },
    { "jxc_lsxssptemp", "g_sn", "待保存的销售单" },
    { "jxc_xsthsp", "g_sn", "销售退货单" },
    { "jxc_xssp", "g_sn", "销售订单" },
    { "jxc_dbsp", "g_sn", "库存调拨单" },
    { "jxc_kcpdsp", "g_sn", "库存盘点单" },
    { "jxc_bssp", "g_sn", "报损单" },
    { "jxc_bysp", "g_sn", "报溢单" },
    { "jxc_khjhsp", "g_sn", "客户借货单" },
    { "jxc_posxssp", "g_sn", "POS销售单" },
    { "jxc_posthsp", "g_sn", "POS退货单" },
    { "jxc_rksp", "g_sn", "商品入库单" },
    { "jxc_cksp", "g_sn", "商品出库单" },
    { "jxc_cfsp", "g_sn", "商品拆分单" },
    { "jxc_kbsp", "g_sn", "商品捆绑单" },
};

constexpr Reference customerReferences[] = {
    { "jxc_lsxsd", "kh_sn", "销售单" },
    { "jxc_xsthd", "kh_sn", "销售退货单" },
    { "jxc_xsd", "kh_sn", "销售订单" },
    { "jxc_khjh", "kh_sn", "客户借货单" },
    { "jxc_ysyfk", "k_ghskh", "应收帐款", "k_type='kh'" },
    { "jxc_ysyfk_dj", "k_ghskh", "收款登记", "k_type='kh'" },
    { "jxc_fpdjb", "fp_ghskh", "发票登记", "fp_type='kh'" },
};

constexpr Reference supplierReferences[] = {
    { "jxc_jhd", "ghs_sn", "采购进货单" },
    { "jxc_thd", "ghs_sn", "采购退货单" },
    { "jxc_cgd", "ghs_sn", "采购订单" },
    { "jxc_cgplan", "ghs_sn", "采购计划单" },
    { "jxc_ysyfk", "k_ghskh", "应付帐款", "k_type='ghs'" },
    { "jxc_ysyfk_dj", "k_ghskh", "付款登记", "k_type='ghs'" },
    { "jxc_fpdjb", "fp_ghskh", "发票登记", "fp_type='ghs'" },
    { "jxc_goodslist", "ghs_sn", "商品流水账" },
};

constexpr Reference warehouseReferences[] = {
    { "jxc_kcsp", "ck_sn", "库存" },
    { "jxc_tkc", "ck_sn", "批次库存" },
    { "jxc_goodslist", "ck_sn", "商品流水账" },
    { "jxc_jhd", "ck_sn", "采购进货单" },
    { "jxc_thd", "ck_sn", "采购退货单" },
    { "jxc_lsxsd", "ck_sn", "销售单" },
    { "jxc_xsthd", "ck_sn", "销售退货单" },
    { "jxc_xsd", "ck_sn", "销售订单" },
    { "jxc_kcdbd", "ck_out", "库存调拨单" },
    { "jxc_kcdbd", "ck_in", "库存调拨单" },
    { "jxc_kcpd", "ck_sn", "库存盘点单" },
    { "jxc_bsd", "ck_sn", "报损单" },
    { "jxc_byd", "ck_sn", "报溢单" },
    { "jxc_khjh", "ck_sn", "客户借货单" },
};

constexpr Reference employeeReferences[] = {
    { "jxc_jhd", "u_sn", "采购进货单" },
    { "jxc_thd", "u_sn", "采购退货单" },
    { "jxc_lsxsd", "u_sn", "销售单" },
    { "jxc_xsthd", "u_sn", "销售退货单" },
    { "jxc_xsd", "u_sn", "销售订单" },
    { "jxc_kcdbd", "u_sn", "库存调拨单" },
    { "jxc_kcpd", "u_sn", "库存盘点单" },
    { "jxc_bsd", "u_sn", "报损单" },
    { "jxc_byd", "u_sn", "报溢单" },
    { "jxc_ysyfk", "u_sn", "往来帐款" },
    { "jxc_yyfy", "u_sn", "费用及收入" },
    { "jxc_khjh", "u_sn", "客户借货单" },
};

// Lists whose names are copied into goods and documents: a name in use cannot be deleted.
constexpr Reference unitReferences[] = { { "jxc_goods", "dw_name", "商品资料", nullptr, true },
    { "jxc_goodsdw", "dw_name", "商品辅助单位", nullptr, true } };
constexpr Reference packSizeReferences[]
    = { { "jxc_goods", "gg_name", "商品资料", nullptr, true } };
constexpr Reference dosageReferences[] = { { "jxc_goods", "g_yjlx", "商品资料", nullptr, true } };
constexpr Reference genericReferences[] = { { "jxc_goods", "g_tym", "商品资料", nullptr, true } };
constexpr Reference shelfReferences[] = { { "jxc_goods", "hj_name", "商品资料", nullptr, true } };
constexpr Reference gspReferences[] = { { "jxc_goods", "gsp_name", "商品资料", nullptr, true } };
constexpr Reference customerTypeReferences[] = { { "jxc_khxx", "kt_sn", "客户资料" } };
constexpr Reference supplierTypeReferences[]
    = { { "jxc_ghsxx", "gt_name", "供货商资料", nullptr, true } };
constexpr Reference zoneReferences[] = { { "jxc_khxx", "z_name", "客户资料", nullptr, true },
    { "jxc_ghsxx", "z_name", "供货商资料", nullptr, true } };
constexpr Reference memberReferences[] = {
    { "jxc_posxsd", "hy_sn", "POS销售单" },
    { "jxc_hyxf", "hy_sn", "会员充值" },
    { "jxc_dhd", "hy_sn", "赠品兑换单" },
    { "jxc_lsxsd", "hy_sn", "销售单" },
    { "jxc_xsthd", "hy_sn", "销售退货单" },
};
constexpr Reference memberLevelReferences[] = { { "jxc_hyxx", "hl_sn", "会员资料" } };
constexpr Reference discountSchemeReferences[] = { { "jxc_hyxx", "hh_sn", "会员资料" } };
constexpr Reference expenseTypeReferences[]
    = { { "jxc_yyfy", "fy_lx", "费用及收入", nullptr, true } };

constexpr const char *goodsDates[] = { "g_ks", "g_js" };
constexpr const char *supplierDates[] = { "ghs_yyrq", "ghs_xkrq", "ghs_gsprq", "ghs_gmprq",
    "ghs_wtrq", "ghs_zlrq", "ghs_zlrzrq", "ghs_ypjyxkzrq", "ghs_spjyxkzrq", "ghs_ylqxxkzrq",
    "ghs_elbapzrq", "ghs_wtrrq1", "ghs_wtrrq2" };
constexpr const char *memberDates[] = { "hy_jrrq", "hy_dqrq", "hy_sr" };

constexpr const char *goodsSearch[] = { "g_sptm", "g_tym" };
constexpr const char *memberSearch[] = { "hy_bh", "hy_mobile", "hy_tele" };

constexpr ColumnDefault goodsDefaults[]
    = { { "g_zhxs", "1" }, { "g_dzll", "1" }, { "gc_sn", "1000" }, { "ghs_sn", "100001" } };
constexpr ColumnDefault customerDefaults[] = { { "ck_sn", "-1" }, { "ck_name", "所有仓库" },
    { "kt_sn", "1000" }, { "kt_name", "零售客户" } };
constexpr ColumnDefault employeeDefaults[] = { { "u_tctxt", "按销售额提成" }, { "ck_sn", "-1" },
    { "ck_name", "所有仓库" }, { "u_cg", "1" }, { "u_xs", "1" }, { "u_kc", "1" } };
constexpr ColumnDefault memberDefaults[] = { { "hl_sn", "100001" }, { "hh_sn", "100001" } };

constexpr MasterKind kinds[] = {
    { "goods", "商品", 1, "jxc_goods", "g_sn", "g_name", "商品名称", "g_jm", "g_jy", false,
        goodsDates, goodsReferences, goodsSearch, goodsDefaults, "g_sn<>'00000000'" },
    { "customer", "客户", 3, "jxc_khxx", "kh_sn", "kh_name", "客户名称", "kh_jm", "kh_forbid",
        false, {}, customerReferences, {}, customerDefaults },
    { "supplier", "供货商", 2, "jxc_ghsxx", "ghs_sn", "ghs_name", "供货商名称", "ghs_jm",
        "ghs_forbid", false, supplierDates, supplierReferences, {} },
    { "warehouse", "仓库", 5, "jxc_ckxx", "ck_sn", "ck_name", "仓库名称", "ck_jm", nullptr, true,
        {}, warehouseReferences, {} },
    { "employee", "员工", 4, "jxc_user", "u_sn", "u_name", "员工姓名", "u_jm", "u_jy", false, {},
        employeeReferences, {}, employeeDefaults },
    { "member", "会员", 10, "jxc_hyxx", "hy_sn", "hy_name", "会员姓名", "hy_jm", nullptr, false,
        memberDates, memberReferences, memberSearch, memberDefaults },
    // Levels keep their bounds apart (members/levels.h); the list serves lookups and deletion.
    { "member-level", "会员等级", 10, "jxc_hyfl", "hl_sn", "hl_name", "会员等级", nullptr, nullptr,
        true, {}, memberLevelReferences, {} },
    { "discount-scheme", "优惠方式", 10, "jxc_hyyh", "hh_sn", "hh_name", "优惠方式", nullptr,
        nullptr, true, {}, discountSchemeReferences, {} },
    { "unit", "单位", 1, "jxc_dw", "dw_sn", "dw_name", "单位名称", nullptr, nullptr, true, {},
        unitReferences, {} },
    { "packsize", "规格", 1, "jxc_ggxh", "gg_sn", "gg_name", "规格型号", nullptr, nullptr, true, {},
        packSizeReferences, {} },
    { "dosage", "药剂类型", 1, "jxc_yjlx", "lx_sn", "g_yjlx", "药剂类型", nullptr, nullptr, true,
        {}, dosageReferences, {} },
    { "generic", "通用名", 1, "jxc_tym", "tym_sn", "g_tym", "通用名", nullptr, nullptr, true, {},
        genericReferences, {} },
    { "shelf", "库位", 1, "jxc_hjxx", "hj_sn", "hj_name", "库位", nullptr, nullptr, true, {},
        shelfReferences, {} },
    { "gsp", "GSP类别", 1, "jxc_gspcs", "gsp_sn", "gsp_name", "GSP类别名称", nullptr, nullptr, true,
        {}, gspReferences, {} },
    { "department", "部门", 4, "jxc_dept", "de_sn", "de_name", "部门名称", nullptr, nullptr, true,
        {}, {}, {} },
    { "customer-type", "客户类型", 3, "jxc_khtype", "kt_sn", "kt_name", "客户类型", nullptr,
        nullptr, true, {}, customerTypeReferences, {} },
    { "supplier-type", "供货商类型", 2, "jxc_ghstype", "gt_sn", "gt_name", "供货商类型", nullptr,
        nullptr, true, {}, supplierTypeReferences, {} },
    { "zone", "地区", 3, "jxc_zone", "z_sn", "z_name", "地区名称", "z_jm", nullptr, true, {},
        zoneReferences, {} },
    { "payment", "付款方式", 12, "jxc_fkfs", "fk_sn", "fk_name", "付款方式", nullptr, nullptr, true,
        {}, {}, {} },
    { "expense-type", "费用类型", 12, "jxc_fylx", nullptr, "fy_lx", "费用类型", nullptr, nullptr,
        true, {}, expenseTypeReferences, {} },
    { "express", "快递公司", 12, "jxc_kdgs", "kg_sn", "kg_name", "快递公司", nullptr, nullptr, true,
        {}, {}, {} },
};

} // namespace

std::span<const MasterKind> masterKinds()
{
    return kinds;
}

const MasterKind *findMasterKind(const QString &key)
{
    for (const MasterKind &kind : kinds)
        if (key == QLatin1String(kind.key))
            return &kind;
    return nullptr;
}

const MasterKind &goodsKind()
{
    return kinds[0];
}

} // namespace medistock::masterdata
