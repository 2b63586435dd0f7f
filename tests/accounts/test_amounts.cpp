#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/expenses.h"
#include "accounts/invoices.h"
#include "accounts/registrations.h"
#include "tests/accounts/accountstest.h"

#include <cmath>
#include <functional>

using namespace medistock;
using namespace medistock::accounts;
using medistock::test::AccountsTest;

namespace {

const double notANumber = std::nan("");

struct AbsurdAmount
{
    const char *name;
    std::function<Outcome(shell::Session &, const QString &customer)> save;
    const char *message;
};

void PrintTo(const AbsurdAmount &c, std::ostream *os)
{
    *os << c.name;
}

std::string caseName(const ::testing::TestParamInfo<AbsurdAmount> &param)
{
    return param.param.name;
}

RegistrationDraft collectionOf(const QString &customer, double paid, double change = 0)
{
    RegistrationDraft d;
    d.kind = RegistrationKind::Collection;
    d.party = customer;
    d.date = QStringLiteral("2025-03-14");
    d.paid = paid;
    d.changeWrittenOff = change;
    d.account = QStringLiteral("现金");
    return d;
}

Outcome movement(shell::Session &session, double amount)
{
    MovementDraft d;
    d.kind = MovementKind::Receipt;
    d.date = QStringLiteral("2025-03-14");
    d.amount = amount;
    d.account = QStringLiteral("现金");
    return saveMovement(session, d).outcome();
}

Outcome expense(shell::Session &session, double amount)
{
    ExpenseDraft d;
    d.date = QStringLiteral("2025-03-14");
    d.type = QStringLiteral("费用");
    d.amount = amount;
    d.account = QStringLiteral("现金");
    return saveExpense(session, d).outcome();
}

Outcome invoicing(shell::Session &session, const QString &customer, double amount)
{
    InvoicingDraft d;
    d.party = customer;
    d.date = QStringLiteral("2025-03-14");
    d.amount = amount;
    return addInvoicing(session, d).outcome();
}

} // namespace

class AbsurdAmounts : public AccountsTest, public ::testing::WithParamInterface<AbsurdAmount>
{
};

// Money typed into a registration, a cash movement, an expense, an invoice or an opening amount
// keeps the money limits; the refusal states them, is told once and writes nothing.
TEST_P(AbsurdAmounts, AreRefusedWithTheLimitsAndWriteNothing)
{
    const QString before = snapshot();
    const Outcome refused = GetParam().save(session(), customer());
    const QString message = QString::fromUtf8(GetParam().message);
    EXPECT_EQ(refused.kind(), Outcome::Kind::Refused);
    EXPECT_EQ(refused.message(), message);
    EXPECT_EQ(ui.informed, QStringList { message });
    EXPECT_EQ(snapshot(), before);
}

INSTANTIATE_TEST_SUITE_P(Money, AbsurdAmounts,
    ::testing::Values(AbsurdAmount { "CollectionOf1e308",
                          [](shell::Session &s, const QString &c) {
                              return saveRegistration(s, collectionOf(c, 1e308)).outcome();
                          },
                          "实收金额“1e+308”超出范围，应在 -1000000000000 到 1000000000000 之间！" },
        AbsurdAmount { "CollectionNaN",
            [](shell::Session &s, const QString &c) {
                return saveRegistration(s, collectionOf(c, notANumber)).outcome();
            },
            "实收金额“nan”不是数字！" },
        AbsurdAmount { "WrittenOffChangeInfinite",
            [](shell::Session &s, const QString &c) {
                return saveRegistration(s, collectionOf(c, 10, -HUGE_VAL)).outcome();
            },
            "抹零金额“-inf”不是数字！" },
        AbsurdAmount { "PayableEntryPastTheLimit",
            [](shell::Session &s, const QString &) {
                RegistrationDraft d = collectionOf(QStringLiteral("100002"), 0);
                d.kind = RegistrationKind::Payable;
                d.due = -2e12;
                return saveRegistration(s, d).outcome();
            },
            "应付金额“-2000000000000”超出范围，应在 -1000000000000 到 1000000000000 之间！" },
        AbsurdAmount { "CashReceiptOf1e20",
            [](shell::Session &s, const QString &) { return movement(s, 1e20); },
            "金额“1e+20”超出范围，应在 0 到 1000000000000 之间！" },
        AbsurdAmount { "CashReceiptInfinite",
            [](shell::Session &s, const QString &) { return movement(s, HUGE_VAL); },
            "金额“inf”不是数字！" },
        AbsurdAmount { "ExpenseNaN",
            [](shell::Session &s, const QString &) { return expense(s, notANumber); },
            "金额必须大于零！" },
        AbsurdAmount { "ExpenseOf1e308",
            [](shell::Session &s, const QString &) { return expense(s, 1e308); },
            "金额“1e+308”超出范围，应在 0 到 1000000000000 之间！" },
        AbsurdAmount { "InvoicingNaN",
            [](shell::Session &s, const QString &c) { return invoicing(s, c, notANumber); },
            "开票金额“nan”不是数字！" },
        AbsurdAmount { "OpeningOf1e308",
            [](shell::Session &s, const QString &) {
                return setOpeningAmount(s, QStringLiteral("现金"), 1e308);
            },
            "期初金额“1e+308”超出范围，应在 -1000000000000 到 1000000000000 之间！" }),
    caseName);

TEST_F(AccountsTest, AmountsAtTheLimitAreTaken)
{
    EXPECT_TRUE(saveRegistration(session(), collectionOf(customer(), 1e12)).ok());
    EXPECT_TRUE(movement(session(), 1e12).ok());
    ui.setDefaultAnswer(true);
    EXPECT_TRUE(setOpeningAmount(session(), QStringLiteral("现金"), -1e12).ok());
}
