#include "core/login.h"
#include "core/password.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "shell/settings.h"
#include "tests/support/accountset.h"

using namespace medistock;
using namespace medistock::shell;
using medistock::test::SessionTest;

class RightsTest : public SessionTest
{
protected:
    // A role with the given strings and an operator "小王" in it; logs him in.
    void loginWithRole(const QHash<QString, QString> &strings)
    {
        RoleDraft draft;
        draft.name = QStringLiteral("收银员");
        for (auto it = strings.begin(); it != strings.end(); ++it) {
            QList<bool> ticked;
            for (QChar c : it.value())
                ticked.append(c == QLatin1Char('1'));
            draft.ticked.insert(it.key(), ticked);
        }
        const auto role = saveRole(session(), draft);
        ASSERT_TRUE(role.ok()) << role.message().toStdString();
        ASSERT_TRUE(addOperator(session(), QStringLiteral("小王"), role.value()).ok());
        loginAs(QStringLiteral("小王"));
    }
};

TEST_F(RightsTest, TheAdministratorRolePassesEveryTest)
{
    for (const RightArea &area : rightAreas())
        for (int position = 1; position <= int(area.operations.size()) + 50; ++position)
            ASSERT_TRUE(hasRight(session(), QString::fromLatin1(area.column), position));
    EXPECT_TRUE(hasRight(session(), QStringLiteral("qtcz"), 500));
    EXPECT_TRUE(operatorHasRight(db(), QStringLiteral("qtcz"), 500, QStringLiteral("admin")));
    EXPECT_FALSE(hasRight(session(), QStringLiteral("nosuch"), 1));
}

TEST_F(RightsTest, TheAreasListTheirOperationsInOrder)
{
    ASSERT_EQ(rightAreas().size(), 8u);
    int total = 0;
    for (const RightArea &area : rightAreas())
        total += int(area.operations.size());
    EXPECT_EQ(total, 139);
    EXPECT_STREQ(rightAreas()[0].label, "采购管理");
    EXPECT_STREQ(rightAreas()[7].operations[11], "系统设置");
    EXPECT_STREQ(findRightArea(QStringLiteral("xsgl"))->operations[10], "商品销售取消审核");
}

TEST_F(RightsTest, ARoleOfZerosFailsEveryTest)
{
    loginWithRole({});
    EXPECT_EQ(db().firstText(
                  QStringLiteral("select cggl||'|'||qtcz from jxc_role where r_name='收银员'")),
        QString(18, QLatin1Char('0')) + QLatin1Char('|') + QString(21, QLatin1Char('0')));
    for (const RightArea &area : rightAreas())
        for (int position = 1; position <= 70; ++position)
            ASSERT_FALSE(hasRight(session(), QString::fromLatin1(area.column), position));
    EXPECT_EQ(saveParameters(session(), { { QStringLiteral("cs_kc"), 0 } }).message(),
        QStringLiteral("您没有“系统设置”的权限！"));
}

TEST_F(RightsTest, ACharacterGrantsItsOperationOnly)
{
    loginWithRole({ { QStringLiteral("xsgl"), QStringLiteral("1000001") } });
    EXPECT_TRUE(hasRight(session(), QStringLiteral("xsgl"), 1));
    EXPECT_FALSE(hasRight(session(), QStringLiteral("xsgl"), 2));
    EXPECT_TRUE(hasRight(session(), QStringLiteral("xsgl"), 7));
    EXPECT_FALSE(hasRight(session(), QStringLiteral("xsgl"), 21));
    EXPECT_TRUE(operatorHasRight(db(), QStringLiteral("xsgl"), 7, QStringLiteral("小王")));
    EXPECT_FALSE(operatorHasRight(db(), QStringLiteral("xsgl"), 8, QStringLiteral("小王")));
}

TEST_F(RightsTest, WithOperatorsBoundToWarehousesOneInNoWarehouseHasNoRight)
{
    loginWithRole({ { QStringLiteral("xsgl"), QStringLiteral("1") } });
    setParameter(QStringLiteral("cs_cgyh"), 1);
    EXPECT_FALSE(hasRight(session(), QStringLiteral("xsgl"), 1));
    // the warehouse-free test of a named operator is unaffected
    EXPECT_TRUE(operatorHasRight(db(), QStringLiteral("xsgl"), 1, QStringLiteral("小王")));
    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=?,ck_aname=?"),
        { QStringLiteral("100001,100002,"), QStringLiteral("admin,小王,") });
    EXPECT_TRUE(hasRight(session(), QStringLiteral("xsgl"), 1));

    db().exec(QStringLiteral("update jxc_ckxx set ck_asn=?"), { QString() });
    loginAs(QStringLiteral("admin"));
    setParameter(QStringLiteral("cs_cgyh"), 1);
    EXPECT_TRUE(hasRight(session(), QStringLiteral("xsgl"), 1));
}

