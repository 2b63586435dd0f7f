#pragma once

#include "app/screenshots/documents.h"

// Renders the money screens on entries made through the operations: the four registrations
// with a collection's form, the receivables ledger with a customer's running ledger and the
// written-off change, the payables ledger, the invoice registers with their set-aside rows and
// the invoicing form, expenses and income with the expense form, the cash and bank book with the
// transfer form, and the accounts with their opening amounts.
void shootMoney(
    const Shots &shots, medistock::ui::MainWindow &window, medistock::ui::Workspace &workspace);
