#pragma once

#include "accounts/registrations.h"
#include "ui/accounts/moneyscreen.h"

namespace medistock::ui {

class CodeNameField;

// "应收登记", "收款登记", "应付登记", "付款登记": the registrations of one kind in the range, of
// one party or all, by status. F2 enters one, F3 (or Enter on a row) changes an unchecked one, Del
// deletes it, F4 gives it a new date ("修改收付款日期", also once checked), F6 checks it (the
// check right of the kind), F7 unchecks it after the operation's question. An entry ("应收登记" /
// "应付登记") takes the amount owed and, when something was paid on it at once, the amount paid
// and its account; a collection or payment takes the amount paid, the discount, the change
// written off ("抹零") and the account. F8 prints the current registration, checked or not, on
// its kind's form with preview (an unchecked one prints without checker, as entered).
class RegistrationScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    RegistrationScreen(
        Workspace &workspace, accounts::RegistrationKind kind, QWidget *parent = nullptr);

    CodeNameField *partyField() const { return m_party; }

public slots:
    void add();
    void change();
    void remove();
    void changeDate();
    void check();
    void uncheck();

protected:
    void fetch() override;
    PrintRequest printRequest() const override;

private:
    // The form, filled from `row` when one is given; true when it was saved.
    bool edit(const accounts::RegistrationRow *row);
    const accounts::RegistrationRow *current() const;

    accounts::RegistrationKind m_kind;
    CodeNameField *m_party = nullptr;
    QList<accounts::RegistrationRow> m_rows;
};

} // namespace medistock::ui
