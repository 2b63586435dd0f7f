// What the till and the POS report screens print: the handover slip after the handover and again
// from the list of handovers, and the reports' rows through their templates, with preview.
#include "pos/tillcash.h"
#include "tests/pos/tillscreentest.h"
#include "tests/ui/previews.h"
#include "ui/common/queryscreen.h"
#include "ui/common/texts.h"
#include "ui/pos/handoverlist.h"
#include "ui/pos/reportscreen.h"
#include "ui/pos/tilldialogs.h"
#include "ui/reports/printing.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>

using namespace medistock;

namespace {

class PosPrintTest : public test::TillScreenTest
{
protected:
    void SetUp() override
    {
        TillScreenTest::SetUp();
        if (HasFatalFailure())
            return;
        qputenv("MEDISTOCK_REPORT_DIR", MEDISTOCK_SOURCE_DIR "/report");
        ui::installPrinting(*workspace);
        till = std::make_unique<ui::TillScreen>(*workspace);
    }

    void TearDown() override
    {
        for (ui::PreviewDialog *preview : test::visiblePreviews())
            delete preview;
        qunsetenv("MEDISTOCK_REPORT_DIR");
        TillScreenTest::TearDown();
    }

    static QPushButton *button(QWidget *in, const QString &text)
    {
        for (QPushButton *b : in->findChildren<QPushButton *>())
            if (b->text() == text && !b->isHidden())
                return b;
        return nullptr;
    }

    // The one preview open now; fails the test when there is not exactly one.
    static ui::PreviewDialog *onlyPreview()
    {
        const QList<ui::PreviewDialog *> previews = test::visiblePreviews();
        EXPECT_EQ(previews.size(), 1);
        return previews.size() == 1 ? previews.first() : nullptr;
    }

    // A report's rows as printed: the texts of the objects named `prefix`N ("Cell1", "Cell2"...
    // in the line band, "Total4"... in the summary), in the order laid out, `columns` a row.
    static QStringList printedRows(
        const reports::PreparedPage &page, const QString &prefix, int columns)
    {
        QStringList cells;
        for (const reports::PreparedItem &item : page.items)
            if (item.source.startsWith(prefix) && item.source.mid(prefix.size()).toInt() > 0)
                cells.append(item.text);
        QStringList rows;
        for (int i = 0; i + columns <= cells.size(); i += columns)
            rows.append(cells.mid(i, columns).join(QLatin1Char('|')));
        return rows;
    }
};

const QStringList slipFigures { QStringLiteral("交班人：admin"), QStringLiteral("接班人：admin"),
    QStringLiteral("本班收款总额：52.00"), QStringLiteral("上交营业款：20.00"),
    QStringLiteral("下放营业款：2.00"), QStringLiteral("交接金额：22.00"),
    QStringLiteral("备注：早班") };

} // namespace

