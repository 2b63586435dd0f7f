#include "purchasing/kinds.h"

namespace medistock::purchasing {

namespace {

using documents::DocumentKind;
using documents::PartyTable;

const DocumentKind &receiptEntry()
{
    static const DocumentKind kind { .prefix = "CJ",
        .title = "采购进货单",
        .header = { .table = "jxc_jhd",
            .number = "j_sn",
            .date = "j_jhrq",
            .party = "ghs_sn",
            .partyTable = PartyTable::Supplier,
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "j_note",
            .status = "j_status",
            .checker = "j_checker",
            .checkDate = "j_chkrq",
            .due = "j_yfje",
            .discount = "j_yhje" },
        .lines = { .table = "jxc_jhsp",
            .number = "j_sn",
            .goods = "g_sn",
            .unit = "dw_name",
            .quantity = "jh_sl",
            .baseQuantity = "jh_zsl",
            .price = "jh_dj",
            .taxRate = "jh_tax",
            .taxedPrice = "jh_taxdj",
            .tax = "jh_taxje",
            .amount = "jh_je",
            .total = "jh_zje",
            .discountRate = "jh_dzl",
            .remark = "jh_bz",
            .batch = "t_ph",
            .produced = "t_scrq",
            .expiry = "t_yxq",
            .barcode = "g_sptm",
            .operatorName = "a_name" },
        .cleaning = core::CleanStrength::Medium,
        .rightArea = "cggl",
        .saveRight = 1, // "采购进货"
        .deleteRight = 17 }; // "允许删除采购进货待审核单据"
    return kind;
}

const DocumentKind &returnEntry()
{
    static const DocumentKind kind { .prefix = "CT",
        .title = "采购退货单",
        .header = { .table = "jxc_thd",
            .number = "gl_djh",
            .date = "th_thrq",
            .party = "ghs_sn",
            .partyTable = PartyTable::Supplier,
            .warehouse = "ck_sn",
            .employee = "u_sn",
            .operatorName = "a_name",
            .note = "th_note",
            .status = "th_status",
            .checker = "th_checker",
            .checkDate = "th_chkrq",
            .due = "th_yfje" },
        .lines = { .table = "jxc_thsp",
            .number = "gl_djh",
            .goods = "g_sn",
            .unit = "dw_name",
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
        .rightArea = "cggl",
        .saveRight = 2, // "采购退货"
        .deleteRight = 2 };
    return kind;
}

} // namespace

const PurchaseKind &purchaseReceipt()
{
    static const PurchaseKind kind { receiptEntry(), accounts::purchaseReceiptMoney(), "j_jsfs",
        "j_sn2", "j_hkje", "cj", 6, 10 };
    return kind;
}

const PurchaseKind &purchaseReturn()
{
    static const PurchaseKind kind { returnEntry(), accounts::purchaseReturnMoney(), "th_jsfs", "",
        "th_hkje", "ct", 7, 11 };
    return kind;
}

const documents::ReturnedLines &receiptReturnLinks()
{
    static const documents::ReturnedLines links { "jxc_jhd", "j_sn", "j_status", "jxc_jhsp", "j_sn",
        "jh_zsl", "jxc_thsp", "th_zsl" };
    return links;
}

} // namespace medistock::purchasing
