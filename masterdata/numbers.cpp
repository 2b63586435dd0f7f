#include "masterdata/numbers.h"

#include "core/schemacatalogue.h"

namespace medistock::masterdata {

namespace {

using core::NumberKind;

struct ColumnMeaning
{
    const char *column;
    NumberKind kind;
    const char *caption = nullptr; // for a column the screens label themselves
};

// Names mean the same in every list (goods and their further units share their price columns).
constexpr ColumnMeaning meanings[] = { { "g_jj", NumberKind::Price }, { "g_sj", NumberKind::Price },
    { "g_sj1", NumberKind::Price }, { "g_sj2", NumberKind::Price }, { "g_sj3", NumberKind::Price },
    { "g_sj4", NumberKind::Price }, { "g_sj5", NumberKind::Price }, { "g_lsj", NumberKind::Price },
    { "g_scjj", NumberKind::Price }, { "g_cbj", NumberKind::Price, "成本价" },
    { "g_pjjj", NumberKind::Price, "成本均价" }, { "g_hyj", NumberKind::Price },
    { "g_tj", NumberKind::Price }, { "gp_price", NumberKind::Price, "价格" },
    { "g_kc", NumberKind::Quantity }, { "g_xzsl", NumberKind::Quantity },
    { "g_xzsl2", NumberKind::Quantity }, { "g_zhxs", NumberKind::Factor },
    { "g_clxs", NumberKind::Quantity }, { "g_dzll", NumberKind::DiscountRate },
    { "u_tc", NumberKind::Percent }, { "g_bzq", NumberKind::Count }, { "g_tc", NumberKind::Amount },
    { "g_tcje", NumberKind::Amount, "提成金额" }, { "g_zpjf", NumberKind::Amount },
    { "g_tsjf", NumberKind::Amount }, { "hy_jf", NumberKind::Amount },
    { "hy_zjf", NumberKind::Amount }, { "hy_zhje", NumberKind::Amount },
    { "hy_ye", NumberKind::Amount }, { "hy_zje", NumberKind::Amount },
    { "hy_syje", NumberKind::Amount }, { "hy_xjsyje", NumberKind::Amount } };

const core::ColumnDef *findColumn(const QString &table, const QString &column)
{
    if (const core::TableDef *def = core::findTable(table))
        for (const core::ColumnDef &c : def->columns)
            if (column == QLatin1String(c.name))
                return &c;
    return nullptr;
}

QString labelOf(const QString &table, const QString &column)
{
    const core::ColumnDef *def = findColumn(table, column);
    if (def && *def->label)
        return QString::fromUtf8(def->label);
    for (const ColumnMeaning &meaning : meanings)
        if (column == QLatin1String(meaning.column) && meaning.caption)
            return QString::fromUtf8(meaning.caption);
    return column;
}

NumberKind kindOf(const QString &table, const QString &column)
{
    const core::ColumnDef *def = findColumn(table, column);
    return masterNumberKind(column, def ? QString::fromLatin1(def->type) : QString());
}

} // namespace

NumberKind masterNumberKind(const QString &column, const QString &declaredType)
{
    if (declaredType == QLatin1String("bit"))
        return NumberKind::Flag;
    if (declaredType == QLatin1String("int") || declaredType == QLatin1String("integer"))
        return NumberKind::Count;
    for (const ColumnMeaning &meaning : meanings)
        if (column == QLatin1String(meaning.column))
            return meaning.kind;
    return NumberKind::SignedAmount;
}

Result<double> readMasterNumber(const QString &table, const QString &column, const QString &typed)
{
    return core::readNumber(labelOf(table, column), typed, kindOf(table, column), 0);
}

QString masterNumberProblem(const QString &table, const QString &column, double value)
{
    return core::numberProblem(labelOf(table, column), value, kindOf(table, column));
}

} // namespace medistock::masterdata
