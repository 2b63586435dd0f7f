#include "stock/documents/kinds.h"

namespace medistock::stock {

using documents::DocumentKind;

const DocumentKind &transferEntry()
{
    static const DocumentKind kind { .prefix = "DB",
        .title = "库存调拨单",
        .header = { .table = "jxc_kcdbd",
            .number = "gl_djh",
            .date = "db_dbrq",
            .warehouse = "ck_out",
            .secondWarehouse = "ck_in",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "db_note",
            .status = "db_status",
            .checker = "db_checker",
            .checkDate = "db_chkrq" },
        .lines = { .table = "jxc_dbsp",
            .number = "gl_djh",
            .goods = "g_sn",
            .unit = "dw_name",
            .quantity = "db_sl",
            .baseQuantity = "db_zsl",
            .price = "db_dj",
            .total = "db_zje",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .barcode = "g_sptm",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "kcgl",
        .saveRight = 1,
        .deleteRight = 1 };
    return kind;
}

const DocumentKind &stockTakingEntry()
{
    static const DocumentKind kind { .prefix = "PD",
        .title = "库存盘点单",
        .header = { .table = "jxc_kcpd",
            .number = "gl_djh",
            .date = "pd_rq",
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "pd_note",
            .status = "pd_status",
            .checker = "pd_checker",
            .checkDate = "pd_chkrq" },
        .lines = { .table = "jxc_kcpdsp",
            .number = "gl_djh",
            .goods = "g_sn",
            .quantity = "pd_sl",
            .price = "pd_dj",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .zeroQuantityAllowed = true,
        .rightArea = "kcgl",
        .saveRight = 2,
        .deleteRight = 2 };
    return kind;
}

const DocumentKind &lossEntry()
{
    static const DocumentKind kind { .prefix = "BS",
        .title = "商品报损单",
        .header = { .table = "jxc_bsd",
            .number = "gl_djh",
            .date = "bs_bsrq",
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "bs_note",
            .status = "bs_status",
            .checker = "bs_checker",
            .checkDate = "bs_chkrq" },
        .lines = { .table = "jxc_bssp",
            .number = "gl_djh",
            .goods = "g_sn",
            .quantity = "bs_sl",
            .price = "bs_dj",
            .total = "bs_zje",
            .remark = "bs_note",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "kcgl",
        .saveRight = 3,
        .deleteRight = 3 };
    return kind;
}

const DocumentKind &overflowEntry()
{
    static const DocumentKind kind { .prefix = "BY",
        .title = "商品报溢单",
        .header = { .table = "jxc_byd",
            .number = "gl_djh",
            .date = "by_byrq",
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "by_note",
            .status = "by_status",
            .checker = "by_checker",
            .checkDate = "by_chkrq" },
        .lines = { .table = "jxc_bysp",
            .number = "gl_djh",
            .goods = "g_sn",
            .quantity = "by_sl",
            .price = "by_dj",
            .total = "by_zje",
            .remark = "by_note",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "kcgl",
        .saveRight = 3,
        .deleteRight = 3 };
    return kind;
}

StockRights transferRights()
{
    return { 8, 12 };
}

StockRights stockTakingRights()
{
    return { 9, 13 };
}

StockRights lossOverflowRights()
{
    return { 10, 14 };
}

} // namespace medistock::stock
