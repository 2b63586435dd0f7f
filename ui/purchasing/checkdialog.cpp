#include "ui/purchasing/checkdialog.h"

#include "accounts/bankaccounts.h"
#include "core/interaction.h"
#include "documents/entry.h"
#include "documents/listing.h"
#include "purchasing/kinds.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/documents/texts.h"
#include "ui/purchasing/texts.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QString amountText(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

} // namespace

PurchaseCheckDialog::PurchaseCheckDialog(const shell::Session &session,
    const purchasing::PurchaseKind &kind, const QString &number, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
{
    setWindowTitle(pctexts::checkTitle);
    const bool receipt = &kind == &purchasing::purchaseReceipt();
    std::optional<documents::DocumentRow> row;
    std::optional<purchasing::PurchaseHeaderRow> header;
    QString supplierNumber;
    QList<accounts::BankAccount> accounts;
    readSafely(session.ui(), [&] {
        row = documents::findDocument(session, kind.entry, number);
        header = purchasing::readPurchaseHeader(session, kind, number);
        if (const auto stored = documents::readDocument(session.db(), kind.entry, number);
            stored && *kind.supplierNumber)
            supplierNumber
                = stored->header.value(QString::fromLatin1(kind.supplierNumber)).toString();
        accounts = accounts::listBankAccounts(session.db());
    });
    m_loaded = row && header;
    if (!m_loaded)
        return;
    const int decimals = session.params().amountDecimals();
    QList<std::pair<QString, QWidget *>> fields { { pctexts::number, readOnly(row->number) },
        { pctexts::date, readOnly(row->date) }, { pctexts::supplier, readOnly(row->partyName) },
        { pctexts::warehouse, readOnly(row->warehouseName) },
        { pctexts::employee, readOnly(row->employeeName) },
        { pctexts::operatorName, readOnly(row->operatorName) } };
    if (receipt)
        fields.append({ pctexts::supplierNumber, readOnly(supplierNumber) });
    fields.append({ receipt ? pctexts::payable : pctexts::receivable,
        readOnly(amountText(row->due, decimals)) });
    for (int i = 0; i < fields.size(); ++i)
        m_shown.append({ fields[i].first, static_cast<QLineEdit *>(fields[i].second) });

    m_paid = new QLineEdit(amountText(header->paid, decimals), this);
    m_paid->setAlignment(Qt::AlignRight);
    m_mode = new QComboBox(this);
    m_mode->addItem(pctexts::byPaid, QStringLiteral("1"));
    m_mode->addItem(pctexts::remainderPayable, QStringLiteral("2"));
    m_mode->setCurrentIndex(header->mode == QLatin1String("2") ? 1 : 0);
    m_account = new QComboBox(this);
    for (const accounts::BankAccount &account : accounts)
        m_account->addItem(account.name);
    m_account->setCurrentIndex(std::max(0, m_account->findText(header->account)));
    m_note = new QLineEdit(header->note, this);
    m_paidLabel = receipt ? pctexts::paid : pctexts::received;
    fields.append({ m_paidLabel, m_paid });
    fields.append({ pctexts::mode, m_mode });
    fields.append({ pctexts::account, m_account });

    auto *grid = new QGridLayout;
    for (int i = 0; i < fields.size(); ++i) {
        grid->addWidget(new QLabel(fields[i].first + QStringLiteral("："), this), i / 2,
            (i % 2) * 2, Qt::AlignRight);
        grid->addWidget(fields[i].second, i / 2, (i % 2) * 2 + 1);
    }
    const int noteRow = int(fields.size() + 1) / 2;
    grid->addWidget(
        new QLabel(pctexts::note + QStringLiteral("："), this), noteRow, 0, Qt::AlignRight);
    grid->addWidget(m_note, noteRow, 1, 1, 3);
    grid->setColumnMinimumWidth(1, 180);
    grid->setColumnMinimumWidth(3, 180);

    QPushButton *approveButton = makeCheckButton(this);
    auto *cancel = new QPushButton(doctexts::cancel, this);
    approveButton->setAutoDefault(false);
    cancel->setAutoDefault(false);
    connect(approveButton, &QPushButton::clicked, this, &PurchaseCheckDialog::approve);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(approveButton);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    enableEnterNavigation(this);
    m_paid->setFocus();
    m_paid->selectAll();
}

QLineEdit *PurchaseCheckDialog::readOnly(const QString &text)
{
    auto *field = new QLineEdit(text, this);
    field->setReadOnly(true);
    field->setFocusPolicy(Qt::NoFocus);
    return field;
}

QString PurchaseCheckDialog::shown(const QString &label) const
{
    for (const auto &[caption, field] : m_shown)
        if (caption == label)
            return field->text();
    return QString();
}

purchasing::CheckInput PurchaseCheckDialog::input() const
{
    purchasing::CheckInput input;
    // approve() lets the dialog close on a valid amount only.
    if (const Result<double> paid = documents::readHeaderAmount(m_paidLabel, m_paid->text()))
        input.paid = paid.value();
    input.mode = m_mode->currentData().toString();
    input.account = m_account->currentText();
    input.note = m_note->text();
    return input;
}

void PurchaseCheckDialog::approve()
{
    const Result<double> paid = documents::readHeaderAmount(m_paidLabel, m_paid->text());
    if (!paid) {
        m_session.ui().inform(paid.message());
        m_paid->setFocus();
        return;
    }
    accept();
}

} // namespace medistock::ui
