#pragma once

#include "shell/parameters.h"

namespace medistock::sales {

// The parameters of jxc_xtcs that steer the sales documents, read in one place.

// "单据保存后直接审核(选中后审核权限将被忽略)": a saved document is checked at once, and the
// check right is not asked for then.
inline bool checksOnSave(const shell::Parameters &params)
{
    return params.flag("cs_shdj");
}

// "启用商品出库功能": goods leave through issue notes; a checked sale issues nothing itself.
inline bool issuesThroughNotes(const shell::Parameters &params)
{
    return params.flag("cs_spck");
}

// The sales price source (cs_xsdj): 1 proposes the price of the last checked sale to the
// customer, 0 the price level of the customer's type.
inline bool pricesFromLastSale(const shell::Parameters &params)
{
    return params.integer("cs_xsdj") == 1;
}

// "启用商品等级批发价(1--5级)": the customer's type picks the goods' level price g_sj1..g_sj5.
inline bool pricesByCustomerType(const shell::Parameters &params)
{
    return params.flag("cs_cs013");
}

// The sales warning setting (cs_xsjgts, on by default): a sale settled by the amount paid asks
// when the customer's prepayment does not cover what is left unpaid.
inline bool warnsOfPrepayment(const shell::Parameters &params)
{
    return params.integer("cs_xsjgts") != 0;
}

// "过期商品不能销售": an expired batch is refused instead of asked about.
inline bool refusesExpiredGoods(const shell::Parameters &params)
{
    return params.flag("cs_cs017");
}

} // namespace medistock::sales
