#pragma once

#include "core/outcome.h"

#include <QDate>
#include <QList>
#include <QString>

#include <optional>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// The two sides of the receivables and payables ledger: "kh" customers, "ghs" suppliers.
enum class PartyKind { Customer, Supplier };

QString partyKindCode(PartyKind kind); // "kh" / "ghs"
std::optional<PartyKind> partyKindFromCode(const QString &code);
// The party's name from jxc_khxx / jxc_ghsxx; empty when there is no such party.
QString partyName(core::Connection &connection, PartyKind kind, const QString &code);
bool partyExists(core::Connection &connection, PartyKind kind, const QString &code);

// The party's balance after its last ledger row dated on or before `date` (and with a smaller id
// when beforeId is not 0); 0 when there is none. What a new row's balance starts from.
double ledgerBalanceAsOf(core::Connection &connection, PartyKind kind, const QString &party,
    const QString &date, qint64 beforeId = 0);
// The party's balance after its latest row, rounded to `decimals` places after adding
// 0.000000001; 0 when the party has no row.
double currentLedgerBalance(
    core::Connection &connection, PartyKind kind, const QString &party, int decimals);
// Rewrites k_ljje of the party's rows from `date` on and writes the final balance into kh_lwje or
// ghs_lwje (the opening balance when no row lies on or after the date). Returns that balance.
// Runs inside the caller's transaction.
double recalculateLedger(
    core::Connection &connection, PartyKind kind, const QString &party, const QString &date);
// "重新计算应收款" / "重新计算应付款": asks first, then recalculates every party of the kind in id
// order (or only `party` when it is not empty) from `from`, in one transaction, and tells the end.
Outcome recalculateAllLedgers(
    shell::Session &session, PartyKind kind, const QString &party, QDate from);

// One item of the settlement-mode list of purchase ("cg") and sales ("xs") documents.
struct SettlementMode
{
    QString text;
    QString value;
};
// "按实付款结算" "1", then "余款记入应付帐" (cg) or "余款记入应收帐" (xs) "2"; empty for another
// kind.
QList<SettlementMode> settlementModes(const QString &listKind);

} // namespace medistock::accounts
