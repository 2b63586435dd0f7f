#include "app/screenshots/masterdata.h"

#include "core/spreadsheet.h"
#include "masterdata/editing.h"
#include "masterdata/goodsclass.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "ui/common/workspace.h"
#include "ui/masterdata/classtree.h"
#include "ui/masterdata/goodsdialog.h"
#include "ui/masterdata/goodsscreen.h"
#include "ui/masterdata/importdialog.h"
#include "ui/masterdata/masterdialog.h"
#include "ui/masterdata/smalllistdialog.h"
#include "ui/shell/mainwindow.h"

#include <QDir>
#include <QListWidget>
#include <QTabWidget>
#include <QTableView>

using namespace medistock;
using masterdata::Values;

namespace {

const masterdata::MasterKind &kind(const char *key)
{
    return *masterdata::findMasterKind(QString::fromLatin1(key));
}

Values row(std::initializer_list<std::pair<const char *, const char *>> columns)
{
    Values values;
    for (const auto &[column, value] : columns)
        values.insert(QString::fromLatin1(column), QString::fromUtf8(value));
    return values;
}

void seedGoods(const shell::Session &admin)
{
    const int cold = masterdata::addGoodsClass(admin, 1, QStringLiteral("感冒用药")).value();
    masterdata::addGoodsClass(admin, cold, QStringLiteral("儿童感冒药"));
    masterdata::addGoodsClass(admin, 1, QStringLiteral("抗生素"));
    masterdata::addGoodsClass(admin, 1, QStringLiteral("维生素矿物质"));
    masterdata::GoodsDraft amoxicillin { {},
        row({ { "g_name", "阿莫西林胶囊" }, { "gc_sn", "1002" }, { "gg_name", "0.25g*24粒" },
            { "dw_name", "盒" }, { "g_sccs", "华北制药股份有限公司" },
            { "color_name", "国药准字H13023964" }, { "g_sptm", "6901234500017" },
            { "g_yjlx", "胶囊" }, { "g_tym", "阿莫西林" }, { "g_jj", "6.8" }, { "g_sj", "9.5" },
            { "g_sj1", "9" }, { "g_sj2", "8.8" }, { "g_lsj", "12" }, { "g_hyj", "11" },
            { "gsp_name", "抗生素制剂" }, { "g_cztj", "阴凉" }, { "g_yhlx", "一般养护" },
            { "g_zczh", "H13023964" }, { "g_iscf", "1" }, { "g_sykz", "1" }, { "g_zdkc", "20" } }),
        { { 0, QStringLiteral("箱"), 200, QStringLiteral("16901234500014"), 1300, 1850 } },
        { { 0, QStringLiteral("6901234500024"), QStringLiteral("旧包装") } },
        { { QStringLiteral("批发价"), 8.5 } } };
    masterdata::saveGoods(admin, amoxicillin);
    const std::initializer_list<std::pair<const char *, const char *>> more[] = {
        { { "g_name", "感冒灵颗粒" }, { "gc_sn", "1001" }, { "gg_name", "10g*9袋" },
            { "dw_name", "盒" }, { "g_sccs", "华润三九医药股份有限公司" }, { "g_jj", "8.2" },
            { "g_sj", "11.5" }, { "g_lsj", "15" }, { "g_sptm", "6901234500031" } },
        { { "g_name", "小儿氨酚黄那敏颗粒" }, { "gc_sn", "100101" }, { "gg_name", "6g*10袋" },
            { "dw_name", "盒" }, { "g_sccs", "哈药集团制药六厂" }, { "g_jj", "5.6" },
            { "g_sj", "7.8" }, { "g_lsj", "9.9" } },
        { { "g_name", "维生素C片" }, { "gc_sn", "1003" }, { "gg_name", "0.1g*100片" },
            { "dw_name", "瓶" }, { "g_sccs", "东北制药集团" }, { "g_jj", "2.1" }, { "g_sj", "3" },
            { "g_lsj", "4.5" } },
        { { "g_name", "板蓝根颗粒" }, { "gc_sn", "1001" }, { "gg_name", "10g*20袋" },
            { "dw_name", "袋" }, { "g_sccs", "广州白云山和记黄埔中药有限公司" }, { "g_jj", "9.5" },
            { "g_sj", "13" }, { "g_lsj", "16.8" }, { "g_jy", "1" } },
    };
    for (const auto &goods : more)
        masterdata::addMasterRow(admin, masterdata::goodsKind(), row(goods));
}

void seedParties(const shell::Session &admin)
{
    masterdata::addMasterRow(admin, kind("employee"),
        row({ { "u_name", "张伟" }, { "u_duty", "销售代表" }, { "u_tele", "13805710001" },
            { "u_tc", "2" } }));
    masterdata::addMasterRow(admin, kind("employee"),
        row({ { "u_name", "刘洋" }, { "u_duty", "采购员" }, { "u_tcfs", "1" },
            { "u_tctxt", "按利润提成" }, { "u_tc", "5" }, { "u_zdlr", "0.5" } }));
    masterdata::saveCustomer(admin, {},
        row({ { "kh_name", "仁心诊所" }, { "kh_lxr", "陈医生" }, { "kh_tele", "0571-86001234" },
            { "kh_address", "杭州市西湖区文三路88号" }, { "kt_sn", "1001" }, { "kt_name", "一级" },
            { "z_name", "省会地区" } }),
        { QStringLiteral("100002") });
    masterdata::addMasterRow(admin, kind("customer"),
        row({ { "kh_name", "康乐社区卫生服务站" }, { "kh_lxr", "周护士" },
            { "kh_tele", "0571-86005678" }, { "z_name", "地市区域" } }));
    masterdata::addMasterRow(admin, kind("supplier"),
        row({ { "ghs_name", "浙江英特药业有限责任公司" }, { "ghs_lxr", "孙经理" },
            { "ghs_tele", "0571-85068888" }, { "ghs_address", "杭州市滨江区江南大道96号" },
            { "gt_name", "A级供货商" }, { "z_name", "省会地区" },
            { "ghs_yyzzh", "91330000142912345X" }, { "ghs_yyrq", "2030-12-31" },
            { "ghs_xkzh", "浙AA5710001" }, { "ghs_xkrq", "2027-06-30" },
            { "ghs_gsp", "A-ZJ-19-0123" }, { "ghs_gsprq", "2026-05-20" },
            { "ghs_ypjyxkz", "浙AA5710001" }, { "ghs_ypjyxkzrq", "2027-06-30" },
            { "ghs_wtr", "钱小明" }, { "ghs_wtrno", "330106198805061234" } }));
    masterdata::saveWarehouse(admin, {},
        row({ { "ck_name", "城西门店仓" }, { "ck_fzr", "王芳" }, { "ck_tele", "0571-88890001" },
            { "ck_address", "杭州市西湖区古墩路200号" } }),
        { QStringLiteral("100001"), QStringLiteral("100002") });
}

void writeImportSheet(const QString &path)
{
    core::writeXlsx(path, QStringLiteral("商品"),
        { QStringLiteral("商品名称"), QStringLiteral("规格型号"), QStringLiteral("单位"),
            QStringLiteral("预设进价"), QStringLiteral("预设售价"), QStringLiteral("商品类别"),
            QStringLiteral("商品条码"), QStringLiteral("库存") },
        { { QStringLiteral("复方甘草片"), QStringLiteral("100片"), QStringLiteral("瓶"), 3.2, 5,
              QStringLiteral("默认类别"), QStringLiteral("6901234500048"), 10 },
            { QStringLiteral("布洛芬缓释胶囊"), QStringLiteral("0.3g*20粒"), QStringLiteral("盒"),
                QStringLiteral("十二"), 18, QStringLiteral("感冒用药"), QString(), 5 },
            { QStringLiteral("头孢克肟分散片"), QStringLiteral("0.1g*6片"), QStringLiteral("盒"),
                14.5, 21, QStringLiteral("抗菌药"), QString(), 0 },
            { QStringLiteral("葡萄糖酸钙口服液"), QStringLiteral("10ml*12支"), QStringLiteral("盒"),
                12, 16.8, QStringLiteral("维生素矿物质"), QStringLiteral("6901234500017"), 3 },
            { QStringLiteral("维生素B族片"), QStringLiteral("100片"), QStringLiteral("瓶"), 6.5,
                9.8, QStringLiteral("维生素矿物质"), QString(), 8 } });
}

void shootDialogPages(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MasterRowDialog &dialog, const QString &name)
{
    for (int page = 0; page < dialog.pages()->count(); ++page) {
        dialog.pages()->setCurrentIndex(page);
        shoot(&dialog, QStringLiteral("%1-%2").arg(name).arg(page + 1));
    }
    dialog.hide();
}

} // namespace

