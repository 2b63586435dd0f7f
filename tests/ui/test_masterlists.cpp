#include "core/spreadsheet.h"
#include "masterdata/kinds.h"
#include "masterdata/masterrows.h"
#include "masterdata/transfer.h"
#include "tests/ui/uitest.h"
#include "ui/common/screenregistry.h"
#include "ui/masterdata/importdialog.h"
#include "ui/masterdata/masterdialog.h"
#include "ui/masterdata/masterlistscreen.h"
#include "ui/masterdata/registration.h"
#include "ui/masterdata/smalllistdialog.h"
#include "ui/shell/mainwindow.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSqlRecord>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using medistock::test::buttonNamed;
using medistock::test::dumpDatabase;
using medistock::test::typeInto;

namespace {

const masterdata::MasterKind &kind(const char *key)
{
    return *masterdata::findMasterKind(QString::fromLatin1(key));
}

QStringList gridRow(const QTableWidget *grid, int row)
{
    QStringList texts;
    for (int column = 0; column < grid->columnCount(); ++column)
        texts.append(grid->item(row, column) ? grid->item(row, column)->text() : QString());
    return texts;
}

void tick(QListWidget *list, const QString &code)
{
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->data(Qt::UserRole).toString() == code)
            list->item(i)->setCheckState(Qt::Checked);
}

} // namespace

class MasterListsTest : public test::UiTest
{
protected:
    QString file(const QString &name) const { return QDir(folder()).filePath(name); }
};

TEST_F(MasterListsTest, TheImportDialogWritesNothingUntilConfirmed)
{
    ASSERT_TRUE(core::writeXlsx(file(QStringLiteral("客户.xlsx")), QStringLiteral("客户"),
        { QStringLiteral("客户名称"), QStringLiteral("联系电话"), QStringLiteral("期初应收"),
            QStringLiteral("会员等级") },
        { { QStringLiteral("仁心诊所"), QStringLiteral("0571-86001234"), 120.5,
              QStringLiteral("金卡") },
            { QString(), QStringLiteral("0571-86005678"), 0, QString() },
            { QStringLiteral("康乐卫生服务站"), QString(), QStringLiteral("一百"), QString() },
            { QStringLiteral("百草堂药店"), QString(), 0, QString() } })
                    .ok());
    const QString before = dumpDatabase(db());
    ui::ImportDialog dialog(session(), kind("customer"));
    ASSERT_TRUE(dialog.load(file(QStringLiteral("客户.xlsx"))));
    EXPECT_EQ(gridRow(dialog.mappingGrid(), 2),
        (QStringList { QStringLiteral("期初应收"), QStringLiteral("我方应收金额（kh_lwje）") }));
    EXPECT_EQ(gridRow(dialog.mappingGrid(), 3),
        (QStringList { QStringLiteral("会员等级"), QStringLiteral("（不导入）") }));
    ASSERT_EQ(dialog.rowGrid()->rowCount(), 4);
    EXPECT_EQ(gridRow(dialog.rowGrid(), 0),
        (QStringList { QStringLiteral("2"), QStringLiteral("可以导入"), QStringLiteral("仁心诊所"),
            QStringLiteral("0571-86001234"), QStringLiteral("120.5") }));
    EXPECT_EQ(dialog.rowGrid()->item(1, 1)->text(), QStringLiteral("客户名称必须填写！"));
    EXPECT_EQ(dialog.rowGrid()->item(2, 1)->text(), QStringLiteral("我方应收金额“一百”不是数字！"));
    EXPECT_EQ(dialog.summaryLabel()->text(), QStringLiteral("可以导入 2 行，有错误 2 行。"));
    EXPECT_EQ(dumpDatabase(db()), before);

    ui.answerNext(false);
    dialog.importButton()->click();
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("共 2 行可以导入，2 行有错误将被跳过。确认导入吗？") });
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dumpDatabase(db()), before);

    ui.answerNext(true);
    dialog.importButton()->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已导入 2 行。") });
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_khxx"), QStringLiteral("kh_sn,kh_name,kh_lwje")),
        (QStringList { QStringLiteral("100001|普通客户|0"), QStringLiteral("100002|仁心诊所|120.5"),
            QStringLiteral("100003|百草堂药店|0") }));
}

TEST_F(MasterListsTest, AnUnreadableFileIsToldAndNoPreviewOpens)
{
    ui::ImportDialog dialog(session(), kind("supplier"));
    EXPECT_FALSE(dialog.load(file(QStringLiteral("没有.xlsx"))));
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_FALSE(dialog.importButton()->isEnabled());
}

