#pragma once

#include <QString>

// The words of the stock screens.
namespace medistock::ui::sttexts {

// The stock query
inline const QString stockTitle = QStringLiteral("当前库存查询");
inline const QString warehouse = QStringLiteral("仓库");
inline const QString goodsClass = QStringLiteral("商品类别");
inline const QString search = QStringLiteral("查找");
inline const QString searchHint = QStringLiteral("编号、名称、简码或条码");
inline const QString byBatch = QStringLiteral("按批次");
inline const QString inStockOnly = QStringLiteral("只显示有库存");
inline const QString expiringWithin = QStringLiteral("效期(天内)");
inline const QString noLimit = QStringLiteral("不限");
inline const QString code = QStringLiteral("商品编号");
inline const QString name = QStringLiteral("商品名称");
inline const QString packing = QStringLiteral("规格");
inline const QString unit = QStringLiteral("单位");
inline const QString maker = QStringLiteral("生产厂商");
inline const QString quantity = QStringLiteral("库存数量");
inline const QString book = QStringLiteral("帐面库存");
inline const QString cost = QStringLiteral("成本价");
inline const QString value = QStringLiteral("库存金额");
inline const QString batch = QStringLiteral("批号");
inline const QString produced = QStringLiteral("生产日期");
inline const QString expiry = QStringLiteral("有效期至");
inline const QString daysLeft = QStringLiteral("剩余天数");

// The goods ledger
inline const QString ledgerTitle = QStringLiteral("库存变动情况");
inline const QString goods = QStringLiteral("商品");
inline const QString date = QStringLiteral("日期");
inline const QString kind = QStringLiteral("单据类型");
inline const QString allKinds = QStringLiteral("全部");
inline const QString number = QStringLiteral("单据号");
inline const QString party = QStringLiteral("往来单位");
inline const QString in = QStringLiteral("入库数量");
inline const QString out = QStringLiteral("出库数量");
inline const QString price = QStringLiteral("单价");
inline const QString amount = QStringLiteral("金额");
inline const QString balance = QStringLiteral("结存数量");
inline const QString average = QStringLiteral("结存均价");
inline const QString balanceValue = QStringLiteral("结存金额");
QString ledgerOf(const QString &goodsName); // "商品明细帐：阿莫西林胶囊"

// Opening stock
inline const QString openingTitle = QStringLiteral("商品期初建账");
inline const QString postButton = QStringLiteral("建账(F3)");
inline const QString entriesButton = QStringLiteral("期初建账记录(F9)");
inline const QString entriesTitle = QStringLiteral("期初建账记录");
inline const QString removeEntry = QStringLiteral("删除期初(Del)");
inline const QString rows = QStringLiteral("品种数");
inline const QString operatorName = QStringLiteral("操作员");
inline const QString costAmount = QStringLiteral("成本金额");
QString posted(const QString &entry); // "已建账：QC25031410001"

// Transfers, loss and overflow
inline const QString issuingWarehouse = QStringLiteral("调出仓库");
inline const QString receivingWarehouse = QStringLiteral("调入仓库");
inline const QString transferAmount = QStringLiteral("调拨金额");
inline const QString transferQuery = QStringLiteral("调拨单查询");
inline const QString lossOverflowTitle = QStringLiteral("库存报损报溢");
inline const QString lossPage = QStringLiteral("报损单");
inline const QString overflowPage = QStringLiteral("报溢单");
inline const QString lossAmount = QStringLiteral("报损金额");
inline const QString overflowAmount = QStringLiteral("报溢金额");

// Stock-taking
inline const QString countedAmount = QStringLiteral("盘点金额");
inline const QString scan = QStringLiteral("扫描条码");
inline const QString scanHint = QStringLiteral("扫描或输入条码、编号后回车");
inline const QString makeSheet = QStringLiteral("生成盘点表");
inline const QString importCounts = QStringLiteral("导入盘点数");
inline const QString exportSheet = QStringLiteral("导出盘点表");
inline const QString countSheetFile = QStringLiteral("库存盘点表");
inline const QString bookQuantity = QStringLiteral("帐面数量");
inline const QString countedQuantity = QStringLiteral("盘点数量");
inline const QString replaceLines = QStringLiteral("生成盘点表将替换当前单据中的商品，确认吗？");
inline const QString nothingToCount = QStringLiteral("该仓库（类别）没有可盘点的库存批次！");
QString notOnSheet(const QString &scanned); // "条码“6901”的商品不在盘点表中！"
QString rowNotOnSheet(int row, const QString &goodsCode, const QString &batchNumber);
QString badCount(int row, const QString &typed);
QString importRefused(const QStringList &problems); // the rows named, one per line
QString imported(int lines); // "已导入 3 行盘点数量"

// The average changed by hand
inline const QString averageTitle = QStringLiteral("修改商品均价");
inline const QString changeAverage = QStringLiteral("修改均价");
inline const QString averageNow = QStringLiteral("当前均价");
inline const QString newAverage = QStringLiteral("新均价");
inline const QString chooseGoods = QStringLiteral("请先选择商品！");
// "12.50（帐面库存 10 盒）"
QString averageShown(const QString &perUnit, const QString &onHand, const QString &baseUnit);

// Stock alarms
inline const QString alarmTitle = QStringLiteral("库存报警查询");
inline const QString minimum = QStringLiteral("最低库存");
inline const QString shortage = QStringLiteral("短缺数量");

} // namespace medistock::ui::sttexts
