#include "core/connection.h"
#include "reports/documentdata.h"
#include "reports/printing.h"
#include "sales/salecheck.h"
#include "shell/session.h"
#include "tests/reports/printtest.h"
#include "tests/support/documentrows.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace medistock::test {

namespace {

class DocumentPrint : public PrintTest
{
};

TEST_F(DocumentPrint, ASaleHandsItsHeaderTotalsCapitalsAndCustomerBalances)
{
    // An earlier sale leaves the customer owing 50.
    const QString earlier = saveSale(
        draft({ line(QStringLiteral("200002"), QStringLiteral("10"), QStringLiteral("8")) }, 30));
    ASSERT_TRUE(sales::checkSale(session(), earlier).ok());
    const QString sale = saveSale(
        draft({ line(QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("12"),
                    QStringLiteral("B1")),
                  line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("8")) },
            20));

    QHash<QString, QString> v = variables(QStringLiteral("spxs"), sale);
    EXPECT_EQ(v.value(QStringLiteral("comName")), QStringLiteral("康宁大药房"));
    EXPECT_EQ(v.value(QStringLiteral("comTele")), QStringLiteral("0571-88886666"));
    EXPECT_EQ(v.value(QStringLiteral("djh")), sale);
    EXPECT_EQ(v.value(QStringLiteral("khName")), QStringLiteral("华康药店"));
    EXPECT_EQ(v.value(QStringLiteral("jhDate")), QStringLiteral("2025-03-14"));
    EXPECT_EQ(v.value(QStringLiteral("aName")), QStringLiteral("admin"));
    EXPECT_EQ(v.value(QStringLiteral("yf")), QStringLiteral("48"));
    EXPECT_EQ(v.value(QStringLiteral("sf")), QStringLiteral("20"));
    EXPECT_EQ(v.value(QStringLiteral("dxje")), QStringLiteral("肆拾捌元整"));
    EXPECT_EQ(v.value(QStringLiteral("xxyf")), QStringLiteral("48.00"));
    EXPECT_EQ(v.value(QStringLiteral("xxsf")), QStringLiteral("20.00"));
    // "#.00" writes no zero before the point.
    EXPECT_EQ(v.value(QStringLiteral("xxyh")), QStringLiteral(".00"));
    EXPECT_EQ(v.value(QStringLiteral("checker")), QString());
    // Unchecked: the balance as of the sale's date, then what this sale will add.
    EXPECT_EQ(v.value(QStringLiteral("khqk")), QStringLiteral("50"));
    EXPECT_EQ(v.value(QStringLiteral("ljqkje")), QStringLiteral("78"));
    EXPECT_EQ(v.value(QStringLiteral("yf2")), QStringLiteral("98"));

    // Checked, and another sale of the same day posted after it: the sale still prints the
    // balance before its own ledger row and the one that row carries.
    ASSERT_TRUE(sales::checkSale(session(), sale).ok());
    const QString later = saveSale(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }));
    ASSERT_TRUE(sales::checkSale(session(), later).ok());
    v = variables(QStringLiteral("spxs"), sale);
    EXPECT_EQ(v.value(QStringLiteral("khqk")), QStringLiteral("50"));
    EXPECT_EQ(v.value(QStringLiteral("ljqkje")), QStringLiteral("78"));
    EXPECT_EQ(v.value(QStringLiteral("checker")), QStringLiteral("admin"));
    EXPECT_EQ(variables(QStringLiteral("spxs"), later).value(QStringLiteral("khqk")),
        QStringLiteral("78"));
    EXPECT_EQ(variables(QStringLiteral("spxs"), later).value(QStringLiteral("ljqkje")),
        QStringLiteral("86"));
}

TEST_F(DocumentPrint, ASaleDateShowsItsTimeOnlyWhenSalesRecordTheSecond)
{
    const QString sale = saveSale(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }));
    db().exec(QStringLiteral("update jxc_lsxsd set ls_xsrq='2025-03-14 10:20:30' where gl_djh=?"),
        { sale });
    EXPECT_EQ(variables(QStringLiteral("spxs"), sale).value(QStringLiteral("jhDate")),
        QStringLiteral("2025-03-14"));
    setParameter(QStringLiteral("cs_cs014"), 1);
    EXPECT_EQ(variables(QStringLiteral("spxs"), sale).value(QStringLiteral("jhDate")),
        QStringLiteral("2025-03-14 10:20:30"));
}

