#include "core/accountsets.h"
#include "core/connectionchoice.h"
#include "core/datafolder.h"
#include "core/password.h"
#include "shell/operators.h"
#include "tests/ui/uitest.h"
#include "ui/shell/connectiondialog.h"
#include "ui/shell/firstusedialog.h"
#include "ui/shell/logindialog.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>

using namespace medistock;
using medistock::test::buttonNamed;

TEST(FirstStart, CreatesTheMasterFileWithTheCompanyRowTyped)
{
    QTemporaryDir dir;
    const QString folder = QDir(dir.path()).filePath(QStringLiteral("数据"));
    core::ScriptedInteraction said;
    ASSERT_TRUE(ui::FirstUseDialog::isNeeded(folder));
    ui::FirstUseDialog dialog(folder, core::Clock(QDate(2025, 3, 14)), said);
    dialog.show();
    test::typeInto(dialog.nameField(), QStringLiteral("康宁大药房"));
    test::typeInto(dialog.shortNameField(), QStringLiteral("康宁"));
    test::typeInto(dialog.teleField(), QStringLiteral("0571-88886666"));
    buttonNamed(&dialog, QStringLiteral("建立(&C)"))->click();

    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(said.informed.isEmpty());
    EXPECT_FALSE(ui::FirstUseDialog::isNeeded(folder));
    auto master = core::Connection::openSqlite(QDir(folder).filePath(QStringLiteral("jxc.db")));
    EXPECT_EQ(
        master->firstText(QStringLiteral("select c_name||'/'||c_jc||'/'||c_tele from jxc_company")),
        QStringLiteral("康宁大药房/康宁/0571-88886666"));
    EXPECT_EQ(test::rowCount(*master, QStringLiteral("jxc_company")), 1);
    EXPECT_TRUE(master->tableExists(QStringLiteral("jxc_xtzt")));
    EXPECT_EQ(core::loginOperators(*master), QStringList { QStringLiteral("admin") });
}

