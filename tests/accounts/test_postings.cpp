#include "accounts/cashbook.h"
#include "accounts/invoices.h"
#include "accounts/postings.h"
#include "core/schemacatalogue.h"
#include "core/transaction.h"
#include "tests/accounts/accountstest.h"

#include <QSqlRecord>

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;
using medistock::test::numbers;
using medistock::test::rowCount;

namespace {

const QString sale = QStringLiteral("XS25031410001");

} // namespace

class PostingsTest : public AccountsTest
{
protected:
    void post(const MoneyColumns &columns, const QString &number)
    {
        const auto header = readMoneyHeader(db(), columns, number);
        ASSERT_TRUE(header.has_value());
        core::Transaction transaction(db());
        postDocumentMoney(session(), columns, *header);
        transaction.commit();
    }
    void remove(const QString &number)
    {
        core::Transaction transaction(db());
        removeDocumentPostings(session(), number);
        transaction.commit();
    }
    QStringList rows(const QString &sql, const QVariantList &params = {})
    {
        QStringList lines;
        for (const QSqlRecord &row : db().rows(sql, params)) {
            QStringList values;
            for (int i = 0; i < row.count(); ++i)
                values.append(row.value(i).toString());
            lines.append(values.join(QLatin1Char('|')));
        }
        return lines;
    }
};

TEST_F(PostingsTest, ASaleCheckPostsCashLedgerInvoiceAndFees)
{
    setParameter(QStringLiteral("cs_kp"), 1);
    owe(PartyKind::Customer, customer(), "2025-03-01", 100);
    insertSale(sale, "2025-03-14", 500, 200, 450, 20, 5, QStringLiteral("我方付运费"));

    post(saleMoney(), sale);

    EXPECT_EQ(
        rows(QStringLiteral("select gl_djh,xj_dlx,xj_je,xj_ljje,xj_chk,u_name,ghs_sn,ghs_name,"
                            "ck_name,xj_note,a_name from jxc_xjyh where xj_kmmc='现金' and "
                            "xj_dlx<>'期初金额' order by id")),
        (QStringList {
            "XS25031410001|商品销售|200|200|1|默认员工|100002|仁和医院|主仓库|门店批发|admin",
            "|费用付款|-20|180|1|默认员工|100002|仁和医院|主仓库|销售单XS25031410001产生的运费|"
            "admin",
            "|费用付款|-5|175|1|默认员工|100002|仁和医院|主仓库|销售单XS25031410001产生的包装费|"
            "admin" }));
    EXPECT_EQ(cashBalance(db(), QStringLiteral("现金")), 175);

    EXPECT_EQ(rows(QStringLiteral("select k_yfje,k_sfje,k_yhje,k_qcje,k_ljje,k_fkfs,k_djlx,k_djtxt,"
                                  "k_note,k_flag,a_name,u_sn from jxc_ysyfk where gl_djh=?"),
                  { sale }),
        QStringList { "500|200|0|0|400|现金|XS|商品销售单|门店批发|1|admin|100001" });
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 400);

    EXPECT_EQ(rows(QStringLiteral("select fp_yfje,fp_kpje,fp_sfje,fp_ljje,fp_no,fp_type,fp_djlx,"
                                  "fp_djtxt,fp_check,fp_checker,fp_chkrq,fp_rq from jxc_fpdjb")),
        QStringList { "500|450|200|50|FP001|kh|XS|商品销售单|1|admin|2025-03-14|2025-03-14" });

    EXPECT_EQ(rows(QStringLiteral("select gl_djh,fy_rq,fy_lx,fy_je,fy_flag,de_sn,fy_kmmc,fy_chk,"
                                  "fy_note from jxc_yyfy order by id")),
        (QStringList {
            "XS25031410001|2025-03-14|运费|-20|1|100001|现金|1|销售单XS25031410001产生的运费",
            "XS25031410001|2025-03-14|包装费|-5|1|100001|现金|1|"
            "销售单XS25031410001产生的包装费" }));
}

TEST_F(PostingsTest, FeesAreBookedOnlyWhenWePayTheFreightAndInvoicesOnlyWithTheRegister)
{
    insertSale(sale, "2025-03-14", 500, 0, 0, 20, 5);

    post(saleMoney(), sale);

    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_yyfy")), 0);
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_fpdjb")), 0);
    // A sale writes its cash row even when nothing was paid.
    EXPECT_EQ(rows(QStringLiteral("select xj_je from jxc_xjyh where gl_djh=?"), { sale }),
        QStringList { "0" });
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 500);
}

// Which way the money of each kind of document moves: what the party owes afterwards and the
// cash movement, from amounts as each document stores them.
struct MoneyCase
{
    const MoneyColumns &(*columns)();
    const char *insert;
    double due;
    double paid;
    double owed;
    std::vector<double> cash;
};

class MoneySides : public PostingsTest, public ::testing::WithParamInterface<MoneyCase>
{
};

