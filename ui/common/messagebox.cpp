#include "ui/common/messagebox.h"

#include "ui/common/texts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace medistock::ui {

void MessageBoxInteraction::inform(const QString &text)
{
    QMessageBox box(QMessageBox::Information, texts::promptTitle(), text, QMessageBox::Ok,
        QApplication::activeWindow());
    box.button(QMessageBox::Ok)->setText(texts::ok());
    box.exec();
}

bool MessageBoxInteraction::ask(const QString &text)
{
    QMessageBox box(QMessageBox::Information, texts::promptTitle(), text,
        QMessageBox::Yes | QMessageBox::No, QApplication::activeWindow());
    box.button(QMessageBox::Yes)->setText(texts::yes());
    box.button(QMessageBox::No)->setText(texts::no());
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace medistock::ui
