#include "core/connection.h"
#include "reports/catalogue.h"
#include "reports/documentdata.h"
#include "reports/layout.h"
#include "reports/printing.h"
#include "reports/samples.h"
#include "reports/template.h"
#include "sales/salecheck.h"
#include "tests/reports/printtest.h"

namespace medistock::test {

namespace {

// One stored document of each key: its header row and one line of goods 200001, written
// directly, as another workstation or an older version would have left them.
struct StoredDocument
{
    const char *key;
    const char *number;
    const char *header; // insert into the header table; "?" is the number
    const char *line; // insert into the line table; "?" is the number
};

const StoredDocument stored[] = {
    { "cgjh", "CJ25031410001",
        "insert into jxc_jhd (j_sn,ghs_sn,ck_sn,j_jhrq,j_yfje,j_sfje,j_status,a_name) values "
        "(?,'','100001','2025-03-14',24,24,1,'admin')",
        "insert into jxc_jhsp (j_sn,g_sn,jh_dj,jh_sl,jh_je,jh_taxdj,jh_zje,jh_dzl) values "
        "(?,'200001',12,2,24,12,24,1)" },
    { "cgth", "CT25031410001",
        "insert into jxc_thd (gl_djh,ghs_sn,ck_sn,th_thrq,th_yfje,th_sfje,th_status,a_name) "
        "values (?,'','100001','2025-03-14',12,0,0,'admin')",
        "insert into jxc_thsp (gl_djh,g_sn,th_dj,th_sl,th_je,th_taxdj,th_zje,th_dzl) values "
        "(?,'200001',12,1,12,12,12,1)" },
    { "cgd", "CD25031410001",
        "insert into jxc_cgd (gl_djh,ghs_sn,ck_sn,j_jhrq,j_yfje,j_sfje,j_status,a_name) values "
        "(?,'','100001','2025-03-14',24,0,0,'admin')",
        "insert into jxc_cgsp (gl_djh,g_sn,jh_dj,jh_sl,jh_je,jh_taxdj,jh_zje,jh_dzl) values "
        "(?,'200001',12,2,24,12,24,1)" },
    { "spdd", "XD25031410001",
        "insert into jxc_xsd (gl_djh,kh_sn,ck_sn,ls_xsrq,ls_yfje,ls_sfje,ls_status,a_name) "
        "values (?,'100002','100001','2025-03-14',24,0,0,'admin')",
        "insert into jxc_xssp (gl_djh,g_sn,ls_dj,ls_sl,ls_je,ls_taxdj,ls_zje,ls_dzl) values "
        "(?,'200001',12,2,24,12,24,1)" },
    { "spcf", "CF25031410001",
        "insert into jxc_cfd (gl_djh,ck_sn,cf_cfrq,g_sn,cf_cbj,cf_sl,cf_status,a_name) values "
        "(?,'100001','2025-03-14','200001',5,1,0,'admin')",
        "insert into jxc_cfsp (gl_djh,g_sn,cf_dj,cf_sl,cf_zje) values (?,'200002',0.5,10,5)" },
    { "spkb", "KB25031410001",
        "insert into jxc_kbd (gl_djh,ck_sn,kb_kbrq,g_sn,kb_cbj,kb_sl,kb_status,a_name) values "
        "(?,'100001','2025-03-14','200001',5,1,0,'admin')",
        "insert into jxc_kbsp (gl_djh,g_sn,kb_dj,kb_sl,kb_zje) values (?,'200002',0.5,10,5)" },
    { "spbs", "BS25031410001",
        "insert into jxc_bsd (gl_djh,ck_sn,bs_bsrq,bs_status,bs_note,a_name) values "
        "(?,'100001','2025-03-14',0,'破损','admin')",
        "insert into jxc_bssp (gl_djh,g_sn,bs_sl,bs_dj,bs_zje) values (?,'200001',1,5,5)" },
    { "spby", "BY25031410001",
        "insert into jxc_byd (gl_djh,ck_sn,by_byrq,by_status,by_note,a_name) values "
        "(?,'100001','2025-03-14',0,'盘盈','admin')",
        "insert into jxc_bysp (gl_djh,g_sn,by_sl,by_dj,by_zje) values (?,'200001',1,5,5)" },
    { "kcpd", "PD25031410001",
        "insert into jxc_kcpd (gl_djh,pd_rq,pd_note,pd_status,ck_sn,a_name) values "
        "(?,'2025-03-14','月末盘点',0,'100001','admin')",
        "insert into jxc_kcpdsp (gl_djh,g_sn,pd_sl,kc_sl,pd_dj,pd_zje) values "
        "(?,'200001',98,100,5,-10)" },
    { "posxsd", "XS25031490001",
        "insert into jxc_posxsd (gl_djh,pos_xsrq,ck_sn,pos_yfje,pos_sfje,pos_zlje,a_name) values "
        "(?,'2025-03-14 10:00:00','100001',24,30,6,'admin')",
        "insert into jxc_posxssp (gl_djh,g_sn,pos_dj,pos_sl,pos_zje,pos_dzl,dw_name) values "
        "(?,'200001',12,2,24,1,'盒')" },
};

class EveryKey : public PrintTest
{
};

TEST_F(EveryKey, PrintsAStoredDocumentWithItsNumberAndLines)
{
    for (const StoredDocument &document : stored) {
        const QString number = QString::fromLatin1(document.number);
        db().exec(QString::fromUtf8(document.header), { number });
        db().exec(QString::fromUtf8(document.line), { number });
    }
    db().exec(QStringLiteral("insert into jxc_kcdbd (gl_djh,ck_out,ck_in,db_dbrq,db_status,"
                             "a_name) values ('DB25031410001','100001','100001','2025-03-14',0,"
                             "'admin')"));
    db().exec(QStringLiteral("insert into jxc_dbsp (gl_djh,g_sn,db_sl,db_dj,db_zje) values "
                             "('DB25031410001','200001',2,5,10)"));
    db().exec(QStringLiteral("insert into jxc_khjh (kh_sn,jh_rq,gl_djh,ck_sn,jh_status,jh_flag,"
                             "a_name) values ('100002','2025-03-14','JH25031410001','100001',0,"
                             "'jh','admin')"));
    db().exec(QStringLiteral("insert into jxc_khjhsp (gl_djh,g_sn,jh_dj,jh_zje,jh_sl) values "
                             "('JH25031410001','200001',12,24,2)"));
    const QString sale = saleOfLines(2);
    const QString returned = saveReturn(
        draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("1")) }));

    QList<std::pair<QString, QString>> printedKeys;
    for (const StoredDocument &document : stored)
        printedKeys.append(
            { QString::fromLatin1(document.key), QString::fromLatin1(document.number) });
    printedKeys += { { QStringLiteral("kcdb"), QStringLiteral("DB25031410001") },
        { QStringLiteral("khjh"), QStringLiteral("JH25031410001") },
        { QStringLiteral("spxs"), sale }, { QStringLiteral("xsth"), returned },
        { QStringLiteral("xshh"), returned },
        { QStringLiteral("posxp"), QStringLiteral("XS25031490001") },
        { QStringLiteral("posxp58"), QStringLiteral("XS25031490001") } };
    QStringList keys;
    for (const auto &[key, number] : printedKeys) {
        keys.append(key);
        const reports::PrintedDocument document = printed(key, number);
        ASSERT_FALSE(document.report.pages.isEmpty()) << key.toStdString();
        const QString text = document.report.allText();
        EXPECT_TRUE(text.contains(number)) << key.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("阿莫西林胶囊"))
            || text.contains(QStringLiteral("板蓝根颗粒")))
            << key.toStdString();
    }
    // The handover slips have no goods: their figures are what they print.
    const qint64 handover = db().insert(
        QStringLiteral("insert into jxc_jbgl (jb_time,jb_curruser,jb_nextuser,jb_bbskzje,"
                       "jb_sjyyk,jb_xfyyk,jb_jjzje) values ('2025-03-14 18:00:00','admin',"
                       "'admin',52,20,2,22)"));
    for (const QString &key : { QStringLiteral("jbxp"), QStringLiteral("jbxp58") }) {
        keys.append(key);
        EXPECT_TRUE(printed(key, QString::number(handover))
                        .report.allText()
                        .contains(QStringLiteral("本班收款总额：52.00")))
            << key.toStdString();
    }
    // The registrations have no goods either: the amount is what they print.
    const std::pair<const char *, const char *> registrations[] = { { "ysyfysk", "YS" },
        { "ysyfskd", "SK" }, { "ysyfyfk", "YF" }, { "ysyffkd", "FK" } };
    for (const auto &[key, prefix] : registrations) {
        const QString number = QString::fromLatin1(prefix) + QStringLiteral("25031410001");
        db().exec(QStringLiteral("insert into jxc_ysyfk_dj (gl_djh,k_rq,k_fkfs,k_yfje,k_sfje,"
                                 "k_djlx,k_ghskh,a_name) values (?,'2025-03-14','现金',66,66,?,"
                                 "'100002','admin')"),
            { number, QString::fromLatin1(prefix) });
        keys.append(QString::fromLatin1(key));
        const QString text = printed(QString::fromLatin1(key), number).report.allText();
        EXPECT_TRUE(text.contains(number)) << key;
        EXPECT_TRUE(text.contains(QStringLiteral("陆拾陆元整"))) << key;
    }
    QStringList all;
    for (const reports::DocumentPrint &print : reports::documentPrints())
        all.append(print.key);
    keys.sort();
    all.sort();
    EXPECT_EQ(keys, all);

    // The loss and the overflow share one form; the title tells them apart.
    EXPECT_TRUE(printed(QStringLiteral("spbs"), QStringLiteral("BS25031410001"))
                    .report.allText()
                    .contains(QStringLiteral("商品报损单")));
    EXPECT_TRUE(printed(QStringLiteral("spby"), QStringLiteral("BY25031410001"))
                    .report.allText()
                    .contains(QStringLiteral("商品报溢单")));
    EXPECT_TRUE(printed(QStringLiteral("posxsd"), QStringLiteral("XS25031490001"))
                    .report.allText()
                    .contains(QStringLiteral("POS销售单")));
}

