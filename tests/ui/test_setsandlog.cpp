#include "core/accountsets.h"
#include "shell/logbook.h"
#include "tests/ui/uitest.h"
#include "ui/shell/accountsetscreen.h"
#include "ui/shell/companydialog.h"
#include "ui/shell/logscreen.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using medistock::test::buttonNamed;
using medistock::test::dumpDatabase;

namespace {

QStringList column(const QTableWidget *grid, int index)
{
    QStringList texts;
    for (int row = 0; row < grid->rowCount(); ++row)
        texts.append(grid->item(row, index)->text());
    return texts;
}

} // namespace

class AccountSetScreenTest : public test::UiTest
{
};

TEST_F(AccountSetScreenTest, ANewSetIsCreatedListedAndAnnounced)
{
    ui::AccountSetScreen screen(workspace());
    screen.show();
    EXPECT_EQ(screen.grid()->rowCount(), 0);
    EXPECT_EQ(screen.companyField()->text(), QStringLiteral("康宁大药房"));
    test::typeInto(screen.nameField(), QStringLiteral("城西店"));
    test::typeInto(screen.noteField(), QStringLiteral("2025年(新店)"));
    screen.defaultBox()->setChecked(true);
    screen.createButton()->click();

    // The set's file, or on the server its database beside the master's.
    const QString file = onPostgres() ? db().postgresOptions().database + QStringLiteral("_100001")
                                      : QStringLiteral("jxc_100001.db");
    const QString where = onPostgres() ? QStringLiteral("数据库：") : QStringLiteral("数据文件：");
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("帐套“城西店”已建立，") + where + file });
    ASSERT_EQ(screen.grid()->rowCount(), 1);
    QStringList row;
    for (int i = 0; i < screen.grid()->columnCount(); ++i)
        row.append(screen.grid()->item(0, i)->text());
    EXPECT_EQ(row,
        (QStringList { QStringLiteral("100001"), QStringLiteral("城西店"), file,
            QStringLiteral("是"), QString(), QStringLiteral("2025年（新店）") }));
    EXPECT_TRUE(screen.nameField()->text().isEmpty());
    auto copy = core::openAccountSet(db(), core::listAccountSets(db()).first());
    ASSERT_TRUE(copy.ok()) << copy.message().toStdString();
    EXPECT_EQ(copy.value()->firstText(QStringLiteral("select c_name from jxc_company")),
        QStringLiteral("康宁大药房"));
}

TEST_F(AccountSetScreenTest, AnEmptyNameGivesItsMessageAndNoSet)
{
    ui::AccountSetScreen screen(workspace());
    screen.createButton()->click();
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("帐套名称必须填写！") });
    EXPECT_EQ(screen.grid()->rowCount(), 0);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_xtzt")), 0);
    EXPECT_EQ(QDir(folder()).entryList({ QStringLiteral("jxc_1*") }).size(), 0);
}

class LogScreenTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        db().exec(QStringLiteral("delete from jxc_log"));
        for (const char *time : { "2025-02-28 18:00:00", "2025-03-01 08:30:00",
                 "2025-03-13 09:15:00", "2025-03-14 23:59:59" })
            db().exec(QStringLiteral("insert into jxc_log (log_time,a_name,log_note) values "
                                     "(?,'admin',?)"),
                { QString::fromLatin1(time), QStringLiteral("登录系统") });
    }
};

TEST_F(LogScreenTest, OpensOnThisMonthAndQueriesTheChosenRange)
{
    ui::LogScreen screen(workspace());
    EXPECT_EQ(column(screen.grid(), 0),
        (QStringList { QStringLiteral("2025-03-01 08:30:00"), QStringLiteral("2025-03-13 09:15:00"),
            QStringLiteral("2025-03-14 23:59:59") }));
    screen.fromField()->setDate(QDate(2025, 2, 1));
    screen.toField()->setDate(QDate(2025, 3, 1));
    buttonNamed(&screen, QStringLiteral("查询(&Q)"))->click();
    EXPECT_EQ(column(screen.grid(), 0),
        (QStringList {
            QStringLiteral("2025-02-28 18:00:00"), QStringLiteral("2025-03-01 08:30:00") }));
    EXPECT_EQ(column(screen.grid(), 2),
        (QStringList { QStringLiteral("登录系统"), QStringLiteral("登录系统") }));
}

TEST_F(LogScreenTest, ClearingAsksAndANoKeepsEveryRow)
{
    ui::LogScreen screen(workspace());
    const QString before = dumpDatabase(db());
    ui.answerNext(false);
    screen.clearButton()->click();
    EXPECT_EQ(ui.asked, QStringList { shell::clearLogQuestion() });
    EXPECT_EQ(dumpDatabase(db()), before);
    EXPECT_EQ(screen.grid()->rowCount(), 3);

    ui.answerNext(true);
    screen.clearButton()->click();
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("操作日志已清除！") });
    EXPECT_EQ(column(screen.grid(), 2), QStringList { QStringLiteral("清除日志") });
}

TEST_F(LogScreenTest, TheClearButtonNeedsItsRight)
{
    addOperatorWithRights(
        QStringLiteral("小王"), { { QStringLiteral("qtcz"), QStringLiteral("00000000000001") } });
    switchOperator(QStringLiteral("小王"));
    ui::LogScreen screen(workspace());
    EXPECT_FALSE(screen.clearButton()->isEnabled());
    // the three rows of this month and the two that saving his role and adding him wrote
    EXPECT_EQ(screen.grid()->rowCount(), 5);
}

TEST_F(LogScreenTest, TheCompanyDialogSavesTheRowAndTheSessionSeesIt)
{
    ui::CompanyDialog dialog(session());
    dialog.show();
    EXPECT_EQ(dialog.field("c_name")->text(), QStringLiteral("康宁大药房"));
    EXPECT_EQ(dialog.field("c_tele")->text(), QStringLiteral("0571-88886666"));
    dialog.field("c_lxr")->setText(QStringLiteral("王芳"));
    dialog.field("c_address")->setText(QStringLiteral("杭州市西湖区文三路1号"));
    dialog.save();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(session().company().contact, QStringLiteral("王芳"));
    EXPECT_EQ(db().firstText(QStringLiteral("select c_address from jxc_company")),
        QStringLiteral("杭州市西湖区文三路1号"));
}
