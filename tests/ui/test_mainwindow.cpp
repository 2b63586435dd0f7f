#include "shell/logbook.h"
#include "shell/rights.h"
#include "tests/ui/uitest.h"
#include "ui/common/screenregistry.h"
#include "ui/documents/documentscreen.h"
#include "ui/purchasing/registration.h"
#include "ui/shell/mainwindow.h"
#include "ui/shell/registration.h"
#include "ui/stock/registration.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <ostream>

using namespace medistock;

namespace {

struct RegistryCase
{
    const char *area;
    const char *operation;
    int position; // 0: refused
};

void PrintTo(const RegistryCase &c, std::ostream *os)
{
    *os << c.area << '/' << c.operation;
}

class RegistryPositions : public ::testing::TestWithParam<RegistryCase>
{
};

} // namespace

TEST_P(RegistryPositions, AnOperationIsRegisteredAtThePositionOfItsLabel)
{
    const RegistryCase &c = GetParam();
    ui::ScreenRegistry registry;
    const bool added = registry.addTab(QString::fromLatin1(c.area), QString::fromUtf8(c.operation),
        [](ui::Workspace &) { return new QWidget; });
    EXPECT_EQ(added, c.position > 0);
    for (int position = 1; position <= 22; ++position)
        EXPECT_EQ(
            registry.find(QString::fromLatin1(c.area), position) != nullptr, position == c.position)
            << position;
}

INSTANTIATE_TEST_SUITE_P(Registry, RegistryPositions,
    ::testing::Values(RegistryCase { "cggl", "采购进货", 1 },
        RegistryCase { "xsgl", "允许POS销售", 20 }, RegistryCase { "qtcz", "系统设置", 12 },
        RegistryCase { "qtcz", "允许设置商品提成", 21 }, RegistryCase { "tjgl", "库存变动查询", 7 },
        RegistryCase { "rcgl", "库存变动查询", 10 }, RegistryCase { "gspgl", "员工培训记录", 13 },
        RegistryCase { "cggl", "系统设置", 0 }, RegistryCase { "qtcz", "系统", 0 },
        RegistryCase { "nosuch", "系统设置", 0 }));

TEST(Registry, AnOperationHasOneScreenAndAnEmptyFactoryIsRefused)
{
    ui::ScreenRegistry registry;
    EXPECT_FALSE(registry.addTab(QStringLiteral("qtcz"), QStringLiteral("系统设置"), {}));
    EXPECT_TRUE(registry.addAction(
        QStringLiteral("qtcz"), QStringLiteral("清除日志"), [](ui::Workspace &, QWidget *) {}));
    EXPECT_FALSE(registry.addTab(QStringLiteral("qtcz"), QStringLiteral("清除日志"),
        [](ui::Workspace &) { return new QWidget; }));
    const ui::ScreenRegistry::Entry *entry = registry.find(QStringLiteral("qtcz"), 15);
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(bool(entry->action));
    EXPECT_FALSE(bool(entry->tab));
}

class MainWindowTest : public test::UiTest
{
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        ui::registerShellScreens(registry);
    }
    std::unique_ptr<ui::MainWindow> openWindow()
    {
        auto window = std::make_unique<ui::MainWindow>(workspace(), registry);
        window->show();
        return window;
    }

    ui::ScreenRegistry registry;
};

TEST_F(MainWindowTest, TheEightAreasOfferTheirOperationsInOrder)
{
    auto window = openWindow();
    for (const shell::RightArea &area : shell::rightAreas()) {
        const QString column = QString::fromLatin1(area.column);
        QToolButton *button = window->areaButton(column);
        ASSERT_NE(button, nullptr) << area.column;
        EXPECT_EQ(button->text(), QString::fromUtf8(area.label));
        EXPECT_FALSE(button->icon().isNull());
        const QList<QAction *> actions = button->menu()->actions();
        ASSERT_EQ(actions.size(), qsizetype(area.operations.size()));
        for (std::size_t i = 0; i < area.operations.size(); ++i)
            EXPECT_EQ(actions[i]->text(), QString::fromUtf8(area.operations[i]));
    }
    EXPECT_EQ(window->areaButton(QStringLiteral("gspgl"))->text(), QStringLiteral("GSP管理"));
}

TEST_F(MainWindowTest, TheAdministratorHasEveryItemThatHasAScreenAndTheRestSayWhy)
{
    auto window = openWindow();
    QStringList enabled;
    for (const shell::RightArea &area : shell::rightAreas()) {
        const QString column = QString::fromLatin1(area.column);
        for (int position = 1; position <= int(area.operations.size()); ++position) {
            const QAction *action = window->operationAction(column, position);
            ASSERT_NE(action, nullptr);
            if (action->isEnabled())
                enabled.append(action->text());
            else
                EXPECT_EQ(action->toolTip(), QStringLiteral("此功能尚未提供"))
                    << column.toStdString();
            EXPECT_EQ(action->isEnabled(), registry.find(column, position) != nullptr);
        }
    }
    EXPECT_EQ(enabled,
        (QStringList { QStringLiteral("操作员设置"), QStringLiteral("系统设置"),
            QStringLiteral("查看日志"), QStringLiteral("清除日志"), QStringLiteral("帐套管理") }));
}

