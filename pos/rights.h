#pragma once

// The operations of "统计报表" that guard the POS reports, by their position in the area.
namespace medistock::pos::rights {

constexpr int journal = 14; // "POS销售流水账"
constexpr int goodsSales = 15; // "POS商品销售统计"
constexpr int ranking = 16; // "POS销售排行"
constexpr int memberSales = 17; // "会员消费统计"
constexpr int cashierTakings = 18; // "收银员收银统计"
constexpr int tillCash = 19; // "收银员出入款管理"
constexpr int commission = 20; // "POS销售提成"

} // namespace medistock::pos::rights
