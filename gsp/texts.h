#pragma once

#include <QString>

// Every text the GSP records show, ask or log, worded as the system words them.
namespace medistock::gsp::texts {

// Titles of the records (also the sheet names of their exports).
QString acceptanceTitle(); // "药品验收记录"
QString prescriptionsTitle(); // "药方管理记录"
QString prescriptionSalesTitle(); // "处方药销售记录"
QString splittingTitle(); // "药品拆零记录"
QString expiryTitle(); // "药品过期查询"
QString expiryPrintTitle(int days); // "查询还有" N "天过期的药品"
QString restrictedTitle(); // "含麻药品查询"
QString restrictedSummaryTitle(); // "含麻药品汇总"
QString inspectionTitle(); // "陈列药品维护检查记录"
QString trackingTitle(); // "近效期跟踪记录"
QString temperatureTitle(); // "仓库温湿度管理"
QString categoriesTitle(); // "GSP参数管理"
QString staffTitle(); // "员工花名册"
QString plansTitle(); // "员工培训计划"
QString trainingsTitle(); // "员工培训记录"

// The constant conclusions of the acceptance record.
QString acceptedResult(); // "合格"
QString packagingResult(); // "合格"
QString certificatePresent(); // "有"
QString acceptedHandling(); // "接收"
// The checker the splitting record names on every row.
QString splittingChecker(); // "质量管理员"
// The quality condition a picked batch starts with.
QString goodQuality(); // "良好"

// The document kind of a goods-ledger row ("采购入库单", "库存调拨出库" ...); empty for a kind the
// records do not name.
QString ledgerKindText(const QString &kind, double quantity);

// Filters and input.
QString badDate(const QString &what, const QString &text);
QString badTime(const QString &text);
QString badNumber(const QString &what, const QString &text);
QString outOfRange(const QString &what, const QString &text, double low, double high);
QString tooLong(const QString &what, int width);
QString required(const QString &what);
QString unknownWarehouse(const QString &code);
QString badDays(const QString &text);

// Inspection and tracking records.
QString nothingPicked(); // no lines were picked before saving
QString batchNotPickable(const QString &goods, const QString &batch);
QString recordNotFound(const QString &title, const QString &number);
QString lineNotFound(qint64 id);
QString deleteRecordQuestion(const QString &title, const QString &number);
QString deleteLineQuestion(const QString &number, const QString &goodsName, const QString &batch);
QString recordSavedLog(const QString &title, const QString &number, int lines);
QString recordDeletedLog(const QString &title, const QString &number);
QString lineDeletedLog(const QString &title, const QString &number, const QString &goods);
// The GSP documents folder cannot be made.
QString folderNotMade(const QString &path);

// Temperature log.
QString temperatureSavedLog(const QString &warehouseName, const QString &date, const QString &time);
QString temperatureDeletedLog(
    const QString &warehouseName, const QString &date, const QString &time);
QString temperatureEntryNotFound(qint64 id);
QString deleteTemperatureQuestion(
    const QString &warehouseName, const QString &date, const QString &time);
QString temperatureReminder(const QString &date, const QString &warehouses);
QString storageClassName(int storageClass); // 0 "常温库", 1 "阴凉库", 2 "冷库"

// GSP categories.
QString categoryNameTaken(const QString &name);
QString categoryInUse(const QString &name);
QString categoryNotFound(qint64 id);
QString deleteCategoryQuestion(const QString &name);
QString categorySavedLog(const QString &name);
QString categoryDeletedLog(const QString &name);

// Staff register.
QString employeeNameTaken(const QString &name);
QString employeeNotFound(const QString &code);
QString employeeOnTraining(const QString &name);
QString deleteEmployeeQuestion(const QString &name);
QString unknownDepartment(const QString &code);
QString unknownBranch(const QString &code);
QString badSex(const QString &text);
QString copyToSalesmenQuestion(const QString &name);
QString alreadySalesman(const QString &name);
QString copiedToSalesmen(const QString &name, const QString &code);
QString employeeSavedLog(const QString &name);
QString employeeDeletedLog(const QString &name);

// Training plans and records.
QString employeeLeft(const QString &name);
QString noEmployeePicked();
QString noPlanPicked();
QString trainingSaveQuestion();
QString planNotFound(qint64 id);
QString planHasRecords();
QString trainingNotFound(qint64 id);
QString deletePlanQuestion(const QString &topic, const QString &name);
QString deleteTrainingQuestion(const QString &name);
QString plansSavedLog(const QString &topic, int count);
QString trainingsSavedLog(int count);
QString planDeletedLog(const QString &topic, const QString &name);
QString trainingDeletedLog(const QString &name);
QString planChangedLog(const QString &topic, const QString &name);
QString trainingChangedLog(const QString &name);

} // namespace medistock::gsp::texts
