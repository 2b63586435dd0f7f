#include "reports/layout.h"
#include "reports/template.h"
#include "tests/support/accountset.h"

#include <gtest/gtest.h>

using namespace medistock::reports;

namespace {

// A5 landscape with 10 mm margins: 483.78 px between the margins. The page header (37.8), the
// column header (22.68) and the page footer (37.8) leave 385.5 px, room for 25 rows of 15.12 px.
QByteArray saleTemplate(const QString &masterExtra = {}, const QString &pageExtra = {})
{
    return QStringLiteral(
        "<TfrxReport>"
        "<TfrxReportPage Name=\"Page1\" PaperWidth=\"210\" PaperHeight=\"148\" LeftMargin=\"10\" "
        "RightMargin=\"10\" TopMargin=\"10\" BottomMargin=\"10\" PAGE>"
        "<TfrxPageHeader Name=\"PageHeader1\" Top=\"20\" Height=\"37.8\">"
        "<TfrxMemoView Name=\"Title\" Left=\"0\" Top=\"0\" Width=\"718\" Height=\"30\" "
        "Text=\"[comName]销售单\" HAlign=\"haCenter\"/>"
        "</TfrxPageHeader>"
        "<TfrxHeader Name=\"Header1\" Top=\"80\" Height=\"22.68\" ReprintOnNewPage=\"True\">"
        "<TfrxMemoView Name=\"CapName\" Left=\"0\" Top=\"0\" Width=\"300\" Height=\"22.68\" "
        "Text=\"商品名称\"/>"
        "</TfrxHeader>"
        "<TfrxMasterData Name=\"MasterData1\" Top=\"120\" Height=\"15.12\" DataSet=\"Lines\" "
        "DataSetName=\"Lines\" MASTER>"
        "<TfrxMemoView Name=\"RowNo\" Left=\"0\" Top=\"0\" Width=\"40\" Height=\"15.12\" "
        "Text=\"[Line#]\"/>"
        "<TfrxMemoView Name=\"GoodsName\" Left=\"40\" Top=\"0\" Width=\"260\" Height=\"15.12\" "
        "Text=\"[Lines.&quot;g_name&quot;]\"/>"
        "<TfrxMemoView Name=\"Amount\" Left=\"300\" Top=\"0\" Width=\"100\" Height=\"15.12\" "
        "Text=\"[Lines.&quot;ls_je&quot;]\" DisplayFormat.Kind=\"fkNumeric\" "
        "DisplayFormat.FormatStr=\"%2.2n\" Frame.Typ=\"15\"/>"
        "</TfrxMasterData>"
        "<TfrxReportSummary Name=\"Summary\" Top=\"200\" Height=\"22.68\">"
        "<TfrxMemoView Name=\"Total\" Left=\"0\" Top=\"0\" Width=\"400\" Height=\"22.68\" "
        "Text=\"合计：[SUM(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)]\"/>"
        "</TfrxReportSummary>"
        "<TfrxPageFooter Name=\"PageFooter1\" Top=\"300\" Height=\"37.8\">"
        "<TfrxMemoView Name=\"PageTotal\" Left=\"0\" Top=\"0\" Width=\"300\" Height=\"18.9\" "
        "Text=\"本页小计：[SUM(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)]\"/>"
        "<TfrxMemoView Name=\"PageNo\" Left=\"300\" Top=\"0\" Width=\"300\" Height=\"18.9\" "
        "Text=\"第[Page#]页 共[TotalPages#]页\"/>"
        "</TfrxPageFooter>"
        "</TfrxReportPage>"
        "</TfrxReport>")
        .replace(QStringLiteral("MASTER"), masterExtra)
        .replace(QStringLiteral("PAGE"), pageExtra)
        .toUtf8();
}

// Line n (from 1) sells goods "商品n" for n yuan.
ReportData saleData(int lines)
{
    ReportData data;
    data.setText(QStringLiteral("comName"), QStringLiteral("仁和大药房"));
    DataSet set { QStringLiteral("Lines"), { QStringLiteral("g_name"), QStringLiteral("ls_je") },
        {} };
    for (int n = 1; n <= lines; ++n)
        set.rows.append({ QStringLiteral("商品%1").arg(n), double(n) });
    data.datasets.append(set);
    return data;
}

PreparedReport laidOut(const QByteArray &text, const ReportData &data)
{
    const medistock::Result<ReportTemplate> report = parseTemplate(text);
    EXPECT_TRUE(report.ok()) << report.message().toStdString();
    const medistock::Result<PreparedReport> prepared
        = prepareReport(report.value(), data, { QDateTime(QDate(2025, 3, 14), QTime(9, 30)) });
    EXPECT_TRUE(prepared.ok()) << prepared.message().toStdString();
    return prepared ? prepared.value() : PreparedReport();
}

int countOf(const PreparedPage &page, const QString &source)
{
    int n = 0;
    for (const PreparedItem &item : page.items)
        n += item.source == source ? 1 : 0;
    return n;
}

TEST(Layout, SixtyLinesOnA5BreakIntoThreePagesWithHeadersAndPageTotals)
{
    const PreparedReport report = laidOut(saleTemplate(), saleData(60));
    ASSERT_EQ(report.pages.size(), 3);
    const QList<int> rows { 25, 25, 10 };
    // Sums of 1..25, 26..50 and 51..60.
    const QStringList pageTotals { QStringLiteral("本页小计：325"), QStringLiteral("本页小计：950"),
        QStringLiteral("本页小计：555") };
    for (int p = 0; p < 3; ++p) {
        const PreparedPage &page = report.pages.at(p);
        EXPECT_EQ(page.sizeMm, QSizeF(210, 148));
        EXPECT_EQ(page.textsOf(QStringLiteral("Title")),
            QStringList { QStringLiteral("仁和大药房销售单") });
        EXPECT_EQ(
            page.textsOf(QStringLiteral("CapName")), QStringList { QStringLiteral("商品名称") });
        EXPECT_EQ(countOf(page, QStringLiteral("GoodsName")), rows.at(p)) << p;
        EXPECT_EQ(page.textsOf(QStringLiteral("PageTotal")), QStringList { pageTotals.at(p) });
        EXPECT_EQ(page.textsOf(QStringLiteral("PageNo")),
            QStringList { QStringLiteral("第%1页 共3页").arg(p + 1) });
    }
    EXPECT_EQ(
        report.pages.at(1).textsOf(QStringLiteral("GoodsName")).first(), QStringLiteral("商品26"));
    EXPECT_EQ(report.pages.at(1).textsOf(QStringLiteral("RowNo")).first(), QStringLiteral("26"));
    EXPECT_EQ(report.pages.at(2).textsOf(QStringLiteral("Amount")).last(), QStringLiteral("60.00"));
    EXPECT_EQ(report.pages.at(2).textsOf(QStringLiteral("Total")),
        QStringList { QStringLiteral("合计：1830") });
    EXPECT_TRUE(report.pages.at(0).textsOf(QStringLiteral("Total")).isEmpty());

    // The page footer stands at the foot of the page (148 - 10 mm less its 37.8 px), the first
    // row right under the column header.
    const PreparedItem *footer = report.pages.at(0).first(QStringLiteral("PageTotal"));
    EXPECT_NEAR(footer->rect.top(), 138 * pixelsPerMillimetre - 37.8, 0.01);
    const PreparedItem *firstRow = report.pages.at(1).first(QStringLiteral("GoodsName"));
    EXPECT_NEAR(firstRow->rect.top(), 10 * pixelsPerMillimetre + 37.8 + 22.68, 0.01);
}

TEST(Layout, FillRowsBreaksAfterThatManyRowsAndFillsTheLastPageWithBlankRows)
{
    const PreparedReport report
        = laidOut(saleTemplate(QStringLiteral("FillRows=\"8\"")), saleData(20));
    ASSERT_EQ(report.pages.size(), 3);
    const QList<int> filled { 8, 8, 4 };
    for (int p = 0; p < 3; ++p) {
        // The framed amount cell is drawn on every row, blank or not; the name only on rows
        // with data.
        EXPECT_EQ(countOf(report.pages.at(p), QStringLiteral("Amount")), 8) << p;
        EXPECT_EQ(countOf(report.pages.at(p), QStringLiteral("GoodsName")), filled.at(p)) << p;
        EXPECT_EQ(report.pages.at(p).textsOf(QStringLiteral("RowNo")).size(), filled.at(p));
    }
    // Blank rows add nothing to the totals.
    EXPECT_EQ(report.pages.at(2).textsOf(QStringLiteral("PageTotal")),
        QStringList { QStringLiteral("本页小计：74") });
    EXPECT_EQ(report.pages.at(2).textsOf(QStringLiteral("Total")),
        QStringList { QStringLiteral("合计：210") });

    // A document without lines still prints one page of blank rows.
    const PreparedReport empty
        = laidOut(saleTemplate(QStringLiteral("FillRows=\"8\"")), saleData(0));
    ASSERT_EQ(empty.pages.size(), 1);
    EXPECT_EQ(countOf(empty.pages.at(0), QStringLiteral("Amount")), 8);
    EXPECT_EQ(empty.pages.at(0).textsOf(QStringLiteral("Total")),
        QStringList { QStringLiteral("合计：0") });
}

TEST(Layout, FillRowsPageFillsTheRestOfTheLastPage)
{
    const PreparedReport report
        = laidOut(saleTemplate(QStringLiteral("FillRows=\"page\"")), saleData(30));
    ASSERT_EQ(report.pages.size(), 2);
    // 25 rows fit; the second page holds 5 rows and as many blank ones as leave room for the
    // summary (22.68 px): 385.5 - 22.68 = 362.8, 23 rows of 15.12.
    EXPECT_EQ(countOf(report.pages.at(1), QStringLiteral("GoodsName")), 5);
    EXPECT_EQ(countOf(report.pages.at(1), QStringLiteral("Amount")), 23);
    EXPECT_EQ(report.pages.at(1).textsOf(QStringLiteral("Total")).size(), 1);
}

TEST(Layout, AReceiptRollIsAsLongAsItsContent)
{
    const QByteArray receipt = QByteArrayLiteral(
        "<TfrxReport><TfrxReportPage Name=\"Page1\" PaperWidth=\"58\" PaperHeight=\"100\" "
        "LeftMargin=\"2\" RightMargin=\"2\" TopMargin=\"2\" BottomMargin=\"3\" "
        "EndlessHeight=\"True\">"
        "<TfrxReportTitle Name=\"Title\" Top=\"0\" Height=\"30\">"
        "<TfrxMemoView Name=\"Shop\" Left=\"0\" Top=\"0\" Width=\"203\" Height=\"30\" "
        "Text=\"[comName]\"/>"
        "</TfrxReportTitle>"
        "<TfrxMasterData Name=\"MasterData1\" Top=\"40\" Height=\"16\" DataSet=\"Lines\" "
        "DataSetName=\"Lines\">"
        "<TfrxMemoView Name=\"GoodsName\" Left=\"0\" Top=\"0\" Width=\"203\" Height=\"16\" "
        "Text=\"[Lines.&quot;g_name&quot;]\"/>"
        "</TfrxMasterData>"
        "<TfrxReportSummary Name=\"Summary\" Top=\"80\" Height=\"20\">"
        "<TfrxMemoView Name=\"Total\" Left=\"0\" Top=\"0\" Width=\"203\" Height=\"20\" "
        "Text=\"合计：[SUM(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)]\"/>"
        "</TfrxReportSummary>"
        "<TfrxPageFooter Name=\"Footer\" Top=\"120\" Height=\"24\">"
        "<TfrxMemoView Name=\"Thanks\" Left=\"0\" Top=\"0\" Width=\"203\" Height=\"24\" "
        "Text=\"谢谢惠顾\"/>"
        "</TfrxPageFooter>"
        "</TfrxReportPage></TfrxReport>");
    const PreparedReport report = laidOut(receipt, saleData(40));
    ASSERT_EQ(report.pages.size(), 1);
    const PreparedPage &page = report.pages.first();
    EXPECT_EQ(page.sizeMm.width(), 58);
    // 2 mm, the title 30 px, 40 rows of 16 px, the summary 20 px, the footer 24 px, 3 mm.
    EXPECT_NEAR(page.sizeMm.height(), 2 + (30 + 40 * 16 + 20 + 24) / pixelsPerMillimetre + 3, 1e-9);
    EXPECT_EQ(countOf(page, QStringLiteral("GoodsName")), 40);
    EXPECT_NEAR(page.first(QStringLiteral("Thanks"))->rect.top(),
        2 * pixelsPerMillimetre + 30 + 40 * 16 + 20, 1e-9);
    // 58 mm paper less 2 mm on each side is 203 px wide.
    EXPECT_NEAR(54 * pixelsPerMillimetre, 204.1, 0.1);
}

TEST(Layout, GroupsPrintTheirHeadersAndFootersWithGroupTotals)
{
    const QByteArray grouped = QByteArrayLiteral(
        "<TfrxReport><TfrxReportPage Name=\"Page1\" PaperWidth=\"210\" PaperHeight=\"297\">"
        "<TfrxGroupHeader Name=\"Group1\" Top=\"20\" Height=\"20\" "
        "Condition=\"Lines.&quot;gc_name&quot;\">"
        "<TfrxMemoView Name=\"ClassName\" Width=\"200\" Height=\"20\" "
        "Text=\"类别：[Lines.&quot;gc_name&quot;]\"/>"
        "</TfrxGroupHeader>"
        "<TfrxMasterData Name=\"MasterData1\" Top=\"50\" Height=\"18\" DataSet=\"Lines\">"
        "<TfrxMemoView Name=\"GoodsName\" Width=\"200\" Height=\"18\" "
        "Text=\"[Lines.&quot;g_name&quot;]\"/>"
        "</TfrxMasterData>"
        "<TfrxGroupFooter Name=\"GroupFooter1\" Top=\"80\" Height=\"20\">"
        "<TfrxMemoView Name=\"ClassTotal\" Width=\"200\" Height=\"20\" "
        "Text=\"小计：[SUM(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)] [COUNT(MasterData1)]行\"/>"
        "</TfrxGroupFooter>"
        "<TfrxReportSummary Name=\"Summary\" Top=\"120\" Height=\"20\">"
        "<TfrxMemoView Name=\"Total\" Width=\"200\" Height=\"20\" "
        "Text=\"[SUM(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)] "
        "[MAX(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)] "
        "[AVG(&lt;Lines.&quot;ls_je&quot;&gt;,MasterData1)]\"/>"
        "</TfrxReportSummary>"
        "</TfrxReportPage></TfrxReport>");
    ReportData data;
    DataSet set { QStringLiteral("Lines"),
        { QStringLiteral("gc_name"), QStringLiteral("g_name"), QStringLiteral("ls_je") }, {} };
    set.rows = { { QStringLiteral("西药"), QStringLiteral("阿莫西林"), 10.0 },
        { QStringLiteral("西药"), QStringLiteral("头孢"), 20.0 },
        { QStringLiteral("中药"), QStringLiteral("板蓝根"), 5.5 } };
    data.datasets.append(set);
    const PreparedReport report = laidOut(grouped, data);
    ASSERT_EQ(report.pages.size(), 1);
    EXPECT_EQ(report.pages.first().texts(),
        (QStringList { QStringLiteral("类别：西药"), QStringLiteral("阿莫西林"),
            QStringLiteral("头孢"), QStringLiteral("小计：30 2行"), QStringLiteral("类别：中药"),
            QStringLiteral("板蓝根"), QStringLiteral("小计：5.5 1行"),
            QStringLiteral("35.5 20 11.8333333333333") }));
}

TEST(Layout, AStretchedBandGrowsWithItsLongestTextAndItsFramesFollow)
{
    const QByteArray stretched
        = QByteArrayLiteral("<TfrxReport><TfrxReportPage Name=\"Page1\" PaperWidth=\"210\" "
                            "PaperHeight=\"297\" TopMargin=\"0\">"
                            "<TfrxMasterData Name=\"MasterData1\" Top=\"0\" Height=\"18\" "
                            "DataSet=\"Lines\" Stretched=\"True\">"
                            "<TfrxMemoView Name=\"GoodsName\" Width=\"60\" Height=\"18\" "
                            "StretchMode=\"smActualHeight\" "
                            "Font.Name=\"宋体\" Font.Height=\"-10\" GapX=\"0\" GapY=\"0\" "
                            "Text=\"[Lines.&quot;g_name&quot;]\"/>"
                            "<TfrxMemoView Name=\"Cell\" Left=\"60\" Width=\"40\" Height=\"18\" "
                            "StretchMode=\"smMaxHeight\" "
                            "Frame.Typ=\"15\" Text=\"x\"/>"
                            "</TfrxMasterData>"
                            "</TfrxReportPage></TfrxReport>");
    ReportData data;
    DataSet set { QStringLiteral("Lines"), { QStringLiteral("g_name") }, {} };
    // Six characters of 10 px fit a line of 60 px: 18 characters make three lines of 12 px.
    set.rows
        = { { QStringLiteral("阿莫西林胶囊阿莫西林胶囊阿莫西林胶囊") }, { QStringLiteral("短") } };
    data.datasets.append(set);
    const PreparedReport report = laidOut(stretched, data);
    const PreparedPage &page = report.pages.first();
    const QList<const PreparedItem *> cells = [&] {
        QList<const PreparedItem *> found;
        for (const PreparedItem &item : page.items)
            if (item.source == QLatin1String("Cell"))
                found.append(&item);
        return found;
    }();
    ASSERT_EQ(cells.size(), 2);
    EXPECT_NEAR(cells.at(0)->rect.height(), 36, 1e-9);
    EXPECT_NEAR(cells.at(1)->rect.top(), 36, 1e-9);
    EXPECT_NEAR(cells.at(1)->rect.height(), 18, 1e-9);
}

} // namespace
