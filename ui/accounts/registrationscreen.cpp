#include "ui/accounts/registrationscreen.h"

#include "accounts/texts.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "ui/common/codenamefield.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QComboBox>
#include <QLineEdit>

namespace medistock::ui {

namespace {

using accounts::RegistrationKind;

bool isEntry(RegistrationKind kind)
{
    return kind == RegistrationKind::Receivable || kind == RegistrationKind::Payable;
}

// The check right of each kind in "往来帐款".
int checkRight(RegistrationKind kind)
{
    static const int rights[] = { 7, 8, 9, 10 };
    return rights[int(kind)];
}

int saveRight(RegistrationKind kind)
{
    static const int rights[] = { 1, 2, 4, 5 };
    return rights[int(kind)];
}

// The form each kind prints with: 客户欠款单, 客户收款单, 欠款单, 供货商付款单.
QString printKey(RegistrationKind kind)
{
    static const char *const keys[] = { "ysyfysk", "ysyfskd", "ysyfyfk", "ysyffkd" };
    return QString::fromLatin1(keys[int(kind)]);
}

QString kindTitle(RegistrationKind kind)
{
    static const char *const titles[] = { "应收登记", "收款登记", "应付登记", "付款登记" };
    return QString::fromUtf8(titles[int(kind)]);
}

// The money columns a kind leaves out: an entry has no discount or written-off change, a
// collection or payment owes nothing new.
QList<int> leftOut(RegistrationKind kind)
{
    return isEntry(kind) ? QList<int> { 6, 7 } : QList<int> { 4 };
}

template<class T> QList<T> shownOf(RegistrationKind kind, QList<T> all)
{
    const QList<int> drop = leftOut(kind);
    for (auto it = drop.rbegin(); it != drop.rend(); ++it)
        all.removeAt(*it);
    return all;
}

QList<QueryColumn> columns(RegistrationKind kind)
{
    const accounts::PartyKind party = accounts::registrationParty(kind);
    const QString who = accounts::texts::partyWord(party);
    const auto money = [](const QString &caption) {
        return QueryColumn { caption, QueryColumn::Kind::Number, 2, true };
    };
    return shownOf<QueryColumn>(kind,
        { { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 120 },
            { QStringLiteral("日期"), QueryColumn::Kind::Text, 0, false, 90 },
            { who + QStringLiteral("编号"), QueryColumn::Kind::Text, 0, false, 70 },
            { who + QStringLiteral("名称"), QueryColumn::Kind::Text, 0, false, 160 },
            money(accounts::texts::dueField(party)), money(accounts::texts::paidField(party)),
            money(accounts::texts::discountField()), money(accounts::texts::writtenOffField()),
            { QStringLiteral("账户") }, { QStringLiteral("业务员") }, { QStringLiteral("状态") },
            { QStringLiteral("审核人") }, { QStringLiteral("审核日期") },
            { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 160 } });
}

} // namespace

RegistrationScreen::RegistrationScreen(
    Workspace &workspace, accounts::RegistrationKind kind, QWidget *parent)
    : MoneyListScreen(workspace, kindTitle(kind), parent)
    , m_kind(kind)
{
    addRangeFilters();
    m_party = addPartyFilter(accounts::registrationParty(kind));
    addStatusFilter();
    addOperation(
        QStringLiteral("新增"), Qt::Key_F2, [this] { add(); }, "wlzk", saveRight(kind));
    addOperation(
        QStringLiteral("修改"), Qt::Key_F3, [this] { change(); }, "wlzk", saveRight(kind));
    addOperation(
        QStringLiteral("删除"), Qt::Key_Delete, [this] { remove(); }, "wlzk", saveRight(kind));
    addOperation(
        QStringLiteral("修改日期"), Qt::Key_F4, [this] { changeDate(); }, "wlzk", 11);
    addOperation(
        QStringLiteral("审核"), Qt::Key_F6, [this] { check(); }, "wlzk", checkRight(kind));
    addOperation(
        QStringLiteral("取消审核"), Qt::Key_F7, [this] { uncheck(); }, "wlzk", checkRight(kind));
    setColumns(
        columns(kind), QStringLiteral("registrations-") + accounts::registrationPrefix(kind));
    setPrintKey(printKey(kind));
    connect(this, &QueryScreen::activated, this, [this](int) { change(); });
}

void RegistrationScreen::fetch()
{
    accounts::MoneyFilter filter = baseFilter();
    filter.party = m_party->code();
    m_rows = accounts::listRegistrations(session().db(), m_kind, filter);
    QList<QVariantList> rows;
    for (const accounts::RegistrationRow &r : m_rows)
        rows.append(shownOf<QVariant>(m_kind,
            { r.number, r.date, r.party, r.partyName, r.due, r.paid, r.discount, r.writtenOff,
                r.account, r.salesmanName,
                r.checked ? QStringLiteral("已审核") : QStringLiteral("未审核"), r.checker,
                r.checkDate, r.note }));
    setRows(rows);
}

PrintRequest RegistrationScreen::printRequest() const
{
    const accounts::RegistrationRow *row = current();
    if (!row)
        return {};
    return { printKey(m_kind), row->number };
}

const accounts::RegistrationRow *RegistrationScreen::current() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void RegistrationScreen::add()
{
    refreshAfter(edit(nullptr));
}

void RegistrationScreen::change()
{
    const accounts::RegistrationRow *row = current();
    if (!row)
        return;
    if (row->checked) {
        session().ui().inform(accounts::texts::checkedCannotChange(row->number));
        return;
    }
    const accounts::RegistrationRow copy = *row;
    refreshAfter(edit(&copy));
}

void RegistrationScreen::remove()
{
    deleteCurrent(accounts::deleteRegistration);
}

void RegistrationScreen::check()
{
    operateOnCurrent(accounts::checkRegistration);
}

void RegistrationScreen::uncheck()
{
    operateOnCurrent(accounts::uncheckRegistration);
}

void RegistrationScreen::changeDate()
{
    const accounts::RegistrationRow *row = current();
    if (!row)
        return;
    const QString number = row->number;
    MoneyFormDialog form(session(), QStringLiteral("修改收付款日期：") + number, this);
    DateField *date = form.addDate(QStringLiteral("新日期"), row->date);
    form.setSubmit(
        [&] { return accounts::changeRegistrationDate(session(), number, date->text()).ok(); });
    refreshAfter(form.exec() == QDialog::Accepted);
}

bool RegistrationScreen::edit(const accounts::RegistrationRow *row)
{
    const accounts::PartyKind party = accounts::registrationParty(m_kind);
    namespace t = accounts::texts;
    MoneyFormDialog form(session(), kindTitle(m_kind), this);
    auto *who = makePartyField(session(), partyTableOf(accounts::registrationParty(m_kind)), &form);
    form.addRow(partyLabel(partyTableOf(accounts::registrationParty(m_kind))), who);
    DateField *date = form.addDate(QStringLiteral("日期"), row ? row->date : session().today());
    QLineEdit *due = nullptr;
    QLineEdit *discount = nullptr;
    QLineEdit *writtenOff = nullptr;
    if (isEntry(m_kind))
        due = form.addAmount(t::dueField(party), row ? row->due : 0);
    QLineEdit *paid = form.addAmount(t::paidField(party), row ? row->paid : 0);
    if (!isEntry(m_kind)) {
        discount = form.addAmount(t::discountField(), row ? row->discount : 0);
        writtenOff = form.addAmount(t::writtenOffField(), row ? row->writtenOff : 0);
    }
    auto *account = new QComboBox(&form);
    fillAccountBox(account, session());
    form.addRow(QStringLiteral("账户"), account);
    auto *salesman = new QComboBox(&form);
    fillMasterBox(salesman, session(), "employee");
    form.addRow(QStringLiteral("业务员"), salesman);
    QLineEdit *link = form.addText(QStringLiteral("关联单据"), row ? row->link : QString());
    QLineEdit *note = form.addText(QStringLiteral("备注"), row ? row->note : QString());
    if (row) {
        who->setChoice(row->party, row->partyName);
        chooseCode(account, row->account);
        chooseCode(salesman, row->salesman);
    } else if (!m_party->code().isEmpty()) {
        who->setChoice(m_party->code(), m_party->text());
    }
    who->setFocus();
    form.setSubmit([&]() -> bool {
        accounts::RegistrationDraft draft;
        draft.kind = m_kind;
        draft.number = row ? row->number : QString();
        const auto number = [&](QLineEdit *field, const QString &name) -> std::optional<double> {
            return field ? form.amount(field, name, core::NumberKind::SignedAmount)
                         : std::optional<double>(0);
        };
        const auto owed = number(due, t::dueField(party));
        const auto money = owed ? number(paid, t::paidField(party)) : std::nullopt;
        const auto off = money ? number(discount, t::discountField()) : std::nullopt;
        const auto change = off ? number(writtenOff, t::writtenOffField()) : std::nullopt;
        if (!change)
            return false;
        who->resolve();
        draft.party = who->code();
        draft.date = date->text();
        draft.due = *owed;
        draft.paid = *money;
        draft.discount = *off;
        draft.changeWrittenOff = *change;
        draft.account = account->currentData().toString();
        draft.salesman = salesman->currentData().toString();
        draft.link = link->text().trimmed();
        draft.note = note->text();
        return accounts::saveRegistration(session(), draft).ok();
    });
    return form.exec() == QDialog::Accepted;
}

} // namespace medistock::ui
