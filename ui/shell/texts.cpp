#include "ui/shell/texts.h"

namespace medistock::ui::shelltexts {

QString setCreated(const QString &name, const QString &fileName, bool onServer)
{
    return onServer ? QStringLiteral("帐套“%1”已建立，数据库：%2").arg(name, fileName)
                    : QStringLiteral("帐套“%1”已建立，数据文件：%2").arg(name, fileName);
}

} // namespace medistock::ui::shelltexts
