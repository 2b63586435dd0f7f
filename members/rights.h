#pragma once

// The operations that guard the members' and retail work, by their position in their area.
namespace medistock::members::rights {

constexpr int members = 10; // "qtcz": "会员管理"
constexpr int gifts = 11; // "rcgl": "赠品管理"
constexpr int posSale = 20; // "xsgl": "允许POS销售"
constexpr int uncheckSale = 11; // "xsgl": "商品销售取消审核"
constexpr int uncheckReturn = 12; // "xsgl": "顾客退货取消审核"

} // namespace medistock::members::rights
