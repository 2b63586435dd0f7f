#include "tests/support/documentrows.h"
#include "tests/ui/uitest.h"
#include "ui/common/screenregistry.h"
#include "ui/common/texts.h"
#include "ui/gsp/batchpicker.h"
#include "ui/gsp/filleddialog.h"
#include "ui/gsp/otherscreens.h"
#include "ui/gsp/registration.h"
#include "ui/gsp/restrictedscreen.h"
#include "ui/gsp/staffscreen.h"
#include "ui/gsp/tablemodel.h"
#include "ui/gsp/temperaturescreen.h"
#include "ui/shell/mainwindow.h"

#include <QChart>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QSqlRecord>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTest>
#include <QTimeEdit>

using namespace medistock;

namespace {

// Goods 阿莫西林胶囊 with two batches in warehouse 100001 and 板蓝根颗粒 with one.
class GspScreens : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addGoods(
            db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
        test::addGoods(
            db(), { .code = QStringLiteral("200002"), .name = QStringLiteral("板蓝根颗粒") });
        db().exec(QStringLiteral("update jxc_goods set g_jm='AMXL' where g_sn='200001'"));
        db().exec(QStringLiteral("update jxc_goods set g_jm='BLGKL' where g_sn='200002'"));
        const std::tuple<const char *, const char *, const char *, double> batches[]
            = { { "200001", "A1", "2025-05-31", 12 }, { "200001", "A2", "2026-09-30", 30 },
                  { "200002", "B1", "2025-04-30", 8 } };
        for (const auto &[goods, batch, expiry, quantity] : batches)
            db().exec(
                QStringLiteral("insert into jxc_tkc (g_sn,t_ph,t_yxq,t_scrq,t_sl,ck_sn) values "
                               "(?,?,?,'',?,'100001')"),
                { QString::fromLatin1(goods), QString::fromLatin1(batch),
                    QString::fromLatin1(expiry), quantity });
    }

    static void press(QWidget *widget, Qt::Key key) { QTest::keyClick(widget, key); }
};

} // namespace

TEST_F(GspScreens, AnInspectionIsFilledFromTheBatchPicker)
{
    ui::FilledDialog dialog(workspace(), gsp::FilledKind::Inspection);
    ui::BatchPicker *picker = dialog.picker();
    ASSERT_EQ(picker->batchGrid()->model()->rowCount(), 3);
    // The clerk types the mnemonic, goes down into the batches with Enter and picks the second.
    test::typeInto(picker->keyField(), QStringLiteral("AMXL"));
    EXPECT_EQ(picker->batchGrid()->model()->rowCount(), 2);
    press(picker->keyField(), Qt::Key_Return);
    picker->batchGrid()->selectRow(1);
    press(picker->batchGrid(), Qt::Key_Return);
    press(picker->batchGrid(), Qt::Key_Return);
    QTableWidget *picked = picker->pickedGrid();
    ASSERT_EQ(picked->rowCount(), 1);
    EXPECT_EQ(picked->item(0, 4)->text(), QStringLiteral("A2"));
    EXPECT_EQ(picked->item(0, 6)->text(), QStringLiteral("30"));
    // What the clerk found on the shelf.
    picked->item(0, 6)->setText(QStringLiteral("29"));
    picked->item(0, 7)->setText(QStringLiteral("包装破损"));
    dialog.climateField(0)->setValue(22.5);
    dialog.climateField(1)->setValue(55);
    QPushButton *save
        = qobject_cast<QPushButton *>(test::buttonNamed(&dialog, QStringLiteral("保存(&S)")));
    ASSERT_NE(save, nullptr);
    save->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.savedNumber(), QStringLiteral("JC25031410001"));
    EXPECT_TRUE(ui.informed.isEmpty()) << ui.informed.join(QLatin1Char('\n')).toStdString();
    const QSqlRecord header
        = db().firstRow(QStringLiteral("select gl_djh,ck_sn,t_dnwd,t_dnsd,t_rq from jxc_cljcd"));
    EXPECT_EQ(header.value(0).toString(), QStringLiteral("JC25031410001"));
    EXPECT_EQ(header.value(1).toString(), QStringLiteral("100001"));
    EXPECT_DOUBLE_EQ(header.value(2).toDouble(), 22.5);
    EXPECT_DOUBLE_EQ(header.value(3).toDouble(), 55);
    EXPECT_EQ(header.value(4).toString(), QStringLiteral("2025-03-14"));
    const QSqlRecord line
        = db().firstRow(QStringLiteral("select g_sn,t_ph,t_sl,t_zlzk from jxc_cljcsp"));
    EXPECT_EQ(line.value(0).toString() + line.value(1).toString(), QStringLiteral("200001A2"));
    EXPECT_DOUBLE_EQ(line.value(2).toDouble(), 29);
    EXPECT_EQ(line.value(3).toString(), QStringLiteral("包装破损"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_tempspxf2")), 0);
}

TEST_F(GspScreens, ANewInspectionWithNothingPickedStaysOpen)
{
    ui::FilledDialog dialog(workspace(), gsp::FilledKind::Inspection);
    dialog.save();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("请先选择要记录的药品批次！") });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_cljcd")), 0);
}

