#include "ui/shell/operatordialog.h"

#include "core/interaction.h"
#include "shell/rights.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/shell/texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace medistock::ui {

namespace {

QLineEdit *passwordEdit(QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setEchoMode(QLineEdit::Password);
    edit->setMaxLength(32);
    return edit;
}

QDialogButtonBox *saveAndCancel(QDialog *dialog)
{
    auto *buttons = new QDialogButtonBox(dialog);
    buttons->addButton(shelltexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    return buttons;
}

} // namespace

OperatorDialog::OperatorDialog(
    const shell::Session &session, const shell::OperatorRow *existing, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_name(new QLineEdit(this))
    , m_role(new QComboBox(this))
{
    setWindowTitle(existing ? shelltexts::editOperatorTitle : shelltexts::addOperatorTitle);
    m_name->setMaxLength(32);
    m_name->setMinimumWidth(220);
    readSafely(session.ui(), [&] {
        for (const shell::Role &role : shell::listRoles(session.db()))
            m_role->addItem(role.name, role.code);
    });

    auto *form = new QFormLayout(this);
    form->addRow(shelltexts::operatorName, m_name);
    form->addRow(shelltexts::roleLabel, m_role);
    if (existing) {
        m_id = existing->id;
        m_name->setText(existing->name);
        m_role->setCurrentIndex(m_role->findData(existing->role));
    } else {
        m_password = passwordEdit(this);
        m_confirm = passwordEdit(this);
        form->addRow(shelltexts::password, m_password);
        form->addRow(shelltexts::confirmPassword, m_confirm);
    }
    QDialogButtonBox *buttons = saveAndCancel(this);
    connect(buttons, &QDialogButtonBox::accepted, this, &OperatorDialog::save);
    form->addRow(buttons);
    enableEnterNavigation(this);
}

void OperatorDialog::save()
{
    const QString role = m_role->currentData().toString();
    if (m_id > 0) {
        if (shell::updateOperator(m_session, m_id, m_name->text(), role))
            accept();
        return;
    }
    if (m_password->text() != m_confirm->text()) {
        m_session.ui().inform(shelltexts::passwordsDiffer);
        m_confirm->clear();
        m_confirm->setFocus();
        return;
    }
    if (shell::addOperator(m_session, m_name->text(), role, m_password->text()))
        accept();
}

PasswordDialog::PasswordDialog(
    const shell::Session &session, const QString &operatorName, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_name(operatorName)
    , m_password(passwordEdit(this))
    , m_confirm(passwordEdit(this))
{
    setWindowTitle(shelltexts::passwordTitle);
    m_password->setMinimumWidth(220);
    auto *form = new QFormLayout(this);
    form->addRow(shelltexts::operatorLabel, new QLabel(operatorName, this));
    form->addRow(shelltexts::newPassword, m_password);
    form->addRow(shelltexts::confirmPassword, m_confirm);
    QDialogButtonBox *buttons = saveAndCancel(this);
    connect(buttons, &QDialogButtonBox::accepted, this, &PasswordDialog::save);
    form->addRow(buttons);
    enableEnterNavigation(this);
}

void PasswordDialog::save()
{
    if (m_password->text() != m_confirm->text()) {
        m_session.ui().inform(shelltexts::passwordsDiffer);
        m_confirm->clear();
        m_confirm->setFocus();
        return;
    }
    if (shell::changePassword(m_session, m_name, m_password->text())) {
        m_session.ui().inform(shelltexts::passwordChanged);
        accept();
    }
}

} // namespace medistock::ui