TEST_F(DocumentPrint, SalesLinesCarryTheirNameMarksTheDiscountedPriceAndTheChosenOrder)
{
    documents::LineDraft discounted = line(
        QStringLiteral("200001"), QStringLiteral("2"), QStringLiteral("10"), QStringLiteral("B1"));
    discounted.discountRate = QStringLiteral("0.9");
    const QString sale = saveSale(draft(
        { line(QStringLiteral("200002"), QStringLiteral("3"), QStringLiteral("8")), discounted,
            line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) }));
    const QList<QSqlRecord> stored = db().rows(
        QStringLiteral("select id from jxc_lsxssp where gl_djh=? order by id"), { sale });
    ASSERT_EQ(stored.size(), 3);
    db().exec(QStringLiteral("update jxc_lsxssp set t_zp='(赠品)',g_tmbz='[大盒]' where id=?"),
        { stored.at(1).value(0) });
    // A line with no discount rate at all is not printed.
    db().exec(
        QStringLiteral("update jxc_lsxssp set ls_dzl=0 where id=?"), { stored.at(2).value(0) });

    EXPECT_EQ(lines(QStringLiteral("spxs"), sale, QStringLiteral("g_name,ls_sl,sj,t_ph,gg_name")),
        (QStringList { QStringLiteral("板蓝根颗粒|3|8||"),
            QStringLiteral("阿莫西林胶囊[大盒](赠品)|2|9|B1|") }));
    setParameter(QStringLiteral("cs_dysx"), 1);
    EXPECT_EQ(lines(QStringLiteral("spxs"), sale, QStringLiteral("g_sn")),
        (QStringList { QStringLiteral("200001"), QStringLiteral("200002") }));
    setParameter(QStringLiteral("cs_dysx"), 2);
    // By the goods' own name, as the database orders it.
    EXPECT_EQ(lines(QStringLiteral("spxs"), sale, QStringLiteral("g_sn")),
        (QStringList { QStringLiteral("200002"), QStringLiteral("200001") }));
}

TEST_F(DocumentPrint, TheMergedSaleHasOneLinePerGoods)
{
    const QString sale = saveSale(draft({ line(QStringLiteral("200001"), QStringLiteral("2"),
                                              QStringLiteral("12"), QStringLiteral("B1")),
        line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")),
        line(QStringLiteral("200001"), QStringLiteral("3"), QStringLiteral("12"),
            QStringLiteral("B2")) }));
    const QStringList merged { QStringLiteral("200001|阿莫西林胶囊|5|60"),
        QStringLiteral("200002|板蓝根颗粒|1|8") };
    EXPECT_EQ(lines(QStringLiteral("spxs"), sale, QStringLiteral("g_sn,g_name,ls_sl,ls_je"),
                  QStringLiteral("spxs3")),
        merged);
    EXPECT_EQ(lines(QStringLiteral("spxs"), sale, QStringLiteral("g_sn")).size(), 3);
    // "打印销售单商品不同批次商品合并打印" merges every sale form.
    setParameter(QStringLiteral("cs_employts"), 1);
    EXPECT_EQ(
        lines(QStringLiteral("spxs"), sale, QStringLiteral("g_sn,g_name,ls_sl,ls_je")), merged);
}

TEST_F(DocumentPrint, TheStyleIsChosenOnlyWhenItsParameterIsOnAndRightsPickTheFormsWithoutPrices)
{
    EXPECT_TRUE(reports::styleChoices(session(), QStringLiteral("spxs")).isEmpty());
    EXPECT_TRUE(reports::styleChoices(session(), QStringLiteral("cgjh")).isEmpty());
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("spxs"), {}), QStringLiteral("spxs"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("cgjh"), {}), QStringLiteral("cgjh"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("kcdb"), {}), QStringLiteral("kcdbd"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("spby"), {}), QStringLiteral("bsby"));

    setParameter(QStringLiteral("cs_cs010"), 1);
    QStringList offered;
    for (const reports::PrintStyle &style :
        reports::styleChoices(session(), QStringLiteral("spxs")))
        offered.append(style.title + QLatin1Char('=') + style.templateName);
    EXPECT_EQ(offered,
        (QStringList { QStringLiteral("销售单=spxs"), QStringLiteral("销售单(不含售价)=spxs4"),
            QStringLiteral("销售单(含零售价)=spxs2") }));
    EXPECT_TRUE(reports::styleChoices(session(), QStringLiteral("cgjh")).isEmpty());
    setParameter(QStringLiteral("cs_cs011"), 1);
    EXPECT_EQ(reports::styleChoices(session(), QStringLiteral("cgjh")).size(), 2);
    EXPECT_EQ(reports::styleChoices(session(), QStringLiteral("cgjh")).at(1).title,
        QStringLiteral("采购进货单(无进价)"));

    // A clerk who may see neither cost nor sale prices.
    addOperatorWithRights(session(), QStringLiteral("clerk"),
        { { QStringLiteral("qtcz"), QStringLiteral("000000000") } });
    loginAs(QStringLiteral("clerk"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("spxs"), QStringLiteral("spxs2")),
        QStringLiteral("spxs4"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("cgjh"), {}), QStringLiteral("cgjh2"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("spdd"), {}), QStringLiteral("xsd2"));
    EXPECT_EQ(reports::templateFor(session(), QStringLiteral("kcdb"), {}), QStringLiteral("kcdbd"));
}

