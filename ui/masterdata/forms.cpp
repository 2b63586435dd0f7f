#include "ui/masterdata/forms.h"

#include "core/schemacatalogue.h"
#include "masterdata/kinds.h"
#include "ui/masterdata/texts.h"

namespace medistock::ui {

namespace {

QStringList names(std::initializer_list<const char *> columns)
{
    QStringList list;
    for (const char *column : columns)
        list.append(QString::fromLatin1(column));
    return list;
}

ListForm goodsForm()
{
    return {
        names({ "g_sn", "g_name", "g_jm", "gg_name", "dw_name", "g_sccs", "color_name", "g_sptm",
            "g_jj", "g_sj", "g_lsj", "g_kc", "g_jy" }),
        {
            { mdtexts::basicPage,
                names({ "g_sn", "g_name", "g_jm", "g_tym", "g_jc", "gc_sn", "gg_name", "dw_name",
                    "g_yjlx", "g_sccs", "color_name", "g_sptm", "hj_name", "ghs_sn", "g_bzq",
                    "g_clxs", "g_qxlx", "g_bz", "g_jy", "g_iszp" }),
                {} },
            { mdtexts::pricePage,
                names({ "g_jj", "g_sj", "g_sj1", "g_sj2", "g_sj3", "g_sj4", "g_sj5", "g_lsj",
                    "g_hyj", "g_dzll", "g_tj", "g_ks", "g_js", "g_xzsl", "g_zpjf", "g_tsjf",
                    "g_tclb", "g_tc", "g_tjsp", "g_tjqx", "g_dxdz", "g_gdcbj" }),
                {} },
            { mdtexts::gspPage,
                names({ "gsp_name", "g_cztj", "g_yhlx", "g_zczh", "g_scxkz", "g_sykz", "g_iscf",
                    "g_isjk", "g_dwpz", "g_dzjgm" }),
                {} },
            { mdtexts::stockPage, names({ "g_zdkc", "g_kc", "g_scjj" }), {} },
        },
        names({ "g_kc", "g_scjj" }),
        names({ "unit", "packsize", "dosage", "generic", "shelf", "gsp" }),
    };
}

ListForm customerForm()
{
    return {
        names({ "kh_sn", "kh_name", "kh_jm", "kh_lxr", "kh_tele", "kh_address", "kt_name", "z_name",
            "kh_uname", "ck_name", "kh_lwje", "kh_forbid" }),
        { { mdtexts::basicPage,
            names({ "kh_sn", "kh_name", "kh_jm", "kt_sn", "z_name", "ck_sn", "kh_lxr", "kh_tele",
                "kh_address", "kh_lwje", "kh_note", "kh_default", "kh_forbid" }),
            {} } },
        names({ "kh_lwje" }),
        names({ "customer-type", "zone", "payment", "express" }),
    };
}

ListForm supplierForm()
{
    return {
        names({ "ghs_sn", "ghs_name", "ghs_jm", "ghs_lxr", "ghs_tele", "ghs_address", "gt_name",
            "z_name", "ghs_xkzh", "ghs_xkrq", "ghs_gsp", "ghs_gsprq", "ghs_lwje", "ghs_forbid" }),
        {
            { mdtexts::basicPage,
                names({ "ghs_sn", "ghs_name", "ghs_jm", "gt_name", "z_name", "ck_sn", "ghs_lxr",
                    "ghs_tele", "ghs_address", "ghs_http", "ghs_fr", "ghs_frno", "ghs_khh",
                    "ghs_yhzh", "ghs_zczj", "ghs_lwje", "ghs_note", "ghs_default", "ghs_forbid" }),
                {} },
            { mdtexts::licencePage, {},
                { { "ghs_yyzzh", "ghs_yyrq" }, { "ghs_xkzh", "ghs_xkrq" },
                    { "ghs_gsp", "ghs_gsprq" }, { "ghs_gmp", "ghs_gmprq" },
                    { "ghs_ypjyxkz", "ghs_ypjyxkzrq" }, { "ghs_spjyxkz", "ghs_spjyxkzrq" },
                    { "ghs_ylqxxkz", "ghs_ylqxxkzrq" }, { "ghs_elbapz", "ghs_elbapzrq" },
                    { "ghs_zlrzqk", "ghs_zlrzrq" }, { "ghs_zlbzxy", "ghs_zlrq" },
                    { "ghs_wtsh", "ghs_wtrq" }, { "ghs_wtr", nullptr },
                    { "ghs_wtrno", nullptr } } },
        },
        names({ "ghs_lwje" }),
        names({ "supplier-type", "zone", "payment", "expense-type" }),
    };
}

ListForm warehouseForm()
{
    return {
        names({ "ck_sn", "ck_name", "ck_fzr", "ck_aname", "ck_tele", "ck_address", "ck_default",
            "ck_pos", "ck_note" }),
        { { mdtexts::basicPage,
            names({ "ck_sn", "ck_name", "ck_jm", "ck_fzr", "ck_tele", "ck_address", "ck_note",
                "ck_default", "ck_pos" }),
            {} } },
        {},
        names({ "shelf" }),
    };
}

ListForm employeeForm()
{
    return {
        names({ "u_sn", "u_name", "u_jm", "u_duty", "u_tele", "u_address", "u_tctxt", "u_tc",
            "u_zdlr", "ck_name", "u_jy" }),
        {
            { mdtexts::basicPage,
                names({ "u_sn", "u_name", "u_jm", "u_duty", "u_tele", "u_address", "ck_sn",
                    "u_note", "u_jy" }),
                {} },
            { mdtexts::commissionPage, names({ "u_tcfs", "u_tc", "u_zdlr" }), {} },
        },
        {},
        names({ "department", "expense-type" }),
    };
}

ListForm memberForm()
{
    return {
        names({ "hy_sn", "hy_bh", "hy_name", "hy_jm", "hl_name", "hy_mobile", "hy_jf", "hy_zjf",
            "hy_zhje", "hy_zje", "hy_cs", "hy_sr", "hy_jrrq", "hy_sj", "hy_status" }),
        { { mdtexts::basicPage,
              names({ "hy_sn", "hy_bh", "hy_name", "hy_jm", "hl_sn", "hh_sn", "hy_sex", "hy_sr",
                  "hy_mobile", "hy_tele", "hy_email", "hy_jrrq", "hy_dqrq", "hy_zjlx", "hy_zjhm",
                  "hy_dwzy", "hy_address", "hy_note", "hy_sj", "hy_status" }),
              {} },
            { mdtexts::memberFiguresPage,
                names({ "hy_jf", "hy_zjf", "hy_zhje", "hy_zje", "hy_cs", "hy_ye" }), {} } },
        names({ "hy_jf", "hy_zjf", "hy_zhje", "hy_zje", "hy_cs", "hy_ye" }),
        names({ "discount-scheme" }),
    };
}

// A member's columns whose schema label says something else on the member screens.
QString memberCaption(const QString &column)
{
    if (column == QLatin1String("hl_sn") || column == QLatin1String("hl_name"))
        return mdtexts::memberLevel;
    if (column == QLatin1String("hh_sn"))
        return labelOf("jxc_hyyh", "hh_name");
    if (column == QLatin1String("hy_bh"))
        return mdtexts::memberCard;
    if (column == QLatin1String("hy_cs"))
        return mdtexts::memberVisits;
    if (column == QLatin1String("hy_status"))
        return mdtexts::memberCardActive;
    if (column == QLatin1String("hy_ye"))
        return mdtexts::memberRemainder;
    return QString();
}

// A small list shows its labelled columns, its mnemonic and, for expense types, the direction.
ListForm smallListForm(const masterdata::MasterKind &kind)
{
    QStringList columns;
    for (const core::ColumnDef &column :
        core::findTable(QString::fromLatin1(kind.table))->columns) {
        const QString name = QString::fromLatin1(column.name);
        const bool mnemonic = kind.mnemonicColumn && name == QLatin1String(kind.mnemonicColumn);
        if (*column.label || mnemonic || name == QLatin1String("fy_fx"))
            columns.append(name);
    }
    return { columns, { { QString(), columns, {} } }, {}, {} };
}

} // namespace

ListForm formOf(const masterdata::MasterKind &kind)
{
    const QString key = QString::fromLatin1(kind.key);
    if (key == QLatin1String("goods"))
        return goodsForm();
    if (key == QLatin1String("customer"))
        return customerForm();
    if (key == QLatin1String("supplier"))
        return supplierForm();
    if (key == QLatin1String("warehouse"))
        return warehouseForm();
    if (key == QLatin1String("employee"))
        return employeeForm();
    if (key == QLatin1String("member"))
        return memberForm();
    return smallListForm(kind);
}

QString labelOf(const char *table, const char *column)
{
    const core::TableDef *def = core::findTable(QString::fromLatin1(table));
    for (const core::ColumnDef &c : def->columns)
        if (qstrcmp(c.name, column) == 0)
            return QString::fromUtf8(c.label);
    return QString();
}

QString captionOf(const masterdata::MasterKind &kind, const QString &column)
{
    const QString table = QString::fromLatin1(kind.table);
    const bool ownCode = kind.codeColumn && column == QLatin1String(kind.codeColumn);
    if (ownCode)
        return labelOf(kind.table, kind.codeColumn);
    if (column == QLatin1String("ghs_sn") && table == QLatin1String("jxc_goods"))
        return mdtexts::supplier;
    if (column == QLatin1String("gc_sn"))
        return mdtexts::goodsClass;
    if (column == QLatin1String("kt_sn"))
        return labelOf("jxc_khtype", "kt_name");
    if (column == QLatin1String("ck_sn"))
        return labelOf("jxc_ckxx", "ck_name");
    if (column == QLatin1String("u_tcfs") || column == QLatin1String("g_tclb"))
        return mdtexts::commissionKind;
    if (column == QLatin1String("fy_fx"))
        return mdtexts::expenseDirection;
    if (table == QLatin1String("jxc_hyxx") && !memberCaption(column).isEmpty())
        return memberCaption(column);
    const QString label = labelOf(kind.table, column.toLatin1().constData());
    if (label.isEmpty() && kind.mnemonicColumn && column == QLatin1String(kind.mnemonicColumn))
        return mdtexts::mnemonic;
    return label.isEmpty() ? column : label;
}

QString typeOf(const masterdata::MasterKind &kind, const QString &column)
{
    for (const core::ColumnDef &c : core::findTable(QString::fromLatin1(kind.table))->columns)
        if (column == QLatin1String(c.name))
            return QString::fromLatin1(c.type);
    return QString();
}

} // namespace medistock::ui
