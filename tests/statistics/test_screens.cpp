#include "core/spreadsheet.h"
#include "statistics/jxc.h"
#include "statistics/texts.h"
#include "tests/statistics/statisticstest.h"
#include "tests/support/documentrows.h"
#include "tests/ui/screenworkspace.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/screenregistry.h"
#include "ui/common/workspace.h"
#include "ui/statistics/documentdialog.h"
#include "ui/statistics/filterbar.h"
#include "ui/statistics/jxcscreen.h"
#include "ui/statistics/movementscreen.h"
#include "ui/statistics/registration.h"
#include "ui/statistics/screens.h"
#include "ui/statistics/texts.h"

#include <QBrush>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTableWidget>
#include <QTest>

using namespace medistock;
using namespace medistock::ui::stats;

namespace {

// The books of the summary test on screens: 100 boxes at 10 and 50 bags at 4 bought in January,
// 30 boxes and 10 bags sold; 30 boxes at 12 bought in February and 5 boxes back from a customer.
class StatisticsScreens : public test::StatisticsTest
{
protected:
    void SetUp() override
    {
        StatisticsTest::SetUp();
        januaryBooks();
        receipt("2025-02-03", { { "200001", "30", "12" } });
        salesReturn("2025-02-10", { { "200001", "5", "15" } });
        m_layouts = test::layoutStore(folder());
        m_workspace = test::screenWorkspace(session(), db(), *m_layouts, folder());
        ui.clear();
    }

    void TearDown() override
    {
        m_workspace.reset();
        m_layouts.reset();
        StatisticsTest::TearDown();
    }

    ui::Workspace &workspace() { return *m_workspace; }

    // Logs another operator in and gives the workspace his session.
    void switchOperator(const QString &name)
    {
        loginAs(name);
        m_workspace = test::screenWorkspace(session(), db(), *m_layouts, folder());
    }

    static void setRange(ReportScreen *screen, const QDate &from, const QDate &to)
    {
        screen->filters()->from()->setDate(from);
        screen->filters()->to()->setDate(to);
    }

    // Presses the key on the widget of the shown, active screen and waits for the run it starts.
    static bool runBy(ReportScreen *screen, QWidget *target, Qt::Key key)
    {
        screen->show();
        screen->activateWindow();
        if (!QTest::qWaitForWindowActive(screen))
            return false;
        target->setFocus();
        QSignalSpy finished(screen, &ReportScreen::finished);
        QTest::keyClick(target, key);
        return finished.wait(20000) && finished.first().first().toBool();
    }

    static QStringList gridRows(const ReportScreen *screen)
    {
        QStringList rows;
        const ReportModel *model = screen->model();
        for (int r = 0; r < model->rowCount(); ++r) {
            QStringList cells;
            for (int c = 0; c < model->columnCount(); ++c)
                if (!screen->grid()->isColumnHidden(c))
                    cells.append(model->text(r, c));
            rows.append(cells.join(' '));
        }
        return rows;
    }

private:
    std::unique_ptr<ui::GridLayouts> m_layouts;
    std::unique_ptr<ui::Workspace> m_workspace;
};

} // namespace