TEST_P(MoneySides, OwedAmountAndCashFollowTheDocumentsDirection)
{
    const MoneyCase &c = GetParam();
    const MoneyColumns &columns = c.columns();
    const QString party = columns.partyKind == PartyKind::Customer ? customer() : supplier();
    db().exec(QString::fromUtf8(c.insert), { party, c.due, c.paid });

    post(columns, QStringLiteral("DOC0001"));

    EXPECT_EQ(figure(columns.partyKind, party), c.owed);
    EXPECT_EQ(
        numbers(db(), QStringLiteral("select xj_je from jxc_xjyh where gl_djh='DOC0001'")), c.cash);
    EXPECT_EQ(rows(QStringLiteral("select k_djlx,k_djtxt,k_type from jxc_ysyfk")),
        QStringList { QStringLiteral("%1|%2|%3")
                          .arg(QString::fromUtf8(columns.code), QString::fromUtf8(columns.text),
                              partyKindCode(columns.partyKind)) });
}

INSTANTIATE_TEST_SUITE_P(Documents, MoneySides,
    ::testing::Values(MoneyCase { purchaseReceiptMoney,
                          "insert into jxc_jhd "
                          "(j_sn,ghs_sn,j_jhrq,j_yfje,j_sfje,j_yhje,j_kmmc,u_sn,ck_sn) values "
                          "('DOC0001',?,'2025-03-14',?,?,0,'现金','100001','100001')",
                          300, 100, 200, { -100 } },
        MoneyCase { purchaseReceiptMoney,
            "insert into jxc_jhd (j_sn,ghs_sn,j_jhrq,j_yfje,j_sfje,j_yhje,j_kmmc,u_sn,ck_sn) "
            "values "
            "('DOC0001',?,'2025-03-14',?,?,0,'现金','100001','100001')",
            300, 0, 300, {} },
        MoneyCase { purchaseReturnMoney,
            "insert into jxc_thd (gl_djh,ghs_sn,th_thrq,th_yfje,th_sfje,th_kmmc,u_sn,ck_sn) values "
            "('DOC0001',?,'2025-03-14',?,?,'现金','100001','100001')",
            100, 30, -70, { 30 } },
        MoneyCase { salesReturnMoney,
            "insert into jxc_xsthd (gl_djh,kh_sn,th_xsrq,th_yfje,th_sfje,th_kmmc,u_sn,ck_sn) "
            "values "
            "('DOC0001',?,'2025-03-14',?,?,'现金','100001','100001')",
            -100, -30, -70, { -30 } },
        MoneyCase { salesReturnMoney,
            "insert into jxc_xsthd (gl_djh,kh_sn,th_xsrq,th_yfje,th_sfje,th_kmmc,u_sn,ck_sn) "
            "values "
            "('DOC0001',?,'2025-03-14',?,?,'现金','100001','100001')",
            -100, -100, 0, { -100 } }));

TEST(MoneyColumnsOfDocuments, NameOnlyColumnsOfTheirTables)
{
    for (const MoneyColumns *c :
        { &saleMoney(), &salesReturnMoney(), &purchaseReceiptMoney(), &purchaseReturnMoney() }) {
        const core::TableDef *table = core::findTable(QString::fromLatin1(c->table));
        ASSERT_NE(table, nullptr) << c->table;
        for (const char *name : { c->number, c->date, c->party, c->salesman, c->warehouse, c->due,
                 c->paid, c->discount, c->account, c->note, c->invoiceAmount, c->invoiceNumber,
                 c->freight, c->packing, c->freightMode })
            if (*name) {
                EXPECT_TRUE(core::hasColumn(*table, QString::fromLatin1(name)))
                    << c->table << '.' << name;
            }
    }
}

TEST_F(PostingsTest, RemovingADocumentsPostingsRestoresEveryRowAndBalance)
{
    setParameter(QStringLiteral("cs_kp"), 1);
    owe(PartyKind::Customer, customer(), "2025-03-20", 80);
    insertSale(QStringLiteral("XS25032010001"), "2025-03-20", 60, 0, 0);
    post(saleMoney(), QStringLiteral("XS25032010001"));
    insertSale(sale, "2025-03-14", 500, 200, 450, 20, 5, QStringLiteral("我方付运费"));
    const QString before = snapshot();

    post(saleMoney(), sale);
    ASSERT_EQ(
        ledgerBalances(PartyKind::Customer, customer()), (std::vector<double> { 300, 380, 440 }));
    ASSERT_EQ(invoiceBalances(PartyKind::Customer, customer()), (std::vector<double> { 50, 110 }));

    remove(sale);

    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(ledgerBalances(PartyKind::Customer, customer()), (std::vector<double> { 80, 140 }));
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 140);
}

TEST_F(PostingsTest, RemovalTakesLinkedCollectionsWithTheirOwnRows)
{
    insertSale(sale, "2025-03-14", 500, 0);
    const QString before = snapshot();
    post(saleMoney(), sale);
    RegistrationDraft draft = collection(499.5, 0.5);
    draft.link = sale;
    const QString paid = checkedRegistration(draft);
    ASSERT_EQ(figure(PartyKind::Customer, customer()), 0);
    ASSERT_EQ(cashBalance(db(), QStringLiteral("现金")), 499.5);

    remove(sale);

    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(rowCount(db(), QStringLiteral("jxc_ysyfk_dj")), 0);
    EXPECT_EQ(cashBalance(db(), QStringLiteral("现金")), 0);
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 0);
}

TEST_F(PostingsTest, AnEmptyNumberRemovesNothing)
{
    insertSale(sale, "2025-03-14", 500, 20, 0, 20, 0, QStringLiteral("我方付运费"));
    post(saleMoney(), sale);
    const QString before = snapshot();

    remove(QString());

    EXPECT_EQ(snapshot(), before);
}
