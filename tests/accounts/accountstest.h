#pragma once

#include "accounts/ledger.h"
#include "accounts/registrations.h"
#include "tests/support/accountset.h"

#include <vector>

namespace medistock::test {

// An account set with admin logged in, the customer "仁和医院" (100002) and the supplier
// "华东医药" (100002) besides the seeded ones, and builders for money documents.
class AccountsTest : public SessionTest
{
protected:
    void SetUp() override;

    static QString customer() { return QStringLiteral("100002"); }
    static QString supplier() { return QStringLiteral("100002"); }

    // A ledger row as another module's posting leaves it, balance 0 until recalculated.
    qint64 insertLedgerRow(accounts::PartyKind kind, const QString &party, const QString &date,
        double due, double paid, const QString &number);
    // A document row that raises what the party owes, balances recalculated.
    void owe(accounts::PartyKind kind, const QString &party, const QString &date, double due);
    // A sales header (jxc_lsxsd) as saving a sale leaves it.
    void insertSale(const QString &number, const QString &date, double due, double paid,
        double invoice = 0, double freight = 0, double packing = 0,
        const QString &freightMode = QStringLiteral("对方付运费"));

    // k_ljje of the party's rows in ledger order.
    std::vector<double> ledgerBalances(accounts::PartyKind kind, const QString &party);
    // kh_lwje or ghs_lwje.
    double figure(accounts::PartyKind kind, const QString &party);
    // xj_ljje of the account's counted rows in book order.
    std::vector<double> cashBalances(const QString &account);
    // fp_ljje of the party's counted invoice rows in order.
    std::vector<double> invoiceBalances(accounts::PartyKind kind, const QString &party);
    // Everything the set holds except the log, for before-and-after comparisons.
    QString snapshot();

    accounts::RegistrationDraft collection(
        double paid, double change = 0, const QString &date = QStringLiteral("2025-03-14"));
    // Saves and checks; the number.
    QString checkedRegistration(const accounts::RegistrationDraft &draft);
};

std::vector<double> numbers(
    core::Connection &connection, const QString &sql, const QVariantList &params = {});

} // namespace medistock::test
