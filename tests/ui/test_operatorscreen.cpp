#include "core/login.h"
#include "core/password.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "tests/ui/uitest.h"
#include "ui/shell/operatordialog.h"
#include "ui/shell/operatorscreen.h"
#include "ui/shell/roleeditor.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

using namespace medistock;
using medistock::test::buttonNamed;
using medistock::test::dumpDatabase;

namespace {

QStringList gridRow(const QTableWidget *grid, int row)
{
    QStringList texts;
    for (int column = 0; column < grid->columnCount(); ++column)
        texts.append(grid->item(row, column) ? grid->item(row, column)->text() : QString());
    return texts;
}

QString roleStrings(core::Connection &db, const QString &name)
{
    return db.firstText(
        QStringLiteral("select cggl||'|'||xsgl||'|'||kcgl||'|'||wlzk||'|'||tjgl||'|'"
                       "||rcgl||'|'||gspgl||'|'||qtcz from jxc_role where r_name=?"),
        { name });
}

void tick(ui::RoleEditor &editor, const char *area, int position)
{
    editor.operationItem(QString::fromLatin1(area), position)->setCheckState(0, Qt::Checked);
}

} // namespace

class RoleEditorTest : public test::UiTest
{
};

TEST_F(RoleEditorTest, ARoleSavedFromTheTreeReadsBackAsTheExpectedEightStrings)
{
    ui::RoleEditor editor(session(), nullptr);
    editor.show();
    test::typeInto(editor.nameField(), QStringLiteral("收银员"));
    tick(editor, "xsgl", 1);
    tick(editor, "xsgl", 2);
    tick(editor, "xsgl", 20);
    editor.areaItem(QStringLiteral("kcgl"))->setCheckState(0, Qt::Checked);
    tick(editor, "gspgl", 13);
    tick(editor, "qtcz", 6);
    buttonNamed(&editor, QStringLiteral("保存(&S)"))->click();

    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_EQ(editor.savedCode(), QStringLiteral("100002"));
    EXPECT_EQ(roleStrings(db(), QStringLiteral("收银员")),
        QStringLiteral("000000000000000000|11000000000000000001|111111111111111111|"
                       "000000000000000|00000000000000000000|00000000000000|0000000000001|"
                       "000001000000000000000"));
}

TEST_F(RoleEditorTest, TheAllAndNoneButtonsTickEveryOperation)
{
    ui::RoleEditor editor(session(), nullptr);
    editor.nameField()->setText(QStringLiteral("店长"));
    buttonNamed(&editor, QStringLiteral("全选"))->click();
    editor.operationItem(QStringLiteral("qtcz"), 21)->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(editor.areaItem(QStringLiteral("qtcz"))->checkState(0), Qt::PartiallyChecked);
    editor.save();
    EXPECT_EQ(roleStrings(db(), QStringLiteral("店长")),
        QString(18, QLatin1Char('1')) + QLatin1Char('|') + QString(20, QLatin1Char('1'))
            + QLatin1Char('|') + QString(18, QLatin1Char('1')) + QLatin1Char('|')
            + QString(15, QLatin1Char('1')) + QLatin1Char('|') + QString(20, QLatin1Char('1'))
            + QLatin1Char('|') + QString(14, QLatin1Char('1')) + QLatin1Char('|')
            + QString(13, QLatin1Char('1')) + QLatin1Char('|') + QString(20, QLatin1Char('1'))
            + QLatin1Char('0'));
    buttonNamed(&editor, QStringLiteral("全不选"))->click();
    EXPECT_EQ(editor.operationItem(QStringLiteral("cggl"), 1)->checkState(0), Qt::Unchecked);
}

