#include "accounts/cashbook.h"
#include "accounts/expenses.h"
#include "core/oplog.h"
#include "tests/accounts/accountstest.h"

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

class ExpensesTest : public AccountsTest
{
protected:
    ExpenseDraft draft(ExpenseKind kind, double amount, const QString &account)
    {
        ExpenseDraft d;
        d.kind = kind;
        d.date = QStringLiteral("2025-03-14");
        d.type = kind == ExpenseKind::Expense ? QStringLiteral("费用") : QStringLiteral("收入");
        d.amount = amount;
        d.account = account;
        d.note = QStringLiteral("三月房租");
        return d;
    }
    QString saved(const ExpenseDraft &d)
    {
        const auto number = saveExpense(session(), d);
        EXPECT_TRUE(number.ok()) << number.message().toStdString();
        return number.ok() ? number.value() : QString();
    }
    QString cashBook() { return test::dumpTable(db(), QStringLiteral("jxc_xjyh")).join('\n'); }
};

TEST_F(ExpensesTest, AnExpenseOnNoAccountChangesNoAccount)
{
    const QString number = saved(draft(ExpenseKind::Expense, 80, QStringLiteral("不记入账户")));
    const QString book = cashBook();

    ASSERT_TRUE(checkExpense(session(), number));
    EXPECT_EQ(
        db().firstText(QStringLiteral("select fy_chk from jxc_yyfy where gl_djh=?"), { number }),
        QStringLiteral("1"));
    EXPECT_EQ(cashBook(), book);

    ui.answerNext(true);
    ASSERT_TRUE(uncheckExpense(session(), number));
    EXPECT_EQ(
        db().firstText(QStringLiteral("select fy_chk from jxc_yyfy where gl_djh=?"), { number }),
        QStringLiteral("0"));
    EXPECT_EQ(cashBook(), book);
}

TEST_F(ExpensesTest, AnExpenseLowersItsAccountAndIncomeRaisesIt)
{
    const QString expense = saved(draft(ExpenseKind::Expense, 80, QStringLiteral("现金")));
    const QString income = saved(draft(ExpenseKind::Income, 50, QStringLiteral("现金")));
    EXPECT_EQ(expense, QStringLiteral("FY25031410001"));
    EXPECT_EQ(income, QStringLiteral("SR25031410001"));
    EXPECT_EQ(test::tableRows(db(), QStringLiteral("jxc_yyfy"), QStringLiteral("fy_flag,fy_chk")),
        (QStringList { QStringLiteral("费用|0"), QStringLiteral("收入|0") }));
    const QString before = snapshot();

    ASSERT_TRUE(checkExpense(session(), expense));
    EXPECT_EQ(core::readLog(db(), {}, {}).last().note,
        QStringLiteral("审核费用单FY25031410001，金额：80"));
    ASSERT_TRUE(checkExpense(session(), income));
    EXPECT_EQ(
        test::tableRows(db(), QStringLiteral("jxc_xjyh"), QStringLiteral("xj_dlx,xj_je,gl_djh"),
            QStringLiteral("xj_dlx<>?"), { QStringLiteral("期初金额") }),
        (QStringList { QStringLiteral("费用付款|-80|FY25031410001"),
            QStringLiteral("收入收款|50|SR25031410001") }));
    EXPECT_EQ(cashBalances(QStringLiteral("现金")), (std::vector<double> { 0, -80, -30 }));

    ui.setDefaultAnswer(true);
    ASSERT_TRUE(uncheckExpense(session(), expense));
    ASSERT_TRUE(uncheckExpense(session(), income));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(ExpensesTest, SavingChecksTypeAccountAndAmount)
{
    ExpenseDraft unknownType = draft(ExpenseKind::Expense, 80, QStringLiteral("现金"));
    unknownType.type = QStringLiteral("水电费");
    ExpenseDraft noAmount = draft(ExpenseKind::Expense, 0, QStringLiteral("现金"));
    ExpenseDraft noAccount = draft(ExpenseKind::Income, 10, QStringLiteral("农行"));
    const QString before = snapshot();

    EXPECT_EQ(
        saveExpense(session(), unknownType).message(), QStringLiteral("费用类型“水电费”不存在！"));
    EXPECT_EQ(saveExpense(session(), noAmount).message(), QStringLiteral("金额必须大于零！"));
    EXPECT_EQ(saveExpense(session(), noAccount).message(), QStringLiteral("账户“农行”不存在！"));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(ExpensesTest, TypeNamesAreUnique)
{
    EXPECT_EQ(addExpenseType(session(), QStringLiteral("运费"), {}, 0).message(),
        QStringLiteral("费用类型“运费”已经存在！"));
    const auto rent
        = addExpenseType(session(), QStringLiteral("房租"), QStringLiteral("门店租金"), 0);
    ASSERT_TRUE(rent.ok());
    EXPECT_EQ(changeExpenseType(session(), rent.value(), QStringLiteral("包装费"), {}, 0).message(),
        QStringLiteral("费用类型“包装费”已经存在！"));
    EXPECT_TRUE(changeExpenseType(
        session(), rent.value(), QStringLiteral("房租"), QStringLiteral("月租"), 0));
    EXPECT_EQ(addDepartment(session(), QStringLiteral("默认部门")).message(),
        QStringLiteral("部门“默认部门”已经存在！"));
    EXPECT_EQ(addDepartment(session(), QStringLiteral("财务部")).value(), QStringLiteral("100002"));
}
