#include "core/textclean.h"

namespace medistock::core {

namespace {

// Each replacement applies from the strength named on up: a light one at every strength, a
// medium one at medium and full, a full one only at full.
struct Replacement
{
    const char *from;
    const char *to;
    CleanStrength weakest;
};

// In the order the general routine applies them; "*" and "#" map to themselves and are kept so.
// No replacement produces a character that a later one replaces, so the order never changes the
// result of a weaker strength either.
constexpr Replacement replacements[] = {
    { "'", "‘", CleanStrength::Light },
    { "?", "？", CleanStrength::Light },
    { "*", "*", CleanStrength::Full },
    { "%", "％", CleanStrength::Light },
    { "!", "！", CleanStrength::Medium },
    { "#", "#", CleanStrength::Full },
    { "$", "￥", CleanStrength::Medium },
    { "&", "＆", CleanStrength::Medium },
    { ",", "，", CleanStrength::Medium },
    { "(", "（", CleanStrength::Full },
    { ")", "）", CleanStrength::Full },
    { "+", "＋", CleanStrength::Full },
    { "-", "－", CleanStrength::Full },
    { "/", "／", CleanStrength::Full },
    { "@", "＠", CleanStrength::Medium },
    { "^", "", CleanStrength::Medium },
    { "~", "～", CleanStrength::Medium },
    { "`", "", CleanStrength::Light },
    { "\"", "“", CleanStrength::Medium },
};

// Light < Medium < Full in what they replace.
int rank(CleanStrength strength)
{
    switch (strength) {
    case CleanStrength::Light:
        return 0;
    case CleanStrength::Medium:
        return 1;
    case CleanStrength::Full:
        return 2;
    }
    return 2;
}

} // namespace

QString cleanText(const QString &text)
{
    return cleanText(text, CleanStrength::Full);
}

QString cleanText(const QString &text, CleanStrength strength)
{
    QString result = text;
    for (const Replacement &r : replacements)
        if (rank(r.weakest) <= rank(strength))
            result.replace(QString::fromUtf8(r.from), QString::fromUtf8(r.to), Qt::CaseInsensitive);
    return result;
}

} // namespace medistock::core
