#include "ui/shell/connectiondialog.h"

#include "ui/common/keys.h"
#include "ui/shell/texts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace medistock::ui {

ConnectionDialog::ConnectionDialog(const core::ConnectionChoice &choice, QWidget *parent)
    : QDialog(parent)
    , m_files(new QRadioButton(shelltexts::connectionFiles, this))
    , m_server(new QRadioButton(shelltexts::connectionServer, this))
    , m_host(new QLineEdit(this))
    , m_port(new QSpinBox(this))
    , m_database(new QLineEdit(this))
    , m_user(new QLineEdit(this))
    , m_password(new QLineEdit(this))
{
    setWindowTitle(shelltexts::connectionTitle);
    const core::Connection::PostgresOptions server
        = choice.server.value_or(core::Connection::PostgresOptions {
            QStringLiteral("localhost"), 5432, QStringLiteral("jxc"), QString(), QString() });
    m_port->setRange(1, 65535);
    m_port->setValue(server.port);
    m_host->setText(server.host);
    m_database->setText(server.database);
    m_user->setText(server.user);
    m_password->setEchoMode(QLineEdit::Password);
    (choice.server ? m_server : m_files)->setChecked(true);

    auto *form = new QFormLayout;
    form->addRow(shelltexts::serverHost, m_host);
    form->addRow(shelltexts::serverPort, m_port);
    form->addRow(shelltexts::serverDatabase, m_database);
    form->addRow(shelltexts::serverUser, m_user);
    form->addRow(shelltexts::serverPassword, m_password);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_server, &QRadioButton::toggled, this, &ConnectionDialog::showServerFields);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_files);
    layout->addWidget(m_server);
    layout->addLayout(form);
    layout->addWidget(buttons);
    enableEnterNavigation(this);
    showServerFields();
}

void ConnectionDialog::showServerFields()
{
    for (QWidget *field : { static_cast<QWidget *>(m_host), static_cast<QWidget *>(m_port),
             static_cast<QWidget *>(m_database), static_cast<QWidget *>(m_user),
             static_cast<QWidget *>(m_password) })
        field->setEnabled(m_server->isChecked());
}

core::ConnectionChoice ConnectionDialog::choice() const
{
    if (!m_server->isChecked())
        return {};
    return { core::Connection::PostgresOptions { m_host->text().trimmed(), m_port->value(),
        m_database->text().trimmed(), m_user->text().trimmed(), m_password->text() } };
}

QString describeConnection(const core::ConnectionChoice &choice)
{
    if (!choice.server)
        return shelltexts::connectionFiles;
    return QStringLiteral("%1 %2:%3 / %4")
        .arg(shelltexts::serverShort, choice.server->host)
        .arg(choice.server->port)
        .arg(choice.server->database);
}

} // namespace medistock::ui
