#include "tests/ui/keyboard.h"

#include <QTest>

namespace medistock::test {

namespace { } // namespace

// The widget a key goes to: the focus widget, or the one that the window on top (a dialog that
// came up, the screen once its dialog closed) has given the focus; the offscreen platform does not
// always hand the activation back and forth as a window manager does.
QWidget *Keyboard::target() const
{
    QWidget *widget = focusTarget();
    if (widget && !widget->window()->isActiveWindow()) {
        widget->window()->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(widget->window()));
    }
    return widget;
}

QWidget *Keyboard::focusTarget() const
{
    QWidget *focus = QApplication::focusWidget();
    QWidget *top = QApplication::activeModalWidget();
    if (!top)
        top = m_window;
    if (top && !(focus && (top == focus || top->isAncestorOf(focus))))
        return top->focusWidget() ? top->focusWidget() : top;
    return focus;
}

void Keyboard::settle()
{
    for (int i = 0; i < 6; ++i)
        QApplication::processEvents();
}

void Keyboard::type(const QString &text)
{
    for (QChar c : text) {
        QWidget *widget = target();
        if (!widget)
            return;
        if (c.unicode() < 128 && c.isLetterOrNumber())
            QTest::keyClick(widget, c.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
        ++m_count;
        settle();
    }
}

void Keyboard::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *widget = target();
    if (!widget)
        return;
    ++m_count;
    QTest::keyClick(widget, key, modifiers);
    settle();
}

void Keyboard::watch(std::function<bool(QWidget *)> handler)
{
    m_pending = std::move(handler);
    if (!m_timer) {
        m_timer = std::make_unique<QTimer>();
        m_timer->setInterval(5);
        QObject::connect(m_timer.get(), &QTimer::timeout, m_timer.get(), [this] {
            QWidget *modal = QApplication::activeModalWidget();
            if (!modal || !m_pending || !modal->isVisible())
                return;
            // A dialog takes the keys once it is the active window, as on a desk.
            modal->activateWindow();
            if (!QTest::qWaitForWindowActive(modal))
                return;
            std::function<bool(QWidget *)> step = std::move(m_pending);
            m_pending = {};
            if (!step(modal))
                m_pending = std::move(step);
        });
    }
    m_timer->start();
}

} // namespace medistock::test
