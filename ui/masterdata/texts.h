#pragma once

#include <QString>
#include <QStringList>

// The words of the master-data screens. What the operations say when they refuse lives with
// them (masterdata/texts.h); captions of columns come from the schema catalogue.
namespace medistock::ui::mdtexts {

// List screens
inline const QString search = QStringLiteral("查找：");
inline const QString searchHint = QStringLiteral("输入编号、名称或简码");
inline const QString goodsSearchHint = QStringLiteral("输入编号、名称、简码或条码");
inline const QString add = QStringLiteral("增加(&A)");
inline const QString edit = QStringLiteral("修改(F2)");
inline const QString remove = QStringLiteral("删除(&D)");
inline const QString disable = QStringLiteral("禁用");
inline const QString enable = QStringLiteral("启用");
inline const QString importButton = QStringLiteral("导入(&I)");
inline const QString basicLists = QStringLiteral("基础资料");
inline const QString yesMark = QStringLiteral("是");
inline const QString chooseRowFirst = QStringLiteral("请先选择一行资料！");
inline const QString importTitle = QStringLiteral("从Excel表格导入");
inline const QString exporting = QStringLiteral("正在导出，请稍候……");
QString listTitle(const QString &label); // "单位设置"

// Goods classes
inline const QString classesGroup = QStringLiteral("商品类别");
inline const QString addClass = QStringLiteral("增加类别");
inline const QString renameClass = QStringLiteral("修改类别");
inline const QString moveClass = QStringLiteral("移动类别");
inline const QString deleteClass = QStringLiteral("删除类别");
inline const QString className = QStringLiteral("类别名称：");
inline const QString moveClassTo = QStringLiteral("移到哪个类别下面：");
inline const QString chooseClassFirst = QStringLiteral("请先选择一个商品类别！");
QString deleteClassQuestion(const QString &name); // "确实要删除商品类别：感冒药 吗？"

// Edit dialogs
inline const QString save = QStringLiteral("保存(&S)");
inline const QString basicPage = QStringLiteral("基本资料");
inline const QString pricePage = QStringLiteral("价格");
inline const QString gspPage = QStringLiteral("GSP资料");
inline const QString stockPage = QStringLiteral("库存");
inline const QString unitsPage = QStringLiteral("辅助单位");
inline const QString barcodesPage = QStringLiteral("多条码");
inline const QString namedPricesPage = QStringLiteral("其它价格");
inline const QString licencePage = QStringLiteral("证照资质");
inline const QString commissionPage = QStringLiteral("提成设置");
inline const QString employeesPage = QStringLiteral("业务员");
inline const QString operatorsPage = QStringLiteral("操作员");
inline const QString mnemonic = QStringLiteral("简码");
inline const QString supplier = QStringLiteral("供货商");
inline const QString goodsClass = QStringLiteral("商品类别");
inline const QString validUntil = QStringLiteral("有效期");
inline const QString licence = QStringLiteral("证照");
inline const QString memberFiguresPage = QStringLiteral("积分与消费");
inline const QString memberLevel = QStringLiteral("会员等级");
inline const QString memberCard = QStringLiteral("会员卡号");
inline const QString memberVisits = QStringLiteral("消费次数");
inline const QString memberCardActive = QStringLiteral("会员卡有效");
inline const QString memberRemainder = QStringLiteral("未积分余额");
inline const QString licenceNumber = QStringLiteral("证号");
inline const QString dateHint = QStringLiteral("yyyy-MM-dd");
inline const QString allWarehouses = QStringLiteral("所有仓库");
inline const QString addLine = QStringLiteral("添加");
inline const QString removeLine = QStringLiteral("移除");
inline const QString priceName = QStringLiteral("价格名称");
inline const QString price = QStringLiteral("价格");
inline const QString commissionKind = QStringLiteral("提成方式");
inline const QString expenseDirection = QStringLiteral("收支");
inline const QString autoCode = QStringLiteral("不填则自动编号");
QString addTitle(const QString &label); // "增加商品"
QString editTitle(const QString &label, const QString &name); // "修改商品：阿莫西林胶囊"

// Choices of columns that hold a number standing for a word
inline const QStringList goodsCommissionKinds { QStringLiteral("不提成"),
    QStringLiteral("按件提成"), QStringLiteral("按金额提成"), QStringLiteral("按利润提成") };
inline const QStringList employeeCommissionKinds { QStringLiteral("按销售额提成"),
    QStringLiteral("按利润提成") };
inline const QStringList expenseDirections { QStringLiteral("支出"), QStringLiteral("收入") };
inline const QStringList storageConditions { QStringLiteral("常温"), QStringLiteral("阴凉"),
    QStringLiteral("冷藏"), QStringLiteral("冷冻"), QStringLiteral("避光"),
    QStringLiteral("密封") };
inline const QStringList careKinds { QStringLiteral("不养护"), QStringLiteral("一般养护"),
    QStringLiteral("重点养护") };

// Import
inline const QString chooseFile = QStringLiteral("选择文件(&F)...");
inline const QString fileLabel = QStringLiteral("文件：");
inline const QString mappingGroup = QStringLiteral("列的对应");
inline const QString rowsGroup = QStringLiteral("表格内容");
inline const QString sheetColumn = QStringLiteral("表格中的列");
inline const QString fieldColumn = QStringLiteral("导入到字段");
inline const QString notImported = QStringLiteral("（不导入）");
inline const QString lineColumn = QStringLiteral("行号");
inline const QString stateColumn = QStringLiteral("检查结果");
inline const QString accepted = QStringLiteral("可以导入");
inline const QString runImport = QStringLiteral("确认导入(&I)");
inline const QString close = QStringLiteral("关闭");
inline const QString reading = QStringLiteral("正在读取表格，请稍候……");
inline const QString writing = QStringLiteral("正在导入，请稍候……");

} // namespace medistock::ui::mdtexts
