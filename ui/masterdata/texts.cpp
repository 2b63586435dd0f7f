#include "ui/masterdata/texts.h"

namespace medistock::ui::mdtexts {

QString listTitle(const QString &label)
{
    return label + QStringLiteral("设置");
}

QString deleteClassQuestion(const QString &name)
{
    return QStringLiteral("确实要删除商品类别：%1 吗？").arg(name);
}

QString addTitle(const QString &label)
{
    return QStringLiteral("增加") + label;
}

QString editTitle(const QString &label, const QString &name)
{
    return QStringLiteral("修改%1：%2").arg(label, name);
}

} // namespace medistock::ui::mdtexts
