#include "core/connection.h"
#include "tests/reports/printtest.h"
#include "tests/support/accountset.h"
#include "tests/support/documentrows.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

using namespace medistock;

namespace {

struct CliResult
{
    int status;
    QString out;
    QString err;
};

// A receipt of 10 阿莫西林胶囊 at 12 and 20 板蓝根颗粒 at 8 from 华东医药, then a sale of 2 and 5
// of them at 15 and 10 to 华康药店, entered, checked and printed through the command line on the
// fixture's master file, dated 2025-03-14.
class PrintCommands : public test::AccountSetTest
{
protected:
    void SetUp() override
    {
        AccountSetTest::SetUp();
        if (HasFatalFailure())
            return;
        test::addGoods(
            db(), { .code = QStringLiteral("200001"), .name = QStringLiteral("阿莫西林胶囊") });
        test::addGoods(db(),
            { .code = QStringLiteral("200002"),
                .name = QStringLiteral("板蓝根颗粒"),
                .unit = QStringLiteral("袋") });
        test::addSupplier(db(), QStringLiteral("100002"), QStringLiteral("华东医药"));
        test::addCustomer(db(), QStringLiteral("100002"), QStringLiteral("华康药店"));
        ASSERT_EQ(saveAndCheck(R"({"kind":"CJ","ghs_sn":"100002","ck_sn":"100001","j_sfje":280,
            "lines":[{"g_sn":"200001","jh_sl":10,"jh_dj":"12","t_ph":"B1","t_yxq":"2027-06-30"},
                     {"g_sn":"200002","jh_sl":20,"jh_dj":"8","t_ph":"B2","t_yxq":"2026-12-31"}]})"),
            QStringLiteral("CJ25031410001"));
        ASSERT_EQ(saveAndCheck(R"({"kind":"XS","kh_sn":"100002","ck_sn":"100001","ls_sfje":50,
            "lines":[{"g_sn":"200001","ls_sl":"2","ls_dj":"15","t_ph":"B1","t_yxq":"2027-06-30"},
                     {"g_sn":"200002","ls_sl":"5","ls_dj":"10","t_ph":"B2","t_yxq":"2026-12-31"}]})"),
            QStringLiteral("XS25031410001"));
    }

    CliResult run(const QStringList &arguments, const QString &reportFolder = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("MEDISTOCK_DATA"));
        if (!reportFolder.isEmpty())
            environment.insert(QStringLiteral("MEDISTOCK_REPORT_DIR"), reportFolder);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(MEDISTOCK_CLI_PATH),
            QStringList { QStringLiteral("--data"), folder(), QStringLiteral("--today"),
                QStringLiteral("2025-03-14") }
                + arguments);
        process.waitForFinished(120000);
        return { process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError()) };
    }

    QString saveAndCheck(const char *json)
    {
        const QString path = out(QStringLiteral("document.json"));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        file.close();
        const QString number
            = run({ QStringLiteral("--yes"), QStringLiteral("save"), path }).out.trimmed();
        EXPECT_EQ(run({ QStringLiteral("--yes"), QStringLiteral("check"), number }).status, 0);
        return number;
    }

    QString out(const QString &name) const { return QDir(folder()).filePath(name); }
};

TEST_F(PrintCommands, ASalePrintsToAPdfWithEverythingTheCustomerReads)
{
    const QString pdf = out(QStringLiteral("sale.pdf"));
    const CliResult printed = run({ QStringLiteral("print"), QStringLiteral("spxs"),
        QStringLiteral("XS25031410001"), QStringLiteral("--pdf"), pdf });
    ASSERT_EQ(printed.status, 0) << printed.err.toStdString();
    EXPECT_EQ(printed.out, QStringLiteral("已打印：") + pdf + QStringLiteral("，共1页\n"));
    EXPECT_EQ(printed.err, QString());
    // The default form, on A5 across.
    EXPECT_EQ(test::pdfInfo(pdf, QStringLiteral("Title")), QStringLiteral("销售单 XS25031410001"));
    EXPECT_EQ(test::pdfInfo(pdf, QStringLiteral("Pages")), QStringLiteral("1"));
    // The writer rounds the paper to whole points: 210 x 148 mm is 595.3 x 419.5.
    EXPECT_TRUE(test::pdfInfo(pdf, QStringLiteral("Page size"))
                    .startsWith(QStringLiteral("595 x 420 pts")));
    const QString text = test::pdfText(pdf);
    for (const char *expected : { "康宁大药房", "销售单", "华康药店", "XS25031410001",
             "阿莫西林胶囊", "板蓝根颗粒", "B1", "2027-06-30", "80.00", "捌拾元整",
             "本单应收：80.00", "实收：50.00", "累计欠款：30.00", "第1页 共1页" })
        EXPECT_TRUE(test::pdfHas(text, expected)) << expected << "\n" << text.toStdString();

    // The receipt prints with its own form.
    const QString receipt = out(QStringLiteral("receipt.pdf"));
    ASSERT_EQ(run({ QStringLiteral("print"), QStringLiteral("cgjh"),
                      QStringLiteral("CJ25031410001"), QStringLiteral("--pdf"), receipt })
                  .status,
        0);
    EXPECT_EQ(test::pdfInfo(receipt, QStringLiteral("Title")),
        QStringLiteral("采购进货单 CJ25031410001"));
    const QString receiptText = test::pdfText(receipt);
    for (const char *expected : { "华东医药", "280.00", "贰佰捌拾元整" })
        EXPECT_TRUE(test::pdfHas(receiptText, expected)) << expected;
}

