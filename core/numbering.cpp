#include "core/numbering.h"

#include "core/connection.h"
#include "core/schemacatalogue.h"

namespace medistock::core {

namespace {

const qsizetype numberLength = 13;
const int lastSequence = 99999;

// The master-code columns: each list's own code, numbered from "100001". Only these are numbered,
// so that no other column (a name, a password) is ever read through the numbering.
struct CodeColumn
{
    const char *table;
    const char *column;
};
constexpr CodeColumn codeColumns[]
    = { { "jxc_xtzt", "zt_sn" }, { "jxc_admin", "a_sn" }, { "jxc_role", "r_sn" },
          { "jxc_goods", "g_sn" }, { "jxc_khxx", "kh_sn" }, { "jxc_ghsxx", "ghs_sn" },
          { "jxc_ckxx", "ck_sn" }, { "jxc_user", "u_sn" }, { "jxc_hyxx", "hy_sn" },
          { "jxc_hyfl", "hl_sn" }, { "jxc_hyyh", "hh_sn" }, { "jxc_hyczzs", "hs_sn" },
          { "jxc_zpxx", "zp_sn" }, { "jxc_dw", "dw_sn" }, { "jxc_ggxh", "gg_sn" },
          { "jxc_color", "color_sn" }, { "jxc_yjlx", "lx_sn" }, { "jxc_tym", "tym_sn" },
          { "jxc_hjxx", "hj_sn" }, { "jxc_gspcs", "gsp_sn" }, { "jxc_dept", "de_sn" },
          { "jxc_khtype", "kt_sn" }, { "jxc_ghstype", "gt_sn" }, { "jxc_zone", "z_sn" },
          { "jxc_fkfs", "fk_sn" }, { "jxc_kdgs", "kg_sn" }, { "jxc_yhzh", "yh_sn" },
          { "jxc_khhtgl", "ht_sn" }, { "jxc_fd", "fd_sn" }, { "jxc_yghmc", "u_sn" } };

// The document numbers: each kind's prefix with the table (and number column) that keeps it.
// The money ledger jxc_ysyfk numbers the rows that registrations write under their own kinds;
// the till's sales and returns share XS and XT with the back office's; gifts given away are ZS.
struct NumberedTable
{
    const char *prefix;
    const char *table;
    const char *column;
};
constexpr NumberedTable numberedTables[] = { { "CP", "jxc_cgplan", "gl_djh" },
    { "CP", "jxc_fpdjb", "gl_djh" }, { "CD", "jxc_cgd", "gl_djh" }, { "CJ", "jxc_jhd", "j_sn" },
    { "CT", "jxc_thd", "gl_djh" }, { "RK", "jxc_rkd", "gl_djh" }, { "RK", "jxc_crk", "gl_djh" },
    { "CK", "jxc_ckd", "gl_djh" }, { "CK", "jxc_crk", "gl_djh" }, { "XD", "jxc_xsd", "gl_djh" },
    { "XS", "jxc_lsxsd", "gl_djh" }, { "XT", "jxc_xsthd", "gl_djh" },
    { "XP", "jxc_fpdjb", "gl_djh" }, { "DB", "jxc_kcdbd", "gl_djh" },
    { "PD", "jxc_kcpd", "gl_djh" }, { "BS", "jxc_bsd", "gl_djh" }, { "BY", "jxc_byd", "gl_djh" },
    { "CF", "jxc_cfd", "gl_djh" }, { "KB", "jxc_kbd", "gl_djh" }, { "JH", "jxc_khjh", "gl_djh" },
    { "HH", "jxc_khjhsp", "gl_djh" }, { "YS", "jxc_ysyfk_dj", "gl_djh" },
    { "SK", "jxc_ysyfk_dj", "gl_djh" }, { "YF", "jxc_ysyfk_dj", "gl_djh" },
    { "FK", "jxc_ysyfk_dj", "gl_djh" }, { "YS", "jxc_ysyfk", "gl_djh" },
    { "SK", "jxc_ysyfk", "gl_djh" }, { "YF", "jxc_ysyfk", "gl_djh" },
    { "FK", "jxc_ysyfk", "gl_djh" }, { "XJ", "jxc_xjyh", "gl_djh" }, { "XC", "jxc_xjyh", "gl_djh" },
    { "XZ", "jxc_xjyh", "gl_djh" }, { "FY", "jxc_yyfy", "gl_djh" }, { "SR", "jxc_yyfy", "gl_djh" },
    { "DH", "jxc_dhd", "gl_djh" }, { "XF", "jxc_hyxf", "gl_djh" }, { "SM", "jxc_smshy", "gl_djh" },
    { "CL", "jxc_cljcd", "gl_djh" }, { "JX", "jxc_jxqd", "gl_djh" },
    { "XS", "jxc_posxsd", "gl_djh" }, { "XT", "jxc_posxsd", "gl_djh" },
    { "ZS", "jxc_zsd", "gl_djh" }, { "JC", "jxc_cljcd", "gl_djh" },
    { "QC", "jxc_goodslist", "gl_djh" } };

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

bool isCodeColumn(const QString &table, const QString &column)
{
    for (const CodeColumn &known : codeColumns)
        if (table == str(known.table) && column == str(known.column))
            return true;
    return false;
}

// Whether the table keeps numbers under the prefix; an empty prefix asks for any prefix.
bool isNumberedTable(const QString &table, const QString &column, const QString &prefix)
{
    for (const NumberedTable &known : numberedTables)
        if (table == str(known.table) && column == str(known.column)
            && (prefix.isNull() || prefix == str(known.prefix)))
            return true;
    return false;
}

bool isKnownPrefix(const QString &prefix)
{
    for (const NumberedTable &known : numberedTables)
        if (prefix == str(known.prefix))
            return true;
    return false;
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

QString unknownCodeColumnText(const QString &table, const QString &column)
{
    return QStringLiteral("%1.%2 不是基础资料的编号字段，不能取下一个编号！").arg(table, column);
}

QString unknownPrefixText(const QString &prefix)
{
    return QStringLiteral("没有这种单据号前缀：%1").arg(prefix);
}

QString unknownNumberColumnText(const QString &table, const QString &column)
{
    return QStringLiteral("%1.%2 不是单据号字段！").arg(table, column);
}

Result<QString> nextMasterCode(Connection &connection, const QString &table, const QString &column)
{
    if (!isCodeColumn(table, column))
        return Outcome::refused(unknownCodeColumnText(table, column));
    const QString largest
        = connection.firstText(QStringLiteral("select max(%1) as sn from %2").arg(column, table));
    if (largest.isEmpty())
        return QStringLiteral("100001");
    return QString::number(largest.toLongLong() + 1);
}

Result<QString> nextDocumentNumber(Connection &connection, const QString &table,
    const QString &column, const QString &prefix, QDate date)
{
    if (!isKnownPrefix(prefix))
        return Outcome::refused(unknownPrefixText(prefix));
    if (!isNumberedTable(table, column, prefix))
        return Outcome::refused(
            QStringLiteral("单据号前缀 %1 不用于 %2.%3！").arg(prefix, table, column));
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
    if (!isNumberedTable(table, column, QString()))
        return Outcome::refused(unknownNumberColumnText(table, column));
    const TableDef *def = findTable(table);
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
