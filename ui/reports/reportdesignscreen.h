#pragma once

#include <QWidget>

class QGridLayout;
class QLineEdit;
class QPushButton;

namespace medistock::ui {

struct Workspace;
class ReportDesigner;

// "报表设计": one button per template offered for design, by its title; a button opens the
// designer on the template (the user's edited copy when there is one, marked "（已修改）"), its
// context menu restores the shipped form. A filter narrows the buttons by title or file name.
class ReportDesignScreen : public QWidget
{
    Q_OBJECT
public:
    explicit ReportDesignScreen(Workspace &workspace, QWidget *parent = nullptr);

    QLineEdit *filterField() const { return m_filter; }
    QPushButton *buttonOf(const QString &name) const;
    // Opens the designer on a template; nullptr when it cannot be read (told).
    ReportDesigner *openDesigner(const QString &name);
    // Deletes the user's copy after asking; true when it was deleted.
    bool restoreShipped(const QString &name);

private:
    void refreshButtons();
    void filter(const QString &text);

    Workspace &m_workspace;
    QLineEdit *m_filter;
    QList<QPushButton *> m_buttons;
};

} // namespace medistock::ui