TEST(FirstStart, LeavingCreatesNothing)
{
    QTemporaryDir dir;
    core::ScriptedInteraction said;
    ui::FirstUseDialog dialog(dir.path(), core::Clock(), said);
    dialog.show();
    dialog.nameField()->setText(QStringLiteral("康宁大药房"));
    buttonNamed(&dialog, QStringLiteral("退出(&X)"))->click();
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_TRUE(ui::FirstUseDialog::isNeeded(dir.path()));
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

class LoginScreen : public test::AccountSetTest
{
protected:
    std::unique_ptr<ui::LoginDialog> openDialog()
    {
        auto dialog = std::make_unique<ui::LoginDialog>(openAgain(), folder(), clock, said);
        dialog->show();
        return dialog;
    }

    QStringList items(const QComboBox *combo)
    {
        QStringList texts;
        for (int i = 0; i < combo->count(); ++i)
            texts.append(combo->itemText(i));
        return texts;
    }

    core::ScriptedInteraction said;
};

TEST_F(LoginScreen, AdminSeesTheHintAndEnterLogsInWithTheEmptyPassword)
{
    auto dialog = openDialog();
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Medistock ---- 操作员登录"));
    EXPECT_EQ(items(dialog->setChoice()), QStringList { QStringLiteral("主帐套") });
    EXPECT_EQ(items(dialog->operatorChoice()), QStringList { QStringLiteral("admin") });
    EXPECT_TRUE(dialog->hintLabel()->isVisibleTo(dialog.get()));
    EXPECT_EQ(dialog->hintLabel()->text(), QStringLiteral("初始密码为空"));

    QTest::keyClick(dialog->passwordField(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_TRUE(said.informed.isEmpty());
    const ui::OpenedAccountSet opened = dialog->take();
    ASSERT_TRUE(opened.session);
    EXPECT_EQ(opened.session->user().code, QStringLiteral("100001"));
    // The master file, or on the server the master's database.
    EXPECT_EQ(opened.set.fileName,
        onPostgres() ? db().postgresOptions().database : QStringLiteral("jxc.db"));
    EXPECT_EQ(opened.own, nullptr);
    EXPECT_EQ(db().firstText(QStringLiteral("select a_name||':'||log_note from jxc_log")),
        QStringLiteral("admin:登录系统"));
}

TEST_F(LoginScreen, AWrongPasswordShowsTheExactMessageClearsTheFieldAndKeepsTheDialog)
{
    db().exec(QStringLiteral("update jxc_admin set a_pwd=? where a_name='admin'"),
        { core::hashPassword(QStringLiteral("8888")) });
    auto dialog = openDialog();
    EXPECT_FALSE(dialog->hintLabel()->isVisibleTo(dialog.get()));
    test::typeInto(dialog->passwordField(), QStringLiteral("1234"));
    dialog->loginButton()->click();

    EXPECT_EQ(said.informed, QStringList { QStringLiteral("用户密码不正确，请重新输入！") });
    EXPECT_TRUE(dialog->passwordField()->text().isEmpty());
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_NE(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_log")), 0);

    test::typeInto(dialog->passwordField(), QStringLiteral("8888"));
    QTest::keyClick(dialog->passwordField(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(LoginScreen, EscLeavesWithoutLoggingIn)
{
    auto dialog = openDialog();
    QTest::keyClick(dialog->operatorChoice(), Qt::Key_Escape);
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_log")), 0);
}

TEST_F(LoginScreen, TheDefaultSetComesFirstAndEachSetOffersItsOwnUnlockedOperators)
{
    core::NewAccountSet branch;
    branch.name = QStringLiteral("城西店");
    branch.isDefault = true;
    ASSERT_TRUE(core::createAccountSet(db(), clock, said, branch).ok());
    branch.name = QStringLiteral("旧帐");
    branch.isDefault = false;
    branch.forbidden = true;
    ASSERT_TRUE(core::createAccountSet(db(), clock, said, branch).ok());
    db().exec(
        QStringLiteral("insert into jxc_admin (a_sn,a_name,r_sn,a_pwd,a_jy,a_jyt) values "
                       "('100002','小王','100001','',0,0),('100003','老李','100001','',1,1)"));

    auto dialog = openDialog();
    EXPECT_EQ(items(dialog->setChoice()),
        (QStringList { QStringLiteral("城西店"), QStringLiteral("主帐套") }));
    EXPECT_EQ(items(dialog->operatorChoice()), QStringList { QStringLiteral("admin") });
    dialog->setChoice()->setCurrentIndex(1);
    EXPECT_EQ(items(dialog->operatorChoice()),
        (QStringList { QStringLiteral("admin"), QStringLiteral("小王") }));

    dialog->setChoice()->setCurrentIndex(0);
    dialog->loginButton()->click();
    ASSERT_EQ(dialog->result(), QDialog::Accepted);
    const ui::OpenedAccountSet opened = dialog->take();
    ASSERT_NE(opened.own, nullptr);
    EXPECT_EQ(opened.set.name, QStringLiteral("城西店"));
    EXPECT_EQ(&opened.session->db(), opened.own.get());
    EXPECT_EQ(opened.own->firstText(QStringLiteral("select log_note from jxc_log")),
        QStringLiteral("登录系统"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_log")), 0);
}

TEST_F(LoginScreen, ASetWhoseFileIsGoneIsToldAndCannotBeLoggedInto)
{
    core::NewAccountSet branch;
    branch.name = QStringLiteral("城西店");
    branch.isDefault = true;
    ASSERT_TRUE(core::createAccountSet(db(), clock, said, branch).ok());
    const QString file = QDir(folder()).filePath(QStringLiteral("jxc_100001.db"));
    ASSERT_TRUE(QFile::remove(file));

    auto dialog = openDialog();
    EXPECT_EQ(said.informed, QStringList { QStringLiteral("帐套文件不存在：") + file });
    EXPECT_FALSE(dialog->loginButton()->isEnabled());
    EXPECT_EQ(dialog->operatorChoice()->count(), 0);
    EXPECT_FALSE(QFile::exists(file));
    dialog->setChoice()->setCurrentIndex(1);
    EXPECT_TRUE(dialog->loginButton()->isEnabled());
}

// The data folder remembers a server that cannot be reached: the login offers no set and no
// login until the connection is chosen again, and says where it tried.
TEST(LoginConnection, AnUnreachableServerOffersNoSetUntilTheConnectionIsChanged)
{
    QTemporaryDir dir;
    const core::Connection::PostgresOptions server { QStringLiteral("127.0.0.1"), 1,
        QStringLiteral("jxc"), QStringLiteral("mendian"), QString() };
    ASSERT_TRUE(core::writeConnectionChoice(dir.path(), { server }).ok());
    core::ScriptedInteraction said;
    ui::LoginDialog login(nullptr, dir.path(), core::Clock(QDate(2025, 3, 14)), said);
    EXPECT_EQ(login.connectionLabel()->text(), QStringLiteral("服务器 127.0.0.1:1 / jxc"));
    EXPECT_EQ(login.setChoice()->count(), 0);
    EXPECT_FALSE(login.loginButton()->isEnabled());
    EXPECT_TRUE(said.informed.isEmpty());
}

TEST(LoginConnection, TheConnectionDialogTakesTheServerTypedAndKeepsTheFilesOtherwise)
{
    ui::ConnectionDialog files({});
    EXPECT_TRUE(files.filesChoice()->isChecked());
    EXPECT_FALSE(files.hostField()->isEnabled());
    EXPECT_FALSE(files.choice().server);

    files.serverChoice()->setChecked(true);
    EXPECT_TRUE(files.hostField()->isEnabled());
    files.hostField()->clear();
    test::typeInto(files.hostField(), QStringLiteral("192.168.1.10"));
    files.databaseField()->clear();
    test::typeInto(files.databaseField(), QStringLiteral("chain"));
    const core::ConnectionChoice chosen = files.choice();
    ASSERT_TRUE(chosen.server);
    EXPECT_EQ(chosen.server->text(), QStringLiteral("host=192.168.1.10 port=5432 dbname=chain"));
}
