#pragma once

#include "accounts/ledger.h"
#include "ui/accounts/moneyscreen.h"

class QTabWidget;

namespace medistock::ui {

class CodeNameField;

// "销售发票管理" / "进货发票管理": the invoice register of the range, of one party or all.
// The register tab shows the counted rows in ledger order with the balance still to be invoiced
// after each; F2 adds an invoicing ("增加发票", showing the party's balance), F3 changes one,
// F4 writes the invoice onto a document's row ("发票登记"), F7 sets a row aside, Del deletes it,
// F9 recalculates from a date. The other tab holds the set-aside rows, newest first: F6 takes
// one back (the kind's check right), F9 takes back all of them after the question. A third tab
// sums the register per party ("发票汇总").
class InvoiceScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    InvoiceScreen(
        Workspace &workspace, accounts::PartyKind kind, bool counted, QWidget *parent = nullptr);

    CodeNameField *partyField() const { return m_party; }

public slots:
    void addInvoicing();
    void changeInvoicing();
    void registerInvoice();
    void setAside();
    void remove();
    void takeBack();
    void takeBackAll();
    void recalculate();

protected:
    void fetch() override;

private:
    const accounts::InvoiceRow *current() const;
    bool editInvoicing(const accounts::InvoiceRow *row);

    accounts::PartyKind m_kind;
    bool m_counted;
    CodeNameField *m_party = nullptr;
    QList<accounts::InvoiceRow> m_rows;
};

// "发票汇总": per party, the opening amount still to be invoiced ("期初应开"), what the range
// added and invoiced, and what remains.
class InvoiceSummaryScreen : public MoneyListScreen
{
    Q_OBJECT
public:
    InvoiceSummaryScreen(Workspace &workspace, accounts::PartyKind kind, QWidget *parent = nullptr);

protected:
    void fetch() override;

private:
    accounts::PartyKind m_kind;
    CodeNameField *m_party = nullptr;
};

QTabWidget *invoiceWindow(Workspace &workspace, accounts::PartyKind kind);

} // namespace medistock::ui
