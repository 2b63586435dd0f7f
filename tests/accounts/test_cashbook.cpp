#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/expenses.h"
#include "tests/accounts/accountstest.h"

#include <QSqlRecord>

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

namespace {

const QString cash = QStringLiteral("现金");
const QString bank = QStringLiteral("工行帐号");

} // namespace

class CashBookTest : public AccountsTest
{
protected:
    QString saved(MovementKind kind, double amount, const QString &date = "2025-03-14",
        const QString &account = cash, const QString &target = bank)
    {
        MovementDraft draft;
        draft.kind = kind;
        draft.date = date;
        draft.amount = amount;
        draft.account = account;
        draft.targetAccount = target;
        draft.salesmanName = QStringLiteral("默认员工");
        draft.note = QStringLiteral("备用金");
        const auto number = saveMovement(session(), draft);
        EXPECT_TRUE(number.ok()) << number.message().toStdString();
        return number.ok() ? number.value() : QString();
    }
    QString checked(MovementKind kind, double amount, const QString &date = "2025-03-14")
    {
        const QString number = saved(kind, amount, date);
        EXPECT_TRUE(checkMovement(session(), number));
        return number;
    }
    QStringList movements(const QString &number)
    {
        QStringList lines;
        for (const QSqlRecord &row :
            db().rows(QStringLiteral("select xj_dlx,xj_kmmc,xj_je,xj_chk from jxc_xjyh where "
                                     "gl_djh=? order by id"),
                { number }))
            lines.append(QStringLiteral("%1|%2|%3|%4")
                             .arg(row.value(0).toString(), row.value(1).toString(),
                                 row.value(2).toString(), row.value(3).toString()));
        return lines;
    }
};

TEST_F(CashBookTest, MovementsCountOnceCheckedAndMoneyOutIsStoredNegative)
{
    const QString in = saved(MovementKind::Receipt, 500);
    const QString out = saved(MovementKind::Payment, 120);
    const QString transfer = saved(MovementKind::Transfer, 200);
    EXPECT_EQ(in, QStringLiteral("XJ25031410001"));
    EXPECT_EQ(transfer, QStringLiteral("XZ25031410001"));
    EXPECT_EQ(cashBalance(db(), cash), 0);

    for (const QString &number : { in, out, transfer })
        ASSERT_TRUE(checkMovement(session(), number));

    EXPECT_EQ(movements(out), QStringList { "现金银行付款|现金|-120|1" });
    EXPECT_EQ(movements(transfer),
        (QStringList { "现金银行转账|现金|-200|1", "现金银行转账|工行帐号|200|1" }));
    EXPECT_EQ(cashBalances(cash), (std::vector<double> { 0, 500, 380, 180 }));
    EXPECT_EQ(cashBalance(db(), bank), 200);
}

TEST_F(CashBookTest, CheckAllAsksAndCountsEveryWaitingMovement)
{
    saved(MovementKind::Receipt, 500);
    saved(MovementKind::Transfer, 200);
    const QString before = snapshot();

    EXPECT_FALSE(checkAllMovements(session()));
    EXPECT_EQ(snapshot(), before);
    ui.answerNext(true);
    ASSERT_TRUE(checkAllMovements(session()));

    EXPECT_EQ(ui.asked.last(),
        QStringLiteral("您的操作将审核当前列表中所有未审核的单据，确认吗？"
                       "\r\n\r\n（如需审核某个单据，请按右键！）"));
    EXPECT_EQ(cashBalance(db(), cash), 300);
    EXPECT_EQ(cashBalance(db(), bank), 200);
    EXPECT_EQ(db().firstText(QStringLiteral("select xj_chk from jxc_xjyh where xj_dlx='期初金额' "
                                            "and xj_kmmc='现金'")),
        QStringLiteral("1"));
}

class MovementCheckThenUncheck : public CashBookTest,
                                 public ::testing::WithParamInterface<MovementKind>
{
};

TEST_P(MovementCheckThenUncheck, RestoresEveryBalance)
{
    checked(MovementKind::Receipt, 1000, "2025-03-20");
    const QString number = saved(GetParam(), 300, "2025-03-10");
    const QString before = snapshot();

    ASSERT_TRUE(checkMovement(session(), number));
    ASSERT_NE(cashBalance(db(), cash), 1000);
    ui.answerNext(true);
    ASSERT_TRUE(uncheckMovement(session(), number));

    EXPECT_EQ(snapshot(), before);
    EXPECT_EQ(cashBalance(db(), cash), 1000);
    EXPECT_EQ(cashBalance(db(), bank), 0);
}

INSTANTIATE_TEST_SUITE_P(Kinds, MovementCheckThenUncheck,
    ::testing::Values(MovementKind::Receipt, MovementKind::Payment, MovementKind::Transfer));