void shootMasterData(const std::function<void(QWidget *, const QString &)> &shoot,
    ui::MainWindow &window, ui::Workspace &workspace, const QString &scratch)
{
    seedGoods(workspace.session);
    seedParties(workspace.session);

    window.openOperation(QStringLiteral("qtcz"), 1);
    auto *goods = qobject_cast<ui::GoodsScreen *>(window.tabs()->currentWidget());
    goods->reload();
    goods->classes()->reload();
    goods->selectKey(QStringLiteral("10020001"));
    shoot(&window, QStringLiteral("12-goods"));
    goods->classes()->choose(3);
    shoot(&window, QStringLiteral("13-goods-class"));
    goods->classes()->choose(1);

    ui::GoodsDialog goodsDialog(workspace.session, QStringLiteral("10020001"), {}, &window);
    shootDialogPages(shoot, goodsDialog, QStringLiteral("14-goods-edit"));

    const std::pair<int, const char *> lists[] = { { 3, "15-customers" }, { 2, "16-suppliers" },
        { 5, "17-warehouses" }, { 4, "18-employees" } };
    for (const auto &[position, name] : lists) {
        window.openOperation(QStringLiteral("qtcz"), position);
        shoot(&window, QString::fromLatin1(name));
    }
    ui::MasterRowDialog customer(
        workspace.session, kind("customer"), QStringLiteral("100002"), &window);
    shootDialogPages(shoot, customer, QStringLiteral("19-customer-edit"));
    ui::MasterRowDialog supplier(
        workspace.session, kind("supplier"), QStringLiteral("100002"), &window);
    shootDialogPages(shoot, supplier, QStringLiteral("20-supplier-edit"));
    ui::MasterRowDialog warehouse(
        workspace.session, kind("warehouse"), QStringLiteral("100002"), &window);
    shootDialogPages(shoot, warehouse, QStringLiteral("21-warehouse-edit"));
    ui::MasterRowDialog employee(
        workspace.session, kind("employee"), QStringLiteral("100003"), &window);
    shootDialogPages(shoot, employee, QStringLiteral("22-employee-edit"));

    ui::SmallListDialog units(workspace, kind("unit"), &window);
    shoot(&units, QStringLiteral("23-small-list"));
    units.hide();
    ui::MasterRowDialog unit(workspace.session, kind("zone"), QStringLiteral("100001"), &window);
    shoot(&unit, QStringLiteral("24-small-list-edit"));
    unit.hide();

    const QString sheet = QDir(scratch).filePath(QStringLiteral("商品导入.xlsx"));
    writeImportSheet(sheet);
    ui::ImportDialog import(workspace.session, masterdata::goodsKind(), &window);
    import.load(sheet);
    shoot(&import, QStringLiteral("25-import-preview"));
    import.hide();
}
