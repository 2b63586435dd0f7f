#include "ui/common/keys.h"

#include "ui/common/texts.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace medistock::ui {

namespace {

bool isField(const QWidget *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QComboBox *>(widget)
        || qobject_cast<const QAbstractSpinBox *>(widget)
        || qobject_cast<const QCheckBox *>(widget);
}

class EnterMovesOn : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
            return false;
        if (key->modifiers() & ~Qt::KeypadModifier)
            return false;
        auto *widget = qobject_cast<QWidget *>(watched);
        if (!widget || widget->property("enterConfirms").toBool())
            return false;
        // An open drop-down takes Enter as its choice; a line edit inside a combo box reports
        // to the combo box.
        if (auto *combo = qobject_cast<QComboBox *>(widget); combo && combo->view()->isVisible())
            return false;
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(widget, &tab);
        return true;
    }
};

} // namespace

void enableEnterNavigation(QWidget *form)
{
    auto *filter = new EnterMovesOn(form);
    for (QWidget *widget : form->findChildren<QWidget *>())
        if (isField(widget))
            widget->installEventFilter(filter);
}

QPushButton *makeCheckButton(QWidget *parent)
{
    auto *button = new QPushButton(texts::checkButton(), parent);
    button->setShortcut(QKeySequence(Qt::Key_F5));
    return button;
}

} // namespace medistock::ui