// A collection saved and checked through the command line prints on 客户收款单; asked for on
// the entry's form it is refused and no file is written.
TEST_F(PrintCommands, ACollectionPrintsOnItsFormAndNotOnTheEntrys)
{
    ASSERT_EQ(saveAndCheck(R"({"kind":"SK","k_ghskh":"100002","k_rq":"2025-03-14",
            "k_sfje":"1500.4","k_mlje":0.6,"k_fkfs":"现金","k_note":"收三月货款",
            "gl_djh2":"XS25031410001"})"),
        QStringLiteral("SK25031410001"));
    const QString pdf = out(QStringLiteral("collection.pdf"));
    const CliResult printed = run({ QStringLiteral("print"), QStringLiteral("ysyfskd"),
        QStringLiteral("SK25031410001"), QStringLiteral("--pdf"), pdf });
    ASSERT_EQ(printed.status, 0) << printed.err.toStdString();
    EXPECT_EQ(test::pdfInfo(pdf, QStringLiteral("Title")),
        QStringLiteral("客户收款单 SK25031410001"));
    const QString text = test::pdfText(pdf);
    for (const char *expected : { "康宁大药房", "客户收款单", "华康药店", "2025-03-14",
             "1,500.40", "壹仟伍佰元肆", "现金", "XS25031410001", "收三月货款",
             "审核：admin" })
        EXPECT_TRUE(test::pdfHas(text, expected)) << expected << "\n" << text.toStdString();

    const CliResult wrong = run({ QStringLiteral("print"), QStringLiteral("ysyfysk"),
        QStringLiteral("SK25031410001"), QStringLiteral("--pdf"), out(QStringLiteral("x.pdf")) });
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.err, QStringLiteral("单据：SK25031410001不存在！\n"));
    EXPECT_FALSE(QFileInfo::exists(out(QStringLiteral("x.pdf"))));
}

TEST_F(PrintCommands, AStyleIsChosenByNameAndAWrongOneIsRefused)
{
    const QString pdf = out(QStringLiteral("noprices.pdf"));
    ASSERT_EQ(
        run({ QStringLiteral("print"), QStringLiteral("spxs"), QStringLiteral("XS25031410001"),
                QStringLiteral("--style"), QStringLiteral("spxs4"), QStringLiteral("--pdf"), pdf })
            .status,
        0);
    EXPECT_EQ(test::pdfInfo(pdf, QStringLiteral("Title")),
        QStringLiteral("销售单(不含售价) XS25031410001"));
    const QString text = test::pdfText(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("阿莫西林胶囊")));
    EXPECT_FALSE(text.contains(QStringLiteral("80.00")));
    EXPECT_FALSE(text.contains(QStringLiteral("15.00")));

    const CliResult wrong = run({ QStringLiteral("print"), QStringLiteral("spxs"),
        QStringLiteral("XS25031410001"), QStringLiteral("--style"), QStringLiteral("cgjh2"),
        QStringLiteral("--pdf"), out(QStringLiteral("x.pdf")) });
    EXPECT_EQ(wrong.status, 1);
    EXPECT_EQ(wrong.err, QStringLiteral("打印样式“cgjh2”不能用于“spxs”的打印！\n"));
    EXPECT_FALSE(QFileInfo::exists(out(QStringLiteral("x.pdf"))));
    EXPECT_EQ(
        run({ QStringLiteral("print"), QStringLiteral("spxs"), QStringLiteral("XS25031410001") })
            .status,
        2);
}

TEST_F(PrintCommands, AMissingTemplateOrDocumentPrintsNothing)
{
    QTemporaryDir empty;
    const CliResult missing
        = run({ QStringLiteral("print"), QStringLiteral("spxs"), QStringLiteral("XS25031410001"),
                  QStringLiteral("--pdf"), out(QStringLiteral("m.pdf")) },
            empty.path());
    EXPECT_EQ(missing.status, 1);
    EXPECT_EQ(missing.err,
        QStringLiteral("报表文件不存在：") + QDir(empty.path()).filePath(QStringLiteral("spxs.fr3"))
            + QStringLiteral("，不能打印！\n"));
    const CliResult absent = run({ QStringLiteral("print"), QStringLiteral("spxs"),
        QStringLiteral("XS25031499999"), QStringLiteral("--pdf"), out(QStringLiteral("m.pdf")) });
    EXPECT_EQ(absent.status, 1);
    EXPECT_EQ(absent.err, QStringLiteral("单据：XS25031499999不存在！\n"));
    EXPECT_FALSE(QFileInfo::exists(out(QStringLiteral("m.pdf"))));
}

