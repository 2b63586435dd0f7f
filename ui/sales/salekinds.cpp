#include "ui/sales/salekinds.h"

#include "accounts/bankaccounts.h"
#include "accounts/cashbook.h"
#include "accounts/ledger.h"
#include "core/interaction.h"
#include "core/rounding.h"
#include "documents/entry.h"
#include "sales/entry.h"
#include "sales/kinds.h"
#include "sales/orders.h"
#include "sales/prices.h"
#include "sales/salecheck.h"
#include "sales/salesreturn.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "shell/settings.h"
#include "stock/checks.h"
#include "stock/costs.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/documents/documentlist.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/documents/uncheckeddialog.h"
#include "ui/sales/orderlinesdialog.h"
#include "ui/sales/texts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSqlRecord>

namespace medistock::ui {

namespace {

void choose(QComboBox *box, const QString &text, bool byData)
{
    const int at = byData ? box->findData(text) : box->findText(text);
    box->setCurrentIndex(std::max(0, at));
}

} // namespace

SalesScreenKind::SalesScreenKind(const shell::Session &session, const documents::DocumentKind &kind)
    : m_session(session)
    , m_entry(kind)
{ }

bool SalesScreenKind::isReturn() const
{
    return &m_entry == &sales::salesReturnKind();
}

bool SalesScreenKind::isOrder() const
{
    return &m_entry == &sales::salesOrderKind();
}

bool SalesScreenKind::showsCost() const
{
    return shell::hasRight(m_session, QStringLiteral("qtcz"), 7);
}

QList<LineField> SalesScreenKind::lineFields() const
{
    QList<LineField> fields = DocumentScreenKind::lineFields();
    if (isSale()) {
        fields.removeAll(LineField::Produced);
        fields.insert(fields.indexOf(LineField::Quantity) + 1, LineField::Limit);
    }
    if (showsCost())
        fields.insert(fields.indexOf(LineField::Price), LineField::Cost);
    if (!shell::hasRight(m_session, QStringLiteral("qtcz"), 9))
        for (LineField hidden : { LineField::Price, LineField::Amount, LineField::Total })
            fields.removeAll(hidden);
    return fields;
}

void SalesScreenKind::proposeFigures(const shell::Session &session, LineEntry &line,
    const QString &warehouse, const QString &date) const
{
    if (isSale())
        line.saleLimit = stock::saleLimit(session, line.goods);
    if (!showsCost() || line.costTyped)
        return;
    const double base = isOrder() ? stock::currentCost(session, line.goods, warehouse)
                                  : stock::costAsOf(session, line.goods, warehouse, date);
    const int places = session.params().priceDecimals();
    line.cost = QString::number(core::roundTo(base * line.factor(), places), 'f', places);
}

QString SalesScreenKind::costColumn() const
{
    return isSale() && showsCost()
            && shell::hasRight(m_session, QStringLiteral("xsgl"), sales::rights::changeSaleCost)
        ? QStringLiteral("ls_cbj2")
        : QString();
}

void SalesScreenKind::loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const
{
    if (isSale())
        line.saleLimit = stock::saleLimit(m_session, line.goods);
    if (showsCost())
        line.cost = QString::number(
            stored.stored.value(isReturn() ? QStringLiteral("th_cbj") : QStringLiteral("ls_cbj"))
                .toDouble(),
            'f', m_session.params().priceDecimals());
}

QList<std::pair<QString, QWidget *>> SalesScreenKind::createHeaderFields(QWidget *parent)
{
    m_mode = new QComboBox(parent);
    for (const accounts::SettlementMode &mode : accounts::settlementModes(QStringLiteral("xs")))
        m_mode->addItem(mode.text, mode.value);
    m_account = new QComboBox(parent);
    readSafely(m_session.ui(), [&] {
        for (const accounts::BankAccount &account : accounts::listBankAccounts(m_session.db()))
            m_account->addItem(account.name);
    });
    m_paid = headerAmountField(parent);
    QList<std::pair<QString, QWidget *>> fields { { sltexts::mode, m_mode },
        { sltexts::account, m_account },
        { isReturn() ? sltexts::refunded : sltexts::received, m_paid } };
    if (!isOrder())
        m_invoice.create(parent, !isReturn(), fields);
    return fields;
}

void SalesScreenKind::loadHeader(const QSqlRecord &header)
{
    const QString p = isReturn() ? QStringLiteral("th_") : QStringLiteral("ls_");
    const auto text = [&](const QString &name) { return header.value(name).toString(); };
    // A return stores its amounts negated; the screen shows them as entered.
    const double sign = isReturn() ? -1 : 1;
    m_saved = {};
    m_saved.settlementMode = text(p + QStringLiteral("jsfs"));
    m_saved.account = text(p + QStringLiteral("kmmc"));
    m_saved.paid = sign * header.value(p + QStringLiteral("sfje")).toDouble();
    m_saved.invoiceNumber = text(p + QStringLiteral("fpno"));
    m_saved.invoiceAmount = header.value(p + QStringLiteral("fpje")).toDouble();
    if (!isReturn()) {
        m_saved.freight = header.value(QStringLiteral("ls_yf")).toDouble();
        m_saved.packing = header.value(QStringLiteral("ls_bzf")).toDouble();
        m_saved.freightTerms = text(QStringLiteral("ls_yffs"));
        m_saved.linkNumber = text(QStringLiteral("gl_djh2"));
    }
    choose(m_mode, m_saved.settlementMode, true);
    choose(m_account, m_saved.account, false);
    m_paid->setText(headerAmountText(m_saved.paid));
    m_invoice.loadFrom(m_saved);
}

void SalesScreenKind::clearHeader()
{
    m_saved = {};
    m_mode->setCurrentIndex(0);
    choose(m_account, accounts::cashAccountName(), false);
    m_paid->clear();
    m_invoice.clear();
}

void SalesScreenKind::setHeaderReadOnly(bool readOnly)
{
    m_paid->setReadOnly(readOnly);
    m_mode->setEnabled(!readOnly);
    m_account->setEnabled(!readOnly);
    m_invoice.setReadOnly(readOnly);
}

void SalesScreenKind::takeHeader(const sales::SaleHeader &header)
{
    if (!header.settlementMode.isEmpty())
        choose(m_mode, header.settlementMode, true);
    if (!header.account.isEmpty())
        choose(m_account, header.account, false);
}

Result<sales::SaleHeader> SalesScreenKind::header(const shell::Session &session) const
{
    sales::SaleHeader h = m_saved;
    h.settlementMode = m_mode->currentData().toString();
    h.account = m_account->currentText();
    const Result<double> paid = documents::readHeaderAmount(
        isReturn() ? sltexts::refunded : sltexts::received, m_paid->text());
    if (!paid) {
        session.ui().inform(paid.message());
        return paid.outcome();
    }
    h.paid = paid.value();
    if (const Outcome read = m_invoice.readInto(session, h); !read)
        return read;
    return h;
}

double SalesScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &unit, const QString &party) const
{
    return sales::linePrice(session, goods.code, party, unit);
}