TEST_F(DocumentPrint, AStyleOfAnotherDocumentAndAMissingDocumentAreRefusedAndTold)
{
    const QString sale = saleOfLines(1);
    ui.clear();
    const Result<reports::PrintedDocument> wrong = reports::prepareDocument(
        session(), folders(), QStringLiteral("spxs"), sale, QStringLiteral("cgjh2"), printed());
    EXPECT_FALSE(wrong.ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("打印样式“cgjh2”不能用于“spxs”的打印！") });
    ui.clear();
    EXPECT_FALSE(reports::prepareDocument(
        session(), folders(), QStringLiteral("spxs"), QStringLiteral("XS25031499999"))
                     .ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("单据：XS25031499999不存在！") });
    ui.clear();
    EXPECT_FALSE(reports::prepareDocument(session(), folders(), QStringLiteral("zzzz"), sale).ok());
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("没有“zzzz”这种单据的打印！") });
}

// The handover slip is found by the row's id and shows the shift's figures with the amount
// decimals, on the roll it is asked for; an id that is not there, or not an id, is refused.
TEST_F(DocumentPrint, TheHandoverSlipShowsTheShiftsFiguresOnEitherRoll)
{
    const QString id = QString::number(db().insert(
        QStringLiteral("insert into jxc_jbgl (jb_time,jb_curruser,jb_nextuser,jb_bbskzje,"
                       "jb_sjyyk,jb_xfyyk,jb_jjzje,jb_note) values (?,?,?,?,?,?,?,?)"),
        { QStringLiteral("2025-03-14 18:30:05"), QStringLiteral("admin"), QStringLiteral("王芳"),
            1234.5, 1000, 234.5, 1234.5, QStringLiteral("钱箱已清点") }));
    const QStringList expected { QStringLiteral("康宁大药房"), QStringLiteral("【交班小票】"),
        QStringLiteral("交班时间：2025-03-14 18:30:05"), QStringLiteral("交班人：admin"),
        QStringLiteral("接班人：王芳"), QStringLiteral("本班收款总额：1234.50"),
        QStringLiteral("上交营业款：1000.00"), QStringLiteral("下放营业款：234.50"),
        QStringLiteral("交接金额：1234.50"), QStringLiteral("备注：钱箱已清点"),
        QStringLiteral("交班人签字："), QStringLiteral("接班人签字：") };
    for (const auto &[key, width] :
        { std::pair { QStringLiteral("jbxp"), 80 }, std::pair { QStringLiteral("jbxp58"), 58 } }) {
        const reports::PrintedDocument slip = printed(key, id);
        ASSERT_EQ(slip.report.pages.size(), 1) << key.toStdString();
        EXPECT_EQ(slip.report.pages.first().sizeMm.width(), width);
        EXPECT_EQ(slip.report.pages.first().texts(), expected) << key.toStdString();
    }
    ui.clear();
    for (const QString &missing : { QStringLiteral("99"), QStringLiteral("1a") })
        EXPECT_FALSE(
            reports::prepareDocument(session(), folders(), QStringLiteral("jbxp"), missing).ok());
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("单据：99不存在！"), QStringLiteral("单据：1a不存在！") }));
}

