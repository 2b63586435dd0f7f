#pragma once

#include "accounts/ledger.h"
#include "core/outcome.h"

#include <QString>

#include <optional>

namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// The registrations of jxc_ysyfk_dj: receivable entries "YS" (增加应收款) and collections "SK"
// (收款单) of customers, payable entries "YF" (增加应付款) and payments "FK" (付款单) of suppliers.
enum class RegistrationKind { Receivable, Collection, Payable, Payment };

QString registrationPrefix(RegistrationKind kind);
std::optional<RegistrationKind> registrationKindFromPrefix(const QString &prefix);
PartyKind registrationParty(RegistrationKind kind);

struct RegistrationDraft
{
    RegistrationKind kind = RegistrationKind::Collection;
    QString number; // empty for a new one; an unchecked registration's number to change it
    QString party; // k_ghskh
    QString date; // k_rq "yyyy-MM-dd"
    double due = 0; // k_yfje: what the entry adds to the debt
    double paid = 0; // k_sfje: what was collected or paid
    double discount = 0; // k_yhje, kept but outside the balance
    double changeWrittenOff = 0; // k_mlje, "抹零"
    QString account; // k_fkfs: the cash or bank account the money went through
    QString salesman; // u_sn; the default employee when empty
    QString link; // gl_djh2, the document it settles
    QString note;
};

// Saves the registration unchecked under a number of its date (or rewrites an unchecked one);
// returns the number.
Result<QString> saveRegistration(shell::Session &session, const RegistrationDraft &draft);
// Posts it: ledger row with its balance, the written-off change under its own "YS"/"YF" number
// with its journal line, the party's recalculation, status, cash row and log.
Outcome checkRegistration(shell::Session &session, const QString &number);
// Asks, then removes its journal, cash and ledger rows, recalculates and sets it unchecked.
Outcome uncheckRegistration(shell::Session &session, const QString &number);
// "修改收付款日期": gives the registration a new date; a checked one's ledger rows, journal line
// and cash row move with it and their books are recalculated from the earlier of the two dates.
Outcome changeRegistrationDate(shell::Session &session, const QString &number, const QString &date);
// Deletes an unchecked registration.
Outcome deleteRegistration(shell::Session &session, const QString &number);

} // namespace medistock::accounts
