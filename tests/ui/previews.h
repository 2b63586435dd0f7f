#pragma once

#include "ui/reports/previewdialog.h"

#include <QApplication>
#include <QList>

namespace medistock::test {

// The print previews on screen now: what F8 or a print button opened.
inline QList<ui::PreviewDialog *> visiblePreviews()
{
    QList<ui::PreviewDialog *> found;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *preview = qobject_cast<ui::PreviewDialog *>(widget);
            preview && preview->isVisible())
            found.append(preview);
    return found;
}

} // namespace medistock::test
