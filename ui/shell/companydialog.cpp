#include "ui/shell/companydialog.h"

#include "shell/company.h"
#include "shell/session.h"
#include "ui/common/keys.h"
#include "ui/common/texts.h"
#include "ui/shell/texts.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace medistock::ui {

namespace {

struct CompanyField
{
    const char *column;
    const QString &label;
    int maxLength;
    QString shell::Company::*member;
};

const CompanyField companyFields[] = {
    { "c_name", shelltexts::companyName, 64, &shell::Company::name },
    { "c_jc", shelltexts::companyShort, 32, &shell::Company::shortName },
    { "c_lxr", shelltexts::companyContact, 32, &shell::Company::contact },
    { "c_tele", shelltexts::companyTele, 32, &shell::Company::tele },
    { "c_address", shelltexts::companyAddress, 128, &shell::Company::address },
};

} // namespace

CompanyDialog::CompanyDialog(shell::Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
{
    setWindowTitle(shelltexts::companyTitle);
    auto *form = new QFormLayout(this);
    for (const CompanyField &def : companyFields) {
        auto *edit = new QLineEdit(session.company().*def.member, this);
        edit->setObjectName(QString::fromLatin1(def.column));
        edit->setMaxLength(def.maxLength);
        edit->setMinimumWidth(320);
        form->addRow(def.label, edit);
    }
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(shelltexts::save, QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(texts::cancel(), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &CompanyDialog::save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    enableEnterNavigation(this);
}

QLineEdit *CompanyDialog::field(const char *column) const
{
    return findChild<QLineEdit *>(QString::fromLatin1(column));
}

void CompanyDialog::save()
{
    shell::Company company;
    for (const CompanyField &def : companyFields)
        company.*def.member = field(def.column)->text();
    if (shell::saveCompany(m_session, company))
        accept();
}

} // namespace medistock::ui