TEST_F(EveryKey, ReceiptsAreRollsOfTheirPaperAsLongAsTheirContent)
{
    db().exec(QString::fromUtf8(stored[9].header), { QString::fromLatin1(stored[9].number) });
    for (int n = 0; n < 5; ++n)
        db().exec(QString::fromUtf8(stored[9].line), { QString::fromLatin1(stored[9].number) });
    const reports::PrintedDocument wide
        = printed(QStringLiteral("posxp"), QStringLiteral("XS25031490001"));
    const reports::PrintedDocument narrow
        = printed(QStringLiteral("posxp58"), QStringLiteral("XS25031490001"));
    ASSERT_EQ(wide.report.pages.size(), 1);
    ASSERT_EQ(narrow.report.pages.size(), 1);
    EXPECT_EQ(wide.report.pages.first().sizeMm.width(), 80);
    EXPECT_EQ(narrow.report.pages.first().sizeMm.width(), 58);
    // Five lines of two rows of 4.2 mm, the title and the summary: well under the 200 mm the
    // form is drawn on, and longer by 8.4 mm for each further line.
    const double height = narrow.report.pages.first().sizeMm.height();
    EXPECT_GT(height, 80);
    EXPECT_LT(height, 140);
    db().exec(QString::fromUtf8(stored[9].line), { QString::fromLatin1(stored[9].number) });
    EXPECT_NEAR(printed(QStringLiteral("posxp58"), QStringLiteral("XS25031490001"))
                    .report.pages.first()
                    .sizeMm.height()
            - height,
        8.4, 1e-4);
    // Everything lies within the 54 mm between the roll's margins.
    for (const reports::PreparedItem &item : narrow.report.pages.first().items)
        EXPECT_LE(item.rect.right(), 56 * reports::pixelsPerMillimetre + 0.01)
            << item.source.toStdString();
}

