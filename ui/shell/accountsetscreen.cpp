#include "ui/shell/accountsetscreen.h"

#include "core/connection.h"
#include "core/interaction.h"
#include "core/schemacatalogue.h"
#include "shell/accountsets.h"
#include "ui/common/grid.h"
#include "ui/common/keys.h"
#include "ui/common/progress.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/shell/texts.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

namespace {

// The grid shows the register's columns under their catalogue captions.
QStringList registerCaptions()
{
    QStringList captions;
    for (const char *column :
        { "zt_sn", "zt_name", "zt_dbname", "zt_default", "zt_forbid", "zt_note" })
        for (const core::ColumnDef &def : core::registerTable().columns)
            if (qstrcmp(def.name, column) == 0)
                captions.append(QString::fromUtf8(def.label));
    return captions;
}

} // namespace

AccountSetScreen::AccountSetScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_grid(makeGrid(registerCaptions(), this))
    , m_name(new QLineEdit(this))
    , m_note(new QLineEdit(this))
    , m_default(new QCheckBox(shelltexts::setDefault, this))
    , m_forbidden(new QCheckBox(shelltexts::setForbidden, this))
    , m_company(new QLineEdit(this))
    , m_shortName(new QLineEdit(this))
    , m_tele(new QLineEdit(this))
    , m_create(new QPushButton(shelltexts::createSet, this))
{
    const shell::Company &company = workspace.session.company();
    m_company->setText(company.name);
    m_shortName->setText(company.shortName);
    m_tele->setText(company.tele);
    m_name->setMaxLength(64);
    m_note->setMaxLength(200);

    auto *group = new QGroupBox(shelltexts::newSetGroup, this);
    auto *flags = new QHBoxLayout;
    flags->addWidget(m_default);
    flags->addWidget(m_forbidden);
    flags->addStretch(1);
    auto *form = new QFormLayout(group);
    form->addRow(shelltexts::setName, m_name);
    form->addRow(shelltexts::setNote, m_note);
    form->addRow(QString(), flags);
    form->addRow(shelltexts::companyName, m_company);
    form->addRow(shelltexts::companyShort, m_shortName);
    form->addRow(shelltexts::companyTele, m_tele);
    form->addRow(QString(), m_create);
    group->setMaximumWidth(420);
    connect(m_create, &QPushButton::clicked, this, &AccountSetScreen::create);

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_grid, 1);
    layout->addWidget(group, 0, Qt::AlignTop);
    reload();
    m_grid->setColumnWidth(1, 160);
    m_grid->setColumnWidth(2, 140);
    m_workspace.rememberColumns(m_grid, QStringLiteral("帐套管理"));
    enableEnterNavigation(group);
}

void AccountSetScreen::reload()
{
    QList<QStringList> rows;
    readSafely(m_workspace.session.ui(), [&] {
        for (const core::AccountSet &set : core::listAccountSets(m_workspace.master))
            rows.append(
                { set.code, set.name, set.fileName, set.isDefault ? shelltexts::yesMark : QString(),
                    set.forbidden ? shelltexts::yesMark : QString(), set.note });
    });
    fillGrid(m_grid, rows);
}

void AccountSetScreen::create()
{
    core::NewAccountSet request;
    request.name = m_name->text();
    request.note = m_note->text();
    request.isDefault = m_default->isChecked();
    request.forbidden = m_forbidden->isChecked();
    request.company
        = { m_company->text().trimmed(), m_shortName->text().trimmed(), m_tele->text().trimmed() };
    Result<core::AccountSet> created = Outcome::refused(QString());
    {
        BusyIndicator busy(this, shelltexts::creatingSet);
        created = shell::createAccountSet(m_workspace.session, m_workspace.master, request);
    }
    if (!created)
        return;
    reload();
    m_grid->selectRow(m_grid->rowCount() - 1);
    m_name->clear();
    m_note->clear();
    const bool onServer = m_workspace.master.dialect() == core::Dialect::Postgres;
    m_workspace.session.ui().inform(
        shelltexts::setCreated(created->name, created->fileName, onServer));
}

} // namespace medistock::ui