TEST_F(GspScreens, ATemperatureEntryIsTypedAndListed)
{
    ui::TemperatureScreen screen(workspace());
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：0"));
    EXPECT_FALSE(screen.printButton()->isVisibleTo(&screen)); // the log has no report template
    ui::TemperatureDialog dialog(workspace());
    dialog.timeField()->setTime(QTime(9, 30));
    test::typeInto(dialog.field(QStringLiteral("temperature")), QStringLiteral("31.5"));
    test::typeInto(dialog.field(QStringLiteral("humidity")), QStringLiteral("70"));
    test::typeInto(dialog.field(QStringLiteral("measures")), QStringLiteral("开空调"));
    test::typeInto(dialog.field(QStringLiteral("temperatureAfter")), QStringLiteral("abc"));
    dialog.save();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed.last(), QStringLiteral("措施后温度“abc”不是正确的数字！"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_ckwsd")), 0);
    dialog.field(QStringLiteral("temperatureAfter"))->clear();
    test::typeInto(dialog.field(QStringLiteral("temperatureAfter")), QStringLiteral("25"));
    dialog.save();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_ckwsd"),
                  QStringLiteral("ck_sn,cw_rq,cw_time,cw_wd,cw_sd,cw_cs,cw_wd2,cw_jly")),
        QStringList { QStringLiteral("100001|2025-03-14|09:30|31.5|70|开空调|25|admin") });
    screen.reload();
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：1"));
    EXPECT_EQ(screen.chart()->series().size(), 6);
}

TEST_F(GspScreens, TheMainWindowCountsNearExpiryBatchesAndRemindsOfTheTemperatureLog)
{
    ui::ScreenRegistry registry;
    ui::registerGspScreens(registry);
    ui::MainWindow window(workspace(), registry);
    ui::addGspReminders(window, workspace());
    auto *status = window.statusBar()->findChild<QPushButton *>(QStringLiteral("nearExpiry"));
    ASSERT_NE(status, nullptr);
    // 180 days reach "2025-09": A1 and B1.
    EXPECT_EQ(status->text(), QStringLiteral("近效期批次：2（180天内）"));
    QApplication::processEvents();
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("今天（2025-03-14）以下仓库还没有登记温湿度：\r\n主仓库\r\n"
                                     "请在“仓库温湿度管理”中登记！") });
    status->click();
    ASSERT_EQ(window.tabs()->count(), 1);
    EXPECT_EQ(window.tabs()->tabText(0), QStringLiteral("过期查询"));
    auto *grid = window.tabs()->currentWidget()->findChild<QTableView *>();
    EXPECT_EQ(grid->model()->rowCount(), 2 + 1);
}