TEST_F(DocumentPrint, AMissingTemplateIsToldAndAnEditedCopyWinsOverTheShippedOne)
{
    const QString sale = saleOfLines(1);
    QTemporaryDir empty;
    ui.clear();
    const reports::TemplateFolders nowhere { QString(), empty.path() };
    EXPECT_FALSE(reports::prepareDocument(session(), nowhere, QStringLiteral("spxs"), sale).ok());
    EXPECT_EQ(ui.informed,
        QStringList { QStringLiteral("报表文件不存在：")
            + QDir::toNativeSeparators(QDir(empty.path()).filePath(QStringLiteral("spxs.fr3")))
            + QStringLiteral("，不能打印！") });

    QTemporaryDir user;
    reports::TemplateFolders edited = folders();
    edited.user = user.path();
    QFile shipped(QDir(folders().shipped).filePath(QStringLiteral("spxs.fr3")));
    ASSERT_TRUE(shipped.open(QIODevice::ReadOnly));
    QByteArray text = shipped.readAll();
    text.replace("Text=\"销售单\"", "Text=\"销售出库单\"");
    QFile copy(edited.userPathOf(QStringLiteral("spxs")));
    ASSERT_TRUE(copy.open(QIODevice::WriteOnly));
    copy.write(text);
    copy.close();
    const Result<reports::PrintedDocument> document
        = reports::prepareDocument(session(), edited, QStringLiteral("spxs"), sale, {}, printed());
    ASSERT_TRUE(document.ok());
    EXPECT_EQ(document->report.pages.first().textsOf(QStringLiteral("DocumentTitle")),
        QStringList { QStringLiteral("销售出库单") });
}

// The shipped sale form on A5 holds 12 lines a page; the header and the column captions come
// back on every page, each page adds up its own lines.
TEST_F(DocumentPrint, SixtyLinesOfASaleOnA5FillFivePagesEachWithItsHeaderAndSubtotal)
{
    const QString sale = saleOfLines(60);
    const reports::PrintedDocument document = printed(QStringLiteral("spxs"), sale);
    ASSERT_EQ(document.report.pages.size(), 5);
    for (int p = 0; p < 5; ++p) {
        const reports::PreparedPage &page = document.report.pages.at(p);
        EXPECT_EQ(page.sizeMm, QSizeF(210, 148));
        EXPECT_EQ(page.textsOf(QStringLiteral("CompanyName")),
            QStringList { QStringLiteral("康宁大药房") });
        EXPECT_EQ(page.textsOf(QStringLiteral("DocumentNumber")),
            QStringList { QStringLiteral("单号：") + sale });
        EXPECT_EQ(
            page.textsOf(QStringLiteral("Caption2")), QStringList { QStringLiteral("商品名称") });
        EXPECT_EQ(page.textsOf(QStringLiteral("Cell2")).size(), 12);
        // Lines 12p+1 .. 12p+12 at 1 yuan more each: 144p + 78.
        EXPECT_EQ(page.textsOf(QStringLiteral("PageTotal")),
            QStringList { QStringLiteral("本页小计：%1.00").arg(144 * p + 78) });
        EXPECT_EQ(page.textsOf(QStringLiteral("PageNumber")),
            QStringList { QStringLiteral("第%1页 共5页").arg(p + 1) });
    }
    const reports::PreparedPage &last = document.report.pages.last();
    EXPECT_EQ(last.textsOf(QStringLiteral("Cell1")).first(), QStringLiteral("49"));
    EXPECT_TRUE(document.report.pages.first().textsOf(QStringLiteral("Summary1_1")).isEmpty());
    EXPECT_EQ(last.textsOf(QStringLiteral("Summary1_1")),
        QStringList { QStringLiteral("合计金额（大写）：壹仟捌佰叁拾元整") });
    EXPECT_EQ(
        last.textsOf(QStringLiteral("Summary1_2")), QStringList { QStringLiteral("￥1,830.00") });
}

TEST_F(DocumentPrint, TheLastPageOfASaleIsFilledWithBlankRows)
{
    const reports::PrintedDocument document = printed(QStringLiteral("spxs"), saleOfLines(50));
    ASSERT_EQ(document.report.pages.size(), 5);
    const reports::PreparedPage &last = document.report.pages.last();
    int framedRows = 0;
    for (const reports::PreparedItem &item : last.items)
        framedRows += item.source == QLatin1String("Cell2") ? 1 : 0;
    EXPECT_EQ(framedRows, 12);
    EXPECT_EQ(last.textsOf(QStringLiteral("Cell2")).size(), 2);
    EXPECT_EQ(last.textsOf(QStringLiteral("Cell1")),
        (QStringList { QStringLiteral("49"), QStringLiteral("50") }));
}

