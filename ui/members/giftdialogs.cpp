#include "ui/members/giftdialogs.h"

#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/texts.h"
#include "ui/members/texts.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QDoubleSpinBox *amountBox(QWidget *parent)
{
    auto *box = new QDoubleSpinBox(parent);
    box->setRange(0, 999999999);
    box->setDecimals(2);
    box->setAlignment(Qt::AlignRight);
    return box;
}

// The form in a dialog with save and cancel; save calls the dialog's slot "save".
void finish(QDialog *dialog, QFormLayout *form)
{
    auto *buttons = new QDialogButtonBox(dialog);
    buttons->addButton(mbtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog,
        [dialog] { QMetaObject::invokeMethod(dialog, "save"); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto *layout = new QVBoxLayout(dialog);
    layout->addLayout(form);
    layout->addWidget(buttons);
    dialog->setMinimumWidth(360);
    enableEnterNavigation(dialog);
}

} // namespace

GiftItemDialog::GiftItemDialog(
    const shell::Session &session, const members::GiftItem &item, bool isNew, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_isNew(isNew)
    , m_code(new QLineEdit(item.code, this))
    , m_name(new QLineEdit(item.name, this))
    , m_mnemonic(new QLineEdit(item.mnemonic, this))
    , m_points(amountBox(this))
{
    setWindowTitle(mbtexts::giftItemsPage);
    m_code->setReadOnly(!isNew);
    m_code->setPlaceholderText(mbtexts::autoCode);
    m_points->setValue(item.points);
    auto *form = new QFormLayout;
    form->addRow(mbtexts::itemCode, m_code);
    form->addRow(mbtexts::itemName, m_name);
    form->addRow(mbtexts::itemMnemonic, m_mnemonic);
    form->addRow(mbtexts::itemPoints, m_points);
    finish(this, form);
    (isNew ? m_code : m_name)->setFocus();
}

void GiftItemDialog::save()
{
    if (members::saveGiftItem(m_session,
            { m_code->text(), m_name->text(), m_mnemonic->text(), m_points->value() }, m_isNew))
        accept();
}

GiftMovementDialog::GiftMovementDialog(
    const shell::Session &session, Kind kind, const members::GiftItem &item, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_kind(kind)
    , m_code(item.code)
    , m_date(new QDateEdit(session.clock().today(), this))
    , m_quantity(amountBox(this))
    , m_sale(new QLineEdit(this))
    , m_note(new QLineEdit(this))
{
    setWindowTitle(kind == Kind::Purchase ? mbtexts::purchase : mbtexts::giveAway);
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    m_date->setCalendarPopup(true);
    auto *form = new QFormLayout;
    form->addRow(new QLabel(QStringLiteral("%1 %2").arg(item.code, item.name), this));
    form->addRow(mbtexts::date, m_date);
    form->addRow(mbtexts::quantity, m_quantity);
    if (kind == Kind::GiveAway)
        form->addRow(mbtexts::saleNumber, m_sale);
    else
        m_sale->hide();
    form->addRow(mbtexts::note, m_note);
    finish(this, form);
    m_quantity->setFocus();
}

void GiftMovementDialog::save()
{
    const bool done = m_kind == Kind::Purchase
        ? members::addGiftPurchase(
            m_session, m_code, m_date->date(), m_quantity->value(), m_note->text())
              .ok()
        : members::addGiveAway(m_session, m_date->date(), m_sale->text().trimmed(),
            { { m_code, m_quantity->value() } }, m_note->text())
              .ok();
    if (done)
        accept();
}

} // namespace medistock::ui
