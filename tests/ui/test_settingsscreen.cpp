#include "core/schemacatalogue.h"
#include "shell/session.h"
#include "tests/ui/uitest.h"
#include "ui/shell/settingsscreen.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>

#include <ostream>

using namespace medistock;
using medistock::test::dumpTable;

namespace {

// The labelled options of the parameter row: column -> label.
QList<std::pair<QString, QString>> labelledOptions()
{
    QList<std::pair<QString, QString>> options;
    for (const core::ColumnDef &column : core::findTable(QStringLiteral("jxc_xtcs"))->columns)
        if (*column.label)
            options.append({ QString::fromLatin1(column.name), QString::fromUtf8(column.label) });
    return options;
}

} // namespace

class SettingsScreenTest : public test::UiTest
{
};

TEST_F(SettingsScreenTest, EveryLabelledOptionIsOneCheckBoxWithItsExactLabel)
{
    ui::SettingsScreen screen(workspace());
    const auto options = labelledOptions();
    ASSERT_EQ(options.size(), 38);
    for (const auto &[column, label] : options) {
        ASSERT_EQ(screen.findChildren<QCheckBox *>(column).size(), 1) << column.toStdString();
        EXPECT_EQ(screen.checkBox(column)->text(), label);
    }
    EXPECT_EQ(screen.findChildren<QCheckBox *>().size(), 38);
    QStringList pages;
    for (int i = 0; i < screen.pages()->count(); ++i)
        pages.append(screen.pages()->tabText(i));
    EXPECT_EQ(pages,
        (QStringList { QStringLiteral("基本设置"), QStringLiteral("采购设置"),
            QStringLiteral("销售设置"), QStringLiteral("财务设置"), QStringLiteral("小数位数") }));
}

TEST_F(SettingsScreenTest, ANewSetShowsTheDefaults)
{
    ui::SettingsScreen screen(workspace());
    QStringList ticked;
    for (const auto &[column, label] : labelledOptions())
        if (screen.checkBox(column)->isChecked())
            ticked.append(column);
    EXPECT_EQ(ticked,
        (QStringList { QStringLiteral("cs_xgdj"), QStringLiteral("cs_kc"),
            QStringLiteral("cs_spbh"), QStringLiteral("cs_employ"), QStringLiteral("cs_activate"),
            QStringLiteral("cs_cs013"), QStringLiteral("cs_posrq") }));
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_cbjs"))->value(), 2);
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_xsws"))->value(), 2);
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_jews"))->value(), 2);
    EXPECT_EQ(screen.lineEdit(QStringLiteral("cs_hbfh"))->text(), QStringLiteral("￥"));
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_cs031"))->text(), QStringLiteral("默认（180天）"));
}

TEST_F(SettingsScreenTest, SettingsSavedOnTheScreenAreReadBackByANewSession)
{
    ui::SettingsScreen screen(workspace());
    screen.checkBox(QStringLiteral("cs_xjyh"))->setChecked(true);
    screen.checkBox(QStringLiteral("cs_cgyh"))->setChecked(true);
    screen.checkBox(QStringLiteral("cs_kc"))->setChecked(false);
    screen.spinBox(QStringLiteral("cs_cbjs"))->setValue(4);
    screen.spinBox(QStringLiteral("cs_xsws"))->setValue(3);
    screen.spinBox(QStringLiteral("cs_jews"))->setValue(1);
    screen.lineEdit(QStringLiteral("cs_hbfh"))->setText(QStringLiteral("元"));
    screen.spinBox(QStringLiteral("cs_cs031"))->setValue(90);
    screen.saveButton()->click();
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("系统设置已保存！") });

    reopen();
    core::ScriptedInteraction quiet;
    auto fresh = shell::openSession(
        db(), quiet, clock, QStringLiteral("admin"), QString(), core::LoginMode::Script);
    ASSERT_TRUE(fresh.ok());
    const shell::Parameters &params = fresh.value()->params();
    EXPECT_TRUE(params.flag("cs_xjyh"));
    EXPECT_EQ(params.integer("cs_cgyh"), 1);
    EXPECT_FALSE(params.flag("cs_kc"));
    EXPECT_EQ(params.priceDecimals(), 4);
    EXPECT_EQ(params.quantityDecimals(), 3);
    EXPECT_EQ(params.amountDecimals(), 1);
    EXPECT_EQ(params.text("cs_hbfh"), QStringLiteral("元"));
    EXPECT_EQ(params.integer("cs_cs031"), 90);
    // the untouched options kept their values
    EXPECT_TRUE(params.flag("cs_xgdj"));
    EXPECT_TRUE(params.flag("cs_posrq"));
    EXPECT_FALSE(params.flag("cs_shdj"));
    EXPECT_EQ(params.integer("cs_xsyh"), 0);
}

