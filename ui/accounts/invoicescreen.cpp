#include "ui/accounts/invoicescreen.h"

#include "accounts/invoices.h"
#include "accounts/moneylists.h"
#include "accounts/texts.h"
#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QComboBox>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

namespace medistock::ui {

namespace {

using accounts::PartyKind;

QueryColumn money(const QString &caption, bool summed = true)
{
    return { caption, QueryColumn::Kind::Number, 2, summed };
}

// "进货发票审核" 14, "销售发票审核" 15.
int checkRight(PartyKind kind)
{
    return kind == PartyKind::Customer ? 15 : 14;
}

int screenRight(PartyKind kind)
{
    return kind == PartyKind::Customer ? 13 : 12;
}

} // namespace

InvoiceScreen::InvoiceScreen(Workspace &workspace, PartyKind kind, bool counted, QWidget *parent)
    : MoneyListScreen(workspace,
        kind == PartyKind::Customer ? QStringLiteral("销售发票管理")
                                    : QStringLiteral("进货发票管理"),
        parent)
    , m_kind(kind)
    , m_counted(counted)
{
    addRangeFilters();
    fromField()->setText(session().clock().today().addYears(-1).toString(Qt::ISODate));
    m_party = addPartyFilter(kind);
    const int right = screenRight(kind);
    if (counted) {
        addOperation(
            QStringLiteral("增加发票"), Qt::Key_F2, [this] { addInvoicing(); }, "wlzk", right);
        addOperation(
            QStringLiteral("修改发票"), Qt::Key_F3, [this] { changeInvoicing(); }, "wlzk", right);
        addOperation(
            QStringLiteral("发票登记"), Qt::Key_F4, [this] { registerInvoice(); }, "wlzk", right);
        addOperation(
            QStringLiteral("排除"), Qt::Key_F7, [this] { setAside(); }, "wlzk", right);
    } else {
        addOperation(
            QStringLiteral("审核"), Qt::Key_F6, [this] { takeBack(); }, "wlzk", checkRight(kind));
        addOperation(
            QStringLiteral("审核所有"), Qt::Key_F9, [this] { takeBackAll(); }, "wlzk",
            checkRight(kind));
    }
    addOperation(
        QStringLiteral("删除"), Qt::Key_Delete, [this] { remove(); }, "wlzk", right);
    if (counted)
        addOperation(
            QStringLiteral("重新计算"), Qt::Key_F9, [this] { recalculate(); }, "wlzk", right);
    const QString who = accounts::texts::partyWord(kind);
    setColumns({ { QStringLiteral("日期") },
                   { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 120 },
                   { who + QStringLiteral("编号") },
                   { who + QStringLiteral("名称"), QueryColumn::Kind::Text, 0, false, 150 },
                   { QStringLiteral("摘要") }, money(QStringLiteral("期初金额")),
                   money(QStringLiteral("应开金额")), money(QStringLiteral("开票金额")),
                   money(QStringLiteral("未开金额"), false), { QStringLiteral("发票号") },
                   { QStringLiteral("开票日期") },
                   { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 160 } },
        QStringLiteral("invoices-%1-%2").arg(accounts::partyKindCode(kind)).arg(counted));
    if (counted)
        connect(this, &QueryScreen::activated, this, [this](int) { changeInvoicing(); });
}

void InvoiceScreen::fetch()
{
    accounts::MoneyFilter filter = baseFilter();
    filter.party = m_party->code();
    filter.checked = m_counted;
    m_rows = accounts::invoiceRows(session().db(), m_kind, filter);
    QList<QVariantList> rows;
    for (const accounts::InvoiceRow &r : m_rows)
        rows.append({ r.date, r.number, r.party, r.partyName, r.text, r.opening, r.due, r.invoiced,
            m_counted ? QVariant(r.balance) : QVariant(), r.invoiceNumber, r.invoiceDate, r.note });
    setRows(rows);
}

const accounts::InvoiceRow *InvoiceScreen::current() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void InvoiceScreen::addInvoicing()
{
    refreshAfter(editInvoicing(nullptr));
}

void InvoiceScreen::changeInvoicing()
{
    const accounts::InvoiceRow *row = current();
    if (!row)
        return;
    if (row->text != accounts::texts::invoicingText()) {
        session().ui().inform(QStringLiteral("只能修改增加发票的记录；单据的发票请用“发票登记”。"));
        return;
    }
    const accounts::InvoiceRow copy = *row;
    refreshAfter(editInvoicing(&copy));
}

bool InvoiceScreen::editInvoicing(const accounts::InvoiceRow *row)
{
    const bool customer = m_kind == PartyKind::Customer;
    MoneyFormDialog form(session(),
        (row ? QStringLiteral("修改") : QStringLiteral("增加"))
            + (customer ? QStringLiteral("销售发票") : QStringLiteral("进货发票")),
        this);
    auto *who = makePartyField(session(), partyTableOf(m_kind), &form);
    form.addRow(partyLabel(partyTableOf(m_kind)), who);
    auto *balance = new QLabel(&form);
    form.addRow(QStringLiteral("未开金额"), balance);
    const auto showBalance = [this, balance](const QString &party) {
        readSafely(session().ui(), [&] {
            balance->setText(party.isEmpty()
                    ? QString()
                    : QString::number(
                        accounts::currentInvoiceBalance(session().db(), m_kind, party), 'f', 2));
        });
    };
    connect(who, &CodeNameField::chosen, &form, showBalance);
    DateField *date = form.addDate(QStringLiteral("日期"), row ? row->date : session().today());
    QLineEdit *amount = form.addAmount(QStringLiteral("开票金额"), row ? row->invoiced : 0);
    QLineEdit *number
        = form.addText(QStringLiteral("发票号"), row ? row->invoiceNumber : QString());
    DateField *invoiceDate
        = form.addDate(QStringLiteral("开票日期"), row ? row->invoiceDate : session().today());
    auto *salesman = new QComboBox(&form);
    fillMasterBox(salesman, session(), "employee");
    form.addRow(QStringLiteral("业务员"), salesman);
    QLineEdit *note = form.addText(QStringLiteral("备注"), row ? row->note : QString());
    const QString party = row ? row->party : m_party->code();
    if (!party.isEmpty()) {
        who->setChoice(party, row ? row->partyName : m_party->text());
        showBalance(party);
    }
    if (row)
        chooseCode(salesman, row->salesman);
    who->setFocus();
    form.setSubmit([&]() -> bool {
        const auto value = form.amount(amount, accounts::texts::invoiceAmountField());
        if (!value)
            return false;
        who->resolve();
        accounts::InvoicingDraft draft;
        draft.kind = m_kind;
        draft.party = who->code();
        draft.salesman = salesman->currentData().toString();
        draft.date = date->text();
        draft.amount = *value;
        draft.invoiceNumber = number->text().trimmed();
        draft.invoiceDate = invoiceDate->text();
        draft.note = note->text();
        return row ? accounts::changeInvoicing(session(), row->id, draft).ok()
                   : accounts::addInvoicing(session(), draft).ok();
    });
    return form.exec() == QDialog::Accepted;
}

void InvoiceScreen::registerInvoice()
{
    const accounts::InvoiceRow *row = current();
    if (!row)
        return;
    const QString documentNumber = row->number;
    MoneyFormDialog form(session(), QStringLiteral("发票登记：") + documentNumber, this);
    QLineEdit *number = form.addText(QStringLiteral("发票号"), row->invoiceNumber);
    QLineEdit *amount
        = form.addAmount(QStringLiteral("开票金额"), row->invoiced ? row->invoiced : row->due);
    DateField *date = form.addDate(QStringLiteral("开票日期"),
        row->invoiceDate.isEmpty() ? session().today() : row->invoiceDate);
    QLineEdit *note = form.addText(QStringLiteral("备注"), row->note);
    form.setSubmit([&]() -> bool {
        const auto value = form.amount(amount, accounts::texts::invoiceAmountField());
        return value
            && accounts::registerInvoice(session(), documentNumber,
                { number->text().trimmed(), *value, date->text(), note->text() })
                   .ok();
    });
    refreshAfter(form.exec() == QDialog::Accepted);
}

void InvoiceScreen::setAside()
{
    if (const accounts::InvoiceRow *row = current())
        refreshAfter(accounts::setAsideInvoiceRow(session(), row->id).ok());
}

void InvoiceScreen::remove()
{
    const accounts::InvoiceRow *row = current();
    if (row
        && session().ui().ask(QStringLiteral("确定删除单据：%1的发票记录吗？").arg(row->number)))
        refreshAfter(accounts::deleteInvoiceRow(session(), row->id).ok());
}

void InvoiceScreen::takeBack()
{
    if (const accounts::InvoiceRow *row = current())
        refreshAfter(accounts::takeBackInvoiceRows(session(), row->number).ok());
}

void InvoiceScreen::takeBackAll()
{
    refreshAfter(accounts::checkAllInvoiceRows(session(), m_kind).ok());
}

void InvoiceScreen::recalculate()
{
    recalculateParties(QStringLiteral("重新计算发票数据"), m_kind, m_party->code(), m_party->text(),
        fromField()->text(), accounts::recalculateAllInvoices);
}

InvoiceSummaryScreen::InvoiceSummaryScreen(Workspace &workspace, PartyKind kind, QWidget *parent)
    : MoneyListScreen(workspace, QStringLiteral("发票汇总"), parent)
    , m_kind(kind)
{
    addRangeFilters();
    m_party = addPartyFilter(kind);
    const QString who = accounts::texts::partyWord(kind);
    setColumns({ { who + QStringLiteral("编号") },
                   { who + QStringLiteral("名称"), QueryColumn::Kind::Text, 0, false, 220 },
                   money(QStringLiteral("期初应开")), money(QStringLiteral("应开金额")),
                   money(QStringLiteral("开票金额")), money(QStringLiteral("未开金额")) },
        QStringLiteral("invoice-summary-") + accounts::partyKindCode(kind));
}

void InvoiceSummaryScreen::fetch()
{
    accounts::MoneyFilter filter = baseFilter();
    filter.party = m_party->code();
    QList<QVariantList> rows;
    for (const accounts::InvoiceSummary &r :
        accounts::invoiceSummary(session().db(), m_kind, filter))
        rows.append({ r.party, r.partyName, r.opening, r.due, r.invoiced, r.outstanding });
    setRows(rows);
}

QTabWidget *invoiceWindow(Workspace &workspace, PartyKind kind)
{
    auto *tabs = new QTabWidget;
    auto *counted = new InvoiceScreen(workspace, kind, true, tabs);
    auto *aside = new InvoiceScreen(workspace, kind, false, tabs);
    tabs->addTab(counted, QStringLiteral("发票台账"));
    tabs->addTab(aside, QStringLiteral("待处理发票"));
    auto *summary = new InvoiceSummaryScreen(workspace, kind, tabs);
    tabs->addTab(summary, QStringLiteral("发票汇总"));
    summary->run();
    tabs->setFocusProxy(counted);
    counted->run();
    aside->run();
    return tabs;
}

} // namespace medistock::ui
