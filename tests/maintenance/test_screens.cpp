// "库存核对" and "备份/恢复数据库" driven as a clerk drives them.
#include "tests/support/accountset.h"
#include "tests/support/books.h"
#include "tests/ui/screenworkspace.h"
#include "ui/common/workspace.h"
#include "ui/maintenance/backupdialog.h"
#include "ui/maintenance/verifyscreen.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

namespace medistock::test {
namespace {

class MaintenanceScreens : public SessionTest
{
protected:
    void SetUp() override
    {
        SessionTest::SetUp();
        receipts = setUpReceipts(session(), 4);
        ui.setDefaultAnswer(true);
        for (const QString &receipt : receipts)
            ASSERT_TRUE(toggleReceipt(session(), receipt));
        ui.clear();
        layouts = test::layoutStore(folder());
        workspace = test::screenWorkspace(session(), db(), *layouts, folder());
    }

    QStringList gridTexts(const ui::QueryScreen &screen, int column)
    {
        QStringList texts;
        for (int row = 0; row < screen.model()->dataRows(); ++row)
            texts.append(screen.model()->text(row, column));
        return texts;
    }

    QStringList receipts;
    std::unique_ptr<ui::GridLayouts> layouts;
    std::unique_ptr<ui::Workspace> workspace;
};

TEST_F(MaintenanceScreens, VerifyListsWhatItFindsAndRepairMendsIt)
{
    db().exec(QStringLiteral("update jxc_kcsp set kc_sl=kc_sl+2 where g_sn='300001'"));
    ui::VerifyScreen screen(*workspace);
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    EXPECT_FALSE(screen.repairButton()->isEnabled());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
    // The finding first; the moving average's cents of the difference check after it.
    const QStringList kinds = gridTexts(screen, 0);
    ASSERT_FALSE(kinds.isEmpty());
    EXPECT_EQ(kinds[0], QStringLiteral("仓库库存"));
    EXPECT_TRUE(gridTexts(screen, 1)[0].endsWith(QStringLiteral("：库存 32，流水账合计 30")))
        << gridTexts(screen, 1)[0].toStdString();
    EXPECT_EQ(gridTexts(screen, 2).count(QStringLiteral("可修复")), 1);
    EXPECT_EQ(kinds.count(QStringLiteral("仓库库存")), 1);
    EXPECT_TRUE(screen.repairButton()->isEnabled());

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    ASSERT_EQ(ui.asked.size(), 1);
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.informed[0].startsWith(QStringLiteral("已修复：\r\n仓库库存（")));
    EXPECT_EQ(gridTexts(screen, 1).value(0), QStringLiteral("没有发现问题。"));
    EXPECT_EQ(gridTexts(screen, 2).count(QStringLiteral("可修复")), 0);
    EXPECT_FALSE(screen.repairButton()->isEnabled());
}

// A set file is backed up to "*.db" files, a set on the server to "*.dump" files.
TEST_F(MaintenanceScreens, BackupIsListedAndOnlyASoundFileRestores)
{
    const QString name = onPostgres() ? db().postgresOptions().database : QStringLiteral("jxc");
    const QString extension = onPostgres() ? QStringLiteral(".dump") : QStringLiteral(".db");
    ui::BackupDialog dialog(*workspace);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(QApplication::focusWidget(), dialog.backupFile());
    const QString proposed = dialog.backupFile()->text();
    EXPECT_TRUE(proposed.startsWith(
        QDir(folder()).filePath(QStringLiteral("backup/%1_20250314_").arg(name))))
        << proposed.toStdString();
    EXPECT_TRUE(proposed.endsWith(extension));
    EXPECT_TRUE(dialog.backupButton()->isEnabled());
    EXPECT_TRUE(dialog.restoreButton()->isEnabled());
    // A backup of the other kind of set is not offered.
    ASSERT_TRUE(QDir(folder()).mkpath(QStringLiteral("backup")));
    QFile stray(QDir(folder()).filePath(QStringLiteral("backup/stray")
        + (onPostgres() ? QStringLiteral(".db") : QStringLiteral(".dump"))));
    ASSERT_TRUE(stray.open(QIODevice::WriteOnly));
    stray.close();
    dialog.backUp();
    EXPECT_TRUE(QFile::exists(proposed));
    ASSERT_EQ(dialog.backups()->rowCount(), 1);
    dialog.backups()->setCurrentCell(0, 0);
    EXPECT_EQ(dialog.restoreFile()->text(), proposed);

    const QString truncated = QDir(folder()).filePath(QStringLiteral("short") + extension);
    ASSERT_TRUE(QFile::copy(proposed, truncated));
    QFile file(truncated);
    ASSERT_TRUE(file.resize(file.size() * 3 / 4));
    dialog.restoreFile()->setText(truncated);
    ui.clear();
    dialog.restore();
    EXPECT_FALSE(dialog.restored());
    ASSERT_EQ(ui.informed.size(), 1);
    EXPECT_TRUE(ui.informed[0].startsWith(QStringLiteral("这个备份文件不能用来恢复")));
    EXPECT_TRUE(dialog.isVisible());

    dialog.restoreFile()->setText(proposed);
    ui.clear();
    dialog.restore();
    EXPECT_TRUE(dialog.restored());
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(MaintenanceScreens, KeptCopiesAreSavedAsTheParameter)
{
    ui::BackupDialog dialog(*workspace);
    dialog.keptCopies()->setValue(7);
    dialog.saveKeptCopies();
    EXPECT_EQ(session().params().integer("cs_cs032"), 7);
    EXPECT_EQ(db().firstValue(QStringLiteral("select cs_cs032 from jxc_xtcs")).toInt(), 7);
}

} // namespace
} // namespace medistock::test
