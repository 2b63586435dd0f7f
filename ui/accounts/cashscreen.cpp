#include "ui/accounts/cashscreen.h"

#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/moneylists.h"
#include "accounts/texts.h"
#include "core/interaction.h"
#include "shell/session.h"
#include "ui/common/datefield.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/common/workspace.h"
#include "ui/documents/pickers.h"

#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QTabWidget>

namespace medistock::ui {

namespace {

using accounts::MovementKind;

QueryColumn money(const QString &caption, bool summed = true)
{
    return { caption, QueryColumn::Kind::Number, 2, summed };
}

QString statusText(bool checked)
{
    return checked ? QStringLiteral("已审核") : QStringLiteral("未审核");
}

// The movements this screen enters; the rest belong to their documents.
std::optional<MovementKind> ownKind(const QString &number)
{
    for (MovementKind kind :
        { MovementKind::Receipt, MovementKind::Payment, MovementKind::Transfer })
        if (number.startsWith(accounts::movementPrefix(kind)))
            return kind;
    return std::nullopt;
}

QString movementTitle(int kind)
{
    static const char *const titles[] = { "进款", "出款", "转账" };
    return QString::fromUtf8(titles[kind]);
}

} // namespace

CashBookScreen::CashBookScreen(Workspace &workspace, QWidget *parent)
    : MoneyListScreen(workspace, QStringLiteral("现金银行"), parent)
    , m_account(new QComboBox(this))
{
    m_account->addItem(QStringLiteral("所有账户"), QString());
    readSafely(session().ui(), [&] {
        for (const accounts::BankAccount &account : accounts::listBankAccounts(session().db()))
            m_account->addItem(account.name, account.name);
    });
    addFilter(QStringLiteral("账户"), m_account);
    addRangeFilters();
    addStatusFilter();
    m_account->setCurrentIndex(m_account->count() > 1 ? 1 : 0);
    connect(m_account, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
    addOperation(
        QStringLiteral("进款"), Qt::Key_F2, [this] { enter(int(MovementKind::Receipt)); }, "rcgl",
        7);
    addOperation(
        QStringLiteral("出款"), Qt::Key_F3, [this] { enter(int(MovementKind::Payment)); }, "rcgl",
        7);
    addOperation(
        QStringLiteral("转账"), Qt::Key_F4, [this] { enter(int(MovementKind::Transfer)); }, "rcgl",
        7);
    addOperation(
        QStringLiteral("删除"), Qt::Key_Delete, [this] { remove(); }, "rcgl", 7);
    addOperation(
        QStringLiteral("审核"), Qt::Key_F6, [this] { check(); }, "rcgl", 13);
    addOperation(
        QStringLiteral("取消审核"), Qt::Key_F7, [this] { uncheck(); }, "rcgl", 13);
    addOperation(
        QStringLiteral("审核所有"), Qt::Key_F9, [this] { checkAll(); }, "rcgl", 13);
    setColumns({ { QStringLiteral("日期") },
                   { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 120 },
                   { QStringLiteral("类别"), QueryColumn::Kind::Text, 0, false, 100 },
                   { QStringLiteral("账户") }, money(QStringLiteral("收入")),
                   money(QStringLiteral("支出")), money(QStringLiteral("余额"), false),
                   { QStringLiteral("往来单位"), QueryColumn::Kind::Text, 0, false, 140 },
                   { QStringLiteral("业务员") }, { QStringLiteral("状态") },
                   { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 180 } },
        QStringLiteral("cash-book"));
    setNumberColumn(1);
    connect(this, &QueryScreen::activated, this, [this](int) { change(); });
}

void CashBookScreen::fetch()
{
    accounts::MoneyFilter filter = baseFilter();
    filter.account = m_account->currentData().toString();
    m_rows = accounts::cashMovements(session().db(), filter);
    QList<QVariantList> rows;
    for (const accounts::CashMovement &m : m_rows)
        rows.append({ m.date, m.number, m.kind, m.account, m.amount > 0 ? m.amount : 0.0,
            m.amount < 0 ? -m.amount : 0.0, m.counted ? QVariant(m.balance) : QVariant(),
            m.partyName, m.salesmanName, statusText(m.counted), m.note });
    setRows(rows);
}

const accounts::CashMovement *CashBookScreen::current() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void CashBookScreen::enter(int kind)
{
    refreshAfter(edit(kind, nullptr));
}

void CashBookScreen::change()
{
    const accounts::CashMovement *row = current();
    if (!row)
        return;
    const auto kind = ownKind(row->number);
    if (!kind || *kind == MovementKind::Transfer) {
        session().ui().inform(*kind == MovementKind::Transfer
                ? QStringLiteral("转账单不能修改，请删除后重新录入。")
                : QStringLiteral("该记录由单据%1产生，请在原单据中修改。").arg(row->number));
        return;
    }
    if (row->counted) {
        session().ui().inform(accounts::texts::checkedCannotChange(row->number));
        return;
    }
    const accounts::CashMovement copy = *row;
    refreshAfter(edit(int(*kind), &copy));
}

bool CashBookScreen::edit(int kind, const accounts::CashMovement *row)
{
    MoneyFormDialog form(session(), movementTitle(kind), this);
    DateField *date = form.addDate(QStringLiteral("日期"), row ? row->date : session().today());
    QLineEdit *amount = form.addAmount(QStringLiteral("金额"), row ? qAbs(row->amount) : 0);
    auto *account = new QComboBox(&form);
    fillAccountBox(account, session());
    form.addRow(
        kind == int(MovementKind::Transfer) ? QStringLiteral("转出账户") : QStringLiteral("账户"),
        account);
    chooseCode(account, row ? row->account : m_account->currentData().toString());
    QComboBox *target = nullptr;
    if (kind == int(MovementKind::Transfer)) {
        target = new QComboBox(&form);
        fillAccountBox(target, session());
        target->setCurrentIndex(account->currentIndex() == 0 && target->count() > 1 ? 1 : 0);
        form.addRow(QStringLiteral("转入账户"), target);
    }
    auto *salesman = new QComboBox(&form);
    fillMasterBox(salesman, session(), "employee");
    salesman->insertItem(0, QString(), QString());
    salesman->setCurrentIndex(0);
    if (row)
        salesman->setCurrentText(row->salesmanName);
    form.addRow(QStringLiteral("业务员"), salesman);
    QLineEdit *note = form.addText(QStringLiteral("备注"), row ? row->note : QString());
    date->lineEdit()->setFocus();
    form.setSubmit([&]() -> bool {
        const auto value = form.amount(amount, accounts::texts::amountField());
        if (!value)
            return false;
        accounts::MovementDraft draft;
        draft.kind = MovementKind(kind);
        draft.number = row ? row->number : QString();
        draft.date = date->text();
        draft.amount = *value;
        draft.account = account->currentData().toString();
        draft.targetAccount = target ? target->currentData().toString() : QString();
        draft.salesmanName = salesman->currentText();
        draft.note = note->text();
        return accounts::saveMovement(session(), draft).ok();
    });
    return form.exec() == QDialog::Accepted;
}

void CashBookScreen::remove()
{
    const accounts::CashMovement *row = current();
    if (!row)
        return;
    if (!ownKind(row->number)) {
        session().ui().inform(
            QStringLiteral("该记录由单据%1产生，请在原单据中修改。").arg(row->number));
        return;
    }
    deleteCurrent(accounts::deleteMovement);
}

void CashBookScreen::check()
{
    operateOnCurrent(accounts::checkMovement);
}

void CashBookScreen::uncheck()
{
    operateOnCurrent(accounts::uncheckMovement);
}

void CashBookScreen::checkAll()
{
    refreshAfter(accounts::checkAllMovements(session()).ok());
}

BankAccountsScreen::BankAccountsScreen(Workspace &workspace, QWidget *parent)
    : MoneyListScreen(workspace, QStringLiteral("现金银行期初建账"), parent)
{
    addOperation(
        QStringLiteral("新增账户"), Qt::Key_F2, [this] { add(); }, "rcgl", 7);
    addOperation(
        QStringLiteral("修改名称"), Qt::Key_F3, [this] { rename(); }, "rcgl", 7);
    addOperation(
        QStringLiteral("期初金额"), Qt::Key_F4, [this] { setOpening(); }, "rcgl", 7);
    addOperation(
        QStringLiteral("删除"), Qt::Key_Delete, [this] { remove(); }, "rcgl", 7);
    setColumns({ { QStringLiteral("编号") },
                   { QStringLiteral("账户名称"), QueryColumn::Kind::Text, 0, false, 160 },
                   { QStringLiteral("类型") }, money(QStringLiteral("期初金额")),
                   money(QStringLiteral("当前余额")),
                   { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 200 } },
        QStringLiteral("bank-accounts"));
    connect(this, &QueryScreen::activated, this, [this](int) { setOpening(); });
}

void BankAccountsScreen::fetch()
{
    QList<QVariantList> rows;
    for (const accounts::BankAccount &a : accounts::listBankAccounts(session().db()))
        rows.append({ a.code, a.name, a.type, a.opening,
            accounts::cashBalance(session().db(), a.name), a.note });
    setRows(rows);
}

QString BankAccountsScreen::currentName() const
{
    const int row = currentRow();
    return row >= 0 ? model()->text(row, 1) : QString();
}

void BankAccountsScreen::add()
{
    MoneyFormDialog form(session(), QStringLiteral("新增账户"), this);
    QLineEdit *name = form.addText(QStringLiteral("账户名称"));
    QLineEdit *type = form.addText(QStringLiteral("类型"));
    QLineEdit *note = form.addText(QStringLiteral("备注"));
    form.setSubmit([&] {
        return accounts::addBankAccount(session(), name->text(), type->text(), note->text()).ok();
    });
    refreshAfter(form.exec() == QDialog::Accepted);
}

void BankAccountsScreen::rename()
{
    const QString name = currentName();
    if (name.isEmpty())
        return;
    MoneyFormDialog form(session(), QStringLiteral("修改名称：") + name, this);
    QLineEdit *newName = form.addText(QStringLiteral("新名称"), name);
    form.setSubmit(
        [&] { return accounts::renameBankAccount(session(), name, newName->text()).ok(); });
    refreshAfter(form.exec() == QDialog::Accepted);
}

void BankAccountsScreen::setOpening()
{
    const QString name = currentName();
    if (name.isEmpty())
        return;
    MoneyFormDialog form(session(), QStringLiteral("期初金额：") + name, this);
    QLineEdit *amount = form.addAmount(
        accounts::texts::openingField(), model()->value(currentRow(), 3).toDouble());
    form.setSubmit([&]() -> bool {
        const auto value
            = form.amount(amount, accounts::texts::openingField(), core::NumberKind::SignedAmount);
        return value && accounts::setOpeningAmount(session(), name, *value).ok();
    });
    refreshAfter(form.exec() == QDialog::Accepted);
}

void BankAccountsScreen::remove()
{
    const QString name = currentName();
    if (!name.isEmpty() && session().ui().ask(QStringLiteral("确定删除账户：%1吗？").arg(name)))
        refreshAfter(accounts::deleteBankAccount(session(), name).ok());
}

ExpenseScreen::ExpenseScreen(Workspace &workspace, QWidget *parent)
    : MoneyListScreen(workspace, QStringLiteral("费用及收入"), parent)
    , m_kind(new QComboBox(this))
{
    addRangeFilters();
    m_kind->addItems({ texts::all(), QStringLiteral("费用"), QStringLiteral("收入") });
    addFilter(QStringLiteral("类别"), m_kind);
    addStatusFilter();
    connect(m_kind, &QComboBox::currentIndexChanged, this, &QueryScreen::run);
    using accounts::ExpenseKind;
    addOperation(
        QStringLiteral("费用"), Qt::Key_F2, [this] { enter(ExpenseKind::Expense); }, "rcgl", 6);
    addOperation(
        QStringLiteral("收入"), Qt::Key_F3, [this] { enter(ExpenseKind::Income); }, "rcgl", 6);
    addOperation(
        QStringLiteral("删除"), Qt::Key_Delete, [this] { remove(); }, "rcgl", 6);
    addOperation(
        QStringLiteral("审核"), Qt::Key_F6, [this] { check(); }, "rcgl", 12);
    addOperation(
        QStringLiteral("取消审核"), Qt::Key_F7, [this] { uncheck(); }, "rcgl", 12);
    setColumns(
        { { QStringLiteral("日期") },
            { QStringLiteral("单据号"), QueryColumn::Kind::Text, 0, false, 120 },
            { QStringLiteral("类别") }, { QStringLiteral("项目") }, money(QStringLiteral("金额")),
            { QStringLiteral("账户") }, { QStringLiteral("部门") }, { QStringLiteral("业务员") },
            { QStringLiteral("状态") },
            { QStringLiteral("备注"), QueryColumn::Kind::Text, 0, false, 200 } },
        QStringLiteral("expenses"));
    setNumberColumn(1);
    connect(this, &QueryScreen::activated, this, [this](int) { change(); });
}

void ExpenseScreen::fetch()
{
    std::optional<accounts::ExpenseKind> kind;
    if (m_kind->currentIndex() > 0)
        kind = m_kind->currentIndex() == 1 ? accounts::ExpenseKind::Expense
                                           : accounts::ExpenseKind::Income;
    m_rows = accounts::listExpenses(session().db(), kind, baseFilter());
    QList<QVariantList> rows;
    for (const accounts::ExpenseRow &e : m_rows)
        rows.append({ e.date, e.number, accounts::texts::expenseFlag(e.kind), e.type, e.amount,
            e.account, e.departmentName, e.salesmanName, statusText(e.checked), e.note });
    setRows(rows);
}

const accounts::ExpenseRow *ExpenseScreen::current() const
{
    const int row = currentRow();
    return row >= 0 && row < m_rows.size() ? &m_rows[row] : nullptr;
}

void ExpenseScreen::enter(accounts::ExpenseKind kind)
{
    refreshAfter(edit(kind, nullptr));
}

void ExpenseScreen::change()
{
    const accounts::ExpenseRow *row = current();
    if (!row)
        return;
    if (row->checked) {
        session().ui().inform(accounts::texts::checkedCannotChange(row->number));
        return;
    }
    const accounts::ExpenseRow copy = *row;
    refreshAfter(edit(copy.kind, &copy));
}

bool ExpenseScreen::edit(accounts::ExpenseKind kind, const accounts::ExpenseRow *row)
{
    const bool income = kind == accounts::ExpenseKind::Income;
    MoneyFormDialog form(
        session(), income ? QStringLiteral("收入信息") : QStringLiteral("费用信息"), this);
    DateField *date = form.addDate(QStringLiteral("日期"), row ? row->date : session().today());
    auto *type = new QComboBox(&form);
    readSafely(session().ui(), [&] { type->addItems(accounts::expenseTypeNames(session().db())); });
    type->setCurrentText(row ? row->type : accounts::texts::expenseFlag(kind));
    form.addRow(QStringLiteral("项目"), type);
    QLineEdit *amount = form.addAmount(QStringLiteral("金额"), row ? row->amount : 0);
    auto *account = new QComboBox(&form);
    fillAccountBox(account, session(), true);
    chooseCode(account, row ? row->account : accounts::cashAccountName());
    form.addRow(QStringLiteral("账户"), account);
    auto *department = new QComboBox(&form);
    fillMasterBox(department, session(), "department");
    const QString addNew = QStringLiteral("添加新部门...");
    department->addItem(addNew, QString());
    chooseCode(department, row ? row->department : accounts::texts::defaultDepartment());
    connect(department, &QComboBox::activated, &form, [&, department, addNew](int index) {
        if (department->itemText(index) != addNew)
            return;
        const QString name = QInputDialog::getText(&form, addNew, QStringLiteral("部门名称"));
        const Result<QString> code = name.trimmed().isEmpty()
            ? Result<QString>(Outcome::refused(QString()))
            : accounts::addDepartment(session(), name);
        fillMasterBox(department, session(), "department");
        department->addItem(addNew, QString());
        chooseCode(department, code ? code.value() : accounts::texts::defaultDepartment());
    });
    form.addRow(QStringLiteral("部门"), department);
    auto *salesman = new QComboBox(&form);
    fillMasterBox(salesman, session(), "employee");
    if (row)
        chooseCode(salesman, row->salesman);
    form.addRow(QStringLiteral("业务员"), salesman);
    QLineEdit *note = form.addText(QStringLiteral("备注"), row ? row->note : QString());
    date->lineEdit()->setFocus();
    form.setSubmit([&]() -> bool {
        const auto value = form.amount(amount, accounts::texts::amountField());
        if (!value)
            return false;
        accounts::ExpenseDraft draft;
        draft.kind = kind;
        draft.number = row ? row->number : QString();
        draft.date = date->text();
        draft.type = type->currentText();
        draft.amount = *value;
        draft.salesman = salesman->currentData().toString();
        draft.department = department->currentData().toString();
        draft.account = account->currentData().toString();
        draft.note = note->text();
        return accounts::saveExpense(session(), draft).ok();
    });
    return form.exec() == QDialog::Accepted;
}

void ExpenseScreen::remove()
{
    deleteCurrent(accounts::deleteExpense);
}

void ExpenseScreen::check()
{
    operateOnCurrent(accounts::checkExpense);
}

void ExpenseScreen::uncheck()
{
    operateOnCurrent(accounts::uncheckExpense);
}

QTabWidget *cashWindow(Workspace &workspace)
{
    auto *tabs = new QTabWidget;
    auto *book = new CashBookScreen(workspace, tabs);
    auto *accounts = new BankAccountsScreen(workspace, tabs);
    tabs->addTab(book, QStringLiteral("现金银行"));
    tabs->addTab(accounts, QStringLiteral("现金银行期初建账"));
    tabs->setFocusProxy(book);
    book->run();
    accounts->run();
    return tabs;
}

} // namespace medistock::ui
