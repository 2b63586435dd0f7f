#include "ui/stock/texts.h"

namespace medistock::ui::sttexts {

QString ledgerOf(const QString &goodsName)
{
    return QStringLiteral("商品明细帐：") + goodsName;
}

QString posted(const QString &entry)
{
    return QStringLiteral("已建账：") + entry;
}

} // namespace medistock::ui::sttexts
