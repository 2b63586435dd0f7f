#pragma once

#include "documents/descriptor.h"

namespace medistock::sales {

// The entry descriptors of the three sales documents.

// The sale "销售单": jxc_lsxsd / jxc_lsxssp, prefix "XS".
const documents::DocumentKind &saleKind();
// The sales return "销售退货单": jxc_xsthd / jxc_xsthsp, prefix "XT". Its amounts are stored
// negated by its own save.
const documents::DocumentKind &salesReturnKind();
// The sales order "销售订单": jxc_xsd / jxc_xssp, prefix "XD".
const documents::DocumentKind &salesOrderKind();

// Rights of the sales area "xsgl", by position.
namespace rights {
constexpr int saveSale = 1; // 商品销售
constexpr int saveReturn = 2; // 顾客退货
constexpr int checkSale = 7; // 商品销售审核
constexpr int checkReturn = 8; // 顾客退货审核
constexpr int uncheckSale = 11; // 商品销售取消审核
constexpr int uncheckReturn = 12; // 顾客退货取消审核
constexpr int changeSaleCost = 14; // 允许修改销售成本价
constexpr int saveOrder = 15; // 销售订单
constexpr int checkOrder = 16; // 销售订单审核
constexpr int deleteSale = 19; // 允许删除商品销售待审核单据
} // namespace rights

} // namespace medistock::sales
