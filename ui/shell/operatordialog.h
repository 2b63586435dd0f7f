#pragma once

#include "shell/operators.h"

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// Adds an operator (name, role, password twice) or changes one (name, role).
class OperatorDialog : public QDialog
{
    Q_OBJECT
public:
    // `existing` null: a new operator.
    OperatorDialog(const shell::Session &session, const shell::OperatorRow *existing,
        QWidget *parent = nullptr);

    QLineEdit *nameField() const { return m_name; }
    QComboBox *roleChoice() const { return m_role; }
    QLineEdit *passwordField() const { return m_password; }
    QLineEdit *confirmField() const { return m_confirm; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    qint64 m_id = 0;
    QLineEdit *m_name;
    QComboBox *m_role;
    QLineEdit *m_password = nullptr;
    QLineEdit *m_confirm = nullptr;
};

// Sets the password of an operator: the new one twice.
class PasswordDialog : public QDialog
{
    Q_OBJECT
public:
    PasswordDialog(
        const shell::Session &session, const QString &operatorName, QWidget *parent = nullptr);

    QLineEdit *passwordField() const { return m_password; }
    QLineEdit *confirmField() const { return m_confirm; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    QString m_name;
    QLineEdit *m_password;
    QLineEdit *m_confirm;
};

} // namespace medistock::ui
