#include "loans/loancheck.h"
#include "loans/texts.h"
#include "sales/salecheck.h"
#include "sales/texts.h"
#include "tests/loans/loanstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::LoansTest;

// Three of ten lent are sold on 2025-03-14: the return part brings them back ("hh", gl_fdmc
// "xs"), the sale takes them out again at the goods' price 12, and the customer owes it.
TEST_F(LoansTest, SellingLoanedGoodsWritesTheReturnPartAndARealSale)
{
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    ui.clear();
    const loans::LoanSale sold = sell(loan, QStringLiteral("3"));
    EXPECT_EQ(sold.returnNumber, QStringLiteral("HH25031410001"));
    EXPECT_EQ(sold.saleNumber, QStringLiteral("XS25031410001"));
    EXPECT_EQ(ui.asked, QStringList { sales::texts::saveAndCheckQuestion() });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjh"), QStringLiteral("jh_flag,jh_note"),
                  QStringLiteral("gl_djh=?"), { sold.returnNumber }),
        QStringList { "hh|还货：借货转销售" });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("gl_djh,jh_flag,jh_hhsl,jh_xssl,jh_yj,jh_yj2,jh_zzj,jh_thyj")),
        (QStringList { loan + "|借货|0|3|100|30|0|0", sold.returnNumber + "|销售|3|0|30|0|6|24" }));
    EXPECT_EQ(
        rows(QStringLiteral("jxc_goodslist"), QStringLiteral("gl_djh,gl_flag,gl_sl,gl_fdmc,gl_kc"),
            QStringLiteral("gl_djh<>?"), { QStringLiteral("QC200001") })
            .mid(1),
        (QStringList { loan + "|jh|10|jh|140", sold.returnNumber + "|hh|3|xs|143",
            sold.saleNumber + "|xs|3||140" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_lsxsd"),
                  QStringLiteral("gl_djh,gl_djh2,kh_sn,ls_status,ls_yfje,ls_sfje,ls_note")),
        QStringList {
            sold.saleNumber + "|" + sold.returnNumber + "|100002|1|36|0|借货转销售：" + loan });
    EXPECT_EQ(balance(), 36);
    EXPECT_EQ(stores(), QStringLiteral("140|140|140|90|180"));
    EXPECT_EQ(rows(QStringLiteral("jxc_yyfy"), QStringLiteral("fy_je,fy_note")),
        QStringList { "6|还货单HH25031410001产生的借货收入" });
}

// The return part waits for its sale's uncheck; then it goes, and the sale with it.
TEST_F(LoansTest, TheSaleOfLoanedGoodsIsUncheckedBeforeItsReturnPart)
{
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    const QString before = snapshot();
    const loans::LoanSale sold = sell(loan, QStringLiteral("3"));
    ui.clear();
    EXPECT_FALSE(loans::uncheckReturn(session(), sold.returnNumber));
    EXPECT_EQ(ui.informed,
        QStringList { loans::texts::saleStillChecked(sold.returnNumber, sold.saleNumber) });
    ASSERT_TRUE(sales::uncheckSale(session(), sold.saleNumber));
    ASSERT_TRUE(loans::uncheckReturn(session(), sold.returnNumber));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"), QStringLiteral("jh_xssl,jh_yj2")),
        QStringList { "0|0" });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_lsxsd")), 0);
    EXPECT_EQ(stores(), QStringLiteral("140|140|140|90|180"));
}

// A refusal inside the transaction (the sale over the goods' limit per sale) and a "No" before
// it leave everything as it was: no return part without its sale.
TEST_F(LoansTest, ARefusedSaleOfLoanedGoodsLeavesNothing)
{
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    const QString before = snapshot();
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=2 where g_sn='200001'"));
    loans::LoanSaleDraft d;
    d.loan = loan;
    d.lines = { { firstLine(loan), QStringLiteral("3"), QStringLiteral("15") } };
    ui.clear();
    EXPECT_FALSE(loans::sellLoanedGoods(session(), d));
    EXPECT_EQ(ui.informed,
        QStringList { "其中的药品“阿莫西林胶囊 每次最多销售数量为2”，\r\n\r\n不能超过这个数量！" });
    db().exec(QStringLiteral("update jxc_goods set g_xzsl=0 where g_sn='200001'"));
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});

    setParameter(QStringLiteral("cs_xsjgts"), 1);
    const QString warned = snapshot();
    d.header.settlementMode = QStringLiteral("1");
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(loans::sellLoanedGoods(session(), d));
    EXPECT_EQ(ui.asked.size(), 1);
    EXPECT_TRUE(ui.asked.first().startsWith(QStringLiteral("该客户当前的预付款余额为：")));
    EXPECT_EQ(test::differences(warned, snapshot()), QStringList {});
}
