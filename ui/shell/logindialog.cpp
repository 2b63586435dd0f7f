#include "ui/shell/logindialog.h"

#include "core/dberror.h"
#include "core/interaction.h"
#include "core/login.h"
#include "core/schema.h"
#include "members/instalments.h"
#include "ui/common/keys.h"
#include "ui/common/reading.h"
#include "ui/common/texts.h"
#include "ui/shell/connectiondialog.h"
#include "ui/shell/texts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace medistock::ui {

LoginDialog::LoginDialog(std::unique_ptr<core::Connection> master, const QString &dataFolder,
    core::Clock clock, core::Interaction &interaction, QWidget *parent)
    : QDialog(parent)
    , m_master(std::move(master))
    , m_folder(dataFolder)
    , m_clock(clock)
    , m_interaction(interaction)
    , m_choice(core::readConnectionChoice(dataFolder))
    , m_company(new QLabel(this))
    , m_connection(new QLabel(describeConnection(m_choice), this))
    , m_sets(new QComboBox(this))
    , m_operators(new QComboBox(this))
    , m_password(new QLineEdit(this))
    , m_hint(new QLabel(core::initialPasswordHint(), this))
{
    setWindowTitle(shelltexts::loginTitle);
    buildLayout();
    connect(m_sets, &QComboBox::currentIndexChanged, this, &LoginDialog::showSet);
    connect(m_operators, &QComboBox::currentIndexChanged, this, &LoginDialog::showOperator);
    enableEnterNavigation(this);
    loadSets();
    m_password->setFocus();
}

void LoginDialog::loadSets()
{
    m_offered.clear();
    if (m_master)
        readSafely(m_interaction, [&] { m_offered = core::loginAccountSets(*m_master); });
    {
        const QSignalBlocker quiet(m_sets);
        m_sets->clear();
        for (const core::AccountSet &set : std::as_const(m_offered))
            m_sets->addItem(set.name);
    }
    showSet(m_sets->currentIndex());
}

void LoginDialog::changeConnection()
{
    ConnectionDialog dialog(m_choice, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const core::ConnectionChoice chosen = dialog.choice();
    std::unique_ptr<core::Connection> master;
    try {
        master = core::openMaster(m_folder, chosen, { m_clock.today(), {} });
    } catch (const core::DbError &error) {
        m_interaction.inform(error.message());
        return;
    }
    const Outcome written = core::writeConnectionChoice(m_folder, chosen);
    if (!written)
        m_interaction.inform(written.message());
    m_own.reset();
    m_setOpen = false;
    m_master = std::move(master);
    m_choice = chosen;
    m_connection->setText(describeConnection(m_choice));
    loadSets();
}

LoginDialog::~LoginDialog() = default;

void LoginDialog::buildLayout()
{
    auto *logo = new QLabel(this);
    logo->setPixmap(QIcon(QStringLiteral(":/icons/medistock.svg")).pixmap(48, 48));
    QFont big = m_company->font();
    big.setPointSize(big.pointSize() + 4);
    big.setBold(true);
    m_company->setFont(big);
    auto *banner = new QHBoxLayout;
    banner->addWidget(logo);
    banner->addWidget(m_company, 1);

    m_sets->setMinimumWidth(240);
    m_password->setEchoMode(QLineEdit::Password);
    m_password->setProperty("enterConfirms", true);
    m_hint->setStyleSheet(QStringLiteral("color: #b03a2e;"));
    auto *change = new QPushButton(shelltexts::changeConnection, this);
    change->setAutoDefault(false);
    connect(change, &QPushButton::clicked, this, &LoginDialog::changeConnection);
    auto *where = new QHBoxLayout;
    where->addWidget(m_connection, 1);
    where->addWidget(change);
    auto *form = new QFormLayout;
    form->addRow(shelltexts::connection, where);
    form->addRow(shelltexts::accountSet, m_sets);
    form->addRow(shelltexts::operatorLabel, m_operators);
    form->addRow(shelltexts::password, m_password);
    form->addRow(QString(), m_hint);

    auto *buttons = new QDialogButtonBox(this);
    m_login = buttons->addButton(shelltexts::logIn, QDialogButtonBox::AcceptRole);
    buttons->addButton(shelltexts::leave, QDialogButtonBox::RejectRole);
    m_login->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &LoginDialog::logIn);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(banner);
    layout->addSpacing(8);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

core::Connection *LoginDialog::current() const
{
    if (!m_setOpen)
        return nullptr;
    return m_own ? m_own.get() : m_master.get();
}

void LoginDialog::showSet(int index)
{
    m_own.reset();
    m_setOpen = false;
    m_operators->clear();
    m_company->clear();
    if (index < 0 || index >= m_offered.size()) {
        m_login->setEnabled(false);
        return;
    }
    m_chosen = m_offered.at(index);
    if (!m_chosen.code.isEmpty()) {
        auto opened = core::openAccountSet(*m_master, m_chosen);
        if (!opened) {
            m_interaction.inform(opened.message());
            m_login->setEnabled(false);
            return;
        }
        m_own = std::move(opened.value());
    }
    m_setOpen = true;
    const QSignalBlocker quiet(m_operators);
    readSafely(m_interaction, [&] {
        m_company->setText(core::readCompany(*current()).name);
        m_operators->addItems(core::loginOperators(*current()));
    });
    m_login->setEnabled(m_operators->count() > 0);
    showOperator();
}

void LoginDialog::showOperator()
{
    bool empty = false;
    if (core::Connection *db = current(); db && m_operators->currentIndex() >= 0)
        readSafely(m_interaction,
            [&] { empty = core::hasEmptyPassword(*db, m_operators->currentText()); });
    m_hint->setVisible(empty);
}

void LoginDialog::logIn()
{
    core::Connection *db = current();
    if (!db || m_operators->currentIndex() < 0)
        return;
    auto opened = shell::openSession(*db, m_interaction, m_clock, m_operators->currentText(),
        m_password->text(), core::LoginMode::Desktop);
    if (!opened) {
        m_password->clear();
        m_password->setFocus();
        return;
    }
    m_session = std::move(opened.value());
    // Top-up gifts that have fallen due reach the cards at every login.
    members::releaseInstalmentGifts(*m_session);
    accept();
}

OpenedAccountSet LoginDialog::take()
{
    return { std::move(m_master), std::move(m_own), m_chosen, std::move(m_session) };
}

} // namespace medistock::ui
