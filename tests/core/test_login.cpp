#include "core/accountsets.h"
#include "core/datafolder.h"
#include "core/login.h"
#include "core/password.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QFile>

using namespace medistock;
using namespace medistock::core;
using medistock::test::AccountSetTest;
using medistock::test::dumpTable;
using medistock::test::rowCount;

class LoginTest : public AccountSetTest
{
protected:
    Result<OperatorIdentity> loginAs(
        const QString &name, const QString &password, LoginMode mode = LoginMode::Desktop)
    {
        return login(db(), clock, ui, name, password, mode);
    }
    ScriptedInteraction ui;
};

TEST_F(LoginTest, AdminLogsInWithAnEmptyPasswordOnANewSet)
{
    EXPECT_EQ(loginOperators(db()), QStringList { QStringLiteral("admin") });
    EXPECT_TRUE(hasEmptyPassword(db(), QStringLiteral("admin")));
    const auto admin = loginAs(QStringLiteral("admin"), QString());
    ASSERT_TRUE(admin.ok());
    EXPECT_EQ(admin->name, QStringLiteral("admin"));
    EXPECT_EQ(admin->code, QStringLiteral("100001"));
    EXPECT_EQ(admin->role, QStringLiteral("100001"));
    EXPECT_EQ(db().firstText(QStringLiteral("select a_name||':'||log_note from jxc_log")),
        QStringLiteral("admin:登录系统"));
    EXPECT_TRUE(ui.informed.isEmpty());
}

TEST_F(LoginTest, AWrongPasswordIsToldAndWritesNothing)
{
    const auto wrong = loginAs(QStringLiteral("admin"), QStringLiteral("123"));
    EXPECT_EQ(wrong.outcome().kind(), Outcome::Kind::Refused);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("用户密码不正确，请重新输入！") });
    EXPECT_EQ(loginAs(QStringLiteral("nobody"), QString()).message(), wrongPasswordText());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_log")), 0);
}

TEST_F(LoginTest, PosLoginWritesNoLogRow)
{
    ASSERT_TRUE(loginAs(QStringLiteral("admin"), QString(), LoginMode::Pos).ok());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_log")), 0);
}

TEST_F(LoginTest, LockedOperatorsAreNotOfferedAndCannotLogIn)
{
    db().exec(QStringLiteral(
                  "insert into jxc_admin (a_sn,a_name,r_sn,a_pwd,a_jy,a_jyt) values (?,?,?,?,?,?)"),
        { QStringLiteral("100002"), QStringLiteral("小王"), QStringLiteral("100001"), QString(), 1,
            1 });
    db().exec(QStringLiteral(
                  "insert into jxc_admin (a_sn,a_name,r_sn,a_pwd,a_jy,a_jyt) values (?,?,?,?,?,?)"),
        { QStringLiteral("100003"), QStringLiteral("小李"), QStringLiteral("100001"), QString(), 0,
            0 });
    EXPECT_EQ(
        loginOperators(db()), QStringList({ QStringLiteral("admin"), QStringLiteral("小李") }));
    EXPECT_FALSE(loginAs(QStringLiteral("小王"), QString()).ok());
}

TEST_F(LoginTest, APlainLegacyPasswordIsAcceptedOnceAndReplacedByItsHash)
{
    // passwords are compared after cleaning, so the stored legacy text holds the full-width quote
    db().exec(QStringLiteral("update jxc_admin set a_pwd=? where a_name='admin'"),
        { QStringLiteral("ab‘c") });
    EXPECT_FALSE(hasEmptyPassword(db(), QStringLiteral("admin")));
    EXPECT_FALSE(loginAs(QStringLiteral("admin"), QStringLiteral("abc")).ok());
    ASSERT_TRUE(loginAs(QStringLiteral("admin"), QStringLiteral("ab'c")).ok());
    const QString stored
        = db().firstText(QStringLiteral("select a_pwd from jxc_admin where a_name='admin'"));
    EXPECT_TRUE(isPasswordHash(stored));
    EXPECT_NE(stored, QStringLiteral("ab‘c"));
    EXPECT_TRUE(loginAs(QStringLiteral("admin"), QStringLiteral("ab'c")).ok());
}

