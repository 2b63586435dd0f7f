#pragma once

#include <QString>

// The words of the document screens. What the operations say when they refuse lives with them.
namespace medistock::ui::doctexts {

// The caption of a line field (LineField as a number).
QString lineCaption(int field);

// Header
inline const QString number = QStringLiteral("单据号");
inline const QString numberPending = QStringLiteral("保存时生成");
inline const QString date = QStringLiteral("日期");
inline const QString supplier = QStringLiteral("供货商");
inline const QString customer = QStringLiteral("客户");
inline const QString warehouse = QStringLiteral("仓库");
inline const QString employee = QStringLiteral("业务员");
inline const QString note = QStringLiteral("备注");
inline const QString discount = QStringLiteral("优惠金额");
inline const QString status = QStringLiteral("状态：");
inline const QString statusNew = QStringLiteral("新单据");
inline const QString statusUnchecked = QStringLiteral("未审核");
inline const QString checkedStatus = QStringLiteral("已审核");
QString statusChecked(const QString &by, const QString &on);

// Totals
QString totals(const QString &quantitySum, const QString &amountSum);
QString due(const QString &label, const QString &value);
inline const QString capitals = QStringLiteral("大写：");

// Buttons
inline const QString newButton = QStringLiteral("新增(F2)");
inline const QString saveButton = QStringLiteral("保存(F3)");
inline const QString checkButton = QStringLiteral("审核(F5)");
inline const QString uncheckButton = QStringLiteral("取消审核(F6)");
inline const QString deleteButton = QStringLiteral("删除单据(F7)");
inline const QString insertLineButton = QStringLiteral("插行(Ins)");
inline const QString deleteLineButton = QStringLiteral("删行(Del)");
inline const QString uncheckedButton = QStringLiteral("待审核单据(F9)");
inline const QString openButton = QStringLiteral("打开(Enter)");
inline const QString deleteRowButton = QStringLiteral("删除(Del)");

// Questions
inline const QString discardChanges
    = QStringLiteral("当前单据已修改但尚未保存，确定要放弃这些修改吗？");
QString deleteQuestion(const QString &title, const QString &documentNumber);

// Pickers
inline const QString goods = QStringLiteral("商品");
inline const QString newGoods = QStringLiteral("新增商品(F7)");
inline const QString batch = QStringLiteral("批号");
inline const QString expired = QStringLiteral("已过期");
inline const QString nearExpiry = QStringLiteral("近效期");
inline const QString purchasePrice = QStringLiteral("进价");
inline const QString salePrice = QStringLiteral("售价");
inline const QString stock = QStringLiteral("库存");
inline const QString maker = QStringLiteral("生产厂商");
inline const QString unit = QStringLiteral("单位");
inline const QString packing = QStringLiteral("规格");
inline const QString code = QStringLiteral("编号");
inline const QString name = QStringLiteral("名称");
inline const QString mnemonic = QStringLiteral("简码");
QString goodsNotFound(const QString &text);

// Lists and queries
inline const QString uncheckedTitle = QStringLiteral("待审核单据");
inline const QString kind = QStringLiteral("单据类型");
inline const QString allStatuses = QStringLiteral("全部");
inline const QString goodsFilter = QStringLiteral("商品");
inline const QString goodsCount = QStringLiteral("品种数");
inline const QString quantity = QStringLiteral("数量");
inline const QString amount = QStringLiteral("金额");
inline const QString operatorName = QStringLiteral("操作员");
inline const QString checker = QStringLiteral("审核人");
inline const QString checkDate = QStringLiteral("审核日期");
inline const QString statusColumn = QStringLiteral("状态");
inline const QString chooseDocumentFirst = QStringLiteral("请先选择一张单据！");

} // namespace medistock::ui::doctexts
