#include "ui/common/workspace.h"

#include "core/connection.h"

#include <QFileInfo>

namespace medistock::ui {

QString Workspace::folder() const
{
    if (!dataFolder.isEmpty())
        return dataFolder;
    const QString file = master.filePath();
    return file.isEmpty() ? QString() : QFileInfo(file).absolutePath();
}

} // namespace medistock::ui