TEST_F(MasterListsTest, EveryListExportsWhatItShows)
{
    ui::MasterListScreen screen(workspace(), kind("supplier"));
    const QString path = file(QStringLiteral("供货商.xlsx"));
    screen.exportTo(path);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已导出到：") + path });
    const auto sheet = core::readXlsx(path);
    ASSERT_TRUE(sheet.ok());
    ASSERT_EQ(sheet->size(), 2);
    EXPECT_EQ(sheet->first(), masterdata::exportHeaders(kind("supplier")));
    EXPECT_EQ(sheet->at(1).mid(0, 3),
        (QStringList {
            QStringLiteral("100001"), QStringLiteral("普通供货商"), QStringLiteral("PTGHS") }));
    EXPECT_EQ(buttonNamed(&screen, QStringLiteral("导入(&I)")) != nullptr, true);
    ui::MasterListScreen employees(workspace(), kind("employee"));
    EXPECT_EQ(buttonNamed(&employees, QStringLiteral("导入(&I)")), nullptr);
}

TEST_F(MasterListsTest, ACustomerTakesItsTypeWarehouseAndEmployeesFromTheLists)
{
    ASSERT_TRUE(masterdata::addMasterRow(
        session(), kind("employee"), { { QStringLiteral("u_name"), QStringLiteral("张伟") } })
                    .ok());
    ui::MasterListScreen screen(workspace(), kind("customer"));
    ui::MasterRowDialog dialog(session(), kind("customer"), {});
    EXPECT_EQ(dialog.lookup(QStringLiteral("kt_sn"))->currentText(), QStringLiteral("零售客户"));
    EXPECT_EQ(dialog.lookup(QStringLiteral("ck_sn"))->currentText(), QStringLiteral("所有仓库"));
    EXPECT_TRUE(dialog.lineEdit(QStringLiteral("kh_lwje"))->isReadOnly());
    dialog.lineEdit(QStringLiteral("kh_name"))->setText(QStringLiteral("仁心诊所"));
    dialog.lookup(QStringLiteral("kt_sn"))->setValue(QStringLiteral("1001"));
    dialog.lookup(QStringLiteral("ck_sn"))->setValue(QStringLiteral("100001"));
    dialog.lookup(QStringLiteral("z_name"))->setValue(QStringLiteral("省会地区"));
    dialog.lineEdit(QStringLiteral("kh_lwje"))->setText(QStringLiteral("500"));
    tick(dialog.pickList(), QStringLiteral("100002"));
    dialog.save();
    ASSERT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_khxx"),
                  QStringLiteral("kt_sn,kt_name,ck_sn,ck_name,z_name,kh_usn,kh_uname,kh_lwje"),
                  QStringLiteral("kh_sn=?"), { dialog.savedKey() }),
        QStringList { QStringLiteral("1001|一级|100001|主仓库|省会地区|100002,|张伟,|0") });
    screen.reload();
    screen.selectKey(dialog.savedKey());
    EXPECT_EQ(screen.grid()->model()->index(1, 8).data().toString(), QStringLiteral("张伟"));
    EXPECT_EQ(screen.grid()->model()->index(0, 8).data().toString(), QStringLiteral("默认员工"));

    ui::MasterRowDialog again(session(), kind("customer"), dialog.savedKey());
    EXPECT_EQ(again.lookup(QStringLiteral("kt_sn"))->currentText(), QStringLiteral("一级"));
    EXPECT_EQ(again.pickList()->item(1)->checkState(), Qt::Checked);
    EXPECT_EQ(again.pickList()->item(0)->checkState(), Qt::Unchecked);
}

TEST_F(MasterListsTest, WarehouseOperatorsAndEmployeeCommissionAreSavedAsTheyAreKept)
{
    ui::MasterRowDialog warehouse(session(), kind("warehouse"), QStringLiteral("100001"));
    EXPECT_EQ(warehouse.pickList()->item(0)->checkState(), Qt::Checked);
    warehouse.pickList()->item(0)->setCheckState(Qt::Unchecked);
    warehouse.save();
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_ckxx"), QStringLiteral("ck_asn,ck_aname"),
                  QStringLiteral("ck_sn=?"), { QStringLiteral("100001") }),
        QStringList { QStringLiteral("|") });

    ui::MasterRowDialog employee(session(), kind("employee"), {});
    employee.lineEdit(QStringLiteral("u_name"))->setText(QStringLiteral("刘洋"));
    employee.lookup(QStringLiteral("u_tcfs"))->setValue(QStringLiteral("1"));
    employee.lineEdit(QStringLiteral("u_tc"))->setText(QStringLiteral("5"));
    employee.lineEdit(QStringLiteral("u_zdlr"))->setText(QStringLiteral("0.5"));
    employee.save();
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_user"),
                  QStringLiteral("u_sn,u_jm,u_tcfs,u_tctxt,u_tc,u_zdlr"),
                  QStringLiteral("u_name=?"), { QStringLiteral("刘洋") }),
        QStringList { QStringLiteral("100002|LY|1|按利润提成|5|0.5") });
}

