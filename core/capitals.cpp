#include "core/capitals.h"

#include <QList>

#include <cmath>

namespace medistock::core {

namespace {

const QString digits = QStringLiteral("零壹贰叁肆伍陆柒捌玖");
const QString placeUnits[]
    = { QString(), QStringLiteral("拾"), QStringLiteral("佰"), QStringLiteral("仟") };
const QString groupUnits[]
    = { QString(), QStringLiteral("万"), QStringLiteral("亿"), QStringLiteral("万亿") };

// One group of four digits, without leading zeros; zeros inside become one "零".
QString groupText(int group)
{
    QString text;
    bool pendingZero = false;
    for (int place = 3; place >= 0; --place) {
        const int digit = group / int(std::pow(10, place)) % 10;
        if (digit == 0) {
            pendingZero = !text.isEmpty();
            continue;
        }
        if (pendingZero)
            text += digits.at(0);
        pendingZero = false;
        text += digits.at(digit) + placeUnits[place];
    }
    return text;
}

QString integerText(long long yuan)
{
    QList<int> groups; // lowest first
    for (long long rest = yuan; rest > 0; rest /= 10000)
        groups.append(int(rest % 10000));
    QString text;
    bool zeroBefore = false;
    for (qsizetype i = groups.size() - 1; i >= 0; --i) {
        const int group = groups.at(i);
        if (group == 0) {
            zeroBefore = !text.isEmpty();
            continue;
        }
        if (!text.isEmpty() && (zeroBefore || group < 1000))
            text += digits.at(0);
        zeroBefore = false;
        text += groupText(group) + groupUnits[i];
    }
    return text;
}

} // namespace

QString amountInCapitals(double amount)
{
    const bool negative = amount < 0;
    const long long fenTotal = std::llround(std::floor(std::fabs(amount) * 100 + 0.5 + 1e-7));
    const long long yuan = fenTotal / 100;
    const int jiao = int(fenTotal / 10 % 10);
    const int fen = int(fenTotal % 10);

    QString text = negative && fenTotal > 0 ? QStringLiteral("负") : QString();
    if (fenTotal == 0)
        return QStringLiteral("零元整");
    if (yuan > 0)
        text += integerText(yuan) + QStringLiteral("元");
    if (jiao > 0)
        text += digits.at(jiao) + QStringLiteral("角");
    else if (yuan > 0 && fen > 0)
        text += digits.at(0);
    if (fen > 0)
        text += digits.at(fen) + QStringLiteral("分");
    else
        text += QStringLiteral("整");
    return text;
}

} // namespace medistock::core
