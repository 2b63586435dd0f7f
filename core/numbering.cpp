#include "core/numbering.h"

#include "core/connection.h"
#include "core/schemacatalogue.h"

namespace medistock::core {

namespace {

const qsizetype numberLength = 13;
const int lastSequence = 99999;

// Only names from the schema catalogue are ever joined into SQL text.
const TableDef *checkedTable(const QString &table, const QString &column, QString &error)
{
    const TableDef *def = findTable(table);
    if (!def) {
        error = QStringLiteral("没有这个数据表：") + table;
        return nullptr;
    }
    if (!hasColumn(*def, column)) {
        error = QStringLiteral("数据表 %1 没有字段：%2").arg(table, column);
        return nullptr;
    }
    return def;
}

QString largestLike(
    Connection &connection, const QString &table, const QString &column, const QString &stem)
{
    return connection.firstText(
        QStringLiteral("select max(%1) as sn from %2 where %1 like ?").arg(column, table),
        { stem + QLatin1Char('%') });
}

// The extra tables whose numbers count when numbering a kind.
QList<QPair<QString, QString>> extraNumberSources(const QString &prefix)
{
    if (prefix == QLatin1String("XS"))
        return { { QStringLiteral("jxc_posxssp"), QStringLiteral("gl_djh") },
            { QStringLiteral("jxc_lsxssptemp"), QStringLiteral("gl_djh") } };
    // The till keeps its returns with its sales.
    if (prefix == QLatin1String("XT"))
        return { { QStringLiteral("jxc_posthsp"), QStringLiteral("gl_djh") },
            { QStringLiteral("jxc_posxssp"), QStringLiteral("gl_djh") } };
    if (prefix == QLatin1String("YF") || prefix == QLatin1String("FK")
        || prefix == QLatin1String("YS") || prefix == QLatin1String("SK"))
        return { { QStringLiteral("jxc_ysyfk_dj"), QStringLiteral("gl_djh") } };
    return {};
}

} // namespace

QString numbersExhaustedText(const QString &stem)
{
    return QStringLiteral("单据号 %1 当天已用完（最多 99999 张），请更换单据日期！").arg(stem);
}

Result<QString> nextMasterCode(Connection &connection, const QString &table, const QString &column)
{
    QString error;
    if (!checkedTable(table, column, error))
        return Outcome::refused(error);
    const QString largest
        = connection.firstText(QStringLiteral("select max(%1) as sn from %2").arg(column, table));
    if (largest.isEmpty())
        return QStringLiteral("100001");
    return QString::number(largest.toLongLong() + 1);
}

Result<QString> nextDocumentNumber(Connection &connection, const QString &table,
    const QString &column, const QString &prefix, QDate date)
{
    QString error;
    if (!checkedTable(table, column, error))
        return Outcome::refused(error);
    if (!date.isValid())
        return Outcome::refused(QStringLiteral("单据日期不正确！"));
    const QString stem = prefix + date.toString(QStringLiteral("yyMMdd"));
    QString largest = largestLike(connection, table, column, stem);
    for (const auto &[extraTable, extraColumn] : extraNumberSources(prefix)) {
        const QString candidate = largestLike(connection, extraTable, extraColumn, stem);
        if (candidate > largest)
            largest = candidate;
    }
    if (largest.size() < numberLength)
        return stem + QStringLiteral("10001");
    const int sequence = largest.mid(8, 5).toInt();
    if (sequence >= lastSequence)
        return Outcome::refused(numbersExhaustedText(stem));
    return stem + QString::number(sequence + 1);
}

Result<bool> isNumberTaken(Connection &connection, const QString &table, const QString &column,
    const QString &number, const QString &operatorName)
{
    QString error;
    const TableDef *def = checkedTable(table, column, error);
    if (!def)
        return Outcome::refused(error);
    const QString find = QStringLiteral("select %1 as sn from %2 where %1=?").arg(column, table);
    if (connection.exists(find, { number })) {
        if (!hasColumn(*def, QStringLiteral("a_name")))
            return true;
        if (!connection.exists(find + QStringLiteral(" and a_name=?"), { number, operatorName })
            && connection.exists(find + QStringLiteral(" and a_name<>?"), { number, operatorName }))
            return true;
    }
    const QString prefix = number.left(2);
    QStringList workTables;
    if (prefix == QLatin1String("XS"))
        workTables = { QStringLiteral("jxc_lsxssptemp"), QStringLiteral("jxc_posxssp") };
    else if (prefix == QLatin1String("XT"))
        workTables = { QStringLiteral("jxc_posthsp"), QStringLiteral("jxc_posxssp") };
    for (const QString &work : workTables)
        if (connection.exists(
                QStringLiteral("select gl_djh as sn from %1 where gl_djh=?").arg(work), { number }))
            return true;
    return false;
}

} // namespace medistock::core
