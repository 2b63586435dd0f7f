#pragma once

#include <QString>

// The words of the GSP screens. What the operations say when they refuse or ask lives with
// them (gsp/texts.h).
namespace medistock::ui::gsptexts {

// Filters and the buttons every record screen has
inline const QString warehouse = QStringLiteral("仓库");
inline const QString keyword = QStringLiteral("关键字");
inline const QString keywordHint = QStringLiteral("单号、往来单位编号、名称或简码");
inline const QString goodsHint = QStringLiteral("商品编号、名称或简码");
inline const QString staffHint = QStringLiteral("编号、姓名、简码、职务或籍贯");
inline const QString days = QStringLiteral("天数");
inline const QString sex = QStringLiteral("性别");
inline const QString chooseRowFirst = QStringLiteral("请先选择一行记录！");

// Buttons of the screens that enter records
inline const QString add = QStringLiteral("新增(F2)");
inline const QString edit = QStringLiteral("修改(F3)");
inline const QString remove = QStringLiteral("删除(&D)");
inline const QString removeLine = QStringLiteral("删除行");
inline const QString save = QStringLiteral("保存(&S)");
inline const QString copyToSalesmen = QStringLiteral("复制到业务员");
inline const QString summary = QStringLiteral("汇总(&H)");
inline const QString ledgerView = QStringLiteral("明细(&M)");
inline const QString linesOf = QStringLiteral("记录明细");
QString documentTitle(const QString &kindText, const QString &number); // "单据明细：商品销售单 XS…"

// The batch picker
inline const QString pickerTitle = QStringLiteral("选择药品批次");
inline const QString goodsClass = QStringLiteral("商品类别");
inline const QString allClasses = QStringLiteral("所有类别");
inline const QString category = QStringLiteral("药品类型");
inline const QString allCategories = QStringLiteral("全部");
inline const QString pick = QStringLiteral("选择(Enter)");
inline const QString pickAll = QStringLiteral("全选");
inline const QString picked = QStringLiteral("已选批次");
inline const QString withinDays = QStringLiteral("效期天数");

// Headers of the records
inline const QString date = QStringLiteral("日期");
inline const QString employee = QStringLiteral("检查人");
inline const QString note = QStringLiteral("备注");
inline const QString store = QStringLiteral("店内");
inline const QString coldCabinet = QStringLiteral("冷藏柜");
inline const QString coolCabinet = QStringLiteral("阴凉柜");
inline const QString temperature = QStringLiteral("温度(℃)");
inline const QString humidity = QStringLiteral("湿度(%)");
inline const QString herbal = QStringLiteral("中药饮片");
inline const QString biological = QStringLiteral("生物制品");
inline const QString maintained = QStringLiteral("养护药品");
inline const QString nearExpiry = QStringLiteral("近效期药品");
inline const QString groupQuantity = QStringLiteral("数量");
inline const QString groupQuality = QStringLiteral("质量状况");
inline const QString groupQualified = QStringLiteral("合格");
inline const QString groupDamaged = QStringLiteral("破损");
inline const QString groupExpired = QStringLiteral("过期");
inline const QString groupAbnormal = QStringLiteral("异常");
inline const QString accountingUnit = QStringLiteral("核算单元");
inline const QString keeper = QStringLiteral("保管账");
inline const QString state = QStringLiteral("状态");
inline const QString window = QStringLiteral("效期范围(天)");

// Temperature log
inline const QString time = QStringLiteral("时间");
inline const QString measures = QStringLiteral("采取的措施");
inline const QString temperatureAfter = QStringLiteral("措施后温度");
inline const QString humidityAfter = QStringLiteral("措施后湿度");
inline const QString recorder = QStringLiteral("记录员");
inline const QString entryTitle = QStringLiteral("登记温湿度");
inline const QString storageClass = QStringLiteral("储存类别");
inline const QString chartTitle = QStringLiteral("温湿度变化");
inline const QString noReadings = QStringLiteral("所选仓库在此期间没有温湿度记录");
QString limitLabel(const QString &what, double value); // "上限 30℃"

// Staff and training
inline const QString employeeTitle = QStringLiteral("员工资料");
inline const QString planTitle = QStringLiteral("培训计划");
inline const QString trainingTitle = QStringLiteral("培训记录");
inline const QString staffToPick = QStringLiteral("在职员工");
inline const QString plansToPick = QStringLiteral("在职员工的培训计划");
inline const QString pickedStaff = QStringLiteral("参加培训的员工");
inline const QString categoryName = QStringLiteral("药品类型：");
QString copied(const QString &name, const QString &code); // "已复制到业务员：…"

// Main window
QString nearExpiryStatus(int count, int within); // "近效期批次：3（180天内）"
inline const QString nearExpiryTip = QStringLiteral("点击打开过期查询");
QString folderOpened(const QString &path);

} // namespace medistock::ui::gsptexts
