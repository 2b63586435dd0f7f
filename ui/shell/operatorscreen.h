#pragma once

#include "shell/operators.h"
#include "shell/rights.h"

#include <QWidget>

class QPushButton;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "操作员设置": the operators (add, change, lock, unlock, set a password) beside the roles
// (add, change in the rights tree).
class OperatorScreen : public QWidget
{
    Q_OBJECT
public:
    explicit OperatorScreen(Workspace &workspace, QWidget *parent = nullptr);

    QTableWidget *operatorGrid() const { return m_operatorGrid; }
    QTableWidget *roleGrid() const { return m_roleGrid; }
    // The operator or role of the chosen row, or nullptr.
    const shell::OperatorRow *chosenOperator() const;
    const shell::Role *chosenRole() const;

public slots:
    void reload();
    void addOperator();
    void editOperator();
    void setLocked(bool locked);
    void changePassword();
    void addRole();
    void editRole();

private:
    QWidget *buildOperatorGroup();
    QWidget *buildRoleGroup();
    QPushButton *button(const QString &text, QWidget *parent, void (OperatorScreen::*slot)());

    Workspace &m_workspace;
    QList<shell::OperatorRow> m_operators;
    QList<shell::Role> m_roles;
    QTableWidget *m_operatorGrid = nullptr;
    QTableWidget *m_roleGrid = nullptr;
};

} // namespace medistock::ui
