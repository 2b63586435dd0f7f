#include "accounts/texts.h"
#include "documents/texts.h"
#include "loans/loancheck.h"
#include "loans/texts.h"
#include "tests/loans/loanstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::LoansTest;

// A loan dated after today is asked about before the confirmation; the line keeps its terms and
// takes the cost of the loan date as its price; what returns fill in later starts at 0.
TEST_F(LoansTest, SavingAsksTheFutureDateThenTheConfirmationAndKeepsTheTerms)
{
    const Result<QString> saved = loans::saveLoan(session(),
        loanDraft(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"),
            QStringLiteral("2025-03-20")));
    ASSERT_TRUE(saved.ok());
    EXPECT_EQ(saved.value(), QStringLiteral("JH25032010001"));
    EXPECT_EQ(ui.asked,
        (QStringList { QStringLiteral("您选择的日期：2025-03-20大于计算机的当前日期：2025-03-14"
                                      "确认继续吗？"),
            QStringLiteral(
                "单据保存后处于“未审核”状态，是否确认保存？\r\n\r\n处于“未审核”状态"
                "的借货单，可以在“待审核借货\r\n\r\n单”面板中，进行修改及审核操作！") }));
    EXPECT_EQ(rows(QStringLiteral("jxc_khjh"),
                  QStringLiteral("gl_djh,kh_sn,ck_sn,jh_rq,jh_flag,jh_status")),
        QStringList { "JH25032010001|100002|100001|2025-03-20|jh|0" });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("g_sn,t_ph,jh_sl,jh_dj,jh_zje,jh_yj,jh_zj,jh_kmmc,jh_flag,"
                                 "jh_hhsl,jh_xssl,jh_yj2,id2")),
        QStringList { "200001|B1|10|5|50|100|0.5|现金|借货|0|0|0|0" });
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("增加未审核借货单JH25032010001，共1种商品"));
}

TEST_F(LoansTest, NoToTheFutureDateOrTheConfirmationSavesNothing)
{
    for (const int no : { 0, 1 }) {
        ui.clear();
        for (int i = 0; i < no; ++i)
            ui.answerNext(true);
        ui.answerNext(false);
        const QString before = snapshot();
        EXPECT_FALSE(loans::saveLoan(
            session(), loanDraft(QStringLiteral("10"), {}, {}, QStringLiteral("2025-03-20"))));
        EXPECT_EQ(ui.asked.size(), no + 1);
        EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
    }
}

// Each refusal is told before anything is asked.
TEST_F(LoansTest, TermsThatAreNoAmountsOrNoAccountAreRefused)
{
    const struct
    {
        loans::LoanTerms terms;
        QString told;
    } cases[] = {
        { { QStringLiteral("-1"), {}, {} }, QStringLiteral("第1行：押金“-1”不是有效的金额！") },
        { { {}, QStringLiteral("一元"), {} }, QStringLiteral("第1行：租金“一元”不是有效的金额！") },
        { { {}, {}, QStringLiteral("招行") },
            accounts::texts::accountMissing(QStringLiteral("招行")) },
    };
    for (const auto &c : cases) {
        ui.clear();
        loans::LoanDraft d = loanDraft(QStringLiteral("10"), {}, {});
        d.terms = { c.terms };
        EXPECT_FALSE(loans::saveLoan(session(), d));
        EXPECT_EQ(ui.informed, QStringList { c.told });
        EXPECT_EQ(ui.asked, QStringList {});
    }
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_khjh")), 0);
}

