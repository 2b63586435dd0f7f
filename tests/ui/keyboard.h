#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

namespace medistock::test {

// A clerk's keyboard: every key goes to the widget that has the focus at that moment, as it
// would on a desk, and is counted. A key that opens a dialog is answered by a step given
// beforehand with onDialog(), which runs once the dialog is up (inside its own event loop).
class Keyboard
{
public:
    // The window the keys go to while no dialog is up.
    void setWindow(QWidget *window) { m_window = window; }
    // Each character as a key press; Chinese too.
    void type(const QString &text);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    int count() const { return m_count; }
    void resetCount() { m_count = 0; }

    // The next modal dialog of type D (a QWidget) that opens gets `step`; the step presses the
    // dialog's keys through this keyboard, so that they count too.
    template<class D> void onDialog(std::function<void(D &)> step)
    {
        watch([step](QWidget *modal) {
            auto *dialog = qobject_cast<D *>(modal);
            if (!dialog)
                return false;
            step(*dialog);
            return true;
        });
    }
    // True while a step given to onDialog has not run yet.
    bool waiting() const { return bool(m_pending); }

    // Lets queued work (a lookup, the next cell opening) happen.
    static void settle();

private:
    void watch(std::function<bool(QWidget *)> handler);
    QWidget *target() const;
    QWidget *focusTarget() const;

    QWidget *m_window = nullptr;
    int m_count = 0;
    std::function<bool(QWidget *)> m_pending;
    std::unique_ptr<QTimer> m_timer;
};

} // namespace medistock::test
