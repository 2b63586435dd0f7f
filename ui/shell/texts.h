#pragma once

#include <QString>

// The words of the shell's screens: start-up, login, the main window, settings, operators and
// roles, account sets, the company and the log. Messages of the operations themselves live with
// the operations (core/, shell/).
namespace medistock::ui::shelltexts {

// First start
inline const QString firstUseTitle = QStringLiteral("首次使用");
inline const QString firstUseIntro = QStringLiteral(
    "欢迎使用 Medistock！\n这是本机第一次启动，请填写贵公司的信息，系统将据此建立主帐套。");
inline const QString create = QStringLiteral("建立(&C)");
inline const QString leave = QStringLiteral("退出(&X)");

// Login
inline const QString loginTitle = QStringLiteral("Medistock ---- 操作员登录");
inline const QString accountSet = QStringLiteral("帐  套：");
inline const QString operatorLabel = QStringLiteral("操作员：");
inline const QString password = QStringLiteral("密  码：");
inline const QString logIn = QStringLiteral("登录(&L)");
inline const QString connection = QStringLiteral("数据连接：");
inline const QString changeConnection = QStringLiteral("更改(&D)...");

// Where the account sets live
inline const QString connectionTitle = QStringLiteral("数据连接");
inline const QString connectionFiles = QStringLiteral("本机帐套文件（数据目录中）");
inline const QString connectionServer = QStringLiteral("PostgreSQL 数据库服务器（连锁总部共用）");
inline const QString serverShort = QStringLiteral("服务器");
inline const QString serverHost = QStringLiteral("服务器地址：");
inline const QString serverPort = QStringLiteral("端  口：");
inline const QString serverDatabase = QStringLiteral("主帐套数据库：");
inline const QString serverUser = QStringLiteral("用户名：");
inline const QString serverPassword = QStringLiteral("密  码：");

// Main window
inline const QString systemMenu = QStringLiteral("系统(&S)");
inline const QString companyInfo = QStringLiteral("公司信息(&C)...");
inline const QString changeOwnPassword = QStringLiteral("修改密码(&P)...");
inline const QString quit = QStringLiteral("退出(&X)");
inline const QString statusCompany = QStringLiteral("公司：");
inline const QString statusSet = QStringLiteral("帐套：");
inline const QString statusOperator = QStringLiteral("操作员：");
inline const QString welcome = QStringLiteral("请点击上方的功能按钮，从弹出菜单中选择要做的工作。");

// Company
inline const QString companyTitle = QStringLiteral("公司信息");
inline const QString companyName = QStringLiteral("公司名称：");
inline const QString companyShort = QStringLiteral("公司简称：");
inline const QString companyContact = QStringLiteral("联 系 人：");
inline const QString companyTele = QStringLiteral("联系电话：");
inline const QString companyAddress = QStringLiteral("地    址：");

// System settings
inline const QString basicPage = QStringLiteral("基本设置");
inline const QString purchasePage = QStringLiteral("采购设置");
inline const QString salesPage = QStringLiteral("销售设置");
inline const QString moneyPage = QStringLiteral("财务设置");
inline const QString decimalsPage = QStringLiteral("小数位数");
inline const QString priceDecimals = QStringLiteral("单价小数位数：");
inline const QString quantityDecimals = QStringLiteral("数量小数位数：");
inline const QString amountDecimals = QStringLiteral("金额小数位数：");
inline const QString currencySymbol = QStringLiteral("货币符号：");
inline const QString nearExpiryDays = QStringLiteral("近效期提醒天数：");
inline const QString nearExpiryDefault = QStringLiteral("默认（180天）");
inline const QString save = QStringLiteral("保存(&S)");
inline const QString restoreDefaults = QStringLiteral("恢复默认值(&D)");
inline const QString settingsSaved = QStringLiteral("系统设置已保存！");

// Operators and roles
inline const QString operatorsGroup = QStringLiteral("操作员");
inline const QString rolesGroup = QStringLiteral("角色");
inline const QString code = QStringLiteral("编号");
inline const QString roleColumn = QStringLiteral("角色");
inline const QString stateColumn = QStringLiteral("状态");
inline const QString roleName = QStringLiteral("角色名称");
inline const QString active = QStringLiteral("正常");
inline const QString locked = QStringLiteral("已停用");
inline const QString add = QStringLiteral("增加(&A)");
inline const QString edit = QStringLiteral("修改(&E)");
inline const QString lock = QStringLiteral("停用");
inline const QString unlock = QStringLiteral("启用");
inline const QString changePassword = QStringLiteral("修改密码(&P)");
inline const QString addRole = QStringLiteral("增加角色");
inline const QString editRole = QStringLiteral("修改角色");
inline const QString chooseOperatorFirst = QStringLiteral("请先选择一个操作员！");
inline const QString chooseRoleFirst = QStringLiteral("请先选择一个角色！");
inline const QString addOperatorTitle = QStringLiteral("增加操作员");
inline const QString editOperatorTitle = QStringLiteral("修改操作员");
inline const QString operatorName = QStringLiteral("操作员名称：");
inline const QString roleLabel = QStringLiteral("角    色：");
inline const QString newPassword = QStringLiteral("新 密 码：");
inline const QString confirmPassword = QStringLiteral("确认密码：");
inline const QString passwordsDiffer = QStringLiteral("两次输入的密码不一致，请重新输入！");
inline const QString passwordTitle = QStringLiteral("修改密码");
inline const QString passwordChanged = QStringLiteral("密码已修改！");
inline const QString roleNameLabel = QStringLiteral("角色名称：");
inline const QString rightsLabel = QStringLiteral("权限：");
inline const QString tickAll = QStringLiteral("全选");
inline const QString tickNone = QStringLiteral("全不选");

// Account sets
inline const QString newSetGroup = QStringLiteral("新建帐套");
inline const QString setName = QStringLiteral("帐套名称：");
inline const QString setNote = QStringLiteral("备    注：");
inline const QString setDefault = QStringLiteral("设为默认帐套");
inline const QString setForbidden = QStringLiteral("禁用");
inline const QString createSet = QStringLiteral("新建帐套(&N)");
inline const QString creatingSet = QStringLiteral("正在建立帐套的数据文件，请稍候……");
inline const QString yesMark = QStringLiteral("是");

// Log
inline const QString from = QStringLiteral("起始日期：");
inline const QString to = QStringLiteral("终止日期：");
inline const QString query = QStringLiteral("查询(&Q)");
inline const QString clearLog = QStringLiteral("清除日志");
inline const QString logTime = QStringLiteral("时间");
inline const QString logOperator = QStringLiteral("操作员");
inline const QString logNote = QStringLiteral("内容");
inline const QString logCleared = QStringLiteral("操作日志已清除！");

// The message after a set was made: its name and file, or on a server its database.
QString setCreated(const QString &name, const QString &fileName, bool onServer);

} // namespace medistock::ui::shelltexts