// The check lowers warehouse, goods and batch stock and today's settlement by what was lent, and
// writes the ledger row "jh" with the customer as its party.
TEST_F(LoansTest, CheckTakesTheGoodsOutOfEveryStore)
{
    EXPECT_EQ(stores(), QStringLiteral("150|150|150|100|190"));
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    EXPECT_EQ(stores(), QStringLiteral("140|140|140|90|180"));
    EXPECT_EQ(db().firstText(QStringLiteral("select js_zje from jxc_kcjs where "
                                            "js_rq='2025-03-14' and ck_sn='100001'")),
        QStringLiteral("820"));
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,gl_kdrq,gl_sl,gl_dj,gl_zje,gl_je,gl_lr,ghs_sn,ghs_name,"
                                 "gl_fdmc,t_ph,gl_kc,id2"),
                  QStringLiteral("gl_djh=?"), { loan }),
        QStringList { QStringLiteral("jh|2025-03-10|10|5|50|50|0|100002|华康药店|jh|B1|140|%1")
                          .arg(firstLine(loan)) });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjh"), QStringLiteral("jh_status,jh_checker,jh_chkrq")),
        QStringList { "1|admin|2025-03-14" });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"), QStringLiteral("id2-id")), QStringList { "0" });
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("审核客户借货单JH25031010001，共1种商品"));
}

// A loan drawing more of a batch than it holds: refused without negative stock, asked with it.
TEST_F(LoansTest, ShortBatchRefusesOrAsksBeforeTheCheckWritesAnything)
{
    const Result<QString> saved
        = loans::saveLoan(session(), loanDraft(QStringLiteral("120"), {}, {}));
    ASSERT_TRUE(saved.ok());
    const QString before = snapshot();
    setParameter(QStringLiteral("cs_kc"), 0);
    ui.clear();
    EXPECT_FALSE(loans::checkLoan(session(), saved.value()));
    EXPECT_EQ(ui.informed,
        QStringList { "该单据对应的生产日期中至少一种商品库存不足，\r\n\r\n“200001”：不能出库！" });
    setParameter(QStringLiteral("cs_kc"), 1);
    ui.clear();
    ui.answerNext(false);
    EXPECT_FALSE(loans::checkLoan(session(), saved.value()));
    EXPECT_EQ(ui.asked,
        QStringList { "该单据对应的生产日期中至少一种商品库存不足，\r\n\r\n"
                      "“200001”：出库将会出现负库存，是否继续？" });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
}

// A loan with a return cannot be unchecked; a loan and a return are not taken for each other.
TEST_F(LoansTest, AReturnStandsInTheWayOfUncheckingItsLoan)
{
    const QString loan = lend(QStringLiteral("10"), {}, {});
    const QString back = giveBack(loan, QStringLiteral("1"));
    const QString before = snapshot();
    ui.clear();
    EXPECT_FALSE(loans::uncheckLoan(session(), loan));
    EXPECT_FALSE(loans::uncheckReturn(session(), loan));
    EXPECT_FALSE(loans::checkLoan(session(), back));
    EXPECT_FALSE(loans::uncheckLoan(session(), back));
    EXPECT_EQ(ui.informed,
        (QStringList { QStringLiteral("借货单：JH25031010001已有还货或转销售，不能取消审核！\r\n"
                                      "请先取消审核它的还货单。"),
            QStringLiteral("单据：JH25031010001不是客户还货单！"),
            QStringLiteral("单据：HH25031410001不是客户借货单！"),
            QStringLiteral("单据：HH25031410001不是客户借货单！") }));
    EXPECT_EQ(ui.asked, QStringList {});
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
    ASSERT_TRUE(loans::uncheckReturn(session(), back));
    EXPECT_TRUE(loans::uncheckLoan(session(), loan));
}

// Check followed by uncheck puts every store back; the loan is editable again with its lines
// as saved.
TEST_F(LoansTest, UncheckPutsTheGoodsBackAndTheLoanAsSaved)
{
    const Result<QString> saved
        = loans::saveLoan(session(), loanDraft(QStringLiteral("10"), {}, {}));
    ASSERT_TRUE(saved.ok());
    const QString before = snapshot();
    ASSERT_TRUE(loans::checkLoan(session(), saved.value()));
    ui.clear();
    ASSERT_TRUE(loans::uncheckLoan(session(), saved.value()));
    EXPECT_EQ(ui.asked, QStringList { documents::texts::uncheckQuestion(saved.value()) });
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("取消审核客户借货单JH25031010001"));
}