TEST_F(StatisticsScreens, TheSummaryRunsOnF5AndItsMovementViewOpensOnEnter)
{
    JxcScreen screen(workspace());
    setRange(&screen, QDate(2025, 2, 1), QDate(2025, 3, 14));
    ASSERT_TRUE(runBy(&screen, screen.filters()->from(), Qt::Key_F5));
    EXPECT_EQ(gridRows(&screen),
        (QStringList {
            "200001 阿莫西林胶囊 0.25g*24 盒 西药 70.00 700.00 35.00 413.00 0.00 0.00 105.00 "
            "1113.00 0.00",
            "200002 板蓝根颗粒  袋 中成药 40.00 160.00 0.00 0.00 0.00 0.00 40.00 160.00 0.00",
            "合计     110.00 860.00 35.00 413.00 0.00 0.00 145.00 1273.00 0.00" }));
    EXPECT_EQ(screen.countLabel()->text(), "记录数：2");
    EXPECT_TRUE(ui.informed.isEmpty());

    screen.grid()->setFocus();
    screen.grid()->selectRow(0);
    QTest::keyClick(screen.grid(), Qt::Key_Return);
    auto *dialog = screen.findChild<MovementDialog *>();
    ASSERT_NE(dialog, nullptr);
    ReportScreen *movements = dialog->screen();
    if (movements->running()) {
        QSignalSpy finished(movements, &ReportScreen::finished);
        ASSERT_TRUE(finished.wait(20000));
    }
    EXPECT_EQ(dialog->windowTitle(), "商品进销存明细 - 200001 阿莫西林胶囊");
    EXPECT_EQ(gridRows(movements),
        (QStringList { "2025-02-03 CJ25020310001 采购进货 主仓库 华东医药  12.00 30.00 360.00    "
                       "100.00 1060.00",
            "2025-02-10 XT25021010001 销售退货 主仓库 华康药店  10.60 5.00 53.00    105.00 "
            "1113.00",
            "合计       35.00 413.00  0.00 0.00  " }));

    // Enter on a movement opens the document behind it, read only.
    movements->grid()->setFocus();
    movements->grid()->selectRow(0);
    QTest::keyClick(movements->grid(), Qt::Key_Return);
    auto *document = movements->findChild<DocumentDialog *>();
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->windowTitle().endsWith(" CJ25020310001"));
    ASSERT_EQ(document->lines()->rowCount(), 1);
    QStringList line;
    for (int column = 0; column < 6; ++column)
        line.append(document->lines()->item(0, column)->text());
    EXPECT_EQ(line, (QStringList { "200001", "阿莫西林胶囊", "盒", "30.00", "12.00", "360.00" }));
}

TEST_F(StatisticsScreens, TheDifferenceCheckNarrowsTheGridAndTellsTheGoods)
{
    db().exec("update jxc_goodslist set gl_kczje=gl_kczje+5 where id=(select max(id) from "
              "jxc_goodslist where g_sn='200002')");
    JxcScreen screen(workspace());
    setRange(&screen, QDate(2025, 1, 1), QDate(2025, 3, 14));
    QSignalSpy finished(&screen, &ReportScreen::finished);
    screen.checkButton()->click(); // nothing built yet: the check runs the summary first
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_EQ(ui.informed, QStringList { "200002 板蓝根颗粒，差额：-5" });
    EXPECT_EQ(gridRows(&screen).size(), 2); // the goods and the totals
    EXPECT_EQ(screen.countLabel()->text(), "记录数：1");
}

TEST_F(StatisticsScreens, TheCostSyncAsksRewritesAndBuildsTheSummaryAgain)
{
    receipt("2025-01-10", { { "200001", "100", "12" } });
    JxcScreen screen(workspace());
    setRange(&screen, QDate(2025, 1, 1), QDate(2025, 1, 31));
    ui.clear();
    QSignalSpy finished(&screen, &ReportScreen::finished);
    screen.syncButton()->click();
    ASSERT_TRUE(finished.wait(20000));
    EXPECT_EQ(
        ui.asked, QStringList { statistics::texts::costSyncQuestion("2025-01-01", "2025-01-31") });
    EXPECT_EQ(ui.informed, QStringList { texts::synced(1, 1) });
    EXPECT_EQ(rows("select ls_zcb from jxc_lsxssp where g_sn='200001'"), QStringList { "330" });
    EXPECT_EQ(gridRows(&screen).value(0).section(' ', 0, 0), "200001");

    ui.clear();
    ui.answerNext(false);
    screen.syncButton()->click();
    EXPECT_TRUE(ui.informed.isEmpty());
}

TEST_F(StatisticsScreens, ARefusalIsToldACancelLeavesTheGridAndExportWritesTheTotals)
{
    JxcScreen screen(workspace());
    setRange(&screen, QDate(2025, 3, 1), QDate(2025, 1, 1));
    EXPECT_FALSE(runBy(&screen, screen.filters()->to(), Qt::Key_Return));
    EXPECT_EQ(ui.informed, QStringList { statistics::texts::rangeReversed() });

    setRange(&screen, QDate(2025, 1, 1), QDate(2025, 1, 31));
    ASSERT_TRUE(runBy(&screen, screen.grid(), Qt::Key_F5));
    const QStringList shown = gridRows(&screen);
    screen.runButton()->click();
    EXPECT_TRUE(screen.running());
    EXPECT_FALSE(screen.runButton()->isEnabled());
    QTest::keyClick(screen.grid(), Qt::Key_Escape);
    EXPECT_FALSE(screen.running());
    EXPECT_EQ(screen.statusLabel()->text(), texts::cancelledRun());
    EXPECT_EQ(gridRows(&screen), shown);

    const QString path = QDir(folder()).filePath("进销存统计.xlsx");
    ASSERT_TRUE(screen.exportTo(path));
    const auto sheet = core::readXlsx(path);
    ASSERT_TRUE(sheet.ok());
    ASSERT_EQ(sheet.value().size(), 4);
    EXPECT_EQ(sheet.value()[0].mid(0, 6),
        (QStringList { "商品编号", "商品名称", "规格", "单位", "类别", "期初数量" }));
    EXPECT_EQ(sheet.value()[3].mid(0, 1) + sheet.value()[3].mid(11, 2),
        (QStringList { "合计", "110", "860" }));
}

