#pragma once

class QPushButton;
class QWidget;

namespace medistock::ui {

// Enter in a field of the form moves on to the next field, as Tab does, so that a clerk keys a
// whole form without the mouse. A field whose property "enterConfirms" is true keeps Enter for
// the dialog's default button (the password of the login). Install once the fields exist.
void enableEnterNavigation(QWidget *form);

// The "审核通过(F5)" button of a checking dialog: F5 presses it from anywhere in the window.
QPushButton *makeCheckButton(QWidget *parent);

} // namespace medistock::ui
