#pragma once

#include "accounts/ledger.h"
#include "ui/accounts/moneyscreen.h"

class QCheckBox;
class QTabWidget;

namespace medistock::ui {

class CodeNameField;

// The running ledger of one party under "应收帐表" / "应付帐表": its rows of the range in ledger
// order, each with the balance after it, so that the last row reads what the party owes.
class LedgerRowsScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    LedgerRowsScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent = nullptr);
    void showParty(const QString &party, const QString &name);

    // The party's statement ("客户对帐单" khdzd, "供货商对帐单" ghsdzd): the rows shown, the
    // range as the heading's filter and the party's name; nothing without a party.
    PrintRequest printRequest() const override;

protected:
    void fetch() override;

private:
    accounts::PartyKind m_kind;
    QString m_party;
    QString m_partyName;
};

// "应收帐表" / "应付帐表": every customer (supplier) with the balance its record keeps, filtered
// by a text and, when ticked, to those with a balance; the chosen party's running ledger below.
// "重新计算(F6)" recalculates all parties or the chosen one from a date, after the operation's
// question. "打印(F8)", anywhere in the window, prints the chosen party's statement of the range
// its ledger shows.
class LedgerScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    LedgerScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent = nullptr);

    LedgerRowsScreen *ledger() const { return m_ledger; }
    QLineEdit *searchField() const { return m_search; }
    QString currentParty() const;

public slots:
    void recalculate();

protected:
    void fetch() override;
    PrintRequest printRequest() const override;

private:
    void showCurrentParty();

    accounts::PartyKind m_kind;
    QLineEdit *m_search;
    QCheckBox *m_owingOnly;
    LedgerRowsScreen *m_ledger;
    QList<accounts::PartyBalance> m_rows;
};

// The change written off on collections (payments) of the range: "抹零金额".
class WrittenOffScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    WrittenOffScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent = nullptr);
    CodeNameField *partyField() const { return m_party; }

protected:
    void fetch() override;

private:
    accounts::PartyKind m_kind;
    CodeNameField *m_party = nullptr;
};

// The window of "应收帐表" / "应付帐表": the balances with their ledger, and the written-off
// change.
QTabWidget *ledgerWindow(Workspace &workspace, accounts::PartyKind kind);

} // namespace medistock::ui