TEST_F(RoleEditorTest, AMissingOrTakenNameIsToldAndTheEditorStaysWithNothingWritten)
{
    const QString before = dumpDatabase(db());
    ui::RoleEditor editor(session(), nullptr);
    editor.show();
    tick(editor, "cggl", 1);
    editor.nameField()->setText(QStringLiteral("  "));
    editor.save();
    editor.nameField()->setText(QStringLiteral("系统管理员"));
    editor.save();
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("角色名称必须填写！"),
            QStringLiteral("角色名称：系统管理员 已经存在，请重新输入！") }));
    EXPECT_NE(editor.result(), QDialog::Accepted);
    EXPECT_TRUE(editor.isVisible());
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(RoleEditorTest, EditingARoleShowsItsTicksAndKeepsItsCode)
{
    shell::RoleDraft draft;
    draft.name = QStringLiteral("采购员");
    draft.ticked.insert(QStringLiteral("cggl"), { true, false, true });
    ASSERT_TRUE(shell::saveRole(session(), draft).ok());
    const shell::Role role = shell::listRoles(db()).last();

    ui::RoleEditor editor(session(), &role);
    EXPECT_EQ(editor.nameField()->text(), QStringLiteral("采购员"));
    EXPECT_EQ(editor.operationItem(QStringLiteral("cggl"), 1)->checkState(0), Qt::Checked);
    EXPECT_EQ(editor.operationItem(QStringLiteral("cggl"), 2)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(editor.operationItem(QStringLiteral("cggl"), 3)->checkState(0), Qt::Checked);
    editor.operationItem(QStringLiteral("cggl"), 1)->setCheckState(0, Qt::Unchecked);
    editor.nameField()->setText(QStringLiteral("采购主管"));
    editor.save();
    EXPECT_EQ(editor.result(), QDialog::Accepted);
    EXPECT_EQ(editor.savedCode(), role.code);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_role")), 2);
    EXPECT_TRUE(roleStrings(db(), QStringLiteral("采购主管")).startsWith(QStringLiteral("001000")));
}

class OperatorScreenTest : public test::UiTest
{
};

TEST_F(OperatorScreenTest, TheDialogAddsAnOperatorWithHisRoleAndPassword)
{
    addOperatorWithRights(
        QStringLiteral("小李"), { { QStringLiteral("xsgl"), QStringLiteral("1") } });
    ui::OperatorDialog dialog(session(), nullptr);
    dialog.show();
    test::typeInto(dialog.nameField(), QStringLiteral("小王"));
    dialog.roleChoice()->setCurrentIndex(
        dialog.roleChoice()->findText(QStringLiteral("小李的角色")));
    test::typeInto(dialog.passwordField(), QStringLiteral("abc"));
    test::typeInto(dialog.confirmField(), QStringLiteral("abc"));
    buttonNamed(&dialog, QStringLiteral("保存(&S)"))->click();

    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const QSqlRecord row = db().firstRow(
        QStringLiteral("select a_sn,r_sn,a_pwd from jxc_admin where a_name='小王'"));
    EXPECT_EQ(row.value(0).toString(), QStringLiteral("100003"));
    EXPECT_EQ(row.value(1).toString(), QStringLiteral("100002"));
    EXPECT_TRUE(core::verifyPassword(row.value(2).toString(), QStringLiteral("abc")));
}

TEST_F(OperatorScreenTest, PasswordsThatDifferAreToldAndNothingIsWritten)
{
    const QString before = dumpDatabase(db());
    ui::OperatorDialog dialog(session(), nullptr);
    dialog.show();
    dialog.nameField()->setText(QStringLiteral("小王"));
    dialog.passwordField()->setText(QStringLiteral("abc"));
    dialog.confirmField()->setText(QStringLiteral("abd"));
    dialog.save();
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("两次输入的密码不一致，请重新输入！") });
    EXPECT_TRUE(dialog.confirmField()->text().isEmpty());
    EXPECT_EQ(dumpDatabase(db()), before);

    ui::PasswordDialog password(session(), QStringLiteral("admin"));
    password.passwordField()->setText(QStringLiteral("1"));
    password.confirmField()->setText(QStringLiteral("2"));
    password.save();
    EXPECT_EQ(dumpDatabase(db()), before);
    password.passwordField()->setText(QStringLiteral("2"));
    password.confirmField()->setText(QStringLiteral("2"));
    password.save();
    EXPECT_EQ(password.result(), QDialog::Accepted);
    EXPECT_EQ(ui.informed.last(), QStringLiteral("密码已修改！"));
    EXPECT_FALSE(core::hasEmptyPassword(db(), QStringLiteral("admin")));
}

