#include "core/accountsets.h"
#include "core/datafolder.h"
#include "shell/accountsets.h"
#include "shell/company.h"
#include "shell/logbook.h"
#include "shell/operators.h"
#include "shell/rights.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QFile>

using namespace medistock;
using namespace medistock::shell;
using medistock::test::dumpDatabase;
using medistock::test::dumpTable;
using medistock::test::SessionTest;

namespace {

core::AccountSet registeredSet(const QString &name, const QString &fileName)
{
    return { QString(), name, QString(), fileName, false, false };
}

} // namespace

class AdministrationTest : public SessionTest
{
protected:
    // An operator "小王" whose role holds only the given qtcz string; logs him in.
    void loginWithOtherRights(const QString &qtcz)
    {
        RoleDraft draft;
        draft.name = QStringLiteral("店员");
        QList<bool> ticked;
        for (QChar c : qtcz)
            ticked.append(c == QLatin1Char('1'));
        draft.ticked.insert(QStringLiteral("qtcz"), ticked);
        const auto role = saveRole(session(), draft);
        ASSERT_TRUE(role.ok());
        ASSERT_TRUE(addOperator(session(), QStringLiteral("小王"), role.value()).ok());
        loginAs(QStringLiteral("小王"));
    }

    Result<core::AccountSet> createSet(const QString &name, bool isDefault, bool forbidden)
    {
        core::NewAccountSet request;
        request.name = name;
        request.isDefault = isDefault;
        request.forbidden = forbidden;
        return shell::createAccountSet(session(), db(), request);
    }
};

TEST_F(AdministrationTest, LoginOffersTheDefaultSetFirstThenTheMasterFileAndSkipsDisabledSets)
{
    const auto offered = [&] {
        QStringList names;
        for (const core::AccountSet &set : core::loginAccountSets(db()))
            names.append(set.name + QLatin1Char('=') + set.fileName);
        return names;
    };
    // A set's file on SQLite; on the server its database, named after the master's.
    const auto at = [&](const char *name, const char *file, const char *suffix) {
        return QString::fromUtf8(name) + QLatin1Char('=')
            + (db().dialect() == core::Dialect::Sqlite
                    ? QString::fromLatin1(file)
                    : db().postgresOptions().database + QString::fromLatin1(suffix));
    };
    ASSERT_TRUE(createSet(QStringLiteral("城西店"), false, false).ok());
    ASSERT_TRUE(createSet(QStringLiteral("旧帐"), false, true).ok());
    EXPECT_EQ(offered(),
        (QStringList { at("主帐套", "jxc.db", ""), at("城西店", "jxc_100001.db", "_100001") }));
    EXPECT_TRUE(core::loginAccountSets(db()).first().code.isEmpty());

    ASSERT_TRUE(createSet(QStringLiteral("城东店"), true, false).ok());
    EXPECT_EQ(offered(),
        (QStringList { at("城东店", "jxc_100003.db", "_100003"), at("主帐套", "jxc.db", ""),
            at("城西店", "jxc_100001.db", "_100001") }));
}

TEST_F(AdministrationTest, OpeningASetWhoseFileIsMissingIsRefusedAndCreatesNothing)
{
    const core::AccountSet stale = registeredSet(
        QStringLiteral("城南店"), core::accountSetFileName(QStringLiteral("100007")));
    const auto opened = core::openAccountSet(folder(), stale);
    const QString path = QDir(folder()).filePath(QStringLiteral("jxc_100007.db"));
    EXPECT_EQ(opened.message(), QStringLiteral("帐套文件不存在：") + path);
    EXPECT_FALSE(QFile::exists(path));

    ASSERT_TRUE(createSet(QStringLiteral("城西店"), false, false).ok());
    auto existing = core::openAccountSet(folder(), core::listAccountSets(db()).first());
    ASSERT_TRUE(existing.ok());
    EXPECT_EQ(existing.value()->firstText(QStringLiteral("select a_name from jxc_admin")),
        QStringLiteral("admin"));
}

TEST_F(AdministrationTest, CreatingASetNeedsItsRightAndARefusalLeavesNoTrace)
{
    loginWithOtherRights(QStringLiteral("000001"));
    const QString before = dumpDatabase(db());
    const auto refused = createSet(QStringLiteral("城西店"), false, false);
    EXPECT_EQ(refused.message(), QStringLiteral("您没有“帐套管理”的权限！"));
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("您没有“帐套管理”的权限！") });
    EXPECT_EQ(dumpDatabase(db()), before);
    EXPECT_EQ(QDir(folder()).entryList({ QStringLiteral("jxc_1*") }).size(), 0);
}