TEST_F(CashBookTest, ACheckedMovementIsNeitherChangedNorDeleted)
{
    const QString number = checked(MovementKind::Receipt, 50);
    MovementDraft change;
    change.number = number;
    change.date = QStringLiteral("2025-03-14");
    change.amount = 60;
    change.account = cash;
    const QString before = snapshot();

    EXPECT_EQ(saveMovement(session(), change).message(),
        QStringLiteral("单据：XJ25031410001已经审核，不能修改！"));
    EXPECT_EQ(deleteMovement(session(), number).message(),
        QStringLiteral("单据：XJ25031410001已经审核，不能删除！"));
    EXPECT_EQ(checkMovement(session(), number).message(),
        QStringLiteral("单据：XJ25031410001已经审核！"));
    change.number.clear();
    change.kind = MovementKind::Transfer;
    change.targetAccount = cash;
    EXPECT_EQ(
        saveMovement(session(), change).message(), QStringLiteral("转出账户和转入账户不能相同！"));
    EXPECT_EQ(snapshot(), before);
}

TEST_F(CashBookTest, RenamingAnAccountKeepsItsHistoryAndBalances)
{
    checked(MovementKind::Transfer, 200, "2025-03-12");
    const QString payment = saved(MovementKind::Payment, 30, "2025-03-13", bank);
    ASSERT_TRUE(checkMovement(session(), payment));
    ExpenseDraft rent;
    rent.date = QStringLiteral("2025-03-14");
    rent.type = QStringLiteral("费用");
    rent.amount = 70;
    rent.account = bank;
    const QString expense = saveExpense(session(), rent).value();
    const std::vector<double> history = cashBalances(bank);
    ASSERT_EQ(history, (std::vector<double> { 200, 170, 170 }));

    ASSERT_TRUE(renameBankAccount(session(), bank, QStringLiteral("工商银行")));

    EXPECT_TRUE(cashBalances(bank).empty());
    EXPECT_EQ(cashBalances(QStringLiteral("工商银行")), history);
    EXPECT_EQ(db().firstText(QStringLiteral("select xj_note from jxc_xjyh where xj_dlx='期初金额' "
                                            "and xj_kmmc='工商银行'")),
        QStringLiteral("工商银行期初数"));
    ASSERT_TRUE(checkExpense(session(), expense));
    EXPECT_EQ(cashBalance(db(), QStringLiteral("工商银行")), 100);
    EXPECT_EQ(cashBalance(db(), cash), -200);
}

TEST_F(CashBookTest, AccountRulesKeepNamesUniqueAndCashInPlace)
{
    EXPECT_EQ(addBankAccount(session(), cash, {}, {}).message(),
        QStringLiteral("账户名称“现金”已经存在！"));
    EXPECT_EQ(addBankAccount(session(), QStringLiteral("农行帐号"), {}, {}).value(),
        QStringLiteral("100004"));
    EXPECT_EQ(renameBankAccount(session(), bank, QStringLiteral("建行帐号")).message(),
        QStringLiteral("账户名称“建行帐号”已经存在！"));
    EXPECT_EQ(renameBankAccount(session(), cash, QStringLiteral("库存现金")).message(),
        QStringLiteral("“现金”是系统内置账户，不能改名！"));
    EXPECT_EQ(deleteBankAccount(session(), cash).message(),
        QStringLiteral("“现金”是系统内置账户，不能删除！"));

    checked(MovementKind::Transfer, 200);
    EXPECT_EQ(deleteBankAccount(session(), bank).message(),
        QStringLiteral("账户“工行帐号”已有业务发生，不能删除！"));
    ASSERT_TRUE(deleteBankAccount(session(), QStringLiteral("建行帐号")));
    EXPECT_FALSE(db().exists(QStringLiteral("select id from jxc_xjyh where xj_kmmc='建行帐号'")));
    EXPECT_EQ(listBankAccounts(db()).size(), 3);
    EXPECT_EQ(
        db().firstText(QStringLiteral("select xj_note from jxc_xjyh where xj_kmmc='农行帐号'")),
        QStringLiteral("农行帐号期初数"));
}

TEST_F(CashBookTest, AnOpeningAmountOnAnAccountWithBusinessIsAskedFirst)
{
    checked(MovementKind::Receipt, 100, "2025-03-14");
    const QString before = snapshot();

    ui.answerNext(false);
    EXPECT_FALSE(setOpeningAmount(session(), cash, 1000));
    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("该银行账户已有业务发生，\r\n\r\n"
                                     "建立期初帐将会改变该账户的余额，\r\n\r\n"
                                     "是否继续？") });
    EXPECT_EQ(snapshot(), before);

    ui.answerNext(true);
    ASSERT_TRUE(setOpeningAmount(session(), cash, 1000));
    EXPECT_EQ(cashBalances(cash), (std::vector<double> { 1000, 1100 }));

    ui.clear();
    ASSERT_TRUE(setOpeningAmount(session(), bank, 50));
    EXPECT_TRUE(ui.asked.isEmpty());
    EXPECT_EQ(cashBalance(db(), bank), 50);
}
