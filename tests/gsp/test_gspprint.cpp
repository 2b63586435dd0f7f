// What the GSP record screens print: the rows listed, through the record's template, each column
// as the field its table names, and every field a template reads fed by some column.
#include "gsp/derived.h"
#include "gsp/displaycheck.h"
#include "gsp/picking.h"
#include "tests/gsp/gsptest.h"
#include "tests/ui/previews.h"
#include "tests/ui/screenworkspace.h"
#include "ui/common/application.h"
#include "ui/common/gridlayouts.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/gsp/filledscreen.h"
#include "ui/gsp/recordscreen.h"
#include "ui/gsp/tablemodel.h"
#include "ui/reports/printing.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <memory>

using namespace medistock;

namespace {

class GspPrint : public test::GspTest
{
protected:
    void SetUp() override
    {
        GspTest::SetUp();
        if (HasFatalFailure())
            return;
        qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
        layouts = test::layoutStore(folder());
        workspace = test::screenWorkspace(session(), db(), *layouts, folder());
        ui::installPrinting(*workspace);
    }

    void TearDown() override
    {
        for (ui::PreviewDialog *preview : test::visiblePreviews())
            delete preview;
        qunsetenv("MEDISTOCK_REPORT_DIR");
        workspace.reset();
        layouts.reset();
        GspTest::TearDown();
    }

    // A record screen over `make`'s table of what `fetch` reads, queried once.
    template<class Fetch, class Make>
    std::unique_ptr<ui::RecordScreen> screen(Fetch fetch, Make make)
    {
        auto made = std::make_unique<ui::RecordScreen>(*workspace, QStringLiteral("打印"),
            ui::RecordScreen::Filters {}, [this, fetch, make](const ui::RecordScreen &s) {
                const auto rows = fetch(session(), s.filter());
                return rows ? Result<gsp::RecordTable>(make(rows.value()))
                            : Result<gsp::RecordTable>(rows.outcome());
            });
        made->reload();
        return made;
    }

    // Presses print and returns the one preview it opened (null, failing, when not exactly one).
    static ui::PreviewDialog *printed(ui::RecordScreen &screen)
    {
        EXPECT_TRUE(screen.printButton()->isEnabled());
        screen.printButton()->click();
        const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
        EXPECT_EQ(previews.size(), 1);
        return previews.size() == 1 ? previews.first() : nullptr;
    }

    // The texts of the objects named `prefix`N ("Cell1".. in the line band, "Total7".. in the
    // summary) in the order laid out, `columns` a row joined by "|".
    static QStringList printedRows(const ui::PreviewDialog &preview, int columns,
        const QString &prefix = QStringLiteral("Cell"))
    {
        QStringList cells;
        for (const reports::PreparedPage &page : preview.report().pages)
            for (const reports::PreparedItem &item : page.items)
                if (item.source.startsWith(prefix) && item.source.mid(prefix.size()).toInt() > 0)
                    cells.append(item.text);
        QStringList rows;
        for (int i = 0; i + columns <= cells.size(); i += columns)
            rows.append(cells.mid(i, columns).join(QLatin1Char('|')));
        return rows;
    }

    std::unique_ptr<ui::GridLayouts> layouts;
    std::unique_ptr<ui::Workspace> workspace;
};

} // namespace

