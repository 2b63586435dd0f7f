#include "gsp/documentsfolder.h"

#include "gsp/texts.h"

#include <QDir>

namespace medistock::gsp {

Result<QString> gspDocumentsFolder(const QString &dataFolder)
{
    const QString path = QDir(dataFolder).filePath(QStringLiteral("gsp"));
    if (!QDir().mkpath(path))
        return Outcome::refused(texts::folderNotMade(path));
    return QDir::cleanPath(path);
}

} // namespace medistock::gsp
