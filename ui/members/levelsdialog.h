#pragma once

#include "members/levels.h"

#include <QDialog>

class QDoubleSpinBox;
class QLineEdit;
class QTableWidget;

namespace medistock::shell {
class Session;
}

namespace medistock::ui {

// "会员等级": the levels with their discount and points bounds; add, change and delete.
class LevelsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit LevelsDialog(const shell::Session &session, QWidget *parent = nullptr);

    QTableWidget *grid() const { return m_grid; }
    void reload();

public slots:
    void addLevel();
    void editLevel();
    void deleteLevel();

private:
    const members::Level *chosen();

    const shell::Session &m_session;
    QTableWidget *m_grid;
    QList<members::Level> m_levels;
};

// One level's name, discount and bounds.
class LevelDialog : public QDialog
{
    Q_OBJECT
public:
    LevelDialog(
        const shell::Session &session, const members::Level &level, QWidget *parent = nullptr);

    QLineEdit *nameField() const { return m_name; }
    QDoubleSpinBox *lowerField() const { return m_lower; }
    QDoubleSpinBox *upperField() const { return m_upper; }

public slots:
    void save();

private:
    const shell::Session &m_session;
    QString m_code;
    QLineEdit *m_name;
    QDoubleSpinBox *m_discount;
    QDoubleSpinBox *m_lower;
    QDoubleSpinBox *m_upper;
};

} // namespace medistock::ui