TEST_F(MainWindowTest, ARoleWithoutTheSettingsRightLeavesThatItemDisabled)
{
    addOperatorWithRights(QStringLiteral("小王"),
        { { QStringLiteral("qtcz"), QStringLiteral("111111111110111111111") } });
    switchOperator(QStringLiteral("小王"));
    auto window = openWindow();
    const QAction *settings = window->operationAction(QStringLiteral("qtcz"), 12);
    EXPECT_FALSE(settings->isEnabled());
    EXPECT_EQ(settings->toolTip(), QStringLiteral("您没有“系统设置”的权限！"));
    EXPECT_TRUE(window->operationAction(QStringLiteral("qtcz"), 6)->isEnabled());
    EXPECT_TRUE(window->operationAction(QStringLiteral("qtcz"), 20)->isEnabled());
    // the company row is saved under the same right
    const QList<QAction *> system = window->menuBar()->actions().first()->menu()->actions();
    EXPECT_EQ(system.first()->text(), QStringLiteral("公司信息(&C)..."));
    EXPECT_FALSE(system.first()->isEnabled());

    window->openOperation(QStringLiteral("qtcz"), 12);
    EXPECT_EQ(window->tabs()->count(), 0);
}

TEST_F(MainWindowTest, AnOperationOpensOneTabAndEscClosesIt)
{
    auto window = openWindow();
    window->operationAction(QStringLiteral("qtcz"), 12)->trigger();
    window->operationAction(QStringLiteral("qtcz"), 6)->trigger();
    window->operationAction(QStringLiteral("qtcz"), 12)->trigger();
    ASSERT_EQ(window->tabs()->count(), 2);
    EXPECT_EQ(window->tabs()->tabText(0), QStringLiteral("系统设置"));
    EXPECT_EQ(window->tabs()->tabText(1), QStringLiteral("操作员设置"));
    EXPECT_EQ(window->tabs()->currentIndex(), 0);

    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window->tabs()->currentWidget(), Qt::Key_Escape);
    ASSERT_EQ(window->tabs()->count(), 1);
    EXPECT_EQ(window->tabs()->tabText(0), QStringLiteral("操作员设置"));
}

TEST_F(MainWindowTest, ClearingTheLogFromTheMenuAsksAndOpensNoTab)
{
    auto window = openWindow();
    ui.answerNext(true);
    window->operationAction(QStringLiteral("qtcz"), 15)->trigger();
    EXPECT_EQ(window->tabs()->count(), 0);
    EXPECT_EQ(ui.asked, QStringList { shell::clearLogQuestion() });
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("操作日志已清除！") });
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_log"), QStringLiteral("log_note")),
        QStringList { QStringLiteral("清除日志") });
}

TEST_F(MainWindowTest, TheStatusBarShowsCompanySetOperatorAndTheWeekday)
{
    auto window = openWindow();
    EXPECT_EQ(window->statusTexts(),
        (QStringList { QStringLiteral("公司：康宁大药房"), QStringLiteral("帐套：主帐套"),
            QStringLiteral("操作员：admin"), QStringLiteral("2025-03-14 星期五") }));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Medistock - 康宁大药房"));
}

// The purchasing and stock screens in the menus, a screen opening another through the
// workspace, and a tab holding unsaved work that refuses to close.
TEST_F(MainWindowTest, DocumentScreensOpenFromTheMenusAndKeepUnsavedWork)
{
    ui::registerPurchasingScreens(registry);
    ui::registerStockScreens(registry);
    auto window = openWindow();
    QStringList enabled;
    for (const auto &[area, position] : { std::pair { "cggl", 1 }, { "cggl", 2 }, { "cggl", 4 },
             { "cggl", 5 }, { "xsgl", 5 }, { "kcgl", 6 }, { "qtcz", 16 } })
        if (window->operationAction(QString::fromLatin1(area), position)->isEnabled())
            enabled.append(window->operationAction(QString::fromLatin1(area), position)->text());
    EXPECT_EQ(enabled,
        (QStringList { QStringLiteral("采购进货"), QStringLiteral("采购退货"),
            QStringLiteral("进退货查询"), QStringLiteral("当前库存查询"),
            QStringLiteral("当前库存查询"), QStringLiteral("库存变动情况"),
            QStringLiteral("商品期初建账") }));

    QWidget *receipt = workspace().openScreen(QStringLiteral("cggl"), 1);
    auto *screen = qobject_cast<ui::DocumentScreen *>(receipt);
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(window->tabs()->tabText(window->tabs()->currentIndex()), QStringLiteral("采购进货"));
    screen->noteField()->setText(QStringLiteral("未保存"));
    emit screen->noteField()->textEdited(QStringLiteral("未保存"));
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    ui.answerNext(false);
    QTest::keyClick(window->tabs()->currentWidget(), Qt::Key_Escape);
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("当前单据已修改但尚未保存，确定要放弃这些修改吗？") });
    EXPECT_EQ(window->tabs()->count(), 1);
    ui.answerNext(true);
    QTest::keyClick(window->tabs()->currentWidget(), Qt::Key_Escape);
    EXPECT_EQ(window->tabs()->count(), 0);
    EXPECT_EQ(workspace().openScreen(QStringLiteral("kcgl"), 7), nullptr);
    window.reset();
    EXPECT_FALSE(bool(workspace().openScreen));
}
