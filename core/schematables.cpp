// The account-set schema: every table in creation order, with its columns as declared and
// its seed rows. Transcribed once from the table lists; maintained by hand from here on.
#include "core/schemacatalogue.h"

namespace medistock::core {
namespace {

constexpr SeedValue text(const char *t) { return SeedValue::text(t); }
constexpr SeedValue number(const char *n) { return SeedValue::number(n); }

constexpr ColumnDef jxc_skin_columns[] = {
    {"id", "Counter", ""},
    {"skin_name", "varchar(64)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};
constexpr SeedValue jxc_skin_seed0[] = {
    text("iMaginary"), text("admin"),
};
constexpr SeedRow jxc_skin_seeds[] = {
    {"jxc_skin", "skin_name,a_name", jxc_skin_seed0},
};

constexpr ColumnDef jxc_goodsclass_columns[] = {
    {"id", "Counter", ""},
    {"gc_sn", "varchar(32)", "类别编号"},
    {"gc_name", "nvarchar(64)", "商品类别"},
    {"gc_jm", "varchar(32)", ""},
    {"gc_key", "int", ""},
    {"gc_pid", "int", ""},
    {"gc_cid", "int", ""},
};
constexpr SeedValue jxc_goodsclass_seed0[] = {
    text("所有类别"), number("0"), number("1"), text(""), text("SYLB"), number("1"),
};
constexpr SeedValue jxc_goodsclass_seed1[] = {
    text("默认类别"), number("1"), number("2"), text("1000"), text("MRLB"), number("2"),
};
constexpr SeedRow jxc_goodsclass_seeds[] = {
    {"jxc_goodsclass", "gc_name,gc_pid,gc_cid,gc_sn,gc_jm,gc_key", jxc_goodsclass_seed0},
    {"jxc_goodsclass", "gc_name,gc_pid,gc_cid,gc_sn,gc_jm,gc_key", jxc_goodsclass_seed1},
};

constexpr ColumnDef jxc_goods_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_name", "nvarchar(128)", "商品名称"},
    {"g_jm", "varchar(32)", "名称简码"},
    {"g_jj", "numeric(28,8)", "预设进价"},
    {"g_sj", "numeric(28,8)", "预设售价"},
    {"g_sj1", "numeric(28,8)", "一级价格"},
    {"g_sj2", "numeric(28,8)", "二级价格"},
    {"g_sj3", "numeric(28,8)", "三级价格"},
    {"g_sj4", "numeric(28,8)", "四级价格"},
    {"g_sj5", "numeric(28,8)", "五级价格"},
    {"g_lsj", "numeric(28,8)", "零售价"},
    {"g_zdkc", "int", "最低库存"},
    {"g_tjsp", "bit", "特价商品"},
    {"g_sccs", "nvarchar(200)", "生产厂商"},
    {"g_bz", "nvarchar(200)", "备注"},
    {"g_kc", "numeric(28,8)", "库存数"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"g_gdcbj", "bit", "销售成本价"},
    {"dw_name2", "nvarchar(64)", "单位2"},
    {"g_scjj", "numeric(28,8)", "上次进价"},
    {"g_cbj", "numeric(28,8)", ""},
    {"g_cgpl", "int", ""},
    {"g_xspl", "int", ""},
    {"g_jy", "bit", "禁用"},
    {"g_iscf", "bit", "处方药"},
    {"bl", "int", ""},
    {"g_tclb", "int", ""},
    {"g_tclr", "numeric(28,8)", ""},
    {"g_tc", "numeric(28,8)", "提成"},
    {"g_xzsl", "numeric(28,8)", "限制数量"},
    {"g_xzsl2", "numeric(28,8)", ""},
    {"g_sptm", "nvarchar(64)", "商品条码"},
    {"g_sptm2", "nvarchar(64)", ""},
    {"g_pjjj", "numeric(28,8)", ""},
    {"g_zbq", "varchar(64)", ""},
    {"g_dzll", "numeric(28,8)", "销售折扣"},
    {"g_hyj", "numeric(28,8)", "会员价"},
    {"g_tj", "numeric(28,8)", "特价"},
    {"g_tjqx", "bit", "特价期限"},
    {"g_ks", "varchar(32)", "开始日期"},
    {"g_js", "varchar(32)", "结束日期"},
    {"g_dxdz", "bit", "单项打折"},
    {"g_updatepos", "varchar(64)", ""},
    {"g_iszp", "bit", "赠品"},
    {"g_zpjf", "numeric(28,8)", "兑换积分"},
    {"g_clxs", "numeric(28,8)", "拆零系数"},
    {"g_yjlx", "nvarchar(64)", "药剂类型"},
    {"g_tym", "nvarchar(64)", "通用名"},
    {"g_jc", "nvarchar(64)", "简称"},
    {"g_scxkz", "nvarchar(64)", "生产许可证"},
    {"g_zczh", "varchar(32)", "注册证号"},
    {"g_cztj", "nvarchar(32)", "储藏条件"},
    {"g_yhlx", "nvarchar(32)", "养护类型"},
    {"gsp_name", "nvarchar(32)", "药品类型"},
    {"hj_name", "nvarchar(64)", "库位"},
    {"g_qxlx", "nvarchar(16)", "器械类型"},
    {"g_sykz", "bit", "首营"},
    {"g_isjk", "bit", "进口药品"},
    {"g_dwpz", "bit", "低温"},
    {"g_dzjgm", "bit", "监管码"},
    {"g_sy", "bit", ""},
    {"g_tcje", "numeric(28,8)", ""},
    {"g_bzq", "numeric(28,8)", "保质期"},
    {"g_tssp", "bit", ""},
    {"g_tsjf", "numeric(28,8)", "每件积分"},
    {"gc_cid", "int", ""},
    {"gc_sn", "varchar(32)", "类别编号"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"gg_name", "nvarchar(64)", "规格型号"},
    {"color_name", "nvarchar(64)", "批准文号"},
    {"gg_jm", "varchar(64)", ""},
    {"color_jm", "varchar(64)", ""},
    {"g_ybbh", "nvarchar(64)", ""},
    {"ghs_sn", "varchar(8)", "编号"},
};
constexpr SeedValue jxc_goods_seed0[] = {
    text("00000000"), text("优惠商品"), text("YHSP"), number("1"), number("0"), number("0"),
    number("0"), number("0"), text(""), text("在销售或进货有优惠时,平衡商品总额!"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("1"), text(""), number("0"), text("100001"),
    number("2"), text(""), text(""), text(""), text(""), number("1"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), text("不养护"),
    text("无"), text(""), text("无"), number("0"), number("0"), number("0"), number("0"),
};
constexpr SeedRow jxc_goods_seeds[] = {
    {"jxc_goods", "g_sn,g_name,g_jm,g_zhxs,g_jj,g_sj,g_zdkc,g_tjsp,g_sccs,g_bz,g_kc,g_scjj,g_cbj,g_cgpl,g_xspl,g_jy,g_sptm,g_pjjj,ghs_sn,gc_cid,gc_sn,dw_name,gg_name,color_name,g_dzll,g_hyj,g_tj,g_tjqx,g_dxdz,g_iszp,g_zpjf,g_sj1,g_sj2,g_sj3,g_sj4,g_sj5,g_lsj,g_tclb,g_tc,g_iscf,g_yhlx,gsp_name,hj_name,g_qxlx,g_sykz,g_isjk,g_dwpz,g_dzjgm", jxc_goods_seed0},
};

constexpr ColumnDef jxc_color_columns[] = {
    {"id", "Counter", ""},
    {"color_sn", "varchar(8)", "编号"},
    {"color_name", "nvarchar(64)", "批准文号"},
    {"color_jm", "varchar(64)", ""},
    {"color_date", "varchar(32)", ""},
    {"color_click", "int", ""},
};
constexpr SeedValue jxc_color_seed0[] = {
    text("100001"), text("红色"), text("FXG"), text("2012-01-01"), number("0"),
};
constexpr SeedValue jxc_color_seed1[] = {
    text("100002"), text("蓝色"), text("MKE B"), text("2012-01-01"), number("0"),
};
constexpr SeedRow jxc_color_seeds[] = {
    {"jxc_color", "color_sn,color_name,color_jm,color_date,color_click", jxc_color_seed0},
    {"jxc_color", "color_sn,color_name,color_jm,color_date,color_click", jxc_color_seed1},
};

constexpr ColumnDef jxc_dw_columns[] = {
    {"id", "Counter", ""},
    {"dw_sn", "varchar(8)", "编号"},
    {"dw_name", "nvarchar(64)", "单位"},
};
constexpr SeedValue jxc_dw_seed0[] = {
    text("100002"), text("盒"),
};
constexpr SeedValue jxc_dw_seed1[] = {
    text("100003"), text("袋"),
};
constexpr SeedRow jxc_dw_seeds[] = {
    {"jxc_dw", "dw_sn,dw_name", jxc_dw_seed0},
    {"jxc_dw", "dw_sn,dw_name", jxc_dw_seed1},
};

constexpr ColumnDef jxc_ggxh_columns[] = {
    {"id", "Counter", ""},
    {"gg_sn", "varchar(8)", "编号"},
    {"gg_name", "nvarchar(64)", "规格型号"},
};
constexpr SeedValue jxc_ggxh_seed0[] = {
    text("100001"), text("500ml"),
};
constexpr SeedValue jxc_ggxh_seed1[] = {
    text("100002"), text("100ml"),
};
constexpr SeedRow jxc_ggxh_seeds[] = {
    {"jxc_ggxh", "gg_sn,gg_name", jxc_ggxh_seed0},
    {"jxc_ggxh", "gg_sn,gg_name", jxc_ggxh_seed1},
};

constexpr ColumnDef jxc_ckxx_columns[] = {
    {"id", "Counter", ""},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"ck_jm", "varchar(32)", ""},
    {"ck_fzr", "varchar(32)", "负责人"},
    {"ck_aname", "nvarchar(200)", "操作员"},
    {"ck_asn", "varchar(200)", ""},
    {"ck_tele", "varchar(32)", "联系电话"},
    {"ck_address", "nvarchar(64)", "仓库地址"},
    {"ck_note", "nvarchar(200)", "备注"},
    {"ck_default", "bit", "默认仓库"},
    {"ck_pos", "bit", "默认POS仓库"},
};
constexpr SeedValue jxc_ckxx_seed0[] = {
    text("100001"), text("主仓库"), text("ZCK"), text("小李"), text("admin,"), text("100001,"),
    number("1"), number("1"), text("各种商品"),
};
constexpr SeedRow jxc_ckxx_seeds[] = {
    {"jxc_ckxx", "ck_sn,ck_name,ck_jm,ck_fzr,ck_aname,ck_asn,ck_default,ck_pos,ck_note", jxc_ckxx_seed0},
};

constexpr ColumnDef jxc_kcsp_columns[] = {
    {"id", "Counter", ""},
    {"kc_sl", "numeric(28,8)", "库存数"},
    {"kc_cbj", "numeric(28,8)", "单价"},
    {"kc_zsl", "numeric(28,8)", "帐面库存(含未入库)"},
    {"kc_xssl", "numeric(28,8)", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
};

constexpr ColumnDef jxc_goodstmp_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_ghsxx_columns[] = {
    {"id", "Counter", ""},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ghs_name", "nvarchar(128)", "供货商名称"},
    {"ghs_jm", "varchar(128)", "简码"},
    {"ghs_lxr", "nvarchar(32)", "联系人"},
    {"ghs_tele", "varchar(64)", "联系电话"},
    {"ghs_address", "nvarchar(128)", "联系地址"},
    {"ghs_note", "nvarchar(200)", "备注"},
    {"ghs_lwje", "numeric(28,8)", "我方应付金额"},
    {"ghs_default", "bit", "默认供货商"},
    {"ghs_pl", "int", ""},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"ghs_forbid", "bit", "禁用"},
    {"ghs_fr", "nvarchar(32)", "法人"},
    {"ghs_frno", "varchar(32)", "法人身份证"},
    {"ghs_http", "varchar(64)", "企业网址"},
    {"ghs_khh", "nvarchar(32)", "开户行"},
    {"ghs_yhzh", "varchar(32)", "银行账号"},
    {"ghs_yyzzh", "varchar(32)", "营业执照"},
    {"ghs_xkzh", "varchar(32)", "许可证号"},
    {"ghs_gsp", "varchar(32)", "GSP证号"},
    {"ghs_gmp", "varchar(32)", "GMP证号"},
    {"ghs_wtsh", "varchar(32)", "委托书号"},
    {"ghs_zlbzxy", "varchar(32)", "质量保证协议号"},
    {"ghs_yyrq", "varchar(16)", "营业执照有效期"},
    {"ghs_xkrq", "varchar(16)", "许可证有效期"},
    {"ghs_gsprq", "varchar(16)", "GSP证书有效期"},
    {"ghs_gmprq", "varchar(16)", "GMP证书有效期"},
    {"ghs_wtrq", "varchar(16)", "委托书有效期"},
    {"ghs_zlrq", "varchar(16)", "质量保证协议有效期"},
    {"ghs_qyxz", "varchar(1)", ""},
    {"ghs_zczj", "varchar(16)", "注册资金"},
    {"ghs_zlrzqk", "varchar(32)", "质量认证情况"},
    {"ghs_zlrzrq", "varchar(16)", "质量认证有效期"},
    {"ghs_ypjyxkz", "nvarchar(64)", "药品经营许可证"},
    {"ghs_ypjyxkzrq", "varchar(16)", ""},
    {"ghs_spjyxkz", "nvarchar(64)", "食品经营许可证"},
    {"ghs_spjyxkzrq", "varchar(16)", ""},
    {"ghs_ylqxxkz", "nvarchar(64)", "医疗器械许可证"},
    {"ghs_ylqxxkzrq", "varchar(16)", ""},
    {"ghs_elbapz", "nvarchar(64)", "二类备案凭证"},
    {"ghs_elbapzrq", "varchar(16)", ""},
    {"ghs_wtr", "nvarchar(16)", "委托人姓名"},
    {"ghs_wtrno", "nvarchar(32)", "委托人身份证号"},
    {"ghs_wtrrq1", "varchar(16)", ""},
    {"ghs_wtrrq2", "varchar(16)", ""},
    {"gt_name", "nvarchar(32)", "供货商类型"},
    {"z_name", "nvarchar(32)", "所属地区"},
};
constexpr SeedValue jxc_ghsxx_seed0[] = {
    text("100001"), text("普通供货商"), text("PTGHS"), text(""), text(""), text(""),
    text("普通供货商为一些零碎的，不固定的商品供货商"), number("0"), number("1"), text(""), text(""), number("0"),
    text(""), text(""), text(""), text(""), text(""), text(""), text(""), text(""), text(""),
    text(""), text(""), SeedValue::today(), SeedValue::today(), SeedValue::today(),
    SeedValue::today(), SeedValue::today(), SeedValue::today(), text(""), text(""), text(""),
    SeedValue::today(), text(""), SeedValue::today(), text(""), SeedValue::today(), text(""),
    SeedValue::today(), text(""), SeedValue::today(), text(""), text(""), SeedValue::today(),
    SeedValue::today(), text(""), text(""),
};
constexpr SeedRow jxc_ghsxx_seeds[] = {
    {"jxc_ghsxx", "ghs_sn,ghs_name,ghs_jm,ghs_lxr,ghs_tele,ghs_address,ghs_note,ghs_lwje,ghs_default,ck_sn,ck_name,ghs_forbid,ghs_fr,ghs_frno,ghs_http,ghs_khh,ghs_yhzh,ghs_yyzzh,ghs_xkzh,ghs_gsp,ghs_gmp,ghs_wtsh,ghs_zlbzxy,ghs_yyrq,ghs_xkrq,ghs_gsprq,ghs_gmprq,ghs_wtrq,ghs_zlrq,ghs_qyxz,ghs_zczj,ghs_zlrzqk,ghs_zlrzrq,ghs_ypjyxkz,ghs_ypjyxkzrq,ghs_spjyxkz,ghs_spjyxkzrq,ghs_ylqxxkz,ghs_ylqxxkzrq,ghs_elbapz,ghs_elbapzrq,ghs_wtr,ghs_wtrno,ghs_wtrrq1,ghs_wtrrq2,gt_name,z_name", jxc_ghsxx_seed0},
};

constexpr ColumnDef jxc_goodsprice_columns[] = {
    {"id", "Counter", ""},
    {"gp_name", "varchar(32)", ""},
    {"gp_price", "numeric(28,8)", ""},
    {"g_sn", "varchar(32)", "商品编号"},
};

constexpr ColumnDef jxc_import_columns[] = {
    {"id", "Counter", ""},
    {"i_fieldid", "varchar(32)", ""},
    {"i_fieldname", "varchar(32)", "数据库的字段"},
    {"i_tablename", "varchar(32)", ""},
};
constexpr SeedValue jxc_import_seed0[] = {
    text("g_sn"), text("商品编号"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed1[] = {
    text("g_name"), text("商品名称"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed2[] = {
    text("g_sptm"), text("商品条码"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed3[] = {
    text("dw_name"), text("单位"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed4[] = {
    text("gg_name"), text("产品规格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed5[] = {
    text("color_name"), text("批准文号"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed6[] = {
    text("g_tym"), text("通用名"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed7[] = {
    text("g_yjlx"), text("药剂类型"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed8[] = {
    text("gsp_name"), text("药品类型"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed9[] = {
    text("g_zczh"), text("注册证号"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed10[] = {
    text("g_jj"), text("预设进价"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed11[] = {
    text("g_sj"), text("预设售价"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed12[] = {
    text("g_sj1"), text("一级价格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed13[] = {
    text("g_sj2"), text("二级价格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed14[] = {
    text("g_sj3"), text("三级价格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed15[] = {
    text("g_sj4"), text("四级价格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed16[] = {
    text("g_sj5"), text("五级价格"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed17[] = {
    text("g_lsj"), text("零售价"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed18[] = {
    text("g_zdkc"), text("最低库存"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed19[] = {
    text("g_sccs"), text("生产厂商"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed20[] = {
    text("gc_name"), text("商品类别"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed21[] = {
    text("g_bz"), text("备注"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed22[] = {
    text("g_bzq"), text("有效期(月)"), text("jxc_goods"),
};
constexpr SeedValue jxc_import_seed23[] = {
    text("ghs_name"), text("供货商名称"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed24[] = {
    text("ghs_lxr"), text("联系人"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed25[] = {
    text("ghs_tele"), text("联系电话"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed26[] = {
    text("ghs_lwje"), text("期初应付"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed27[] = {
    text("gt_name"), text("供货商类型"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed28[] = {
    text("z_name"), text("所属地区"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed29[] = {
    text("ghs_address"), text("联系地址"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed30[] = {
    text("ghs_note"), text("备注"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed31[] = {
    text("ghs_fr"), text("法人"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed32[] = {
    text("ghs_http"), text("企业网址"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed33[] = {
    text("ghs_zczj"), text("注册资金"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed34[] = {
    text("ghs_khh"), text("开户行"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed35[] = {
    text("ghs_yhzh"), text("银行账号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed36[] = {
    text("ghs_yyzzh"), text("统一社会信用代码"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed37[] = {
    text("ghs_xkzh"), text("许可证号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed38[] = {
    text("ghs_gsp"), text("GSP证号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed39[] = {
    text("ghs_gmp"), text("GMP证号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed40[] = {
    text("ghs_wtsh"), text("委托书号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed41[] = {
    text("ghs_zlbzxy"), text("质量保证协议号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed42[] = {
    text("ghs_zlrzqk"), text("质量认证情况"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed43[] = {
    text("ghs_frno"), text("法人身份证"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed44[] = {
    text("ghs_ypjyxkz"), text("药品经营许可证"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed45[] = {
    text("ghs_spjyxkz"), text("食品经营许可证"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed46[] = {
    text("ghs_ylqxxkz"), text("医疗器械许可证"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed47[] = {
    text("ghs_elbapz"), text("二类备案凭证"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed48[] = {
    text("ghs_wtr"), text("委托人姓名"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed49[] = {
    text("ghs_wtrno"), text("委托人身份证号"), text("jxc_ghsxx"),
};
constexpr SeedValue jxc_import_seed50[] = {
    text("kh_name"), text("客户名称"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed51[] = {
    text("kh_lxr"), text("联系人"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed52[] = {
    text("kh_tele"), text("联系电话"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed53[] = {
    text("kh_lwje"), text("期初应收"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed54[] = {
    text("kt_name"), text("客户类型"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed55[] = {
    text("z_name"), text("所属地区"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed56[] = {
    text("kh_address"), text("联系地址"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed57[] = {
    text("kh_note"), text("备注"), text("jxc_khxx"),
};
constexpr SeedValue jxc_import_seed58[] = {
    text("hy_bh"), text("会员卡号"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed59[] = {
    text("hy_name"), text("会员姓名"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed60[] = {
    text("hy_mm"), text("会员密码"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed61[] = {
    text("hy_sex"), text("性别"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed62[] = {
    text("hy_sr"), text("出生日期"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed63[] = {
    text("hy_jf"), text("会员积分"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed64[] = {
    text("hy_zhje"), text("卡内金额"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed65[] = {
    text("hy_zje"), text("累计消费"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed66[] = {
    text("hy_jrrq"), text("加入日期"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed67[] = {
    text("hy_dwzy"), text("单位职业"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed68[] = {
    text("hy_mobile"), text("移动电话"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed69[] = {
    text("hy_tele"), text("固定电话"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed70[] = {
    text("hy_email"), text("电子邮件"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed71[] = {
    text("hy_zjlx"), text("证件类型"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed72[] = {
    text("hy_zjhm"), text("证件号码"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed73[] = {
    text("hy_address"), text("联系地址"), text("jxc_hyxx"),
};
constexpr SeedValue jxc_import_seed74[] = {
    text("g_sn"), text("商品编号"), text("jxc_dbsp"),
};
constexpr SeedValue jxc_import_seed75[] = {
    text("g_name"), text("名称"), text("jxc_dbsp"),
};
constexpr SeedValue jxc_import_seed76[] = {
    text("dw_name"), text("单位"), text("jxc_dbsp"),
};
constexpr SeedValue jxc_import_seed77[] = {
    text("gg_name"), text("规格型号"), text("jxc_dbsp"),
};
constexpr SeedValue jxc_import_seed78[] = {
    text("color_name"), text("颜色"), text("jxc_dbsp"),
};
constexpr SeedValue jxc_import_seed79[] = {
    text("db_sl"), text("数量"), text("jxc_dbsp"),
};
constexpr SeedRow jxc_import_seeds[] = {
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed0},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed1},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed2},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed3},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed4},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed5},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed6},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed7},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed8},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed9},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed10},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed11},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed12},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed13},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed14},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed15},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed16},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed17},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed18},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed19},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed20},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed21},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed22},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed23},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed24},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed25},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed26},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed27},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed28},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed29},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed30},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed31},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed32},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed33},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed34},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed35},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed36},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed37},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed38},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed39},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed40},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed41},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed42},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed43},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed44},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed45},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed46},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed47},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed48},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed49},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed50},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed51},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed52},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed53},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed54},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed55},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed56},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed57},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed58},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed59},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed60},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed61},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed62},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed63},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed64},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed65},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed66},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed67},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed68},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed69},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed70},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed71},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed72},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed73},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed74},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed75},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed76},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed77},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed78},
    {"jxc_import", "i_fieldid,i_fieldname,i_tablename", jxc_import_seed79},
};

constexpr ColumnDef jxc_importchk_columns[] = {
    {"id", "Counter", ""},
    {"i_fieldid", "varchar(32)", ""},
    {"i_excelfield", "varchar(64)", "Excel文件的字段"},
    {"i_sele", "bit", ""},
    {"i_image", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_importdata_columns[] = {
    {"id", "Counter", ""},
    {"id_exceldata", "nvarchar(128)", "会员编号"},
    {"id_status", "nvarchar(64)", "导入状态"},
    {"id_sele", "bit", ""},
    {"id_image", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_goodsremind_columns[] = {
    {"id", "Counter", ""},
    {"gr_mode", "varchar(1)", ""},
    {"gr_date", "varchar(64)", ""},
    {"gr_note", "text", ""},
    {"gr_time", "varchar(32)", ""},
    {"gr_obj", "varchar(8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"g_sn", "varchar(32)", "商品编号"},
};

constexpr ColumnDef jxc_ghstype_columns[] = {
    {"id", "Counter", ""},
    {"gt_sn", "varchar(8)", "编号"},
    {"gt_name", "nvarchar(32)", "供货商类型"},
    {"gt_default", "bit", "默认选择"},
};
constexpr SeedValue jxc_ghstype_seed0[] = {
    text("100001"), text("A级供货商"), number("0"),
};
constexpr SeedValue jxc_ghstype_seed1[] = {
    text("100002"), text("B级供货商"), number("0"),
};
constexpr SeedValue jxc_ghstype_seed2[] = {
    text("100003"), text("C级供货商"), number("0"),
};
constexpr SeedRow jxc_ghstype_seeds[] = {
    {"jxc_ghstype", "gt_sn,gt_name,gt_default", jxc_ghstype_seed0},
    {"jxc_ghstype", "gt_sn,gt_name,gt_default", jxc_ghstype_seed1},
    {"jxc_ghstype", "gt_sn,gt_name,gt_default", jxc_ghstype_seed2},
};

constexpr ColumnDef jxc_zone_columns[] = {
    {"id", "Counter", ""},
    {"z_sn", "varchar(8)", "编号"},
    {"z_name", "nvarchar(32)", "所属地区"},
    {"z_jm", "varchar(32)", "简码"},
    {"z_default", "bit", "默认选择"},
};
constexpr SeedValue jxc_zone_seed0[] = {
    text("100001"), text("省会地区"), text("SHDQ"), number("0"),
};
constexpr SeedValue jxc_zone_seed1[] = {
    text("100002"), text("地市区域"), text("DSDQ"), number("0"),
};
constexpr SeedValue jxc_zone_seed2[] = {
    text("100003"), text("其他区域"), text("QTDQ"), number("0"),
};
constexpr SeedRow jxc_zone_seeds[] = {
    {"jxc_zone", "z_sn,z_name,z_jm,z_default", jxc_zone_seed0},
    {"jxc_zone", "z_sn,z_name,z_jm,z_default", jxc_zone_seed1},
    {"jxc_zone", "z_sn,z_name,z_jm,z_default", jxc_zone_seed2},
};

constexpr ColumnDef jxc_ghsfk_columns[] = {
    {"id", "Counter", ""},
    {"gf_sn", "varchar(16)", ""},
    {"gf_fkrq", "varchar(32)", ""},
    {"gf_fkfs", "varchar(32)", ""},
    {"gf_fkje", "numeric(28,8)", ""},
    {"gf_note", "nvarchar(200)", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"gf_je", "numeric(28,8)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ghs_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_khxx_columns[] = {
    {"id", "Counter", ""},
    {"kh_sn", "varchar(8)", "编号"},
    {"kh_name", "nvarchar(128)", "客户名称"},
    {"kh_jm", "varchar(128)", "简码"},
    {"kh_lxr", "nvarchar(32)", "联系人"},
    {"kh_tele", "varchar(64)", "联系电话"},
    {"kh_address", "nvarchar(128)", "联系地址"},
    {"kh_note", "nvarchar(200)", "备注"},
    {"kh_lwje", "numeric(28,8)", "我方应收金额"},
    {"kh_default", "bit", "默认客户"},
    {"kh_pl", "int", ""},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"kh_forbid", "bit", "禁用"},
    {"kh_uname", "nvarchar(200)", "业务员"},
    {"kh_usn", "varchar(200)", ""},
    {"kt_sn", "varchar(8)", "类型编号"},
    {"kt_name", "nvarchar(32)", "客户类型"},
    {"z_name", "nvarchar(32)", "所属地区"},
};
constexpr SeedValue jxc_khxx_seed0[] = {
    text("100001"), text("普通客户"), text("PTKH"), text(""), text(""), text(""), text(""),
    number("0"), number("1"), number("0"), number("0"), text("零售客户"), text(""), text("默认员工,"),
    text("100001,"), text("1000"), text("-1"), text("所有仓库"),
};
constexpr SeedRow jxc_khxx_seeds[] = {
    {"jxc_khxx", "kh_sn,kh_name,kh_jm,kh_lxr,kh_tele,kh_address,kh_note,kh_lwje,kh_default,kh_pl,kh_forbid,kt_name,z_name,kh_uname,kh_usn,kt_sn,ck_sn,ck_name", jxc_khxx_seed0},
};

constexpr ColumnDef jxc_khtype_columns[] = {
    {"id", "Counter", ""},
    {"kt_sn", "varchar(8)", "类型编号"},
    {"kt_name", "nvarchar(32)", "客户类型"},
    {"kt_default", "bit", ""},
};
constexpr SeedValue jxc_khtype_seed0[] = {
    text("1000"), text("零售客户"), number("0"),
};
constexpr SeedValue jxc_khtype_seed1[] = {
    text("1001"), text("一级"), number("0"),
};
constexpr SeedValue jxc_khtype_seed2[] = {
    text("1002"), text("二级"), number("0"),
};
constexpr SeedValue jxc_khtype_seed3[] = {
    text("1003"), text("三级"), number("0"),
};
constexpr SeedValue jxc_khtype_seed4[] = {
    text("1004"), text("四级"), number("0"),
};
constexpr SeedValue jxc_khtype_seed5[] = {
    text("1005"), text("五级"), number("0"),
};
constexpr SeedRow jxc_khtype_seeds[] = {
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed0},
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed1},
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed2},
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed3},
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed4},
    {"jxc_khtype", "kt_sn,kt_name,kt_default", jxc_khtype_seed5},
};

constexpr ColumnDef jxc_khfk_columns[] = {
    {"id", "Counter", ""},
    {"kf_sn", "varchar(16)", ""},
    {"kf_fkrq", "varchar(32)", ""},
    {"kf_fkfs", "varchar(32)", ""},
    {"kf_fkje", "numeric(28,8)", ""},
    {"kf_note", "nvarchar(200)", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"kf_je", "numeric(28,8)", ""},
    {"kf_fdmc", "varchar(32)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"kh_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_user_columns[] = {
    {"id", "Counter", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"u_name", "nvarchar(32)", "经办人"},
    {"u_jm", "varchar(32)", ""},
    {"u_duty", "nvarchar(32)", "职务"},
    {"u_tele", "varchar(32)", "联系电话"},
    {"u_address", "nvarchar(128)", "联系地址"},
    {"u_note", "nvarchar(200)", "备注"},
    {"u_tc", "numeric(28,8)", "提成比例"},
    {"u_cgpl", "int", ""},
    {"u_xspl", "int", ""},
    {"u_cg", "bit", ""},
    {"u_xs", "bit", ""},
    {"u_kc", "bit", ""},
    {"u_jy", "bit", "禁用"},
    {"u_tcfs", "int", ""},
    {"u_zdlr", "numeric(28,8)", "最低提成毛利"},
    {"u_tctxt", "nvarchar(8)", "提成方式"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"u_fdmc", "varchar(64)", ""},
};
constexpr SeedValue jxc_user_seed0[] = {
    text("100001"), text("默认员工"), text("MRYG"), text(""), text(""), text(""), number("0"),
    number("0"), number("0"), number("1"), number("1"), number("1"), text("-1"), text("所有仓库"),
    number("0"), number("0"), number("0"), text("按销售额提成"),
};
constexpr SeedRow jxc_user_seeds[] = {
    {"jxc_user", "u_sn,u_name,u_jm,u_duty,u_tele,u_address,u_tc,u_cgpl,u_xspl,u_cg,u_xs,u_kc,ck_sn,ck_name,u_jy,u_tcfs,u_zdlr,u_tctxt", jxc_user_seed0},
};

constexpr ColumnDef jxc_admin_columns[] = {
    {"id", "Counter", ""},
    {"a_sn", "varchar(8)", "编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"r_sn", "varchar(8)", "角色编号"},
    {"a_zreoje", "numeric(28,8)", "最多抹零金额"},
    {"a_pos", "bit", "POS柜长"},
    {"a_pwd", "varchar(32)", ""},
    {"a_jy", "bit", "停用"},
    {"a_jyt", "int", ""},
    {"a_dbsn", "varchar(8)", ""},
    {"a_ip", "varchar(32)", ""},
    {"a_time", "varchar(64)", ""},
    {"a_fdmc", "varchar(64)", ""},
};
constexpr SeedValue jxc_admin_seed0[] = {
    text("100001"), text("admin"), text("100001"), text(""), number("0"), number("1"), number("0"),
    number("0"),
};
constexpr SeedRow jxc_admin_seeds[] = {
    {"jxc_admin", "a_sn,a_name,r_sn,a_pwd,a_zreoje,a_pos,a_jy,a_jyt", jxc_admin_seed0},
};

constexpr ColumnDef jxc_company_columns[] = {
    {"id", "Counter", ""},
    {"c_sn", "varchar(8)", ""},
    {"c_name", "nvarchar(64)", ""},
    {"c_jc", "nvarchar(32)", ""},
    {"c_lxr", "nvarchar(32)", ""},
    {"c_tele", "nvarchar(32)", ""},
    {"c_address", "nvarchar(128)", ""},
};
constexpr SeedValue jxc_company_seed0[] = {
    text("100001"), SeedValue::companyName(), SeedValue::companyShort(), SeedValue::companyTele(),
};
constexpr SeedRow jxc_company_seeds[] = {
    {"jxc_company", "c_sn,c_name,c_jc,c_tele", jxc_company_seed0},
};

constexpr ColumnDef jxc_goodslist_columns[] = {
    {"id", "Counter", ""},
    {"gl_flag", "varchar(8)", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"gl_kdrq", "varchar(32)", "开单日期"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_name", "nvarchar(128)", "商品名称"},
    {"g_jm", "varchar(32)", "名称简码"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"gl_dj", "numeric(28,8)", "单价"},
    {"gl_cbj", "numeric(28,8)", "成本价"},
    {"gl_zcb", "numeric(28,8)", "总成本"},
    {"gl_sl", "numeric(28,8)", "数量"},
    {"gl_dzl", "numeric(28,8)", "打折率"},
    {"gl_zje", "numeric(28,8)", "总金额"},
    {"gl_je", "numeric(28,8)", "金额"},
    {"gl_tax", "numeric(28,8)", "税率"},
    {"gl_taxdj", "numeric(28,8)", "含税单价"},
    {"gl_taxje", "numeric(28,8)", "税额"},
    {"gl_lsj", "numeric(28,8)", "零售价"},
    {"gl_lr", "numeric(28,8)", "毛利"},
    {"gl_qxsl", "numeric(28,8)", ""},
    {"gl_checker", "nvarchar(32)", "审核人"},
    {"gl_chkrq", "varchar(16)", "审核日期"},
    {"gl_sqsl", "numeric(28,8)", "数量"},
    {"gl_sqje", "numeric(28,8)", "金额"},
    {"gl_pjjj", "numeric(28,8)", "单价"},
    {"gl_kc", "numeric(28,8)", "数量"},
    {"gl_kczje", "numeric(28,8)", "金额"},
    {"gl_note", "nvarchar(200)", "备注"},
    {"gl_bz", "nvarchar(64)", "备注"},
    {"u_name", "nvarchar(32)", "经办人"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ghs_name", "nvarchar(128)", "供货商名称"},
    {"gg_name", "nvarchar(64)", "规格型号"},
    {"color_name", "nvarchar(64)", "批准文号"},
    {"gl_sysl", "numeric(28,8)", ""},
    {"id2", "int", ""},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"gl_fdmc", "varchar(64)", ""},
    {"gl_dqkc", "numeric(28,8)", ""},
    {"t_cfsm", "nvarchar(32)", "处方说明"},
    {"gl_xm", "varchar(32)", "姓名"},
    {"gl_cardno", "varchar(32)", "身份证号"},
    {"t_cfhm", "nvarchar(32)", "处方号码"},
    {"t_addr", "nvarchar(32)", "住址"},
    {"t_mobile", "nvarchar(32)", "手机号码"},
    {"t_yaoshi", "nvarchar(32)", "药师"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_djbz_columns[] = {
    {"id", "Counter", ""},
    {"dj_sn", "varchar(8)", "编号"},
    {"dj_name", "nvarchar(32)", "内容"},
    {"dj_pl", "integer", ""},
};

constexpr ColumnDef jxc_jhsp_columns[] = {
    {"id", "Counter", ""},
    {"j_sn", "varchar(16)", "单据号"},
    {"jh_dj", "numeric(28,8)", "单价"},
    {"jh_sl", "numeric(28,8)", "进货数量"},
    {"jh_je", "numeric(28,8)", "金额"},
    {"jh_tax", "numeric(28,8)", "税率"},
    {"jh_taxdj", "numeric(28,8)", "含税单价"},
    {"jh_taxje", "numeric(28,8)", "税额"},
    {"jh_zje", "numeric(28,8)", "总金额"},
    {"jh_rksl", "numeric(28,8)", "采购数量"},
    {"jh_qxsl", "numeric(28,8)", ""},
    {"jh_zsl", "numeric(28,8)", ""},
    {"jh_dzl", "numeric(28,8)", "折扣"},
    {"jh_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_jhd_columns[] = {
    {"id", "Counter", ""},
    {"j_sn", "varchar(16)", "单据号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"j_jhrq", "varchar(32)", "开单日期"},
    {"j_yfje", "numeric(28,8)", "应付金额"},
    {"j_sfje", "numeric(28,8)", "实付金额"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"j_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"j_sn2", "nvarchar(16)", "原始单号"},
    {"j_yhje", "numeric(28,8)", "优惠金额"},
    {"j_hkje", "numeric(28,8)", ""},
    {"j_th", "int", ""},
    {"j_crk", "bit", ""},
    {"j_qk", "bit", "已导入"},
    {"j_fpno", "varchar(32)", ""},
    {"j_fpje", "numeric(28,8)", ""},
    {"j_yf", "numeric(28,8)", "运费"},
    {"j_bzf", "numeric(28,8)", "包装费"},
    {"j_yffs", "varchar(16)", "付费方式"},
    {"j_dhdid", "varchar(16)", ""},
    {"j_status", "int", ""},
    {"j_checker", "nvarchar(32)", "审核人"},
    {"j_chkrq", "varchar(16)", "审核日期"},
    {"j_jsfs", "int", ""},
    {"j_kmmc", "nvarchar(32)", "结算方式"},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"j_dhbz", "int", ""},
};

constexpr ColumnDef jxc_tempspbd_columns[] = {
    {"id", "Counter", ""},
    {"t_rq", "varchar(32)", "检查日期"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_name", "nvarchar(128)", "商品名称"},
    {"t_cg", "numeric(28,8)", ""},
    {"t_ct", "numeric(28,8)", ""},
    {"t_cj", "numeric(28,8)", ""},
    {"t_xs", "numeric(28,8)", ""},
    {"t_xt", "numeric(28,8)", ""},
    {"t_xj", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_tempspxf_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ts_dj", "numeric(28,8)", "单价"},
    {"ts_cbj", "numeric(28,8)", ""},
    {"ts_zcb", "numeric(28,8)", ""},
    {"ts_cbj2", "numeric(28,8)", ""},
    {"ts_sl", "numeric(28,8)", "数量"},
    {"id3", "int", ""},
    {"rid", "int", ""},
    {"ts_je", "numeric(28,8)", ""},
    {"ts_tax", "numeric(28,8)", "租金"},
    {"ts_taxdj", "numeric(28,8)", "含税单价"},
    {"ts_taxje", "numeric(28,8)", ""},
    {"ts_lsj", "numeric(28,8)", ""},
    {"ts_zje", "numeric(28,8)", "总金额"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ts_dzl", "numeric(28,8)", "打折率"},
    {"t_jhrq", "varchar(32)", "进货日期"},
    {"ts_note", "nvarchar(200)", "提示信息"},
    {"t_zp", "nvarchar(16)", "提示信息"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_wxfk_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"auth_code", "varchar(32)", "授权码"},
    {"out_trade_no", "varchar(32)", ""},
    {"total_fee", "numeric(28,8)", ""},
    {"refund_fee", "numeric(28,8)", ""},
    {"mch_create_ip", "varchar(16)", "操作员IP"},
    {"service", "varchar(64)", ""},
    {"out_refund_no", "varchar(32)", ""},
    {"err_code", "varchar(32)", "错误代码"},
    {"err_msg", "nvarchar(32)", "提示信息"},
    {"refund_id", "varchar(64)", ""},
    {"trade_type", "varchar(32)", "交易类型"},
    {"transaction_id", "varchar(64)", "机器订单号"},
    {"out_transaction_id", "varchar(64)", "第三方订单号"},
    {"mch_id", "varchar(32)", ""},
    {"time_end", "varchar(32)", ""},
    {"wx_flag", "varchar(4)", "业务类型"},
    {"wx_time", "varchar(32)", "时间"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_tempyyfx_columns[] = {
    {"id", "Counter", ""},
    {"yy_rq", "varchar(32)", ""},
    {"yy_cgsl", "numeric(28,8)", ""},
    {"yy_cgje", "numeric(28,8)", ""},
    {"yy_xssl", "numeric(28,8)", ""},
    {"yy_xsje", "numeric(28,8)", ""},
    {"yy_xscb", "numeric(28,8)", ""},
    {"yy_xslr", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_xjyh_columns[] = {
    {"id", "Counter", ""},
    {"xj_rq", "varchar(32)", "日期"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"xj_dlx", "nvarchar(32)", "单据类型"},
    {"xj_je", "numeric(28,8)", "发生金额"},
    {"xj_ljje", "numeric(28,8)", "期末余额"},
    {"xj_chk", "varchar(1)", ""},
    {"u_name", "nvarchar(32)", "经办人"},
    {"ghs_name", "nvarchar(128)", "供货商名称"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_name", "nvarchar(64)", "仓库名称"},
    {"xj_kmmc", "nvarchar(32)", "账户名称"},
    {"xj_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
};
constexpr SeedValue jxc_xjyh_seed0[] = {
    text(""), SeedValue::today(), text("期初金额"), text(""), text(""), text(""), text(""),
    number("0"), text("现金"), text("现金期初数"), text("admin"), number("0"), text("1"),
};
constexpr SeedValue jxc_xjyh_seed1[] = {
    text(""), SeedValue::today(), text("期初金额"), text(""), text(""), text(""), text(""),
    number("0"), text("工行帐号"), text("工行期初数"), text("admin"), number("0"), text("1"),
};
constexpr SeedValue jxc_xjyh_seed2[] = {
    text(""), SeedValue::today(), text("期初金额"), text(""), text(""), text(""), text(""),
    number("0"), text("建行帐号"), text("建行期初数"), text("admin"), number("0"), text("1"),
};
constexpr SeedRow jxc_xjyh_seeds[] = {
    {"jxc_xjyh", "gl_djh,xj_rq,xj_dlx,u_name,ghs_sn,ghs_name,ck_name,xj_je,xj_kmmc,xj_note,a_name,xj_ljje,xj_chk", jxc_xjyh_seed0},
    {"jxc_xjyh", "gl_djh,xj_rq,xj_dlx,u_name,ghs_sn,ghs_name,ck_name,xj_je,xj_kmmc,xj_note,a_name,xj_ljje,xj_chk", jxc_xjyh_seed1},
    {"jxc_xjyh", "gl_djh,xj_rq,xj_dlx,u_name,ghs_sn,ghs_name,ck_name,xj_je,xj_kmmc,xj_note,a_name,xj_ljje,xj_chk", jxc_xjyh_seed2},
};

constexpr ColumnDef jxc_shdj_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"sh_rq", "varchar(32)", ""},
    {"sh_yfje", "numeric(28,8)", ""},
    {"sh_sfje", "numeric(28,8)", ""},
    {"sh_yhje", "numeric(28,8)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"sh_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"sh_th", "int", ""},
    {"sh_flag", "varchar(8)", ""},
    {"sh_djzt", "int", ""},
    {"sh_kmmc", "nvarchar(32)", ""},
};

constexpr ColumnDef jxc_shsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"sh_dj", "numeric(28,8)", ""},
    {"sh_sl", "numeric(28,8)", ""},
    {"sh_zje", "numeric(28,8)", ""},
    {"sh_dzl", "numeric(28,8)", ""},
    {"sh_zhje", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_ghsbj_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"gb_bj", "numeric(28,8)", "报价"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"gb_bjrq", "varchar(32)", "报价日期"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gb_note", "nvarchar(200)", "备注"},
};

constexpr ColumnDef jxc_thd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"th_thrq", "varchar(32)", "开单日期"},
    {"th_yfje", "numeric(28,8)", "应收金额"},
    {"th_sfje", "numeric(28,8)", "实收金额"},
    {"th_hkje", "numeric(28,8)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"th_note", "nvarchar(200)", "备注"},
    {"th_status", "int", ""},
    {"th_checker", "nvarchar(32)", ""},
    {"th_chkrq", "varchar(16)", ""},
    {"th_jsfs", "int", ""},
    {"th_kmmc", "nvarchar(32)", "结算方式"},
    {"th_fpno", "varchar(32)", ""},
    {"th_fpje", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"th_qk", "bit", ""},
};

constexpr ColumnDef jxc_thsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"th_dj", "numeric(28,8)", "单价"},
    {"th_sl", "numeric(28,8)", "数量"},
    {"th_dzl", "numeric(28,8)", "打折率"},
    {"th_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"th_je", "numeric(28,8)", "金额"},
    {"th_tax", "numeric(28,8)", "税率"},
    {"th_taxdj", "numeric(28,8)", "含税单价"},
    {"th_taxje", "numeric(28,8)", "税额"},
    {"th_zje", "numeric(28,8)", "总金额"},
    {"th_zsl", "numeric(28,8)", ""},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_log_columns[] = {
    {"id", "Counter", ""},
    {"log_time", "varchar(32)", "日志日期"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"log_note", "nvarchar(200)", "日志内容"},
};

constexpr ColumnDef jxc_fkfs_columns[] = {
    {"id", "Counter", ""},
    {"fk_sn", "varchar(8)", "编号"},
    {"fk_name", "nvarchar(32)", "付款方式"},
};
constexpr SeedValue jxc_fkfs_seed0[] = {
    text("100001"), text("现金"),
};
constexpr SeedValue jxc_fkfs_seed1[] = {
    text("100002"), text("银行转帐"),
};
constexpr SeedRow jxc_fkfs_seeds[] = {
    {"jxc_fkfs", "fk_sn,fk_name", jxc_fkfs_seed0},
    {"jxc_fkfs", "fk_sn,fk_name", jxc_fkfs_seed1},
};

constexpr ColumnDef jxc_fkmx_columns[] = {
    {"id", "Counter", ""},
    {"fk_sn", "varchar(16)", "编号"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"fk_je", "numeric(28,8)", ""},
    {"fk_lx", "bit", ""},
};

constexpr ColumnDef jxc_bbgl_columns[] = {
    {"id", "Counter", ""},
    {"b_sn", "varchar(8)", ""},
    {"b_lx", "int", ""},
    {"b_lxmc", "nvarchar(8)", ""},
    {"b_name", "nvarchar(32)", ""},
    {"b_file", "varchar(32)", ""},
};

constexpr ColumnDef jxc_lsxssp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ls_dj", "numeric(28,8)", "单价"},
    {"ls_sl", "numeric(28,8)", "数量"},
    {"ls_je", "numeric(28,8)", "金额"},
    {"ls_cbj", "numeric(28,8)", "成本价"},
    {"ls_zcb", "numeric(28,8)", "总成本"},
    {"ls_cbj2", "numeric(28,8)", ""},
    {"ls_tax", "numeric(28,8)", "税率"},
    {"ls_taxdj", "numeric(28,8)", "含税单价"},
    {"ls_taxje", "numeric(28,8)", "税额"},
    {"ls_lsj", "numeric(28,8)", "零售价"},
    {"ls_zje", "numeric(28,8)", "总金额"},
    {"ls_cksl", "numeric(28,8)", "销售数量"},
    {"ls_qxsl", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ls_dzl", "numeric(28,8)", "折扣"},
    {"ls_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"ls_zhje", "numeric(28,8)", "折后价"},
    {"ls_dhdj", "numeric(28,8)", ""},
    {"ls_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"ls_dhbz", "int", ""},
    {"t_zp", "nvarchar(16)", "提示信息"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"t_cfsm", "nvarchar(32)", "处方说明"},
    {"ls_xm", "nvarchar(32)", "姓名"},
    {"ls_cardno", "varchar(32)", "身份证号"},
    {"t_cfhm", "nvarchar(32)", "处方号码"},
    {"t_addr", "nvarchar(32)", "住址"},
    {"t_mobile", "nvarchar(32)", "手机号码"},
    {"t_yaoshi", "nvarchar(32)", "药师"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_lsxsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"kh_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ls_xsrq", "varchar(32)", "开单日期"},
    {"ls_yfje", "numeric(28,8)", "应收金额"},
    {"ls_sfje", "numeric(28,8)", "实收金额"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"ls_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"ls_yhje", "numeric(28,8)", "优惠金额"},
    {"ls_hkje", "numeric(28,8)", ""},
    {"ls_th", "int", ""},
    {"ls_crk", "bit", ""},
    {"ls_qk", "bit", "已导入"},
    {"ls_fpno", "varchar(32)", ""},
    {"ls_fpje", "numeric(28,8)", ""},
    {"ls_yf", "numeric(28,8)", "运费"},
    {"ls_bzf", "numeric(28,8)", "包装费"},
    {"ls_yffs", "varchar(16)", "付费方式"},
    {"ls_fdmc", "varchar(50)", ""},
    {"ls_hy", "varchar(50)", ""},
    {"ls_ckrq", "varchar(16)", "提醒日期"},
    {"ls_status", "int", ""},
    {"ls_checker", "nvarchar(32)", "审核人"},
    {"ls_chkrq", "varchar(16)", "审核日期"},
    {"ls_zftype", "varchar(32)", ""},
    {"ls_transactionid", "varchar(64)", ""},
    {"ls_jsfs", "int", ""},
    {"ls_kmmc", "nvarchar(32)", "结算方式"},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"ls_dhbz", "int", ""},
    {"ls_lr", "numeric(28,8)", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"pos_zffs", "int", ""},
    {"pos_xj", "numeric(28,8)", "现金"},
    {"pos_czk", "numeric(28,8)", "储值卡"},
    {"pos_yhk", "numeric(28,8)", "银行卡"},
    {"pos_djq", "numeric(28,8)", "医保卡"},
    {"pos_rjid", "varchar(50)", ""},
};

constexpr ColumnDef jxc_xsthsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"th_dj", "numeric(28,8)", "单价"},
    {"th_cbj", "numeric(28,8)", "成本价"},
    {"th_zcb", "numeric(28,8)", "总成本"},
    {"th_sl", "numeric(28,8)", "数量"},
    {"id2", "int", ""},
    {"th_je", "numeric(28,8)", "金额"},
    {"th_tax", "numeric(28,8)", "税率"},
    {"th_taxdj", "numeric(28,8)", "含税单价"},
    {"th_taxje", "numeric(28,8)", "税额"},
    {"th_zje", "numeric(28,8)", "总金额"},
    {"th_lsj", "numeric(28,8)", "零售价"},
    {"th_zsl", "numeric(28,8)", ""},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"th_dzl", "numeric(28,8)", "打折率"},
    {"th_bz", "nvarchar(64)", "备注"},
    {"th_zhje", "numeric(28,8)", ""},
    {"t_cfsm", "nvarchar(32)", "处方说明"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_xsthd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"kh_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"th_xsrq", "varchar(32)", "开单日期"},
    {"th_yfje", "numeric(28,8)", "应收金额"},
    {"th_sfje", "numeric(28,8)", "实收金额"},
    {"th_hkje", "numeric(28,8)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"th_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"th_qk", "bit", ""},
    {"th_status", "int", ""},
    {"th_checker", "nvarchar(32)", ""},
    {"th_chkrq", "varchar(16)", ""},
    {"th_jsfs", "int", ""},
    {"th_kmmc", "nvarchar(32)", "结算方式"},
    {"th_fpno", "varchar(32)", ""},
    {"th_fpje", "numeric(28,8)", ""},
    {"th_fdmc", "varchar(50)", ""},
    {"th_lr", "numeric(28,8)", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"pos_zffs", "int", ""},
    {"pos_xj", "numeric(28,8)", "现金"},
    {"pos_czk", "numeric(28,8)", "储值卡"},
    {"pos_yhk", "numeric(28,8)", "银行卡"},
    {"pos_djq", "numeric(28,8)", "医保卡"},
    {"pos_yhje", "numeric(28,8)", ""},
    {"pos_rjid", "varchar(50)", ""},
};

constexpr ColumnDef jxc_khbj_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"kb_bj", "numeric(28,8)", "报价"},
    {"kh_sn", "varchar(8)", "编号"},
    {"kb_bjrq", "varchar(32)", "报价日期"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"kb_note", "nvarchar(200)", "备注"},
};

constexpr ColumnDef jxc_lsxssptemp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ls_dj", "numeric(28,8)", "单价"},
    {"ls_sl", "numeric(28,8)", "数量"},
    {"ls_je", "numeric(28,8)", "金额"},
    {"ls_cbj", "numeric(28,8)", "成本价"},
    {"ls_zcb", "numeric(28,8)", "总成本"},
    {"ls_cbj2", "numeric(28,8)", ""},
    {"ls_tax", "numeric(28,8)", "税率"},
    {"ls_taxdj", "numeric(28,8)", "含税单价"},
    {"ls_taxje", "numeric(28,8)", "税额"},
    {"ls_lsj", "numeric(28,8)", "零售价"},
    {"ls_zje", "numeric(28,8)", "总金额"},
    {"ls_cksl", "numeric(28,8)", "销售数量"},
    {"ls_qxsl", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ls_dzl", "numeric(28,8)", "折扣"},
    {"ls_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"ls_zhje", "numeric(28,8)", "折后价"},
    {"ls_dhdj", "numeric(28,8)", ""},
    {"ls_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"ls_dhbz", "int", ""},
    {"ls_flag", "varchar(8)", ""},
    {"ghs_sn", "varchar(8)", "编号"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"ls_xsrq", "varchar(32)", "开单日期"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_hyfl_columns[] = {
    {"id", "Counter", ""},
    {"hl_sn", "varchar(8)", "编号"},
    {"hl_name", "nvarchar(32)", "会员等级"},
    {"hl_zk", "numeric(28,8)", "级别折扣"},
    {"hl_jfxx", "numeric(28,8)", "积分下限"},
    {"hl_jfsx", "numeric(28,8)", "积分上限"},
};
constexpr SeedValue jxc_hyfl_seed0[] = {
    text("100001"), text("普通会员"), number("1"), number("0"), number("0"),
};
constexpr SeedValue jxc_hyfl_seed1[] = {
    text("100002"), text("初级会员"), number("1"), number("1"), number("999999"),
};
constexpr SeedRow jxc_hyfl_seeds[] = {
    {"jxc_hyfl", "hl_sn,hl_name,hl_zk,hl_jfxx,hl_jfsx", jxc_hyfl_seed0},
    {"jxc_hyfl", "hl_sn,hl_name,hl_zk,hl_jfxx,hl_jfsx", jxc_hyfl_seed1},
};

constexpr ColumnDef jxc_hyxx_columns[] = {
    {"id", "Counter", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"hy_fsn", "varchar(8)", ""},
    {"hy_bh", "varchar(32)", "会员编号"},
    {"hy_name", "nvarchar(32)", "会员姓名"},
    {"hy_jm", "varchar(32)", ""},
    {"hy_status", "bit", ""},
    {"hl_sn", "varchar(8)", "编号"},
    {"hh_sn", "varchar(8)", ""},
    {"hy_mm", "varchar(16)", ""},
    {"hy_jf", "numeric(28,8)", "会员积分"},
    {"hy_zjf", "numeric(28,8)", "累计积分"},
    {"hy_zhje", "numeric(28,8)", "卡内余额"},
    {"hy_ye", "numeric(28,8)", ""},
    {"hy_zje", "numeric(28,8)", "累计消费"},
    {"hy_jrrq", "varchar(16)", "加入日期"},
    {"hy_dqrq", "varchar(16)", "失效日期"},
    {"hy_sj", "bit", "按积分升级"},
    {"hy_qx", "bit", ""},
    {"hy_cs", "int", "剩余次数"},
    {"hy_syje", "numeric(28,8)", ""},
    {"hy_xjsyje", "numeric(28,8)", ""},
    {"hy_note", "nvarchar(200)", "备注"},
    {"hy_fd", "varchar(32)", ""},
    {"hy_fdzt", "varchar(32)", ""},
    {"hy_hyidkh", "varchar(32)", ""},
    {"hy_glnl", "int", ""},
    {"hy_sex", "nvarchar(2)", "性别"},
    {"hy_sr", "varchar(16)", "会员生日"},
    {"hy_tele", "varchar(32)", "固定电话"},
    {"hy_mobile", "varchar(16)", "手机"},
    {"hy_email", "varchar(64)", "电子邮件"},
    {"hy_zjlx", "nvarchar(64)", "证件类型"},
    {"hy_zjhm", "nvarchar(64)", "证件号码"},
    {"hy_dwzy", "nvarchar(64)", "单位职务"},
    {"hy_address", "nvarchar(64)", "联系地址"},
    {"hy_qtxx", "nvarchar(64)", "其他信息"},
    {"hy_cg", "bit", ""},
    {"hy_chk", "bit", ""},
};
constexpr SeedValue jxc_hyxx_seed0[] = {
    text("100001"), text("0000"), text("无卡客户"), text("100001"), text("100001"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), text("2010-01-01"), number("0"),
};
constexpr SeedRow jxc_hyxx_seeds[] = {
    {"jxc_hyxx", "hy_sn,hy_bh,hy_name,hl_sn,hh_sn,hy_jf,hy_zhje,hy_ye,hy_zje,hy_sj,hy_qx,hy_cs,hy_syje,hy_xjsyje,hy_glnl,hy_cg,hy_jrrq,hy_zjf", jxc_hyxx_seed0},
};

constexpr ColumnDef jxc_hyjbxx_columns[] = {
    {"id", "Counter", ""},
    {"hj_sn", "varchar(8)", "库位编号"},
    {"hj_jbid", "varchar(16)", ""},
    {"hj_jbmc", "nvarchar(32)", ""},
    {"hj_zkl", "numeric(28,8)", ""},
    {"hj_jfxx", "numeric(28,8)", ""},
    {"hj_jfsx", "numeric(28,8)", ""},
};

constexpr ColumnDef jxc_posxsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"pos_xsrq", "varchar(32)", "开单日期"},
    {"kh_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"pos_yfje", "numeric(28,8)", "应收金额"},
    {"pos_sfje", "numeric(28,8)", "实收金额"},
    {"pos_mlje", "numeric(28,8)", "抹零金额"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"pos_note", "nvarchar(200)", "备注"},
    {"pos_zffs", "int", ""},
    {"pos_xj", "numeric(28,8)", "现金"},
    {"pos_czk", "numeric(28,8)", "储值卡"},
    {"pos_yhk", "numeric(28,8)", "银行卡"},
    {"pos_djq", "numeric(28,8)", "医保卡"},
    {"pos_yhje", "numeric(28,8)", ""},
    {"pos_yhzkje", "numeric(28,8)", "优惠金额"},
    {"pos_wxje", "numeric(28,8)", "微信"},
    {"pos_zfbje", "numeric(28,8)", "支付宝"},
    {"pos_zftype", "varchar(32)", ""},
    {"pos_transactionid", "varchar(64)", ""},
    {"pos_rjid", "varchar(50)", ""},
    {"pos_bcjf", "numeric(28,8)", "本次积分"},
    {"pos_jfye", "numeric(28,8)", ""},
    {"pos_zlje", "numeric(28,8)", "找零金额"},
    {"pos_zjf", "numeric(28,8)", ""},
};

constexpr ColumnDef jxc_posxssp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"pos_dj", "numeric(28,8)", "单价"},
    {"pos_sl", "numeric(28,8)", "数量"},
    {"pos_zje", "numeric(28,8)", "总金额"},
    {"t_zp", "nvarchar(16)", "提示信息"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"pos_dzl", "numeric(28,8)", "打折率"},
    {"pos_cbj", "numeric(28,8)", "成本价"},
    {"pos_zcb", "numeric(28,8)", "总成本"},
    {"pos_lsj", "numeric(28,8)", ""},
    {"pos_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"pos_zhje", "numeric(28,8)", ""},
    {"t_cfsm", "nvarchar(32)", "处方说明"},
    {"pos_xm", "nvarchar(32)", ""},
    {"pos_cardno", "varchar(32)", ""},
    {"t_cfhm", "nvarchar(32)", "处方号码"},
    {"t_addr", "nvarchar(32)", "住址"},
    {"t_mobile", "nvarchar(32)", "手机号码"},
    {"t_yaoshi", "nvarchar(32)", "药师"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_jfsz_columns[] = {
    {"id", "Counter", ""},
    {"jf_jfgz", "int", ""},
    {"jf_mfje", "numeric(28,8)", ""},
    {"jf_djjf", "bit", ""},
    {"jf_jsrjf", "int", ""},
    {"jf_jsrjl", "int", ""},
    {"jf_dbjf", "int", ""},
    {"jf_dbrq1", "varchar(32)", ""},
    {"jf_dbrq2", "varchar(32)", ""},
    {"jf_srjflx", "int", ""},
    {"jf_srjfbs", "int", ""},
    {"jf_srjfts", "int", ""},
    {"jf_yelj", "bit", ""},
    {"jf_hysk", "bit", ""},
    {"jf_qchy", "bit", ""},
    {"jf_xgxf", "bit", ""},
    {"jf_hyr", "int", ""},
    {"jf_hyr1", "varchar(32)", ""},
    {"jf_hyr2", "varchar(32)", ""},
    {"jf_hyrmy1", "varchar(2)", ""},
    {"jf_hyrmy2", "varchar(2)", ""},
    {"jf_hyrzk", "numeric(28,8)", ""},
    {"jf_ick", "bit", ""},
    {"jf_icktype", "int", ""},
};
constexpr SeedValue jxc_jfsz_seed0[] = {
    number("1"), number("0"), number("0"), number("0"), number("0"), number("0"), text(""),
    text(""), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), text(""), text(""), text(""), text(""),
    number("0"),
};
constexpr SeedRow jxc_jfsz_seeds[] = {
    {"jxc_jfsz", "jf_jfgz,jf_mfje,jf_djjf,jf_jsrjf,jf_jsrjl,jf_dbjf,jf_dbrq1,jf_dbrq2,jf_srjflx,jf_srjfbs,jf_srjfts,jf_yelj,jf_hysk,jf_qchy,jf_xgxf,jf_ick,jf_icktype,jf_hyr,jf_hyr1,jf_hyr2,jf_hyrmy1,jf_hyrmy2,jf_hyrzk", jxc_jfsz_seed0},
};

constexpr ColumnDef jxc_jfdh_columns[] = {
    {"id", "Counter", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"jf_xfjf", "numeric(28,8)", ""},
    {"jf_rq", "varchar(32)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"jf_note", "nvarchar(200)", ""},
};

constexpr ColumnDef jxc_posprint_columns[] = {
    {"id", "Counter", ""},
    {"pp_zjdy", "bit", ""},
    {"pp_dkqx", "bit", ""},
    {"pp_zdqz", "bit", ""},
    {"pp_dyfs", "int", ""},
    {"pp_dyj", "int", ""},
    {"pp_kd", "int", ""},
    {"pp_bt1", "nvarchar(64)", ""},
    {"pp_bt2", "nvarchar(64)", ""},
    {"pp_jz1", "nvarchar(64)", ""},
    {"pp_jz2", "nvarchar(64)", ""},
    {"pp_khs", "varchar(2)", ""},
    {"pp_fs", "varchar(4)", ""},
    {"pp_xfjf", "bit", ""},
    {"pp_fkfs", "bit", ""},
    {"pp_jedx", "bit", ""},
    {"pp_bzxx", "bit", ""},
};
constexpr SeedValue jxc_posprint_seed0[] = {
    number("1"), number("1"), number("0"), number("0"), number("0"), number("32"),
    SeedValue::companyName(), text("欢迎光临"), text("谢谢惠顾，欢迎再次光临！"), text("请妥善保管购物小票"), text("1"),
    text("9"), number("1"), number("1"), number("0"), number("0"),
};
constexpr SeedRow jxc_posprint_seeds[] = {
    {"jxc_posprint", "pp_zjdy,pp_dkqx,pp_zdqz,pp_dyfs,pp_dyj,pp_kd,pp_bt1,pp_bt2,pp_jz1,pp_jz2,pp_khs,pp_fs,pp_xfjf,pp_fkfs,pp_jedx,pp_bzxx", jxc_posprint_seed0},
};

constexpr ColumnDef jxc_gnb_columns[] = {
    {"id", "Counter", ""},
    {"gn_name", "nvarchar(32)", ""},
    {"gn_jz", "int", ""},
};
constexpr SeedValue jxc_gnb_seed0[] = {
    text("付款结账"), number("187"),
};
constexpr SeedValue jxc_gnb_seed1[] = {
    text("修改折扣"), number("118"),
};
constexpr SeedValue jxc_gnb_seed2[] = {
    text("修改数量"), number("115"),
};
constexpr SeedValue jxc_gnb_seed3[] = {
    text("删除当前"), number("46"),
};
constexpr SeedValue jxc_gnb_seed4[] = {
    text("删除全部"), number("34"),
};
constexpr SeedValue jxc_gnb_seed5[] = {
    text("选择会员"), number("113"),
};
constexpr SeedValue jxc_gnb_seed6[] = {
    text("打开钱箱"), number("117"),
};
constexpr SeedValue jxc_gnb_seed7[] = {
    text("挂单"), number("119"),
};
constexpr SeedValue jxc_gnb_seed8[] = {
    text("解挂"), number("120"),
};
constexpr SeedValue jxc_gnb_seed9[] = {
    text("锁定屏幕"), number("121"),
};
constexpr SeedValue jxc_gnb_seed10[] = {
    text("中药副数"), number("122"),
};
constexpr SeedValue jxc_gnb_seed11[] = {
    text("设为赠品"), number("123"),
};
constexpr SeedRow jxc_gnb_seeds[] = {
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed0},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed1},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed2},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed3},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed4},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed5},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed6},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed7},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed8},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed9},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed10},
    {"jxc_gnb", "gn_name,gn_jz", jxc_gnb_seed11},
};

constexpr ColumnDef jxc_posfont_columns[] = {
    {"id", "Counter", ""},
    {"font_size", "varchar(32)", ""},
};
constexpr SeedValue jxc_posfont_seed0[] = {
    text("14"),
};
constexpr SeedRow jxc_posfont_seeds[] = {
    {"jxc_posfont", "font_size", jxc_posfont_seed0},
};

constexpr ColumnDef jxc_yhzh_columns[] = {
    {"id", "Counter", ""},
    {"yh_sn", "varchar(8)", "编号"},
    {"yh_type", "varchar(32)", "账户类型"},
    {"yh_name", "nvarchar(32)", "账户名称"},
    {"yh_zje", "numeric(28,8)", "期初金额"},
    {"yh_note", "nvarchar(200)", "备注"},
};
constexpr SeedValue jxc_yhzh_seed0[] = {
    text("100001"), text("现金 "), text("现金"), number("0"), text(""),
};
constexpr SeedValue jxc_yhzh_seed1[] = {
    text("100002"), text("工行合计 "), text("工行帐号"), number("0"), text(""),
};
constexpr SeedValue jxc_yhzh_seed2[] = {
    text("100003"), text("建行合计 "), text("建行帐号"), number("0"), text(""),
};
constexpr SeedRow jxc_yhzh_seeds[] = {
    {"jxc_yhzh", "yh_sn,yh_type,yh_name,yh_zje,yh_note", jxc_yhzh_seed0},
    {"jxc_yhzh", "yh_sn,yh_type,yh_name,yh_zje,yh_note", jxc_yhzh_seed1},
    {"jxc_yhzh", "yh_sn,yh_type,yh_name,yh_zje,yh_note", jxc_yhzh_seed2},
};

constexpr ColumnDef jxc_kcdbd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_out", "varchar(8)", ""},
    {"ck_in", "varchar(8)", ""},
    {"db_dbrq", "varchar(32)", "调拨日期"},
    {"db_status", "int", ""},
    {"db_checker", "nvarchar(32)", "审核人"},
    {"db_chkrq", "varchar(16)", "审核日期"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"db_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_dbsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"db_sl", "numeric(28,8)", "数量"},
    {"db_dj", "numeric(28,8)", "单价"},
    {"db_sj", "numeric(28,8)", "售价"},
    {"db_zje", "numeric(28,8)", "总金额"},
    {"db_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_cfd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"cf_cfrq", "varchar(32)", "拆分日期"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"cf_cbj", "numeric(28,8)", "成本价"},
    {"cf_sl", "numeric(28,8)", "数量"},
    {"cf_status", "int", ""},
    {"cf_checker", "nvarchar(32)", "审核人"},
    {"cf_chkrq", "varchar(16)", "审核日期"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"cf_note", "nvarchar(200)", "备注"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_cfsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"cf_dj", "numeric(28,8)", "单价"},
    {"cf_sl", "numeric(28,8)", "数量"},
    {"cf_zje", "numeric(28,8)", "总金额"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_kbd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"kb_kbrq", "varchar(32)", "捆绑日期"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"kb_cbj", "numeric(28,8)", "成本价"},
    {"kb_sl", "numeric(28,8)", "数量"},
    {"kb_status", "int", ""},
    {"kb_checker", "nvarchar(32)", ""},
    {"kb_chkrq", "varchar(16)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"kb_note", "nvarchar(200)", "备注"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_kbsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"kb_dj", "numeric(28,8)", "单价"},
    {"kb_sl", "numeric(28,8)", "数量"},
    {"kb_zje", "numeric(28,8)", "总金额"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_yyfy_columns[] = {
    {"id", "Counter", ""},
    {"fy_rq", "varchar(32)", "日期"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"fy_lx", "nvarchar(64)", "费用类型"},
    {"fy_je", "numeric(28,8)", "金额"},
    {"fy_flag", "varchar(1)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"de_sn", "varchar(8)", "部门编号"},
    {"fy_kmmc", "nvarchar(32)", "账户名称"},
    {"fy_chk", "varchar(1)", ""},
    {"fy_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"fy_sc", "nvarchar(16)", ""},
};

constexpr ColumnDef jxc_cfsptmp_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_name", "nvarchar(128)", "商品名称"},
    {"tmp_cksl", "numeric(28,8)", "出库数量"},
    {"tmp_ckje", "numeric(28,8)", "出库金额"},
    {"tmp_rksl", "numeric(28,8)", "入库数量"},
    {"tmp_rkje", "numeric(28,8)", "入库金额"},
    {"tmp_currkc", "numeric(28,8)", "当前库存数量"},
    {"tmp_kc", "numeric(28,8)", "拆分后库存数量"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_bsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"bs_bsrq", "varchar(32)", ""},
    {"bs_status", "int", ""},
    {"bs_checker", "nvarchar(32)", ""},
    {"bs_chkrq", "varchar(16)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"bs_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_bssp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"bs_sl", "numeric(28,8)", ""},
    {"bs_dj", "numeric(28,8)", ""},
    {"bs_zje", "numeric(28,8)", ""},
    {"bs_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_byd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"by_byrq", "varchar(32)", ""},
    {"by_status", "int", ""},
    {"by_checker", "nvarchar(32)", ""},
    {"by_chkrq", "varchar(16)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"by_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_bysp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"by_sl", "numeric(28,8)", ""},
    {"by_dj", "numeric(28,8)", ""},
    {"by_zje", "numeric(28,8)", ""},
    {"by_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_kcpd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"pd_sl", "numeric(28,8)", "盘点数量"},
    {"kc_sl", "numeric(28,8)", "库存数"},
    {"pd_rq", "varchar(32)", "盘点日期"},
    {"pd_note", "nvarchar(200)", "备注"},
    {"pd_status", "int", ""},
    {"pd_checker", "nvarchar(32)", "审核人"},
    {"pd_chkrq", "varchar(16)", "审核日期"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_kcpdtemp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"pd_sl", "numeric(28,8)", "盘点数量"},
    {"sp_sl", "numeric(28,8)", ""},
    {"ck_name", "varchar(32)", "仓库名称"},
    {"pd_rq", "varchar(32)", "盘点日期"},
    {"pd_status", "bit", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_ckjth_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"jt_sl", "numeric(28,8)", ""},
    {"ghs_name", "nvarchar(128)", "供货商名称"},
    {"jt_flag", "varchar(1)", ""},
    {"jt_rq", "varchar(32)", ""},
};

constexpr ColumnDef jxc_kcjs_columns[] = {
    {"id", "Counter", ""},
    {"js_rq", "varchar(16)", "统计月份"},
    {"js_sl", "numeric(28,8)", ""},
    {"js_zje", "numeric(28,8)", ""},
    {"js_xssl", "numeric(28,8)", ""},
    {"js_xsje", "numeric(28,8)", ""},
    {"js_cgsl", "numeric(28,8)", ""},
    {"js_cgje", "numeric(28,8)", ""},
    {"js_xslr", "numeric(28,8)", ""},
    {"js_xscb", "numeric(28,8)", ""},
    {"ck_sn", "varchar(8)", "仓库编号"},
};

constexpr ColumnDef jxc_htgl_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"ht_rq", "varchar(32)", "签订日期"},
    {"ht_name", "nvarchar(64)", "合同名称"},
    {"ht_jm", "varchar(32)", ""},
    {"ht_note", "text", ""},
    {"ht_path", "nvarchar(128)", "文档路径"},
    {"ht_fujian", "varchar(32)", ""},
    {"ht_fjname", "nvarchar(64)", "附件名称"},
    {"ht_type", "varchar(4)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"ghs_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_ftpcs_columns[] = {
    {"id", "Counter", ""},
    {"ftp_ip", "varchar(32)", ""},
    {"ftp_user", "varchar(32)", ""},
    {"ftp_pwd", "varchar(32)", ""},
    {"ftp_port", "varchar(8)", ""},
    {"ftp_folder", "nvarchar(32)", ""},
};

constexpr ColumnDef jxc_khhtgl_columns[] = {
    {"id", "Counter", ""},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"ht_rq", "varchar(32)", "签订日期"},
    {"ht_name", "nvarchar(64)", "合同名称"},
    {"ht_path", "nvarchar(128)", "文档路径"},
    {"ht_jm", "varchar(32)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"kh_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_ghslx_columns[] = {
    {"id", "Counter", ""},
    {"lx_rq", "varchar(32)", "联系日期"},
    {"lx_note", "text", "联系内容"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"ghs_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_khlx_columns[] = {
    {"id", "Counter", ""},
    {"lx_rq", "varchar(32)", "联系日期"},
    {"lx_note", "text", "联系内容"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"kh_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_ywyrz_columns[] = {
    {"id", "Counter", ""},
    {"rz_rq", "varchar(32)", "日期"},
    {"rz_note", "text", "内容"},
    {"u_sn", "varchar(8)", "业务员编号"},
};

constexpr ColumnDef jxc_jhgl_columns[] = {
    {"id", "Counter", ""},
    {"kh_sn", "varchar(8)", "编号"},
    {"jh_rq", "varchar(32)", "日期"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"jh_dj", "numeric(28,8)", "单价"},
    {"jh_sl", "numeric(28,8)", "进货数量"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"jh_note", "nvarchar(200)", "备注"},
    {"jh_flag", "varchar(2)", "单据类型"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_tx_columns[] = {
    {"id", "Counter", ""},
    {"tx_dx", "varchar(32)", "提醒对象"},
    {"tx_fs", "int", ""},
    {"tx_fstxt", "varchar(16)", "提醒方式"},
    {"tx_sj", "varchar(64)", "提醒时间"},
    {"tx_note", "nvarchar(200)", "提醒内容"},
    {"tx_tjsj", "varchar(32)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"tx_lb", "int", ""},
    {"tx_flag", "varchar(1)", ""},
    {"tx_ts", "varchar(4)", "提前天数"},
    {"tx_zt", "varchar(1)", ""},
    {"g_sn", "varchar(32)", "商品编号"},
};

constexpr ColumnDef jxc_fylx_columns[] = {
    {"id", "Counter", ""},
    {"fy_lx", "nvarchar(64)", "费用类型"},
    {"fy_fx", "int", ""},
    {"fy_note", "nvarchar(200)", "备注"},
};
constexpr SeedValue jxc_fylx_seed0[] = {
    text("费用"), number("0"), text("费用支出"),
};
constexpr SeedValue jxc_fylx_seed1[] = {
    text("运费"), number("0"), text("运费支出"),
};
constexpr SeedValue jxc_fylx_seed2[] = {
    text("包装费"), number("0"), text("包装费支出"),
};
constexpr SeedValue jxc_fylx_seed3[] = {
    text("应付工资"), number("0"), text("人员工资支出"),
};
constexpr SeedValue jxc_fylx_seed4[] = {
    text("收入"), number("1"), text("收入类型"),
};
constexpr SeedRow jxc_fylx_seeds[] = {
    {"jxc_fylx", "fy_lx,fy_fx,fy_note", jxc_fylx_seed0},
    {"jxc_fylx", "fy_lx,fy_fx,fy_note", jxc_fylx_seed1},
    {"jxc_fylx", "fy_lx,fy_fx,fy_note", jxc_fylx_seed2},
    {"jxc_fylx", "fy_lx,fy_fx,fy_note", jxc_fylx_seed3},
    {"jxc_fylx", "fy_lx,fy_fx,fy_note", jxc_fylx_seed4},
};

constexpr ColumnDef jxc_zcmx_columns[] = {
    {"id", "Counter", ""},
    {"zc_rq", "varchar(32)", "发生日期"},
    {"zc_je", "numeric(28,8)", "金额"},
    {"zc_lx", "nvarchar(32)", "资产类别"},
    {"zc_note", "nvarchar(200)", "附加说明"},
    {"u_name", "nvarchar(32)", "经办人"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_gdzc_columns[] = {
    {"id", "Counter", ""},
    {"zc_bh", "varchar(16)", "资产编号"},
    {"zc_mc", "nvarchar(32)", "资产名称"},
    {"zc_rq", "varchar(32)", "发生日期"},
    {"zc_lx", "nvarchar(32)", "资产类别"},
    {"zc_dw", "nvarchar(32)", "单位"},
    {"zc_je", "numeric(28,8)", "金额"},
    {"zc_bm", "nvarchar(32)", "使用部门"},
    {"zc_zjys", "varchar(4)", "折旧月数"},
    {"zc_ghs", "nvarchar(32)", "供应商"},
    {"zc_nbfl", "nvarchar(32)", "内部分类"},
    {"zc_ggxh", "nvarchar(32)", "规格型号"},
    {"zc_note", "nvarchar(200)", "附加说明"},
    {"u_name", "nvarchar(32)", "经办人"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_backup_columns[] = {
    {"id", "Counter", ""},
    {"back_auto", "bit", ""},
    {"back_sj", "int", ""},
    {"back_days", "int", ""},
    {"back_path", "nvarchar(200)", ""},
    {"back_exit", "bit", ""},
};

constexpr ColumnDef jxc_fd_columns[] = {
    {"id", "Counter", ""},
    {"fd_sn", "varchar(8)", ""},
    {"fd_name", "varchar(64)", "所在分店"},
    {"fd_dcrq", "varchar(32)", ""},
};
constexpr SeedValue jxc_fd_seed0[] = {
    text("100001"), SeedValue::branchName(), text(""),
};
constexpr SeedRow jxc_fd_seeds[] = {
    {"jxc_fd", "fd_sn,fd_name,fd_dcrq", jxc_fd_seed0},
};

constexpr ColumnDef jxc_lsfdxx_columns[] = {
    {"id", "Counter", ""},
    {"fd_sn", "varchar(8)", ""},
    {"fd_name", "varchar(64)", "所在分店"},
    {"fd_lxr", "varchar(32)", ""},
    {"fd_tele", "varchar(32)", ""},
    {"fd_address", "varchar(128)", ""},
    {"fd_note", "nvarchar(200)", ""},
};

constexpr ColumnDef jxc_nj_columns[] = {
    {"id", "Counter", ""},
    {"nj_jsrq", "varchar(16)", "结算日期"},
    {"nj_year", "varchar(16)", "年份"},
    {"nj_xm", "nvarchar(32)", "结算项目"},
    {"nj_ds", "int", "单据数"},
    {"nj_sl", "numeric(28,8)", "数量"},
    {"nj_je", "numeric(28,8)", "金额"},
};

constexpr ColumnDef jxc_tm_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"tm_sl", "numeric(28,8)", "数量"},
};

constexpr ColumnDef jxc_txm_columns[] = {
    {"id", "Counter", ""},
    {"tm_code", "varchar(64)", ""},
};

constexpr ColumnDef jxc_tmdy_columns[] = {
    {"id", "Counter", ""},
    {"tm_width", "int", ""},
    {"tm_height", "int", ""},
    {"tm_num", "int", ""},
    {"tm_padding", "int", ""},
    {"tm_titledisp", "bit", ""},
    {"tm_title", "varchar(64)", ""},
    {"tm_titleleft", "int", ""},
    {"tm_titletop", "int", ""},
    {"tm_titlepadding", "int", ""},
    {"tm_titlealign", "int", ""},
    {"tm_code", "varchar(64)", ""},
    {"tm_codeleft", "int", ""},
    {"tm_codetop", "int", ""},
    {"tm_codeheight", "int", ""},
    {"tm_codetype", "int", ""},
    {"tm_codedisp", "bit", ""},
    {"tm_footdisp", "bit", ""},
    {"tm_foot", "varchar(64)", ""},
    {"tm_footleft", "int", ""},
    {"tm_foottop", "int", ""},
    {"tm_footpadding", "int", ""},
    {"tm_footalign", "int", ""},
};
constexpr SeedValue jxc_tmdy_seed0[] = {
    number("40"), number("30"), number("1"), number("2"), number("1"), text("g_name"), number("2"),
    number("2"), number("0"), number("0"), text("g_sptm"), number("2"), number("8"), number("12"),
    number("0"), number("1"), number("1"), text("g_lsj"), number("2"), number("22"), number("0"),
    number("0"),
};
constexpr SeedRow jxc_tmdy_seeds[] = {
    {"jxc_tmdy", "tm_width,tm_height,tm_num,tm_padding,tm_titledisp,tm_title,tm_titleleft,tm_titletop,tm_titlepadding,tm_titlealign,tm_code,tm_codeleft,tm_codetop,tm_codeheight,tm_codetype,tm_codedisp,tm_footdisp,tm_foot,tm_footleft,tm_foottop,tm_footpadding,tm_footalign", jxc_tmdy_seed0},
};

constexpr ColumnDef jxc_email_columns[] = {
    {"id", "Counter", ""},
    {"e_smtp", "nvarchar(64)", ""},
    {"e_sqpwd", "nvarchar(64)", ""},
    {"e_email", "nvarchar(64)", ""},
    {"e_lx", "int", ""},
    {"e_fj1", "bit", ""},
    {"e_fj2", "bit", ""},
    {"e_fj3", "bit", ""},
    {"e_fj4", "bit", ""},
    {"e_fj5", "bit", ""},
    {"e_fj6", "bit", ""},
    {"e_fj7", "bit", ""},
    {"e_fj8", "bit", ""},
    {"e_fj9", "bit", ""},
    {"e_send", "bit", ""},
    {"e_date", "varchar(16)", ""},
};
constexpr SeedValue jxc_email_seed0[] = {
    text(""), text(""), text(""), number("0"), text(""), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
};
constexpr SeedRow jxc_email_seeds[] = {
    {"jxc_email", "e_smtp,e_sqpwd,e_email,e_lx,e_date,e_fj1,e_fj2,e_fj3,e_fj4,e_fj5,e_fj6,e_fj7,e_fj8,e_fj9,e_send", jxc_email_seed0},
};

constexpr ColumnDef jxc_numeric_columns[] = {
    {"id", "Counter", ""},
    {"nu_zd", "nvarchar(64)", ""},
    {"nu_biao", "nvarchar(64)", ""},
};

constexpr ColumnDef jxc_role_columns[] = {
    {"id", "Counter", ""},
    {"r_sn", "varchar(8)", "角色编号"},
    {"r_name", "nvarchar(32)", "所属角色"},
    {"cggl", "varchar(64)", ""},
    {"xsgl", "varchar(64)", ""},
    {"kcgl", "varchar(64)", ""},
    {"wlzk", "varchar(64)", ""},
    {"tjgl", "varchar(64)", ""},
    {"rcgl", "varchar(64)", ""},
    {"gspgl", "varchar(64)", ""},
    {"qtcz", "varchar(64)", ""},
};
constexpr SeedValue jxc_role_seed0[] = {
    text("100001"), text("系统管理员"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
    text("111111111111111111111111111111111111111111111111111111111111"),
};
constexpr SeedRow jxc_role_seeds[] = {
    {"jxc_role", "r_sn,r_name,cggl,xsgl,kcgl,wlzk,tjgl,rcgl,gspgl,qtcz", jxc_role_seed0},
};

constexpr ColumnDef jxc_mryt_columns[] = {
    {"id", "Counter", ""},
    {"mr_ts", "nvarchar(200)", ""},
    {"mr_state", "varchar(1)", ""},
    {"mr_rq", "varchar(32)", ""},
};
constexpr SeedValue jxc_mryt_seed0[] = {
    text("商品销售前请先在“商品管理”中建立商品资料，并在“商品期初建账”中录入期初库存。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed1[] = {
    text("单据保存后需要审核才会影响库存和往来帐款，审核后如需修改请先取消审核。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed2[] = {
    text("在商品选择界面输入商品名称简码（拼音首字母）可以快速找到商品。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed3[] = {
    text("请定期备份帐套数据，备份文件最好保存在其他电脑或移动存储设备上。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed4[] = {
    text("销售近效期商品前请查看“近效期跟踪记录”，过期商品不得销售。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed5[] = {
    text("处方药销售时请按规定登记处方信息。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed6[] = {
    text("采购进货时录入批号、生产日期和有效期，便于批次追溯和效期管理。"), text("0"), text("2011-1-1"),
};
constexpr SeedValue jxc_mryt_seed7[] = {
    text("库存盘点审核后，盘盈盘亏的金额会自动记入收入和费用。"), text("0"), text("2011-1-1"),
};
constexpr SeedRow jxc_mryt_seeds[] = {
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed0},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed1},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed2},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed3},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed4},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed5},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed6},
    {"jxc_mryt", "mr_ts,mr_state,mr_rq", jxc_mryt_seed7},
};

constexpr ColumnDef jxc_jbgl_columns[] = {
    {"id", "Counter", ""},
    {"jb_time", "varchar(32)", "交班时间"},
    {"jb_curruser", "nvarchar(32)", "交班操作员"},
    {"jb_nextuser", "nvarchar(32)", "接班操作员"},
    {"jb_jjzje", "numeric(28,8)", "交接金额"},
    {"jb_bbskzje", "numeric(28,8)", "本班收款总额"},
    {"jb_sjyyk", "numeric(28,8)", "上交营业款"},
    {"jb_xfyyk", "numeric(28,8)", "下放营业款"},
    {"jb_note", "nvarchar(200)", ""},
};

constexpr ColumnDef jxc_poshb_columns[] = {
    {"id", "Counter", ""},
    {"jb_begintime", "varchar(32)", ""},
    {"jb_endtime", "varchar(32)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"jb_xjje", "numeric(28,8)", ""},
    {"jb_czkje", "numeric(28,8)", ""},
    {"jb_yhkje", "numeric(28,8)", ""},
    {"jb_djqje", "numeric(28,8)", ""},
    {"jb_wxje", "numeric(28,8)", ""},
    {"jb_zfbje", "numeric(28,8)", ""},
    {"jb_zlje", "numeric(28,8)", ""},
    {"jb_mlje", "numeric(28,8)", ""},
    {"jb_thje", "numeric(28,8)", ""},
    {"jb_rkje", "numeric(28,8)", ""},
    {"jb_ckje", "numeric(28,8)", ""},
    {"jb_xsje", "numeric(28,8)", ""},
    {"jb_xjje2", "numeric(28,8)", ""},
    {"jb_yhkje2", "numeric(28,8)", ""},
    {"jb_wxje2", "numeric(28,8)", ""},
    {"jb_zfbje2", "numeric(28,8)", ""},
    {"jb_zlje2", "numeric(28,8)", ""},
    {"jb_xfje", "numeric(28,8)", ""},
    {"jb_yjje", "numeric(28,8)", ""},
    {"jb_sjje", "numeric(28,8)", ""},
    {"jb_note", "nvarchar(64)", ""},
};

constexpr ColumnDef jxc_xtcs_columns[] = {
    {"id", "Counter", ""},
    {"cs_cgdj", "int", ""},
    {"cs_xsdj", "int", ""},
    {"cs_xgdj", "bit", "销售时允许修改销售单价"},
    {"cs_kc", "bit", "库存为零时允许采购退货、销售"},
    {"cs_ysdh", "bit", "采购进货或销售时有原始单号"},
    {"cs_spbh", "bit", "增加商品基本信息时商品自动编号"},
    {"cs_ct", "bit", "采购退货时只能退该供货商供应的商品"},
    {"cs_xt", "bit", "销售退货时只能退向该客户销售过的商品"},
    {"cs_cgyh", "int", "操作员与仓库绑定"},
    {"cs_xsyh", "int", "商品销售时业务员与客户绑定"},
    {"cs_shdj", "bit", "单据保存后直接审核(选中后审核权限将被忽略)"},
    {"cs_shtc", "bit", ""},
    {"cs_xjyh", "bit", "启用现金银行功能"},
    {"cs_cbjs", "int", ""},
    {"cs_xsws", "int", ""},
    {"cs_zjews", "bit", "合计金额保留"},
    {"cs_jews", "int", ""},
    {"cs_ts", "varchar(64)", ""},
    {"cs_hbfh", "nvarchar(4)", ""},
    {"cs_posdj", "bit", ""},
    {"cs_tjcyjf", "bit", "特价商品参与积分"},
    {"cs_posfkws", "int", ""},
    {"cs_posblur", "bit", ""},
    {"cs_poshooktoday", "bit", ""},
    {"cs_barcode", "bit", "销售处方药时需要登记"},
    {"cs_barunique", "bit", "启用单据付款功能"},
    {"cs_zerocost", "bit", "启用单据收款功能"},
    {"cs_possk", "bit", ""},
    {"cs_xsjgts", "int", ""},
    {"cs_djsh", "int", ""},
    {"cs_employ", "bit", "采购时显示当前供货商历史信息"},
    {"cs_employts", "int", "打印销售单商品不同批次商品合并打印"},
    {"cs_employdate", "varchar(20)", ""},
    {"cs_wxzf", "bit", "启用微信支付宝支付功能"},
    {"cs_mchid", "varchar(64)", ""},
    {"cs_key", "varchar(64)", ""},
    {"cs_kp", "bit", "启用开票记录功能"},
    {"cs_hs", "bit", ""},
    {"cs_tax", "numeric(28,8)", ""},
    {"cs_sms", "bit", ""},
    {"cs_hcj", "bit", ""},
    {"cs_sprk", "bit", "启用商品入库功能"},
    {"cs_spck", "bit", "启用商品出库功能"},
    {"cs_lsj", "bit", "启用商品销售零售价"},
    {"cs_scjh", "bit", ""},
    {"cs_scrk", "bit", ""},
    {"cs_spcz", "bit", ""},
    {"cs_dbdj", "int", ""},
    {"cs_jhzk", "bit", "启用商品折扣功能"},
    {"cs_zdzk", "numeric(28,8)", ""},
    {"cs_ht", "bit", ""},
    {"cs_kddy", "bit", ""},
    {"cs_fzdw", "bit", "启用商品辅助单位、一品多码功能"},
    {"cs_cgje", "int", ""},
    {"cs_xsje", "int", ""},
    {"cs_activate", "bit", "销售时显示当前客户历史信息"},
    {"cs_activatets", "int", ""},
    {"cs_djrq", "int", ""},
    {"cs_dysx", "int", ""},
    {"cs_cs001", "bit", ""},
    {"cs_cs002", "bit", ""},
    {"cs_cs003", "bit", "商品库存中显示第一个辅助单位的数量"},
    {"cs_cs004", "int", ""},
    {"cs_cs005", "int", ""},
    {"cs_cs006", "int", ""},
    {"cs_cs007", "bit", "启用采购计划功能"},
    {"cs_cs008", "bit", "启用销售订单功能"},
    {"cs_cs009", "bit", "使用固定成本价--成本均价"},
    {"cs_cs010", "bit", "打印销售单时选择打印格式"},
    {"cs_cs011", "bit", "打印采购单时选择打印格式"},
    {"cs_cs012", "bit", "在商品信息中加入库位信息"},
    {"cs_cs013", "bit", "启用商品等级批发价(1--5级)"},
    {"cs_cs014", "bit", "销售单日期记录到分秒"},
    {"cs_cs015", "bit", ""},
    {"cs_cs016", "bit", "采购单保存时自动打印"},
    {"cs_cs017", "bit", "过期商品不能销售"},
    {"cs_cs018", "bit", ""},
    {"cs_cs019", "bit", ""},
    {"cs_cs020", "bit", ""},
    {"cs_cs021", "bit", ""},
    {"cs_cs022", "bit", ""},
    {"cs_cs023", "bit", ""},
    {"cs_cs024", "bit", ""},
    {"cs_cs025", "bit", ""},
    {"cs_cs026", "bit", ""},
    {"cs_cs027", "bit", ""},
    {"cs_cs028", "bit", ""},
    {"cs_cs029", "bit", ""},
    {"cs_cs030", "bit", ""},
    {"cs_cs031", "int", ""},
    {"cs_cs032", "int", ""},
    {"cs_cs033", "int", ""},
    {"cs_bcqdy", "bit", ""},
    {"cs_djzddy", "bit", ""},
    {"cs_djzddysl", "int", ""},
    {"cs_tmzdsc", "bit", "选择商品时，双击商品可以自动选择"},
    {"cs_tmtype", "int", ""},
    {"cs_tmscff", "int", ""},
    {"cs_posrq", "bit", "有效日期到日"},
};
constexpr SeedValue jxc_xtcs_seed0[] = {
    number("0"), number("0"), number("1"), number("1"), number("0"), number("1"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("2"),
    number("2"), number("0"), number("2"), text(""), text("￥"), number("0"), number("0"),
    number("2"), number("1"), number("1"), number("0"), number("0"), number("0"), number("0"),
    number("1"), number("0"), number("1"), number("0"), text(""), number("0"), text(""), text(""),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("1"), number("1"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("1"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("0"),
    number("0"), number("0"), number("0"), number("0"), number("0"), number("0"), number("1"),
};
constexpr SeedRow jxc_xtcs_seeds[] = {
    {"jxc_xtcs", "cs_cgdj,cs_xsdj,cs_xgdj,cs_kc,cs_ysdh,cs_spbh,cs_ct,cs_xt,cs_cgyh,cs_xsyh,cs_shdj,cs_shtc,cs_xjyh,cs_cbjs,cs_xsws,cs_zjews,cs_jews,cs_ts,cs_hbfh,cs_posdj,cs_tjcyjf,cs_posfkws,cs_posblur,cs_poshooktoday,cs_barcode,cs_barunique,cs_zerocost,cs_possk,cs_xsjgts,cs_djsh,cs_employ,cs_employts,cs_employdate,cs_wxzf,cs_mchid,cs_key,cs_kp,cs_hs,cs_tax,cs_sms,cs_hcj,cs_sprk,cs_spck,cs_lsj,cs_scjh,cs_scrk,cs_spcz,cs_dbdj,cs_jhzk,cs_zdzk,cs_ht,cs_kddy,cs_fzdw,cs_cgje,cs_xsje,cs_activate,cs_activatets,cs_djrq,cs_dysx,cs_cs001,cs_cs002,cs_cs003,cs_cs004,cs_cs005,cs_cs006,cs_cs007,cs_cs008,cs_cs009,cs_cs010,cs_cs011,cs_cs012,cs_cs013,cs_cs014,cs_cs015,cs_cs016,cs_cs017,cs_cs018,cs_cs019,cs_cs020,cs_cs021,cs_cs022,cs_cs023,cs_cs024,cs_cs025,cs_cs026,cs_cs027,cs_cs028,cs_cs029,cs_cs030,cs_cs031,cs_cs032,cs_cs033,cs_bcqdy,cs_djzddy,cs_djzddysl,cs_tmzdsc,cs_tmtype,cs_tmscff,cs_posrq", jxc_xtcs_seed0},
};

constexpr ColumnDef jxc_txdisp_columns[] = {
    {"id", "Counter", ""},
    {"t_mryt", "varchar(1)", ""},
    {"t_sjtx", "varchar(1)", ""},
};
constexpr SeedValue jxc_txdisp_seed0[] = {
    text("1"), text("0"),
};
constexpr SeedRow jxc_txdisp_seeds[] = {
    {"jxc_txdisp", "t_mryt,t_sjtx", jxc_txdisp_seed0},
};

constexpr ColumnDef jxc_dxdz_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"hl_sn", "varchar(8)", "编号"},
    {"hl_dxzk", "numeric(28,8)", ""},
};

constexpr ColumnDef jxc_czxf_columns[] = {
    {"id", "Counter", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"xf_je", "numeric(28,8)", "续费金额"},
    {"hy_rq", "varchar(32)", ""},
    {"a_admin", "nvarchar(32)", ""},
    {"hy_bz", "nvarchar(64)", ""},
};

constexpr ColumnDef jxc_postable_columns[] = {
    {"id", "Counter", ""},
    {"posnumber", "varchar(16)", ""},
    {"posname", "nvarchar(32)", ""},
    {"posunique", "varchar(32)", ""},
};

constexpr ColumnDef jxc_posthsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"pos_dj", "numeric(28,8)", "单价"},
    {"pos_xssl", "numeric(28,8)", ""},
    {"pos_sl", "numeric(28,8)", "数量"},
    {"pos_zje", "numeric(28,8)", "总金额"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"pos_dzl", "numeric(28,8)", "打折率"},
    {"pos_cbj", "numeric(28,8)", "成本价"},
    {"pos_zcb", "numeric(28,8)", "总成本"},
    {"pos_lsj", "numeric(28,8)", ""},
    {"pos_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"pos_zhje", "numeric(28,8)", ""},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_posthd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"pos_xsrq", "varchar(32)", "开单日期"},
    {"kh_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"pos_yfje", "numeric(28,8)", "应收金额"},
    {"pos_sfje", "numeric(28,8)", "实收金额"},
    {"pos_mlje", "numeric(28,8)", "抹零金额"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"pos_note", "nvarchar(200)", "备注"},
    {"pos_zffs", "int", ""},
    {"pos_xj", "numeric(28,8)", "现金"},
    {"pos_czk", "numeric(28,8)", "储值卡"},
    {"pos_yhk", "numeric(28,8)", "银行卡"},
    {"pos_djq", "numeric(28,8)", "医保卡"},
    {"pos_yhje", "numeric(28,8)", ""},
    {"pos_yhzkje", "numeric(28,8)", "优惠金额"},
    {"pos_wxje", "numeric(28,8)", "微信"},
    {"pos_zfbje", "numeric(28,8)", "支付宝"},
    {"pos_zftype", "varchar(32)", ""},
    {"pos_transactionid", "varchar(64)", ""},
    {"pos_rjid", "varchar(50)", ""},
    {"pos_bcjf", "numeric(28,8)", "本次积分"},
    {"pos_jfye", "numeric(28,8)", ""},
    {"pos_zlje", "numeric(28,8)", "找零金额"},
    {"pos_zjf", "numeric(28,8)", ""},
};

constexpr ColumnDef jxc_hyxssp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"hy_dj", "numeric(28,8)", ""},
    {"hy_sl", "numeric(28,8)", ""},
    {"hy_zje", "numeric(28,8)", "累计消费"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"hy_dzl", "numeric(28,8)", ""},
    {"hy_zhje", "numeric(28,8)", "卡内余额"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_hyxsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"hy_xsrq", "varchar(32)", ""},
    {"hy_je", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"hy_note", "nvarchar(200)", "备注"},
    {"hy_zffs", "int", ""},
    {"hy_xj", "numeric(28,8)", ""},
    {"hy_czk", "numeric(28,8)", ""},
    {"hy_yhk", "numeric(28,8)", ""},
    {"hy_djq", "numeric(28,8)", ""},
    {"hy_zfje", "numeric(28,8)", ""},
    {"hy_bcjf", "numeric(28,8)", ""},
    {"hy_jfye", "numeric(28,8)", ""},
    {"hy_zhje", "numeric(28,8)", "卡内余额"},
    {"hy_zjf", "numeric(28,8)", "累计积分"},
};

constexpr ColumnDef jxc_poskx_columns[] = {
    {"id", "Counter", ""},
    {"pos_com", "varchar(8)", ""},
};
constexpr SeedValue jxc_poskx_seed0[] = {
    text("14"),
};
constexpr SeedRow jxc_poskx_seeds[] = {
    {"jxc_posfont", "font_size", jxc_poskx_seed0},
};

constexpr ColumnDef jxc_dhd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"dh_dhrq", "varchar(32)", "兑换日期"},
    {"dh_sl", "numeric(28,8)", "数量"},
    {"dh_jf", "numeric(28,8)", "总积分"},
    {"dh_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ck_sn", "varchar(8)", "仓库编号"},
};

constexpr ColumnDef jxc_dhzp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"dh_zpjf", "numeric(28,8)", "兑换积分"},
    {"dh_sl", "numeric(28,8)", "数量"},
    {"dh_jf", "numeric(28,8)", "总积分"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_crk_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"crk_rq", "varchar(32)", "开单日期"},
    {"crk_flag", "varchar(1)", ""},
    {"crk_je", "numeric(28,8)", ""},
    {"crk_note", "nvarchar(200)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"a_name2", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_rjd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"rj_rq", "varchar(32)", "日结日期"},
    {"rj_sl", "numeric(28,8)", "数量"},
    {"rj_je", "numeric(28,8)", "金额"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_rjsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"rj_xsrq", "varchar(32)", "日结日期"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"rj_sl", "numeric(28,8)", "数量"},
    {"rj_je", "numeric(28,8)", "金额"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_sptjtmp_columns[] = {
    {"id", "Counter", ""},
    {"hl_sn", "varchar(8)", "编号"},
    {"hl_name", "nvarchar(32)", "会员等级"},
    {"g_name", "nvarchar(128)", "商品名称"},
    {"sp_sj", "numeric(28,8)", "零售单价"},
    {"sp_dzll", "numeric(28,8)", "商品折扣"},
    {"sp_zk", "numeric(28,8)", "顾客折扣"},
    {"sp_dxdz", "varchar(8)", "单项折扣"},
    {"sp_zzzk", "numeric(28,8)", "最终折扣"},
    {"sp_tjsp", "varchar(8)", "特价商品"},
    {"sp_tj", "numeric(28,8)", "顾客特价"},
    {"sp_zzdj", "numeric(28,8)", "最终单价"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_sptjb_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"tj_rq", "varchar(32)", "调价时间"},
    {"tj_nr", "varchar(255)", "调价内容"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_tkc_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"t_jhrq", "varchar(32)", "进货日期"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"t_sl", "numeric(28,8)", "库存数量"},
    {"t_dj", "numeric(28,8)", "成本价"},
    {"ck_sn", "varchar(8)", "仓库编号"},
};

constexpr ColumnDef jxc_zpxx_columns[] = {
    {"id", "Counter", ""},
    {"zp_sn", "varchar(8)", "赠品编号"},
    {"zp_name", "nvarchar(32)", "赠品名称"},
    {"zp_jm", "varchar(32)", "简码"},
    {"zp_sl", "numeric(28,8)", "业务数量"},
    {"zp_jf", "numeric(28,8)", "兑换积分"},
};

constexpr ColumnDef jxc_zpjh_columns[] = {
    {"id", "Counter", ""},
    {"zp_sn", "varchar(8)", "赠品编号"},
    {"zp_jhrq", "varchar(32)", "业务日期"},
    {"zp_sl", "numeric(28,8)", "业务数量"},
    {"zp_note", "nvarchar(200)", "业务类型"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_zsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"gl_xsdjh", "varchar(16)", ""},
    {"zp_zsrq", "varchar(32)", ""},
    {"zp_sl", "numeric(28,8)", "业务数量"},
    {"zp_zl", "numeric(28,8)", ""},
    {"zp_note", "nvarchar(200)", "业务类型"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_zszp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"zp_sn", "varchar(8)", "赠品编号"},
    {"zp_sl", "numeric(28,8)", "业务数量"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_yjlx_columns[] = {
    {"id", "Counter", ""},
    {"g_yjlx", "nvarchar(32)", "药剂类型"},
    {"lx_sn", "varchar(8)", "编号"},
};
constexpr SeedValue jxc_yjlx_seed0[] = {
    text("1001"), text("片剂"),
};
constexpr SeedValue jxc_yjlx_seed1[] = {
    text("1002"), text("胶囊"),
};
constexpr SeedValue jxc_yjlx_seed2[] = {
    text("1003"), text("颗粒"),
};
constexpr SeedValue jxc_yjlx_seed3[] = {
    text("1004"), text("丸剂"),
};
constexpr SeedValue jxc_yjlx_seed4[] = {
    text("1005"), text("散剂"),
};
constexpr SeedValue jxc_yjlx_seed5[] = {
    text("1006"), text("滴丸"),
};
constexpr SeedValue jxc_yjlx_seed6[] = {
    text("1007"), text("口服液"),
};
constexpr SeedValue jxc_yjlx_seed7[] = {
    text("1008"), text("洗剂"),
};
constexpr SeedValue jxc_yjlx_seed8[] = {
    text("1009"), text("膏剂"),
};
constexpr SeedValue jxc_yjlx_seed9[] = {
    text("1010"), text("喷雾剂"),
};
constexpr SeedValue jxc_yjlx_seed10[] = {
    text("1011"), text("粉剂"),
};
constexpr SeedValue jxc_yjlx_seed11[] = {
    text("1012"), text("栓剂"),
};
constexpr SeedValue jxc_yjlx_seed12[] = {
    text("1013"), text("糖浆"),
};
constexpr SeedValue jxc_yjlx_seed13[] = {
    text("1014"), text("针剂"),
};
constexpr SeedValue jxc_yjlx_seed14[] = {
    text("1015"), text("注射器"),
};
constexpr SeedValue jxc_yjlx_seed15[] = {
    text("1016"), text("贴剂"),
};
constexpr SeedValue jxc_yjlx_seed16[] = {
    text("1017"), text("润滑剂"),
};
constexpr SeedRow jxc_yjlx_seeds[] = {
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed0},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed1},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed2},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed3},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed4},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed5},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed6},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed7},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed8},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed9},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed10},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed11},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed12},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed13},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed14},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed15},
    {"jxc_yjlx", "lx_sn,g_yjlx", jxc_yjlx_seed16},
};

constexpr ColumnDef jxc_tym_columns[] = {
    {"id", "Counter", ""},
    {"g_tym", "nvarchar(64)", "通用名"},
    {"tym_sn", "varchar(8)", "编号"},
};

constexpr ColumnDef jxc_ysyfk_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"k_rq", "varchar(32)", "开单日期"},
    {"k_fkfs", "varchar(32)", "收款方式"},
    {"k_yfje", "numeric(28,8)", "应收金额"},
    {"k_sfje", "numeric(28,8)", "应收金额"},
    {"k_qcje", "numeric(28,8)", "期初应付"},
    {"k_yhje", "numeric(28,8)", ""},
    {"k_ljje", "numeric(28,8)", "欠款金额"},
    {"k_flag", "int", ""},
    {"k_type", "varchar(4)", ""},
    {"k_djlx", "varchar(4)", ""},
    {"k_djtxt", "nvarchar(16)", "单据类型"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"k_note", "nvarchar(200)", "备注"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"k_ghskh", "varchar(8)", "供货商编号"},
};

constexpr ColumnDef jxc_jxchz_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"hz_txt1", "nvarchar(32)", "业务员姓名"},
    {"hz_txt2", "nvarchar(32)", "统计类别"},
    {"id2", "int", ""},
    {"hz_flag", "varchar(4)", ""},
    {"hz_kc", "numeric(28,8)", "销售金额"},
    {"hz_kczje", "numeric(28,8)", "可提成金额"},
    {"hz_rksl", "numeric(28,8)", "销售毛利"},
    {"hz_rkzje", "numeric(28,8)", "可提成毛利"},
    {"hz_cksl", "numeric(28,8)", "提成数量"},
    {"hz_ckzje", "numeric(28,8)", "提成金额"},
    {"hz_glkc", "numeric(28,8)", "最低提成毛利"},
    {"hz_glkczje", "numeric(28,8)", "提成比例"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_kcpdsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"pd_sl", "numeric(28,8)", "盘点数量"},
    {"pd_dj", "numeric(28,8)", "核算单价"},
    {"pd_zje", "numeric(28,8)", "盈亏金额"},
    {"id2", "int", ""},
    {"kc_sl", "numeric(28,8)", "库存数"},
    {"kc_zsl", "numeric(28,8)", "帐面库存(含未入库)"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_bqjl_columns[] = {
    {"id", "Counter", ""},
    {"bq_txt", "text", ""},
    {"bq_flag", "varchar(8)", ""},
};

constexpr ColumnDef jxc_rksp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"rk_sl", "numeric(28,8)", "入库数量"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"j_sn", "varchar(16)", "单据号"},
    {"id2", "int", ""},
    {"t_jhrq", "varchar(32)", "进货日期"},
    {"rk_zsl", "numeric(28,8)", "入库数量"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"g_xlh", "text", "串号"},
};

constexpr ColumnDef jxc_rkd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"rk_rq", "varchar(32)", "开单日期"},
    {"rk_zsl", "numeric(28,8)", "入库数量"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"rk_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"rk_status", "int", ""},
    {"rk_checker", "nvarchar(32)", "审核人"},
    {"rk_chkrq", "varchar(16)", "审核时间"},
};

constexpr ColumnDef jxc_cksp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sl", "numeric(28,8)", "出库数量"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"id2", "int", ""},
    {"t_jhrq", "varchar(32)", "进货日期"},
    {"ck_zsl", "numeric(28,8)", "出库数量"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"g_xlh", "text", "串号"},
};

constexpr ColumnDef jxc_ckd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_rq", "varchar(32)", "开单日期"},
    {"ck_zsl", "numeric(28,8)", "出库数量"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"kh_sn", "varchar(8)", "编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"ck_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ck_status", "int", ""},
    {"ck_checker", "nvarchar(32)", "审核人"},
    {"ck_chkrq", "varchar(16)", "审核时间"},
};

constexpr ColumnDef jxc_ysyfk_dj_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"k_rq", "varchar(32)", "开单日期"},
    {"k_fkfs", "varchar(32)", "收款方式"},
    {"k_yfje", "numeric(28,8)", "应收金额"},
    {"k_sfje", "numeric(28,8)", "应收金额"},
    {"k_qcje", "numeric(28,8)", "期初应付"},
    {"k_yhje", "numeric(28,8)", ""},
    {"k_ljje", "numeric(28,8)", "欠款金额"},
    {"k_mlje", "numeric(28,8)", "抹零金额"},
    {"k_flag", "int", ""},
    {"k_type", "varchar(4)", ""},
    {"k_djlx", "varchar(4)", ""},
    {"k_djtxt", "nvarchar(16)", "单据类型"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"k_note", "nvarchar(200)", "备注"},
    {"k_check", "bit", "审核"},
    {"k_checker", "nvarchar(32)", ""},
    {"k_chkrq", "varchar(16)", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"k_ghskh", "varchar(8)", "供货商编号"},
};

constexpr ColumnDef jxc_fpdjb_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"fp_rq", "varchar(32)", "开单日期"},
    {"fp_no", "varchar(32)", "发票号码"},
    {"fp_yfje", "numeric(28,8)", "应开票金额"},
    {"fp_sfje", "numeric(28,8)", ""},
    {"fp_kpje", "numeric(28,8)", "已开票金额"},
    {"fp_qcje", "numeric(28,8)", "期初应开"},
    {"fp_ljje", "numeric(28,8)", "期末应开金额"},
    {"fp_flag", "int", ""},
    {"fp_type", "varchar(4)", ""},
    {"fp_djlx", "varchar(4)", ""},
    {"fp_djtxt", "nvarchar(16)", "单据类型"},
    {"fp_note", "nvarchar(200)", "备注"},
    {"fp_ghskh", "varchar(8)", "供货商编号"},
    {"fp_check", "bit", ""},
    {"fp_checker", "nvarchar(32)", ""},
    {"fp_chkrq", "varchar(16)", ""},
    {"fp_kprq", "varchar(32)", "开票日期"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_kdd_columns[] = {
    {"id", "Counter", ""},
    {"kd_dh", "varchar(32)", "快递单号"},
    {"kg_sn", "varchar(8)", "编号"},
    {"kd_rq", "varchar(32)", "寄件日期"},
    {"kd_zl", "numeric(28,8)", "重量"},
    {"kd_je", "numeric(28,8)", "金额"},
    {"kd_jjr", "nvarchar(32)", "寄件人"},
    {"kd_src", "nvarchar(32)", "始发地"},
    {"kd_dwmc", "nvarchar(64)", "单位名称"},
    {"kd_address", "nvarchar(200)", "寄件地址"},
    {"kd_tele", "varchar(32)", "寄件电话"},
    {"kd_mobile", "varchar(32)", "寄件人手机"},
    {"kd_zip", "varchar(8)", "寄件邮编"},
    {"kd_sjr", "nvarchar(32)", "收件人"},
    {"kd_dest", "nvarchar(32)", "目的地"},
    {"kd_dwmc2", "nvarchar(64)", "收件单位"},
    {"kd_address2", "nvarchar(200)", "收件人地址"},
    {"kd_tele2", "varchar(32)", "收件电话"},
    {"kd_mobile2", "varchar(32)", "收件人手机"},
    {"kd_zip2", "varchar(8)", "收件邮编"},
    {"kd_note", "nvarchar(200)", "备注"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_kdgs_columns[] = {
    {"id", "Counter", ""},
    {"kg_sn", "varchar(8)", "编号"},
    {"kg_name", "nvarchar(64)", "快递公司"},
};
constexpr SeedValue jxc_kdgs_seed0[] = {
    text("1001"), text("EMS"),
};
constexpr SeedValue jxc_kdgs_seed1[] = {
    text("1002"), text("顺丰快递"),
};
constexpr SeedValue jxc_kdgs_seed2[] = {
    text("1003"), text("中通快递"),
};
constexpr SeedValue jxc_kdgs_seed3[] = {
    text("1004"), text("申通快递"),
};
constexpr SeedValue jxc_kdgs_seed4[] = {
    text("1005"), text("天天快递"),
};
constexpr SeedValue jxc_kdgs_seed5[] = {
    text("1006"), text("星晨急便"),
};
constexpr SeedValue jxc_kdgs_seed6[] = {
    text("1007"), text("圆通速递"),
};
constexpr SeedValue jxc_kdgs_seed7[] = {
    text("1008"), text("韵达快运"),
};
constexpr SeedValue jxc_kdgs_seed8[] = {
    text("1009"), text("宅急送"),
};
constexpr SeedValue jxc_kdgs_seed9[] = {
    text("1010"), text("中铁快运"),
};
constexpr SeedValue jxc_kdgs_seed10[] = {
    text("1011"), text("汇通快运"),
};
constexpr SeedValue jxc_kdgs_seed11[] = {
    text("1012"), text("信丰物流"),
};
constexpr SeedValue jxc_kdgs_seed12[] = {
    text("1013"), text("快捷快递"),
};
constexpr SeedValue jxc_kdgs_seed13[] = {
    text("1014"), text("德邦快递"),
};
constexpr SeedValue jxc_kdgs_seed14[] = {
    text("1015"), text("百世快运"),
};
constexpr SeedValue jxc_kdgs_seed15[] = {
    text("1016"), text("优速快递"),
};
constexpr SeedValue jxc_kdgs_seed16[] = {
    text("1017"), text("速腾快递"),
};
constexpr SeedValue jxc_kdgs_seed17[] = {
    text("1018"), text("远成快运"),
};
constexpr SeedValue jxc_kdgs_seed18[] = {
    text("1019"), text("韵达速递"),
};
constexpr SeedValue jxc_kdgs_seed19[] = {
    text("1020"), text("百世快递"),
};
constexpr SeedValue jxc_kdgs_seed20[] = {
    text("1021"), text("全速通国际快递"),
};
constexpr SeedValue jxc_kdgs_seed21[] = {
    text("1022"), text("汇升快递"),
};
constexpr SeedValue jxc_kdgs_seed22[] = {
    text("1023"), text("联合快递"),
};
constexpr SeedRow jxc_kdgs_seeds[] = {
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed0},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed1},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed2},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed3},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed4},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed5},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed6},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed7},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed8},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed9},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed10},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed11},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed12},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed13},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed14},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed15},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed16},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed17},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed18},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed19},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed20},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed21},
    {"jxc_kdgs", "kg_sn,kg_name", jxc_kdgs_seed22},
};

constexpr ColumnDef jxc_goodstm_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"g_sptm", "varchar(64)", "商品条码"},
};

constexpr ColumnDef jxc_goodsdw_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"g_jj", "numeric(28,8)", "预设进价"},
    {"g_sj", "numeric(28,8)", "预设售价"},
    {"g_sj1", "numeric(28,8)", "一级价格"},
    {"g_sj2", "numeric(28,8)", "二级价格"},
    {"g_sj3", "numeric(28,8)", "三级价格"},
    {"g_sj4", "numeric(28,8)", "四级价格"},
    {"g_sj5", "numeric(28,8)", "五级价格"},
    {"g_lsj", "numeric(28,8)", "零售价"},
    {"g_scjj", "numeric(28,8)", "上次进价"},
    {"g_cbj", "numeric(28,8)", ""},
    {"g_pjjj", "numeric(28,8)", ""},
};

constexpr ColumnDef jxc_goodsdwtmp_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"g_jj", "numeric(28,8)", "预设进价"},
    {"g_sj", "numeric(28,8)", "预设售价"},
    {"g_sj1", "numeric(28,8)", "一级价格"},
    {"g_sj2", "numeric(28,8)", "二级价格"},
    {"g_sj3", "numeric(28,8)", "三级价格"},
    {"g_sj4", "numeric(28,8)", "四级价格"},
    {"g_sj5", "numeric(28,8)", "五级价格"},
    {"g_lsj", "numeric(28,8)", "零售价"},
    {"g_scjj", "numeric(28,8)", "上次进价"},
    {"g_cbj", "numeric(28,8)", ""},
    {"g_pjjj", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_tempspxf2_columns[] = {
    {"id", "Counter", ""},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ts_dj", "numeric(28,8)", "单价"},
    {"ts_cbj", "numeric(28,8)", ""},
    {"ts_zcb", "numeric(28,8)", ""},
    {"ts_cbj2", "numeric(28,8)", ""},
    {"ts_sl", "numeric(28,8)", "数量"},
    {"id3", "int", ""},
    {"rid", "int", ""},
    {"ts_je", "numeric(28,8)", ""},
    {"ts_tax", "numeric(28,8)", "租金"},
    {"ts_taxdj", "numeric(28,8)", "含税单价"},
    {"ts_taxje", "numeric(28,8)", ""},
    {"ts_lsj", "numeric(28,8)", ""},
    {"ts_zje", "numeric(28,8)", "总金额"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ts_dzl", "numeric(28,8)", "打折率"},
    {"t_jhrq", "varchar(32)", "进货日期"},
    {"ts_zhdj", "numeric(28,8)", ""},
    {"ts_note", "nvarchar(200)", "提示信息"},
    {"t_zp", "nvarchar(16)", "提示信息"},
    {"ts_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"t_cfsm", "nvarchar(32)", "处方说明"},
    {"ts_xm", "varchar(32)", ""},
    {"ts_cardno", "varchar(32)", ""},
    {"t_cfhm", "nvarchar(32)", "处方号码"},
    {"t_addr", "nvarchar(32)", "住址"},
    {"t_mobile", "nvarchar(32)", "手机号码"},
    {"t_yaoshi", "nvarchar(32)", "药师"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"g_xlh", "text", "串号"},
};

constexpr ColumnDef jxc_poscs_columns[] = {
    {"id", "Counter", ""},
    {"pos_qxjk", "int", ""},
    {"pos_jkzl", "int", ""},
    {"pos_kxjk", "int", ""},
    {"pos_dkqx", "bit", ""},
    {"pos_tmlx", "int", ""},
    {"pos_jzqz", "varchar(4)", ""},
    {"pos_jsqz", "varchar(4)", ""},
    {"pos_jews", "int", ""},
    {"pos_djws", "int", ""},
    {"pos_zlws", "int", ""},
};
constexpr SeedValue jxc_poscs_seed0[] = {
    number("0"), number("0"), number("1"), number("0"), text("24"), text("25"), number("2"),
    number("2"), number("2"), number("0"),
};
constexpr SeedRow jxc_poscs_seeds[] = {
    {"jxc_poscs", "pos_qxjk,pos_jkzl,pos_dkqx,pos_tmlx,pos_jzqz,pos_jsqz,pos_jews,pos_djws,pos_zlws,pos_kxjk", jxc_poscs_seed0},
};

constexpr ColumnDef jxc_hyyh_columns[] = {
    {"id", "Counter", ""},
    {"hh_sn", "varchar(8)", ""},
    {"hh_name", "nvarchar(32)", "优惠方式"},
    {"hh_zl", "int", ""},
    {"hh_yh1", "numeric(28,8)", ""},
    {"hh_yh2", "numeric(28,8)", ""},
    {"hh_yh3", "numeric(28,8)", ""},
    {"hh_zlname", "nvarchar(32)", "优惠种类"},
    {"hh_note", "nvarchar(200)", "优惠说明"},
};
constexpr SeedValue jxc_hyyh_seed0[] = {
    text("100001"), text("不优惠"), number("0"), number("1"), number("0"), number("0"), text("存款优惠"),
    text("实际款=所付存款*1"),
};
constexpr SeedRow jxc_hyyh_seeds[] = {
    {"jxc_hyyh", "hh_sn,hh_name,hh_zl,hh_yh1,hh_yh2,hh_yh3,hh_zlname,hh_note", jxc_hyyh_seed0},
};

constexpr ColumnDef jxc_hyczzs_columns[] = {
    {"id", "Counter", ""},
    {"hs_sn", "varchar(8)", "编号"},
    {"hs_zsfs", "int", ""},
    {"hs_txt", "nvarchar(32)", ""},
    {"hs_myje", "numeric(28,8)", "每次金额"},
    {"hs_czje", "numeric(28,8)", "充值金额"},
    {"hs_zsje", "numeric(28,8)", "赠送金额"},
    {"hs_note", "nvarchar(200)", "说明"},
};

constexpr ColumnDef jxc_hyxf_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"xf_rq", "varchar(32)", "交费日期"},
    {"xf_je", "numeric(28,8)", "续费金额"},
    {"xf_yhje", "numeric(28,8)", ""},
    {"xf_xj", "numeric(28,8)", "现金"},
    {"xf_czk", "numeric(28,8)", ""},
    {"xf_xyk", "numeric(28,8)", "银行卡"},
    {"xf_djq", "numeric(28,8)", ""},
    {"xf_wxje", "numeric(28,8)", "微信"},
    {"xf_zfbje", "numeric(28,8)", "支付宝"},
    {"xf_zlje", "numeric(28,8)", "找零金额"},
    {"xf_note", "nvarchar(200)", "备注"},
    {"xf_zt", "varchar(32)", "续费类别"},
    {"xf_fdzt", "varchar(32)", ""},
    {"xf_fd", "varchar(32)", ""},
    {"xf_zsrq", "varchar(16)", ""},
    {"hs_zsfs", "int", ""},
    {"hs_myje", "numeric(28,8)", "每次金额"},
    {"hs_zsje", "numeric(28,8)", "赠送金额"},
    {"xf_id", "varchar(32)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_dept_columns[] = {
    {"id", "Counter", ""},
    {"de_sn", "varchar(8)", "部门编号"},
    {"de_name", "nvarchar(64)", "部门名称"},
};
constexpr SeedValue jxc_dept_seed0[] = {
    text("100001"), text("默认部门"),
};
constexpr SeedRow jxc_dept_seeds[] = {
    {"jxc_dept", "de_sn,de_name", jxc_dept_seed0},
};

constexpr ColumnDef jxc_sms_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"sms_rq", "varchar(16)", "发信日期"},
    {"sms_note", "nvarchar(250)", "短信内容"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_smshy_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"hy_mobile", "varchar(16)", "手机"},
    {"sms_rq", "varchar(32)", "发信日期"},
    {"sms_note", "nvarchar(250)", "短信内容"},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_smscs_columns[] = {
    {"id", "Counter", ""},
    {"sms_sign", "varchar(32)", ""},
    {"sms_user", "varchar(32)", ""},
    {"sms_pwd", "varchar(32)", ""},
    {"sms_cznote", "nvarchar(250)", ""},
    {"sms_xfnote", "nvarchar(250)", ""},
};

constexpr ColumnDef jxc_khjh_columns[] = {
    {"id", "Counter", ""},
    {"kh_sn", "varchar(8)", "编号"},
    {"jh_rq", "varchar(32)", "日期"},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"jh_status", "int", ""},
    {"jh_flag", "varchar(2)", "单据类型"},
    {"jh_checker", "nvarchar(32)", "审核人"},
    {"jh_chkrq", "varchar(16)", "审核日期"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"jh_note", "nvarchar(200)", "备注"},
};

constexpr ColumnDef jxc_khjhsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"jh_dj", "numeric(28,8)", "单价"},
    {"jh_zje", "numeric(28,8)", "总金额"},
    {"jh_sl", "numeric(28,8)", "进货数量"},
    {"jh_hhsl", "numeric(28,8)", "还货数量"},
    {"jh_xssl", "numeric(28,8)", "销售数量"},
    {"jh_sl2", "numeric(28,8)", ""},
    {"jh_yj", "numeric(28,8)", "押金"},
    {"jh_yj2", "numeric(28,8)", ""},
    {"jh_zj", "numeric(28,8)", "租金"},
    {"jh_ts", "numeric(28,8)", "天数"},
    {"jh_zzj", "numeric(28,8)", "租金合计"},
    {"jh_thyj", "numeric(28,8)", "退回押金"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"jh_flag", "varchar(4)", "单据类型"},
    {"jh_kmmc", "nvarchar(32)", "收款账户"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_mjph", "varchar(64)", "灭菌批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"g_xlh", "text", "串号"},
    {"id2", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_khjhsptmp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"jh_dj", "numeric(28,8)", "单价"},
    {"jh_zje", "numeric(28,8)", "总金额"},
    {"jh_sl", "numeric(28,8)", "进货数量"},
    {"jh_hhsl", "numeric(28,8)", "还货数量"},
    {"jh_xssl", "numeric(28,8)", "销售数量"},
    {"jh_sl2", "numeric(28,8)", ""},
    {"jh_yj", "numeric(28,8)", "押金"},
    {"jh_yj2", "numeric(28,8)", ""},
    {"jh_zj", "numeric(28,8)", "租金"},
    {"jh_ts", "numeric(28,8)", "天数"},
    {"jh_zzj", "numeric(28,8)", "租金合计"},
    {"jh_thyj", "numeric(28,8)", "退回押金"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"jh_flag", "varchar(4)", "单据类型"},
    {"jh_kmmc", "nvarchar(32)", "收款账户"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_mjph", "varchar(64)", "灭菌批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
    {"g_xlh", "text", "串号"},
    {"id2", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_gspcs_columns[] = {
    {"id", "Counter", ""},
    {"gsp_sn", "varchar(8)", "编号"},
    {"gsp_name", "nvarchar(32)", "药品类型"},
    {"gsp_sele", "bit", ""},
};
constexpr SeedValue jxc_gspcs_seed0[] = {
    text("1001"), text("中药材"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed1[] = {
    text("1002"), text("中药饮片"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed2[] = {
    text("1003"), text("中成药"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed3[] = {
    text("1004"), text("化学原制剂"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed4[] = {
    text("1005"), text("抗生素制剂"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed5[] = {
    text("1006"), text("生化药品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed6[] = {
    text("1007"), text("生物制品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed7[] = {
    text("1008"), text("麻醉药品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed8[] = {
    text("1009"), text("精神药品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed9[] = {
    text("1010"), text("医疗用毒性药品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed10[] = {
    text("1011"), text("消毒药品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed11[] = {
    text("1012"), text("保健食品"), number("0"),
};
constexpr SeedValue jxc_gspcs_seed12[] = {
    text("1013"), text("医疗器械"), number("0"),
};
constexpr SeedRow jxc_gspcs_seeds[] = {
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed0},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed1},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed2},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed3},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed4},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed5},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed6},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed7},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed8},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed9},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed10},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed11},
    {"jxc_gspcs", "gsp_sn,gsp_name,gsp_sele", jxc_gspcs_seed12},
};

constexpr ColumnDef jxc_hjxx_columns[] = {
    {"id", "Counter", ""},
    {"hj_sn", "varchar(8)", "库位编号"},
    {"hj_name", "nvarchar(64)", "库位"},
    {"hj_wz", "nvarchar(32)", ""},
    {"hj_flag", "varchar(1)", ""},
};
constexpr SeedValue jxc_hjxx_seed0[] = {
    text("1001"), text("默认库位"), text("默认位置"), text("1"),
};
constexpr SeedRow jxc_hjxx_seeds[] = {
    {"jxc_hjxx", "hj_sn,hj_name,hj_wz,hj_flag", jxc_hjxx_seed0},
};

constexpr ColumnDef jxc_cljcsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"t_sl", "numeric(28,8)", "库存数量"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ls_bz", "nvarchar(64)", "备注"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"t_zlzk", "nvarchar(32)", "质量状况"},
    {"t_clqk", "nvarchar(32)", "处理情况"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_cljcd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"t_rq", "varchar(32)", "检查日期"},
    {"t_yhsl", "numeric(28,8)", "养护药品数量"},
    {"t_yhzl", "nvarchar(32)", "养护药品质量状况"},
    {"t_yhhgsl", "numeric(28,8)", "养护药品合格数量"},
    {"t_yhpssl", "numeric(28,8)", "养护药品破损数量"},
    {"t_yhgqsl", "numeric(28,8)", "养护药品过期数量"},
    {"t_yhycsl", "numeric(28,8)", "养护药品异常数量"},
    {"t_swsl", "numeric(28,8)", "生物制品数量"},
    {"t_swzl", "nvarchar(32)", "生物制品质量状况"},
    {"t_swhgsl", "numeric(28,8)", "生物制品合格数量"},
    {"t_swpssl", "numeric(28,8)", "生物制品破损数量"},
    {"t_swgqsl", "numeric(28,8)", "生物制品过期数量"},
    {"t_swycsl", "numeric(28,8)", "生物制品异常数量"},
    {"t_jxqsl", "numeric(28,8)", "近效期药品数量"},
    {"t_jxqzl", "nvarchar(32)", "近效期药品质量状况"},
    {"t_jxqhgsl", "numeric(28,8)", "近效期药品合格数量"},
    {"t_jxqpssl", "numeric(28,8)", "近效期药品污染破损数量"},
    {"t_jxqycsl", "numeric(28,8)", "近效期药品异常数量"},
    {"t_zysl", "numeric(28,8)", "中药饮片数量"},
    {"t_zyzl", "nvarchar(32)", "中药饮片质量状况"},
    {"t_zyhgsl", "numeric(28,8)", "中药饮片合格数量"},
    {"t_zypssl", "numeric(28,8)", "中药饮片破损数量"},
    {"t_zygqsl", "numeric(28,8)", "中药饮片过期数量"},
    {"t_zyycsl", "numeric(28,8)", "中药饮片异常数量"},
    {"t_dnwd", "numeric(28,8)", "店内平均温度"},
    {"t_dnsd", "numeric(28,8)", "店内平均湿度"},
    {"t_ylgwd", "numeric(28,8)", "阴凉柜平均温度"},
    {"t_ylgsd", "numeric(28,8)", "阴凉柜平均湿度"},
    {"t_lcgwd", "numeric(28,8)", "冷藏柜平均温度"},
    {"t_lcgsd", "numeric(28,8)", "冷藏柜平均湿度"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"t_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_status", "int", ""},
    {"t_checker", "nvarchar(32)", ""},
    {"t_chkrq", "varchar(16)", ""},
};

constexpr ColumnDef jxc_cgplansp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"cp_dj", "numeric(28,8)", "单价"},
    {"cp_sl", "numeric(28,8)", "数量"},
    {"cp_je", "numeric(28,8)", "金额"},
    {"cp_tax", "numeric(28,8)", "税率"},
    {"cp_taxdj", "numeric(28,8)", "含税单价"},
    {"cp_taxje", "numeric(28,8)", "税额"},
    {"cp_zje", "numeric(28,8)", "总金额"},
    {"cp_rksl", "numeric(28,8)", ""},
    {"cp_zsl", "numeric(28,8)", ""},
    {"cp_dzl", "numeric(28,8)", "折扣"},
    {"cp_dhsl", "numeric(28,8)", ""},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"cp_sele", "int", ""},
    {"cp_sele2", "int", ""},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_mjph", "varchar(64)", "灭菌批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_cgplan_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"cp_rq", "varchar(32)", "开单日期"},
    {"cp_yfje", "numeric(28,8)", "订单金额"},
    {"cp_sfje", "numeric(28,8)", ""},
    {"cp_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"cp_fpno", "varchar(32)", ""},
    {"cp_fpje", "numeric(28,8)", ""},
    {"cp_status", "int", ""},
    {"cp_checker", "nvarchar(32)", "审核人"},
    {"cp_chkrq", "varchar(16)", "审核时间"},
    {"cp_jsfs", "int", ""},
    {"cp_kmmc", "nvarchar(32)", "付款方式"},
};

constexpr ColumnDef jxc_ckwsd_columns[] = {
    {"id", "Counter", ""},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"cw_rq", "varchar(32)", "日期"},
    {"cw_time", "varchar(8)", "时间"},
    {"cw_wd", "numeric(28,8)", "温度"},
    {"cw_sd", "numeric(28,8)", "湿度"},
    {"cw_wd2", "varchar(8)", "措施后温度"},
    {"cw_sd2", "varchar(8)", "措施后湿度"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"cw_cs", "nvarchar(255)", "采取的措施"},
    {"cw_note", "nvarchar(255)", "备注"},
    {"cw_jly", "nvarchar(32)", "记录员"},
};

constexpr ColumnDef jxc_jxqd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"t_rq", "varchar(32)", "检查日期"},
    {"t_hsdy", "nvarchar(32)", "核算单元"},
    {"t_bgz", "nvarchar(32)", "保管账"},
    {"t_yx", "varchar(8)", "月序"},
    {"t_nian", "varchar(4)", "年"},
    {"t_yue", "varchar(4)", "月"},
    {"t_qsxq", "int", "起始效期天数"},
    {"t_jsxq", "int", "结束效期天数"},
    {"t_zt", "nvarchar(32)", "状态"},
    {"t_jdbs", "int", "结单笔数"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"t_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_status", "int", ""},
    {"t_checker", "nvarchar(32)", ""},
    {"t_chkrq", "varchar(16)", ""},
};

constexpr ColumnDef jxc_jxqsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"t_sl", "numeric(28,8)", "库存数量"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ls_bz", "nvarchar(64)", "备注"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"t_zlzk", "nvarchar(32)", "质量状况"},
    {"t_clqk", "nvarchar(32)", "处理情况"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_yghmc_columns[] = {
    {"id", "Counter", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"u_name", "nvarchar(32)", "经办人"},
    {"u_jm", "varchar(32)", ""},
    {"u_sex", "nvarchar(2)", "性别"},
    {"u_duty", "nvarchar(32)", "职务"},
    {"u_csrq", "varchar(16)", "出生日期"},
    {"u_mz", "nvarchar(16)", "民族"},
    {"u_jg", "nvarchar(8)", "籍贯"},
    {"u_xl", "nvarchar(8)", "学历"},
    {"u_zy", "nvarchar(32)", "所学专业"},
    {"u_bysj", "nvarchar(16)", "毕业时间"},
    {"u_jszc", "nvarchar(16)", "技术职称"},
    {"u_zyzg", "nvarchar(32)", "职业资格"},
    {"u_pddw", "nvarchar(64)", "职业资格评定单位"},
    {"u_gw", "nvarchar(32)", "岗位"},
    {"u_gsny", "varchar(16)", "进本公司时间"},
    {"u_dabh", "varchar(32)", "人事档案编号"},
    {"u_islz", "bit", "是否离职"},
    {"u_isys", "bit", "执业药师"},
    {"de_sn", "varchar(8)", "部门编号"},
    {"fd_sn", "varchar(8)", ""},
};

constexpr ColumnDef jxc_ygtjb_columns[] = {
    {"id", "Counter", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"u_jwbs", "nvarchar(200)", ""},
    {"u_cgjc", "nvarchar(64)", ""},
    {"u_xt", "nvarchar(64)", ""},
    {"u_hyjc", "nvarchar(64)", ""},
    {"u_wgjc", "nvarchar(64)", ""},
    {"u_jcyj", "nvarchar(64)", ""},
    {"u_tjdw", "nvarchar(32)", ""},
    {"u_tjrq", "varchar(16)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_ygpxjh_columns[] = {
    {"id", "Counter", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"u_rq", "varchar(32)", "提交日期"},
    {"u_pxzt", "nvarchar(32)", "培训主题"},
    {"u_pxmd", "nvarchar(64)", "培训目的"},
    {"u_pxnr", "nvarchar(200)", "培训内容"},
    {"u_dd", "nvarchar(64)", "地点"},
    {"u_js", "nvarchar(32)", "讲师"},
    {"u_ydsj", "varchar(16)", "预定时间"},
    {"u_pxdx", "nvarchar(32)", "培训对象"},
    {"u_khfs", "nvarchar(32)", "考核方式"},
    {"u_pxfs", "nvarchar(32)", "培训方式"},
    {"u_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_ygpxjl_columns[] = {
    {"id", "Counter", ""},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"u_pxsj", "varchar(16)", "培训时间"},
    {"u_pxbx", "nvarchar(64)", "培训表现"},
    {"u_khjg", "nvarchar(64)", "考核结果"},
    {"u_cj", "nvarchar(16)", "成绩"},
    {"u_pdr", "nvarchar(16)", "评定人"},
    {"u_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"a_name", "nvarchar(32)", "操作员"},
};

constexpr ColumnDef jxc_cgsp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"jh_dj", "numeric(28,8)", "单价"},
    {"jh_sl", "numeric(28,8)", "进货数量"},
    {"jh_je", "numeric(28,8)", "金额"},
    {"jh_tax", "numeric(28,8)", "税率"},
    {"jh_taxdj", "numeric(28,8)", "含税单价"},
    {"jh_taxje", "numeric(28,8)", "税额"},
    {"jh_zje", "numeric(28,8)", "总金额"},
    {"jh_rksl", "numeric(28,8)", "采购数量"},
    {"jh_qxsl", "numeric(28,8)", ""},
    {"jh_zsl", "numeric(28,8)", ""},
    {"jh_dzl", "numeric(28,8)", "折扣"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"jh_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_cgd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"j_jhrq", "varchar(16)", "开单日期"},
    {"j_yfje", "numeric(28,8)", "应付金额"},
    {"j_sfje", "numeric(28,8)", "实付金额"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"j_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"j_yhje", "numeric(28,8)", "优惠金额"},
    {"j_hkje", "numeric(28,8)", ""},
    {"j_th", "int", ""},
    {"j_crk", "bit", ""},
    {"j_qk", "bit", "已导入"},
    {"j_status", "int", ""},
    {"j_checker", "nvarchar(32)", "审核人"},
    {"j_chkrq", "varchar(16)", "审核日期"},
    {"j_jsfs", "int", ""},
    {"j_kmmc", "nvarchar(32)", "结算方式"},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"j_dhbz", "int", ""},
};

constexpr ColumnDef jxc_xssp_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"g_sn", "varchar(32)", "商品编号"},
    {"ls_dj", "numeric(28,8)", "单价"},
    {"ls_sl", "numeric(28,8)", "数量"},
    {"ls_je", "numeric(28,8)", "金额"},
    {"ls_cbj", "numeric(28,8)", "成本价"},
    {"ls_zcb", "numeric(28,8)", "总成本"},
    {"ls_cbj2", "numeric(28,8)", ""},
    {"ls_tax", "numeric(28,8)", "税率"},
    {"ls_taxdj", "numeric(28,8)", "含税单价"},
    {"ls_taxje", "numeric(28,8)", "税额"},
    {"ls_lsj", "numeric(28,8)", "零售价"},
    {"ls_zje", "numeric(28,8)", "总金额"},
    {"ls_cksl", "numeric(28,8)", "销售数量"},
    {"ls_qxsl", "numeric(28,8)", ""},
    {"a_name", "nvarchar(32)", "操作员"},
    {"ls_dzl", "numeric(28,8)", "折扣"},
    {"ls_bz", "nvarchar(64)", "备注"},
    {"id2", "int", ""},
    {"id3", "int", ""},
    {"ls_zhje", "numeric(28,8)", "折后价"},
    {"ls_dhdj", "numeric(28,8)", ""},
    {"ls_zsl", "numeric(28,8)", ""},
    {"g_tmbz", "nvarchar(32)", "条码备注"},
    {"dw_name", "nvarchar(64)", "单位"},
    {"g_sptm", "varchar(64)", "商品条码"},
    {"g_zhxs", "numeric(28,8)", "转换系数"},
    {"ls_dhbz", "int", ""},
    {"t_zp", "nvarchar(16)", "提示信息"},
    {"ghs_sn", "varchar(8)", "编号"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"t_ph", "varchar(64)", "产品批号"},
    {"t_scrq", "varchar(16)", "生产日期"},
    {"t_yxq", "varchar(16)", "有效期至"},
};

constexpr ColumnDef jxc_xsd_columns[] = {
    {"id", "Counter", ""},
    {"gl_djh", "varchar(16)", "单据号"},
    {"kh_sn", "varchar(8)", "编号"},
    {"ck_sn", "varchar(8)", "仓库编号"},
    {"ls_xsrq", "varchar(32)", "开单日期"},
    {"ls_yfje", "numeric(28,8)", "应收金额"},
    {"ls_sfje", "numeric(28,8)", "实收金额"},
    {"u_sn", "varchar(8)", "业务员编号"},
    {"ls_note", "nvarchar(200)", "备注"},
    {"a_name", "nvarchar(32)", "操作员"},
    {"gl_djh2", "nvarchar(16)", "原始单号"},
    {"ls_yhje", "numeric(28,8)", "优惠金额"},
    {"ls_hkje", "numeric(28,8)", ""},
    {"ls_th", "int", ""},
    {"ls_crk", "bit", ""},
    {"ls_qk", "bit", "已导入"},
    {"ls_fdmc", "varchar(50)", ""},
    {"ls_hy", "varchar(50)", ""},
    {"hy_sn", "varchar(8)", "会员编号"},
    {"ls_ckrq", "varchar(16)", "提醒日期"},
    {"ls_status", "int", ""},
    {"ls_checker", "nvarchar(32)", "审核人"},
    {"ls_chkrq", "varchar(16)", "审核日期"},
    {"ls_jsfs", "int", ""},
    {"ls_kmmc", "nvarchar(32)", "结算方式"},
    {"ht_sn", "varchar(8)", "合同编号"},
    {"ls_dhbz", "int", ""},
};

constexpr TableDef tables[] = {
    {"jxc_skin", jxc_skin_columns, jxc_skin_seeds},
    {"jxc_goodsclass", jxc_goodsclass_columns, jxc_goodsclass_seeds},
    {"jxc_goods", jxc_goods_columns, jxc_goods_seeds},
    {"jxc_color", jxc_color_columns, jxc_color_seeds},
    {"jxc_dw", jxc_dw_columns, jxc_dw_seeds},
    {"jxc_ggxh", jxc_ggxh_columns, jxc_ggxh_seeds},
    {"jxc_ckxx", jxc_ckxx_columns, jxc_ckxx_seeds},
    {"jxc_kcsp", jxc_kcsp_columns, {}},
    {"jxc_goodstmp", jxc_goodstmp_columns, {}},
    {"jxc_ghsxx", jxc_ghsxx_columns, jxc_ghsxx_seeds},
    {"jxc_goodsprice", jxc_goodsprice_columns, {}},
    {"jxc_import", jxc_import_columns, jxc_import_seeds},
    {"jxc_importchk", jxc_importchk_columns, {}},
    {"jxc_importdata", jxc_importdata_columns, {}},
    {"jxc_goodsremind", jxc_goodsremind_columns, {}},
    {"jxc_ghstype", jxc_ghstype_columns, jxc_ghstype_seeds},
    {"jxc_zone", jxc_zone_columns, jxc_zone_seeds},
    {"jxc_ghsfk", jxc_ghsfk_columns, {}},
    {"jxc_khxx", jxc_khxx_columns, jxc_khxx_seeds},
    {"jxc_khtype", jxc_khtype_columns, jxc_khtype_seeds},
    {"jxc_khfk", jxc_khfk_columns, {}},
    {"jxc_user", jxc_user_columns, jxc_user_seeds},
    {"jxc_admin", jxc_admin_columns, jxc_admin_seeds},
    {"jxc_company", jxc_company_columns, jxc_company_seeds},
    {"jxc_goodslist", jxc_goodslist_columns, {}},
    {"jxc_djbz", jxc_djbz_columns, {}},
    {"jxc_jhsp", jxc_jhsp_columns, {}},
    {"jxc_jhd", jxc_jhd_columns, {}},
    {"jxc_tempspbd", jxc_tempspbd_columns, {}},
    {"jxc_tempspxf", jxc_tempspxf_columns, {}},
    {"jxc_wxfk", jxc_wxfk_columns, {}},
    {"jxc_tempyyfx", jxc_tempyyfx_columns, {}},
    {"jxc_xjyh", jxc_xjyh_columns, jxc_xjyh_seeds},
    {"jxc_shdj", jxc_shdj_columns, {}},
    {"jxc_shsp", jxc_shsp_columns, {}},
    {"jxc_ghsbj", jxc_ghsbj_columns, {}},
    {"jxc_thd", jxc_thd_columns, {}},
    {"jxc_thsp", jxc_thsp_columns, {}},
    {"jxc_log", jxc_log_columns, {}},
    {"jxc_fkfs", jxc_fkfs_columns, jxc_fkfs_seeds},
    {"jxc_fkmx", jxc_fkmx_columns, {}},
    {"jxc_bbgl", jxc_bbgl_columns, {}},
    {"jxc_lsxssp", jxc_lsxssp_columns, {}},
    {"jxc_lsxsd", jxc_lsxsd_columns, {}},
    {"jxc_xsthsp", jxc_xsthsp_columns, {}},
    {"jxc_xsthd", jxc_xsthd_columns, {}},
    {"jxc_khbj", jxc_khbj_columns, {}},
    {"jxc_lsxssptemp", jxc_lsxssptemp_columns, {}},
    {"jxc_hyfl", jxc_hyfl_columns, jxc_hyfl_seeds},
    {"jxc_hyxx", jxc_hyxx_columns, jxc_hyxx_seeds},
    {"jxc_hyjbxx", jxc_hyjbxx_columns, {}},
    {"jxc_posxsd", jxc_posxsd_columns, {}},
    {"jxc_posxssp", jxc_posxssp_columns, {}},
    {"jxc_jfsz", jxc_jfsz_columns, jxc_jfsz_seeds},
    {"jxc_jfdh", jxc_jfdh_columns, {}},
    {"jxc_posprint", jxc_posprint_columns, jxc_posprint_seeds},
    {"jxc_gnb", jxc_gnb_columns, jxc_gnb_seeds},
    {"jxc_posfont", jxc_posfont_columns, jxc_posfont_seeds},
    {"jxc_yhzh", jxc_yhzh_columns, jxc_yhzh_seeds},
    {"jxc_kcdbd", jxc_kcdbd_columns, {}},
    {"jxc_dbsp", jxc_dbsp_columns, {}},
    {"jxc_cfd", jxc_cfd_columns, {}},
    {"jxc_cfsp", jxc_cfsp_columns, {}},
    {"jxc_kbd", jxc_kbd_columns, {}},
    {"jxc_kbsp", jxc_kbsp_columns, {}},
    {"jxc_yyfy", jxc_yyfy_columns, {}},
    {"jxc_cfsptmp", jxc_cfsptmp_columns, {}},
    {"jxc_bsd", jxc_bsd_columns, {}},
    {"jxc_bssp", jxc_bssp_columns, {}},
    {"jxc_byd", jxc_byd_columns, {}},
    {"jxc_bysp", jxc_bysp_columns, {}},
    {"jxc_kcpd", jxc_kcpd_columns, {}},
    {"jxc_kcpdtemp", jxc_kcpdtemp_columns, {}},
    {"jxc_ckjth", jxc_ckjth_columns, {}},
    {"jxc_kcjs", jxc_kcjs_columns, {}},
    {"jxc_htgl", jxc_htgl_columns, {}},
    {"jxc_ftpcs", jxc_ftpcs_columns, {}},
    {"jxc_khhtgl", jxc_khhtgl_columns, {}},
    {"jxc_ghslx", jxc_ghslx_columns, {}},
    {"jxc_khlx", jxc_khlx_columns, {}},
    {"jxc_ywyrz", jxc_ywyrz_columns, {}},
    {"jxc_jhgl", jxc_jhgl_columns, {}},
    {"jxc_tx", jxc_tx_columns, {}},
    {"jxc_fylx", jxc_fylx_columns, jxc_fylx_seeds},
    {"jxc_zcmx", jxc_zcmx_columns, {}},
    {"jxc_gdzc", jxc_gdzc_columns, {}},
    {"jxc_backup", jxc_backup_columns, {}},
    {"jxc_fd", jxc_fd_columns, jxc_fd_seeds},
    {"jxc_lsfdxx", jxc_lsfdxx_columns, {}},
    {"jxc_nj", jxc_nj_columns, {}},
    {"jxc_tm", jxc_tm_columns, {}},
    {"jxc_txm", jxc_txm_columns, {}},
    {"jxc_tmdy", jxc_tmdy_columns, jxc_tmdy_seeds},
    {"jxc_email", jxc_email_columns, jxc_email_seeds},
    {"jxc_numeric", jxc_numeric_columns, {}},
    {"jxc_role", jxc_role_columns, jxc_role_seeds},
    {"jxc_mryt", jxc_mryt_columns, jxc_mryt_seeds},
    {"jxc_jbgl", jxc_jbgl_columns, {}},
    {"jxc_poshb", jxc_poshb_columns, {}},
    {"jxc_xtcs", jxc_xtcs_columns, jxc_xtcs_seeds},
    {"jxc_txdisp", jxc_txdisp_columns, jxc_txdisp_seeds},
    {"jxc_dxdz", jxc_dxdz_columns, {}},
    {"jxc_czxf", jxc_czxf_columns, {}},
    {"jxc_postable", jxc_postable_columns, {}},
    {"jxc_posthsp", jxc_posthsp_columns, {}},
    {"jxc_posthd", jxc_posthd_columns, {}},
    {"jxc_hyxssp", jxc_hyxssp_columns, {}},
    {"jxc_hyxsd", jxc_hyxsd_columns, {}},
    {"jxc_poskx", jxc_poskx_columns, jxc_poskx_seeds},
    {"jxc_dhd", jxc_dhd_columns, {}},
    {"jxc_dhzp", jxc_dhzp_columns, {}},
    {"jxc_crk", jxc_crk_columns, {}},
    {"jxc_rjd", jxc_rjd_columns, {}},
    {"jxc_rjsp", jxc_rjsp_columns, {}},
    {"jxc_sptjtmp", jxc_sptjtmp_columns, {}},
    {"jxc_sptjb", jxc_sptjb_columns, {}},
    {"jxc_tkc", jxc_tkc_columns, {}},
    {"jxc_zpxx", jxc_zpxx_columns, {}},
    {"jxc_zpjh", jxc_zpjh_columns, {}},
    {"jxc_zsd", jxc_zsd_columns, {}},
    {"jxc_zszp", jxc_zszp_columns, {}},
    {"jxc_yjlx", jxc_yjlx_columns, jxc_yjlx_seeds},
    {"jxc_tym", jxc_tym_columns, {}},
    {"jxc_ysyfk", jxc_ysyfk_columns, {}},
    {"jxc_jxchz", jxc_jxchz_columns, {}},
    {"jxc_kcpdsp", jxc_kcpdsp_columns, {}},
    {"jxc_bqjl", jxc_bqjl_columns, {}},
    {"jxc_rksp", jxc_rksp_columns, {}},
    {"jxc_rkd", jxc_rkd_columns, {}},
    {"jxc_cksp", jxc_cksp_columns, {}},
    {"jxc_ckd", jxc_ckd_columns, {}},
    {"jxc_ysyfk_dj", jxc_ysyfk_dj_columns, {}},
    {"jxc_fpdjb", jxc_fpdjb_columns, {}},
    {"jxc_kdd", jxc_kdd_columns, {}},
    {"jxc_kdgs", jxc_kdgs_columns, jxc_kdgs_seeds},
    {"jxc_goodstm", jxc_goodstm_columns, {}},
    {"jxc_goodsdw", jxc_goodsdw_columns, {}},
    {"jxc_goodsdwtmp", jxc_goodsdwtmp_columns, {}},
    {"jxc_tempspxf2", jxc_tempspxf2_columns, {}},
    {"jxc_poscs", jxc_poscs_columns, jxc_poscs_seeds},
    {"jxc_hyyh", jxc_hyyh_columns, jxc_hyyh_seeds},
    {"jxc_hyczzs", jxc_hyczzs_columns, {}},
    {"jxc_hyxf", jxc_hyxf_columns, {}},
    {"jxc_dept", jxc_dept_columns, jxc_dept_seeds},
    {"jxc_sms", jxc_sms_columns, {}},
    {"jxc_smshy", jxc_smshy_columns, {}},
    {"jxc_smscs", jxc_smscs_columns, {}},
    {"jxc_khjh", jxc_khjh_columns, {}},
    {"jxc_khjhsp", jxc_khjhsp_columns, {}},
    {"jxc_khjhsptmp", jxc_khjhsptmp_columns, {}},
    {"jxc_gspcs", jxc_gspcs_columns, jxc_gspcs_seeds},
    {"jxc_hjxx", jxc_hjxx_columns, jxc_hjxx_seeds},
    {"jxc_cljcsp", jxc_cljcsp_columns, {}},
    {"jxc_cljcd", jxc_cljcd_columns, {}},
    {"jxc_cgplansp", jxc_cgplansp_columns, {}},
    {"jxc_cgplan", jxc_cgplan_columns, {}},
    {"jxc_ckwsd", jxc_ckwsd_columns, {}},
    {"jxc_jxqd", jxc_jxqd_columns, {}},
    {"jxc_jxqsp", jxc_jxqsp_columns, {}},
    {"jxc_yghmc", jxc_yghmc_columns, {}},
    {"jxc_ygtjb", jxc_ygtjb_columns, {}},
    {"jxc_ygpxjh", jxc_ygpxjh_columns, {}},
    {"jxc_ygpxjl", jxc_ygpxjl_columns, {}},
    {"jxc_cgsp", jxc_cgsp_columns, {}},
    {"jxc_cgd", jxc_cgd_columns, {}},
    {"jxc_xssp", jxc_xssp_columns, {}},
    {"jxc_xsd", jxc_xsd_columns, {}},
};

} // namespace

std::span<const TableDef> schemaTables() { return tables; }

} // namespace medistock::core