// Older books kept plain passwords and compared them with the typed one after text cleaning; such
// an operator gets in once that way and is then held to the hash of exactly what he typed.
TEST_F(LoginTest, ALegacyPlainPasswordComparesCleanedOnceThenTheTypedTextCounts)
{
    db().exec(QStringLiteral("update jxc_admin set a_pwd=? where a_name='admin'"),
        { QStringLiteral("Abc9") });
    ASSERT_TRUE(loginAs(QStringLiteral("admin"), QStringLiteral("Ab^c`9")).ok());
    EXPECT_TRUE(isPasswordHash(
        db().firstText(QStringLiteral("select a_pwd from jxc_admin where a_name='admin'"))));
    EXPECT_FALSE(loginAs(QStringLiteral("admin"), QStringLiteral("Abc9")).ok());
    EXPECT_TRUE(loginAs(QStringLiteral("admin"), QStringLiteral("Ab^c`9")).ok());
}

TEST_F(LoginTest, NoPasswordLetsInOnlyAnEmptyTypedOne)
{
    EXPECT_FALSE(loginAs(QStringLiteral("admin"), QStringLiteral("^^^")).ok());
    EXPECT_FALSE(loginAs(QStringLiteral("admin"), QStringLiteral("`")).ok());
    EXPECT_FALSE(loginAs(QStringLiteral("admin"), QStringLiteral(" ")).ok());
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_log")), 0);
    EXPECT_TRUE(loginAs(QStringLiteral("admin"), QString()).ok());
}

class AccountSetsTest : public AccountSetTest
{
protected:
    Result<AccountSet> create(const QString &name, bool isDefault = false)
    {
        NewAccountSet request;
        request.name = name;
        request.note = QStringLiteral("2025年(新店)");
        request.isDefault = isDefault;
        request.company = { QStringLiteral("康宁大药房城西店"), QStringLiteral("城西店"),
            QStringLiteral("88880000") };
        return createAccountSet(db(), clock, ui, request);
    }
    ScriptedInteraction ui;
};

TEST_F(AccountSetsTest, ANewSetIsRegisteredWithAFreshFileOfItsOwn)
{
    db().exec(QStringLiteral("insert into jxc_goods (g_sn,g_name) values (?,?)"),
        { QStringLiteral("100001"), QStringLiteral("板蓝根颗粒") });
    const auto first = create(QStringLiteral("城西店"), true);
    ASSERT_TRUE(first.ok()) << first.message().toStdString();
    EXPECT_EQ(first->code, QStringLiteral("100001"));
    EXPECT_EQ(first->fileName, QStringLiteral("jxc_100001.db"));
    EXPECT_EQ(first->note, QStringLiteral("2025年（新店）"));

    const auto second = create(QStringLiteral("城东店"), true);
    ASSERT_TRUE(second.ok());
    const QList<AccountSet> sets = listAccountSets(db());
    ASSERT_EQ(sets.size(), 2);
    EXPECT_FALSE(sets[0].isDefault);
    EXPECT_TRUE(sets[1].isDefault);
    EXPECT_EQ(db().firstText(QStringLiteral("select zt_dbpwd from jxc_xtzt where zt_sn='100002'")),
        QStringLiteral("mdk417"));

    const QString path = QDir(folder()).filePath(QStringLiteral("jxc_100002.db"));
    ASSERT_TRUE(QFile::exists(path));
    auto copy = Connection::openSqlite(path);
    // every table re-created: the master's goods are not in the new set, its seeds are
    EXPECT_EQ(dumpTable(*copy, QStringLiteral("jxc_goods")).size(), 1);
    EXPECT_EQ(
        copy->firstText(QStringLiteral("select c_name||'/'||c_jc||'/'||c_tele from jxc_company")),
        QStringLiteral("康宁大药房城西店/城西店/88880000"));
    EXPECT_EQ(
        copy->firstText(QStringLiteral("select a_name from jxc_admin")), QStringLiteral("admin"));
}

TEST_F(AccountSetsTest, AnEmptyNameIsRefusedAndNothingIsWritten)
{
    const auto refused = create(QStringLiteral("  "));
    EXPECT_EQ(refused.message(), QStringLiteral("帐套名称必须填写！"));
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("帐套名称必须填写！") });
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_xtzt")), 0);
    EXPECT_EQ(QDir(folder()).entryList({ QStringLiteral("jxc_1*") }).size(), 0);
}
