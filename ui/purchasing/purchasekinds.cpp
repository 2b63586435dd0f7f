#include "ui/purchasing/purchasekinds.h"

#include "core/interaction.h"
#include "documents/entry.h"
#include "purchasing/kinds.h"
#include "purchasing/proposals.h"
#include "purchasing/purchasereturn.h"
#include "purchasing/receipt.h"
#include "purchasing/texts.h"
#include "shell/session.h"
#include "ui/documents/documentscreen.h"
#include "ui/documents/sourcelinesdialog.h"
#include "ui/purchasing/checkdialog.h"
#include "ui/purchasing/texts.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSqlRecord>

namespace medistock::ui {

namespace {

QString column(const char *name)
{
    return QString::fromLatin1(name);
}

} // namespace

PurchaseScreenKind::PurchaseScreenKind(const purchasing::PurchaseKind &kind)
    : m_kind(kind)
{ }

const documents::DocumentKind &PurchaseScreenKind::entry() const
{
    return m_kind.entry;
}

int PurchaseScreenKind::checkRight() const
{
    return m_kind.checkRight;
}

int PurchaseScreenKind::uncheckRight() const
{
    return m_kind.uncheckRight;
}

QList<std::pair<QString, QWidget *>> PurchaseScreenKind::createHeaderFields(QWidget *parent)
{
    QList<std::pair<QString, QWidget *>> fields;
    if (*m_kind.supplierNumber) {
        m_supplierNumber = new QLineEdit(parent);
        fields.append({ pctexts::supplierNumber, m_supplierNumber });
    }
    m_invoice.create(parent, *m_kind.money.freight, fields);
    return fields;
}

void PurchaseScreenKind::loadHeader(const QSqlRecord &header)
{
    const accounts::MoneyColumns &m = m_kind.money;
    const auto text = [&](const char *name) {
        return *name ? header.value(column(name)).toString() : QString();
    };
    const auto number
        = [&](const char *name) { return *name ? header.value(column(name)).toDouble() : 0.0; };
    m_saved.supplierNumber = text(m_kind.supplierNumber);
    m_saved.settlementMode = text(m_kind.mode);
    m_saved.account = text(m.account);
    m_saved.paid = number(m.paid);
    m_saved.invoiceNumber = text(m.invoiceNumber);
    m_saved.invoiceAmount = number(m.invoiceAmount);
    m_saved.freight = number(m.freight);
    m_saved.packing = number(m.packing);
    m_saved.freightTerms = text(m.freightMode);
    if (m_supplierNumber)
        m_supplierNumber->setText(m_saved.supplierNumber);
    m_invoice.loadFrom(m_saved);
}

void PurchaseScreenKind::clearHeader()
{
    m_saved = {};
    if (m_supplierNumber)
        m_supplierNumber->clear();
    m_invoice.clear();
}

void PurchaseScreenKind::setHeaderReadOnly(bool readOnly)
{
    if (m_supplierNumber)
        m_supplierNumber->setReadOnly(readOnly);
    m_invoice.setReadOnly(readOnly);
}

Result<purchasing::PurchaseHeader> PurchaseScreenKind::header(const shell::Session &session) const
{
    purchasing::PurchaseHeader h = m_saved;
    if (m_supplierNumber)
        h.supplierNumber = m_supplierNumber->text();
    if (const Outcome read = m_invoice.readInto(session, h); !read)
        return read;
    return h;
}

double PurchaseScreenKind::proposePrice(const shell::Session &session,
    const documents::GoodsChoice &goods, const QString &unit, const QString &) const
{
    return purchasing::proposedPurchasePrice(session, goods.code, unit);
}

Outcome PurchaseScreenKind::check(shell::Session &session, const QString &number, QWidget *parent)
{
    PurchaseCheckDialog dialog(session, m_kind, number, parent);
    if (!dialog.loaded() || dialog.exec() != QDialog::Accepted)
        return Outcome::refused(QString());
    const purchasing::CheckInput input = dialog.input();
    return &m_kind == &purchasing::purchaseReceipt()
        ? purchasing::checkPurchaseReceipt(session, number, input)
        : purchasing::checkPurchaseReturn(session, number, input);
}

ReceiptScreenKind::ReceiptScreenKind()
    : PurchaseScreenKind(purchasing::purchaseReceipt())
{ }

QString ReceiptScreenKind::dueLabel() const
{
    return pctexts::payable;
}

Result<QString> ReceiptScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    const Result<purchasing::PurchaseHeader> h = header(session);
    if (!h)
        return h.outcome();
    return purchasing::savePurchaseReceipt(session, { draft, h.value() });
}

Outcome ReceiptScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return purchasing::uncheckPurchaseReceipt(session, number);
}

Outcome ReceiptScreenKind::remove(shell::Session &session, const QString &number)
{
    return purchasing::deletePurchaseReceipt(session, number);
}

ReturnScreenKind::ReturnScreenKind()
    : PurchaseScreenKind(purchasing::purchaseReturn())
{ }

QString ReturnScreenKind::dueLabel() const
{
    return pctexts::receivable;
}

void ReturnScreenKind::loadLine(const documents::DocumentLineRow &stored, LineEntry &line) const
{
    loadSourceLink(stored, line);
}

Result<QString> ReturnScreenKind::save(
    shell::Session &session, const documents::DocumentDraft &draft)
{
    const Result<purchasing::PurchaseHeader> h = header(session);
    if (!h)
        return h.outcome();
    return purchasing::savePurchaseReturn(session, { draft, h.value() });
}

Outcome ReturnScreenKind::uncheck(shell::Session &session, const QString &number)
{
    return purchasing::uncheckPurchaseReturn(session, number);
}

Outcome ReturnScreenKind::remove(shell::Session &session, const QString &number)
{
    return purchasing::deletePurchaseReturn(session, number);
}

ReturnSource receiptSource()
{
    return { &purchasing::purchaseReceipt().entry, &purchasing::returnableReceiptLines,
        pctexts::receiptLinesTitle, pctexts::receipts, pctexts::bought };
}

void ReturnScreenKind::addActions(DocumentScreen &screen)
{
    auto *button = new QPushButton(pctexts::fromReceipt, &screen);
    QObject::connect(button, &QPushButton::clicked, &screen, [&screen] {
        SourceLinesDialog dialog(screen, receiptSource());
        if (dialog.exec() == QDialog::Accepted)
            dialog.takeInto(screen);
    });
    screen.addEditingAction(button, QKeySequence(Qt::Key_F10));
}

} // namespace medistock::ui
