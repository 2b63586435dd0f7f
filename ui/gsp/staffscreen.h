#pragma once

#include "gsp/staff.h"
#include "ui/gsp/recordscreen.h"

#include <QDialog>
#include <QHash>

class QCheckBox;

namespace medistock::ui {

// "员工花名册": the register with its keyword and sex filters; employees are added, changed,
// deleted and copied to the salesmen.
class StaffScreen : public RecordScreen
{
    Q_OBJECT
public:
    explicit StaffScreen(Workspace &workspace, QWidget *parent = nullptr);

public slots:
    void addEmployee();
    void editEmployee();
    void deleteEmployee();
    void copyEmployee();

private:
    void openDialog(const QString &code);
};

// One employee's register entry on two columns of fields.
class EmployeeDialog : public QDialog
{
    Q_OBJECT
public:
    // `code` empty: a new employee.
    EmployeeDialog(Workspace &workspace, const QString &code, QWidget *parent = nullptr);

    QLineEdit *field(const QString &name) const { return m_texts.value(name); }
    QComboBox *choice(const QString &name) const { return m_choices.value(name); }
    QCheckBox *flag(const QString &name) const { return m_flags.value(name); }
    QString savedCode() const { return m_saved; }

public slots:
    void save();

private:
    void load(const gsp::Employee &employee);
    gsp::Employee typed() const;

    Workspace &m_workspace;
    QString m_code;
    QHash<QString, QLineEdit *> m_texts;
    QHash<QString, QComboBox *> m_choices;
    QHash<QString, QCheckBox *> m_flags;
    QString m_saved;
};

} // namespace medistock::ui
