#include "reports/documentheaders.h"

#include "accounts/ledger.h"
#include "core/capitals.h"
#include "core/connection.h"
#include "core/rounding.h"
#include "reports/formats.h"
#include "reports/texts.h"
#include "shell/session.h"

#include <QDateTime>
#include <QVariant>

#include <span>

namespace medistock::reports {

namespace {

// How a column's value becomes a variable's text.
// Amount: fixed to the amount decimals of the parameters (the handover slip's money).
enum class Shape { Text, Number, Money, Amount, SaleDate, Positive };

struct Variable
{
    const char *name;
    const char *column;
    Shape shape = Shape::Text;
};

// Where a document's total comes from.
enum class Total { None, Columns, SaleLines, TransferAtSalePrice };

struct HeaderSource
{
    const char *key;
    const char *sql; // one "?" for the number
    const char *status;
    std::span<const Variable> variables;
    Total total = Total::None;
    const char *due = "";
    const char *paid = "";
    const char *balanceDate = ""; // set for the customer documents that print khqk, ljqkje, yf2
    bool positive = false; // amounts stored negative print positive
    bool byId = false; // the number is the row's id (the handover), bound as an integer
    const char *kind = ""; // bound as a second "?" when set: the registration kind of the form
};

#define CUSTOMER                                                                                   \
    { "khName", "kh_name" }, { "khLxr", "kh_lxr" }, { "khTele", "kh_tele" },                       \
        { "khAddress", "kh_address" },                                                             \
    {                                                                                              \
        "khNote", "kh_note"                                                                        \
    }
#define SUPPLIER                                                                                   \
    { "ghsName", "ghs_name" }, { "ghsLxr", "ghs_lxr" }, { "ghsTele", "ghs_tele" },                 \
    {                                                                                              \
        "ghsAddress", "ghs_address"                                                                \
    }

const Variable receipt[] = { { "ckName", "ck_name" }, { "jhDate", "j_jhrq" }, { "uName", "u_name" },
    { "Kmmc", "j_kmmc" }, { "Note", "j_note" }, { "gldjh2", "j_sn2" },
    { "yunfei", "j_yf", Shape::Number }, { "baozfei", "j_bzf", Shape::Number },
    { "fpno", "j_fpno" }, { "checker", "j_checker" }, { "chkrq", "j_chkrq" },
    { "xxyh", "j_yhje", Shape::Money }, { "xxyf", "j_yfje", Shape::Money },
    { "xxsf", "j_sfje", Shape::Money }, { "aName", "a_name" }, SUPPLIER };

const Variable purchaseReturn[] = { { "ckName", "ck_name" }, { "jhDate", "th_thrq" },
    { "uName", "u_name" }, { "Kmmc", "th_kmmc" }, { "Note", "th_note" },
    { "checker", "th_checker" }, { "chkrq", "th_chkrq" }, { "aName", "a_name" }, SUPPLIER };

const Variable sale[] = { { "ckName", "ck_name" }, { "jhDate", "ls_xsrq", Shape::SaleDate },
    { "Note", "ls_note" }, { "gldjh2", "gl_djh2" }, { "yunfei", "ls_yf", Shape::Number },
    { "baozfei", "ls_bzf", Shape::Number }, { "fpno", "ls_fpno" }, { "checker", "ls_checker" },
    { "chkrq", "ls_chkrq" }, { "uName", "u_name" }, { "Kmmc", "ls_kmmc" },
    { "xxyh", "ls_yhje", Shape::Money }, { "xxyf", "ls_yfje", Shape::Money },
    { "xxsf", "ls_sfje", Shape::Money }, { "aName", "a_name" }, CUSTOMER };

const Variable salesReturn[] = { { "ckName", "ck_name" }, { "jhDate", "th_xsrq" },
    { "Note", "th_note" }, { "uName", "u_name" }, { "Kmmc", "th_kmmc" },
    { "checker", "th_checker" }, { "chkrq", "th_chkrq" }, { "aName", "a_name" }, CUSTOMER };

const Variable purchaseOrder[] = { { "ckName", "ck_name" }, { "jhDate", "j_jhrq" },
    { "uName", "u_name" }, { "Kmmc", "j_kmmc" }, { "Note", "j_note" }, { "checker", "j_checker" },
    { "chkrq", "j_chkrq" }, { "xxyf", "j_yfje", Shape::Money }, { "xxsf", "j_sfje", Shape::Money },
    { "aName", "a_name" }, { "gldjh2", "gl_djh2" }, SUPPLIER };

const Variable salesOrder[] = { { "ckName", "ck_name" }, { "jhDate", "ls_xsrq" },
    { "Note", "ls_note" }, { "checker", "ls_checker" }, { "chkrq", "ls_chkrq" },
    { "uName", "u_name" }, { "Kmmc", "ls_kmmc" }, { "xxyf", "ls_yfje", Shape::Money },
    { "xxsf", "ls_sfje", Shape::Money }, { "aName", "a_name" }, { "gldjh2", "gl_djh2" }, CUSTOMER };

const Variable transfer[] = { { "jhDate", "db_dbrq" }, { "uName", "u_name" },
    { "ckOut", "ck_out_name" }, { "ckIn", "ck_in_name" }, { "Note", "db_note" },
    { "aName", "a_name" }, { "checker", "db_checker" }, { "chkrq", "db_chkrq" } };

const Variable split[] = { { "jhDate", "cf_cfrq" }, { "aName", "a_name" }, { "ckName", "ck_name" },
    { "uName", "u_name" }, { "gName", "g_name" }, { "gSn", "g_sn" }, { "dwName", "dw_name" },
    { "ggName", "gg_name" }, { "colorName", "color_name" }, { "tYxq", "t_yxq" }, { "tPh", "t_ph" },
    { "cfCbj", "cf_cbj", Shape::Number }, { "cfSl", "cf_sl", Shape::Number },
    { "cfZje", "cf_zje", Shape::Number }, { "cfNote", "cf_note" }, { "tSccs", "g_sccs" } };

const Variable bundle[] = { { "jhDate", "kb_kbrq" }, { "aName", "a_name" }, { "ckName", "ck_name" },
    { "uName", "u_name" }, { "gName", "g_name" }, { "gSn", "g_sn" }, { "dwName", "dw_name" },
    { "ggName", "gg_name" }, { "colorName", "color_name" }, { "tYxq", "t_yxq" }, { "tPh", "t_ph" },
    { "cfCbj", "kb_cbj", Shape::Number }, { "cfSl", "kb_sl", Shape::Number },
    { "cfZje", "kb_zje", Shape::Number }, { "cfNote", "kb_note" }, { "tSccs", "g_sccs" } };

const Variable loss[] = { { "jhDate", "bs_bsrq" }, { "aName", "a_name" }, { "ckName", "ck_name" },
    { "uName", "u_name" }, { "dNote", "bs_note" }, { "checker", "bs_checker" },
    { "chkrq", "bs_chkrq" } };

const Variable overflow[] = { { "jhDate", "by_byrq" }, { "aName", "a_name" },
    { "ckName", "ck_name" }, { "uName", "u_name" }, { "dNote", "by_note" },
    { "checker", "by_checker" }, { "chkrq", "by_chkrq" } };

const Variable stockTaking[] = { { "jhDate", "pd_rq" }, { "Note", "pd_note" },
    { "ckName", "ck_name" }, { "uName", "u_name" }, { "aName", "a_name" },
    { "checker", "pd_checker" }, { "chkrq", "pd_chkrq" } };

const Variable loan[] = { { "ckName", "ck_name" }, { "jhDate", "jh_rq" }, { "Note", "jh_note" },
    { "uName", "u_name" }, { "aName", "a_name" }, { "khName", "kh_name" }, { "khLxr", "kh_lxr" },
    { "khTele", "kh_tele" }, { "khAddress", "kh_address" } };

const Variable pos[] = { { "jhDate", "pos_xsrq" }, { "aName", "a_name" }, { "ckName", "ck_name" },
    { "Note", "pos_note" }, { "hybh", "hy_bh" }, { "hyname", "hy_name" },
    { "hyye", "hy_zhje", Shape::Number }, { "hyjf", "hy_zjf", Shape::Number },
    { "hymobile", "hy_mobile" }, { "zlje", "pos_zlje", Shape::Number },
    { "mlje", "pos_mlje", Shape::Number }, { "yhje", "pos_yhzkje", Shape::Number } };

const Variable handover[] = { { "jbTime", "jb_time" }, { "jbCurrUser", "jb_curruser" },
    { "jbNextUser", "jb_nextuser" }, { "bbskzje", "jb_bbskzje", Shape::Amount },
    { "sjyyk", "jb_sjyyk", Shape::Amount }, { "xfyyk", "jb_xfyyk", Shape::Amount },
    { "jjzje", "jb_jjzje", Shape::Amount }, { "jbNote", "jb_note" } };

// The registrations' figures: `je` is the row's amount the form names (see the header sources).
const Variable registration[] = { { "jhDate", "k_rq" }, { "partyName", "party_name" },
    { "fkfs", "k_fkfs" }, { "gldjh2", "gl_djh2" }, { "Note", "k_note" }, { "aName", "a_name" },
    { "uName", "u_name" }, { "checker", "k_checker" }, { "chkrq", "k_chkrq" },
    { "je", "je", Shape::Number }, { "mlje", "k_mlje", Shape::Number },
    { "yhje", "k_yhje", Shape::Number } };

#undef CUSTOMER
#undef SUPPLIER

// Each header is read with its warehouse (b), employee (c) and party (d) by left joins, so that
// a name that is gone leaves its variables empty.
const HeaderSource headerSources[] = {
    { "cgjh",
        "select a.*,b.ck_name,c.u_name,d.ghs_name,d.ghs_lxr,d.ghs_tele,d.ghs_address from jxc_jhd "
        "a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on a.u_sn=c.u_sn left join "
        "jxc_ghsxx d on a.ghs_sn=d.ghs_sn where a.j_sn=? order by a.j_status desc,a.id limit 1",
        "j_status", receipt, Total::Columns, "j_yfje", "j_sfje" },
    { "cgth",
        "select a.*,b.ck_name,c.u_name,d.ghs_name,d.ghs_lxr,d.ghs_tele,d.ghs_address from jxc_thd "
        "a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on a.u_sn=c.u_sn left join "
        "jxc_ghsxx d on a.ghs_sn=d.ghs_sn where a.gl_djh=? order by a.th_status desc,a.id limit 1",
        "th_status", purchaseReturn, Total::Columns, "th_yfje", "th_sfje" },
    { "spxs",
        "select a.*,b.ck_name,c.u_name,d.kh_name,d.kh_lxr,d.kh_tele,d.kh_address,d.kh_note from "
        "jxc_lsxsd a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on "
        "a.u_sn=c.u_sn left join jxc_khxx d on a.kh_sn=d.kh_sn where a.gl_djh=? order by "
        "a.ls_status desc,a.id limit 1",
        "ls_status", sale, Total::SaleLines, "ls_yfje", "ls_sfje", "ls_xsrq" },
    { "xsth",
        "select a.*,b.ck_name,c.u_name,d.kh_name,d.kh_lxr,d.kh_tele,d.kh_address,d.kh_note from "
        "jxc_xsthd a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on "
        "a.u_sn=c.u_sn left join jxc_khxx d on a.kh_sn=d.kh_sn where a.gl_djh=? order by "
        "a.th_status desc,a.id limit 1",
        "th_status", salesReturn, Total::Columns, "th_yfje", "th_sfje", "th_xsrq", true },
    { "cgd",
        "select a.*,b.ck_name,c.u_name,d.ghs_name,d.ghs_lxr,d.ghs_tele,d.ghs_address from jxc_cgd "
        "a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on a.u_sn=c.u_sn left join "
        "jxc_ghsxx d on a.ghs_sn=d.ghs_sn where a.gl_djh=? order by a.j_status desc,a.id limit 1",
        "j_status", purchaseOrder, Total::Columns, "j_yfje", "j_sfje" },
    { "spdd",
        "select a.*,b.ck_name,c.u_name,d.kh_name,d.kh_lxr,d.kh_tele,d.kh_address,d.kh_note from "
        "jxc_xsd a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on a.u_sn=c.u_sn "
        "left join jxc_khxx d on a.kh_sn=d.kh_sn where a.gl_djh=? order by a.ls_status "
        "desc,a.id limit 1",
        "ls_status", salesOrder, Total::Columns, "ls_yfje", "ls_sfje", "ls_xsrq" },
    { "kcdb",
        "select a.*,b.ck_name as ck_out_name,e.ck_name as ck_in_name,c.u_name from jxc_kcdbd a "
        "left join jxc_ckxx b on a.ck_out=b.ck_sn left join jxc_ckxx e on a.ck_in=e.ck_sn left "
        "join jxc_user c on a.u_sn=c.u_sn where a.gl_djh=? order by a.db_status desc,a.id limit 1",
        "db_status", transfer, Total::TransferAtSalePrice },
    { "spcf",
        "select a.*,a.cf_cbj*a.cf_sl as cf_zje,b.ck_name,c.u_name,g.g_name,g.dw_name,g.gg_name,"
        "g.color_name,g.g_sccs from jxc_cfd a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join "
        "jxc_user c on a.u_sn=c.u_sn left join jxc_goods g on a.g_sn=g.g_sn where a.gl_djh=? "
        "order by a.id desc limit 1",
        "cf_status", split },
    { "spkb",
        "select a.*,a.kb_cbj*a.kb_sl as kb_zje,b.ck_name,c.u_name,g.g_name,g.dw_name,g.gg_name,"
        "g.color_name,g.g_sccs from jxc_kbd a left join jxc_ckxx b on a.ck_sn=b.ck_sn left join "
        "jxc_user c on a.u_sn=c.u_sn left join jxc_goods g on a.g_sn=g.g_sn where a.gl_djh=? "
        "order by a.id desc limit 1",
        "kb_status", bundle },
    { "spbs",
        "select a.*,b.ck_name,c.u_name from jxc_bsd a left join jxc_ckxx b on a.ck_sn=b.ck_sn "
        "left join jxc_user c on a.u_sn=c.u_sn where a.gl_djh=? order by a.bs_status desc,a.id "
        "limit 1",
        "bs_status", loss },
    { "spby",
        "select a.*,b.ck_name,c.u_name from jxc_byd a left join jxc_ckxx b on a.ck_sn=b.ck_sn "
        "left join jxc_user c on a.u_sn=c.u_sn where a.gl_djh=? order by a.by_status desc,a.id "
        "limit 1",
        "by_status", overflow },
    { "kcpd",
        "select a.*,b.ck_name,c.u_name from jxc_kcpd a left join jxc_ckxx b on a.ck_sn=b.ck_sn "
        "left join jxc_user c on a.u_sn=c.u_sn where a.gl_djh=? order by a.pd_status desc,a.id "
        "limit 1",
        "pd_status", stockTaking },
    { "khjh",
        "select a.*,b.ck_name,c.u_name,d.kh_name,d.kh_lxr,d.kh_tele,d.kh_address from jxc_khjh a "
        "left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_user c on a.u_sn=c.u_sn left join "
        "jxc_khxx d on a.kh_sn=d.kh_sn where a.gl_djh=? order by a.jh_status desc,a.id limit 1",
        "jh_status", loan },
    { "posxsd",
        "select a.*,b.ck_name,h.hy_bh,h.hy_name,h.hy_zhje,h.hy_zjf,h.hy_mobile from jxc_posxsd a "
        "left join jxc_ckxx b on a.ck_sn=b.ck_sn left join jxc_hyxx h on a.hy_sn=h.hy_sn where "
        "a.gl_djh=? order by a.id limit 1",
        "", pos, Total::Columns, "pos_yfje", "pos_sfje" },
    { "jbxp", "select a.* from jxc_jbgl a where a.id=?", "", handover, Total::None, "", "", "",
        false, true },
    // A registration with its salesman (c) and party (d), only under its own kind.
    { "ysyfysk",
        "select a.*,a.k_yfje as je,c.u_name,d.kh_name as party_name from jxc_ysyfk_dj a left join "
        "jxc_user c on a.u_sn=c.u_sn left join jxc_khxx d on a.k_ghskh=d.kh_sn where a.gl_djh=? "
        "and a.k_djlx=? order by a.id limit 1",
        "", registration, Total::Columns, "je", "k_sfje", "", false, false, "YS" },
    { "ysyfskd",
        "select a.*,a.k_sfje as je,c.u_name,d.kh_name as party_name from jxc_ysyfk_dj a left join "
        "jxc_user c on a.u_sn=c.u_sn left join jxc_khxx d on a.k_ghskh=d.kh_sn where a.gl_djh=? "
        "and a.k_djlx=? order by a.id limit 1",
        "", registration, Total::Columns, "je", "k_sfje", "", false, false, "SK" },
    { "ysyfyfk",
        "select a.*,a.k_yfje as je,c.u_name,d.ghs_name as party_name from jxc_ysyfk_dj a left "
        "join jxc_user c on a.u_sn=c.u_sn left join jxc_ghsxx d on a.k_ghskh=d.ghs_sn where "
        "a.gl_djh=? and a.k_djlx=? order by a.id limit 1",
        "", registration, Total::Columns, "je", "k_sfje", "", false, false, "YF" },
    { "ysyffkd",
        "select a.*,a.k_sfje as je,c.u_name,d.ghs_name as party_name from jxc_ysyfk_dj a left "
        "join jxc_user c on a.u_sn=c.u_sn left join jxc_ghsxx d on a.k_ghskh=d.ghs_sn where "
        "a.gl_djh=? and a.k_djlx=? order by a.id limit 1",
        "", registration, Total::Columns, "je", "k_sfje", "", false, false, "FK" },
};

// xshh prints a customer return, the receipts print a POS document.
QString sourceKey(const QString &key)
{
    if (key == QLatin1String("xshh"))
        return QStringLiteral("xsth");
    if (key == QLatin1String("posxp") || key == QLatin1String("posxp58"))
        return QStringLiteral("posxsd");
    if (key == QLatin1String("jbxp58"))
        return QStringLiteral("jbxp");
    return key;
}

const HeaderSource *sourceOf(const QString &key)
{
    const QString wanted = sourceKey(key);
    for (const HeaderSource &source : headerSources)
        if (wanted == QLatin1String(source.key))
            return &source;
    return nullptr;
}

QString shaped(const shell::Session &session, const QVariant &value, Shape shape)
{
    if (value.isNull())
        return QString();
    switch (shape) {
    case Shape::Number:
        return core::plainNumber(value.toDouble());
    case Shape::Positive:
        return core::plainNumber(std::abs(value.toDouble()));
    case Shape::Money:
        return formatFloat(QStringLiteral("#.00"), value.toDouble());
    case Shape::Amount:
        return QString::number(value.toDouble(), 'f', session.params().amountDecimals());
    case Shape::SaleDate: {
        const QString text = value.toString();
        const QDateTime when = Value::text(text).toDateTime();
        if (!when.isValid())
            return text;
        return when.toString(session.params().flag("cs_cs014")
                ? QStringLiteral("yyyy-MM-dd HH:mm:ss")
                : QStringLiteral("yyyy-MM-dd"));
    }
    case Shape::Text:
        break;
    }
    return value.toString();
}

double number(const HeaderRow &header, const char *column)
{
    return *column ? header.row.value(QString::fromLatin1(column)).toDouble() : 0;
}

// The document's total: its due column, the sum of a sale's lines, or a transfer at the
// goods' preset sale prices.
double totalOf(const shell::Session &session, const HeaderSource &source, const QString &number,
    const HeaderRow &header)
{
    switch (source.total) {
    case Total::SaleLines:
        return session.db()
            .firstValue(QStringLiteral("select sum(ls_je) as je from jxc_lsxssp where gl_djh=?"),
                { number })
            .toDouble();
    case Total::TransferAtSalePrice:
        return session.db()
            .firstValue(
                QStringLiteral("select sum(a.db_sl*b.g_sj) as zje from jxc_dbsp a,jxc_goods "
                               "b where a.g_sn=b.g_sn and a.gl_djh=?"),
                { number })
            .toDouble();
    case Total::Columns:
        return reports::number(header, source.due);
    case Total::None:
        break;
    }
    return 0;
}

void setBalances(const shell::Session &session, const HeaderSource &source, const QString &number,
    const HeaderRow &header, double total, ReportData &data)
{
    const QString party = header.row.value(QStringLiteral("kh_sn")).toString();
    const double due = reports::number(header, source.due);
    const double paid = reports::number(header, source.paid);
    double before = 0;
    double after = 0;
    const QSqlRecord own = header.status == QLatin1String("1")
        ? session.db().firstRow(QStringLiteral("select k_ljje,k_yfje,k_sfje from jxc_ysyfk where "
                                               "gl_djh=? and k_type='kh' order by id limit 1"),
            { number })
        : QSqlRecord();
    if (!own.isEmpty()) {
        after = own.value(0).toDouble();
        before = after - (own.value(1).toDouble() - own.value(2).toDouble());
    } else {
        const QString date
            = header.row.value(QString::fromLatin1(source.balanceDate)).toString().left(10);
        before
            = accounts::ledgerBalanceAsOf(session.db(), accounts::PartyKind::Customer, party, date);
        after = before + due - paid;
    }
    const int places = session.params().amountDecimals();
    data.setText(QStringLiteral("khqk"), core::plainNumber(core::roundTo(before, places)));
    data.setText(QStringLiteral("ljqkje"), core::plainNumber(core::roundTo(after, places)));
    data.setText(QStringLiteral("yf2"), core::plainNumber(core::roundTo(before + total, places)));
}

} // namespace

HeaderRow readHeader(const shell::Session &session, const QString &key, const QString &number)
{
    HeaderRow header;
    const HeaderSource *source = sourceOf(key);
    if (!source)
        return header;
    QVariant bound = number;
    if (source->byId) {
        bool isId = false;
        bound = number.trimmed().toLongLong(&isId);
        if (!isId)
            return header;
    }
    QVariantList params { bound };
    if (*source->kind)
        params.append(QString::fromLatin1(source->kind));
    header.row = session.db().firstRow(QString::fromUtf8(source->sql), params);
    if (*source->status && !header.row.isEmpty())
        header.status = header.row.value(QString::fromLatin1(source->status)).toString();
    return header;
}

void setHeaderVariables(const shell::Session &session, const QString &key, const QString &number,
    const HeaderRow &header, ReportData &data)
{
    const HeaderSource *source = sourceOf(key);
    if (!source)
        return;
    data.setText(QStringLiteral("djh"), number);
    for (const Variable &variable : source->variables)
        data.setText(QString::fromLatin1(variable.name),
            shaped(
                session, header.row.value(QString::fromLatin1(variable.column)), variable.shape));
    const QString prefix = number.left(2).toUpper();
    if (QLatin1String(source->key) == QLatin1String("khjh"))
        data.setText(QStringLiteral("djName"),
            prefix == QLatin1String("HH") ? texts::loanReturnTitle() : texts::loanTitle());
    else if (QLatin1String(source->key) == QLatin1String("spbs"))
        data.setText(QStringLiteral("title"), texts::lossTitle());
    else if (QLatin1String(source->key) == QLatin1String("spby"))
        data.setText(QStringLiteral("title"), texts::overflowTitle());
    else if (QLatin1String(source->key) == QLatin1String("posxsd"))
        data.setText(QStringLiteral("sTitle"),
            prefix == QLatin1String("XT") ? texts::posReturnTitle() : texts::posSaleTitle());
    if (source->total == Total::None)
        return;
    const double sign = source->positive ? -1 : 1;
    const double total = totalOf(session, *source, number, header);
    data.setText(QStringLiteral("yf"), core::plainNumber(sign * total));
    data.setText(
        QStringLiteral("sf"), core::plainNumber(sign * reports::number(header, source->paid)));
    data.setText(QStringLiteral("dxje"), core::amountInCapitals(sign * total));
    if (*source->balanceDate)
        setBalances(session, *source, number, header, total, data);
}

} // namespace medistock::reports