// Every shipped template, designable or not, is filled with its sample data and laid out.
TEST(ShippedTemplates, EachLoadsAndRendersWithSampleData)
{
    const QString folder = QStringLiteral(MEDISTOCK_SOURCE_DIR "/report");
    EXPECT_EQ(reports::designableTemplates().size(), 66);
    for (const reports::TemplateEntry &entry : reports::shippedTemplates()) {
        const Result<reports::ReportTemplate> report = reports::readTemplate(
            folder + QLatin1Char('/') + entry.name + QStringLiteral(".fr3"));
        ASSERT_TRUE(report.ok()) << entry.name.toStdString();
        const Result<reports::PreparedReport> prepared
            = reports::prepareReport(report.value(), reports::sampleData(report.value()),
                { QDateTime(QDate(2025, 3, 14), QTime(9, 0)) }, folder);
        ASSERT_TRUE(prepared.ok()) << entry.name.toStdString() << prepared.message().toStdString();
        EXPECT_GE(prepared->pages.size(), 1) << entry.name.toStdString();
        // The company heads every form and the sample's values reach its cells.
        EXPECT_TRUE(prepared->allText().contains(QStringLiteral("仁和大药房")))
            << entry.name.toStdString();
    }
}

class PrintAll : public PrintTest
{
};

