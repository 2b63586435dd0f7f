// The query screen every list is built on: its totals row, counts, keys, export and print.
#include "core/spreadsheet.h"
#include "tests/ui/keyboard.h"
#include "tests/ui/uitest.h"
#include "ui/common/queryscreen.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace medistock;

namespace {

// Two columns of numbers under a text, rows given by the test.
class Sample : public ui::QueryScreen
{
public:
    explicit Sample(ui::Workspace &workspace)
        : QueryScreen(workspace, QStringLiteral("样例"))
        , filter(new QLineEdit(this))
    {
        addFilter(QStringLiteral("查找"), filter);
        setColumns({ { QStringLiteral("名称") },
                       { QStringLiteral("数量"), ui::QueryColumn::Kind::Number, 2, true },
                       { QStringLiteral("单价"), ui::QueryColumn::Kind::Number, 4 } },
            QStringLiteral("样例"));
        setPrintKey(QStringLiteral("yl"));
    }

    QList<QVariantList> rows;
    int runs = 0;
    QLineEdit *filter;

protected:
    void fetch() override
    {
        ++runs;
        setRows(rows);
    }
};

} // namespace

class QueryScreenTest : public test::UiTest
{
};

TEST_F(QueryScreenTest, TheTotalsRowSumsOnlyItsColumnsAndIsNeverCountedOrActivated)
{
    Sample screen(workspace());
    screen.rows = { { QStringLiteral("甲"), 1.005, 2.5 }, { QStringLiteral("乙"), -3, 0.125 } };
    screen.run();
    EXPECT_EQ(test::gridRows(screen),
        (QStringList { QStringLiteral("甲|1.00|2.5000"), QStringLiteral("乙|-3.00|0.1250"),
            QStringLiteral("合计|-2.00|") }));
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：2"));
    EXPECT_EQ(
        screen.model()->index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_FALSE(screen.model()->index(0, 1).data(Qt::ForegroundRole).isValid());
    EXPECT_TRUE(screen.model()->index(2, 0).data(Qt::FontRole).value<QFont>().bold());

    QList<int> activated;
    QObject::connect(&screen, &ui::QueryScreen::activated, [&](int row) { activated.append(row); });
    screen.grid()->doubleClicked(screen.model()->index(2, 0));
    screen.grid()->doubleClicked(screen.model()->index(1, 0));
    EXPECT_EQ(activated, QList<int> { 1 });

    screen.rows.clear();
    screen.run();
    EXPECT_EQ(test::gridRows(screen), QStringList { QStringLiteral("合计|0.00|") });
    EXPECT_EQ(screen.countLabel()->text(), QStringLiteral("记录数：0"));
    EXPECT_EQ(screen.currentRow(), -1);
}

TEST_F(QueryScreenTest, EnterInAFilterAndF5RunTheQuery)
{
    Sample screen(workspace());
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    test::Keyboard keys;
    keys.setWindow(&screen);
    screen.filter->setFocus();
    keys.type(QStringLiteral("ab"));
    EXPECT_EQ(screen.runs, 0);
    keys.press(Qt::Key_Return);
    EXPECT_EQ(screen.runs, 1);
    keys.press(Qt::Key_F5);
    EXPECT_EQ(screen.runs, 2);
    QPushButton *run
        = qobject_cast<QPushButton *>(test::buttonNamed(&screen, QStringLiteral("查询(F5)")));
    ASSERT_NE(run, nullptr);
    screen.setRunKey({});
    EXPECT_EQ(run->text(), QStringLiteral("查询"));
    keys.press(Qt::Key_F5);
    EXPECT_EQ(screen.runs, 2);
}

TEST_F(QueryScreenTest, ExportWritesTheGridAsShownWithItsTotals)
{
    Sample screen(workspace());
    screen.rows
        = { { QStringLiteral("阿莫西林胶囊"), 12.5, 6.8 }, { QStringLiteral("00012"), 1, 0 } };
    screen.run();
    screen.grid()->horizontalHeader()->moveSection(2, 0);
    const QString path = QDir(folder()).filePath(QStringLiteral("样例.xlsx"));
    screen.exportTo(path);
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("已导出到：") + path });
    const auto read = core::readXlsx(path);
    ASSERT_TRUE(read.ok()) << read.message().toStdString();
    EXPECT_EQ(read.value(),
        (QList<QStringList> {
            { QStringLiteral("单价"), QStringLiteral("名称"), QStringLiteral("数量") },
            { QStringLiteral("6.8"), QStringLiteral("阿莫西林胶囊"), QStringLiteral("12.5") },
            { QStringLiteral("0"), QStringLiteral("00012"), QStringLiteral("1") },
            { QString(), QStringLiteral("合计"), QStringLiteral("13.5") } }));
}

TEST_F(QueryScreenTest, PrintingStaysDisabledUntilAPrintHandlerIsGiven)
{
    {
        Sample screen(workspace());
        QAbstractButton *print = test::buttonNamed(&screen, QStringLiteral("打印(F8)"));
        ASSERT_NE(print, nullptr);
        EXPECT_FALSE(print->isEnabled());
        EXPECT_EQ(print->toolTip(), QStringLiteral("打印功能尚未完成，完成后即可在此打印"));
    }
    QList<ui::PrintRequest> printed;
    workspace().print = [&](ui::Workspace &, QWidget *, const ui::PrintRequest &request) {
        printed.append(request);
    };
    Sample screen(workspace());
    screen.rows = { { QStringLiteral("甲"), 1, 1 } };
    screen.run();
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    QTest::keyClick(screen.grid(), Qt::Key_F8);
    ASSERT_EQ(printed.size(), 1);
    EXPECT_EQ(printed[0].key, QStringLiteral("yl"));
    EXPECT_EQ(printed[0].grid, screen.model());
    EXPECT_TRUE(test::buttonNamed(&screen, QStringLiteral("打印(F8)"))->isEnabled());
}
