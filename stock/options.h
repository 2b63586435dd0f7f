#pragma once

#include "shell/parameters.h"

namespace medistock::stock {

// The parameters of jxc_xtcs that steer stock posting, read in one place.

// "启用商品入库功能": a purchase receipt raises only the book quantity; the goods come into the
// warehouse later through a receiving note.
inline bool receivesThroughNotes(const shell::Parameters &params)
{
    return params.flag("cs_sprk");
}

// "启用采购计划功能": a purchase receipt counts its lines against the purchase plan lines.
inline bool linksPurchasePlans(const shell::Parameters &params)
{
    return params.flag("cs_cs007");
}

// "使用固定成本价--成本均价": the warehouse cost average stays as it is; reruns do not move it
// and the cost of a date is the warehouse cost.
inline bool keepsWarehouseCost(const shell::Parameters &params)
{
    return params.flag("cs_cs009");
}

// "库存为零时允许采购退货、销售": a batch shortage is asked about instead of refused.
inline bool allowsNegativeStock(const shell::Parameters &params)
{
    return params.flag("cs_kc");
}

} // namespace medistock::stock
