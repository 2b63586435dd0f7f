#include "ui/members/texts.h"

#include "core/rounding.h"

namespace medistock::ui::mbtexts {

QString memberLine(const QString &card, const QString &name)
{
    return QStringLiteral("会员：%1 %2").arg(card, name);
}

QString paidTotal(double paid)
{
    return QStringLiteral("收款合计：%1").arg(paid, 0, 'f', 2);
}

QString toppedUp(const QString &number)
{
    return QStringLiteral("充值成功，单号：") + number;
}

QString deleteLevelQuestion(const QString &name)
{
    return QStringLiteral("确实要删除会员等级：%1 吗？").arg(name);
}

QString memberFound(
    const QString &card, const QString &name, const QString &level, double memberPoints)
{
    return QStringLiteral("%1（%2）  %3  会员积分：%4")
        .arg(name, card, level, core::plainNumber(memberPoints));
}

QString redemptionTotals(double totalQuantity, double totalPoints)
{
    return QStringLiteral("合计数量：%1  合计积分：%2")
        .arg(core::plainNumber(totalQuantity), core::plainNumber(totalPoints));
}

QString redeemed(const QString &number)
{
    return QStringLiteral("兑换成功，单号：") + number;
}

QString deleteQuestion(const QString &what)
{
    return QStringLiteral("确实要删除%1吗？").arg(what);
}

} // namespace medistock::ui::mbtexts
