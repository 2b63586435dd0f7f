#include "reports/samples.h"

#include "core/capitals.h"
#include "core/rounding.h"

#include <QHash>
#include <QRegularExpression>

#include <cmath>

namespace medistock::reports {

namespace {

void collectFields(const TemplateNode &node, QHash<QString, QStringList> &fields)
{
    // Lines."g_name", <Lines.g_name>, and a memo's DataSet/DataField.
    static const QRegularExpression reference(
        QStringLiteral("([A-Za-z_][A-Za-z0-9_]*)\\.(?:\"([^\"]+)\"|([A-Za-z_][A-Za-z0-9_]*)>)"));
    for (const auto &[name, value] : node.properties()) {
        if (name != QLatin1String("Text") && name != QLatin1String("Memo.Text")
            && name != QLatin1String("Expression") && name != QLatin1String("Condition"))
            continue;
        for (auto it = reference.globalMatch(value); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            const QString field
                = match.captured(2).isEmpty() ? match.captured(3) : match.captured(2);
            QStringList &list = fields[match.captured(1)];
            if (!list.contains(field))
                list.append(field);
        }
    }
    const QString set = node.property(QStringLiteral("DataSet"));
    const QString field = node.property(QStringLiteral("DataField"));
    if (!set.isEmpty() && !field.isEmpty() && !fields[set].contains(field))
        fields[set].append(field);
    for (const auto &child : node.children())
        collectFields(*child, fields);
}

const char *const goodsNames[]
    = { "阿莫西林胶囊", "板蓝根颗粒", "复方甘草片", "维生素C片", "感冒灵颗粒", "布洛芬缓释胶囊",
          "头孢克肟分散片", "藿香正气水", "蒙脱石散", "氯雷他定片", "阿奇霉素片", "六味地黄丸" };
const char *const packings[] = { "0.25g*24粒", "10g*20袋", "100片", "0.1g*100片", "10g*9袋",
    "0.3g*20粒", "0.1g*6片", "10ml*10支", "3g*10袋", "10mg*6片", "0.25g*6片", "200丸" };
const char *const makers[] = { "华北制药股份有限公司", "白云山和记黄埔中药有限公司",
    "北京同仁堂股份有限公司", "东北制药集团" };

bool endsWithAny(const QString &name, std::initializer_list<const char *> endings)
{
    for (const char *ending : endings)
        if (name.endsWith(QLatin1String(ending)))
            return true;
    return false;
}

double quantityOf(int row)
{
    return double((row * 7) % 19 + 1);
}

double priceOf(int row)
{
    return 3.5 + (row * 37 % 50) * 0.5;
}

QVariant fieldValue(const QString &field, int row)
{
    const QString f = field.toLower();
    const int n = row % 12;
    if (f == QLatin1String("g_name") || f == QLatin1String("gname"))
        return QString::fromUtf8(goodsNames[n]);
    if (f == QLatin1String("gg_name"))
        return QString::fromUtf8(packings[n]);
    if (f == QLatin1String("g_sccs"))
        return QString::fromUtf8(makers[n % 4]);
    if (f == QLatin1String("dw_name"))
        return n % 3 == 1 ? QStringLiteral("袋") : QStringLiteral("盒");
    if (f == QLatin1String("t_ph"))
        return QStringLiteral("B24%1").arg(n + 1, 2, 10, QLatin1Char('0'));
    if (f == QLatin1String("t_zp") || f == QLatin1String("g_tmbz"))
        return QString();
    if (f.endsWith(QLatin1String("sptm")))
        return QStringLiteral("69012345%1").arg(6700 + n);
    if (f == QLatin1String("gl_djh") || f == QLatin1String("djh"))
        return QStringLiteral("XS250314%1").arg(10001 + row);
    if (endsWithAny(f, { "_sn", "sn" }))
        return QString::number(200001 + row);
    if (f.contains(QLatin1String("yxq")))
        return QStringLiteral("2026-%1-30")
            .arg(n % 12 + 1 == 2 ? 6 : n % 12 + 1, 2, 10, QLatin1Char('0'));
    if (f.contains(QLatin1String("scrq")))
        return QStringLiteral("2024-%1-01").arg(n % 12 + 1, 2, 10, QLatin1Char('0'));
    if (f.endsWith(QLatin1String("rq"))
        || (f.startsWith(QLatin1String("u_")) && f.endsWith(QLatin1String("sj"))))
        return QStringLiteral("2025-03-%1").arg(row % 28 + 1, 2, 10, QLatin1Char('0'));
    if (f.contains(QLatin1String("dzl")))
        return 1.0;
    if (f == QLatin1String("lrl"))
        return 18.5;
    if (endsWithAny(f, { "sl", "_kc" }))
        return quantityOf(row);
    if (endsWithAny(f, { "dj", "sj", "cbj", "lsj", "jj", "_zj" }))
        return priceOf(row);
    if (endsWithAny(f, { "je", "zje", "lr", "zcb", "_yj", "kczje", "hz_kc", "hz_rksl" }))
        return quantityOf(row) * priceOf(row);
    if (f == QLatin1String("mc"))
        return row + 1;
    if (endsWithAny(f, { "_name", "name" }))
        return QStringLiteral("示例%1").arg(row + 1);
    return QStringLiteral("示例");
}

// The money a sample document's lines add up to, paid four fifths in cash, over a debt of 350.
void setSampleMoney(ReportData &data, int rows)
{
    double total = 0;
    for (int row = 0; row < rows; ++row)
        total += quantityOf(row) * priceOf(row);
    const double paid = std::round(total * 0.8);
    const QString yf = core::plainNumber(total);
    for (const char *name : { "yf", "je" })
        data.setText(QString::fromLatin1(name), yf);
    data.setText(QStringLiteral("xxyf"), QString::number(total, 'f', 2));
    data.setText(QStringLiteral("sf"), core::plainNumber(paid));
    data.setText(QStringLiteral("xxsf"), QString::number(paid, 'f', 2));
    data.setText(QStringLiteral("yf2"), core::plainNumber(350 + total));
    data.setText(QStringLiteral("ljqkje"), core::plainNumber(350 + total - paid));
    data.setText(QStringLiteral("dxje"), core::amountInCapitals(total));
}

QString variableValue(const QString &name)
{
    static const QHash<QString, QString> values {
        { QStringLiteral("comName"), QStringLiteral("仁和大药房") },
        { QStringLiteral("comTele"), QStringLiteral("0571-88886666") },
        { QStringLiteral("comLxr"), QStringLiteral("王经理") },
        { QStringLiteral("comAddress"), QStringLiteral("杭州市西湖区文三路100号") },
        { QStringLiteral("khName"), QStringLiteral("华康药店") },
        { QStringLiteral("khLxr"), QStringLiteral("李华") },
        { QStringLiteral("khTele"), QStringLiteral("13800138000") },
        { QStringLiteral("khAddress"), QStringLiteral("杭州市拱墅区湖墅南路8号") },
        { QStringLiteral("ghsName"), QStringLiteral("国药控股浙江有限公司") },
        { QStringLiteral("ghsLxr"), QStringLiteral("陈强") },
        { QStringLiteral("ghsTele"), QStringLiteral("0571-87654321") },
        { QStringLiteral("ghsAddress"), QStringLiteral("杭州市滨江区江南大道1号") },
        { QStringLiteral("partyName"), QStringLiteral("华康药店") },
        { QStringLiteral("djh"), QStringLiteral("XS25031410001") },
        { QStringLiteral("jhDate"), QStringLiteral("2025-03-14") },
        { QStringLiteral("chkrq"), QStringLiteral("2025-03-14") },
        { QStringLiteral("ckName"), QStringLiteral("主仓库") },
        { QStringLiteral("ckOut"), QStringLiteral("主仓库") },
        { QStringLiteral("ckIn"), QStringLiteral("门店仓库") },
        { QStringLiteral("uName"), QStringLiteral("张敏") },
        { QStringLiteral("aName"), QStringLiteral("admin") },
        { QStringLiteral("checker"), QStringLiteral("admin") },
        { QStringLiteral("Kmmc"), QStringLiteral("现金") },
        { QStringLiteral("fkfs"), QStringLiteral("现金") },
        { QStringLiteral("khqk"), QStringLiteral("350") },
        { QStringLiteral("xxyh"), QStringLiteral(".00") },
        { QStringLiteral("title"), QStringLiteral("商品报损单") },
        { QStringLiteral("djName"), QStringLiteral("借货") },
        { QStringLiteral("sTitle"), QStringLiteral("POS销售单") },
        { QStringLiteral("fyTitle"), QStringLiteral("费用单") },
        { QStringLiteral("xjTitle"), QStringLiteral("现金银行进款单") },
        { QStringLiteral("filter"), QStringLiteral("日期：2025-03-01 至 2025-03-31") },
        { QStringLiteral("hybh"), QStringLiteral("800012") },
        { QStringLiteral("hyname"), QStringLiteral("王芳") },
        { QStringLiteral("hymobile"), QStringLiteral("13900139000") },
        { QStringLiteral("hyye"), QStringLiteral("260") },
        { QStringLiteral("hyjf"), QStringLiteral("1530") },
        { QStringLiteral("zlje"), QStringLiteral("19.5") },
        { QStringLiteral("jbTime"), QStringLiteral("2025-03-14 18:00:00") },
        { QStringLiteral("jbCurrUser"), QStringLiteral("张敏") },
        { QStringLiteral("jbNextUser"), QStringLiteral("李华") },
        { QStringLiteral("gName"), QStringLiteral("阿莫西林胶囊") },
        { QStringLiteral("ggName"), QStringLiteral("0.25g*24粒") },
        { QStringLiteral("dwName"), QStringLiteral("盒") },
        { QStringLiteral("cfSl"), QStringLiteral("10") },
        { QStringLiteral("cfCbj"), QStringLiteral("12.5") },
        { QStringLiteral("cfZje"), QStringLiteral("125") },
        { QStringLiteral("tPh"), QStringLiteral("B2401") },
    };
    return values.value(name);
}

} // namespace

QHash<QString, QStringList> fieldsNamed(const ReportTemplate &report)
{
    QHash<QString, QStringList> fields;
    if (report.root)
        collectFields(*report.root, fields);
    return fields;
}

ReportData sampleData(const ReportTemplate &report, int rows)
{
    ReportData data;
    for (const QString &name : report.variableNames())
        data.setText(name, variableValue(name));
    const QStringList declared = report.variableNames();
    ReportData money;
    setSampleMoney(money, rows);
    for (auto it = money.variables.begin(); it != money.variables.end(); ++it)
        if (declared.contains(it.key()))
            data.variables.insert(it.key(), it.value());
    const QHash<QString, QStringList> fields = fieldsNamed(report);
    QStringList sets = report.datasetNames();
    for (auto it = fields.begin(); it != fields.end(); ++it)
        if (!sets.contains(it.key()))
            sets.append(it.key());
    for (const QString &name : sets) {
        DataSet set { name, fields.value(name), {} };
        for (int row = 0; row < rows; ++row) {
            QVariantList values;
            for (const QString &field : set.fields)
                values.append(fieldValue(field, row));
            set.rows.append(values);
        }
        data.datasets.append(set);
    }
    return data;
}

} // namespace medistock::reports
