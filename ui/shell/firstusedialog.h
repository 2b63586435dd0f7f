#pragma once

#include "core/clock.h"

#include <QDialog>

class QLineEdit;

namespace medistock::core {
class Interaction;
}

namespace medistock::ui {

// The first start on a machine: asks for the company's name, short name and telephone and
// creates the data folder's master file with that company row. Cancelling creates nothing.
class FirstUseDialog : public QDialog
{
    Q_OBJECT
public:
    FirstUseDialog(const QString &dataFolder, core::Clock clock, core::Interaction &interaction,
        QWidget *parent = nullptr);

    // Whether the folder still lacks its master file.
    static bool isNeeded(const QString &dataFolder);

    QLineEdit *nameField() const { return m_name; }
    QLineEdit *shortNameField() const { return m_shortName; }
    QLineEdit *teleField() const { return m_tele; }

public slots:
    // Creates the master file; closes the dialog when it is there.
    void create();

private:
    QString m_folder;
    core::Clock m_clock;
    core::Interaction &m_interaction;
    QLineEdit *m_name;
    QLineEdit *m_shortName;
    QLineEdit *m_tele;
};

} // namespace medistock::ui
