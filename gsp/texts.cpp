#include "gsp/texts.h"

#include "core/rounding.h"

#include <QHash>

namespace medistock::gsp::texts {

QString acceptanceTitle()
{
    return QStringLiteral("药品验收记录");
}

QString prescriptionsTitle()
{
    return QStringLiteral("药方管理记录");
}

QString prescriptionSalesTitle()
{
    return QStringLiteral("处方药销售记录");
}

QString splittingTitle()
{
    return QStringLiteral("药品拆零记录");
}

QString expiryTitle()
{
    return QStringLiteral("药品过期查询");
}

QString expiryPrintTitle(int days)
{
    return QStringLiteral("查询还有") + QString::number(days) + QStringLiteral("天过期的药品");
}

QString restrictedTitle()
{
    return QStringLiteral("含麻药品查询");
}

QString restrictedSummaryTitle()
{
    return QStringLiteral("含麻药品汇总");
}

QString inspectionTitle()
{
    return QStringLiteral("陈列药品维护检查记录");
}

QString trackingTitle()
{
    return QStringLiteral("近效期跟踪记录");
}

QString temperatureTitle()
{
    return QStringLiteral("仓库温湿度管理");
}

QString categoriesTitle()
{
    return QStringLiteral("GSP参数管理");
}

QString staffTitle()
{
    return QStringLiteral("员工花名册");
}

QString plansTitle()
{
    return QStringLiteral("员工培训计划");
}

QString trainingsTitle()
{
    return QStringLiteral("员工培训记录");
}

QString acceptedResult()
{
    return QStringLiteral("合格");
}

QString packagingResult()
{
    return QStringLiteral("合格");
}

QString certificatePresent()
{
    return QStringLiteral("有");
}

QString acceptedHandling()
{
    return QStringLiteral("接收");
}

QString splittingChecker()
{
    return QStringLiteral("质量管理员");
}

QString goodQuality()
{
    return QStringLiteral("良好");
}

QString ledgerKindText(const QString &kind, double quantity)
{
    static const QHash<QString, QString> plain {
        { QStringLiteral("qc"), QStringLiteral("期初数") },
        { QStringLiteral("cj"), QStringLiteral("采购入库单") },
        { QStringLiteral("ct"), QStringLiteral("采购退货单") },
        { QStringLiteral("xs"), QStringLiteral("商品销售单") },
        { QStringLiteral("xt"), QStringLiteral("顾客退货单") },
        { QStringLiteral("pd"), QStringLiteral("库存盘点单") },
        { QStringLiteral("bs"), QStringLiteral("商品报损") },
        { QStringLiteral("by"), QStringLiteral("商品报溢") },
        { QStringLiteral("hh"), QStringLiteral("客户还货") },
        { QStringLiteral("jh"), QStringLiteral("客户借货") },
        { QStringLiteral("dh"), QStringLiteral("积分换赠品") },
    };
    if (kind == QLatin1String("db"))
        return quantity > 0 ? QStringLiteral("库存调拨入库") : QStringLiteral("库存调拨出库");
    if (kind == QLatin1String("cf"))
        return quantity > 0 ? QStringLiteral("拆分入库") : QStringLiteral("被拆分出库");
    if (kind == QLatin1String("kb"))
        return quantity > 0 ? QStringLiteral("捆绑入库") : QStringLiteral("被捆绑出库");
    return plain.value(kind);
}

QString badDate(const QString &what, const QString &text)
{
    return QStringLiteral("%1“%2”不是正确的日期，请按 yyyy-MM-dd 输入！").arg(what, text);
}

QString badTime(const QString &text)
{
    return QStringLiteral("时间“%1”不正确，请按 hh:mm 输入（如 08:30）！").arg(text);
}

QString badNumber(const QString &what, const QString &text)
{
    return QStringLiteral("%1“%2”不是正确的数字！").arg(what, text);
}

QString outOfRange(const QString &what, const QString &text, double low, double high)
{
    return QStringLiteral("%1“%2”超出范围，应在 %3 到 %4 之间！")
        .arg(what, text, core::plainNumber(low), core::plainNumber(high));
}

QString tooLong(const QString &what, int width)
{
    return QStringLiteral("%1太长，最多 %2 个字！").arg(what).arg(width);
}

QString required(const QString &what)
{
    return QStringLiteral("请输入%1！").arg(what);
}

QString unknownWarehouse(const QString &code)
{
    return QStringLiteral("仓库“%1”不存在！").arg(code);
}

QString badDays(const QString &text)
{
    return QStringLiteral("天数“%1”不正确，应为 0 到 36500 之间的整数！").arg(text);
}

QString nothingPicked()
{
    return QStringLiteral("请先选择要记录的药品批次！");
}

QString batchNotPickable(const QString &goods, const QString &batch)
{
    return QStringLiteral("商品“%1”批号“%2”不是当前仓库中有库存、未禁用的批次，不能选择！")
        .arg(goods, batch);
}

QString recordNotFound(const QString &title, const QString &number)
{
    return QStringLiteral("没有找到%1：%2").arg(title, number);
}

QString lineNotFound(qint64 id)
{
    return QStringLiteral("没有找到这一行（%1），可能已被删除！").arg(id);
}

QString deleteRecordQuestion(const QString &title, const QString &number)
{
    return QStringLiteral("您的操作将删除%1：%2，确认吗？").arg(title, number);
}

QString deleteLineQuestion(const QString &number, const QString &goodsName, const QString &batch)
{
    return QStringLiteral("您的操作将删除%1中的一行：%2（批号%3），确认吗？")
        .arg(number, goodsName, batch);
}

QString recordSavedLog(const QString &title, const QString &number, int lines)
{
    return QStringLiteral("保存%1%2，共%3个批次").arg(title, number).arg(lines);
}

QString recordDeletedLog(const QString &title, const QString &number)
{
    return QStringLiteral("删除%1%2").arg(title, number);
}

QString lineDeletedLog(const QString &title, const QString &number, const QString &goods)
{
    return QStringLiteral("删除%1%2中的商品%3").arg(title, number, goods);
}

QString folderNotMade(const QString &path)
{
    return QStringLiteral("不能创建文件夹：%1").arg(path);
}

QString temperatureSavedLog(const QString &warehouseName, const QString &date, const QString &time)
{
    return QStringLiteral("登记仓库温湿度：%1 %2 %3").arg(warehouseName, date, time);
}

QString temperatureDeletedLog(
    const QString &warehouseName, const QString &date, const QString &time)
{
    return QStringLiteral("删除仓库温湿度：%1 %2 %3").arg(warehouseName, date, time);
}

QString temperatureEntryNotFound(qint64 id)
{
    return QStringLiteral("没有找到这条温湿度记录（%1），可能已被删除！").arg(id);
}

QString deleteTemperatureQuestion(
    const QString &warehouseName, const QString &date, const QString &time)
{
    return QStringLiteral("您的操作将删除%1 %2 %3的温湿度记录，确认吗？")
        .arg(warehouseName, date, time);
}

QString temperatureReminder(const QString &date, const QString &warehouses)
{
    return QStringLiteral("今天（%1）以下仓库还没有登记温湿度：").arg(date) + QStringLiteral("\r\n")
        + warehouses + QStringLiteral("\r\n") + QStringLiteral("请在“仓库温湿度管理”中登记！");
}

QString storageClassName(int storageClass)
{
    switch (storageClass) {
    case 1:
        return QStringLiteral("阴凉库");
    case 2:
        return QStringLiteral("冷库");
    default:
        return QStringLiteral("常温库");
    }
}

QString categoryNameTaken(const QString &name)
{
    return QStringLiteral("药品类型“%1”已经存在，请换一个名称！").arg(name);
}

QString categoryInUse(const QString &name)
{
    return QStringLiteral("药品类型“%1”已被商品资料使用，不能删除！").arg(name);
}

QString categoryNotFound(qint64 id)
{
    return QStringLiteral("没有找到这个药品类型（%1），可能已被删除！").arg(id);
}

QString deleteCategoryQuestion(const QString &name)
{
    return QStringLiteral("您的操作将删除药品类型：%1，确认吗？").arg(name);
}

QString categorySavedLog(const QString &name)
{
    return QStringLiteral("保存GSP药品类型：%1").arg(name);
}

QString categoryDeletedLog(const QString &name)
{
    return QStringLiteral("删除GSP药品类型：%1").arg(name);
}

QString employeeNameTaken(const QString &name)
{
    return QStringLiteral("员工花名册中已有“%1”，姓名不能重复！").arg(name);
}

QString employeeNotFound(const QString &code)
{
    return QStringLiteral("没有找到员工：%1").arg(code);
}

QString employeeOnTraining(const QString &name)
{
    return QStringLiteral("员工“%1”已有培训计划或培训记录，不能删除；如已离职，请标为离职。")
        .arg(name);
}

QString deleteEmployeeQuestion(const QString &name)
{
    return QStringLiteral("您的操作将从员工花名册中删除：%1，确认吗？").arg(name);
}

QString unknownDepartment(const QString &code)
{
    return QStringLiteral("部门“%1”不存在！").arg(code);
}

QString unknownBranch(const QString &code)
{
    return QStringLiteral("分店“%1”不存在！").arg(code);
}

QString badSex(const QString &text)
{
    return QStringLiteral("性别“%1”不正确，应为“男”或“女”！").arg(text);
}

QString copyToSalesmenQuestion(const QString &name)
{
    return QStringLiteral("您的操作会将员工：") + name
        + QStringLiteral(" 的信息复制到业务员信息中，以后可以在业务员中使用该员工信息。确认吗？");
}

QString alreadySalesman(const QString &name)
{
    return QStringLiteral("业务员中已有“%1”，不再复制！").arg(name);
}

QString copiedToSalesmen(const QString &name, const QString &code)
{
    return QStringLiteral("员工%1已复制到业务员，编号%2").arg(name, code);
}

QString employeeSavedLog(const QString &name)
{
    return QStringLiteral("保存员工花名册：%1").arg(name);
}

QString employeeDeletedLog(const QString &name)
{
    return QStringLiteral("删除员工花名册：%1").arg(name);
}

QString employeeLeft(const QString &name)
{
    return QStringLiteral("员工“%1”已离职，不能安排培训！").arg(name);
}

QString noEmployeePicked()
{
    return QStringLiteral("请先选择参加培训的员工！");
}

QString noPlanPicked()
{
    return QStringLiteral("请先选择员工的培训计划！");
}

QString trainingSaveQuestion()
{
    return QStringLiteral(
        "培训记录保存后如果有问题可以在“培训记录”\r\n\r\n界面中删除或修改，是否确认保存？");
}

QString planNotFound(qint64 id)
{
    return QStringLiteral("没有找到这个培训计划（%1），可能已被删除！").arg(id);
}

QString planHasRecords()
{
    return QStringLiteral("该培训计划已有培训记录，不能删除！");
}

QString trainingNotFound(qint64 id)
{
    return QStringLiteral("没有找到这条培训记录（%1），可能已被删除！").arg(id);
}

QString deletePlanQuestion(const QString &topic, const QString &name)
{
    return QStringLiteral("您的操作将删除%1的培训计划：%2，确认吗？").arg(name, topic);
}

QString deleteTrainingQuestion(const QString &name)
{
    return QStringLiteral("您的操作将删除%1的这条培训记录，确认吗？").arg(name);
}

QString plansSavedLog(const QString &topic, int count)
{
    return QStringLiteral("保存员工培训计划：%1，共%2人").arg(topic).arg(count);
}

QString trainingsSavedLog(int count)
{
    return QStringLiteral("保存员工培训记录，共%1人").arg(count);
}

QString planDeletedLog(const QString &topic, const QString &name)
{
    return QStringLiteral("删除员工培训计划：%1 %2").arg(topic, name);
}

QString trainingDeletedLog(const QString &name)
{
    return QStringLiteral("删除员工培训记录：%1").arg(name);
}

QString planChangedLog(const QString &topic, const QString &name)
{
    return QStringLiteral("修改员工培训计划：%1 %2").arg(topic, name);
}

QString trainingChangedLog(const QString &name)
{
    return QStringLiteral("修改员工培训记录：%1").arg(name);
}

} // namespace medistock::gsp::texts