// The shift of the split sale: 52 taken, 22 of it in cash, handed over as 20 up and 2 left. The
// slip comes up on the 58 mm roll chosen in the dialog, and the list prints it again on 80 mm.
TEST_F(PosPrintTest, TheHandoverPrintsItsSlipAndTheListPrintsItAgain)
{
    sellWithSplit();
    onDialog([](QWidget *w) {
        auto *handover = qobject_cast<ui::HandoverDialog *>(w);
        ASSERT_NE(handover, nullptr);
        EXPECT_TRUE(handover->slipBox()->isEnabled());
        EXPECT_EQ(handover->slipKey(), QStringLiteral("jbxp"));
        handover->slipBox()->setCurrentIndex(1);
        handover->handedUpField()->setValue(20);
        handover->leftField()->setValue(2);
        handover->findChild<QLineEdit *>()->setText(QStringLiteral("早班"));
        handover->accept();
    });
    key(Qt::Key_F3);
    ASSERT_EQ(till->statusLabel()->text(), QStringLiteral("交班完成，交接金额 22.00"));
    ui::PreviewDialog *slip = onlyPreview();
    ASSERT_NE(slip, nullptr);
    EXPECT_TRUE(slip->windowTitle().contains(QStringLiteral("POS交班小票(58)")))
        << slip->windowTitle().toStdString();
    ASSERT_EQ(slip->pageCount(), 1);
    EXPECT_EQ(slip->report().pages.first().sizeMm.width(), 58);
    QStringList texts = slip->report().pages.first().texts();
    EXPECT_EQ(texts.mid(3, 7), slipFigures);
    EXPECT_TRUE(texts.value(2).startsWith(QStringLiteral("交班时间：2025-03-14 ")))
        << texts.value(2).toStdString();
    delete slip;

    bool listed = false;
    onDialog([this, &listed](QWidget *w) {
        auto *dialog = qobject_cast<ui::HandoverListDialog *>(w);
        ASSERT_NE(dialog, nullptr);
        ui::HandoverList *list = dialog->list();
        ASSERT_EQ(list->model()->dataRows(), 1);
        QStringList cells;
        for (int c = 1; c < list->model()->columnCount(); ++c)
            cells.append(list->model()->text(0, c));
        EXPECT_EQ(cells.join(QLatin1Char('|')), "admin|admin|52.00|20.00|2.00|22.00|早班");
        button(list, QStringLiteral("打印交班小票"))->click();
        ui::PreviewDialog *again = onlyPreview();
        if (again) {
            EXPECT_EQ(again->report().pages.first().sizeMm.width(), 80);
            EXPECT_EQ(again->report().pages.first().texts().mid(3, 7), slipFigures);
            delete again;
        }
        listed = true;
        dialog->reject();
    });
    button(till.get(), QStringLiteral("交班记录"))->click();
    EXPECT_TRUE(listed);
}

// The ranking by goods prints its rows through possxph1, best rate first, with the gift (no
// amount, a loss of its cost) at rate 0, and the template's own totals; the takings print through
// possytj1 with the split sale's 52 due and received.
TEST_F(PosPrintTest, TheRankingAndTheTakingsPrintTheirRowsThroughTheirTemplates)
{
    sellWithSplit();
    ui::PosReportScreen ranking(*workspace, ui::posReportKinds().at(2));
    QPushButton *print = button(&ranking, ui::texts::printButton());
    ASSERT_NE(print, nullptr);
    ASSERT_TRUE(print->isEnabled());
    print->click();
    ui::PreviewDialog *preview = onlyPreview();
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->windowTitle().contains(QStringLiteral("POS销售排行(按商品)")))
        << preview->windowTitle().toStdString();
    const reports::PreparedPage &page = preview->report().pages.first();
    EXPECT_EQ(printedRows(page, QStringLiteral("Cell"), 7),
        (QStringList { "1|200002|维生素C片|2|16.00|12.00|75.00",
            "2|200001|阿莫西林胶囊|3|36.00|21.00|58.33", "3|200003|医用口罩|1|0.00|-3.00|0.00" }));
    EXPECT_EQ(printedRows(page, QStringLiteral("Total"), 3), QStringList { "6|52.00|30.00" });
    EXPECT_EQ(page.textsOf(QStringLiteral("Memo2")),
        QStringList { "从：2025-03-01  到：2025-03-14  仓库：所有仓库  统计方式：按商品  "
                      "排序：销售利润率" });
    delete preview;

    // By cashier the same sale is one row, through the cashier's template.
    ranking.viewBox()->setCurrentIndex(2);
    print->click();
    preview = onlyPreview();
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(printedRows(preview->report().pages.first(), QStringLiteral("Cell"), 6),
        QStringList { "1|admin|6|52.00|30.00|57.69" });
    delete preview;

    ui::PosReportScreen takings(*workspace, ui::posReportKinds().at(4));
    button(&takings, ui::texts::printButton())->click();
    preview = onlyPreview();
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->windowTitle().contains(QStringLiteral("收银员收银统计")));
    const QString cashier = rows(
        QStringLiteral("jxc_admin"), QStringLiteral("a_sn"), QStringLiteral("a_name='admin'"))
                                .value(0);
    EXPECT_EQ(printedRows(preview->report().pages.first(), QStringLiteral("Cell"), 4),
        QStringList { cashier + "|admin|52.00|52.00" });
    delete preview;
}