TEST_F(MasterListsTest, ASupplierLicenceDateMustBeADate)
{
    const QString before = dumpDatabase(db());
    ui::MasterRowDialog dialog(session(), kind("supplier"), {});
    EXPECT_EQ(dialog.pages()->tabText(1), QStringLiteral("证照资质"));
    dialog.lineEdit(QStringLiteral("ghs_name"))->setText(QStringLiteral("英特药业"));
    dialog.lineEdit(QStringLiteral("ghs_yyrq"))->setText(QStringLiteral("2025-13-01"));
    dialog.save();
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("营业执照有效期不是正确的日期（yyyy-MM-dd）：2025-13-01") });
    EXPECT_EQ(dumpDatabase(db()), before);
    dialog.lineEdit(QStringLiteral("ghs_yyrq"))->setText(QStringLiteral("2030-12-31"));
    dialog.save();
    EXPECT_EQ(db().firstText(QStringLiteral("select ghs_yyrq from jxc_ghsxx where ghs_sn=?"),
                  { dialog.savedKey() }),
        QStringLiteral("2030-12-31"));
}

TEST_F(MasterListsTest, SmallListsOpenFromBasicDataUnderTheirOwnRights)
{
    addOperatorWithRights(QStringLiteral("小王"),
        { { QStringLiteral("qtcz"), QStringLiteral("001000000000000000000") } });
    switchOperator(QStringLiteral("小王"));
    ui::MasterListScreen customers(workspace(), kind("customer"));
    QStringList offered;
    for (QAction *action : customers.basicListsButton()->menu()->actions())
        offered.append(action->text() + (action->isEnabled() ? QString() : QStringLiteral("×")));
    EXPECT_EQ(offered,
        (QStringList { QStringLiteral("客户类型"), QStringLiteral("地区"),
            QStringLiteral("付款方式×"), QStringLiteral("快递公司×") }));

    ui::SmallListDialog zones(workspace(), kind("zone"));
    EXPECT_EQ(zones.windowTitle(), QStringLiteral("地区设置"));
    EXPECT_EQ(zones.list()->rowCount(), 3);
    EXPECT_EQ(zones.list()->disableButton(), nullptr);
    ui::MasterRowDialog zone(session(), kind("zone"), {});
    EXPECT_EQ(zone.pages(), nullptr);
    zone.lineEdit(QStringLiteral("z_name"))->setText(QStringLiteral("省会地区"));
    zone.save();
    zone.lineEdit(QStringLiteral("z_name"))->setText(QStringLiteral("县城乡镇"));
    zone.save();
    EXPECT_EQ(
        ui.informed, QStringList { QStringLiteral("地区名称：省会地区 已经存在，请重新输入！") });
    zones.list()->reload();
    EXPECT_EQ(zones.list()->rowCount(), 4);
    EXPECT_EQ(zones.list()->currentKey(), QStringLiteral("100001"));
    typeInto(zones.list()->searchField(), QStringLiteral("XCX"));
    EXPECT_EQ(zones.list()->currentKey(), QStringLiteral("100004"));
}

TEST_F(MasterListsTest, TheMainWindowOpensTheFiveMasterDataScreens)
{
    ui::ScreenRegistry registry;
    ui::registerMasterDataScreens(registry);
    ui::MainWindow window(workspace(), registry);
    const QStringList expected { QStringLiteral("商品管理"), QStringLiteral("供货商设置"),
        QStringLiteral("客户设置"), QStringLiteral("员工设置"), QStringLiteral("仓库设置") };
    for (int position = 1; position <= 5; ++position) {
        ASSERT_TRUE(window.operationAction(QStringLiteral("qtcz"), position)->isEnabled());
        window.openOperation(QStringLiteral("qtcz"), position);
    }
    ASSERT_EQ(window.tabs()->count(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(window.tabs()->tabText(i), expected.at(i));
    EXPECT_FALSE(window.operationAction(QStringLiteral("qtcz"), 10)->isEnabled());
}
