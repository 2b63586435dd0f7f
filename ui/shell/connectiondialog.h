#pragma once

#include "core/connectionchoice.h"

#include <QDialog>

class QLineEdit;
class QRadioButton;
class QSpinBox;

namespace medistock::ui {

// "数据连接": where the account sets of this data folder live, the folder's own files or a
// PostgreSQL server (host, port, master database, user, password). The login screen opens it and
// tries the connection before it keeps the choice; the password is never stored.
class ConnectionDialog : public QDialog
{
    Q_OBJECT
public:
    ConnectionDialog(const core::ConnectionChoice &choice, QWidget *parent = nullptr);

    core::ConnectionChoice choice() const;

    QRadioButton *filesChoice() const { return m_files; }
    QRadioButton *serverChoice() const { return m_server; }
    QLineEdit *hostField() const { return m_host; }
    QLineEdit *databaseField() const { return m_database; }

private:
    void showServerFields();

    QRadioButton *m_files;
    QRadioButton *m_server;
    QLineEdit *m_host;
    QSpinBox *m_port;
    QLineEdit *m_database;
    QLineEdit *m_user;
    QLineEdit *m_password;
};

// The words the login screen shows for a choice: "本机帐套文件" or "服务器 host:port / dbname".
QString describeConnection(const core::ConnectionChoice &choice);

} // namespace medistock::ui