namespace {

struct PendingLine
{
    const char *insert;
    const char *message;
};

void PrintTo(const PendingLine &line, std::ostream *os)
{
    *os << QString::fromUtf8(line.message).section(QLatin1Char('\n'), 0, 0).toStdString();
}

class DefaultsRefused : public test::UiTest, public ::testing::WithParamInterface<PendingLine>
{
};

} // namespace

TEST_P(DefaultsRefused, WhileALineIsNotWhollyMovedTheDefaultsButtonRefusesAndChangesNothing)
{
    ui::SettingsScreen screen(workspace());
    screen.checkBox(QStringLiteral("cs_sprk"))->setChecked(true);
    screen.spinBox(QStringLiteral("cs_cbjs"))->setValue(4);
    screen.saveButton()->click();
    db().exec(QString::fromUtf8(GetParam().insert));
    const QStringList before = dumpTable(db(), QStringLiteral("jxc_xtcs"));
    ui.clear();

    screen.defaultsButton()->click();
    EXPECT_EQ(ui.informed, QStringList { QString::fromUtf8(GetParam().message) });
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_xtcs")), before);
    EXPECT_TRUE(screen.checkBox(QStringLiteral("cs_sprk"))->isChecked());
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_cbjs"))->value(), 4);
    EXPECT_EQ(session().params().priceDecimals(), 4);
}

INSTANTIATE_TEST_SUITE_P(SettingsScreen, DefaultsRefused,
    ::testing::Values(
        PendingLine { "insert into jxc_jhsp (j_sn,g_sn,jh_sl,jh_rksl,jh_qxsl) values "
                      "('CJ25031410001','100001',5,4,0),('CJ25031410002','100002',5,4.5,0.5)",
            "至少有一种商品没有完成入库，\r\n\r\n单据号：CJ25031410001，商品编号：100001\r\n\r\n"
            "不能取消商品入库功能！" },
        PendingLine { "insert into jxc_lsxssp (gl_djh,g_sn,ls_sl,ls_cksl,ls_qxsl) values "
                      "('XS25031410001','100002',3,1,1)",
            "至少有一种商品没有完成出库，\r\n\r\n单据号：XS25031410001，商品编号：100002\r\n\r\n"
            "不能取消商品出库功能！" }));

TEST_F(SettingsScreenTest, TheDefaultsButtonRestoresTheRowAndShowsIt)
{
    ui::SettingsScreen screen(workspace());
    screen.checkBox(QStringLiteral("cs_xgdj"))->setChecked(false);
    screen.checkBox(QStringLiteral("cs_kp"))->setChecked(true);
    screen.spinBox(QStringLiteral("cs_xsws"))->setValue(0);
    screen.saveButton()->click();
    ui.clear();

    screen.defaultsButton()->click();
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_TRUE(screen.checkBox(QStringLiteral("cs_xgdj"))->isChecked());
    EXPECT_FALSE(screen.checkBox(QStringLiteral("cs_kp"))->isChecked());
    EXPECT_EQ(screen.spinBox(QStringLiteral("cs_xsws"))->value(), 2);
    EXPECT_EQ(db().firstText(QStringLiteral("select cs_xgdj||'|'||cs_kp||'|'||cs_xsws||'|'||"
                                            "cs_employdate from jxc_xtcs")),
        QStringLiteral("1|0|2|1900-01-01"));
    EXPECT_EQ(session().params().quantityDecimals(), 2);
}
