#include "ui/shell/operatorscreen.h"

#include "core/interaction.h"
#include "ui/common/grid.h"
#include "ui/common/reading.h"
#include "ui/common/workspace.h"
#include "ui/shell/operatordialog.h"
#include "ui/shell/roleeditor.h"
#include "ui/shell/texts.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace medistock::ui {

OperatorScreen::OperatorScreen(Workspace &workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
{
    auto *split = new QSplitter(Qt::Horizontal, this);
    split->addWidget(buildOperatorGroup());
    split->addWidget(buildRoleGroup());
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(split);

    reload();
    m_operatorGrid->setColumnWidth(1, 160);
    m_operatorGrid->setColumnWidth(2, 140);
    m_roleGrid->setColumnWidth(0, 90);
    m_workspace.rememberColumns(m_operatorGrid, QStringLiteral("操作员设置/操作员"));
    m_workspace.rememberColumns(m_roleGrid, QStringLiteral("操作员设置/角色"));
}

QWidget *OperatorScreen::buildOperatorGroup()
{
    auto *group = new QGroupBox(shelltexts::operatorsGroup, this);
    m_operatorGrid = makeGrid({ shelltexts::code, shelltexts::logOperator, shelltexts::roleColumn,
                                  shelltexts::stateColumn },
        group);
    connect(m_operatorGrid, &QTableWidget::cellDoubleClicked, this, &OperatorScreen::editOperator);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(button(shelltexts::add, group, &OperatorScreen::addOperator));
    buttons->addWidget(button(shelltexts::edit, group, &OperatorScreen::editOperator));
    QPushButton *lock = button(shelltexts::lock, group, nullptr);
    QPushButton *unlock = button(shelltexts::unlock, group, nullptr);
    connect(lock, &QPushButton::clicked, this, [this] { setLocked(true); });
    connect(unlock, &QPushButton::clicked, this, [this] { setLocked(false); });
    buttons->addWidget(lock);
    buttons->addWidget(unlock);
    buttons->addWidget(button(shelltexts::changePassword, group, &OperatorScreen::changePassword));
    buttons->addStretch(1);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(m_operatorGrid, 1);
    layout->addLayout(buttons);
    return group;
}

QWidget *OperatorScreen::buildRoleGroup()
{
    auto *group = new QGroupBox(shelltexts::rolesGroup, this);
    m_roleGrid = makeGrid({ shelltexts::code, shelltexts::roleName }, group);
    connect(m_roleGrid, &QTableWidget::cellDoubleClicked, this, &OperatorScreen::editRole);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(button(shelltexts::addRole, group, &OperatorScreen::addRole));
    buttons->addWidget(button(shelltexts::editRole, group, &OperatorScreen::editRole));
    buttons->addStretch(1);
    auto *layout = new QVBoxLayout(group);
    layout->addWidget(m_roleGrid, 1);
    layout->addLayout(buttons);
    return group;
}

QPushButton *OperatorScreen::button(
    const QString &text, QWidget *parent, void (OperatorScreen::*slot)())
{
    auto *pushButton = new QPushButton(text, parent);
    if (slot)
        connect(pushButton, &QPushButton::clicked, this, slot);
    return pushButton;
}

void OperatorScreen::reload()
{
    readSafely(m_workspace.session.ui(), [&] {
        m_operators = shell::listOperators(m_workspace.session.db());
        m_roles = shell::listRoles(m_workspace.session.db());
    });
    QList<QStringList> operatorRows;
    for (const shell::OperatorRow &row : std::as_const(m_operators))
        operatorRows.append({ row.code, row.name, row.roleName,
            row.locked ? shelltexts::locked : shelltexts::active });
    fillGrid(m_operatorGrid, operatorRows);
    QList<QStringList> roleRows;
    for (const shell::Role &role : std::as_const(m_roles))
        roleRows.append({ role.code, role.name });
    fillGrid(m_roleGrid, roleRows);
}

const shell::OperatorRow *OperatorScreen::chosenOperator() const
{
    const int row = chosenRow(m_operatorGrid);
    return row >= 0 && row < m_operators.size() ? &m_operators.at(row) : nullptr;
}

const shell::Role *OperatorScreen::chosenRole() const
{
    const int row = chosenRow(m_roleGrid);
    return row >= 0 && row < m_roles.size() ? &m_roles.at(row) : nullptr;
}

void OperatorScreen::addOperator()
{
    OperatorDialog dialog(m_workspace.session, nullptr, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void OperatorScreen::editOperator()
{
    const shell::OperatorRow *row = chosenOperator();
    if (!row) {
        m_workspace.session.ui().inform(shelltexts::chooseOperatorFirst);
        return;
    }
    OperatorDialog dialog(m_workspace.session, row, this);
    if (dialog.exec() == QDialog::Accepted)
        reload();
}

void OperatorScreen::setLocked(bool locked)
{
    const shell::OperatorRow *row = chosenOperator();
    if (!row) {
        m_workspace.session.ui().inform(shelltexts::chooseOperatorFirst);
        return;
    }
    const int current = m_operatorGrid->currentRow();
    if (shell::setOperatorLocked(m_workspace.session, row->name, locked)) {
        reload();
        m_operatorGrid->selectRow(current);
    }
}

void OperatorScreen::changePassword()
{
    const shell::OperatorRow *row = chosenOperator();
    if (!row) {
        m_workspace.session.ui().inform(shelltexts::chooseOperatorFirst);
        return;
    }
    PasswordDialog dialog(m_workspace.session, row->name, this);
    dialog.exec();
}

void OperatorScreen::addRole()
{
    RoleEditor editor(m_workspace.session, nullptr, this);
    if (editor.exec() == QDialog::Accepted)
        reload();
}

void OperatorScreen::editRole()
{
    const shell::Role *role = chosenRole();
    if (!role) {
        m_workspace.session.ui().inform(shelltexts::chooseRoleFirst);
        return;
    }
    RoleEditor editor(m_workspace.session, role, this);
    if (editor.exec() == QDialog::Accepted)
        reload();
}

} // namespace medistock::ui
