#include "reports/documentlines.h"

#include "shell/session.h"

#include <QHash>

namespace medistock::reports {

namespace {

// The goods attributes every line carries, from the goods (b) and their class (e).
const QString goodsColumns = QStringLiteral(
    "b.gg_name,b.color_name,b.g_bzq,b.g_sccs,b.g_yjlx,b.g_bz,b.g_jc,b.g_tym,b.hj_name,b.g_zczh,"
    "b.g_scxkz,b.g_cztj,b.g_ybbh,b.g_sj,b.g_lsj,e.gc_name");
const QString goodsJoins = QStringLiteral(
    " left join jxc_goods b on a.g_sn=b.g_sn left join jxc_goodsclass e on b.gc_sn=e.gc_sn");
// A sales line names its goods with the barcode remark and the gift mark.
const QString salesName
    = QStringLiteral("coalesce(b.g_name,'')||coalesce(a.g_tmbz,'')||coalesce(a.t_zp,'')");

// Lines of one table: its name, the column that links them to the header, and what a line adds
// to the goods columns.
struct LineSource
{
    const char *table;
    const char *link;
    const char *extra; // columns besides a.* and the goods columns; "" for none
    bool sales; // the sales name, the discounted price and only lines with ls_dzl > 0
};

const LineSource saleLines { "jxc_lsxssp", "gl_djh", "a.ls_taxdj*a.ls_dzl as sj", true };
const LineSource orderLines { "jxc_xssp", "gl_djh", "a.ls_taxdj*a.ls_dzl as sj", true };
const LineSource returnLines { "jxc_xsthsp", "gl_djh", "a.th_taxdj*a.th_dzl as sj", false };
const LineSource receiptLines { "jxc_jhsp", "j_sn", "", false };
const LineSource purchaseReturnLines { "jxc_thsp", "gl_djh", "", false };
const LineSource purchaseOrderLines { "jxc_cgsp", "gl_djh", "", false };
const LineSource transferLines { "jxc_dbsp", "gl_djh", "a.db_sl*b.g_sj as sjje", false };
// Lines without a unit of their own print the goods' base unit; loss and overflow lines share
// one form and name their figures alike (sl, dj, zje).
const LineSource splitLines { "jxc_cfsp", "gl_djh", "b.dw_name", false };
const LineSource bundleLines { "jxc_kbsp", "gl_djh", "b.dw_name", false };
const LineSource lossLines { "jxc_bssp", "gl_djh",
    "b.dw_name,a.bs_sl as sl,a.bs_dj as dj,a.bs_zje as zje", false };
const LineSource overflowLines { "jxc_bysp", "gl_djh",
    "b.dw_name,a.by_sl as sl,a.by_dj as dj,a.by_zje as zje", false };
const LineSource countLines { "jxc_kcpdsp", "gl_djh", "b.dw_name,a.pd_sl-a.kc_sl as yksl", false };
const LineSource loanLines { "jxc_khjhsp", "gl_djh", "b.dw_name", false };

// By the number's prefix for the four documents whose lines the prefix decides, else by key.
const LineSource *sourceOf(const QString &key, const QString &number)
{
    const QString prefix = number.left(2).toUpper();
    if (prefix == QLatin1String("XS"))
        return &saleLines;
    if (prefix == QLatin1String("XT"))
        return &returnLines;
    if (prefix == QLatin1String("CJ"))
        return &receiptLines;
    if (prefix == QLatin1String("CT"))
        return &purchaseReturnLines;
    static const QHash<QString, const LineSource *> byKey {
        { QStringLiteral("spxs"), &saleLines },
        { QStringLiteral("xsth"), &returnLines },
        { QStringLiteral("xshh"), &returnLines },
        { QStringLiteral("cgjh"), &receiptLines },
        { QStringLiteral("cgth"), &purchaseReturnLines },
        { QStringLiteral("cgd"), &purchaseOrderLines },
        { QStringLiteral("spdd"), &orderLines },
        { QStringLiteral("kcdb"), &transferLines },
        { QStringLiteral("spcf"), &splitLines },
        { QStringLiteral("spkb"), &bundleLines },
        { QStringLiteral("spbs"), &lossLines },
        { QStringLiteral("spby"), &overflowLines },
        { QStringLiteral("kcpd"), &countLines },
        { QStringLiteral("khjh"), &loanLines },
    };
    return byKey.value(key);
}

// "打印顺序" (cs_dysx): 0 as entered, 1 by goods code, 2 by goods name.
QString orderBy(const shell::Session &session, bool merged)
{
    switch (session.params().integer("cs_dysx")) {
    case 1:
        return QStringLiteral(" order by a.g_sn");
    case 2:
        return merged ? QStringLiteral(" order by max(b.g_name),a.g_sn")
                      : QStringLiteral(" order by b.g_name,a.id");
    default:
        return merged ? QStringLiteral(" order by min(a.id)") : QStringLiteral(" order by a.id");
    }
}

QString linesSql(const shell::Session &session, const LineSource &source)
{
    QString sql = QStringLiteral("select a.*,%1 as g_name,")
                      .arg(source.sales ? salesName : QStringLiteral("b.g_name"));
    if (*source.extra)
        sql += QString::fromLatin1(source.extra) + QLatin1Char(',');
    sql += goodsColumns + QStringLiteral(" from ") + QString::fromLatin1(source.table)
        + QStringLiteral(" a") + goodsJoins + QStringLiteral(" where a.")
        + QString::fromLatin1(source.link) + QStringLiteral("=?");
    if (source.sales)
        sql += QStringLiteral(" and a.ls_dzl>0");
    return sql + orderBy(session, false);
}

// One line per goods: quantities and amounts summed, prices and the rest the largest.
QString mergedSalesSql(const shell::Session &session)
{
    QString maxima;
    for (const QString &column : goodsColumns.split(QLatin1Char(',')))
        maxima += QStringLiteral(",max(%1) as %2").arg(column, column.section(QLatin1Char('.'), 1));
    return QStringLiteral(
               "select a.g_sn,max(%1) as g_name,sum(a.ls_sl) as ls_sl,sum(a.ls_je) as "
               "ls_je,sum(a.ls_zje) as ls_zje,sum(a.ls_taxje) as ls_taxje,max(a.ls_dzl) "
               "as ls_dzl,max(a.ls_dj) as ls_dj,max(a.ls_taxdj) as ls_taxdj,max(a.ls_tax) "
               "as ls_tax,max(a.a_name) as a_name,max(a.gl_djh) as gl_djh,max(a.dw_name) "
               "as dw_name,max(a.ls_taxdj*a.ls_dzl) as sj,max(a.ls_lsj) as ls_lsj,"
               "min(a.id) as id")
               .arg(salesName)
        + maxima + QStringLiteral(" from jxc_lsxssp a") + goodsJoins
        + QStringLiteral(" where a.gl_djh=? and a.ls_dzl>0 group by a.g_sn")
        + orderBy(session, true);
}

const QString posLinesSql = QStringLiteral(
    "select a.g_sn,a.pos_dj,a.pos_dzl,a.pos_sl,a.pos_zje,a.pos_dj*a.pos_dzl as zhdj,b.g_name,"
    "a.dw_name,a.t_zp,a.t_ph,a.t_yxq,b.gg_name,c.* from jxc_posxssp a,jxc_goods b,jxc_posxsd c "
    "where a.g_sn=b.g_sn and a.gl_djh=c.gl_djh and a.gl_djh=? order by a.id");

} // namespace

QString linesDatasetName()
{
    return QStringLiteral("Lines");
}

DataSet documentLines(const shell::Session &session, const QString &key, const QString &number,
    const QString &templateName)
{
    if (key.startsWith(QLatin1String("pos")))
        return readDataSet(session.db(), linesDatasetName(), posLinesSql, { number });
    const LineSource *source = sourceOf(key, number);
    if (!source)
        return DataSet { linesDatasetName(), {}, {} };
    const bool merged = source == &saleLines
        && (templateName == QLatin1String("spxs3") || session.params().integer("cs_employts") != 0);
    return readDataSet(session.db(), linesDatasetName(),
        merged ? mergedSalesSql(session) : linesSql(session, *source), { number });
}

} // namespace medistock::reports