// Two receipts listed, the keyword narrows them to one: F8 prints that one row, with the
// template's constant conclusions, and the filters as the heading.
TEST_F(GspPrint, TheAcceptanceRecordPrintsTheRowsListedOnF8)
{
    receipt(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("6.5"));
    const QString second = receipt(QStringLiteral("200003"), QStringLiteral("12"),
        QStringLiteral("4"), QStringLiteral("2025-03-11"));
    auto acceptance = screen(gsp::acceptanceRecord, gsp::acceptanceTable);
    ui::PreviewDialog *preview = printed(*acceptance);
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->windowTitle().contains(QStringLiteral("药品验收记录")));
    EXPECT_EQ(printedRows(*preview, 14),
        (QStringList { "2025-03-11|华东医药|板蓝根颗粒||||B1|2027-11-30|12|合格|合格|有|接收|admin",
            "2025-03-10|华东医药|阿莫西林胶囊|0.25g*24粒|胶囊|国药准字H13023964|B1|2027-11-30|30|"
            "合格|合格|有|接收|admin" }));
    delete preview;

    acceptance->keyField()->setText(second);
    acceptance->reload();
    acceptance->show();
    acceptance->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(acceptance.get()));
    acceptance->grid()->setFocus();
    QTest::keyClick(acceptance->grid(), Qt::Key_F8);
    const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
    ASSERT_EQ(previews.size(), 1);
    EXPECT_EQ(printedRows(*previews.first(), 14),
        QStringList {
            "2025-03-11|华东医药|板蓝根颗粒||||B1|2027-11-30|12|合格|合格|有|接收|admin" });
    EXPECT_EQ(previews.first()->report().pages.first().textsOf(QStringLiteral("Memo2")),
        QStringList { "日期从：2000-01-01  到：9999-12-31  仓库：所有仓库  关键字：" + second });
}

// 30 bought and 3 sold of the split amoxicillin: each row beside the batch's 27 left, and the
// template's own count and sums under them (the grid's totals row is not printed as a row).
TEST_F(GspPrint, TheSplittingRecordPrintsItsRowsAndTheTemplateSumsThem)
{
    const QString bought
        = receipt(QStringLiteral("200001"), QStringLiteral("30"), QStringLiteral("6.5"));
    const QString sold
        = sale(QStringLiteral("200001"), QStringLiteral("3"), QStringLiteral("2025-03-12"));
    auto splitting = screen(gsp::splittingRecord, gsp::splittingTable);
    ASSERT_EQ(splitting->model()->rowCount(), 3);
    ui::PreviewDialog *preview = printed(*splitting);
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(printedRows(*preview, 10),
        (QStringList {
            "2025-03-12|" + sold + "|阿莫西林胶囊|0.25g*24粒|B1|2027-11-30|0|3|27|质量管理员",
            "2025-03-10|" + bought
                + "|阿莫西林胶囊|0.25g*24粒|B1|2027-11-30|30|0|27|质量管理员" }));
    EXPECT_EQ(printedRows(*preview, 4, QStringLiteral("Total")), QStringList { "30|3||" });
    EXPECT_EQ(preview->report().pages.first().textsOf(QStringLiteral("TotalCaption")),
        QStringList { QStringLiteral("合计：2条") });
}

// The prescription-drug sales record prints the patient, the prescription and the pharmacist of
// the checked sale; the unchecked one is neither listed nor printed.
TEST_F(GspPrint, ThePrescriptionSalesRecordPrintsThePatientAndThePrescription)
{
    receipt(QStringLiteral("200001"), QStringLiteral("20"), QStringLiteral("6"));
    sale(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("2025-03-12"));
    sale(QStringLiteral("200001"), QStringLiteral("4"), QStringLiteral("2025-03-13"), false);
    auto sales = screen(gsp::prescriptionRecord, gsp::prescriptionSalesTable);
    ui::PreviewDialog *preview = printed(*sales);
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(printedRows(*preview, 11),
        QStringList { "2025-03-12|王芳||阿莫西林胶囊|0.25g*24粒|B1|2|CF0318|陈药师|主仓库|admin" });
}

