#include "accounts/ledger.h"
#include "accounts/registrations.h"
#include "core/transaction.h"
#include "tests/accounts/accountstest.h"

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

class LedgerTest : public AccountsTest
{
protected:
    double recalculate(PartyKind kind, const QString &party, const QString &date)
    {
        core::Transaction transaction(db());
        const double balance = recalculateLedger(db(), kind, party, date);
        transaction.commit();
        return balance;
    }
};

TEST_F(LedgerTest, RowsOfOneDateAreWalkedInIdOrder)
{
    const qint64 first
        = insertLedgerRow(PartyKind::Customer, customer(), "2025-03-10", 100, 0, "A");
    const qint64 later = insertLedgerRow(PartyKind::Customer, customer(), "2025-03-12", 50, 0, "B");
    const qint64 second
        = insertLedgerRow(PartyKind::Customer, customer(), "2025-03-10", 0, 30, "C");

    EXPECT_EQ(recalculate(PartyKind::Customer, customer(), "2025-03-01"), 120);

    EXPECT_EQ(
        ledgerBalances(PartyKind::Customer, customer()), (std::vector<double> { 100, 70, 120 }));
    const QString sql = QStringLiteral("select k_ljje from jxc_ysyfk where id=?");
    EXPECT_EQ(db().firstValue(sql, { first }).toDouble(), 100);
    EXPECT_EQ(db().firstValue(sql, { second }).toDouble(), 70);
    EXPECT_EQ(db().firstValue(sql, { later }).toDouble(), 120);
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 120);
}

TEST_F(LedgerTest, ABackdatedCollectionSlotsInAndShiftsEveryLaterBalance)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 200);
    owe(PartyKind::Customer, customer(), "2025-03-10", 100);
    ASSERT_EQ(ledgerBalances(PartyKind::Customer, customer()), (std::vector<double> { 200, 300 }));
    ASSERT_EQ(figure(PartyKind::Customer, customer()), 300);

    const QString number = checkedRegistration(collection(50, 0, "2025-03-05"));

    EXPECT_EQ(number, QStringLiteral("SK25030510001"));
    EXPECT_EQ(
        ledgerBalances(PartyKind::Customer, customer()), (std::vector<double> { 200, 150, 250 }));
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 250);
    EXPECT_EQ(currentLedgerBalance(db(), PartyKind::Customer, customer(), 2), 250);
    // The seeded customer's chain is untouched.
    EXPECT_TRUE(ledgerBalances(PartyKind::Customer, QStringLiteral("100001")).empty());
}

TEST_F(LedgerTest, BalanceAsOfARowLeavesOutLaterDatesAndHigherIds)
{
    insertLedgerRow(PartyKind::Supplier, supplier(), "2025-03-10", 100, 0, "A");
    const qint64 second
        = insertLedgerRow(PartyKind::Supplier, supplier(), "2025-03-10", 40, 0, "B");
    insertLedgerRow(PartyKind::Supplier, supplier(), "2025-03-12", 0, 60, "C");
    recalculate(PartyKind::Supplier, supplier(), "2025-03-10");

    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Supplier, supplier(), "2025-03-09"), 0);
    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Supplier, supplier(), "2025-03-10"), 140);
    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Supplier, supplier(), "2025-03-10", second), 100);
    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Supplier, supplier(), "2025-03-31"), 80);
    EXPECT_EQ(figure(PartyKind::Supplier, supplier()), 80);
    // The same code on the customer side is another chain.
    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Customer, supplier(), "2025-03-31"), 0);
}

TEST_F(LedgerTest, APartyWithoutRowsHasBalanceZeroAndRecalculationZeroesItsFigure)
{
    db().exec(QStringLiteral("update jxc_khxx set kh_lwje=55 where kh_sn=?"), { customer() });

    EXPECT_EQ(currentLedgerBalance(db(), PartyKind::Customer, customer(), 2), 0);
    EXPECT_EQ(ledgerBalanceAsOf(db(), PartyKind::Customer, customer(), "2025-03-14"), 0);
    EXPECT_EQ(recalculate(PartyKind::Customer, customer(), "2025-01-01"), 0);
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 0);
}

TEST_F(LedgerTest, WithoutRowsFromTheDateTheFigureIsTheOpeningBalance)
{
    owe(PartyKind::Customer, customer(), "2025-03-01", 75.5);
    db().exec(QStringLiteral("update jxc_khxx set kh_lwje=0 where kh_sn=?"), { customer() });

    EXPECT_EQ(recalculate(PartyKind::Customer, customer(), "2025-03-02"), 75.5);
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 75.5);
}