TEST_F(OperatorScreenTest, EditingChangesNameAndRoleOfTheChosenOperator)
{
    addOperatorWithRights(QStringLiteral("小王"), {});
    ui::OperatorScreen screen(workspace());
    screen.operatorGrid()->selectRow(1);
    ASSERT_NE(screen.chosenOperator(), nullptr);
    ui::OperatorDialog dialog(session(), screen.chosenOperator());
    EXPECT_EQ(dialog.nameField()->text(), QStringLiteral("小王"));
    EXPECT_EQ(dialog.roleChoice()->currentText(), QStringLiteral("小王的角色"));
    EXPECT_EQ(dialog.passwordField(), nullptr);
    dialog.nameField()->setText(QStringLiteral("王小二"));
    dialog.roleChoice()->setCurrentIndex(0);
    dialog.save();
    screen.reload();
    EXPECT_EQ(gridRow(screen.operatorGrid(), 1),
        (QStringList { QStringLiteral("100002"), QStringLiteral("王小二"),
            QStringLiteral("系统管理员"), QStringLiteral("正常") }));
}

TEST_F(OperatorScreenTest, LockingAndUnlockingShowInTheGridAndAtLogin)
{
    addOperatorWithRights(QStringLiteral("小王"), {});
    ui::OperatorScreen screen(workspace());
    ASSERT_EQ(screen.operatorGrid()->rowCount(), 2);
    screen.operatorGrid()->selectRow(1);
    buttonNamed(&screen, QStringLiteral("停用"))->click();
    EXPECT_EQ(gridRow(screen.operatorGrid(), 1),
        (QStringList { QStringLiteral("100002"), QStringLiteral("小王"),
            QStringLiteral("小王的角色"), QStringLiteral("已停用") }));
    EXPECT_EQ(core::loginOperators(db()), QStringList { QStringLiteral("admin") });

    buttonNamed(&screen, QStringLiteral("启用"))->click();
    EXPECT_EQ(screen.operatorGrid()->item(1, 3)->text(), QStringLiteral("正常"));
    EXPECT_EQ(core::loginOperators(db()),
        (QStringList { QStringLiteral("admin"), QStringLiteral("小王") }));
    EXPECT_TRUE(ui.informed.isEmpty());
}

TEST_F(OperatorScreenTest, WithoutAChosenRowOrOnOneselfTheScreenSaysWhy)
{
    ui::OperatorScreen screen(workspace());
    screen.operatorGrid()->setCurrentCell(-1, -1);
    buttonNamed(&screen, QStringLiteral("停用"))->click();
    screen.roleGrid()->setCurrentCell(-1, -1);
    buttonNamed(&screen, QStringLiteral("修改角色"))->click();
    screen.operatorGrid()->selectRow(0);
    buttonNamed(&screen, QStringLiteral("停用"))->click();
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("请先选择一个操作员！"), QStringLiteral("请先选择一个角色！"),
            QStringLiteral("不能停用当前登录的操作员！") }));
    EXPECT_EQ(screen.operatorGrid()->item(0, 3)->text(), QStringLiteral("正常"));
}

TEST_F(OperatorScreenTest, GridsRememberWidthsAndOrderPerOperator)
{
    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("qtcz"), QStringLiteral("000001") } });
    {
        ui::OperatorScreen screen(workspace());
        QHeaderView *header = screen.operatorGrid()->horizontalHeader();
        EXPECT_EQ(header->sectionSize(1), 160);
        header->resizeSection(1, 222);
        header->moveSection(3, 0);
    }
    {
        ui::OperatorScreen again(workspace());
        QHeaderView *header = again.operatorGrid()->horizontalHeader();
        EXPECT_EQ(header->sectionSize(1), 222);
        EXPECT_EQ(header->visualIndex(3), 0);
        EXPECT_EQ(again.roleGrid()->horizontalHeader()->visualIndex(1), 1);
    }
    switchOperator(QStringLiteral("小王"));
    ui::OperatorScreen his(workspace());
    EXPECT_EQ(his.operatorGrid()->horizontalHeader()->sectionSize(1), 160);
    EXPECT_EQ(his.operatorGrid()->horizontalHeader()->visualIndex(3), 3);
}
