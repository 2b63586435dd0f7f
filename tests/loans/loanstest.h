#pragma once

#include "loans/entry.h"
#include "loans/loanreturn.h"
#include "loans/loansale.h"
#include "tests/sales/salestest.h"

namespace medistock::test {

// The sales fixture's goods, customers and stock (200001 in batches B1 and B2, 200002 without a
// batch, all in warehouse 100001 at 5 and 3), with today's and the loan day's settlement rows,
// and a bank account "工行" besides the cash.
class LoansTest : public SalesTest
{
protected:
    void SetUp() override;

    // A loan line of 200001 from batch B1 (or of another goods without batch) at the cost.
    loans::LoanDraft loanDraft(const QString &quantity, const QString &deposit, const QString &rent,
        const QString &date = QStringLiteral("2025-03-10"));
    // Saves (every question answered yes) and checks; fails the test when refused.
    QString lend(const loans::LoanDraft &draft);
    QString lend(const QString &quantity, const QString &deposit, const QString &rent);
    // The id of the loan's first line.
    qint64 firstLine(const QString &loan);
    QString giveBack(const QString &loan, const QString &quantity = {},
        const QString &date = QStringLiteral("2025-03-14"));
    loans::LoanSale sell(const QString &loan, const QString &quantity, double paid = 0);

    // The stores of 200001 in warehouse 100001 as "kc_sl|kc_zsl|g_kc|B1|js_sl".
    QString stores();
};

} // namespace medistock::test