TEST_F(PrintAll, AsksFirstThenPrintsEveryDocumentOfTheRangeInDateOrder)
{
    const QString first = saleOfLines(1);
    sales::SaleDraft earlier
        = draft({ line(QStringLiteral("200002"), QStringLiteral("1"), QStringLiteral("8")) });
    earlier.entry.date = QStringLiteral("2025-03-13");
    const QString before = saveSale(earlier);
    const QString second = saleOfLines(2);
    const QStringList numbers = reports::documentNumbersBetween(
        session(), QStringLiteral("spxs"), QDate(2025, 3, 13), QDate(2025, 3, 14));
    EXPECT_EQ(numbers, (QStringList { before, first, second }));
    EXPECT_EQ(reports::documentNumbersBetween(
                  session(), QStringLiteral("spxs"), QDate(2025, 3, 14), QDate(2025, 3, 14)),
        (QStringList { first, second }));

    QStringList handed;
    auto collect = [&](const reports::PrintedDocument &document) {
        handed.append(document.number);
        return true;
    };
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(
        reports::printAll(session(), folders(), QStringLiteral("spxs"), numbers, collect).ok());
    EXPECT_TRUE(handed.isEmpty());
    ui.clear();
    const Result<int> all
        = reports::printAll(session(), folders(), QStringLiteral("spxs"), numbers, collect);
    ASSERT_TRUE(all.ok());
    EXPECT_EQ(all.value(), 3);
    EXPECT_EQ(handed, numbers);
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("您的操作将打印当前查询中的所有单据，\r\n\r\n"
                                     "将直接打印不做预览，确认打印吗？") });
}

TEST_F(PrintAll, AnEmptyQueryPrintsNothingAfterTheQuestion)
{
    int handed = 0;
    ui.clear();
    const Result<int> none = reports::printAll(session(), folders(), QStringLiteral("cgjh"), {},
        [&](const reports::PrintedDocument &) { return ++handed > 0; });
    ASSERT_TRUE(none.ok());
    EXPECT_EQ(none.value(), 0);
    EXPECT_EQ(handed, 0);
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_TRUE(ui.informed.isEmpty());
}

} // namespace

} // namespace medistock::test
