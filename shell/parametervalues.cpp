#include "shell/parametervalues.h"

#include "core/numbers.h"
#include "core/schemacatalogue.h"

#include <QRegularExpression>

#include <utility>

namespace medistock::shell {

namespace {

using core::NumberKind;

struct ParameterMeaning
{
    const char *column;
    NumberKind kind;
};

constexpr ParameterMeaning meanings[] = { { "cs_cbjs", NumberKind::Decimals },
    { "cs_xsws", NumberKind::Decimals }, { "cs_jews", NumberKind::Decimals },
    { "cs_posfkws", NumberKind::Decimals }, { "cs_tax", NumberKind::Percent },
    { "cs_zdzk", NumberKind::DiscountRate } };

// The settings screen's captions of columns that the catalogue leaves without a label.
constexpr std::pair<const char *, const char *> captions[] = { { "cs_cbjs", "单价小数位数" },
    { "cs_xsws", "数量小数位数" }, { "cs_jews", "金额小数位数" },
    { "cs_posfkws", "POS付款小数位数" }, { "cs_tax", "税率" }, { "cs_zdzk", "最低折扣" },
    { "cs_hbfh", "货币符号" } };

NumberKind kindOf(const QString &column, const QString &type)
{
    for (const ParameterMeaning &meaning : meanings)
        if (column == QLatin1String(meaning.column))
            return meaning.kind;
    if (type == QLatin1String("bit"))
        return NumberKind::Flag;
    if (type == QLatin1String("int"))
        return NumberKind::Count;
    return NumberKind::SignedAmount;
}

QString captionOf(const core::ColumnDef &def)
{
    if (*def.label)
        return QString::fromUtf8(def.label);
    for (const auto &[column, caption] : captions)
        if (qstrcmp(def.name, column) == 0)
            return QString::fromUtf8(caption);
    return QStringLiteral("系统参数 ") + QString::fromLatin1(def.name);
}

int declaredWidth(const QString &type)
{
    static const QRegularExpression width(QStringLiteral("char\\((\\d+)\\)"));
    const QRegularExpressionMatch match = width.match(type);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

} // namespace

QString checkParameterValue(const QString &column, QVariant &value)
{
    const core::TableDef *table = core::findTable(QStringLiteral("jxc_xtcs"));
    const core::ColumnDef *def = nullptr;
    for (const core::ColumnDef &c : table->columns)
        if (column == QLatin1String(c.name))
            def = &c;
    if (!def)
        return QString();
    const QString type = QString::fromLatin1(def->type);
    const QString caption = captionOf(*def);
    if (type.contains(QLatin1String("char"))) {
        const int width = declaredWidth(type);
        if (width > 0 && value.toString().size() > width)
            return QStringLiteral("%1不能超过 %2 个字符！").arg(caption).arg(width);
        return QString();
    }
    const NumberKind kind = kindOf(column, type);
    // A spin box or check box gives a number or a bool; the command line gives text.
    const QString typed = value.typeId() == QMetaType::Bool
        ? QString::number(value.toBool() ? 1 : 0)
        : value.toString();
    const Result<double> number = core::readNumber(caption, typed, kind);
    if (!number)
        return number.message();
    const bool whole = type == QLatin1String("bit") || type == QLatin1String("int");
    value = whole ? QVariant(int(number.value())) : QVariant(number.value());
    return QString();
}

} // namespace medistock::shell
