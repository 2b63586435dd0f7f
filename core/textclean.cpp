#include "core/textclean.h"

#include <span>

namespace medistock::core {

namespace {

struct Replacement
{
    const char *from;
    const char *to;
};

// In the order the routine applies them; "*" and "#" map to themselves and are kept so.
constexpr Replacement general[] = {
    { "'", "‘" },
    { "?", "？" },
    { "*", "*" },
    { "%", "％" },
    { "!", "！" },
    { "#", "#" },
    { "$", "￥" },
    { "&", "＆" },
    { ",", "，" },
    { "(", "（" },
    { ")", "）" },
    { "+", "＋" },
    { "-", "－" },
    { "/", "／" },
    { "@", "＠" },
    { "^", "" },
    { "~", "～" },
    { "`", "" },
    { "\"", "“" },
};

constexpr Replacement full[] = {
    { "'", "‘" },
    { "?", "？" },
    { "%", "％" },
    { "!", "！" },
    { "$", "￥" },
    { "&", "＆" },
    { ",", "，" },
    { "(", "（" },
    { ")", "）" },
    { "+", "＋" },
    { "-", "－" },
    { "/", "／" },
    { "@", "＠" },
    { "~", "～" },
    { "\"", "“" },
    { "^", "" },
    { "`", "" },
};

constexpr Replacement medium[] = {
    { "'", "‘" },
    { "?", "？" },
    { "%", "％" },
    { "!", "！" },
    { "$", "￥" },
    { "&", "＆" },
    { ",", "，" },
    { "@", "＠" },
    { "~", "～" },
    { "\"", "“" },
    { "^", "" },
    { "`", "" },
};

constexpr Replacement light[] = {
    { "'", "‘" },
    { "?", "？" },
    { "%", "％" },
    { "`", "" },
};

QString apply(const QString &text, std::span<const Replacement> table)
{
    QString result = text;
    for (const Replacement &r : table)
        result.replace(QString::fromUtf8(r.from), QString::fromUtf8(r.to), Qt::CaseInsensitive);
    return result;
}

} // namespace

QString cleanText(const QString &text)
{
    return apply(text, general);
}

QString cleanText(const QString &text, CleanStrength strength)
{
    switch (strength) {
    case CleanStrength::Full:
        return apply(text, full);
    case CleanStrength::Medium:
        return apply(text, medium);
    case CleanStrength::Light:
        return apply(text, light);
    }
    return text;
}

} // namespace medistock::core
