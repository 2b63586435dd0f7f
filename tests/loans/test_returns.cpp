#include "documents/texts.h"
#include "loans/loancheck.h"
#include "loans/texts.h"
#include "tests/loans/loanstest.h"
#include "tests/support/documentrows.h"

using namespace medistock;
using medistock::test::LoansTest;

// "新增还货" offers what is still out: lent less returned less sold.
TEST_F(LoansTest, ALoanOfTenWithFourReturnedAndThreeSoldOffersThree)
{
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    giveBack(loan, QStringLiteral("4"));
    sell(loan, QStringLiteral("3"));
    const Result<loans::ReturnPlan> plan
        = loans::prepareReturn(session(), loan, std::nullopt, QStringLiteral("2025-03-14"));
    ASSERT_TRUE(plan.ok());
    ASSERT_EQ(plan->lines.size(), 1);
    const loans::ReturnLine &line = plan->lines.first();
    EXPECT_EQ(line.loan.lent, 10);
    EXPECT_EQ(line.loan.returned, 4);
    EXPECT_EQ(line.loan.sold, 3);
    EXPECT_EQ(line.quantity, 3);
    // 100 deposit less the 40 and 30 that went with the 4 returned and the 3 sold.
    EXPECT_EQ(line.deposit, 30);
    EXPECT_EQ(line.refund, 24);
}

struct RentCase
{
    const char *name;
    const char *deposit;
    const char *rent;
    const char *quantity; // empty: the whole open quantity
    const char *date;
    int days;
    double share, total, refund;
};

void PrintTo(const RentCase &c, std::ostream *os)
{
    *os << c.name;
}

class ReturnFigures : public LoansTest, public ::testing::WithParamInterface<RentCase>
{
};

// The loan of 10 was made on 2025-03-10.
const RentCase rentCases[] = {
    { "WholeLineAfterFourDays", "100", "0.5", "", "2025-03-14", 4, 100, 20, 80 },
    { "RentAboveTheDepositRefundsNothing", "20", "1", "", "2025-03-14", 4, 20, 40, 0 },
    { "PartOfTheLineTakesItsShareOfTheDeposit", "100", "0.5", "4", "2025-03-14", 4, 40, 8, 32 },
    { "ReturnOnTheLoanDayCostsOneDay", "100", "0.5", "", "2025-03-10", 1, 100, 5, 95 },
    { "SharesAndRentRoundToAmounts", "10", "0.25", "3", "2025-03-13", 3, 3, 2.25, 0.75 },
    { "NoDepositNoRent", "", "", "", "2025-03-14", 4, 0, 0, 0 },
};

// What the plan offers is what the return stores.
TEST_P(ReturnFigures, DaysDepositShareRentAndRefund)
{
    const RentCase &c = GetParam();
    const QString loan
        = lend(QStringLiteral("10"), QString::fromLatin1(c.deposit), QString::fromLatin1(c.rent));
    const QString back
        = giveBack(loan, QString::fromLatin1(c.quantity), QString::fromLatin1(c.date));
    const QString quantity = *c.quantity ? QString::fromLatin1(c.quantity) : QStringLiteral("10");
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"),
                  QStringLiteral("jh_flag,jh_hhsl,jh_dj,jh_zje,jh_ts,jh_yj,jh_zzj,jh_thyj,gl_djh2"),
                  QStringLiteral("gl_djh=?"), { back }),
        QStringList { QStringLiteral("还货|%1|5|%2|%3|%4|%5|%6|%7")
                          .arg(quantity)
                          .arg(quantity.toDouble() * 5)
                          .arg(c.days)
                          .arg(c.share)
                          .arg(c.total)
                          .arg(c.refund)
                          .arg(loan) });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"), QStringLiteral("jh_hhsl,jh_yj2"),
                  QStringLiteral("gl_djh=?"), { loan }),
        QStringList { QStringLiteral("%1|%2").arg(quantity).arg(c.share) });
}

INSTANTIATE_TEST_SUITE_P(Rent, ReturnFigures, ::testing::ValuesIn(rentCases),
    [](const auto &test) { return std::string(test.param.name); });

// The loan and its return leave the stock as before the loan; the rent is income of the line's
// account, with its movement into that account.
TEST_F(LoansTest, ALoanAndItsReturnLeaveStockAsBeforeAndBookTheRent)
{
    const QString before = stores();
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    const QString back = giveBack(loan);
    EXPECT_EQ(back, QStringLiteral("HH25031410001"));
    EXPECT_EQ(stores(), before);
    EXPECT_EQ(rows(QStringLiteral("jxc_goodslist"),
                  QStringLiteral("gl_flag,gl_kdrq,gl_sl,gl_zje,ghs_sn,gl_fdmc,gl_kc,id2"),
                  QStringLiteral("gl_djh=?"), { back }),
        QStringList {
            QStringLiteral("hh|2025-03-14|10|50|100002|hh|150|%1").arg(firstLine(loan)) });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjh"),
                  QStringLiteral("gl_djh,kh_sn,jh_rq,jh_flag,jh_status,jh_checker"),
                  QStringLiteral("gl_djh=?"), { back }),
        QStringList { "HH25031410001|100002|2025-03-14|hh|1|admin" });
    EXPECT_EQ(rows(QStringLiteral("jxc_yyfy"),
                  QStringLiteral("gl_djh,fy_rq,fy_lx,fy_je,fy_flag,de_sn,fy_kmmc,fy_chk,fy_note")),
        QStringList { "HH25031410001|2025-03-14|收入|20|2|100001|现金|1|"
                      "还货单HH25031410001产生的借货收入" });
    EXPECT_EQ(
        rows(QStringLiteral("jxc_xjyh"), QStringLiteral("gl_djh,xj_dlx,xj_je,xj_kmmc,xj_ljje"),
            QStringLiteral("xj_dlx<>'期初金额'")),
        QStringList { "HH25031410001|收入收款|20|现金|20" });
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("审核客户还货单HH25031410001，共1种商品"));
}

