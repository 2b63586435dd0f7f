#include "ui/members/adjustdialogs.h"

#include "core/rounding.h"
#include "members/member.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/members/texts.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

members::Member memberOf(const shell::Session &session, const QString &code)
{
    std::optional<members::Member> member;
    readSafely(session.ui(), [&] { member = members::readMember(session.db(), code); });
    return member.value_or(members::Member {});
}

QSpinBox *pointsBox(double value, QWidget *parent)
{
    auto *box = new QSpinBox(parent);
    box->setRange(0, 999999999);
    box->setValue(int(value));
    box->setAlignment(Qt::AlignRight);
    return box;
}

// The layout every change by hand shares: the member, a grid of figures, the reason, the buttons.
QGridLayout *frame(QDialog *dialog, const members::Member &member, QLineEdit *reason)
{
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(new QLabel(mbtexts::memberLine(member.card, member.name), dialog));
    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(mbtexts::now, dialog), 0, 1);
    grid->addWidget(new QLabel(mbtexts::changeTo, dialog), 0, 2);
    layout->addLayout(grid);
    auto *reasonRow = new QGridLayout;
    reasonRow->addWidget(new QLabel(mbtexts::reason, dialog), 0, 0);
    reasonRow->addWidget(reason, 0, 1);
    layout->addLayout(reasonRow);
    auto *buttons = new QDialogButtonBox(dialog);
    buttons->addButton(mbtexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, dialog,
        [dialog] { QMetaObject::invokeMethod(dialog, "save"); });
    return grid;
}

void addFigure(QGridLayout *grid, int row, const QString &label, const QString &now, QWidget *field)
{
    grid->addWidget(new QLabel(label, field->parentWidget()), row, 0, Qt::AlignRight);
    grid->addWidget(new QLabel(now, field->parentWidget()), row, 1, Qt::AlignRight);
    grid->addWidget(field, row, 2);
}

} // namespace

PointsAdjustDialog::PointsAdjustDialog(
    const shell::Session &session, const QString &member, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_member(member)
    , m_reason(new QLineEdit(this))
{
    setWindowTitle(mbtexts::pointsTitle);
    const members::Member m = memberOf(session, member);
    m_points = pointsBox(m.points, this);
    m_lifetime = pointsBox(m.lifetimePoints, this);
    QGridLayout *grid = frame(this, m, m_reason);
    addFigure(grid, 1, mbtexts::points, core::plainNumber(m.points), m_points);
    addFigure(grid, 2, mbtexts::lifetimePoints, core::plainNumber(m.lifetimePoints), m_lifetime);
    setMinimumWidth(380);
    enableEnterNavigation(this);
    m_points->setFocus();
    m_points->selectAll();
}

void PointsAdjustDialog::save()
{
    if (members::setMemberPoints(
            m_session, m_member, m_points->value(), m_lifetime->value(), m_reason->text()))
        accept();
}

BalanceAdjustDialog::BalanceAdjustDialog(
    const shell::Session &session, const QString &member, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_member(member)
    , m_balance(new QDoubleSpinBox(this))
    , m_reason(new QLineEdit(this))
{
    setWindowTitle(mbtexts::balanceTitle);
    const members::Member m = memberOf(session, member);
    m_balance->setRange(0, 999999999);
    m_balance->setDecimals(session.params().amountDecimals());
    m_balance->setValue(m.balance);
    m_balance->setAlignment(Qt::AlignRight);
    QGridLayout *grid = frame(this, m, m_reason);
    addFigure(grid, 1, mbtexts::balance,
        QString::number(m.balance, 'f', session.params().amountDecimals()), m_balance);
    setMinimumWidth(380);
    enableEnterNavigation(this);
    m_balance->setFocus();
    m_balance->selectAll();
}

void BalanceAdjustDialog::save()
{
    if (members::setMemberBalance(m_session, m_member, m_balance->value(), m_reason->text()))
        accept();
}

} // namespace medistock::ui
