#include "ui/accounts/moneyscreen.h"

#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/texts.h"
#include "core/interaction.h"
#include "core/rounding.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QComboBox>
#include <QDate>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QVBoxLayout>

namespace medistock::ui {

MoneyListScreen::MoneyListScreen(Workspace &workspace, const QString &title, QWidget *parent)
    : QueryScreen(workspace, title, parent)
{ }

shell::Session &MoneyListScreen::session() const
{
    return m_workspace.session;
}

QPushButton *MoneyListScreen::addOperation(const QString &text, const QKeySequence &key,
    std::function<void()> operation, const char *area, int right)
{
    auto *button = new QPushButton(
        key.isEmpty() ? text : QStringLiteral("%1(%2)").arg(text, key.toString()), this);
    connect(button, &QPushButton::clicked, this, operation);
    if (!key.isEmpty()) {
        auto *shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, [button] {
            if (button->isEnabled() && button->isVisible())
                button->click();
        });
    }
    if (area && right > 0 && !shell::hasRight(session(), QLatin1String(area), right)) {
        button->setEnabled(false);
        button->setToolTip(QStringLiteral("您没有此项操作的权限"));
    }
    addButton(button);
    return button;
}

void MoneyListScreen::addRangeFilters()
{
    m_from = new DateField(this);
    m_to = new DateField(this);
    const QDate today = session().clock().today();
    m_from->setText(today.addMonths(-1).toString(Qt::ISODate));
    m_to->setText(today.toString(Qt::ISODate));
    addFilter(QStringLiteral("开始日期"), m_from);
    addFilter(QStringLiteral("结束日期"), m_to);
}

void MoneyListScreen::addStatusFilter()
{
    m_status = new QComboBox(this);
    m_status->addItems({ texts::all(), QStringLiteral("未审核"), QStringLiteral("已审核") });
    addFilter(QStringLiteral("状态"), m_status);
    connect(m_status, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
}

documents::PartyTable partyTableOf(accounts::PartyKind kind)
{
    return kind == accounts::PartyKind::Customer ? documents::PartyTable::Customer
                                                 : documents::PartyTable::Supplier;
}

CodeNameField *MoneyListScreen::addPartyFilter(accounts::PartyKind kind)
{
    CodeNameField *party = makePartyField(session(), partyTableOf(kind), this);
    addFilter(partyLabel(partyTableOf(kind)), party);
    connect(party, &CodeNameField::chosen, this, &QueryScreen::run);
    return party;
}

accounts::MoneyFilter MoneyListScreen::baseFilter() const
{
    accounts::MoneyFilter filter;
    if (m_from) {
        filter.from = m_from->text();
        filter.to = m_to->text();
    }
    if (m_status && m_status->currentIndex() > 0)
        filter.checked = m_status->currentIndex() == 2;
    return filter;
}

void MoneyListScreen::refreshAfter(bool done)
{
    if (!done)
        return;
    const int row = currentRow();
    run();
    if (row >= 0 && row < model()->dataRows())
        grid()->selectRow(row);
}

QString MoneyListScreen::currentNumber() const
{
    const int row = currentRow();
    return row >= 0 ? model()->text(row, m_numberColumn) : QString();
}

void MoneyListScreen::operateOnCurrent(DocumentOperation operation)
{
    const QString number = currentNumber();
    if (!number.isEmpty())
        refreshAfter(operation(session(), number).ok());
}

void MoneyListScreen::deleteCurrent(DocumentOperation operation)
{
    const QString number = currentNumber();
    if (!number.isEmpty() && session().ui().ask(QStringLiteral("确定删除单据：%1吗？").arg(number)))
        refreshAfter(operation(session(), number).ok());
}

void MoneyListScreen::recalculateParties(const QString &title, accounts::PartyKind kind,
    const QString &party, const QString &partyName, const QString &from,
    Recalculation recalculation)
{
    MoneyFormDialog form(session(), title, this);
    auto *parties = new QComboBox(&form);
    parties->addItem(kind == accounts::PartyKind::Customer ? QStringLiteral("所有客户")
                                                           : QStringLiteral("所有供货商"),
        QString());
    if (!party.isEmpty())
        parties->addItem(partyName, party);
    form.addRow(accounts::texts::partyWord(kind), parties);
    DateField *date = form.addDate(QStringLiteral("开始日期"), from);
    form.setSubmit([&] {
        const QDate start = QDate::fromString(date->text(), Qt::ISODate);
        if (!start.isValid()) {
            session().ui().inform(accounts::texts::dateInvalid());
            return false;
        }
        return recalculation(session(), kind, parties->currentData().toString(), start).ok();
    });
    refreshAfter(form.exec() == QDialog::Accepted);
}

MoneyFormDialog::MoneyFormDialog(shell::Session &session, const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_form(new QFormLayout)
{
    setWindowTitle(title);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(texts::ok(), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &MoneyFormDialog::submit);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(buttons);
    setMinimumWidth(380);
}

void MoneyFormDialog::addRow(const QString &label, QWidget *field)
{
    m_form->addRow(label, field);
    m_fields.insert(label, field);
    if (m_fields.size() == 1)
        field->setFocus();
}

QLineEdit *MoneyFormDialog::addText(const QString &label, const QString &value)
{
    auto *edit = new QLineEdit(value, this);
    addRow(label, edit);
    return edit;
}

QLineEdit *MoneyFormDialog::addAmount(const QString &label, double value)
{
    auto *edit = new QLineEdit(value == 0 ? QString() : core::plainNumber(value), this);
    edit->setAlignment(Qt::AlignRight);
    addRow(label, edit);
    return edit;
}

DateField *MoneyFormDialog::addDate(const QString &label, const QString &value)
{
    auto *date = new DateField(this);
    date->setText(value);
    addRow(label, date);
    return date;
}

QWidget *MoneyFormDialog::field(const QString &label) const
{
    return m_fields.value(label);
}

std::optional<double> MoneyFormDialog::amount(
    QLineEdit *field, const QString &name, core::NumberKind kind) const
{
    const Result<double> value = core::readNumber(name, field->text(), kind, 0);
    if (value)
        return value.value();
    m_session.ui().inform(value.message());
    field->setFocus();
    field->selectAll();
    return std::nullopt;
}

void MoneyFormDialog::showEvent(QShowEvent *event)
{
    if (!m_navigation) {
        enableEnterNavigation(this);
        m_navigation = true;
    }
    QDialog::showEvent(event);
}

void MoneyFormDialog::submit()
{
    if (!m_submit || m_submit())
        accept();
}

void fillAccountBox(QComboBox *box, shell::Session &session, bool noAccount)
{
    box->clear();
    readSafely(session.ui(), [&] {
        for (const accounts::BankAccount &account : accounts::listBankAccounts(session.db()))
            box->addItem(account.name, account.name);
    });
    if (noAccount)
        box->addItem(accounts::noAccountName(), accounts::noAccountName());
}

} // namespace medistock::ui