TEST_F(GspScreens, AnEmployeeIsTypedIntoTheRegister)
{
    ui::StaffScreen screen(workspace());
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：0"));
    // The register has a report template; a workspace that cannot print shows it disabled.
    EXPECT_TRUE(screen.printButton()->isVisibleTo(&screen));
    EXPECT_FALSE(screen.printButton()->isEnabled());
    EXPECT_EQ(screen.printButton()->toolTip(), ui::texts::printingNotBuilt());
    ui::EmployeeDialog dialog(workspace(), QString());
    test::typeInto(dialog.field(QStringLiteral("name")), QStringLiteral("陈建华"));
    test::typeInto(dialog.field(QStringLiteral("born")), QStringLiteral("1980-02-30"));
    dialog.choice(QStringLiteral("sex"))->setCurrentIndex(1);
    dialog.flag(QStringLiteral("pharmacist"))->setChecked(true);
    dialog.save();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed.last(),
        QStringLiteral("出生日期“1980-02-30”不是正确的日期，请按 yyyy-MM-dd 输入！"));
    dialog.field(QStringLiteral("born"))->setText(QStringLiteral("1980-02-28"));
    dialog.save();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.savedCode(), QStringLiteral("100001"));
    EXPECT_EQ(db().firstText(QStringLiteral(
                  "select u_name||'|'||u_jm||'|'||u_sex||'|'||u_csrq||'|'||u_isys||'|'||"
                  "de_sn from jxc_yghmc")),
        QStringLiteral("陈建华|CJH|男|1980-02-28|1|100001"));
    screen.reload();
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：1"));
    EXPECT_EQ(screen.currentKey().toString(), QStringLiteral("100001"));
}

TEST_F(GspScreens, TheExpiryQueryTakesItsDaysAndNamesThemUnderTheGrid)
{
    ui::ExpiryScreen screen(workspace());
    EXPECT_EQ(screen.daysBox()->value(), 180);
    EXPECT_EQ(screen.captionLabel()->text(), QStringLiteral("查询还有180天过期的药品"));
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：2"));
    screen.daysBox()->setValue(30);
    QTest::keyClick(screen.daysBox(), Qt::Key_Return);
    EXPECT_EQ(screen.captionLabel()->text(), QStringLiteral("查询还有30天过期的药品"));
    // 30 days reach "2025-04": B1 expires on 2025-04-30, after the month's text.
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：0"));
}

TEST_F(GspScreens, TheRestrictedLedgerSwitchesToItsSummary)
{
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=2 where g_sn='200001'"));
    db().exec(QStringLiteral(
        "insert into jxc_goodslist (gl_flag,gl_djh,gl_kdrq,g_sn,g_name,gl_sl,gl_je,gl_dj,"
        "ck_sn,gl_kc,gl_kczje) values ('qc','QC1','2025-01-02','200001','阿莫西林胶囊',10,"
        "30,3,'100001',10,30)"));
    ui::RestrictedScreen screen(workspace());
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：1"));
    EXPECT_EQ(screen.model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(),
        QStringLiteral("单据类型"));
    EXPECT_EQ(screen.model()->data(screen.model()->index(0, 2), Qt::DisplayRole).toString(),
        QStringLiteral("期初数"));
    QPushButton *summary
        = qobject_cast<QPushButton *>(test::buttonNamed(&screen, QStringLiteral("汇总(&H)")));
    ASSERT_NE(summary, nullptr);
    summary->click();
    EXPECT_TRUE(screen.showsSummary());
    EXPECT_EQ(summary->text(), QStringLiteral("明细(&M)"));
    EXPECT_EQ(screen.model()->headerData(10, Qt::Horizontal, Qt::DisplayRole).toString(),
        QStringLiteral("帐面库存"));
    EXPECT_EQ(screen.model()->data(screen.model()->index(0, 10), Qt::DisplayRole).toString(),
        QStringLiteral("10.00"));
}
