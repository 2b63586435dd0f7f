#include "ui/members/settingsdialog.h"

#include "core/interaction.h"
#include "members/settings.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/members/texts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

QSpinBox *wholeBox(int maximum, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setRange(0, maximum);
    box->setAlignment(Qt::AlignRight);
    return box;
}

QLineEdit *dateField(const QString &text, QWidget *parent)
{
    auto *edit = new QLineEdit(text, parent);
    edit->setPlaceholderText(mbtexts::dateHint);
    return edit;
}

} // namespace

PointsSettingsDialog::PointsSettingsDialog(const shell::Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_amount(new QLineEdit(this))
    , m_cardEarns(new QCheckBox(mbtexts::cardEarns, this))
    , m_remainder(new QCheckBox(mbtexts::carryRemainder, this))
    , m_multiple(wholeBox(100, this))
    , m_from(dateField(QString(), this))
    , m_to(dateField(QString(), this))
    , m_birthday(wholeBox(100, this))
    , m_only(new QRadioButton(mbtexts::onBirthday, this))
    , m_around(new QRadioButton(mbtexts::aroundBirthday, this))
    , m_days(wholeBox(366, this))
{
    setWindowTitle(mbtexts::settingsTitle);
    members::PointsSettings s;
    readSafely(session.ui(), [&] { s = members::loadPointsSettings(session.db()); });
    m_amount->setText(members::pointsSettingText(s, QStringLiteral("jf_mfje")));
    m_amount->setAlignment(Qt::AlignRight);
    m_cardEarns->setChecked(s.cardEarnsPoints);
    m_remainder->setChecked(s.carryRemainder);
    m_multiple->setValue(s.multiple);
    m_from->setText(s.multipleFrom);
    m_to->setText(s.multipleTo);
    m_birthday->setValue(s.birthdayFactor);
    (s.birthdayRule == 1 ? m_around : m_only)->setChecked(true);
    m_days->setValue(s.birthdayDays);

    auto *amountRow = new QHBoxLayout;
    auto *amountLabel = new QLabel(mbtexts::amountPerPoint, this);
    amountLabel->setBuddy(m_amount);
    amountRow->addWidget(amountLabel);
    amountRow->addWidget(m_amount);
    amountRow->addWidget(new QLabel(mbtexts::yuan, this));
    amountRow->addWidget(new QLabel(mbtexts::notZero, this));
    amountRow->addStretch(1);
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(mbtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &PointsSettingsDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(amountRow);
    layout->addWidget(m_cardEarns);
    layout->addWidget(m_remainder);
    layout->addWidget(multipleGroup());
    layout->addWidget(birthdayGroup());
    layout->addWidget(buttons);
    enableEnterNavigation(this);
    m_amount->setFocus();
}

QWidget *PointsSettingsDialog::multipleGroup()
{
    auto *group = new QGroupBox(mbtexts::multipleGroup, this);
    auto *grid = new QGridLayout(group);
    grid->addWidget(new QLabel(mbtexts::multiple, group), 0, 0);
    grid->addWidget(m_multiple, 0, 1);
    grid->addWidget(new QLabel(mbtexts::times, group), 0, 2);
    grid->addWidget(new QLabel(mbtexts::from, group), 1, 0);
    grid->addWidget(m_from, 1, 1);
    grid->addWidget(new QLabel(mbtexts::to, group), 2, 0);
    grid->addWidget(m_to, 2, 1);
    grid->setColumnStretch(3, 1);
    return group;
}

QWidget *PointsSettingsDialog::birthdayGroup()
{
    auto *group = new QGroupBox(mbtexts::birthdayGroup, this);
    auto *grid = new QGridLayout(group);
    grid->addWidget(new QLabel(mbtexts::birthdayFactor, group), 0, 0);
    grid->addWidget(m_birthday, 0, 1);
    grid->addWidget(new QLabel(mbtexts::times, group), 0, 2);
    grid->addWidget(m_only, 1, 0, 1, 3);
    auto *around = new QHBoxLayout;
    around->addWidget(m_around);
    around->addWidget(m_days);
    around->addWidget(new QLabel(mbtexts::days, group));
    around->addStretch(1);
    grid->addLayout(around, 2, 0, 1, 3);
    grid->setColumnStretch(3, 1);
    return group;
}

void PointsSettingsDialog::save()
{
    members::PointsSettings s;
    const Outcome amount
        = members::applyPointsSetting(s, QStringLiteral("jf_mfje"), m_amount->text());
    if (!amount) {
        m_session.ui().inform(amount.message());
        return;
    }
    s.cardEarnsPoints = m_cardEarns->isChecked();
    s.carryRemainder = m_remainder->isChecked();
    s.multiple = m_multiple->value();
    for (const auto &[column, field] :
        { std::pair { "jf_dbrq1", m_from }, std::pair { "jf_dbrq2", m_to } }) {
        const Outcome date
            = members::applyPointsSetting(s, QString::fromLatin1(column), field->text());
        if (!date) {
            m_session.ui().inform(date.message());
            return;
        }
    }
    s.birthdayFactor = m_birthday->value();
    s.birthdayRule = m_around->isChecked() ? 1 : 0;
    s.birthdayDays = m_days->value();
    if (members::savePointsSettings(m_session, s))
        accept();
}

} // namespace medistock::ui
