#pragma once

#include "core/accountsets.h"
#include "core/clock.h"
#include "core/connection.h"
#include "core/connectionchoice.h"
#include "shell/session.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace medistock::core {
class Interaction;
}

namespace medistock::ui {

// What a login hands over: the master file, the chosen set's own file (none when the master
// file itself was chosen), the set as offered, and the operator's session on it.
struct OpenedAccountSet
{
    std::unique_ptr<core::Connection> master;
    std::unique_ptr<core::Connection> own;
    core::AccountSet set;
    std::unique_ptr<shell::Session> session;

    core::Connection &connection() const { return own ? *own : *master; }
};

// "Medistock ---- 操作员登录": the account set, the operators not locked, the password with the
// hint for an empty one. A wrong password is told, the field cleared and the dialog stays;
// Enter in the password logs in, Esc leaves. Above the sets, where they live (the data folder's
// files or a PostgreSQL server) with 更改 to choose again: a new choice is tried first and kept in
// the data folder only when its master opens. The master may come in null (the remembered server
// could not be reached); then no set is offered until the connection is changed.
class LoginDialog : public QDialog
{
    Q_OBJECT
public:
    LoginDialog(std::unique_ptr<core::Connection> master, const QString &dataFolder,
        core::Clock clock, core::Interaction &interaction, QWidget *parent = nullptr);
    ~LoginDialog() override;

    // The logged-in set once the dialog was accepted.
    OpenedAccountSet take();

    QComboBox *setChoice() const { return m_sets; }
    QComboBox *operatorChoice() const { return m_operators; }
    QLineEdit *passwordField() const { return m_password; }
    QLabel *hintLabel() const { return m_hint; }
    QPushButton *loginButton() const { return m_login; }
    QLabel *connectionLabel() const { return m_connection; }

public slots:
    void logIn();
    void changeConnection();

private:
    void buildLayout();
    void loadSets();
    void showSet(int index);
    void showOperator();
    core::Connection *current() const;

    std::unique_ptr<core::Connection> m_master;
    std::unique_ptr<core::Connection> m_own;
    QString m_folder;
    core::Clock m_clock;
    core::Interaction &m_interaction;
    QList<core::AccountSet> m_offered;
    core::AccountSet m_chosen;
    bool m_setOpen = false;
    std::unique_ptr<shell::Session> m_session;

    core::ConnectionChoice m_choice;
    QLabel *m_company;
    QLabel *m_connection;
    QComboBox *m_sets;
    QComboBox *m_operators;
    QLineEdit *m_password;
    QLabel *m_hint;
    QPushButton *m_login;
};

} // namespace medistock::ui
