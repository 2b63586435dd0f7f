#pragma once

#include <QMainWindow>

class QAction;
class QLabel;
class QTabWidget;
class QToolButton;

namespace medistock::ui {

class ScreenRegistry;
struct Workspace;

// The main window: the eight areas as picture buttons, each opening a menu of its operations in
// order; an entry is enabled when the operator holds its right and a screen is registered for
// it. Screens open as tabs (Esc closes the current one); the status bar shows the company, the
// account set, the operator and the date with its weekday. While it exists, screens open other
// screens through Workspace::openScreen.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    MainWindow(Workspace &workspace, const ScreenRegistry &registry, QWidget *parent = nullptr);
    ~MainWindow() override;

    // The picture button of an area ("cggl" ... "qtcz"), and the menu entry of an operation.
    QToolButton *areaButton(const QString &area) const;
    QAction *operationAction(const QString &area, int position) const;
    QTabWidget *tabs() const { return m_tabs; }
    // The status bar's texts, left to right.
    QStringList statusTexts() const;

public slots:
    // Opens (or brings forward) the screen of an operation, or runs its action.
    void openOperation(const QString &area, int position);
    void showCompany();
    void changeOwnPassword();

protected:
    // Every screen is asked first; one holding unsaved work may keep the window open.
    void closeEvent(QCloseEvent *event) override;

private:
    void buildSystemMenu();
    QWidget *buildAreaPanel();
    QMenu *buildAreaMenu(const QString &area);
    void refreshTitleAndStatus();
    void closeTab(int index);

    Workspace &m_workspace;
    const ScreenRegistry &m_registry;
    QTabWidget *m_tabs;
    QList<QLabel *> m_status;
};

} // namespace medistock::ui
