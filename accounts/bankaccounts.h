#pragma once

#include "core/outcome.h"

#include <QList>
#include <QString>

namespace medistock::core {
class Connection;
}
namespace medistock::shell {
class Session;
}

namespace medistock::accounts {

// A cash or bank account of jxc_yhzh; its movements are kept under its name.
struct BankAccount
{
    qint64 id = 0;
    QString code; // yh_sn
    QString type; // yh_type
    QString name; // yh_name
    double opening = 0; // yh_zje
    QString note; // yh_note
};

QList<BankAccount> listBankAccounts(core::Connection &connection);

// Adds an account under the next code with its opening movement ("期初金额", 0) dated today.
// The name may be neither an account's name nor its type. Returns the code.
Result<QString> addBankAccount(
    shell::Session &session, const QString &name, const QString &type, const QString &note);
// Renames the account: every movement and expense takes the new name, and the opening movement's
// note follows it. "现金" keeps its name.
Outcome renameBankAccount(shell::Session &session, const QString &name, const QString &newName);
// Sets the opening amount (yh_zje and the opening movement) and recalculates the account; asks
// first when the account already has other movements.
Outcome setOpeningAmount(shell::Session &session, const QString &name, double amount);
// Deletes the account and its opening movement; refused for "现金" and while other movements
// exist.
Outcome deleteBankAccount(shell::Session &session, const QString &name);

} // namespace medistock::accounts