TEST_F(PrintCommands, PrintAllAsksThenPrintsEachDocumentOfTheRangeIntoOnePdf)
{
    ASSERT_EQ(saveAndCheck(R"({"kind":"XS","kh_sn":"100002","ck_sn":"100001",
        "lines":[{"g_sn":"200002","ls_sl":"1","ls_dj":"10","t_ph":"B2","t_yxq":"2026-12-31"}]})"),
        QStringLiteral("XS25031410002"));
    const QString pdf = out(QStringLiteral("all.pdf"));
    const QStringList arguments { QStringLiteral("print-all"), QStringLiteral("spxs"),
        QStringLiteral("--from"), QStringLiteral("2025-03-01"), QStringLiteral("--to"),
        QStringLiteral("2025-03-14"), QStringLiteral("--pdf"), pdf };
    const CliResult declined = run(arguments);
    EXPECT_EQ(declined.status, 1);
    EXPECT_EQ(declined.err,
        QStringLiteral("您的操作将打印当前查询中的所有单据，\r\n\r\n将直接打印不做预览，确认打印吗"
                       "？ [是/否] 否\n"));
    EXPECT_FALSE(QFileInfo::exists(pdf));

    const CliResult printed = run(QStringList { QStringLiteral("--yes") } + arguments);
    ASSERT_EQ(printed.status, 0) << printed.err.toStdString();
    EXPECT_EQ(test::pdfInfo(pdf, QStringLiteral("Pages")), QStringLiteral("2"));
    const QString text = test::pdfText(pdf);
    EXPECT_LT(text.indexOf(QStringLiteral("XS25031410001")),
        text.indexOf(QStringLiteral("XS25031410002")));

    // Nothing in the range: the question, then nothing.
    const QString none = out(QStringLiteral("none.pdf"));
    const CliResult empty = run({ QStringLiteral("--yes"), QStringLiteral("print-all"),
        QStringLiteral("cgjh"), QStringLiteral("--from"), QStringLiteral("2025-01-01"),
        QStringLiteral("--to"), QStringLiteral("2025-01-31"), QStringLiteral("--pdf"), none });
    EXPECT_EQ(empty.status, 0);
    EXPECT_EQ(empty.out, QString());
    EXPECT_EQ(empty.err,
        QStringLiteral("您的操作将打印当前查询中的所有单据，\r\n\r\n将直接打印不做预览，确认打印吗"
                       "？ [是/否] 是\n"));
    EXPECT_FALSE(QFileInfo::exists(none));
}

TEST_F(PrintCommands, ALoanReturnAndA58MillimetreReceiptPrintAsTheirKeysSay)
{
    db().exec(
        QStringLiteral("insert into jxc_khjh (kh_sn,jh_rq,gl_djh,ck_sn,jh_status,jh_flag,a_name) "
                       "values ('100002','2025-03-14','HH25031410001','100001',1,'hh','admin')"));
    db().exec(
        QStringLiteral("insert into jxc_khjhsp (gl_djh,g_sn,jh_dj,jh_zje,jh_sl,jh_hhsl) values "
                       "('HH25031410001','200001',15,30,2,2)"));
    const QString loan = out(QStringLiteral("loan.pdf"));
    ASSERT_EQ(run({ QStringLiteral("print"), QStringLiteral("khjh"),
                      QStringLiteral("HH25031410001"), QStringLiteral("--pdf"), loan })
                  .status,
        0);
    EXPECT_TRUE(test::pdfHas(test::pdfText(loan), "客户还货单"));

    db().exec(QStringLiteral(
        "insert into jxc_posxsd (gl_djh,pos_xsrq,ck_sn,pos_yfje,pos_sfje,pos_zlje,a_name) "
        "values ('XS25031490001','2025-03-14 10:00:00','100001',30,50,20,'admin')"));
    db().exec(QStringLiteral(
        "insert into jxc_posxssp (gl_djh,g_sn,pos_dj,pos_sl,pos_zje,pos_dzl,dw_name) "
        "values ('XS25031490001','200001',15,2,30,1,'盒')"));
    const QString roll = out(QStringLiteral("roll.pdf"));
    ASSERT_EQ(run({ QStringLiteral("print"), QStringLiteral("posxp58"),
                      QStringLiteral("XS25031490001"), QStringLiteral("--pdf"), roll })
                  .status,
        0);
    // 58 mm wide; as long as its content.
    const QStringList size
        = test::pdfInfo(roll, QStringLiteral("Page size")).split(QLatin1Char(' '));
    ASSERT_GE(size.size(), 3);
    EXPECT_NEAR(size.at(0).toDouble(), 58 / 25.4 * 72, 0.5);
    EXPECT_LT(size.at(2).toDouble(), 120 / 25.4 * 72);
    const QString text = test::pdfText(roll);
    for (const char *expected : { "POS销售单", "阿莫西林胶囊", "应收：30.00", "找零：20.00" })
        EXPECT_TRUE(test::pdfHas(text, expected)) << expected << text.toStdString();
}

} // namespace
