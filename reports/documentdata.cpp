#include "reports/documentdata.h"

#include "documents/texts.h"
#include "reports/documentheaders.h"
#include "reports/documentlines.h"
#include "reports/texts.h"
#include "shell/session.h"

namespace medistock::reports {

namespace {

struct PrintRow
{
    const char *key;
    const char *table;
    const char *number;
    const char *date;
    const char *templateName;
    const char *prefixes; // comma-separated
};

// The key is the template's name, except where the report folder names the form after the
// document ("kcdbd", "kcpdd", "cfd", "kbd", "bsby", "xsd").
constexpr PrintRow rows[] = {
    { "cgjh", "jxc_jhd", "j_sn", "j_jhrq", "cgjh", "CJ" },
    { "cgth", "jxc_thd", "gl_djh", "th_thrq", "cgth", "CT" },
    { "spxs", "jxc_lsxsd", "gl_djh", "ls_xsrq", "spxs", "XS" },
    { "xsth", "jxc_xsthd", "gl_djh", "th_xsrq", "xsth", "XT" },
    { "cgd", "jxc_cgd", "gl_djh", "j_jhrq", "cgd", "CD" },
    { "spdd", "jxc_xsd", "gl_djh", "ls_xsrq", "xsd", "XD" },
    { "kcdb", "jxc_kcdbd", "gl_djh", "db_dbrq", "kcdbd", "DB" },
    { "spcf", "jxc_cfd", "gl_djh", "cf_cfrq", "cfd", "CF" },
    { "spkb", "jxc_kbd", "gl_djh", "kb_kbrq", "kbd", "KB" },
    { "spbs", "jxc_bsd", "gl_djh", "bs_bsrq", "bsby", "BS" },
    { "spby", "jxc_byd", "gl_djh", "by_byrq", "bsby", "BY" },
    { "kcpd", "jxc_kcpd", "gl_djh", "pd_rq", "kcpdd", "PD" },
    { "khjh", "jxc_khjh", "gl_djh", "jh_rq", "khjh", "JH,HH" },
    { "xshh", "jxc_xsthd", "gl_djh", "th_xsrq", "xshh", "" },
    { "posxsd", "jxc_posxsd", "gl_djh", "pos_xsrq", "posxsd", "" },
    { "posxp", "jxc_posxsd", "gl_djh", "pos_xsrq", "posxp", "" },
    { "posxp58", "jxc_posxsd", "gl_djh", "pos_xsrq", "posxp58", "" },
    { "jbxp", "jxc_jbgl", "id", "jb_time", "jbxp", "" },
    { "jbxp58", "jxc_jbgl", "id", "jb_time", "jbxp58", "" },
    { "ysyfysk", "jxc_ysyfk_dj", "gl_djh", "k_rq", "ysyfysk", "YS" },
    { "ysyfskd", "jxc_ysyfk_dj", "gl_djh", "k_rq", "ysyfskd", "SK" },
    { "ysyfyfk", "jxc_ysyfk_dj", "gl_djh", "k_rq", "ysyfyfk", "YF" },
    { "ysyffkd", "jxc_ysyfk_dj", "gl_djh", "k_rq", "ysyffkd", "FK" },
};

const PrintRow *documentPrintOfTemplate(const QString &name)
{
    for (const PrintRow &row : rows)
        if (name == QLatin1String(row.templateName))
            return &row;
    return nullptr;
}

} // namespace

QList<DocumentPrint> documentPrints()
{
    QList<DocumentPrint> prints;
    for (const PrintRow &row : rows)
        prints.append({ QString::fromLatin1(row.key), QString::fromLatin1(row.table),
            QString::fromLatin1(row.number), QString::fromLatin1(row.date),
            QString::fromLatin1(row.templateName),
            QString::fromLatin1(row.prefixes).split(QLatin1Char(','), Qt::SkipEmptyParts) });
    return prints;
}

const DocumentPrint *documentPrint(const QString &key)
{
    static const QList<DocumentPrint> prints = documentPrints();
    for (const DocumentPrint &print : prints)
        if (print.key == key)
            return &print;
    return nullptr;
}

QString keyForNumber(const QString &number)
{
    const QString prefix = number.left(2).toUpper();
    for (const PrintRow &row : rows)
        if (QString::fromLatin1(row.prefixes).split(QLatin1Char(',')).contains(prefix))
            return QString::fromLatin1(row.key);
    return QString();
}

void addCompanyVariables(const shell::Session &session, ReportData &data)
{
    const shell::Company &company = session.company();
    const std::pair<const char *, QString> values[]
        = { { "comName", company.name }, { "comTele", company.tele }, { "comLxr", company.contact },
              { "comAddress", company.address } };
    for (const auto &[name, value] : values)
        if (!data.variables.contains(QString::fromLatin1(name)))
            data.setText(QString::fromLatin1(name), value);
}

QString keyForTemplate(const QString &templateName)
{
    QString base = templateName;
    while (!base.isEmpty() && base.back().isDigit() && !documentPrintOfTemplate(base))
        base.chop(1);
    const PrintRow *row = documentPrintOfTemplate(base);
    return row ? QString::fromLatin1(row->key) : QString();
}

Result<ReportData> documentData(const shell::Session &session, const QString &key,
    const QString &number, const QString &templateName)
{
    if (!documentPrint(key))
        return Outcome::refused(texts::unknownKey(key));
    const HeaderRow header = readHeader(session, key, number);
    if (header.row.isEmpty())
        return Outcome::refused(documents::texts::documentMissing(number));
    ReportData data;
    addCompanyVariables(session, data);
    setHeaderVariables(session, key, number, header, data);
    data.datasets.append(documentLines(session, key, number, templateName));
    return data;
}

} // namespace medistock::reports
