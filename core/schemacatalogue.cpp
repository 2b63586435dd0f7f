#include "core/schemacatalogue.h"

#include <QHash>

namespace medistock::core {

namespace {

constexpr ColumnDef registerColumns[] = {
    { "id", "Counter", "" },
    { "zt_sn", "varchar(8)", "帐套编号" },
    { "zt_name", "nvarchar(64)", "帐套名称" },
    { "zt_default", "bit", "默认帐套" },
    { "zt_forbid", "bit", "禁用" },
    { "zt_note", "nvarchar(200)", "备注" },
    { "zt_dbname", "varchar(64)", "数据库文件" },
    { "zt_dbpwd", "varchar(32)", "" },
};

constexpr TableDef registerDef { "jxc_xtzt", registerColumns, {} };

constexpr const char *kept[] = {
    "jxc_skin",
    "jxc_goodsclass",
    "jxc_goods",
    "jxc_color",
    "jxc_dw",
    "jxc_ggxh",
    "jxc_ckxx",
    "jxc_kcsp",
    "jxc_ghsxx",
    "jxc_import",
    "jxc_ghstype",
    "jxc_zone",
    "jxc_khxx",
    "jxc_khtype",
    "jxc_user",
    "jxc_admin",
    "jxc_company",
    "jxc_hyfl",
    "jxc_hyxx",
    "jxc_hyjbxx",
    "jxc_posprint",
    "jxc_gnb",
    "jxc_posfont",
    "jxc_backup",
    "jxc_role",
    "jxc_mryt",
    "jxc_xtcs",
};

// The goods ledger is read per goods and warehouse in date-then-id order by every posting, by
// document number on every uncheck, and by kind and date range by the statements; the money
// ledgers per party or account in date order.
constexpr IndexDef indexes[] = {
    { "jxc_goodslist", "g_sn,ck_sn,gl_kdrq,id" },
    { "jxc_goodslist", "gl_djh" },
    { "jxc_goodslist", "ck_sn,gl_kdrq" },
    { "jxc_goodslist", "gl_flag,gl_kdrq" },
    { "jxc_kcsp", "ck_sn,g_sn" },
    { "jxc_kcsp", "g_sn" },
    { "jxc_tkc", "g_sn,ck_sn,t_ph,t_yxq,t_scrq" },
    { "jxc_kcjs", "ck_sn,js_rq" },
    { "jxc_ysyfk", "k_type,k_ghskh,k_rq,id" },
    { "jxc_ysyfk", "gl_djh" },
    { "jxc_fpdjb", "fp_type,fp_ghskh,fp_rq,id" },
    { "jxc_fpdjb", "gl_djh" },
    { "jxc_xjyh", "xj_kmmc,xj_rq,id" },
    { "jxc_xjyh", "gl_djh" },
    { "jxc_log", "log_time" },
    { "jxc_goods", "g_sn" },
    { "jxc_khxx", "kh_sn" },
    { "jxc_ghsxx", "ghs_sn" },
    { "jxc_ckxx", "ck_sn" },
    { "jxc_admin", "a_name" },
    // documents: headers and lines by their number
    { "jxc_jhd", "j_sn" },
    { "jxc_jhsp", "j_sn" },
    { "jxc_thd", "gl_djh" },
    { "jxc_thsp", "gl_djh" },
    { "jxc_cgplan", "gl_djh" },
    { "jxc_cgplansp", "gl_djh" },
    { "jxc_cgd", "gl_djh" },
    { "jxc_cgsp", "gl_djh" },
    { "jxc_shdj", "gl_djh" },
    { "jxc_shsp", "gl_djh" },
    { "jxc_rkd", "gl_djh" },
    { "jxc_rksp", "gl_djh" },
    { "jxc_ckd", "gl_djh" },
    { "jxc_cksp", "gl_djh" },
    { "jxc_xsd", "gl_djh" },
    { "jxc_xssp", "gl_djh" },
    { "jxc_lsxsd", "gl_djh" },
    { "jxc_lsxssp", "gl_djh" },
    { "jxc_lsxssptemp", "gl_djh" },
    { "jxc_xsthd", "gl_djh" },
    { "jxc_xsthsp", "gl_djh" },
    { "jxc_khjh", "gl_djh" },
    { "jxc_khjhsp", "gl_djh" },
    { "jxc_kcdbd", "gl_djh" },
    { "jxc_dbsp", "gl_djh" },
    { "jxc_kcpd", "gl_djh" },
    { "jxc_kcpdsp", "gl_djh" },
    { "jxc_bsd", "gl_djh" },
    { "jxc_bssp", "gl_djh" },
    { "jxc_byd", "gl_djh" },
    { "jxc_bysp", "gl_djh" },
    { "jxc_cfd", "gl_djh" },
    { "jxc_cfsp", "gl_djh" },
    { "jxc_kbd", "gl_djh" },
    { "jxc_kbsp", "gl_djh" },
    { "jxc_ysyfk_dj", "gl_djh" },
    { "jxc_yyfy", "gl_djh" },
    { "jxc_posxsd", "gl_djh" },
    { "jxc_posxssp", "gl_djh" },
    { "jxc_posthd", "gl_djh" },
    { "jxc_posthsp", "gl_djh" },
    { "jxc_hyxsd", "gl_djh" },
    { "jxc_hyxssp", "gl_djh" },
    { "jxc_dhd", "gl_djh" },
    { "jxc_dhzp", "gl_djh" },
    { "jxc_cljcd", "gl_djh" },
    { "jxc_cljcsp", "gl_djh" },
    { "jxc_jxqd", "gl_djh" },
    { "jxc_jxqsp", "gl_djh" },
    // the till and its reports: POS documents by time, the ledger's POS rows by date, a return's
    // sale, the till's cash and handovers by time
    { "jxc_posxsd", "pos_xsrq" },
    { "jxc_goodslist", "gl_fdmc,gl_kdrq" },
    { "jxc_goodslist", "gl_djh2" },
    { "jxc_crk", "crk_rq" },
    { "jxc_jbgl", "jb_time" },
};

} // namespace

const TableDef &registerTable()
{
    return registerDef;
}

std::span<const char *const> keptTables()
{
    return kept;
}

std::span<const IndexDef> schemaIndexes()
{
    return indexes;
}

const TableDef *findTable(const QString &name)
{
    static const QHash<QString, const TableDef *> byName = [] {
        QHash<QString, const TableDef *> map;
        for (const TableDef &table : schemaTables())
            map.insert(QString::fromLatin1(table.name), &table);
        map.insert(QString::fromLatin1(registerDef.name), &registerDef);
        return map;
    }();
    return byName.value(name.toLower(), nullptr);
}

bool hasColumn(const TableDef &table, const QString &column)
{
    for (const ColumnDef &def : table.columns)
        if (column.compare(QLatin1String(def.name), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

QStringList columnNames(const TableDef &table)
{
    QStringList names;
    for (const ColumnDef &def : table.columns)
        names.append(QString::fromLatin1(def.name));
    return names;
}

} // namespace medistock::core