class CurrentBalanceRounding : public AccountsTest,
                               public ::testing::WithParamInterface<std::pair<QVariant, double>>
{
};

// A stored 12.3449999999 lies a hair under the half; the added 0.000000001 tips it over.
TEST_P(CurrentBalanceRounding, RoundsToTheAmountPlacesAfterTheTinyAddend)
{
    const qint64 id = insertLedgerRow(PartyKind::Customer, customer(), "2025-03-14", 0, 0, "A");
    db().exec(QStringLiteral("update jxc_ysyfk set k_ljje=12.3449999999 where id=?"), { id });
    setParameter(QStringLiteral("cs_jews"), GetParam().first);

    EXPECT_DOUBLE_EQ(currentLedgerBalance(db(), PartyKind::Customer, customer(),
                         session().params().amountDecimals()),
        GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(AmountPlaces, CurrentBalanceRounding,
    ::testing::Values(std::pair { QVariant(2), 12.35 }, std::pair { QVariant(0), 12.0 },
        std::pair { QVariant(8), 12.345 }, std::pair { QVariant(9), 12.35 },
        std::pair { QVariant(-1), 12.35 }, std::pair { QVariant(2.5), 12.35 }));

TEST_F(LedgerTest, RecalculatingAllReceivablesAsksFirstAndTellsTheEnd)
{
    insertLedgerRow(PartyKind::Customer, customer(), "2025-03-10", 100, 0, "A");
    insertLedgerRow(PartyKind::Customer, QStringLiteral("100001"), "2025-03-11", 30, 0, "B");
    const QString before = snapshot();

    ui.answerNext(false);
    const Outcome declined
        = recalculateAllLedgers(session(), PartyKind::Customer, {}, QDate(2025, 1, 1));
    EXPECT_EQ(declined.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(
        ui.asked, QStringList { QStringLiteral("您的操作将重新计算所有客户的应收款，确认吗？") });
    EXPECT_EQ(snapshot(), before);

    ui.clear();
    ui.answerNext(true);
    ASSERT_TRUE(recalculateAllLedgers(session(), PartyKind::Customer, {}, QDate(2025, 1, 1)));
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("应收款重新计算完成！") });
    EXPECT_EQ(figure(PartyKind::Customer, customer()), 100);
    EXPECT_EQ(figure(PartyKind::Customer, QStringLiteral("100001")), 30);
}

TEST_F(LedgerTest, RecalculatingOnePartyLeavesTheOthersAlone)
{
    insertLedgerRow(PartyKind::Supplier, supplier(), "2025-03-10", 100, 0, "A");
    insertLedgerRow(PartyKind::Supplier, QStringLiteral("100001"), "2025-03-11", 30, 0, "B");

    ui.answerNext(true);
    ASSERT_TRUE(
        recalculateAllLedgers(session(), PartyKind::Supplier, supplier(), QDate(2025, 1, 1)));

    EXPECT_EQ(ui.asked,
        QStringList { QStringLiteral("您的操作将重新计算供货商“华东医药”的应付款，确认吗？") });
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("应付款重新计算完成！") });
    EXPECT_EQ(figure(PartyKind::Supplier, supplier()), 100);
    EXPECT_EQ(
        ledgerBalances(PartyKind::Supplier, QStringLiteral("100001")), std::vector<double> { 0 });

    ui.clear();
    EXPECT_FALSE(
        recalculateAllLedgers(session(), PartyKind::Supplier, "999999", QDate(2025, 1, 1)));
    EXPECT_EQ(ui.informed, QStringList { QStringLiteral("供货商“999999”不存在！") });
    EXPECT_TRUE(ui.asked.isEmpty());
}

TEST(SettlementModes, PurchaseAndSalesListsDifferInTheirSecondItem)
{
    const auto purchase = settlementModes(QStringLiteral("cg"));
    const auto sales = settlementModes(QStringLiteral("xs"));
    ASSERT_EQ(purchase.size(), 2);
    ASSERT_EQ(sales.size(), 2);
    EXPECT_EQ(purchase[0].text, QStringLiteral("按实付款结算"));
    EXPECT_EQ(purchase[0].value, QStringLiteral("1"));
    EXPECT_EQ(purchase[1].text, QStringLiteral("余款记入应付帐"));
    EXPECT_EQ(sales[0].text, QStringLiteral("按实付款结算"));
    EXPECT_EQ(sales[1].text, QStringLiteral("余款记入应收帐"));
    EXPECT_EQ(sales[1].value, QStringLiteral("2"));
    EXPECT_TRUE(settlementModes(QStringLiteral("zz")).isEmpty());
}