TEST_F(AdministrationTest, SavingTheCompanyCleansItsTextsReloadsAndLogs)
{
    const Company company { QStringLiteral(" 康宁大药房(总店) "), QStringLiteral("康宁"),
        QStringLiteral("0571-8888/6666"), QStringLiteral("王芳"),
        QStringLiteral("杭州市西湖路1号 'A座'") };
    ASSERT_TRUE(saveCompany(session(), company).ok());
    EXPECT_EQ(db().firstText(QStringLiteral("select c_name||'|'||c_jc||'|'||c_tele||'|'||c_lxr||'|'"
                                            "||c_address from jxc_company")),
        QStringLiteral("康宁大药房(总店)|康宁|0571-8888/6666|王芳|杭州市西湖路1号 ‘A座‘"));
    EXPECT_EQ(session().company().name, QStringLiteral("康宁大药房(总店)"));
    EXPECT_EQ(session().company().address, QStringLiteral("杭州市西湖路1号 ‘A座‘"));
    EXPECT_EQ(dumpTable(db(), QStringLiteral("jxc_company")).size(), 1);
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("修改公司信息"));
}

TEST_F(AdministrationTest, TheCompanyNeedsTheSettingsRight)
{
    loginWithOtherRights(QStringLiteral("11111111111011111111"));
    const QString before = dumpDatabase(db());
    Company other = session().company();
    other.name = QStringLiteral("别家药房");
    const Outcome refused = saveCompany(session(), other);
    EXPECT_EQ(refused.message(), QStringLiteral("您没有“系统设置”的权限！"));
    EXPECT_EQ(dumpDatabase(db()), before);
    EXPECT_EQ(session().company().name, QStringLiteral("康宁大药房"));
}

TEST_F(AdministrationTest, ClearingTheLogAsksFirstAndANoLeavesItAsItWas)
{
    session().log(QStringLiteral("审核采购进货单CJ25031410001，共2种商品"));
    const QString before = dumpDatabase(db());
    ui.answerNext(false);
    const Outcome declined = clearLog(session());
    EXPECT_EQ(declined.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(
        ui.asked, QStringList { QStringLiteral("清除日志后将无法恢复，确认清除全部操作日志吗？") });
    EXPECT_TRUE(ui.informed.isEmpty());
    EXPECT_EQ(dumpDatabase(db()), before);

    ui.answerNext(true);
    ASSERT_TRUE(clearLog(session()).ok());
    const auto entries = viewLog(session(), QDate(), QDate());
    ASSERT_TRUE(entries.ok());
    ASSERT_EQ(entries->size(), 1);
    EXPECT_EQ(entries->first().operatorName, QStringLiteral("admin"));
    EXPECT_EQ(entries->first().note, QStringLiteral("清除日志"));
}

TEST_F(AdministrationTest, ViewingAndClearingTheLogNeedTheirOwnRights)
{
    // "查看日志" is position 14, "清除日志" 15
    loginWithOtherRights(QStringLiteral("00000000000001"));
    EXPECT_TRUE(viewLog(session(), QDate(), QDate()).ok());
    const QString before = dumpDatabase(db());
    EXPECT_EQ(clearLog(session()).message(), QStringLiteral("您没有“清除日志”的权限！"));
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(dumpDatabase(db()), before);
}

TEST_F(AdministrationTest, TheLogViewerSelectsByDateRangeToTheEndOfTheLastDay)
{
    const QStringList times { QStringLiteral("2025-03-12 23:59:59"),
        QStringLiteral("2025-03-13 08:00:00"), QStringLiteral("2025-03-13 23:59:59"),
        QStringLiteral("2025-03-14 00:00:00") };
    db().exec(QStringLiteral("delete from jxc_log"));
    for (const QString &time : times)
        db().exec(QStringLiteral("insert into jxc_log (log_time,a_name,log_note) values (?,?,?)"),
            { time, QStringLiteral("admin"), time.left(10) });
    const auto entries = viewLog(session(), QDate(2025, 3, 13), QDate(2025, 3, 13));
    ASSERT_TRUE(entries.ok());
    QStringList seen;
    for (const core::LogEntry &entry : entries.value())
        seen.append(entry.time);
    EXPECT_EQ(seen, times.mid(1, 2));
}
