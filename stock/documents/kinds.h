#pragma once

#include "documents/descriptor.h"

namespace medistock::stock {

// The entry descriptors of the stock documents. Saving and deleting are guarded by the stock
// module's rights ("kcgl"): 1 "库存调拨", 2 "库存盘点", 3 "库存报损报溢".

// "库存调拨单" DB: jxc_kcdbd / jxc_dbsp, from ck_out into ck_in, lines in any unit of the goods.
const documents::DocumentKind &transferEntry();
// "库存盘点单" PD: jxc_kcpd / jxc_kcpdsp; pd_sl is the counted quantity in base units, which may
// be 0, and pd_dj the count price per base unit.
const documents::DocumentKind &stockTakingEntry();
// "商品报损单" BS: jxc_bsd / jxc_bssp, and "商品报溢单" BY: jxc_byd / jxc_bysp; their lines keep no
// unit, so their quantities are base quantities.
const documents::DocumentKind &lossEntry();
const documents::DocumentKind &overflowEntry();

// Positions of the check and uncheck rights in "kcgl".
struct StockRights
{
    int check;
    int uncheck;
};
StockRights transferRights(); // 8 "库存调拨审核", 12 "库存调拨取消审核"
StockRights stockTakingRights(); // 9, 13
StockRights lossOverflowRights(); // 10 "报损报溢审核", 14 "报损报溢取消审核"

} // namespace medistock::stock
