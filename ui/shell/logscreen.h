#pragma once

#include <QWidget>

class QDateEdit;
class QPushButton;
class QTableWidget;

namespace medistock::ui {

struct Workspace;

// "查看日志": the operation log of a date range; "清除日志" beside it for an operator who holds
// that right.
class LogScreen : public QWidget
{
    Q_OBJECT
public:
    explicit LogScreen(Workspace &workspace, QWidget *parent = nullptr);

    QDateEdit *fromField() const { return m_from; }
    QDateEdit *toField() const { return m_to; }
    QTableWidget *grid() const { return m_grid; }
    QPushButton *clearButton() const { return m_clear; }

public slots:
    void query();
    void clear();

private:
    Workspace &m_workspace;
    QDateEdit *m_from;
    QDateEdit *m_to;
    QTableWidget *m_grid;
    QPushButton *m_clear;
};

// The menu's "清除日志": asks, clears, tells.
void clearLogWithQuestion(Workspace &workspace);

} // namespace medistock::ui
