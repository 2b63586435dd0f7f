#pragma once

#include "core/accountsets.h"

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "帐套管理": the register of account sets in the master file, and a new set made from a name,
// a note, the default and disabled flags and the new set's company row.
class AccountSetScreen : public QWidget
{
    Q_OBJECT
public:
    explicit AccountSetScreen(Workspace &workspace, QWidget *parent = nullptr);

    QTableWidget *grid() const { return m_grid; }
    QLineEdit *nameField() const { return m_name; }
    QLineEdit *noteField() const { return m_note; }
    QCheckBox *defaultBox() const { return m_default; }
    QCheckBox *forbiddenBox() const { return m_forbidden; }
    QLineEdit *companyField() const { return m_company; }
    QPushButton *createButton() const { return m_create; }

public slots:
    void reload();
    void create();

private:
    Workspace &m_workspace;
    QTableWidget *m_grid;
    QLineEdit *m_name;
    QLineEdit *m_note;
    QCheckBox *m_default;
    QCheckBox *m_forbidden;
    QLineEdit *m_company;
    QLineEdit *m_shortName;
    QLineEdit *m_tele;
    QPushButton *m_create;
};

} // namespace medistock::ui
