#include "reports/catalogue.h"
#include "reports/template.h"
#include "tests/support/accountset.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace medistock::reports;

namespace {

QByteArray roundTrip(const QByteArray &text)
{
    const medistock::Result<ReportTemplate> report = parseTemplate(text);
    EXPECT_TRUE(report.ok()) << report.message().toStdString();
    return report ? writeTemplate(report.value()) : QByteArray();
}

TEST(TemplateFile, KeepsEverythingItDoesNotKnowAndWritesDecimalCommasWithDots)
{
    const QByteArray file
        = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
          "<TfrxReport Version=\"6.9\" ScriptLanguage=\"PascalScript\" "
          "ScriptText.Text=\"begin&#13;&#10;end.\" Shiny=\"yes\">\n"
          "<Datasets><item DataSet=\"Lines\" DataSetName=\"Lines\"/></Datasets>\n"
          "<TfrxDataPage Name=\"Data\" Height=\"1000\"/>\n"
          "<TfrxReportPage Name=\"Page1\" PaperWidth=\"210\" LeftMargin=\"10,5\">\n"
          "<TfrxMasterData Name=\"MasterData1\" Top=\"94,48819\" Height=\"18,9\">\n"
          "<TfrxMemoView Name=\"Memo1\" Left=\"3,78\" Memo.Text=\"[Lines.&quot;g_name&quot;]\" "
          "Custom=\"1,5\"/>\n"
          "<TfrxUnheardOfView Name=\"Odd\" Weight=\"3\"><Inner "
          "A=\"&lt;&amp;&gt;\"/></TfrxUnheardOfView>\n"
          "</TfrxMasterData>\n"
          "</TfrxReportPage>\n"
          "</TfrxReport>\n";
    const QByteArray once = roundTrip(file);
    EXPECT_EQ(QString::fromUtf8(once),
        QStringLiteral(
            "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\"?>\n"
            "<TfrxReport Version=\"6.9\" ScriptLanguage=\"PascalScript\" "
            "ScriptText.Text=\"begin&#13;&#10;end.\" Shiny=\"yes\">\n"
            "  <Datasets>\n"
            "    <item DataSet=\"Lines\" DataSetName=\"Lines\"/>\n"
            "  </Datasets>\n"
            "  <TfrxDataPage Name=\"Data\" Height=\"1000\"/>\n"
            "  <TfrxReportPage Name=\"Page1\" PaperWidth=\"210\" LeftMargin=\"10.5\">\n"
            "    <TfrxMasterData Name=\"MasterData1\" Top=\"94.48819\" Height=\"18.9\">\n"
            "      <TfrxMemoView Name=\"Memo1\" Left=\"3.78\" "
            "Memo.Text=\"[Lines.&quot;g_name&quot;]\" Custom=\"1,5\"/>\n"
            "      <TfrxUnheardOfView Name=\"Odd\" Weight=\"3\">\n"
            "        <Inner A=\"&lt;&amp;&gt;\"/>\n"
            "      </TfrxUnheardOfView>\n"
            "    </TfrxMasterData>\n"
            "  </TfrxReportPage>\n"
            "</TfrxReport>\n"));
    EXPECT_EQ(roundTrip(once), once);

    const ReportTemplate report = std::move(parseTemplate(once).value());
    const TemplateNode *memo = report.find(QStringLiteral("Memo1"));
    ASSERT_NE(memo, nullptr);
    EXPECT_EQ(memoText(*memo), QStringLiteral("[Lines.\"g_name\"]"));
    EXPECT_DOUBLE_EQ(memo->number(QStringLiteral("Left")), 3.78);
    EXPECT_EQ(report.datasetNames(), QStringList { QStringLiteral("Lines") });
}

TEST(TemplateFile, EditsKeepThePlaceOfAPropertyAndLineBreaksSurvive)
{
    ReportTemplate report = std::move(parseTemplate("<TfrxReport><TfrxReportPage Name=\"P\">"
                                                    "<TfrxMemoView Name=\"M\" Left=\"1\" "
                                                    "Top=\"2\" Text=\"a\"/>"
                                                    "</TfrxReportPage></TfrxReport>")
                                          .value());
    TemplateNode *memo = report.find(QStringLiteral("M"));
    memo->setNumber(QStringLiteral("Left"), 37.795275591);
    setMemoText(*memo, QStringLiteral("第一行\r\n第二行\t\"引号\""));
    memo->set(QStringLiteral("HAlign"), QStringLiteral("haRight"));
    const QByteArray written = writeTemplate(report);
    EXPECT_TRUE(written.contains("<TfrxMemoView Name=\"M\" Left=\"37.79528\" Top=\"2\" "
                                 "Text=\"第一行&#13;&#10;第二行&#9;&quot;引号&quot;\" "
                                 "HAlign=\"haRight\"/>"))
        << written.toStdString();
    const ReportTemplate again = std::move(parseTemplate(written).value());
    EXPECT_EQ(
        memoText(*again.find(QStringLiteral("M"))), QStringLiteral("第一行\r\n第二行\t\"引号\""));
}

TEST(TemplateFile, RefusesWhatIsNotATemplate)
{
    EXPECT_EQ(parseTemplate("<Other/>").message(),
        QStringLiteral("这不是报表文件：根元素应为 TfrxReport"));
    EXPECT_TRUE(parseTemplate("<TfrxReport><Unclosed></TfrxReport>")
                    .message()
                    .startsWith(QStringLiteral("报表文件格式有误（第1行）：")));
    const medistock::Result<ReportTemplate> missing
        = readTemplate(QStringLiteral("/nonexistent/report/spxs.fr3"));
    EXPECT_EQ(missing.message(),
        QStringLiteral("报表文件不存在：/nonexistent/report/spxs.fr3，不能打印！"));
}

TEST(TemplateFile, SavesWholeIntoAFolderItMakes)
{
    QTemporaryDir dir;
    const QString path = QDir(dir.path()).filePath(QStringLiteral("report/kccx.fr3"));
    const ReportTemplate report = std::move(parseTemplate("<TfrxReport/>").value());
    ASSERT_TRUE(saveTemplate(report, path).ok());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), writeTemplate(report));
}

// Every template we ship is written exactly as the writer writes it, so reading and writing it
// again changes nothing, and each one is where the catalogue says.
TEST(ShippedTemplates, RoundTripByteForByte)
{
    const QDir folder(QStringLiteral(MEDISTOCK_SOURCE_DIR "/report"));
    const QStringList files = folder.entryList({ QStringLiteral("*.fr3") }, QDir::Files);
    QStringList expected;
    for (const TemplateEntry &entry : shippedTemplates())
        expected.append(entry.name + QStringLiteral(".fr3"));
    expected.sort();
    EXPECT_EQ(files, expected);
    for (const QString &name : files) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_EQ(roundTrip(bytes), bytes) << name.toStdString();
    }
}

} // namespace
