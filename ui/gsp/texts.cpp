#include "ui/gsp/texts.h"

#include "core/rounding.h"

namespace medistock::ui::gsptexts {

QString documentTitle(const QString &kindText, const QString &number)
{
    return QStringLiteral("单据明细：%1 %2").arg(kindText, number);
}

QString limitLabel(const QString &what, double value)
{
    return what + QLatin1Char(' ') + core::plainNumber(value);
}

QString copied(const QString &name, const QString &code)
{
    return QStringLiteral("已将员工%1复制到业务员，业务员编号：%2").arg(name, code);
}

QString nearExpiryStatus(int count, int within)
{
    return QStringLiteral("近效期批次：%1（%2天内）").arg(count).arg(within);
}

QString folderOpened(const QString &path)
{
    return QStringLiteral("GSP管理文档保存在：%1").arg(path);
}

} // namespace medistock::ui::gsptexts
