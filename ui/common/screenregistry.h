#pragma once

#include <QHash>
#include <QString>

#include <functional>

class QWidget;

namespace medistock::ui {

struct Workspace;

// What a menu entry of the main window opens. The entries are the operations of the eight
// right areas (shell::rightAreas()); a module registers the screens it has built, and every
// entry without one stays disabled. The main window only reads the registry.
class ScreenRegistry
{
public:
    // Builds the widget shown in a tab of the main window; the main window owns it afterwards.
    using TabFactory = std::function<QWidget *(Workspace &)>;
    // Runs at once without a tab (e.g. a question followed by an operation); `window` is the
    // main window, for dialogs to centre on.
    using Action = std::function<void(Workspace &, QWidget *window)>;

    struct Entry
    {
        TabFactory tab; // empty for an action
        Action action; // empty for a tab
    };

    // Registers the screen of the operation named `operation` in the area whose right column is
    // `area` (e.g. "qtcz", "系统设置"). False, and nothing registered, when the area has no such
    // operation or it already has a screen.
    bool addTab(const QString &area, const QString &operation, TabFactory factory);
    bool addAction(const QString &area, const QString &operation, Action action);

    // The entry of operation `position` (from 1) of the area, or nullptr.
    const Entry *find(const QString &area, int position) const;

private:
    bool add(const QString &area, const QString &operation, Entry entry);

    QHash<QString, Entry> m_entries;
};

} // namespace medistock::ui
