#include "sales/kinds.h"

namespace medistock::sales {

namespace {

using documents::DocumentKind;
using documents::HeaderColumns;
using documents::LineColumns;
using documents::PartyTable;

// Sales and orders keep their lines in the same columns.
constexpr LineColumns saleLines(const char *table)
{
    return { .table = table,
        .number = "gl_djh",
        .goods = "g_sn",
        .unit = "dw_name",
        .factor = "g_zhxs",
        .quantity = "ls_sl",
        .baseQuantity = "ls_zsl",
        .price = "ls_dj",
        .taxRate = "ls_tax",
        .taxedPrice = "ls_taxdj",
        .tax = "ls_taxje",
        .amount = "ls_je",
        .total = "ls_zje",
        .discountRate = "ls_dzl",
        .remark = "ls_bz",
        .batch = "t_ph",
        .produced = "t_scrq",
        .expiry = "t_yxq",
        .barcode = "g_sptm",
        .operatorName = "a_name" };
}

constexpr HeaderColumns saleHeader(const char *table)
{
    return { .table = table,
        .number = "gl_djh",
        .date = "ls_xsrq",
        .party = "kh_sn",
        .partyTable = PartyTable::Customer,
        .warehouse = "ck_sn",
        .employee = "u_sn",
        .operatorName = "a_name",
        .note = "ls_note",
        .status = "ls_status",
        .checker = "ls_checker",
        .checkDate = "ls_chkrq",
        .due = "ls_yfje",
        .discount = "ls_yhje" };
}

} // namespace

const DocumentKind &saleKind()
{
    static const DocumentKind kind { .prefix = "XS",
        .title = "销售单",
        .header = saleHeader("jxc_lsxsd"),
        .lines = saleLines("jxc_lsxssp"),
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "xsgl",
        .saveRight = rights::saveSale,
        .deleteRight = rights::deleteSale };
    return kind;
}

const DocumentKind &salesOrderKind()
{
    static const DocumentKind kind { .prefix = "XD",
        .title = "销售订单",
        .header = saleHeader("jxc_xsd"),
        .lines = saleLines("jxc_xssp"),
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "xsgl",
        .saveRight = rights::saveOrder,
        .deleteRight = rights::saveOrder };
    return kind;
}

const DocumentKind &salesReturnKind()
{
    static const DocumentKind kind { .prefix = "XT",
        .title = "销售退货单",
        .header = { .table = "jxc_xsthd",
            .number = "gl_djh",
            .date = "th_xsrq",
            .party = "kh_sn",
            .partyTable = PartyTable::Customer,
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "th_note",
            .status = "th_status",
            .checker = "th_checker",
            .checkDate = "th_chkrq",
            .due = "th_yfje" },
        .lines = { .table = "jxc_xsthsp",
            .number = "gl_djh",
            .goods = "g_sn",
            .unit = "dw_name",
            .factor = "g_zhxs",
            .quantity = "th_sl",
            .baseQuantity = "th_zsl",
            .price = "th_dj",
            .taxRate = "th_tax",
            .taxedPrice = "th_taxdj",
            .tax = "th_taxje",
            .amount = "th_je",
            .total = "th_zje",
            .discountRate = "th_dzl",
            .remark = "th_bz",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .barcode = "g_sptm",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "xsgl",
        .saveRight = rights::saveReturn,
        .deleteRight = rights::saveReturn };
    return kind;
}

} // namespace medistock::sales
