#include "ui/documents/invoicefields.h"

#include "accounts/texts.h"
#include "core/interaction.h"
#include "documents/entry.h"
#include "shell/session.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace medistock::ui {

namespace {

const QString invoiceNumberLabel = QStringLiteral("发票号");
const QString invoiceAmountLabel = QStringLiteral("发票金额");
const QString freightLabel = QStringLiteral("运费");
const QString packingLabel = QStringLiteral("包装费");
const QString freightTermsLabel = QStringLiteral("付费方式");

} // namespace

QLineEdit *headerAmountField(QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setAlignment(Qt::AlignRight);
    return field;
}

QString headerAmountText(double value)
{
    return value == 0 ? QString() : QString::number(value, 'g', 15);
}

void InvoiceFreightFields::create(
    QWidget *parent, bool withFreight, QList<std::pair<QString, QWidget *>> &fields)
{
    m_invoiceNumber = new QLineEdit(parent);
    m_invoiceAmount = headerAmountField(parent);
    fields.append({ invoiceNumberLabel, m_invoiceNumber });
    fields.append({ invoiceAmountLabel, m_invoiceAmount });
    if (!withFreight)
        return;
    m_freight = headerAmountField(parent);
    m_packing = headerAmountField(parent);
    m_freightTerms = new QComboBox(parent);
    m_freightTerms->addItems(
        { QString(), accounts::texts::wePayFreight(), accounts::texts::theyPayFreight() });
    fields.append({ freightLabel, m_freight });
    fields.append({ packingLabel, m_packing });
    fields.append({ freightTermsLabel, m_freightTerms });
}

void InvoiceFreightFields::load(const InvoiceFreight &values)
{
    if (!m_invoiceNumber)
        return;
    m_invoiceNumber->setText(values.invoiceNumber);
    m_invoiceAmount->setText(headerAmountText(values.invoiceAmount));
    if (!m_freight)
        return;
    m_freight->setText(headerAmountText(values.freight));
    m_packing->setText(headerAmountText(values.packing));
    m_freightTerms->setCurrentIndex(std::max(0, m_freightTerms->findText(values.freightTerms)));
}

void InvoiceFreightFields::clear()
{
    for (QLineEdit *field : { m_invoiceNumber, m_invoiceAmount, m_freight, m_packing })
        if (field)
            field->clear();
    if (m_freightTerms)
        m_freightTerms->setCurrentIndex(0);
}

void InvoiceFreightFields::setReadOnly(bool readOnly)
{
    for (QLineEdit *field : { m_invoiceNumber, m_invoiceAmount, m_freight, m_packing })
        if (field)
            field->setReadOnly(readOnly);
    if (m_freightTerms)
        m_freightTerms->setEnabled(!readOnly);
}

Outcome InvoiceFreightFields::read(const shell::Session &session, InvoiceFreight &values) const
{
    if (!m_invoiceNumber)
        return Outcome::done();
    values.invoiceNumber = m_invoiceNumber->text();
    if (m_freightTerms)
        values.freightTerms = m_freightTerms->currentText();
    const std::tuple<QLineEdit *, double *, QString> amounts[]
        = { { m_invoiceAmount, &values.invoiceAmount, invoiceAmountLabel },
              { m_freight, &values.freight, freightLabel },
              { m_packing, &values.packing, packingLabel } };
    for (const auto &[field, value, label] : amounts) {
        if (!field)
            continue;
        const Result<double> typed = documents::readHeaderAmount(label, field->text());
        if (!typed) {
            session.ui().inform(typed.message());
            return typed.outcome();
        }
        *value = typed.value();
    }
    return Outcome::done();
}

} // namespace medistock::ui