TEST_F(DocumentPrint, ALoanReturnNumberedHHPrintsTheTitle还货)
{
    for (const char *number : { "JH25031410001", "HH25031410001" }) {
        db().exec(QStringLiteral("insert into jxc_khjh (kh_sn,jh_rq,gl_djh,ck_sn,u_sn,jh_status,"
                                 "jh_flag,a_name,jh_note) values ('100002','2025-03-14',?,"
                                 "'100001','',1,?,'admin','')"),
            { QString::fromLatin1(number), QString::fromLatin1(number).left(2).toLower() });
        db().exec(QStringLiteral("insert into jxc_khjhsp (gl_djh,g_sn,jh_dj,jh_zje,jh_sl,jh_hhsl,"
                                 "jh_xssl,jh_yj,jh_zj,a_name) values (?,'200001',12,24,2,0,0,50,"
                                 "0.5,'admin')"),
            { QString::fromLatin1(number) });
    }
    EXPECT_EQ(printed(QStringLiteral("khjh"), QStringLiteral("JH25031410001"))
                  .report.pages.first()
                  .textsOf(QStringLiteral("DocumentTitle")),
        QStringList { QStringLiteral("客户借货单") });
    const reports::PrintedDocument returned
        = printed(QStringLiteral("khjh"), QStringLiteral("HH25031410001"));
    EXPECT_EQ(returned.report.pages.first().textsOf(QStringLiteral("DocumentTitle")),
        QStringList { QStringLiteral("客户还货单") });
    EXPECT_EQ(returned.report.pages.first().textsOf(QStringLiteral("Cell2")),
        QStringList { QStringLiteral("阿莫西林胶囊") });
    EXPECT_EQ(reports::keyForNumber(QStringLiteral("HH25031410001")), QStringLiteral("khjh"));
}

TEST_F(DocumentPrint, ATransferIsValuedAtThePresetSalePricesAndAReturnPrintsPositiveAmounts)
{
    db().exec(QStringLiteral("insert into jxc_kcdbd (gl_djh,ck_out,ck_in,db_dbrq,db_status,u_sn,"
                             "db_note,a_name) values ('DB25031410001','100001','100001',"
                             "'2025-03-14',0,'','','admin')"));
    db().exec(QStringLiteral("insert into jxc_dbsp (gl_djh,g_sn,db_sl,db_dj,db_zje,a_name) values "
                             "('DB25031410001','200001',3,5,15,'admin'),"
                             "('DB25031410001','200002',2,3,6,'admin')"));
    QHash<QString, QString> v = variables(QStringLiteral("kcdb"), QStringLiteral("DB25031410001"));
    // 3 x 12 + 2 x 8 at the goods' g_sj.
    EXPECT_EQ(v.value(QStringLiteral("yf")), QStringLiteral("52"));
    EXPECT_EQ(v.value(QStringLiteral("dxje")), QStringLiteral("伍拾贰元整"));
    EXPECT_EQ(lines(QStringLiteral("kcdb"), QStringLiteral("DB25031410001"),
                  QStringLiteral("g_name,sjje")),
        (QStringList { QStringLiteral("阿莫西林胶囊|36"), QStringLiteral("板蓝根颗粒|16") }));

    const QString sale = saleOfLines(3);
    sales::SaleDraft back
        = draft({ line(QStringLiteral("200002"), QStringLiteral("2"), QStringLiteral("2")) }, 4);
    const QString returned = saveReturn(back);
    v = variables(QStringLiteral("xsth"), returned);
    EXPECT_EQ(v.value(QStringLiteral("yf")), QStringLiteral("4"));
    EXPECT_EQ(v.value(QStringLiteral("sf")), QStringLiteral("4"));
    EXPECT_EQ(v.value(QStringLiteral("dxje")), QStringLiteral("肆元整"));
    // The sale of 6 left 6 owing; the return gives back 4 in cash: nothing changes in what is owed.
    EXPECT_EQ(v.value(QStringLiteral("khqk")), QStringLiteral("6"));
    EXPECT_EQ(v.value(QStringLiteral("ljqkje")), QStringLiteral("6"));
    EXPECT_EQ(sale.left(2), QStringLiteral("XS"));
}

} // namespace

} // namespace medistock::test