SaleScreenKind::SaleScreenKind(const shell::Session &session)
    : SalesScreenKind(session, sales::saleKind())
{ }

int SaleScreenKind::checkRight() const
{
    return sales::rights::checkSale;
}

int SaleScreenKind::uncheckRight() const
{
    return sales::rights::uncheckSale;
}

QString SaleScreenKind::dueLabel() const
{
    return sltexts::receivable;
}

Result<QString> SaleScreenKind::save(shell::Session &session, const documents::DocumentDraft &draft)
{
    const Result<sales::SaleHeader> h = header(session);
    if (!h)
        return h.outcome();
    return sales::saveSale(session, { draft, h.value() });
}

Outcome SaleScreenKind::check(shell::Session &session, const QString &number, QWidget *)
{
    return sales::checkSale(session, number);
}

Outcome SaleScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return sales::uncheckSale(session, number);
}

Outcome SaleScreenKind::remove(shell::Session &session, const QString &number)
{
    return sales::deleteSale(session, number);
}

void SaleScreenKind::addActions(DocumentScreen &screen)
{
    auto *button = new QPushButton(sltexts::importButton, &screen);
    QObject::connect(button, &QPushButton::clicked, &screen, [&screen] {
        OrderLinesDialog dialog(screen);
        if (dialog.exec() == QDialog::Accepted)
            dialog.takeInto(screen);
    });
    screen.addEditingAction(button, QKeySequence(Qt::Key_F10));
}

void SaleScreenKind::showList(DocumentScreen &screen)
{
    uncheckedSalesDialog(screen)->exec();
}

