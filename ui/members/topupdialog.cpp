#include "ui/members/topupdialog.h"

#include "members/member.h"
#include "members/topups.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/members/texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

TopUpDialog::TopUpDialog(const shell::Session &session, const QString &member, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_member(member)
    , m_amount(money())
    , m_cash(money())
    , m_bank(money())
    , m_wechat(money())
    , m_alipay(money())
    , m_change(money())
    , m_mode(new QComboBox(this))
    , m_per(money())
    , m_gift(money())
    , m_points(new QSpinBox(this))
    , m_note(new QLineEdit(this))
    , m_paid(new QLabel(this))
{
    setWindowTitle(mbtexts::topUpTitle);
    std::optional<members::Member> m;
    readSafely(session.ui(), [&] { m = members::readMember(session.db(), member); });
    m_mode->addItems(mbtexts::giftModes);
    m_points->setRange(0, 999999999);
    m_points->setAlignment(Qt::AlignRight);

    auto *form = new QFormLayout;
    form->addRow(new QLabel(m ? mbtexts::memberLine(m->card, m->name) : member, this));
    form->addRow(mbtexts::amount, m_amount);
    auto *paying = new QGroupBox(mbtexts::paymentGroup, this);
    auto *payForm = new QFormLayout(paying);
    payForm->addRow(mbtexts::cash, m_cash);
    payForm->addRow(mbtexts::bankCard, m_bank);
    payForm->addRow(mbtexts::wechat, m_wechat);
    payForm->addRow(mbtexts::alipay, m_alipay);
    payForm->addRow(mbtexts::change, m_change);
    payForm->addRow(m_paid);
    auto *gift = new QGroupBox(mbtexts::giftGroup, this);
    auto *giftForm = new QFormLayout(gift);
    giftForm->addRow(mbtexts::giftMode, m_mode);
    giftForm->addRow(mbtexts::perInstalment, m_per);
    giftForm->addRow(mbtexts::giftAmount, m_gift);
    giftForm->addRow(mbtexts::givenPoints, m_points);
    auto *groups = new QHBoxLayout;
    groups->addWidget(paying);
    groups->addWidget(gift);
    auto *noteForm = new QFormLayout;
    noteForm->addRow(mbtexts::note, m_note);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mbtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &TopUpDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(groups);
    layout->addLayout(noteForm);
    layout->addWidget(buttons);

    connect(m_amount, &QDoubleSpinBox::valueChanged, this, &TopUpDialog::followAmount);
    for (QDoubleSpinBox *part : { m_cash, m_bank, m_wechat, m_alipay, m_change })
        connect(part, &QDoubleSpinBox::valueChanged, this, &TopUpDialog::showPaid);
    connect(m_mode, &QComboBox::currentIndexChanged, this, &TopUpDialog::showGift);
    showPaid();
    showGift();
    enableEnterNavigation(this);
    m_amount->setFocus();
}

QDoubleSpinBox *TopUpDialog::money()
{
    auto *box = new QDoubleSpinBox(this);
    box->setRange(0, 999999999);
    box->setDecimals(m_session.params().amountDecimals());
    box->setAlignment(Qt::AlignRight);
    return box;
}

// Cash takes what the other ways leave of the amount.
void TopUpDialog::followAmount()
{
    const double others = m_bank->value() + m_wechat->value() + m_alipay->value();
    m_cash->setValue(std::max(0.0, m_amount->value() - others + m_change->value()));
}

void TopUpDialog::showPaid()
{
    m_paid->setText(mbtexts::paidTotal(m_cash->value() + m_bank->value() + m_wechat->value()
        + m_alipay->value() - m_change->value()));
}

void TopUpDialog::showGift()
{
    const bool gift = m_mode->currentIndex() > 0;
    m_per->setEnabled(gift);
    m_gift->setEnabled(gift);
}

void TopUpDialog::save()
{
    members::TopUpDraft draft;
    draft.member = m_member;
    draft.amount = m_amount->value();
    draft.payment.cash = m_cash->value();
    draft.payment.bankCard = m_bank->value();
    draft.payment.wechat = m_wechat->value();
    draft.payment.alipay = m_alipay->value();
    draft.payment.change = m_change->value();
    draft.giftMode = members::GiftMode(m_mode->currentIndex());
    if (draft.giftMode != members::GiftMode::None) {
        draft.perInstalment = m_per->value();
        draft.gift = m_gift->value();
    }
    draft.points = m_points->value();
    draft.note = m_note->text();
    const Result<QString> number = members::topUp(m_session, draft);
    if (!number)
        return;
    m_number = number.value();
    m_session.ui().inform(mbtexts::toppedUp(m_number));
    accept();
}

} // namespace medistock::ui
