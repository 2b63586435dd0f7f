#pragma once

#include "shell/rights.h"

#include <QDialog>

class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// A role's name and its rights as a tree: the eight areas, each with its operations in order
// as check boxes (an area's box ticks or clears all of them). Saved as the eight right strings.
class RoleEditor : public QDialog
{
    Q_OBJECT
public:
    // `existing` null: a new role.
    RoleEditor(
        const shell::Session &session, const shell::Role *existing, QWidget *parent = nullptr);

    QLineEdit *nameField() const { return m_name; }
    QTreeWidget *tree() const { return m_tree; }
    // The box of operation `position` (from 1) of an area.
    QTreeWidgetItem *operationItem(const QString &area, int position) const;
    QTreeWidgetItem *areaItem(const QString &area) const;
    // The code the role was saved under, once saved.
    const QString &savedCode() const { return m_savedCode; }

public slots:
    void save();
    void tickAll(bool ticked);

private:
    shell::RoleDraft draft() const;

    const shell::Session &m_session;
    qint64 m_id = 0;
    QLineEdit *m_name;
    QTreeWidget *m_tree;
    QString m_savedCode;
};

} // namespace medistock::ui
