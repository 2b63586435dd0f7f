#pragma once

#include <QDialog>

class QLineEdit;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// The company row: name, short name, contact, telephone and address; saved through the
// operation, the dialog stays open when it is refused.
class CompanyDialog : public QDialog
{
    Q_OBJECT
public:
    explicit CompanyDialog(shell::Session &session, QWidget *parent = nullptr);

    QLineEdit *field(const char *column) const;

public slots:
    void save();

private:
    shell::Session &m_session;
};

} // namespace medistock::ui