TEST_F(StatisticsScreens, TheTotalsRowAddsTheSummedColumnsAndNegativeAmountsAreRed)
{
    ReportModel model({ { "编号", CellKind::Text }, { "数量", CellKind::Quantity, true },
                          { "金额", CellKind::Amount, true }, { "单价", CellKind::Price } },
        session().params(), nullptr);
    EXPECT_EQ(model.rowCount(), 0); // no rows, no totals
    model.setTable({ { { "A", 1.005, 10.1, 3 }, { "B", 2, -20.3, 4 } }, { "A", "B" }, {} });
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(
        (QStringList { model.text(2, 0), model.text(2, 1), model.text(2, 2), model.text(2, 3) }),
        (QStringList { "合计", "3.01", "-10.20", "" }));
    EXPECT_EQ(model.data(model.index(1, 2), Qt::ForegroundRole).value<QBrush>().color(), Qt::red);
    EXPECT_FALSE(model.data(model.index(0, 2), Qt::ForegroundRole).isValid());
    EXPECT_EQ(model.data(model.index(0, 1), Qt::TextAlignmentRole).toInt(),
        int(Qt::AlignRight | Qt::AlignVCenter));
}

TEST_F(StatisticsScreens, CostAndProfitColumnsShowOnlyWithTheirRight)
{
    test::addOperatorWithRights(session(), "小王", { { "tjgl", "0000100000001" } });
    switchOperator("小王");
    ReportScreen *sales = makeSalesScreen(workspace());
    QStringList captions;
    for (int c = 0; c < sales->model()->columnCount(); ++c)
        if (!sales->grid()->isColumnHidden(c))
            captions.append(sales->model()->columns()[c].caption);
    EXPECT_EQ(captions, (QStringList { "编号", "名称", "规格", "单位", "单据数", "数量", "金额" }));
    EXPECT_FALSE(sales->printButton()->isEnabled());
    EXPECT_FALSE(sales->printButton()->toolTip().isEmpty());
    sales->filters()->from()->setDate(QDate(2025, 1, 1));
    QSignalSpy finished(sales, &ReportScreen::finished);
    sales->run();
    ASSERT_TRUE(finished.wait(20000));
    // The export holds what the screen shows: no cost, no profit.
    const QString path = QDir(folder()).filePath("销售.xlsx");
    ASSERT_TRUE(sales->exportTo(path));
    const auto sheet = core::readXlsx(path);
    ASSERT_TRUE(sheet.ok());
    EXPECT_EQ(sheet.value().value(1),
        (QStringList { "200001", "阿莫西林胶囊", "0.25g*24", "盒", "2", "25", "375" }));
    // A column the clerk moved to the front is exported there.
    QHeaderView *header = sales->grid()->horizontalHeader();
    header->moveSection(header->visualIndex(6), 0);
    ASSERT_TRUE(sales->exportTo(path));
    const auto moved = core::readXlsx(path);
    ASSERT_TRUE(moved.ok());
    EXPECT_EQ(moved.value().value(0),
        (QStringList { "金额", "商品编号", "名称", "规格", "单位", "单据数", "数量" }));
    EXPECT_EQ(moved.value().value(1),
        (QStringList { "375", "200001", "阿莫西林胶囊", "0.25g*24", "盒", "2", "25" }));
    delete sales;
}

TEST_F(StatisticsScreens, EveryStatisticsOperationHasItsScreen)
{
    ui::ScreenRegistry registry;
    ui::registerStatisticsScreens(registry);
    for (int position = 1; position <= 13; ++position)
        EXPECT_NE(registry.find("tjgl", position), nullptr) << position;
    EXPECT_EQ(registry.find("tjgl", 14), nullptr); // POS reports are not built here
}