// The till's cash prints through poscrk, the union of what was put in and taken out.
TEST_F(PosPrintTest, TheTillCashPrintsItsInAndOutRows)
{
    ASSERT_TRUE(pos::recordTillCash(session(), pos::TillCash::In, 200, QStringLiteral("备用零钱")));
    ASSERT_TRUE(pos::recordTillCash(session(), pos::TillCash::Out, 80, QStringLiteral("上交")));
    ui::PosReportScreen cash(*workspace, ui::posReportKinds().at(5));
    button(&cash, ui::texts::printButton())->click();
    ui::PreviewDialog *preview = onlyPreview();
    ASSERT_NE(preview, nullptr);
    QStringList printed;
    for (const QString &row :
        printedRows(preview->report().pages.first(), QStringLiteral("Cell"), 7))
        printed.append(row.section(QLatin1Char('|'), 2));
    EXPECT_EQ(printed,
        (QStringList { "POS 出款|0.00|80.00|admin|上交", "POS 入款|200.00|0.00|admin|备用零钱" }));
    EXPECT_EQ(printedRows(preview->report().pages.first(), QStringLiteral("Total"), 4),
        QStringList { "200.00|80.00||" });
    delete preview;
}

// The member consumption has no template: its print stays disabled and says why.
TEST_F(PosPrintTest, TheMemberConsumptionOffersNoPrintButSaysWhy)
{
    ui::PosReportScreen members(*workspace, ui::posReportKinds().at(3));
    QPushButton *print = button(&members, ui::texts::printButton());
    ASSERT_NE(print, nullptr);
    EXPECT_FALSE(print->isEnabled());
    EXPECT_EQ(print->toolTip(), QStringLiteral("会员消费统计没有报表模板，请导出后打印"));
}

// Every report with a template, in each of its views, prints the split sale with no cell left
// blank: each field its template reads is one the report hands over.
TEST_F(PosPrintTest, EveryTemplateFieldOfEveryReportIsFed)
{
    // Sold by 王芳, who earns 5 % of what she sells.
    setCommission(QStringLiteral("100002"), 0, 5);
    for (QComboBox *box : till->findChildren<QComboBox *>())
        if (box != till->warehouseBox())
            box->setCurrentIndex(box->findData(QStringLiteral("100002")));
    sellWithSplit();
    ASSERT_TRUE(pos::recordTillCash(session(), pos::TillCash::In, 50, QStringLiteral("零钱")));
    const QList<ui::PosReportKind> kinds = ui::posReportKinds();
    QStringList printedKeys;
    for (const ui::PosReportKind &kind : kinds) {
        if (kind.printKeys.isEmpty())
            continue;
        ui::PosReportScreen screen(*workspace, kind);
        for (int view = 0; view < std::max<int>(1, int(kind.views.size())); ++view) {
            if (screen.viewBox())
                screen.viewBox()->setCurrentIndex(view);
            button(&screen, ui::texts::printButton())->click();
            ui::PreviewDialog *preview = onlyPreview();
            ASSERT_NE(preview, nullptr) << kind.title.toStdString();
            printedKeys.append(kind.printKeys.value(view));
            const reports::PreparedPage &page = preview->report().pages.first();
            const QStringList cells = printedRows(page, QStringLiteral("Cell"), 1);
            EXPECT_FALSE(cells.isEmpty()) << kind.title.toStdString();
            QStringList blank;
            for (const reports::PreparedItem &item : page.items)
                if (item.source.startsWith(QLatin1String("Cell")) && item.text.isEmpty())
                    blank.append(item.source);
            EXPECT_EQ(blank, QStringList()) << printedKeys.last().toStdString();
            delete preview;
        }
    }
    EXPECT_EQ(printedKeys,
        (QStringList { "poslsz", "postj", "posmxb", "possxph1", "possxph2", "possxph3", "possytj1",
            "poscrk", "possytj2" }));
}
