#pragma once

#include <QString>

// The words of the loan screens.
namespace medistock::ui::lntexts {

inline const QString due = QStringLiteral("借货金额");
inline const QString depositPerUnit = QStringLiteral("押金/单位");
inline const QString rentPerUnit = QStringLiteral("日租金/单位");
inline const QString account = QStringLiteral("租金入账账户");
inline const QString newReturn = QStringLiteral("新增还货");
inline const QString wholeReturn = QStringLiteral("整单还货");
inline const QString toSale = QStringLiteral("新增借货转销售");
inline const QString returnTitle = QStringLiteral("客户还货");
inline const QString saleTitle = QStringLiteral("借货转销售");
inline const QString returnDate = QStringLiteral("还货日期");
inline const QString saleDate = QStringLiteral("销售日期");
inline const QString note = QStringLiteral("备注");
inline const QString paid = QStringLiteral("实收金额");
inline const QString days = QStringLiteral("借货天数：");
inline const QString confirm = QStringLiteral("确定(F5)");
inline const QString cancel = QStringLiteral("取消(Esc)");
inline const QString returned = QStringLiteral("已保存并审核还货单：");
inline const QString sold = QStringLiteral("已保存并审核还货单：%1，销售单：%2");
inline const QString notChecked = QStringLiteral("借货单审核后才能还货或转销售");

} // namespace medistock::ui::lntexts