// Every record with a template, printed from a row whose every cell holds something: no cell
// of the template is left blank but the training record's post, which no column carries. The
// display check and the expiry tracking print their records' goods lines, not their lists: a
// plain screen of the list leaves print disabled and says so.
TEST_F(GspPrint, EveryTemplateFieldOfEveryRecordIsFed)
{
    const QList<gsp::RecordTable> tables { gsp::acceptanceTable({}), gsp::prescriptionTable({}),
        gsp::prescriptionSalesTable({}), gsp::splittingTable({}), gsp::staffTable({}),
        gsp::planTable({}), gsp::trainingTable({}),
        gsp::filledLinesTable(gsp::FilledKind::Inspection, {}),
        gsp::filledLinesTable(gsp::FilledKind::Tracking, {}), gsp::inspectionTable({}),
        gsp::trackingTable({}) };
    QStringList printedKeys;
    QStringList blank;
    for (gsp::RecordTable table : tables) {
        ASSERT_LE(table.printFields.size(), table.headers.size()) << table.title.toStdString();
        QVariantList cells;
        for (int column = 0; column < table.headers.size(); ++column)
            cells.append(QStringLiteral("c%1").arg(column));
        table.rows = { cells };
        table.keys = { 1 };
        ui::RecordScreen shown(*workspace, QStringLiteral("打印"), {},
            [&table](const ui::RecordScreen &) { return Result<gsp::RecordTable>(table); });
        shown.reload();
        if (table.printFields.isEmpty()) {
            EXPECT_FALSE(shown.printButton()->isEnabled()) << table.printKey.toStdString();
            EXPECT_EQ(shown.printButton()->toolTip(), ui::texts::printingNotBuilt());
            continue;
        }
        ui::PreviewDialog *preview = printed(shown);
        ASSERT_NE(preview, nullptr) << table.printKey.toStdString();
        printedKeys.append(table.printKey);
        int cellCount = 0;
        for (const reports::PreparedItem &item : preview->report().pages.first().items)
            if (item.source.startsWith(QLatin1String("Cell"))) {
                ++cellCount;
                if (item.text.isEmpty())
                    blank.append(table.printKey + QLatin1Char('.') + item.source);
            }
        EXPECT_GT(cellCount, 0) << table.printKey.toStdString();
        delete preview;
    }
    EXPECT_EQ(printedKeys,
        (QStringList { "gspysjl", "gspyfgljl", "gspcfxsjl", "ypcljl", "gspyghmc", "gspygpxjh",
            "gspygpxjl", "clypjcjl", "jxqjcjl" }));
    EXPECT_EQ(blank, QStringList { "gspygpxjl.Cell3" });
}

// Two display checks: the screen's F8 prints the lines of the one chosen, each with its
// record's date and who entered it.
TEST_F(GspPrint, TheDisplayCheckPrintsTheLinesOfTheChosenRecord)
{
    batch(QStringLiteral("200001"), QStringLiteral("100001"), QStringLiteral("A1"),
        QStringLiteral("2025-05-31"), 12, QStringLiteral("2023-06-01"));
    batch(QStringLiteral("200003"), QStringLiteral("100001"), QStringLiteral("C1"),
        QStringLiteral("2025-04-15"), 8);
    QStringList numbers;
    for (const char *goods : { "200001", "200003" }) {
        const auto offered = gsp::pickableBatches(session(),
            { .warehouse = QStringLiteral("100001"), .key = QString::fromLatin1(goods) });
        ASSERT_EQ(offered->size(), 1);
        ASSERT_TRUE(gsp::pickBatch(
            session(), gsp::FilledKind::Inspection, QStringLiteral("100001"), offered->first())
                        .value());
        gsp::InspectionHeader header = gsp::proposedInspection(session(), QStringLiteral("100001"));
        header.employee = QStringLiteral("100001");
        const auto number = gsp::saveInspection(session(), header);
        ASSERT_TRUE(number.ok());
        numbers.append(number.value());
    }
    ui::FilledScreen checks(*workspace, gsp::FilledKind::Inspection);
    ASSERT_EQ(checks.model()->recordCount(), 2);
    const int row = int(checks.model()->table().keys.indexOf(numbers.first()));
    checks.grid()->selectRow(row);
    ui::PreviewDialog *preview = printed(checks);
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->windowTitle().contains(QStringLiteral("陈列药品维护检查记录")));
    EXPECT_EQ(printedRows(*preview, 11),
        QStringList { "2025-03-14|" + numbers.first()
            + "|阿莫西林胶囊|0.25g*24粒|A1|2023-06-01|2025-05-31|12|良好||admin" });
}
