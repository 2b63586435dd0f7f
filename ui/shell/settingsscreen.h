#pragma once

#include <QWidget>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTabWidget;

namespace medistock::ui {

struct Workspace;

// "系统设置": every labelled option of the parameter row as a check box with its label, on
// tabs by subject, the decimal places of prices, quantities and amounts, and the currency
// symbol. Saving writes them all; the defaults button restores the parameter row (refused
// while goods are still to be received or issued) and shows the defaults.
class SettingsScreen : public QWidget
{
    Q_OBJECT
public:
    explicit SettingsScreen(Workspace &workspace, QWidget *parent = nullptr);

    // The control of a parameter column (a check box, spin box or line edit), or nullptr.
    QCheckBox *checkBox(const QString &column) const;
    QSpinBox *spinBox(const QString &column) const;
    QLineEdit *lineEdit(const QString &column) const;
    QTabWidget *pages() const { return m_pages; }
    QPushButton *saveButton() const { return m_save; }
    QPushButton *defaultsButton() const { return m_defaults; }

public slots:
    void save();
    void restoreDefaults();
    // Shows the session's parameters in the controls.
    void load();

private:
    QWidget *buildPage(const QStringList &columns);
    QWidget *buildNumbersPage();

    Workspace &m_workspace;
    QTabWidget *m_pages;
    QPushButton *m_save;
    QPushButton *m_defaults;
};

} // namespace medistock::ui
