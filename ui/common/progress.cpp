#include "ui/common/progress.h"

#include "ui/common/texts.h"

#include <QApplication>
#include <QProgressDialog>

namespace medistock::ui {

BusyIndicator::BusyIndicator(QWidget *parent, const QString &text)
    : m_dialog(new QProgressDialog(text, QString(), 0, 0, parent))
{
    m_dialog->setWindowTitle(texts::pleaseWait());
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setMinimumDuration(0);
    m_dialog->setCancelButton(nullptr);
    m_dialog->show();
    // The operation blocks the event loop; let the window paint before it starts.
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

BusyIndicator::~BusyIndicator()
{
    m_dialog->close();
    delete m_dialog;
}

} // namespace medistock::ui