TEST_F(RightsTest, RoleNamesAreRequiredAndUnique)
{
    RoleDraft draft;
    EXPECT_EQ(saveRole(session(), draft).message(), QStringLiteral("角色名称必须填写！"));
    draft.name = QStringLiteral("系统管理员");
    EXPECT_EQ(saveRole(session(), draft).message(),
        QStringLiteral("角色名称：系统管理员 已经存在，请重新输入！"));
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_role")), 1);

    draft.name = QStringLiteral("采购员");
    draft.ticked.insert(QStringLiteral("cggl"), { true, false, true });
    const auto code = saveRole(session(), draft);
    ASSERT_TRUE(code.ok());
    EXPECT_EQ(code.value(), QStringLiteral("100002"));
    // changing the role keeps its code; its own name does not count as taken
    draft.id = db().firstValue(QStringLiteral("select id from jxc_role where r_sn='100002'"))
                   .toLongLong();
    draft.ticked.insert(QStringLiteral("cggl"), { false, true });
    EXPECT_EQ(saveRole(session(), draft).value(), QStringLiteral("100002"));
    EXPECT_EQ(db().firstText(QStringLiteral("select cggl from jxc_role where r_sn='100002'")),
        QStringLiteral("010000000000000000"));
}

TEST_F(RightsTest, OperatorsAndTheirPasswords)
{
    const auto code
        = addOperator(session(), QStringLiteral("小李"), QString(), QStringLiteral("s3cret"));
    ASSERT_TRUE(code.ok());
    EXPECT_EQ(code.value(), QStringLiteral("100002"));
    const QString stored
        = db().firstText(QStringLiteral("select a_pwd from jxc_admin where a_name='小李'"));
    EXPECT_NE(stored, QStringLiteral("s3cret"));
    EXPECT_TRUE(core::isPasswordHash(stored));
    EXPECT_FALSE(core::hasEmptyPassword(db(), QStringLiteral("小李")));
    EXPECT_EQ(addOperator(session(), QStringLiteral("小李"), QString()).message(),
        QStringLiteral("操作员：小李 已经存在，请重新输入！"));
    EXPECT_EQ(addOperator(session(), QStringLiteral("小赵"), QStringLiteral("999999")).message(),
        QStringLiteral("没有这个角色：999999"));

    ASSERT_TRUE(changePassword(session(), QStringLiteral("小李"), QStringLiteral("n3w")).ok());
    EXPECT_NE(db().firstText(QStringLiteral("select a_pwd from jxc_admin where a_name='小李'")),
        QStringLiteral("n3w"));
    loginAs(QStringLiteral("小李"), QStringLiteral("n3w"));
    loginAs(QStringLiteral("admin"));

    ASSERT_TRUE(setOperatorLocked(session(), QStringLiteral("小李"), true).ok());
    EXPECT_EQ(core::loginOperators(db()), QStringList { QStringLiteral("admin") });
    EXPECT_EQ(setOperatorLocked(session(), QStringLiteral("admin"), true).message(),
        QStringLiteral("不能停用当前登录的操作员！"));
    ASSERT_TRUE(setOperatorLocked(session(), QStringLiteral("小李"), false).ok());
    EXPECT_EQ(core::loginOperators(db()).size(), 2);
}

// A password is hashed whole: characters that text cleaning would drop or widen still count, so a
// password of such characters is never stored as "no password".
class PasswordsTakenWhole
    : public RightsTest,
      public ::testing::WithParamInterface<std::pair<const char *, const char *>>
{
};

TEST_P(PasswordsTakenWhole, OnlyTheTypedTextLogsIn)
{
    const QString typed = QString::fromUtf8(GetParam().first);
    const QString cleaned = QString::fromUtf8(GetParam().second);
    ASSERT_TRUE(addOperator(session(), QStringLiteral("小李"), QString()).ok());
    ASSERT_TRUE(changePassword(session(), QStringLiteral("小李"), typed).ok());
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_FALSE(core::hasEmptyPassword(db(), QStringLiteral("小李")));
    const auto login = [&](const QString &password) {
        return core::login(
            db(), clock, ui, QStringLiteral("小李"), password, core::LoginMode::Script)
            .ok();
    };
    EXPECT_FALSE(login(cleaned));
    EXPECT_FALSE(login(QString()));
    EXPECT_TRUE(login(typed));
}

INSTANTIATE_TEST_SUITE_P(RightsTest, PasswordsTakenWhole,
    ::testing::Values(std::pair { "^^^^^^^^", "" }, std::pair { "Ab^c`9", "Abc9" },
        std::pair { "p'w-1", "p‘w－1" }, std::pair { " 12 ", "12" }));

TEST_F(RightsTest, AnEmptyPasswordIsSetOnlyWhenConfirmed)
{
    ASSERT_TRUE(
        addOperator(session(), QStringLiteral("小李"), QString(), QStringLiteral("s3cret")).ok());
    const QString before = test::dumpDatabase(db());
    ui.answerNext(false);
    const Outcome declined = changePassword(session(), QStringLiteral("小李"), QString());
    EXPECT_EQ(declined.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(ui.asked,
        QStringList {
            QStringLiteral("确定要清除操作员：小李 的密码吗？清除后不输入密码即可登录。") });
    EXPECT_EQ(test::dumpDatabase(db()), before);

    ui.answerNext(true);
    ASSERT_TRUE(changePassword(session(), QStringLiteral("小李"), QString()).ok());
    EXPECT_TRUE(core::hasEmptyPassword(db(), QStringLiteral("小李")));
    loginAs(QStringLiteral("小李"));
}