std::unique_ptr<UncheckedDialog> uncheckedSalesDialog(DocumentScreen &screen)
{
    auto dialog = std::make_unique<UncheckedDialog>(screen);
    DocumentListScreen *list = dialog->list();
    auto *all = new QPushButton(sltexts::checkAll, dialog.get());
    shell::Session &session = screen.workspace().session;
    const bool allowed = shell::hasRight(session, QStringLiteral("xsgl"), sales::rights::checkSale);
    all->setEnabled(allowed);
    if (!allowed)
        all->setToolTip(shell::noRightText(sltexts::checkRightName));
    QObject::connect(all, &QPushButton::clicked, dialog.get(), [&session, &screen, list] {
        QStringList numbers;
        for (const PrintRequest &listed : list->listedDocuments())
            numbers.append(listed.number);
        if (!sales::checkListedSales(session, numbers))
            return;
        // The sale on the screen may have been among them.
        if (!screen.number().isEmpty() && numbers.contains(screen.number()))
            screen.openDocument(screen.number());
        list->run();
    });
    auto *key = new QShortcut(QKeySequence(Qt::Key_F6), dialog.get());
    QObject::connect(key, &QShortcut::activated, all, &QPushButton::click);
    list->addButton(all);
    return dialog;
}

SalesReturnScreenKind::SalesReturnScreenKind(const shell::Session &session)
    : SalesScreenKind(session, sales::salesReturnKind())
{ }

int SalesReturnScreenKind::checkRight() const
{
    return sales::rights::checkReturn;
}

int SalesReturnScreenKind::uncheckRight() const
{
    return sales::rights::uncheckReturn;
}

QString SalesReturnScreenKind::dueLabel() const
{
    return sltexts::refundDue;
}

void SalesReturnScreenKind::loadLine(
    const documents::DocumentLineRow &stored, LineEntry &line) const
{
    SalesScreenKind::loadLine(stored, line);
    loadSourceLink(stored, line);
}

Result<QString> SalesReturnScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    const Result<sales::SaleHeader> h = header(session);
    if (!h)
        return h.outcome();
    return sales::saveSalesReturn(session, { draft, h.value() });
}

Outcome SalesReturnScreenKind::check(shell::Session &session, const QString &number, QWidget *)
{
    return sales::checkSalesReturn(session, number);
}

Outcome SalesReturnScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return sales::uncheckSalesReturn(session, number);
}

Outcome SalesReturnScreenKind::remove(shell::Session &session, const QString &number)
{
    return sales::deleteSalesReturn(session, number);
}

ReturnSource saleSource()
{
    return { &sales::saleKind(), &sales::returnableSaleLines, sltexts::saleLinesTitle,
        sltexts::sales, sltexts::sold };
}

void SalesReturnScreenKind::addActions(DocumentScreen &screen)
{
    auto *button = new QPushButton(sltexts::fromSale, &screen);
    QObject::connect(button, &QPushButton::clicked, &screen, [&screen] {
        SourceLinesDialog dialog(screen, saleSource());
        if (dialog.exec() == QDialog::Accepted)
            dialog.takeInto(screen);
    });
    screen.addEditingAction(button, QKeySequence(Qt::Key_F10));
}

SalesOrderScreenKind::SalesOrderScreenKind(const shell::Session &session)
    : SalesScreenKind(session, sales::salesOrderKind())
{ }

int SalesOrderScreenKind::checkRight() const
{
    return sales::rights::checkOrder;
}

QList<LineField> SalesOrderScreenKind::enterFields() const
{
    return { LineField::Code, LineField::Quantity, LineField::Price };
}

QString SalesOrderScreenKind::dueLabel() const
{
    return sltexts::receivable;
}

Result<QString> SalesOrderScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    const Result<sales::SaleHeader> h = header(session);
    if (!h)
        return h.outcome();
    return sales::saveSalesOrder(session, { draft, h.value() });
}

Outcome SalesOrderScreenKind::check(shell::Session &session, const QString &number, QWidget *)
{
    return sales::checkSalesOrder(session, number);
}

Outcome SalesOrderScreenKind::uncheck(shell::Session &, const QString &)
{
    return Outcome::refused(QString());
}

Outcome SalesOrderScreenKind::remove(shell::Session &session, const QString &number)
{
    return sales::deleteSalesOrder(session, number);
}

} // namespace medistock::ui
