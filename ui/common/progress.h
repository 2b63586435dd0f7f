#pragma once

#include <QString>

class QProgressDialog;
class QWidget;

namespace medistock::ui {

// A progress window for an operation that runs for a while on this thread (copying a set's
// file, re-creating its tables): shown at once, closed when the object goes out of scope.
class BusyIndicator
{
public:
    BusyIndicator(QWidget *parent, const QString &text);
    ~BusyIndicator();
    BusyIndicator(const BusyIndicator &) = delete;
    BusyIndicator &operator=(const BusyIndicator &) = delete;

private:
    QProgressDialog *m_dialog;
};

} // namespace medistock::ui