// Two lines with different accounts book the rent per account; "不记入账户" moves no account.
TEST_F(LoansTest, RentIsIncomeOfEachLinesAccount)
{
    loans::LoanDraft d = loanDraft(QStringLiteral("10"), {}, QStringLiteral("0.5"));
    d.entry.lines += line(QStringLiteral("200002"), QStringLiteral("4"), QString());
    d.entry.lines
        += line(QStringLiteral("200001"), QStringLiteral("2"), QString(), QStringLiteral("B2"));
    d.terms = { { {}, QStringLiteral("0.5"), QStringLiteral("工行") },
        { {}, QStringLiteral("1"), QStringLiteral("不记入账户") },
        { {}, QStringLiteral("0.25"), QStringLiteral("工行") } };
    giveBack(lend(d));
    EXPECT_EQ(rows(QStringLiteral("jxc_yyfy"), QStringLiteral("fy_kmmc,fy_je")),
        (QStringList { "不记入账户|16", "工行|22" }));
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_kmmc,xj_je,xj_ljje"),
                  QStringLiteral("xj_dlx<>'期初金额'")),
        QStringList { "工行|22|22" });
}

// The loan line may have been changed since the return: its counts never go below 0.
TEST_F(LoansTest, UncheckingAReturnNeverLeavesTheLoanLineBelowZero)
{
    const QString loan = lend(QStringLiteral("10"), QStringLiteral("100"), QStringLiteral("0.5"));
    const QString back = giveBack(loan, QStringLiteral("3"));
    db().exec(QStringLiteral("update jxc_khjhsp set jh_hhsl=1,jh_yj2=10 where id=?"),
        { firstLine(loan) });
    ui.clear();
    ASSERT_TRUE(loans::uncheckReturn(session(), back));
    EXPECT_EQ(ui.asked, QStringList { documents::texts::uncheckQuestion(back) });
    EXPECT_EQ(rows(QStringLiteral("jxc_khjhsp"), QStringLiteral("gl_djh,jh_hhsl,jh_yj2")),
        QStringList { loan + "|0|0" });
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_khjh")), 1);
    EXPECT_EQ(test::rowCount(db(), QStringLiteral("jxc_yyfy")), 0);
    EXPECT_EQ(rows(QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx"),
                  QStringLiteral("xj_dlx<>'期初金额'")),
        QStringList {});
    EXPECT_EQ(stores(), QStringLiteral("140|140|140|90|180"));
    EXPECT_EQ(db().firstText(QStringLiteral("select log_note from jxc_log order by id desc")),
        QStringLiteral("取消审核客户还货单") + back);
}

// Each refusal is told, and nothing is written.
TEST_F(LoansTest, ReturnsOfWhatIsNotOutAreRefused)
{
    const QString loan = lend(QStringLiteral("10"), {}, {});
    const Result<QString> other
        = loans::saveLoan(session(), loanDraft(QStringLiteral("1"), {}, {}));
    ASSERT_TRUE(other.ok());
    const qint64 line = firstLine(loan);
    const struct
    {
        loans::ReturnDraft draft;
        QString told;
    } cases[] = {
        { { loan, {}, {}, { { line, QStringLiteral("11") } } },
            loans::texts::quantityOverOpen(QStringLiteral("阿莫西林胶囊"), QStringLiteral("10")) },
        { { loan, {}, {}, { { line, QStringLiteral("0") } } },
            loans::texts::quantityNotNumber(line, QStringLiteral("0")) },
        { { loan, {}, {}, { { firstLine(other.value()), {} } } },
            loans::texts::lineNotOfLoan(firstLine(other.value()), loan) },
        { { loan, QStringLiteral("2025-03-09"), {}, {} },
            loans::texts::returnBeforeLoan(
                QStringLiteral("2025-03-09"), QStringLiteral("2025-03-10")) },
        { { other.value(), {}, {}, {} }, documents::texts::notChecked(other.value()) },
    };
    const QString before = snapshot();
    for (const auto &c : cases) {
        ui.clear();
        EXPECT_FALSE(loans::saveReturn(session(), c.draft));
        EXPECT_EQ(ui.informed, QStringList { c.told });
    }
    EXPECT_EQ(test::differences(before, snapshot()), QStringList {});
    giveBack(loan);
    ui.clear();
    EXPECT_FALSE(loans::saveReturn(session(), { loan, {}, {}, {} }));
    EXPECT_EQ(ui.informed, QStringList { loans::texts::nothingOpen(loan) });
}
